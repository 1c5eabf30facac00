// EntwurfTest.cpp: the seven windows row by row as their design tells them, and one sweep over all
// that is loaded.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "tests/support/StilleBindung.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmDigital.h"
#include "ui/windows/FrmHintergrund.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmMsgOk.h"
#include "ui/windows/FrmTessel.h"
#include "ui/windows/Pictures.h"

namespace malvone {
namespace {

constexpr Pointer kPfeil = Pointer::Default;
constexpr Pointer kHand = Pointer::Hand;

// One row of the design. Text is the caption of a button, the text of a box, the picture of an
// image or picture box.
struct Zeile
{
    const char* Name;
    const char* Art;
    Twips Left, Top, Width, Height;
    const char* Text = "";
    const char* Tip = "";
    Pointer Zeiger = kPfeil;
};

std::string Art(const Control& control)
{
    const struct
    {
        bool Ist;
        const char* Name;
    } arten[] = {
        {dynamic_cast<const Image*>(&control) != nullptr, "Image"},
        {dynamic_cast<const Label*>(&control) != nullptr, "Label"},
        {dynamic_cast<const PictureBox*>(&control) != nullptr, "PictureBox"},
        {dynamic_cast<const CommandButton*>(&control) != nullptr, "CommandButton"},
        {dynamic_cast<const TextBox*>(&control) != nullptr, "TextBox"},
        {dynamic_cast<const ListBox*>(&control) != nullptr, "ListBox"},
        {dynamic_cast<const Shape*>(&control) != nullptr, "Shape"},
        {dynamic_cast<const Line*>(&control) != nullptr, "Line"},
        {dynamic_cast<const Timer*>(&control) != nullptr, "Timer"},
        {dynamic_cast<const MenuEntry*>(&control) != nullptr, "MenuEntry"},
    };
    for (const auto& art : arten) {
        if (art.Ist) {
            return art.Name;
        }
    }
    return "unknown";
}

std::string TextVon(const Visual& visual)
{
    if (const auto* const image = dynamic_cast<const Image*>(&visual)) {
        return std::string(image->Picture->Name());
    }
    if (const auto* const box = dynamic_cast<const PictureBox*>(&visual)) {
        return std::string(box->Picture->Name());
    }
    if (const auto* const button = dynamic_cast<const CommandButton*>(&visual)) {
        return button->Caption;
    }
    if (const auto* const text = dynamic_cast<const TextBox*>(&visual)) {
        return text->Text;
    }
    if (const auto* const label = dynamic_cast<const Label*>(&visual)) {
        return label->Caption;
    }
    return "";
}

// The rows stand from front to back, those within a container before the container's own.
void Vergleichen(const Window& window, const std::vector<Zeile>& zeilen)
{
    const auto& dinge = window.FrontToBack();
    for (std::size_t i = 0; i < std::min(dinge.size(), zeilen.size()); ++i) {
        const Visual& ding = *dinge[i];
        const Zeile& z = zeilen[i];
        SCOPED_TRACE(std::string(window.Name()) + "." + z.Name);
        ASSERT_EQ(ding.FullName(), z.Name) << "order from front to back, row " << i;
        EXPECT_EQ(Art(ding), z.Art);
        EXPECT_EQ(
            (std::vector{ding.Left.Get(), ding.Top.Get(), ding.Width.Get(), ding.Height.Get()}),
            (std::vector{z.Left, z.Top, z.Width, z.Height}));
        EXPECT_EQ(TextVon(ding), z.Text);
        EXPECT_EQ(ding.ToolTipText.Get(), z.Tip);
        EXPECT_EQ(ding.MousePointer, z.Zeiger);
    }
    EXPECT_EQ(dinge.size(), zeilen.size());
}

struct Aussehen
{
    const Label& Feld;
    const char* Schrift;
    float Punkt;
    bool Fett;
    std::uint32_t Farbe;
    bool Mittig;
    bool Durchsichtig;
};

void Vergleichen(const std::vector<Aussehen>& reihen)
{
    for (const Aussehen& r : reihen) {
        SCOPED_TRACE(r.Feld.FullName());
        EXPECT_EQ(r.Feld.TextFont, (Font{r.Schrift, r.Punkt, r.Fett}));
        const std::uint32_t rot = r.Farbe >> 16U;
        const std::uint32_t gruen = (r.Farbe >> 8U) & 0xFFU;
        const std::uint32_t blau = r.Farbe & 0xFFU;
        EXPECT_EQ(r.Feld.ForeColor, static_cast<Colour>(rot + gruen * 256 + blau * 65536));
        EXPECT_EQ(r.Feld.Align == Alignment::Centre, r.Mittig);
        EXPECT_EQ(r.Feld.Transparent, r.Durchsichtig);
        if (!r.Durchsichtig) {
            EXPECT_EQ(r.Feld.BackColor, 0xFFFFFF);
        }
    }
}

TEST(Entwurf, MainWindow)
{
    const Programm programm;
    const FrmTessel fenster;
    const char* const gelb = "frmBilder.imgPfeil(1)";
    Vergleichen(fenster,
                {
                    {"imgFeld(0)", "Image", 420, 570, 495, 495},
                    {"Picture1", "PictureBox", 3750, 150, 6945, 5055, "frmTessel.Picture1"},
                    {"cmdSchalt(3)", "CommandButton", 11700, 270, 1425, 435, "b&eenden",
                     "Klicken Sie hier, um das Spiel zu beenden"},
                    {"cmdSchalt(2)", "CommandButton", 11640, 810, 1635, 435, "Spiel&anleitung",
                     "Klicken Sie hier, um die Spielanleitung zu lesen"},
                    {"cmdSchalt(1)", "CommandButton", 11400, 1350, 1905, 435, "Spiel &wiederholen",
                     "Klicken Sie hier, um das letzte Spiel zu wiederholen"},
                    {"cmdSchalt(0)", "CommandButton", 11580, 2010, 1635, 435, "Spiel &beginnen",
                     "Klicken Sie hier, um ein Spiel zu beginnen"},
                    {"imgNochEinmal", "Image", 10620, 6030, 495, 360, gelb},
                    {"lblInfo", "Image", 270, 1920, 1440, 630, "frmBilder.cmdBeschreibungenAuswahl",
                     "Allgemeine Informationen"},
                    {"lblHilfe", "Image", 240, 1230, 1440, 630, "frmBilder.cmdHilfeAuswahl",
                     "Beschreibung der Auswahl"},
                    {"imgDiggiLevel(0)", "Image", 2520, 4500, 210, 420},
                    {"imgDiggiLevel(1)", "Image", 2310, 4500, 210, 420},
                    {"Image4", "Image", 90, 4380, 2865, 630, "frmTessel.Image4"},
                    {"imgDiggiPunkte(0)", "Image", 2610, 3030, 210, 420},
                    {"imgDiggiPunkte(1)", "Image", 2400, 3030, 210, 420},
                    {"imgDiggiPunkte(2)", "Image", 2190, 3030, 210, 420},
                    {"imgDiggiPunkte(3)", "Image", 1980, 3030, 210, 420},
                    {"imgDiggiPunkte(4)", "Image", 1770, 3030, 210, 420},
                    {"Image3", "Image", 150, 2940, 2865, 630, "frmTessel.Image3"},
                    {"lblMeldung", "Label", 3240, 5910, 4035, 705},
                    {"lblSumme", "Label", 3660, 5280, 3795, 465},
                    {"imgWiederholen", "Image", 7590, 5940, 2865, 630, "frmTessel.imgWiederholen",
                     "Alten Bildanordnung wiederholen", kHand},
                    {"imgNaechsterLevel", "Image", 7590, 5250, 2865, 630,
                     "frmTessel.imgNaechsterLevel", "Nächsten Level beginnen", kHand},
                    {"imgNext", "Image", 10590, 5310, 495, 360, gelb},
                    {"imgStart", "Image", 3150, 5310, 495, 360, gelb},
                    {"Label1(1)", "Label", 1320, 330, 1815, 345, "Malvone"},
                    {"Label1(0)", "Label", 1290, 330, 1815, 345, "Malvone"},
                    {"lblNeu", "Label", 210, 5220, 2835, 615, "", "Neues Spiel beginnen", kHand},
                    {"lblEnde", "Label", 180, 5970, 1965, 615, "", "Spiel beenden", kHand},
                    {"imgDiggiLevelPunkte(0)", "Image", 2580, 3750, 210, 420},
                    {"imgDiggiLevelPunkte(1)", "Image", 2370, 3750, 210, 420},
                    {"imgDiggiLevelPunkte(2)", "Image", 2160, 3750, 210, 420},
                    {"imgDiggiLevelPunkte(3)", "Image", 1950, 3750, 210, 420},
                    {"Image6", "Image", 120, 3660, 2865, 630, "frmTessel.Image6"},
                    {"Image1", "Image", 60, 5190, 3000, 1440, "frmTessel.Image1"},
                });
    Vergleichen({
        {fenster.lblMeldung, "Arial", 9, true, 0x0000FF, true, true},
        {fenster.lblSumme, "Arial", 9.75, true, 0x0000C0, true, true},
        {fenster.Label1(1), "Arial", 14.25, true, 0x0000C0, false, true},
        {fenster.Label1(0), "Arial", 14.25, true, 0xFFFF00, false, true},
    });
    for (const Label* const label : {&fenster.lblNeu, &fenster.lblEnde}) {
        EXPECT_TRUE(label->Transparent);
    }
    EXPECT_EQ(fenster.imgFeld(0).Container(), &fenster.Picture1);
    EXPECT_TRUE(fenster.cmdSchalt(0).Default);
    EXPECT_EQ(std::min({fenster.cmdSchalt(1).TabIndex, fenster.cmdSchalt(2).TabIndex,
                        fenster.cmdSchalt(3).TabIndex}),
              fenster.cmdSchalt(0).TabIndex + 1);
    EXPECT_FALSE(fenster.Picture1.Border);
    EXPECT_EQ(Art(fenster.Timer1), "Timer");
}

TEST(Entwurf, MenuOfTheMainWindow)
{
    const Programm programm;
    const FrmTessel fenster;
    const struct
    {
        const char* Name;
        const char* Darueber;
        const char* Caption;
        Key Kuerzel;
    } zeilen[] = {
        {"mnuTesselMenu", "", "&Spiel             ", {}},
        {"mnuTessel(1)", "mnuTesselMenu", "&Neues Spiel    ", {'N', kCtrlKey}},
        {"mnuTessel(2)", "mnuTesselMenu", "Spiel &wiederholen", {'W', kCtrlKey}},
        {"mnuTessel(3)", "mnuTesselMenu", "-", {}},
        {"mnuTessel(4)", "mnuTesselMenu", "b&eenden", {'E', kCtrlKey}},
        {"mnuOptionen", "", "&Optionen            ", {}},
        {"mnuSound", "mnuOptionen", "Sound", {}},
        {"mnuSoundan", "mnuSound", "an", {}},
        {"mnuSoundaus", "mnuSound", "aus", {}},
        {"mnuMenuInfo", "", "&Information               ", {}},
        {"mnuInfo(1)", "mnuMenuInfo", "Spielanleitung      ", {112, 0}},
        {"mnuInfo(2)", "mnuMenuInfo", "allgemeines...", {}},
        {"mnuInfo(3)", "mnuMenuInfo", "-", {}},
        {"mnuInfo(4)", "mnuMenuInfo", "Beste Spieler...", {}},
    };
    const auto eintraege = fenster.MenuEntries();
    ASSERT_EQ(eintraege.size(), std::size(zeilen));
    for (std::size_t i = 0; i < eintraege.size(); ++i) {
        const MenuEntry& e = *eintraege[i];
        EXPECT_EQ(e.FullName(), zeilen[i].Name);
        EXPECT_EQ(e.Parent() == nullptr ? "" : e.Parent()->FullName(), zeilen[i].Darueber);
        EXPECT_EQ(e.Caption.Get(), zeilen[i].Caption);
        EXPECT_EQ(e.Shortcut, zeilen[i].Kuerzel) << zeilen[i].Name;
        EXPECT_EQ(e.Checked, e.FullName() == "mnuSoundan");
        EXPECT_EQ(e.Separator(), std::string_view(zeilen[i].Caption) == "-");
        EXPECT_TRUE(e.Enabled);
    }
}

TEST(Entwurf, MessageWindows)
{
    const Programm programm;
    const FrmMsgJa ja;
    Vergleichen(ja,
                {
                    {"lblTitel", "Label", 120, 990, 5505, 945, "Titel"},
                    {"lblMeldung", "Label", 120, 30, 5475, 825, "Meldung"},
                    {"Picture1", "PictureBox", 60, 750, 5745, 2025},
                    {"Image1", "Image", 5460, 60, 315, 315, "frmMsgJa.Image1", "schließen", kHand},
                    {"lblNein", "Label", 480, 2910, 2205, 375, "",
                     "Fenster schließen ohne Bestätigung", kHand},
                    {"lblJa", "Label", 3330, 2880, 2175, 435, "", "Bestätigen", kHand},
                    {"lblName", "Label", 930, 180, 3915, 315, "Name"},
                });
    const FrmMsgOk ok;
    Vergleichen(ok,
                {
                    {"lblTitel", "Label", 30, 990, 5505, 945, "Titel"},
                    {"lblMeldung", "Label", 30, 60, 5445, 825, "Meldung"},
                    {"Picture1", "PictureBox", 60, 780, 5655, 2025},
                    {"Image2", "Image", 5370, 90, 315, 315, "frmMsgOk.Image2", "schließen", kHand},
                    {"lblName", "Label", 960, 180, 4155, 435, "Name"},
                    {"lblOk", "Label", 1800, 2910, 2175, 405, "", "Fenster schließen", kHand},
                });
    Vergleichen({
        {ja.lblTitel, "Arial", 9.75, true, 0xFF00FF, true, false},
        {ja.lblMeldung, "Arial", 9.75, true, 0x0000FF, true, false},
        {ja.lblName, "Arial", 12, true, 0xE0E0E0, true, true},
        {ok.lblTitel, "Arial", 9.75, true, 0xC000C0, true, true},
        {ok.lblMeldung, "Arial", 9.75, true, 0x0000FF, true, false},
        {ok.lblName, "Arial", 14.25, false, 0xE0E0E0, true, true},
    });
    for (const Label* const label : {&ja.lblJa, &ja.lblNein, &ok.lblOk}) {
        EXPECT_TRUE(label->Transparent);
    }
    EXPECT_TRUE(ja.Picture1.Border && ok.Picture1.Border);
    EXPECT_EQ(ja.Picture1.BackColor, 0xFFFFFF);
    EXPECT_EQ(ok.Picture1.BackColor, 0xFFFFFF);
    EXPECT_TRUE(ja.Image1.Stretch && ok.Image2.Stretch);
    EXPECT_EQ(ja.lblTitel.Container(), &ja.Picture1);
    EXPECT_EQ(ok.lblMeldung.Container(), &ok.Picture1);
}

TEST(Entwurf, WindowOfTheBestPlayers)
{
    const Programm programm;
    const FrmBeste fenster;
    std::vector<Zeile> zeilen = {
        {"cmdTessel", "CommandButton", 8550, 3660, 2205, 495, "&Alle Einträge löschen",
         "Rücksetzen aller Namen und Punkte"},
        {"lstPunkte", "ListBox", 9150, 60, 825, 2205},
        {"lstName", "ListBox", 8940, 90, 825, 2205},
        {"txtSpieler(9)", "TextBox", 8790, 2490, 1275, 315, "Text1"},
        {"txtSpieler(8)", "TextBox", 8610, 2280, 1275, 315, "Text1"},
        {"txtSpieler(7)", "TextBox", 8940, 1920, 1275, 315, "Text1"},
        {"txtSpieler(6)", "TextBox", 8790, 1680, 1245, 315, "Text1"},
        {"txtSpieler(5)", "TextBox", 8640, 360, 1245, 315, "Text1"},
        {"txtSpieler(4)", "TextBox", 120, 2850, 2655, 315, "Text1"},
        {"txtSpieler(3)", "TextBox", 180, 2340, 2655, 315, "Text1"},
        {"txtSpieler(2)", "TextBox", 150, 1800, 2655, 315, "Text1"},
        {"txtSpieler(1)", "TextBox", 150, 1320, 2655, 315, "Text1"},
        {"txtSpieler(0)", "TextBox", 660, 780, 2205, 405, "Text1"},
        {"cmdEnde", "Image", 990, 4260, 2145, 495, "frmBeste.cmdEnde", "Fenster schließen", kHand},
        {"lblTessel", "Image", 870, 3630, 2205, 525, "frmBeste.lblTessel", "Einträge zurücksetzen",
         kHand},
        {"shpTessel", "Shape", 8340, 2940, 2205, 465},
        {"shpEnde", "Shape", 9180, 3390, 1515, 495},
    };
    std::vector<std::string> namen;
    for (int i = 0; i < 35; ++i) {
        namen.push_back("imgDiggi(" + std::to_string(i) + ")");
    }
    for (const std::string& name : namen) {  // the place is told at load
        zeilen.push_back({name.c_str(), "Image", 4830, 720, 210, 420});
    }
    zeilen.push_back({"Label2", "Label", 3720, 180, 1245, 285, "Punkte"});
    zeilen.push_back({"Label1", "Label", 1110, 180, 2355, 375, "Name des Spielers"});
    zeilen.push_back({"Line2", "Line", 0, 0, 0, 0});
    zeilen.push_back({"Line1", "Line", 0, 0, 0, 0});
    Vergleichen(fenster, zeilen);
    Vergleichen({
        {fenster.Label2, "MS Sans Serif", 12, true, 0x0000FF, false, true},
        {fenster.Label1, "MS Sans Serif", 12, true, 0x0000FF, false, true},
    });
    const auto enden = [](const Line& l) {
        return std::vector{l.X1.Get(), l.Y1.Get(), l.X2.Get(), l.Y2.Get()};
    };
    EXPECT_EQ(enden(fenster.Line2), (std::vector<Twips>{3600, 120, 3600, 3330}));
    EXPECT_EQ(enden(fenster.Line1), (std::vector<Twips>{1290, 600, 5040, 600}));
    EXPECT_EQ(fenster.Line1.BorderColor, 0xFFFFFF);
    EXPECT_EQ(fenster.Line2.BorderColor, 0xFFFFFF);
    EXPECT_EQ(fenster.shpTessel.FillColor, 0x0000FF) << "red lies in the low byte";
    EXPECT_EQ(fenster.shpEnde.FillColor, 0x008000);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(fenster.txtSpieler(i).TextFont, (Font{"Arial", 12, true})) << i;
        EXPECT_EQ(fenster.txtSpieler(i).BackColor, 0xFFFFFF) << i;
    }
    for (int i = 0; i < 35; ++i) {
        EXPECT_EQ(fenster.imgDiggi(i).Visible, i % 7 != 6) << i;
    }
}

TEST(Entwurf, BanksHoldTheirPictures)
{
    const Programm programm;
    const FrmBilder bilder;
    const FrmDigital digital;
    const struct
    {
        const Window& Bank;
        const char* Name;
        int Breite, Hoehe;  // pixels; 0: no picture
    } zeilen[] = {
        {bilder, "imgBild(0)", 32, 32},
        {bilder, "imgBild(1)", 32, 32},
        {bilder, "imgBild(2)", 32, 32},
        {bilder, "imgBild(3)", 32, 32},
        {bilder, "imgBild(4)", 32, 32},
        {bilder, "imgVorschau(0)", 32, 32},
        {bilder, "imgVorschau(1)", 32, 32},
        {bilder, "imgVorschau(2)", 32, 32},
        {bilder, "imgVorschau(3)", 32, 32},
        {bilder, "imgVorschau(4)", 32, 32},
        {bilder, "imgNeutral(0)", 32, 32},
        {bilder, "imgNeutral(1)", 32, 32},
        {bilder, "imgNeutral(2)", 32, 32},
        {bilder, "imgNeutral(3)", 32, 32},
        {bilder, "imgNeutral(4)", 32, 32},
        {bilder, "imgGrund", 32, 32},
        {bilder, "imgPfeil(0)", 33, 24},
        {bilder, "imgPfeil(1)", 33, 24},
        {bilder, "imgPfeil(2)", 0, 0},
        {bilder, "cmdHilfeAuswahl", 96, 42},
        {bilder, "cmdHilfeGruen", 96, 42},
        {bilder, "cmdBeschreibungenAuswahl", 96, 42},
        {bilder, "cmdBeschreibungenFruen", 96, 42},
        {digital, "imgDiggi(0)", 14, 28},
        {digital, "imgDiggi(1)", 14, 28},
        {digital, "imgDiggi(2)", 14, 28},
        {digital, "imgDiggi(3)", 14, 28},
        {digital, "imgDiggi(4)", 14, 28},
        {digital, "imgDiggi(5)", 14, 28},
        {digital, "imgDiggi(6)", 14, 28},
        {digital, "imgDiggi(7)", 14, 28},
        {digital, "imgDiggi(8)", 14, 28},
        {digital, "imgDiggi(9)", 14, 28},
        {digital, "imgDiggi(10)", 14, 28},
    };
    for (const auto& z : zeilen) {
        const auto* const bild = dynamic_cast<const Image*>(z.Bank.Find(z.Name));
        ASSERT_NE(bild, nullptr) << z.Name;
        EXPECT_EQ(bild->Picture->Name(),
                  z.Breite == 0 ? "" : std::string(z.Bank.Name()) + "." + z.Name);
        EXPECT_EQ(bild->Picture->Width(), z.Breite) << z.Name;
        EXPECT_EQ(bild->Picture->Height(), z.Hoehe) << z.Name;
    }
    EXPECT_EQ(bilder.Controls().size() + digital.Controls().size(), std::size(zeilen));
}

TEST(Entwurf, WindowsThemselves)
{
    const Programm programm;
    const FrmTessel tessel;
    const FrmHintergrund hintergrund;
    const FrmMsgJa ja;
    const FrmMsgOk ok;
    const FrmBeste beste;
    const FrmBilder bilder;
    const FrmDigital digital;
    const struct
    {
        const Window& Fenster;
        const char* Name;
        Twips Breite, Hoehe;  // 0: never shown
        Border Rand;
        bool InLeiste;
        const char* Caption;
        const char* Bild;
        const char* Symbol;
    } zeilen[] = {
        {tessel, "frmTessel", 11325, 6945, Border::Sizable, true, "Form1", "frmTessel",
         "frmTessel.Icon"},
        {hintergrund, "frmHintergrund", 13920, 10695, Border::None, false, "Form1", "", ""},
        {ja, "frmMsgJa", 5880, 3540, Border::None, false, "Form1", "frmMsgJa", ""},
        {ok, "frmMsgOk", 5805, 3420, Border::None, false, "Form1", "frmMsgOk", ""},
        {beste, "frmBeste", 5130, 4845, Border::FixedSingle, true, "Beste Spieler ", "frmBeste",
         "frmBeste.Icon"},
        {bilder, "frmBilder", 0, 0, Border::None, true, "Form1", "", ""},
        {digital, "frmDigital", 0, 0, Border::None, true, "Form1", "", ""},
    };
    for (const auto& z : zeilen) {
        SCOPED_TRACE(z.Name);
        EXPECT_EQ(z.Fenster.Name(), z.Name);
        if (z.Breite > 0) {
            EXPECT_EQ(z.Fenster.ClientWidth, z.Breite);
            EXPECT_EQ(z.Fenster.ClientHeight, z.Hoehe);
            EXPECT_EQ(z.Fenster.BorderStyle, z.Rand);
            EXPECT_EQ(z.Fenster.ShowInTaskbar, z.InLeiste);
            EXPECT_TRUE(z.Fenster.KeyPreview || z.Fenster.Name() == "frmHintergrund");
        }
        EXPECT_FALSE(z.Fenster.MinButton || z.Fenster.MaxButton);
        EXPECT_EQ(z.Fenster.Caption.Get(), z.Caption);
        EXPECT_EQ(z.Fenster.Picture->Name(), z.Bild);
        EXPECT_EQ(z.Fenster.Icon->Name(), z.Symbol);
    }
    EXPECT_EQ(hintergrund.BackColor, 0xE0E0E0);
    EXPECT_TRUE(hintergrund.Image1.Stretch);
    EXPECT_EQ(hintergrund.Image1.Picture->Name(), "frmHintergrund.Image1");
    EXPECT_EQ(hintergrund.Controls().size(), 1U);
}

TEST(Entwurf, SizesOfAllOtherPictures)
{
    const struct
    {
        const char* Name;
        int Breite, Hoehe;
    } zeilen[] = {
        {"frmTessel", 1000, 800},
        {"frmTessel.Picture1", 866, 580},
        {"frmTessel.Icon", 32, 32},
        {"frmTessel.Image1", 200, 96},
        {"frmTessel.Image3", 191, 42},
        {"frmTessel.Image4", 191, 42},
        {"frmTessel.Image6", 191, 42},
        {"frmTessel.imgNaechsterLevel", 191, 42},
        {"frmTessel.imgWiederholen", 191, 42},
        {"frmHintergrund.Image1", 643, 647},
        {"frmMsgJa", 392, 237},
        {"frmMsgOk", 392, 237},
        {"frmMsgJa.Image1", 32, 32},
        {"frmMsgOk.Image2", 16, 16},
        {"frmBeste", 650, 450},
        {"frmBeste.Icon", 32, 32},
        {"frmBeste.cmdEnde", 143, 33},
        {"frmBeste.lblTessel", 147, 35},
    };
    for (const auto& z : zeilen) {
        EXPECT_EQ(PictureNamed(z.Name).Width(), z.Breite) << z.Name;
        EXPECT_EQ(PictureNamed(z.Name).Height(), z.Hoehe) << z.Name;
    }
    EXPECT_EQ(AllPictures().size(), std::size(zeilen) + 22 + 11);  // and those of the two banks
    std::set<std::string_view> namen;
    for (const PictureInfo& bild : AllPictures()) {
        EXPECT_TRUE(namen.insert(bild.Name).second) << bild.Name;
    }
}

// What the player meets: everything after the start, the messages and the best list included.
TEST(Fensterrunde, LoadedWindowsHaveUniqueNamesSizesPicturesAndNoHolesInTheirArrays)
{
    Programm programm;
    programm.Starten();
    for (InstanceBase* const instanz :
         std::initializer_list<InstanceBase*>{&frmTessel, &frmBilder, &frmDigital, &frmMsgOk,
                                              &frmMsgJa, &frmBeste, &frmHintergrund}) {
        const Window& fenster = instanz->Touch();
        EXPECT_EQ(fenster.Name(), instanz->Name());
        std::set<std::string> namen;
        std::map<std::string_view, std::set<int>> felder;
        for (const Control* const control : fenster.Controls()) {
            SCOPED_TRACE(std::string(fenster.Name()) + "." + control->FullName());
            EXPECT_TRUE(namen.insert(control->FullName()).second);
            EXPECT_EQ(fenster.Find(control->FullName()), control);
            if (control->Index() >= 0) {
                felder[control->Name()].insert(control->Index());
            }
            const auto* const visual = dynamic_cast<const Visual*>(control);
            const bool strich = dynamic_cast<const Line*>(control) != nullptr;
            if (visual != nullptr && !strich && control->FullName() != "imgPfeil(2)") {
                EXPECT_GT(visual->Width, 0);
                EXPECT_GT(visual->Height, 0);
            }
            if (const auto* const bild = dynamic_cast<const Image*>(control)) {
                const bool leer = bild->Picture->Empty();
                const bool darf = control->FullName() == "imgPfeil(2)" ||
                                  control->FullName() == "imgNext" ||
                                  control->FullName() == "imgFeld(0)";
                EXPECT_EQ(leer, darf);
                EXPECT_TRUE(leer || PictureNamed(bild->Picture->Name()) == bild->Picture);
            }
        }
        for (const auto& [name, indizes] : felder) {
            EXPECT_EQ(*indizes.rbegin() - *indizes.begin() + 1, static_cast<int>(indizes.size()))
                << name;
        }
    }
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{});
}

