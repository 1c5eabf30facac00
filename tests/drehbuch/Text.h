// Text.h: how the script program writes texts and numbers on its lines, and how it reads them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/layer/Number.h"
#include "ui/layer/Units.h"

namespace malvone::script {

// Backslash, CR and LF become "\\", "\r" and "\n"; every text of the game goes out this way.
std::string Masked(std::string_view text);
// The way back. A backslash before any other character stands for itself.
std::string Unmasked(std::string_view text);

// Shortest form that reads back as the same number, never with an exponent.
std::string TwipsText(Twips value);
std::optional<Twips> TwipsFrom(std::string_view text);  // finite numbers only

// Cuts the text at its first separator: what stands before it is returned, the rest stays.
std::string_view CutOff(std::string_view& text, char separator);

// The same with {version} for the number of this version, so that a new one changes no transcript.
std::string WithoutVersion(std::string text);

// What lies behind the last backslash of a path; "-" for the empty path.
std::string FileNameOf(std::string_view path);

}  // namespace malvone::script
