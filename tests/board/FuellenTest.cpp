// FuellenTest.cpp: a new board, and the chance that it is made of.
#include <gtest/gtest.h>

#include <map>

#include "board/Zufallszahl.h"
#include "board/iniTessel.h"
#include "tests/board/Brett.h"
#include "ui/layer/PointerRouting.h"

namespace malvone {
namespace {

TEST(Fuellen, BringsStonesWithoutMarksAndRaisesTheLevel)
{
    Level level(AusReihen({"11", "22"}));
    level.Zeigen(10);
    frmTessel->lblSumme.Caption = "Summe";
    frmTessel->cmdSchalt(1).Visible = true;
    frmTessel->mnuTessel(2).Enabled = true;
    Stand.PunkteGesamt = 123;
    Stand.LevelPunkte = 23;
    Stand.ZugPunkte = 4;
    for (const int runde : {2, 3}) {
        FeldFuellen();
        const Werte brett = level.Brett();
        EXPECT_TRUE(std::all_of(brett.begin() + 1, brett.end(),
                                [](int wert) { return wert >= 1 && wert <= 4; }));
        EXPECT_EQ(level.Bilder(), level.SchlichteBilder(brett));
        EXPECT_EQ(level.Markierte(), Zellmenge{});
        EXPECT_EQ(level.Vorgezeigte(), Zellmenge{});
        EXPECT_EQ(Stand.RundenZahl, runde);
    }
    EXPECT_FALSE(frmTessel->cmdSchalt(1).Visible);
    EXPECT_FALSE(frmTessel->mnuTessel(2).Enabled);
    EXPECT_EQ(frmTessel->lblSumme.Caption.Get(), "Summe");
    EXPECT_EQ(Stand.PunkteGesamt, 123);
    EXPECT_EQ(Stand.LevelPunkte, 0);
    EXPECT_EQ(Stand.ZugPunkte, 4);
    EXPECT_EQ(Stand.MarkiertZahl, 0);
    EXPECT_EQ(level.VerlaufSeitdem(), Verlauf{});
}

// The program's clock, replaced by one of the test's.
struct UhrPlattform : TestPlattform
{
    std::function<std::uint64_t()> Uhr;

    UhrPlattform(Programm& programm, std::function<std::uint64_t()> uhr)
        : TestPlattform(programm.Platte, programm.Programmordner, programm.Bindung.Verlauf),
          Uhr(std::move(uhr))
    {}
    std::uint64_t ClockNs() override { return Uhr(); }
};

constexpr int kBretter = 400;

// The sum of (observed - expected)^2 / expected over all classes, all equally likely.
template<class Zaehlung>
double ChiQuadrat(const Zaehlung& zaehlung, double klassen)
{
    double summe = 0;
    double proben = 0;
    for (const auto& [klasse, zahl] : zaehlung) {
        proben += zahl;
    }
    const double erwartet = proben / klassen;
    double gefundene = 0;
    for (const auto& [klasse, zahl] : zaehlung) {
        summe += (zahl - erwartet) * (zahl - erwartet) / erwartet;
        ++gefundene;
    }
    return summe + (klassen - gefundene) * erwartet;
}

// The bounds are passed by chance about once in 10^9 runs.
constexpr double kGrenze3 = 45;     // 3 degrees of freedom: four colours
constexpr double kGrenze15 = 75;    // 15 degrees: pairs of colours
constexpr double kGrenze420 = 620;  // 420 degrees: four colours in each of 140 cells

TEST(Fuellen, BoardsAreRandomUnderAnyClock)
{
    std::uint64_t zeit = 0;
    std::uint64_t rufe = 0;
    const struct
    {
        const char* Name;
        std::function<std::uint64_t()> Uhr;
    } uhren[] = {
        {"stands still", [] { return std::uint64_t{1'700'000'000'000'000'000}; }},
        {"stands still at 0", [] { return std::uint64_t{0}; }},
        {"counts nanoseconds", [&] { return ++zeit; }},
        {"ticks each 15.6 ms",
         [&] { return 1'700'000'000'000'000'000 + ++rufe / 500 * 15'625'000; }},
        {"runs backwards", [&] { return 1'700'000'000'000'000'000 - ++rufe * 1'000; }},
    };
    for (const auto& uhr : uhren) {
        Level level;
        UhrPlattform plattform(level, uhr.Uhr);
        App.Begin(level.Bindung, plattform);
        ZustandNeu();
        Main();

        std::map<int, int> farben;
        std::map<std::pair<int, int>, int> jeZelle;
        std::map<std::pair<int, int>, int> folgend;       // one cell and the next
        std::map<std::pair<int, int>, int> nacheinander;  // one cell on two boards in a row
        Werte letztes{};
        int gleiche = 0;
        for (int b = 0; b < kBretter; ++b) {
            FeldFuellen();
            const Werte brett = level.Brett();
            gleiche += brett == letztes ? 1 : 0;
            for (int i = 1; i <= 140; ++i) {
                const int wert = brett[static_cast<std::size_t>(i)];
                ++farben[wert];
                ++jeZelle[{i, wert}];
                if (i % 2 == 0) {
                    ++folgend[{brett[static_cast<std::size_t>(i - 1)], wert}];
                }
                if (b % 2 == 1) {
                    ++nacheinander[{letztes[static_cast<std::size_t>(i)], wert}];
                }
            }
            letztes = brett;
        }
        EXPECT_EQ(gleiche, 0) << uhr.Name;
        EXPECT_LT(ChiQuadrat(farben, 4), kGrenze3) << uhr.Name;
        EXPECT_LT(ChiQuadrat(jeZelle, 4 * 140), kGrenze420) << uhr.Name;
        EXPECT_LT(ChiQuadrat(folgend, 16), kGrenze15) << uhr.Name;
        EXPECT_LT(ChiQuadrat(nacheinander, 16), kGrenze15) << uhr.Name;
        App.Finish();
    }
}

TEST(Fuellen, NumbersReachBothEndsOfTheRangeAndNeverOne)
{
    Zufall zufall;
    zufall.Saeen(1);
    float kleinste = 1;
    float groesste = 0;
    for (int i = 0; i < 100'000; ++i) {
        const float zahl = zufall.Zahl();
        kleinste = std::min(kleinste, zahl);
        groesste = std::max(groesste, zahl);
    }
    EXPECT_GE(kleinste, 0.0F);
    EXPECT_LT(kleinste, 0.001F);
    EXPECT_GT(groesste, 0.999F);
    EXPECT_LT(groesste, 1.0F);
}

TEST(Leeren, EmptiedBoardTakesNoPointer)
{
    Level level(AusReihen({"1.2"}));
    level.Antworten({Taste(kKeyEsc)});
    level.ZeigenUndDruecken(10);  // no move is left
    EXPECT_EQ(level.BrettText(), AlsText(Werte{}));
    EXPECT_EQ(level.Bilder(), level.SchlichteBilder(Werte{}));
    level.VerlaufSeitdem();
    for (int i = 1; i <= 140; ++i) {
        level.ZeigenUndDruecken(i);
    }
    EXPECT_EQ(frmTessel->lblSumme.Caption.Get(), "");
    EXPECT_EQ(level.VerlaufSeitdem(), Verlauf{});
    EXPECT_EQ(Stand.PunkteGesamt, 0);
}

}  // namespace
}  // namespace malvone
