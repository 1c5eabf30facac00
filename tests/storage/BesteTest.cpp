// BesteTest.cpp: the best list where no script reaches: results of any size, numbers that are none,
// and files that fail. What the player sees and types stands in the played games.
#include <gtest/gtest.h>

#include "state/Beste.h"
#include "state/Spielstand.h"
#include "storage/modBeste.h"
#include "tests/support/Game.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::test {
namespace {

const std::string kDefault = "Niemand\r\nNiemand\r\nNiemand\r\nNiemand\r\nNiemand\r\n"
                             "5000\r\n4700\r\n4400\r\n4100\r\n3800\r\n";

std::string Row(int place)
{
    return Digits(frmBeste->imgDiggi, place * kZiffernJePlatz, (place + 1) * kZiffernJePlatz - 1);
}

void EndOfGame()
{
    BestePruefen();
    frmTessel->ExternesEnde();
}

TEST(BesteFenster, ARowShowsItsPoints)
{
    const std::pair<const char*, const char*> cases[] = {
        {"5000", "..5000"},
        {"1", ".....1"},
        {"0", "......"},
        {"000", "......"},
        {"007", "...007"},
        {"654321", "654321"},
        {"7654321", "654321"},     // the first digit lies in the place that is never visible
        {"12345678", "999999"},    // more than seven digits: at least that
        {"2147483647", "999999"},  //
        {"2147483648", "......"},  // no number counts as 0
        {"", "......"},
        {"12x4", "......"},
        {"-42", "....42"},
        {"  42 ", "...42."},
        {"0000000000042", "000042"},
        {"四十二", "......"},
    };
    Game game;
    game("do frmTessel.mnuInfo(4) Click\ndo frmBeste.cmdEnde Click\n");
    for (const auto& [points, digits] : cases) {
        game("set frmBeste.lstPunkte.List(2) " + std::string(points) +
             "\ndo frmTessel.mnuInfo(4) Click\ndo frmBeste.cmdEnde Click\n");
        EXPECT_EQ(Row(2), digits) << points;
        EXPECT_EQ(Row(1) + Row(3), "..4700..4100");
    }
}

TEST(BestePruefen, APlaceWithoutANumberCountsAsNothing)
{
    const struct
    {
        const char* List;
        std::int32_t Points;
        int Place;
    } cases[] = {
        {"a\nb\nc\nd\ne\n500\nx\n300\n200\n100\n", 1, 4}, {"a\nb\nc\nd\ne\n99999999999\n", 1, 0},
        {"a\nb\nc\nd\ne\n500\n400\n300\n", 10, 3},  // the last two lines are missing
        {"a\nb\nc\nd\ne\n500\n400\n300\n", 0, -1},        {"", 1, 0},
        {"a\nb\nc\nd\ne\n-5\n-6\n\n\n\n", 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.List);
        Game game;
        WriteFile(game.BestList, c.List);
        game("key Esc\n", [] { frmBeste.Touch(); });
        Stand.PunkteGesamt = c.Points;
        game("key N\nkey Esc\nkey N\n", &EndOfGame);
        EXPECT_EQ(Beste.EintragPlatz, c.Place);
        EXPECT_EQ(Contents(game.BestList), c.List);
    }
}

TEST(BestePruefen, AnEntryMovesTheWorseOnesDownAlsoInADamagedList)
{
    const std::string there(200'000, 'y');  // names have any length
    const std::string typed(5'000, 'x');
    const std::string five = "A\r\nB\r\nC\r\nD\r\nE\r\n500\r\n400\r\n300\r\n200\r\n100\r\n";
    const struct
    {
        std::string Before;
        std::int32_t Points;
        std::string After;
        std::string Name = "x";
    } cases[] = {
        {five, 501, "x\r\nA\r\nB\r\nC\r\nD\r\n501\r\n500\r\n400\r\n300\r\n200\r\n"},
        {five, 301, "A\r\nB\r\nx\r\nC\r\nD\r\n500\r\n400\r\n301\r\n300\r\n200\r\n"},
        {five, 101, "A\r\nB\r\nC\r\nD\r\nx\r\n500\r\n400\r\n300\r\n200\r\n101\r\n"},
        // The place without a number is the one that goes.
        {"A\r\nB\r\nC\r\nD\r\nE\r\n500\r\nviel\r\n300\r\n200\r\n100\r\n", 250,
         "A\r\nC\r\nx\r\nD\r\nE\r\n500\r\n300\r\n250\r\n200\r\n100\r\n"},
        {"a\nb\n", 7, "x\r\na\r\nb\r\n\r\n\r\n7\r\n\r\n\r\n\r\n\r\n"},
        {"J\xFCrgen \x80\n\"a\", b\n" + there + "\n\n  z \n9\n 8 \n-\n\n\n", 5,
         "J\xFCrgen \x80\r\n\"a\", b\r\n" + typed + "\r\n" + there +
             "\r\n\r\n9\r\n 8 \r\n5\r\n-\r\n\r\n",
         typed},
    };
    for (const auto& c : cases) {
        Game game(c.Before);
        game("key Esc\n", [] { frmBeste.Touch(); });
        Stand.PunkteGesamt = c.Points;
        game("key J\ntype " + c.Name + "\ndo frmBeste.cmdEnde Click\nkey J\n", &EndOfGame);
        EXPECT_EQ(Contents(game.BestList), c.After);
        EXPECT_EQ(Beste.EndPunkte, 0);
        EXPECT_EQ(Stand.RundenZahl, 1);
        // A list that was not read whole is kept, once.
        BesteSpeichern();
        const std::string kept = "malvone-nicht-gelesen-1.txt";
        EXPECT_EQ(Contents(game.DataFolder / kept).value_or(c.Before), c.Before);
        EXPECT_EQ(Names(game.DataFolder).size(), c.Before == "a\nb\n" ? 3U : 2U);
    }
}

TEST(BesteLesen, AFileThatCannotBeReadIsToldByItsNumber)
{
    const auto told = [](const char* number) {
        return std::string(
                   "! show frmMsgOk modal 11497.5 6390\n! text frmMsgOk \\r\\nDie Daten für "
                   "»Beste Spieler«\\r\\nkonnten nicht gelesen werden! | "
                   "\\r\\nFehlernummer: ") +
               number + "\n! unload frmMsgOk\n";
    };
    const std::pair<int, const char*> faults[] = {
        {ENOENT, "53"}, {EACCES, "70"}, {EISDIR, "75"}, {EIO, "57"}};
    for (const auto& [error, number] : faults) {
        Game game;
        game.Platform.Fault = Fails("open", error);
        EXPECT_EQ(game("key Esc\n", [] { frmBeste.Touch(); }), told(number));
        EXPECT_EQ(frmBeste->lstName.ListCount() + frmBeste->lstPunkte.ListCount(), 0);
    }
    const std::pair<std::string, const char*> contents[] = {
        {"", "62"}, {std::string(100, '\0'), "62"}, {std::string(1 << 20, 'x'), "62"}};
    for (const auto& [content, number] : contents) {
        Game game(content);
        WriteFile(game.BestList, content);
        EXPECT_EQ(game("key Esc\n", [] { frmBeste.Touch(); }), told(number));
        EXPECT_EQ(Contents(game.BestList), content);
    }
}

// What this run knows of the file is old: somebody else has written it before the save.
TEST(BesteSpeichern, AnEntryGoesIntoTheListThatIsThereNow)
{
    const auto list = [](const std::string& names, const std::string& points) {
        std::string lines = names + " " + points + " ";
        for (std::size_t at = 0; (at = lines.find(' ', at)) != std::string::npos; at += 2) {
            lines.replace(at, 1, "\r\n");
        }
        return lines;
    };
    const std::string five = list("A B C D E", "500 400 300 200 100");
    const std::string wiped = list("x Niemand Niemand Niemand Niemand", "5200 5000 4700 4400 4100");
    const struct
    {
        const char* What;
        std::int32_t Points;
        std::string Now;  // "-": deleted
        std::string After;
        const char* Told = "";
    } cases[] = {
        {"another entry", 250, list("A Z B C D", "500 450 400 300 200"),
         list("A Z B C x", "500 450 400 300 250")},
        {"the same points", 250, list("A B C Z D", "500 400 300 250 200"),
         list("A B C Z x", "500 400 300 250 250")},
        {"no room", 250, list("V W X Y Z", "900 800 700 600 250"),
         list("V W X Y Z", "900 800 700 600 250"), "ist leider nicht möglich!"},
        {"wiped", 5200, kDefault, wiped},
        {"deleted", 5200, "-", wiped},
        {"damaged", 250, "A\r\n", list("A B C x D", "500 400 300 250 200"), "Fehlernummer: 62"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        Game game(five);
        frmBeste.Touch();
        Stand.PunkteGesamt = c.Points;
        std::filesystem::remove(game.BestList);
        if (c.Now != "-") {
            WriteFile(game.BestList, c.Now);
        }
        const std::string told =
            game("key J\ntype x\ndo frmBeste.cmdEnde Click\nkey J\nkey Esc\n", &EndOfGame);
        EXPECT_NE(told.find(c.Told), std::string::npos) << told;
        EXPECT_EQ(told.find("leider") == std::string::npos, c.After != c.Now) << told;
        EXPECT_EQ(Contents(game.BestList), c.After);
        EXPECT_EQ(Contents(game.DataFolder / "malvone-nicht-gelesen-1.txt"),
                  c.What == std::string("damaged") ? std::optional(c.Now) : std::nullopt);
        std::string names;
        for (int place = 0; place < kPlaetze; ++place) {
            names += frmBeste->lstName.List(place) + "\r\n";
        }
        EXPECT_TRUE(c.After.starts_with(names)) << names;
    }
    // A fault that passes between reading and saving hides no name.
    Game game(five);
    game.Platform.Fault = Fails("read", EIO);
    game("key Esc\n", [] { frmBeste.Touch(); });
    game.Platform.Fault = nullptr;
    Stand.PunkteGesamt = 250;
    game("key J\ntype x\ndo frmBeste.cmdEnde Click\nkey J\n", &EndOfGame);
    EXPECT_EQ(Contents(game.BestList), list("A B C x D", "500 400 300 250 200"));
    EXPECT_EQ(Names(game.DataFolder).size(), 2U);
}

TEST(BesteVorgabe, ADefaultListThatCannotBeWrittenIsSilent)
{
    Game game("old");
    game.Platform.Fault = Fails("rename", EACCES);
    EXPECT_EQ(game("", &BesteVorgabe), "");
    EXPECT_EQ(Contents(game.BestList), "old");
}

}  // namespace
}  // namespace malvone::test
