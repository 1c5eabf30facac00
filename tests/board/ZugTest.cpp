// ZugTest.cpp: what the player sees under the pointer, what a click takes off the board, and what
// it is worth.
#include <gtest/gtest.h>

#include "tests/board/Brett.h"
#include "ui/layer/PointerRouting.h"

namespace malvone {
namespace {

constexpr Colour kDunkelblau = 0x00C00000;
constexpr Colour kRot = 255;
constexpr const char* kAllein = "Spielzug ist nicht möglich\r\nEs ist nur ein Feld markiert.";

std::string Summe()
{
    return frmTessel->lblSumme.Caption.Get();
}

void AufDenRandZeigen()
{
    PointerMoved(*frmTessel, Mouse{0, 0, 3750 + 50, 150 + 50});
}

TEST(Vorschau, GroupLaughsLoneStoneStaysNeutralOthersStayPlain)
{
    const Werte werte =
        MitZellen({131}, 1, MitZellen({140}, 3, AusReihen({"3", "31.24", "11224"})));
    const struct
    {
        int Start;
        Zellmenge Gruppe;
        const char* Bild;
        Colour Farbe;
        const char* Text;
    } cases[] = {
        {8, {8, 9}, "frmBilder.imgVorschau(3)", kDunkelblau, "Dieser Spielzug ergibt 4 Punkte!"},
        {19,
         {10, 19, 20},
         "frmBilder.imgVorschau(1)",
         kDunkelblau,
         "Dieser Spielzug ergibt 9 Punkte!"},
        {39,
         {30, 39, 40},
         "frmBilder.imgVorschau(2)",
         kDunkelblau,
         "Dieser Spielzug ergibt 9 Punkte!"},
        {50, {49, 50}, "frmBilder.imgVorschau(4)", kDunkelblau, "Dieser Spielzug ergibt 4 Punkte!"},
        {140, {140}, "frmBilder.imgNeutral(3)", kRot, kAllein},
        {131, {131}, "frmBilder.imgNeutral(1)", kRot, kAllein},
    };
    const Level level(werte);
    for (const auto& c : cases) {
        level.Zeigen(c.Start);
        auto bilder = level.SchlichteBilder(werte);
        for (const int zelle : c.Gruppe) {
            bilder[static_cast<std::size_t>(zelle - 1)] = c.Bild;
        }
        EXPECT_EQ(level.Bilder(), bilder) << c.Start;
        EXPECT_EQ(level.Vorgezeigte(), c.Gruppe) << c.Start;
        EXPECT_EQ(frmTessel->lblSumme.ForeColor, c.Farbe) << c.Start;
        EXPECT_EQ(Summe(), c.Text) << c.Start;
        EXPECT_EQ(level.BrettText(), AlsText(werte)) << c.Start;
        EXPECT_EQ(Stand.PunkteGesamt, 0) << c.Start;
    }
}

TEST(Vorschau, MarginOfTheBoardEndsItAndKeepsTheMarks)
{
    const Werte werte = AusReihen({"11", "23"});
    const Level level(werte);
    level.Zeigen(9);
    frmTessel->lblSumme.ForeColor = kRot;
    AufDenRandZeigen();
    EXPECT_EQ(level.Bilder(), level.SchlichteBilder(werte));
    EXPECT_EQ(level.Vorgezeigte(), Zellmenge{});
    EXPECT_EQ(level.Markierte(), (Zellmenge{9, 19}));
    EXPECT_EQ(Summe(), "");
    EXPECT_EQ(frmTessel->lblSumme.ForeColor, kRot);
}

TEST(Vorschau, CellThatBecameEmptyGetsTheEmptyPictureBack)
{
    const Level level(AusReihen({"11"}));
    level.Zeigen(10);
    frmTessel->imgFeld(10).Tag = "0";
    AufDenRandZeigen();
    EXPECT_EQ(frmTessel->imgFeld(10).Picture->Name(), "frmBilder.imgBild(0)");
}

TEST(Zug, RemovesTheGroupAndPaysTheSquareOfItsSize)
{
    const struct
    {
        const char* Name;
        std::vector<std::string_view> Vorher;
        int Zelle;
        std::int32_t Punkte;
        std::vector<std::string_view> Nachher;
    } cases[] = {
        {"two stones; what lay above them falls",
         {".3", "33.4", "1144", "2233"},
         9,
         4,
         {".3.4", "3344", "2233"}},
        {"the clicked stone is the last of its column",
         {"2.3", "2133", "2144"},
         20,
         4,
         {"23", "233", "244"}},
        {"a whole column",
         {"122", "133", "122", "133", "122", "133", "122", "133", "122", "133"},
         5,
         100,
         {"22", "33", "22", "33", "22", "33", "22", "33", "22", "33"}},
        {"a whole row of fourteen",
         {"23232323232323", "22222222222222", "11111111111111", "33444444444433"},
         69,
         196,
         {"23232323232323", "22222222222222", "33444444444433"}},
        {"columns close after the stones have fallen",
         {".4", "11.22", "14.33"},
         10,
         9,
         {"422", "433"}},
    };
    for (const auto& c : cases) {
        const Level level(AusReihen(c.Vorher));
        Stand.LevelPunkte = 30;
        Stand.PunkteGesamt = 2000;
        level.ZeigenUndDruecken(c.Zelle);
        const Werte nachher = AusReihen(c.Nachher);
        EXPECT_EQ(level.BrettText(), AlsText(nachher)) << c.Name;
        EXPECT_EQ(level.Bilder(), level.SchlichteBilder(nachher)) << c.Name;
        EXPECT_EQ(Stand.ZugPunkte, c.Punkte) << c.Name;
        EXPECT_EQ(Stand.LevelPunkte, 30 + c.Punkte) << c.Name;
        EXPECT_EQ(Stand.PunkteGesamt, 2000 + c.Punkte) << c.Name;
        EXPECT_EQ(Stand.BelegtZahl, std::ranges::count_if(nachher, [](int w) { return w != 0; }));
        EXPECT_EQ(Stand.MarkiertZahl, 0) << c.Name;
        EXPECT_EQ(Summe(), "Dieser Spielzug ergibt " + std::to_string(c.Punkte) + " Punkte!");
        EXPECT_EQ(level.Markierte(), Zellmenge{}) << c.Name;
        EXPECT_EQ(level.Vorgezeigte(), Zellmenge{}) << c.Name;
    }
}

TEST(Zug, SecondClickWithoutMovementIsWorthNothing)
{
    Level level(AusReihen({"11", "2233"}));
    level.ZeigenUndDruecken(9);
    const auto brett = level.BrettText();
    level.VerlaufSeitdem();
    for (int i = 0; i < 2; ++i) {
        level.Druecken(10);
        EXPECT_EQ(level.BrettText(), brett);
        EXPECT_EQ(Summe(), "Dieser Spielzug ergibt 0 Punkte!");
        EXPECT_EQ(frmTessel->lblSumme.ForeColor, kDunkelblau);
        EXPECT_EQ(Stand.ZugPunkte, 0);
        EXPECT_EQ(Stand.PunkteGesamt, 4);
        EXPECT_EQ(level.VerlaufSeitdem(), Verlauf{});
    }
}

TEST(Zug, ClickOnALoneStoneRemovesNothing)
{
    const struct
    {
        int Zelle;
        const char* Reihe;
    } cases[] = {{10, "42211334411332"}, {140, "22113344113324"}};
    for (const auto& c : cases) {
        const Werte werte = AusReihen({c.Reihe});
        Level level(werte);
        level.ZeigenUndDruecken(c.Zelle);
        EXPECT_EQ(level.BrettText(), AlsText(werte));
        EXPECT_EQ(level.Bilder(), level.SchlichteBilder(werte));
        EXPECT_EQ(level.Markierte(), Zellmenge{c.Zelle});
        EXPECT_EQ(Summe(), kAllein);
        EXPECT_EQ(frmTessel->lblSumme.ForeColor, kRot);
        EXPECT_EQ(Stand.PunkteGesamt, 0);
        EXPECT_EQ(level.VerlaufSeitdem(), Verlauf{});
    }
}

TEST(Zug, OnlyTheLeftButtonOnAStonePlaysAMove)
{
    const Werte werte = AusReihen({"11", "2233"});
    Level level(werte);
    level.Zeigen(9);
    const auto bilder = level.Bilder();
    for (const std::int16_t taste : {kRightButton, kMiddleButton, std::int16_t{3}}) {
        level.Druecken(9, taste);
    }
    level.Druecken(1);  // empty
    EXPECT_EQ(level.BrettText(), AlsText(werte));
    EXPECT_EQ(level.Bilder(), bilder);
    EXPECT_EQ(Summe(), "Dieser Spielzug ergibt 4 Punkte!");
    EXPECT_EQ(Stand.MarkiertZahl, 2);
    EXPECT_EQ(level.VerlaufSeitdem(), Verlauf{});
}

TEST(Zug, BoardOfOneColourPays19600AndTheBonus)
{
    Werte werte{};
    werte.fill(3);
    Level level(werte);
    level.Zeigen(77);
    EXPECT_EQ(Summe(), "Dieser Spielzug ergibt 19600 Punkte!");
    level.Antworten({Taste(kKeyEsc)});
    level.Druecken(77);
    EXPECT_EQ(Stand.ZugPunkte, 19600);
    EXPECT_EQ(Stand.PunkteGesamt, 20600);
    EXPECT_EQ(Stand.LevelPunkte, 0);
    EXPECT_EQ(Stand.RundenZahl, 2);
    EXPECT_EQ(Summe(), "");
    EXPECT_EQ(level.Markierte(), Zellmenge{});
    EXPECT_EQ(level.VerlaufSeitdem(),
              (Verlauf{"sound WHOOSH.WAV", "sound TADA.WAV",
                       "frmMsgOk: \r\nSehr gut!!!\r\nSie haben alle Spielsteine entfernt! | "
                       "\r\nSie erhalten 1000 Bonuspunkte"}));
}

// No board of the game holds such a value; a damaged snapshot leaves one behind.
TEST(Zug, ValueWithoutAPictureHarmsNothing)
{
    for (const int wert : {7, -1, 5, 32767, -32768}) {
        for (const Zellmenge& zellen : {Zellmenge{19}, Zellmenge{19, 29}, Zellmenge{1, 10, 140}}) {
            const Level level(MitZellen(zellen, wert, AusReihen({"12111", "122221"})));
            for (int i = 1; i <= kZellen; ++i) {
                level.Zeigen(i);
            }
            AufDenRandZeigen();
            level.ZeigenUndDruecken(zellen.front());
            level.ZeigenUndDruecken(30);
            EXPECT_GE(Stand.PunkteGesamt, 0);
            for (int i = 1; i <= kZellen; ++i) {
                const int hier = level.Brett()[static_cast<std::size_t>(i)];
                EXPECT_TRUE(hier == wert || (hier >= 0 && hier <= 4)) << i << ": " << hier;
            }
        }
    }
}

TEST(Zug, TagThatIsNoNumberCountsAsEmpty)
{
    for (const char* const text : {"", "x", "1x", " 1", "99999999999", "1.0", "+1"}) {
        const Level level(AusReihen({"11"}));
        frmTessel->imgFeld(10).Tag = text;
        level.ZeigenUndDruecken(10);
        EXPECT_EQ(Stand.PunkteGesamt, 0) << text;
        EXPECT_EQ(level.Markierte(), Zellmenge{}) << text;
    }
}

}  // namespace
}  // namespace malvone
