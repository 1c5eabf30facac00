// AnzeigenTest.cpp: what the displays show for which number.
#include <gtest/gtest.h>

#include "state/Spielstand.h"
#include "tests/support/Game.h"
#include "ui/services/Anzeigen.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::test {
namespace {

TEST(Anzeigen, NumbersStandAtTheRightAndNinesWhereTheyEnd)
{
    constexpr auto kLargest = std::numeric_limits<std::int32_t>::max();
    const struct
    {
        std::int32_t Punkte, LevelPunkte;
        std::int16_t Level;
        const char* Text;
    } cases[] = {
        {0, 0, 0, "....0 ...0 .0"},
        {7, 7, 7, "....7 ...7 .7"},
        {10, 10, 1, "...10 ..10 .1"},
        {305, 200, 9, "..305 .200 .9"},
        {12345, 6789, 2, "12345 6789 .2"},
        {10000, 1000, 3, "10000 1000 .3"},
        {1234, 123, 8, ".1234 .123 .8"},
        {7, 7, 10, "....7 ...7 .."},  // no old digit is left behind; level 10 is dark
        {99999, 9999, 99, "99999 9999 .."},
        {100000, 10000, 100, "99999 9999 .."},
        {kLargest, kLargest, 32767, "99999 9999 .."},
        {-1, -1, -1, "..... .... .."},
    };
    const Game game;
    for (const auto& c : cases) {
        Stand.PunkteGesamt = c.Punkte;
        Stand.LevelPunkte = c.LevelPunkte;
        Stand.RundenZahl = c.Level;
        AnzeigenAktualisieren();
        EXPECT_EQ(Digits(frmTessel->imgDiggiPunkte, 0, 4) + " " +
                      Digits(frmTessel->imgDiggiLevelPunkte, 0, 3) + " " +
                      Digits(frmTessel->imgDiggiLevel, 0, 1),
                  c.Text);
    }
}

}  // namespace
}  // namespace malvone::test
