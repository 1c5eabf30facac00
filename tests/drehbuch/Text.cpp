// Text.cpp: masking, numbers and the cutting of lines.
#include "tests/drehbuch/Text.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "ui/services/Meldungen.h"

namespace malvone::script {
namespace {

// What stands for itself, and the letter behind a backslash that stands for it.
constexpr std::string_view kPlain = "\\\r\n";
constexpr std::string_view kLetters = "\\rn";

}  // namespace

std::string Masked(std::string_view text)
{
    std::string masked;
    for (const char c : text) {
        const std::size_t at = kPlain.find(c);
        masked += at == std::string_view::npos ? std::string{c} : std::string{'\\', kLetters[at]};
    }
    return masked;
}

std::string Unmasked(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool mask = text[i] == '\\' && i + 1 < text.size();
        const std::size_t at = mask ? kLetters.find(text[i + 1]) : std::string_view::npos;
        plain += at == std::string_view::npos ? text[i] : kPlain[at];
        i += at == std::string_view::npos ? 0 : 1;
    }
    return plain;
}

// Not every library that the program is built with knows numbers with a point in <charconv>.
std::string TwipsText(Twips value)
{
    std::array<char, 200> buffer{};  // the longest numbers have 39 digits, or 149 behind the point
    const Twips plain = value == 0 ? 0 : value;  // no sign before a zero
    for (int digits = 0; digits < 150; ++digits) {
        std::snprintf(buffer.data(), buffer.size(), "%.*f", digits, static_cast<double>(plain));
        if (std::strtof(buffer.data(), nullptr) == plain) {
            break;
        }
    }
    return buffer.data();
}

std::optional<Twips> TwipsFrom(std::string_view text)
{
    const std::string copy(text);
    char* end = nullptr;
    const Twips number = std::strtof(copy.c_str(), &end);
    const bool plain = !copy.empty() && copy.front() != '+' &&
                       copy.find_first_not_of("0123456789.+-eE") == std::string::npos;
    const bool whole = plain && *end == '\0';
    return whole && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::string_view CutOff(std::string_view& text, char separator)
{
    const std::size_t cut = text.find(separator);
    const std::string_view head = text.substr(0, cut);
    text.remove_prefix(cut == std::string_view::npos ? text.size() : cut + 1);
    return head;
}

std::string WithoutVersion(std::string text)
{
    const std::string title = TitelMitVersion();
    const std::string version = title.substr(title.rfind(' ') + 1);
    if (const std::size_t at = text.find(version); at != std::string::npos) {
        text.replace(at, version.size(), "{version}");
    }
    return text;
}

std::string FileNameOf(std::string_view path)
{
    return path.empty() ? "-" : std::string(path.substr(path.rfind('\\') + 1));
}

}  // namespace malvone::script
