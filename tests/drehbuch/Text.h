// Text.h: how the script program writes texts and numbers on its lines, and how it reads them.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

#include "ui/layer/Units.h"

namespace malvone::script {

// Backslash, CR and LF become "\\", "\r" and "\n"; every text of the game goes out this way.
std::string Masked(std::string_view text);
// The way back. A backslash before any other character stands for itself.
std::string Unmasked(std::string_view text);

// Shortest form that reads back as the same number, never with an exponent.
std::string TwipsText(Twips value);
std::optional<Twips> TwipsFrom(std::string_view text);  // finite numbers only

// A whole number in plain decimal digits that fits its type and is all of the text.
template<class Number>
std::optional<Number> NumberFrom(std::string_view text)
{
    Number number{};
    const auto [stop, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = fault == std::errc() && stop == text.data() + text.size();
    return whole ? std::optional(number) : std::nullopt;
}

// Cuts the text at its first separator: what stands before it is returned, the rest stays.
std::string_view CutOff(std::string_view& text, char separator);

// The same with {version} for the number of this version, so that a new one changes no transcript.
std::string WithoutVersion(std::string text);

// What lies behind the last backslash of a path; "-" for the empty path.
std::string FileNameOf(std::string_view path);

}  // namespace malvone::script
