// CodePage.h: UTF-8 in memory, Windows-1252 in the files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace malvone {

// The five bytes without a character (129, 141, 143, 144, 157) become the control characters of the
// same number, so that every byte survives a round trip.
std::string FromWindows1252(std::string_view bytes);
// A character that the code page lacks, or a byte that is not UTF-8, becomes "?".
std::string ToWindows1252(std::string_view utf8);

bool IsUtf8(std::string_view text);

// The characters of a text that a player may type and a file can hold: no control characters.
std::string KeepTypable(std::string_view utf8);

// The length of a text, and a part of it, in characters.
std::size_t CharacterCount(std::string_view utf8);
std::string Characters(std::string_view utf8, std::size_t first, std::size_t count);

}  // namespace malvone
