// Zahlen.cpp: reads numbers without trusting the text.
#include "storage/Zahlen.h"

#include "ui/layer/Number.h"

namespace malvone {

namespace {

// Without blanks around it and without a plus sign before it.
std::string_view Ziffern(std::string_view text)
{
    const std::size_t anfang = text.find_first_not_of(" \t");
    if (anfang == std::string_view::npos) {
        return {};
    }
    text = text.substr(anfang, text.find_last_not_of(" \t") - anfang + 1);
    const bool plus = text.starts_with('+') && !text.starts_with("+-");
    return text.substr(plus ? 1 : 0);
}

}  // namespace

std::optional<std::int32_t> Zahl32(std::string_view text)
{
    return NumberFrom<std::int32_t>(Ziffern(text));
}

std::optional<std::int16_t> Zahl16(std::string_view text)
{
    return NumberFrom<std::int16_t>(Ziffern(text));
}

}  // namespace malvone
