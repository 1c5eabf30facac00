// AnzeigenTest.cpp: what the three digit displays show for which number.
#include <gtest/gtest.h>

#include <limits>

#include "state/Spielstand.h"
#include "tests/support/StilleBindung.h"
#include "ui/Anzeigen.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

// A display as text, '-' for a dark place.
std::string Lesen(const ControlArray<Image>& stellen)
{
    std::string text;
    for (int stelle = stellen.End() - 1; stelle >= 0; --stelle) {
        const std::string name(stellen(stelle).Picture->Name());
        const std::string anfang = "frmDigital.imgDiggi(";
        EXPECT_TRUE(name.starts_with(anfang)) << name;
        const std::string index = name.substr(anfang.size(), name.size() - anfang.size() - 1);
        text += index == "10" ? "-" : index;
    }
    return text;
}

struct Gezeigt
{
    std::string Punkte, LevelPunkte, Level;
    friend bool operator==(const Gezeigt&, const Gezeigt&) = default;
    friend std::ostream& operator<<(std::ostream& os, const Gezeigt& g)
    {
        return os << g.Punkte << " " << g.LevelPunkte << " " << g.Level;
    }
};

Gezeigt Zeigen(std::int32_t punkte, std::int32_t levelPunkte, std::int16_t level)
{
    Stand.PunkteGesamt = punkte;
    Stand.LevelPunkte = levelPunkte;
    Stand.RundenZahl = level;
    AnzeigenAktualisieren();
    return {Lesen(frmTessel->imgDiggiPunkte), Lesen(frmTessel->imgDiggiLevelPunkte),
            Lesen(frmTessel->imgDiggiLevel)};
}

TEST(Anzeigen, NumbersStandAtTheRightWithoutLeadingZeros)
{
    const Programm programm;
    const struct
    {
        std::int32_t Punkte, LevelPunkte;
        std::int16_t Level;
        Gezeigt Erwartet;
    } cases[] = {
        {0, 0, 0, {"----0", "---0", "-0"}},        {7, 7, 7, {"----7", "---7", "-7"}},
        {10, 10, 1, {"---10", "--10", "-1"}},      {305, 200, 9, {"--305", "-200", "-9"}},
        {99999, 9999, 5, {"99999", "9999", "-5"}}, {12345, 6789, 2, {"12345", "6789", "-2"}},
        {10000, 1000, 3, {"10000", "1000", "-3"}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Zeigen(c.Punkte, c.LevelPunkte, c.Level), c.Erwartet);
        EXPECT_EQ(Zeigen(c.Punkte, c.LevelPunkte, c.Level), c.Erwartet) << "painted again";
    }
}

TEST(Anzeigen, SmallerNumberLeavesNoOldDigitsBehind)
{
    const Programm programm;
    Zeigen(1234, 1234, 8);
    EXPECT_EQ(Zeigen(7, 7, 11), (Gezeigt{"----7", "---7", "--"}));
}

TEST(Anzeigen, MorePointsThanPlacesShowNines)
{
    const Programm programm;
    constexpr auto kGroesste = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(Zeigen(100000, 10000, 1), (Gezeigt{"99999", "9999", "-1"}));
    EXPECT_EQ(Zeigen(123456, 19600, 1), (Gezeigt{"99999", "9999", "-1"}));
    EXPECT_EQ(Zeigen(kGroesste, kGroesste, 1), (Gezeigt{"99999", "9999", "-1"}));
}

TEST(Anzeigen, LevelTenIsDark)
{
    const Programm programm;
    for (const int level : {10, 11, 99, 100, 32767, -1}) {
        EXPECT_EQ(Zeigen(1, 1, static_cast<std::int16_t>(level)).Level, "--") << level;
    }
}

TEST(Anzeigen, EachCounterHasItsOwnDisplay)
{
    const Programm programm;
    EXPECT_EQ(Zeigen(54321, 876, 9), (Gezeigt{"54321", "-876", "-9"}));
    EXPECT_EQ(Zeigen(54321, 0, 0), (Gezeigt{"54321", "---0", "-0"}));
    EXPECT_EQ(Zeigen(-1, -1, 4), (Gezeigt{"-----", "----", "-4"})) << "no number at all";
}

}  // namespace
}  // namespace malvone
