// FallenTest.cpp: stones fall, empty columns close, and the test whether a move is left.
#include <gtest/gtest.h>

#include <random>

#include "board/AllesnachLinks.h"
#include "board/FillFeld.h"
#include "tests/board/Brett.h"

namespace malvone {
namespace {

// One column, from top to bottom, as text.
Werte MitSpalte(int spalte, std::string_view text, Werte werte = {})
{
    for (std::size_t reihe = 0; reihe < text.size(); ++reihe) {
        werte.at(static_cast<std::size_t>(spalte * 10) + reihe + 1) =
            text[reihe] == '.' ? 0 : text[reihe] - '0';
    }
    return werte;
}

TEST(Fallen, EachColumnClosesItsGapsAndKeepsItsOrder)
{
    const struct
    {
        const char* Vorher;
        const char* Nachher;
    } cases[] = {
        {"1.2..3.4.1", ".....12341"}, {"123412341.", ".123412341"}, {"1234123412", "1234123412"},
        {"..........", ".........."}, {".123412341", ".123412341"}, {"1.........", ".........1"},
        {"1.2.3.4.1.", ".....12341"}, {".........1", ".........1"}, {"12......34", "......1234"},
    };
    const Level level;
    for (const auto& c : cases) {
        for (const int spalte : {0, 6, 13}) {
            // The neighbours begin and end with other stones: nothing passes from column to column.
            Werte nachbarn{};
            for (const int nachbar : {spalte - 1, spalte + 1}) {
                if (nachbar >= 0 && nachbar < 14) {
                    nachbarn = MitSpalte(nachbar, "3232323232", nachbarn);
                }
            }
            level.Setzen(MitSpalte(spalte, c.Vorher, nachbarn));
            SteineFallenLassen();
            const Werte nachher = MitSpalte(spalte, c.Nachher, nachbarn);
            EXPECT_EQ(level.BrettText(), AlsText(nachher)) << c.Vorher << " in " << spalte;
            EXPECT_EQ(level.Bilder(), level.SchlichteBilder(nachher));
        }
    }
}

TEST(Fallen, StonesOfRandomBoardsLieBelowAllEmptyCellsInTheirOldOrder)
{
    std::mt19937 zufall(1);
    const Level level;
    for (int brett = 0; brett < 50; ++brett) {
        Werte vorher{};
        Werte nachher{};
        for (int spalte = 0; spalte < 14; ++spalte) {
            std::string text;
            std::string steine;
            for (int reihe = 0; reihe < 10; ++reihe) {
                text += ".1234"[zufall() % 5];
                steine += text.back() == '.' ? "" : text.substr(text.size() - 1);
            }
            vorher = MitSpalte(spalte, text, vorher);
            nachher = MitSpalte(spalte, std::string(10 - steine.size(), '.') + steine, nachher);
        }
        level.Setzen(vorher);
        SteineFallenLassen();
        ASSERT_EQ(level.BrettText(), AlsText(nachher)) << AlsText(vorher);
    }
}

TEST(Fallen, MarksStayOnTheirCellsAndEveryCellIsRepainted)
{
    const Level level(AusReihen({"1", "1", ".", "2"}));
    level.Zeigen(7);
    frmTessel->imgFeld(100).Picture = frmBilder->imgGrund.Picture;
    SteineFallenLassen();
    EXPECT_EQ(level.Markierte(), (Zellmenge{7, 8}));
    EXPECT_EQ(level.Vorgezeigte(), (Zellmenge{7, 8}));
    EXPECT_EQ(level.Bilder(), level.SchlichteBilder(AusReihen({"1", "1", "2"})));
}

TEST(Spalten, OneCallClosesUpToSixEmptyColumnsWithStonesToTheirRight)
{
    const struct
    {
        const char* Vorher;  // the bottom row
        const char* Nachher;
    } cases[] = {
        {"12..3", "123"},
        {"12341234123412", "12341234123412"},
        {".1234123412341", "1234123412341"},
        {"1.2.3.4.1.2.34", "12341234"},      // six, one by one
        {"1......2", "12"},                  // six in one gap
        {"......1", "1"},                    // six at the left end
        {"1..2..3..4", "1234"},              // six in three gaps
        {"1.......2", "1.2"},                // seven in one gap
        {".......1", ".1"},                  // seven at the left end
        {".1.2.3.4.1.2.3", "123412.3"},      // seven, one by one
        {"..1..2..3..4", "123..4"},          // eight: what is left stands at the right
        {".............1", ".......1"},      // thirteen
        {"1234123412341", "1234123412341"},  // the last column alone is empty
        {"1............", "1"},
    };
    const Level level;
    for (const auto& c : cases) {
        // A second row on some of the stones: columns move whole, without a change of rows.
        Werte vorher{};
        Werte nachher{};
        for (const auto& [text, werte] : {std::pair{c.Vorher, &vorher}, {c.Nachher, &nachher}}) {
            const std::string_view reihe(text);
            for (std::size_t spalte = 0; spalte < reihe.size(); ++spalte) {
                const int wert = reihe[spalte] == '.' ? 0 : reihe[spalte] - '0';
                (*werte)[spalte * 10 + 10] = wert;
                (*werte)[spalte * 10 + 4] = wert > 2 ? 5 - wert : 0;
            }
        }
        level.Setzen(vorher);
        SpaltenSchliessen();
        EXPECT_EQ(level.BrettText(), AlsText(nachher)) << c.Vorher;
        EXPECT_EQ(level.Bilder(), level.SchlichteBilder(nachher)) << c.Vorher;
    }
}

TEST(Spalten, SeventhEmptyColumnWaitsForTheNextClick)
{
    Level level(AusReihen({"3111111144"}));
    level.ZeigenUndDruecken(20);
    EXPECT_EQ(level.BrettText(), AlsText(AusReihen({"3.44"})));
    level.Druecken(10);  // nothing is marked, nothing is removed
    EXPECT_EQ(level.BrettText(), AlsText(AusReihen({"344"})));
    EXPECT_EQ(Stand.PunkteGesamt, 49);
}

// The move test runs while the seventh column is still open: stones on its two sides are no pair.
TEST(Spalten, ColumnLeftOpenPartsAPairAndTheLevelEnds)
{
    Level level(AusReihen({"322222223"}));
    level.Antworten({Taste(kKeyEsc)});
    level.ZeigenUndDruecken(20);
    const Verlauf verlauf = level.VerlaufSeitdem();
    ASSERT_EQ(verlauf.size(), 2U);
    EXPECT_EQ(verlauf[1], "frmMsgOk: \r\nEs ist kein weiterer Zug mehr möglich.\r\n"
                          "Es sind noch 2 Felder belegt. | "
                          "\r\nSie erhalten keine Bonuspunkte in diesem Level.");
    EXPECT_TRUE(frmTessel->imgNaechsterLevel.Visible);
}

TEST(ZugVorhanden, TwoEqualNeighboursAreAMove)
{
    const struct
    {
        const char* Name;
        Werte Brett;
        Flag Zug;
    } cases[] = {
        {"empty board", {}, False},
        {"one stone", MitZellen({75}, 2), False},
        {"bottom of a column and top of the next", MitZellen({10, 11}, 1), False},
        {"diagonals", MitZellen({12, 23, 34, 25, 16}, 1), False},
        {"gap between", MitZellen({18, 20}, 1), False},
        {"column between", MitZellen({10, 30}, 1), False},
        {"two of different colours", MitZellen({10}, 1, MitZellen({20}, 2)), False},
        {"last column, top", MitZellen({131, 132}, 4), True},
        {"last column, bottom", MitZellen({139, 140}, 4), True},
        {"last two columns, top", MitZellen({121, 131}, 3), True},
        {"last two columns, bottom", MitZellen({130, 140}, 3), True},
        {"first column, top", MitZellen({1, 2}, 1), True},
        {"first column, bottom", MitZellen({9, 10}, 1), True},
        {"first two columns, top", MitZellen({1, 11}, 1), True},
        {"first two columns, bottom", MitZellen({10, 20}, 1), True},
    };
    const Level level;
    for (const auto& c : cases) {
        level.Setzen(c.Brett);
        Flag zug = c.Zug == True ? False : True;
        ZugVorhanden(zug);
        EXPECT_EQ(zug, c.Zug) << c.Name;
    }
}

// Every pair of the board, one by one, on stones that are no pairs otherwise.
TEST(ZugVorhanden, EveryPairOfTheBoardIsSeen)
{
    const Level level;
    Werte lose{};
    for (int i = 1; i <= 140; ++i) {
        lose[static_cast<std::size_t>(i)] = 1 + ((i - 1) / 10 + (i - 1) % 10) % 2;
    }
    const auto zug = [&level](const Werte& werte) {
        level.Setzen(werte);
        Flag ergebnis = False;
        ZugVorhanden(ergebnis);
        return ergebnis;
    };
    EXPECT_EQ(zug(lose), False);
    int paare = 0;
    for (int i = 1; i <= 140; ++i) {
        for (const int j : {i % 10 == 0 ? 0 : i + 1, i > 130 ? 0 : i + 10}) {
            if (j != 0) {
                EXPECT_EQ(zug(MitZellen({i, j}, 4, lose)), True) << i << " and " << j;
                ++paare;
            }
        }
    }
    EXPECT_EQ(paare, 14 * 9 + 13 * 10);
}

}  // namespace
}  // namespace malvone
