// Zahlen.h: numbers in files that somebody may have edited by hand.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace malvone {

// A signed number of 32 or 16 bits: decimal digits with an optional sign, with or without blanks
// around them. Anything else, and any number out of range, is none.
std::optional<std::int32_t> Zahl32(std::string_view text);
std::optional<std::int16_t> Zahl16(std::string_view text);

}  // namespace malvone
