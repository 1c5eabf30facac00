// CodePage.cpp: converts texts between UTF-8 and Windows-1252, and counts their characters.
#include "platform/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace malvone {

namespace {

// The characters of the bytes 128 to 159; all other bytes are the characters of the same number.
// The five bytes without a character stand for themselves.
constexpr std::uint8_t kFirstSpecial = 0x80;
constexpr std::array<char32_t, 32> kSpecial = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kNoCharacter = 0xFFFFFFFF;  // a byte that is not UTF-8

struct Decoded
{
    char32_t Character;
    std::string_view Bytes;  // that it is made of
};

constexpr std::uint8_t Byte(char c)
{
    return static_cast<std::uint8_t>(c);
}

// The first character of a text that is not empty. Overlong forms, surrogates and numbers beyond
// the last character are not UTF-8.
Decoded Decode(std::string_view text)
{
    struct Form
    {
        std::uint8_t Mask;
        std::uint8_t Lead;
        char32_t Smallest;
    };
    constexpr Form kForms[] = {
        {0x80, 0x00, 0x0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};
    const std::uint8_t lead = Byte(text[0]);
    const Form* const form =
        std::find_if(std::begin(kForms), std::end(kForms),
                     [lead](const Form& known) { return (lead & known.Mask) == known.Lead; });
    const auto extra = static_cast<std::size_t>(form - std::begin(kForms));
    const Decoded none{kNoCharacter, text.substr(0, 1)};
    if (form == std::end(kForms) || text.size() <= extra) {
        return none;
    }
    char32_t character = lead & static_cast<std::uint8_t>(~form->Mask);
    for (std::size_t i = 1; i <= extra; ++i) {
        if ((Byte(text[i]) & 0xC0U) != 0x80U) {
            return none;
        }
        character = (character << 6U) | (Byte(text[i]) & 0x3FU);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool known = character >= form->Smallest && character <= 0x10FFFF && !surrogate;
    return known ? Decoded{character, text.substr(0, extra + 1)} : none;
}

std::vector<Decoded> DecodeAll(std::string_view text)
{
    std::vector<Decoded> characters;
    while (!text.empty()) {
        characters.push_back(Decode(text));
        text.remove_prefix(characters.back().Bytes.size());
    }
    return characters;
}

void AppendUtf8(std::string& text, char32_t character)
{
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else {  // the code page holds nothing beyond three bytes
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
}

// The byte of a character, "?" where the code page lacks it.
char ToByte(char32_t character)
{
    const bool same = character < kFirstSpecial || (character >= 0xA0 && character <= 0xFF);
    if (same) {
        return static_cast<char>(character);
    }
    const auto* const found = std::find(kSpecial.begin(), kSpecial.end(), character);
    return found == kSpecial.end() ? '?'
                                   : static_cast<char>(kFirstSpecial + (found - kSpecial.begin()));
}

constexpr bool IsControl(char32_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

}  // namespace

std::string FromWindows1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const std::uint8_t byte = Byte(c);
        const bool special = byte >= kFirstSpecial && byte < kFirstSpecial + kSpecial.size();
        AppendUtf8(text, special ? kSpecial[byte - kFirstSpecial] : byte);
    }
    return text;
}

std::string ToWindows1252(std::string_view utf8)
{
    std::string bytes;
    for (const Decoded& next : DecodeAll(utf8)) {
        bytes += ToByte(next.Character);
    }
    return bytes;
}

bool IsUtf8(std::string_view text)
{
    const std::vector<Decoded> all = DecodeAll(text);
    return std::none_of(all.begin(), all.end(),
                        [](const Decoded& next) { return next.Character == kNoCharacter; });
}

std::string KeepTypable(std::string_view utf8)
{
    std::string kept;
    for (const Decoded& next : DecodeAll(utf8)) {
        const bool held = next.Character == U'?' || ToByte(next.Character) != '?';
        if (held && !IsControl(next.Character)) {
            kept += next.Bytes;
        }
    }
    return kept;
}

std::size_t CharacterCount(std::string_view utf8)
{
    return DecodeAll(utf8).size();
}

std::string Characters(std::string_view utf8, std::size_t first, std::size_t count)
{
    const std::vector<Decoded> all = DecodeAll(utf8);
    std::string part;
    for (std::size_t i = first; i < all.size() && i - first < count; ++i) {
        part += all[i].Bytes;
    }
    return part;
}

}  // namespace malvone
