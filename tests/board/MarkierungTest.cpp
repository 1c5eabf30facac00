// MarkierungTest.cpp: which stones the pointer marks, held against a model of the chain on boards
// of many kinds, and the groups that tell the chain from a flood fill.
#include <gtest/gtest.h>

#include <random>

#include "tests/board/Brett.h"
#include "tests/board/KettenModell.h"

namespace malvone {
namespace {

using modell::Marken;
using Zufallsquelle = std::mt19937;

constexpr unsigned kSaat = 20240607;
#ifdef NDEBUG
constexpr int kRunden = 300;  // fifteen boards each
#else
constexpr int kRunden = 10;
#endif

int Zelle14x10(int spalte, int reihe)
{
    return spalte * 10 + reihe + 1;
}

int Wuerfeln(Zufallsquelle& zufall, int unter)
{
    return static_cast<int>(zufall() % static_cast<unsigned>(unter));
}

modell::Brett ZufallsBrett(Zufallsquelle& zufall, int kleinste, int groesste)
{
    modell::Brett brett;
    for (int i = 1; i <= 140; ++i) {
        brett[i] = kleinste + Wuerfeln(zufall, groesste - kleinste + 1);
    }
    return brett;
}

// Lone stones of two other colours, between which figures of colour 1 are drawn.
modell::Brett Grund()
{
    modell::Brett brett;
    for (int i = 1; i <= 140; ++i) {
        brett[i] = 2 + ((i - 1) / 10 + (i - 1) % 10) % 2;
    }
    return brett;
}

// Colour 1 as dense as clusters are just about to reach across the board: long and winding.
modell::Brett Gewucher(Zufallsquelle& zufall)
{
    modell::Brett brett = Grund();
    const int vomHundert = 52 + Wuerfeln(zufall, 18);
    for (int i = 1; i <= 140; ++i) {
        if (Wuerfeln(zufall, 100) < vomHundert) {
            brett[i] = 1;
        }
    }
    return brett;
}

// Passages of colour 1 between walls, by a walk that turns back only where it has to.
modell::Brett Irrgarten(Zufallsquelle& zufall)
{
    modell::Brett brett = Grund();
    const int links = Wuerfeln(zufall, 2);
    const int oben = Wuerfeln(zufall, 2);
    std::vector<std::pair<int, int>> weg = {{Wuerfeln(zufall, 7), Wuerfeln(zufall, 5)}};
    const auto zelle = [&](int halbeSpalte, int halbeReihe) {
        return Zelle14x10(links + halbeSpalte, oben + halbeReihe);
    };
    brett[zelle(2 * weg.back().first, 2 * weg.back().second)] = 1;
    while (!weg.empty()) {
        const auto [spalte, reihe] = weg.back();
        std::vector<std::pair<int, int>> frei;
        for (const auto& [ds, dr] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
            const int s = spalte + ds;
            const int r = reihe + dr;
            if (s >= 0 && s < 7 && r >= 0 && r < 5 && brett[zelle(2 * s, 2 * r)] != 1) {
                frei.emplace_back(s, r);
            }
        }
        if (frei.empty()) {
            weg.pop_back();
            continue;
        }
        const auto [s, r] = frei[zufall() % frei.size()];
        brett[zelle(spalte + s, reihe + r)] = 1;
        brett[zelle(2 * s, 2 * r)] = 1;
        weg.emplace_back(s, r);
    }
    return brett;
}

modell::Brett Spirale()
{
    modell::Brett brett = Grund();
    int spalte = 0;
    int reihe = 0;
    int ds = 1;
    int dr = 0;
    const auto innen = [](int s, int r) { return s >= 0 && s < 14 && r >= 0 && r < 10; };
    const auto belegt = [&](int s, int r) { return innen(s, r) && brett[Zelle14x10(s, r)] == 1; };
    for (int drehungen = 0; drehungen < 2;) {
        brett[Zelle14x10(spalte, reihe)] = 1;
        if (innen(spalte + ds, reihe + dr) && !belegt(spalte + ds, reihe + dr) &&
            !belegt(spalte + 2 * ds, reihe + 2 * dr)) {
            spalte += ds;
            reihe += dr;
            drehungen = 0;
        } else {
            const int alt = ds;
            ds = -dr;
            dr = alt;
            ++drehungen;
        }
    }
    return brett;
}

// Rows or columns, joined at one end (a comb) or by turns (a snake).
modell::Brett Streifen(bool laengs, bool schlange)
{
    modell::Brett brett = Grund();
    for (int spalte = 0; spalte < 14; ++spalte) {
        for (int reihe = 0; reihe < 10; ++reihe) {
            const int quer = laengs ? spalte : reihe;
            const int hier = laengs ? reihe : spalte;
            const bool amAnderenEnde = schlange && quer % 4 == 1;
            const int ende = amAnderenEnde ? (laengs ? 9 : 13) : 0;
            if (quer % 2 == 0 || hier == ende) {
                brett[Zelle14x10(spalte, reihe)] = 1;
            }
        }
    }
    return brett;
}

// A figure turned over, with a few stones exchanged.
modell::Brett Abgewandelt(const modell::Brett& figur, Zufallsquelle& zufall)
{
    const bool kopf = Wuerfeln(zufall, 2) == 1;
    const bool spiegel = Wuerfeln(zufall, 2) == 1;
    modell::Brett brett;
    for (int spalte = 0; spalte < 14; ++spalte) {
        for (int reihe = 0; reihe < 10; ++reihe) {
            brett[Zelle14x10(spalte, reihe)] =
                figur[Zelle14x10(spiegel ? 13 - spalte : spalte, kopf ? 9 - reihe : reihe)];
        }
    }
    for (int tausch = Wuerfeln(zufall, 6); tausch > 0; --tausch) {
        brett[1 + Wuerfeln(zufall, 140)] = 1 + Wuerfeln(zufall, 4);
    }
    return brett;
}

const std::vector<modell::Brett>& Bretter()
{
    static const std::vector<modell::Brett> bretter = [] {
        Zufallsquelle zufall(kSaat);
        std::vector<modell::Brett> alle;
        for (int runde = 0; runde < kRunden; ++runde) {
            alle.push_back(ZufallsBrett(zufall, 1, 2));
            alle.push_back(ZufallsBrett(zufall, 1, 3));
            alle.push_back(ZufallsBrett(zufall, 1, 4));
            alle.push_back(ZufallsBrett(zufall, 0, 4));
            for (int i = 0; i < 3; ++i) {
                alle.push_back(Gewucher(zufall));
                alle.push_back(Abgewandelt(Irrgarten(zufall), zufall));
            }
            alle.push_back(Abgewandelt(Spirale(), zufall));
            for (const bool laengs : {false, true}) {
                for (const bool schlange : {false, true}) {
                    alle.push_back(Abgewandelt(Streifen(laengs, schlange), zufall));
                }
            }
        }
        return alle;
    }();
    return bretter;
}

Werte AlsWerte(const modell::Brett& brett)
{
    Werte werte{};
    for (int i = 1; i <= 140; ++i) {
        werte[static_cast<std::size_t>(i)] = brett[i];
    }
    return werte;
}

Zellmenge AlsMenge(const Marken& marken)
{
    Zellmenge menge;
    for (int i = 1; i <= 140; ++i) {
        if (marken[i]) {
            menge.push_back(i);
        }
    }
    return menge;
}

Marken MarkenDesSpiels()
{
    Marken marken;
    for (int i = 1; i <= 140; ++i) {
        marken[i] = Zellen[static_cast<std::size_t>(i)].Markiert == True;
    }
    return marken;
}

TEST(Markierung, EveryStoneOfManyBoardsMarksWhatTheChainSays)
{
    const Level level;
    for (const modell::Brett& brett : Bretter()) {
        level.Setzen(AlsWerte(brett));
        for (int start = 1; start <= 140; ++start) {
            if (brett[start] == 0) {
                continue;
            }
            level.Zeigen(start);
            ASSERT_EQ(AlsMenge(MarkenDesSpiels()), AlsMenge(modell::Markieren(brett, start)))
                << "cell " << start << " of\n"
                << AlsText(AlsWerte(brett));
        }
    }
}

// What has to hold of the model's results holds of the game's, which are the same.
TEST(Markierung, ResultIsAConnectedPartOfTheGroupThatHoldsTheStone)
{
    int unvollstaendige = 0;
    for (const modell::Brett& brett : Bretter()) {
        for (int start = 1; start <= 140; ++start) {
            if (brett[start] == 0) {
                continue;
            }
            const Marken marken = modell::Markieren(brett, start);
            const Marken gruppe = modell::Gruppe(brett, start);
            modell::Brett nurMarkierte;
            for (int i = 1; i <= 140; ++i) {
                ASSERT_TRUE(gruppe[i] || !marken[i]) << i << " from " << start;
                nurMarkierte[i] = marken[i] ? 1 : 0;
            }
            ASSERT_TRUE(marken[start]);
            ASSERT_EQ(AlsMenge(modell::Gruppe(nurMarkierte, start)), AlsMenge(marken)) << start;
            ASSERT_EQ(AlsMenge(marken).size() >= 2, AlsMenge(gruppe).size() >= 2) << start;
            unvollstaendige += marken == gruppe ? 0 : 1;
        }
    }
    EXPECT_GT(unvollstaendige, 100) << "the boards do not tell the chain from a flood fill";
}

// Else a missing run would not be noticed: each of the 23 decides what is marked on some board.
TEST(Markierung, EveryFixedRunMattersOnSomeBoard)
{
    Zellmenge ohneFolgen;
    for (int lauf = 1; lauf <= 23; ++lauf) {
        bool folgen = false;
        for (std::size_t b = 0; b < Bretter().size() && !folgen; ++b) {
            const modell::Brett& brett = Bretter()[b];
            for (int start = 1; start <= 140 && !folgen; ++start) {
                folgen = brett[start] != 0 &&
                         modell::Markieren(brett, start) != modell::Markieren(brett, start, lauf);
            }
        }
        if (!folgen) {
            ohneFolgen.push_back(lauf);
        }
    }
    EXPECT_EQ(ohneFolgen, Zellmenge{});
}

TEST(Markierung, WindingGroupDependsOnTheStone)
{
    const Werte grund = AlsWerte(Grund());
    const struct
    {
        int Start;
        Zellmenge Markiert;
        const char* Summe;
        std::int32_t Punkte;
    } cases[] = {
        {128, {128, 129, 130, 136, 137, 138, 140}, "Dieser Spielzug ergibt 49 Punkte!", 49},
        {129, {128, 129, 130, 136, 137, 138, 140}, "Dieser Spielzug ergibt 49 Punkte!", 49},
        {130, {128, 129, 130, 136, 137, 138, 140}, "Dieser Spielzug ergibt 49 Punkte!", 49},
        {136, {128, 129, 130, 136, 137, 138, 140}, "Dieser Spielzug ergibt 49 Punkte!", 49},
        {137, {128, 129, 130, 136, 137, 138, 140}, "Dieser Spielzug ergibt 49 Punkte!", 49},
        {138, {128, 129, 130, 136, 137, 138, 140}, "Dieser Spielzug ergibt 49 Punkte!", 49},
        {140, {128, 129, 130, 138, 140}, "Dieser Spielzug ergibt 25 Punkte!", 25},
    };
    for (const auto& c : cases) {
        const Level level(MitZellen({128, 129, 130, 136, 137, 138, 140}, 4, grund));
        level.Zeigen(c.Start);
        EXPECT_EQ(level.Markierte(), c.Markiert) << c.Start;
        EXPECT_EQ(level.Vorgezeigte(), c.Markiert) << c.Start;
        EXPECT_EQ(frmTessel->lblSumme.Caption.Get(), c.Summe) << c.Start;
        level.Druecken(c.Start);
        EXPECT_EQ(Stand.PunkteGesamt, c.Punkte) << c.Start;
        EXPECT_EQ(std::ranges::count(level.Brett(), 4), 7 - static_cast<int>(c.Markiert.size()));
    }
}

TEST(Markierung, CornersAndEdgesReachNoCellOutsideTheirNeighbours)
{
    const struct
    {
        const char* Name;
        Zellmenge Steine;
        int Start;
        Zellmenge Markiert;
    } cases[] = {
        {"lone stone at the top left", {1}, 1, {1}},
        {"lone stone at the bottom left", {10}, 10, {10}},
        {"lone stone at the top right", {131}, 131, {131}},
        {"lone stone at the bottom right", {140}, 140, {140}},
        {"bottom of a column and top of the next", {10, 11}, 10, {10}},
        {"top of a column and bottom of the one before", {10, 11}, 11, {11}},
        {"neighbours in the bottom row", {10, 20}, 10, {10, 20}},
        {"last columns, top row", {121, 131}, 131, {121, 131}},
        {"last columns, bottom row", {130, 140}, 140, {130, 140}},
        {"diagonal", {12, 23}, 12, {12}},
        {"first column: a way up from its second entrance is followed by one stone only",
         {3, 13, 23, 24, 25, 26, 27, 17, 7, 6, 5},
         25,
         {3, 6, 7, 13, 17, 23, 24, 25, 26, 27}},
        {"from the first column to the last",
         {5, 15, 25, 35, 45, 55, 65, 75, 85, 95, 105, 115, 125, 135},
         75,
         {5, 15, 25, 35, 45, 55, 65, 75, 85, 95, 105, 115, 125, 135}},
    };
    for (const auto& c : cases) {
        const Level level(MitZellen(c.Steine, 4, AlsWerte(Grund())));
        level.Zeigen(c.Start);
        EXPECT_EQ(level.Markierte(), c.Markiert) << c.Name;
    }
}

TEST(Markierung, PointingAtAnEmptyCellLeavesMarksPreviewAndSumAsTheyWere)
{
    const Level level(AusReihen({"1", "1....2"}));
    level.Zeigen(9);
    const auto bilder = level.Bilder();
    level.Zeigen(60 + 10);
    level.Zeigen(8);
    EXPECT_EQ(level.Markierte(), (Zellmenge{9, 10}));
    EXPECT_EQ(level.Vorgezeigte(), (Zellmenge{9, 10}));
    EXPECT_EQ(level.Bilder(), bilder);
    EXPECT_EQ(frmTessel->lblSumme.Caption.Get(), "Dieser Spielzug ergibt 4 Punkte!");
    EXPECT_EQ(Stand.MarkiertZahl, 2);
}

TEST(Markierung, NoMarkOfTheLastStoneSurvivesAtTheNext)
{
    const Level level(AusReihen({"1", "1....2"}));
    level.Zeigen(9);
    level.Zeigen(60);
    EXPECT_EQ(level.Markierte(), Zellmenge{60});
    EXPECT_EQ(level.Vorgezeigte(), Zellmenge{60});
    EXPECT_EQ(Stand.MarkiertZahl, 1);
}

}  // namespace
}  // namespace malvone
