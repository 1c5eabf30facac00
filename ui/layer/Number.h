// Number.h: whole numbers in texts.
#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace malvone {

// A whole number in plain decimal digits, with a minus sign where its type has one. It is none
// where it does not fit its type or is not all of the text.
template<class Number>
std::optional<Number> NumberFrom(std::string_view text)
{
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, number);
    return fault == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

}  // namespace malvone
