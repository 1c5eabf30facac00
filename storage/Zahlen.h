// Zahlen.h: numbers in texts that somebody may have edited by hand.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace malvone {

// A signed 32-bit number in decimal: digits with an optional sign, blanks around it are let pass.
// Anything else, and any number out of range, is none.
std::optional<std::int32_t> Zahl32(std::string_view text);
std::optional<std::int16_t> Zahl16(std::string_view text);

}  // namespace malvone
