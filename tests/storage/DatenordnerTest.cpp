// DatenordnerTest.cpp: paths, and numbers in files.
#include <gtest/gtest.h>

#include "state/Pfade.h"
#include "storage/Zahlen.h"
#include "tests/support/Game.h"

namespace malvone::test {
namespace {

TEST(Datenordner, OnlyAFreeNameInAnExistingFolderIsAbsent)
{
    const Game game("from an earlier run");
    WriteFile(game.Snapshot, "");
    for (const char* const there :
         {"C:\\lindenspiele", "C:\\lindenspiele\\tessel.ini", "C:\\fehlt\\tessel.ini",
          "C:\\lindenspiele\\tessel.ini\\x", "P:\\ding.wav"}) {
        EXPECT_TRUE(ExistiertDatei(there)) << there;
    }
    for (const char* const absent : {"", "C:\\lindenspiele\\fehlt", "C:\\fehlt", "P:\\fehlt.wav"}) {
        EXPECT_FALSE(ExistiertDatei(absent)) << absent;
    }
    EXPECT_EQ(DatenPfad(), "C:\\lindenspiele\\");
    EXPECT_EQ(MitBackslash("C:") + MitBackslash("C:\\") + MitBackslash(""), "C:\\C:\\\\");
    EXPECT_EQ(ProgrammOrdner(), "P:\\");
}

// Only its name counts: whether a wave can be read shows when it is played.
TEST(Klaenge, AWaveThatCannotBeReadIsThere)
{
    Stage<> stage;
    std::filesystem::remove(stage.Program / "CHIMES.WAV");
    stage.Platform.Fault = Fails("access", EACCES);
    EXPECT_TRUE(stage.Start().starts_with("! sound TADA.WAV\n"));
    EXPECT_EQ(stage("key Enter\n"), "! sound -\n");
}

TEST(Numbers, OnlyDecimalNumbersInRangeAreNumbers)
{
    const std::pair<const char*, std::int32_t> numbers[] = {{"0", 0},
                                                            {" +42\t", 42},
                                                            {"-7", -7},
                                                            {"007", 7},
                                                            {"2147483647", 2147483647},
                                                            {"-2147483648", -2147483647 - 1}};
    for (const auto& [text, number] : numbers) {
        EXPECT_EQ(Zahl32(text), number) << text;
    }
    for (const char* const text : {"2147483648", "99999999999999999999", "", "  ", "+", "+-1",
                                   "- 1", "1 2", "12x", "0x10", "1e3", "٣"}) {
        EXPECT_EQ(Zahl32(text), std::nullopt) << text;
    }
    EXPECT_EQ(Zahl16("32767"), 32767);
    EXPECT_EQ(Zahl16("-32768"), -32768);
    EXPECT_EQ(Zahl16("32768"), std::nullopt);
}

}  // namespace
}  // namespace malvone::test