TEST(Fensterrunde, MainWindowIsLoadedInTheMiddleOfTheScreenWithItsTitle)
{
    Programm programm;
    programm.Starten();
    EXPECT_EQ(frmTessel->Left, (28800 - frmTessel->Width) / 2);
    EXPECT_EQ(frmTessel->Top, (16200 - frmTessel->Height) / 2);
    EXPECT_EQ(frmTessel->Caption.Get(), "Malvone  Vers.: 3.1.0");
    const struct
    {
        const Control& Ding;
        bool Sichtbar;
    } cases[] = {
        {frmTessel->imgFeld(0), false},        {frmTessel->imgFeld(1), true},
        {frmTessel->imgFeld(140), true},       {frmTessel->cmdSchalt(0), true},
        {frmTessel->cmdSchalt(1), false},      {frmTessel->cmdSchalt(2), true},
        {frmTessel->imgNochEinmal, false},     {frmTessel->imgWiederholen, false},
        {frmTessel->imgNaechsterLevel, false}, {frmTessel->imgStart, true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.Ding.Visible, c.Sichtbar) << c.Ding.FullName();
    }
    EXPECT_FALSE(frmTessel->imgFeld(0).Enabled);
    EXPECT_EQ(frmTessel->cmdSchalt(0).Caption.Get(), "Spiel begi&nnen");
    EXPECT_EQ(frmTessel->cmdSchalt(0).ToolTipText.Get(),
              "Klicken Sie hier, um das Spiel zu beginnen");
    EXPECT_EQ(frmTessel->lblSumme.ForeColor, 0xC00000);
    EXPECT_TRUE(frmTessel->imgNext.Picture->Empty());
    for (int i = 1; i <= 140; ++i) {
        const Image& feld = frmTessel->imgFeld(i);
        const int links = 100 + 480 * ((i - 1) / 10);
        const int oben = 100 + 480 * ((i - 1) % 10);
        EXPECT_EQ(
            (std::vector{feld.Left.Get(), feld.Top.Get(), feld.Width.Get(), feld.Height.Get()}),
            (std::vector{static_cast<Twips>(links), static_cast<Twips>(oben), 480.0F, 480.0F}))
            << i;
        EXPECT_EQ(feld.Container(), &frmTessel->Picture1);
        EXPECT_EQ(feld.Picture->Name(), "frmBilder.imgGrund");
        EXPECT_EQ(feld.Tag->Text(), "0");
    }
}

}  // namespace
}  // namespace malvone
