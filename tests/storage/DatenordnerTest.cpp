// DatenordnerTest.cpp: paths, numbers in files, and the snapshot when a write fails.
#include <gtest/gtest.h>

#include "state/Pfade.h"
#include "storage/Spielstanddatei.h"
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

TEST(Datenordner, WithoutAWindowsFolderOnlyTheProgramsFolderIsLeft)
{
    Stage<> stage({{}, {}, true});
    stage.Start("key Esc\n");
    EXPECT_EQ(Daten.DatenOrdnerOk, False);
    EXPECT_EQ(DatenPfad(), ProgrammOrdner());
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

TEST(Zahlen, OnlyDecimalNumbersInRangeAreNumbers)
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

// Other line ends, more lines and blanks around the numbers are no damage.
TEST(Spielstanddatei, ARepeatReadsWhatAnyEditorHasWritten)
{
    std::string values;
    std::string lines;
    for (int i = 0; i < kZellen; ++i) {
        values += static_cast<char>('0' + (i + i / 7) % (kFarben + 1));
        lines += std::string(1, values.back()) + "\n";
    }
    std::string old = lines;
    std::ranges::replace(old, '\n', '\r');
    for (const std::string& file : {lines, old, lines + "more\n", lines.substr(0, lines.size() - 1),
                                    " " + lines.substr(0, 1) + " " + lines.substr(1)}) {
        Game game;
        WriteFile(game.Snapshot, file);
        StandLaden();
        std::string shown = values;
        std::ranges::replace(shown, '0', '.');
        EXPECT_EQ(game("board\npictures\n"), "= " + values + "\n= " + shown + "\n");
    }
}

TEST(Spielstanddatei, AFailedWriteIsToldAndMetByTheRepeat)
{
    const std::pair<const char*, const char*> cases[] = {{"write", "Beim Einlesen der Werte"},
                                                         {"open", "wurde nicht gespeichert."}};
    for (const auto& [failing, words] : cases) {
        Game game;
        game("key Enter\n");
        game.Platform.Fault = Fails(failing, ENOSPC);
        const std::string written = game("key Esc\n", &StandSpeichern);
        EXPECT_NE(written.find("ist fehlgeschlagen."), std::string::npos) << written;
        game.Platform.Fault = {};
        const std::string read = game("key Esc\n", &StandLaden);
        EXPECT_NE(read.find(words), std::string::npos) << read;
    }
}

}  // namespace
}  // namespace malvone::test
