// Zahlen.cpp: reads numbers without trusting their text.
#include "storage/Zahlen.h"

#include <charconv>
#include <limits>

namespace malvone {

namespace {

std::string_view OhneRandblanks(std::string_view text)
{
    const std::size_t anfang = text.find_first_not_of(" \t");
    if (anfang == std::string_view::npos) {
        return {};
    }
    return text.substr(anfang, text.find_last_not_of(" \t") - anfang + 1);
}

}  // namespace

std::optional<std::int32_t> Zahl32(std::string_view text)
{
    std::string_view ziffern = OhneRandblanks(text);
    if (ziffern.starts_with('+')) {  // from_chars knows the minus sign alone
        ziffern.remove_prefix(1);
        if (ziffern.starts_with('-')) {
            return std::nullopt;
        }
    }
    std::int32_t zahl = 0;
    const char* const ende = ziffern.data() + ziffern.size();
    const auto [halt, fehler] = std::from_chars(ziffern.data(), ende, zahl);
    if (fehler != std::errc() || halt != ende) {
        return std::nullopt;
    }
    return zahl;
}

std::optional<std::int16_t> Zahl16(std::string_view text)
{
    using Grenzen = std::numeric_limits<std::int16_t>;
    const std::optional<std::int32_t> zahl = Zahl32(text);
    if (!zahl || *zahl < Grenzen::min() || *zahl > Grenzen::max()) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(*zahl);
}

}  // namespace malvone
