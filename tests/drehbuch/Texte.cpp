// Texte.cpp: masking, numbers and the cutting of lines.
#include "tests/drehbuch/Texte.h"

#include <array>
#include <cmath>

namespace malvone {
namespace {

struct Maske
{
    char Zeichen;
    char Buchstabe;
};
constexpr std::array<Maske, 3> kMasken = {{{'\\', '\\'}, {'\r', 'r'}, {'\n', 'n'}}};

// Number of the bytes that follow the first byte of a character; -1 where none can begin with it.
int Folgebytes(unsigned char first)
{
    if (first < 0x80) return 0;
    if (first >= 0xC2 && first <= 0xDF) return 1;
    if (first >= 0xE0 && first <= 0xEF) return 2;
    return first >= 0xF0 && first <= 0xF4 ? 3 : -1;
}

// Forms that are longer than needed, surrogates and numbers beyond U+10FFFF show in the second
// byte.
bool ZweitesByteGueltig(unsigned char first, unsigned char second)
{
    switch (first) {
    case 0xE0: return second >= 0xA0;
    case 0xED: return second < 0xA0;
    case 0xF0: return second >= 0x90;
    case 0xF4: return second < 0x90;
    default: return true;
    }
}

}  // namespace

std::string Maskiert(std::string_view text)
{
    std::string masked;
    masked.reserve(text.size());
    for (const char c : text) {
        char out = c;
        for (const Maske& mask : kMasken) {
            if (c == mask.Zeichen) {
                masked += '\\';
                out = mask.Buchstabe;
            }
        }
        masked += out;
    }
    return masked;
}

std::string Entmaskiert(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char out = text[i];
        if (out == '\\' && i + 1 < text.size()) {
            for (const Maske& mask : kMasken) {
                if (text[i + 1] == mask.Buchstabe) {
                    out = mask.Zeichen;
                    ++i;
                    break;
                }
            }
        }
        plain += out;
    }
    return plain;
}

bool IstUtf8(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const auto first = static_cast<unsigned char>(text[i++]);
        const int following = Folgebytes(first);
        if (following < 0 || text.size() - i < static_cast<std::size_t>(following)) {
            return false;
        }
        for (int k = 0; k < following; ++k) {
            const auto byte = static_cast<unsigned char>(text[i++]);
            if ((byte & 0xC0U) != 0x80 || (k == 0 && !ZweitesByteGueltig(first, byte))) {
                return false;
            }
        }
    }
    return true;
}

std::string TwipsText(Twips value)
{
    std::array<char, 128> buffer{};  // the longest numbers have 39 digits, or 55 behind the point
    const Twips plain = value == 0 ? 0 : value;  // no sign before a zero
    const auto [end, fault] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), plain,
                                            std::chars_format::fixed);
    return fault == std::errc() ? std::string(buffer.data(), end) : std::string("?");
}

std::optional<Twips> TwipsAus(std::string_view text)
{
    const auto number = ZahlAus<Twips>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::string_view Abschneiden(std::string_view& text, char separator)
{
    const std::size_t cut = text.find(separator);
    const std::string_view head = text.substr(0, cut);
    text.remove_prefix(cut == std::string_view::npos ? text.size() : cut + 1);
    return head;
}

std::string DateinameAus(std::string_view path)
{
    return path.empty() ? "-" : std::string(path.substr(path.rfind('\\') + 1));
}

}  // namespace malvone
