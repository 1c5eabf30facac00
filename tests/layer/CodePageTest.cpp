// CodePageTest.cpp: what a file holds comes back as it was, and nothing else can be typed.
#include "platform/CodePage.h"

#include <gtest/gtest.h>

namespace malvone {
namespace {

std::string AllBytes()
{
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    return bytes;
}

TEST(CodePage, EveryByteComesBackAsItWas)
{
    const std::string text = FromWindows1252(AllBytes());
    EXPECT_EQ(CharacterCount(text), 256U);
    EXPECT_EQ(ToWindows1252(text), AllBytes());
}

TEST(CodePage, CharactersHaveTheBytesOfTheCodePage)
{
    const struct
    {
        const char* Text;
        const char* Bytes;
    } cases[] = {
        {"Jürgen Groß", "J\xFCrgen Gro\xDF"},
        {"ÄÖÜäöüß", "\xC4\xD6\xDC\xE4\xF6\xFC\xDF"},
        {"€‚ƒ„…†‡ˆ‰Š‹Œ", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C"},
        {"Ž‘’“”•–—˜™š›œžŸ", "\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {"»\u00A0ÿ«", "\xBB\xA0\xFF\xAB"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ToWindows1252(c.Text), c.Bytes);
        EXPECT_EQ(FromWindows1252(c.Bytes), c.Text);
        EXPECT_TRUE(IsUtf8(c.Text));
    }
}

TEST(CodePage, WhatTheFileCannotHoldBecomesAQuestionMark)
{
    const struct
    {
        std::string Text;
        const char* Bytes;
    } cases[] = {
        {"a日本b", "a??b"},
        {"😀", "?"},                    // beyond the first plane
        {"\u0080", "?"},               // byte 128 is the euro sign
        {"a\u0308", "a?"},             // a separate diaeresis
        {"\xFC", "?"},                 // Windows-1252 taken for UTF-8
        {"\xC3", "?"},                 // cut off
        {"\xE2\x82", "??"},            //
        {"\xC3(", "?("},               // the second byte belongs to the next character
        {"\xC0\xAF", "??"},            // over-long
        {"\xE0\x80\xAF", "???"},       //
        {"\xED\xA0\x80", "???"},       // surrogate
        {"\xF4\x90\x80\x80", "????"},  // beyond the last character
        {"\xF8\x88\x80\x80\x80", "?????"},
        {"\xFF", "?"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ToWindows1252(c.Text), c.Bytes) << testing::PrintToString(c.Text);
    }
}

TEST(CodePage, NothingIsReadBehindTheText)
{
    EXPECT_EQ(ToWindows1252(std::string_view("\xE2\x82\xAC", 2)), "??");
}

TEST(CodePage, OnlyCharactersThatAFileHoldsCanBeTyped)
{
    EXPECT_EQ(KeepTypable("Jörg \"?\", 5 €"), "Jörg \"?\", 5 €");
    EXPECT_EQ(KeepTypable("a日😀b\xFF\xC3"), "ab");
    EXPECT_EQ(KeepTypable(std::string("a\0b\r\n\t\x7F\x1B", 8) + "\u0081\u009D"), "ab");

    std::string typable = FromWindows1252(AllBytes().substr(32));
    for (const char* const control : {"\x7F", "\u0081", "\u008D", "\u008F", "\u0090", "\u009D"}) {
        typable.erase(typable.find(control), std::string(control).size());
    }
    EXPECT_EQ(KeepTypable(FromWindows1252(AllBytes())), typable);
}

TEST(CodePage, PositionsCountCharacters)
{
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("Größe €"), 7U);
    EXPECT_EQ(CharacterCount("\xFF\xC3"), 2U);
    EXPECT_FALSE(IsUtf8("a\xC3z") || IsUtf8("\xED\xA0\x80"));
    EXPECT_EQ(Characters("Größe €", 2, 3), "öße");
    EXPECT_EQ(Characters("Größe €", 6, 9), "€");
    EXPECT_EQ(Characters("Größe €", 7, 1), "");
    EXPECT_EQ(Characters("Größe €", 99, 1), "");
    EXPECT_EQ(Characters("Größe €", 0, 0), "");
}

}  // namespace
}  // namespace malvone
