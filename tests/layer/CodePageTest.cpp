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
    const std::pair<const char*, const char*> cases[] = {
        {"ÄÖÜäöüß", "\xC4\xD6\xDC\xE4\xF6\xFC\xDF"},
        {"€‚ƒ„…†‡ˆ‰Š‹Œ", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C"},
        {"Ž‘’“”•–—˜™š›œžŸ", "\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {"»\u00A0ÿ«", "\xBB\xA0\xFF\xAB"}};
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(ToWindows1252(text), bytes);
        EXPECT_EQ(FromWindows1252(bytes), text);
        EXPECT_TRUE(IsUtf8(text));
    }
}

TEST(CodePage, WhatTheFileCannotHoldBecomesAQuestionMark)
{
    // Beyond the first plane; byte 128 is the euro sign; a separate diaeresis.
    EXPECT_EQ(ToWindows1252("a日本b 😀 \u0080 a\u0308 \xC3("), "a??b ? ? a? ?(");
    // Windows-1252 taken for UTF-8, cut off, over-long, surrogates, beyond the last character.
    for (const std::string text : {"\xFC", "\xFF", "\xC3", "\xE2\x82", "\xC0\xAF", "\xE0\x80\xAF",
                                   "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"}) {
        EXPECT_EQ(ToWindows1252(text), std::string(text.size(), '?'))
            << testing::PrintToString(text);
    }
    // Nothing is read behind the text.
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
    EXPECT_EQ(Characters("Größe €", 7, 1), Characters("Größe €", 99, 1));
    EXPECT_EQ(Characters("Größe €", 7, 1), Characters("Größe €", 0, 0));
}

}  // namespace
}  // namespace malvone
