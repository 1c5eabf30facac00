// CodePage.h: UTF-8 in memory, Windows-1252 in the files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace malvone {

// The five bytes without a character (129, 141, 143, 144, 157) stand for the control characters of
// the same number, so that every byte comes back from a file as it was.
std::string FromWindows1252(std::string_view bytes);
// A character that the code page lacks, or a byte that is no UTF-8, becomes "?".
std::string ToWindows1252(std::string_view utf8);

bool IsUtf8(std::string_view text);

// Only the characters that a player may type and a file can hold: no control characters.
std::string KeepTypable(std::string_view utf8);

// Length in characters, and the part of a text from one character on.
std::size_t CharacterCount(std::string_view utf8);
std::string_view Characters(std::string_view utf8, std::size_t first, std::size_t count);

}  // namespace malvone
