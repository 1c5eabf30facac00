// BesteFensterTest.cpp: what the window of the best players shows, takes and throws away.
#include <gtest/gtest.h>

#include "state/Spielstand.h"
#include "storage/modBeste.h"
#include "tests/support/StilleBindung.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmDigital.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

const std::string kVorgabe = "Niemand\r\nNiemand\r\nNiemand\r\nNiemand\r\nNiemand\r\n"
                             "5000\r\n4700\r\n4400\r\n4100\r\n3800\r\n";
const std::string kEinName = "Anna\r\nNiemand\r\nNiemand\r\nNiemand\r\nNiemand\r\n"
                             "5000\r\n4700\r\n4400\r\n4100\r\n3800\r\n";
const std::string kFrage = "frmMsgJa: \r\nSind Sie sicher,\r\ndass Sie alle Einträge löschen "
                           "möchten? | \r\n»Einträge löschen« bestätigen";

class BesteFenster : public testing::Test
{
protected:
    Programm programm;

    void Starten(const std::string& liste)
    {
        DateiSchreiben(programm.Bestendatei(), liste);
        programm.Starten();
    }
    // Opens the window from the menu; answers follow each other.
    void Ansehen(std::deque<Antwort> antworten)
    {
        programm.Antworten(std::move(antworten));
        RaiseMenuClick(frmTessel->mnuInfo(4));
    }
    // Ends a game with a result that takes place 0; answers begin in the window of the entry.
    void Eintragen(std::deque<Antwort> antworten)
    {
        antworten.push_front(Taste('J'));
        antworten.push_back(Taste('J'));
        programm.Antworten(std::move(antworten));
        Stand.PunkteGesamt = 6000;
        BestePruefen();
    }
};

// One row of digit places as it is seen, dark places as ".".
std::string Ziffern(int platz)
{
    std::string ziffern;
    for (int k = kZiffernJePlatz - 1; k >= 0; --k) {
        const Image& bild = frmBeste->imgDiggi(platz * kZiffernJePlatz + k);
        for (int ziffer = 0; ziffer <= kZifferLeer && bild.Visible; ++ziffer) {
            if (bild.Picture == frmDigital->imgDiggi(ziffer).Picture) {
                ziffern += ziffer == kZifferLeer ? '.' : static_cast<char>('0' + ziffer);
            }
        }
    }
    return ziffern;
}

TEST_F(BesteFenster, ARowShowsItsPoints)
{
    const struct
    {
        const char* Punkte;
        const char* Ziffern;
    } cases[] = {
        {"5000", "..5000"},
        {"1", ".....1"},
        {"0", "......"},
        {"000", "......"},
        {"007", "...007"},
        {"654321", "654321"},
        {"7654321", "654321"},     // the first digit lies in the place that is never visible
        {"12345678", "999999"},    // more than seven digits: at least so much
        {"2147483647", "999999"},  //
        {"2147483648", "......"},  // no number counts as 0
        {"", "......"},
        {"12x4", "......"},
        {"-42", "....42"},
        {"  42 ", "...42."},
        {"0000000000042", "000042"},
        {"四十二", "......"},
    };
    Starten(kVorgabe);
    for (const auto& c : cases) {
        static_cast<void>(frmBeste->Name());
        frmBeste->lstPunkte.SetList(2, c.Punkte);
        Ansehen({[&](Window& fenster) {
            EXPECT_EQ(Ziffern(2), c.Ziffern) << c.Punkte;
            EXPECT_EQ(Ziffern(1) + Ziffern(3), "..4700..4100");
            RaiseClick(*fenster.Find("cmdEnde"));
        }});
    }
}

TEST_F(BesteFenster, RowsLieBelowEachOther)
{
    Starten(kVorgabe);
    static_cast<void>(frmBeste->Name());
    constexpr Twips kNamenTop[] = {750, 1245, 1740, 2235, 2730};
    constexpr Twips kZiffernTop[] = {720, 1230, 1740, 2250, 2760};
    for (int platz = 0; platz < kPlaetze; ++platz) {
        const TextBox& name = frmBeste->txtSpieler(platz);
        EXPECT_EQ(name.Left.Get(), 1300.0F);
        EXPECT_EQ(name.Top.Get(), kNamenTop[platz]);
        EXPECT_EQ(name.Width.Get(), 2205.0F);
        EXPECT_EQ(name.Height.Get(), 405.0F);
        for (int k = 0; k < kZiffernJePlatz; ++k) {
            const Image& ziffer = frmBeste->imgDiggi(platz * kZiffernJePlatz + k);
            EXPECT_EQ(ziffer.Left.Get(), 4830 - 210 * static_cast<Twips>(k));
            EXPECT_EQ(ziffer.Top.Get(), kZiffernTop[platz]);
        }
    }
}

TEST_F(BesteFenster, LookingAtTheListChangesNothing)
{
    Starten(kEinName);
    programm.VerlaufSeitdem();
    Ansehen({[](Window& fenster) {
        for (int i = 0; i < 2 * kPlaetze; ++i) {
            EXPECT_TRUE(frmBeste->txtSpieler(i).Locked);
            EXPECT_FALSE(frmBeste->txtSpieler(i).TabStop);
        }
        EXPECT_TRUE(frmBeste->lblTessel.Visible);
        EXPECT_EQ(fenster.Left.Get(), frmTessel->Left - 500);
        EXPECT_EQ(fenster.Top.Get(), frmTessel->Top - 500);
        frmBeste->txtSpieler(0).Type("x");
        for (const std::int16_t taste : {kKeyEnter, kKeyEsc, kKeyF1}) {
            RouteKey(fenster, {taste, 0});
        }
        EXPECT_TRUE(fenster.Shown());
        RaiseClick(*fenster.Find("cmdEnde"));
    }});
    EXPECT_EQ(programm.VerlaufSeitdem(), (Verlauf{"frmBeste", "open Bestespieler.pdf"}));
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), kEinName);
    EXPECT_TRUE(frmBeste.Loaded());
    EXPECT_FALSE(frmBeste->Shown());
}

TEST_F(BesteFenster, AHiddenWindowKeepsItsListAndAClosedOneReadsItAgain)
{
    Starten(kVorgabe);
    Ansehen({Klick("cmdEnde")});
    DateiSchreiben(programm.Bestendatei(), kEinName);
    Ansehen({[](Window& fenster) {
        EXPECT_EQ(frmBeste->txtSpieler(0).Text.Get(), "Niemand");
        RaiseClose(fenster);
    }});
    EXPECT_FALSE(frmBeste.Loaded());
    Ansehen({[](Window& fenster) {
        EXPECT_EQ(frmBeste->txtSpieler(0).Text.Get(), "Anna");
        RaiseClose(fenster);
    }});
}

TEST_F(BesteFenster, TheNameOfANewEntryWaitsToBeTyped)
{
    Starten(kVorgabe);
    Eintragen({[](Window& fenster) {
        const TextBox& name = frmBeste->txtSpieler(0);
        EXPECT_EQ(name.Text.Get(), "Spieler");
        EXPECT_EQ(fenster.Focus(), &name);
        EXPECT_EQ(name.SelStart.Get(), 0);
        EXPECT_EQ(name.SelLength.Get(), 7);
        for (int i = 0; i < 2 * kPlaetze; ++i) {
            EXPECT_EQ(frmBeste->txtSpieler(i).Locked.Get(), i != 0);
            EXPECT_EQ(frmBeste->txtSpieler(i).TabStop.Get(), i == 0);
        }
        EXPECT_FALSE(frmBeste->lblTessel.Visible);
        EXPECT_FALSE(frmBeste->cmdTessel.Visible);
        EXPECT_FALSE(frmBeste->shpTessel.Visible);
        EXPECT_EQ(fenster.Left.Get(), frmTessel->Left - 100);
        EXPECT_EQ(fenster.Top.Get(), frmTessel->Top - 100);
        RouteKey(fenster, {'A', kAltKey});
        EXPECT_TRUE(fenster.Shown());
        RaiseClick(*fenster.Find("cmdEnde"));
    }});
}

TEST_F(BesteFenster, OnlyAnEmptyNameBecomesSpieler)
{
    const struct
    {
        const char* Getippt;
        const char* Gespeichert;
    } cases[] = {{"", "Spieler"}, {"   ", "   "}, {"Ärger, \"laut\"", "\xC4rger, \"laut\""}};
    for (const auto& c : cases) {
        Starten(kVorgabe);
        Eintragen({[&](Window& fenster) {
            frmBeste->txtSpieler(0).Type(c.Getippt);
            RaiseClick(*fenster.Find("cmdEnde"));
        }});
        const std::string datei = *Dateiinhalt(programm.Bestendatei());
        EXPECT_EQ(datei.substr(0, datei.find('\r')), c.Gespeichert);
        EXPECT_EQ(frmBeste->txtSpieler(0).Text.Get(), frmBeste->lstName.List(0));
        App.Finish();
        App.Begin(programm.Bindung, programm.Plattform);
        ZustandNeu();
    }
}

TEST_F(BesteFenster, TheTitleBarLosesTheEntry)
{
    Starten(kVorgabe);
    Eintragen({[](Window& fenster) {
        frmBeste->txtSpieler(0).Type("Anna");
        RaiseClose(fenster);
    }});
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), kVorgabe);
    EXPECT_FALSE(frmBeste.Loaded());
    EXPECT_EQ(frmBeste->lstName.List(0), "Niemand");
    EXPECT_EQ(Stand.RundenZahl, 1) << "the game has gone on";
}

TEST_F(BesteFenster, AListOfNobodyIsNeverWiped)
{
    const std::string andere = "Niemand\r\nNiemand\r\nNiemand\r\nNiemand\r\nNiemand\r\n"
                               "9\r\n8\r\n7\r\n6\r\n5\r\n";
    Starten(andere);
    programm.VerlaufSeitdem();
    Ansehen({[](Window& fenster) {
        EXPECT_FALSE(frmBeste->lblTessel.Visible);
        RouteKey(fenster, {'A', kAltKey});
        EXPECT_FALSE(fenster.Shown());
    }});
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{"frmBeste"});
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), andere);
}

TEST_F(BesteFenster, TheWipeClosesTheWindowWhateverTheAnswer)
{
    const std::string lang = "Anna\r\nB\r\nC\r\nD\r\nE\r\n123456\r\n8\r\n7\r\n6\r\n5\r\n";
    const struct
    {
        Antwort Weg;
        Antwort AufDieFrage;
        bool Geloescht;
    } cases[] = {
        {Klick("lblTessel"), Taste('N'), false},
        {Klick("lblTessel"), Taste(kKeyEsc), false},
        {Klick("lblTessel"), Klick("lblJa"), true},
        {Taste('A', kAltKey), Taste('J'), true},
    };
    for (const auto& c : cases) {
        Starten(lang);
        programm.VerlaufSeitdem();
        Ansehen({c.Weg, c.AufDieFrage});
        EXPECT_EQ(programm.VerlaufSeitdem(), (Verlauf{"frmBeste", kFrage}));
        EXPECT_FALSE(frmBeste->Shown());
        EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), c.Geloescht ? kVorgabe : lang);
        EXPECT_EQ(frmBeste->cmdTessel.Visible.Get(), !c.Geloescht);
        EXPECT_EQ(frmBeste->shpTessel.Visible.Get(), !c.Geloescht);
        Ansehen({[&](Window& fenster) {
            EXPECT_EQ(Ziffern(0), c.Geloescht ? "..5000" : "123456");
            EXPECT_EQ(frmBeste->lblTessel.Visible.Get(), !c.Geloescht);
            RaiseClick(*fenster.Find("cmdEnde"));
        }});
        App.Finish();
        App.Begin(programm.Bindung, programm.Plattform);
        ZustandNeu();
    }
}

TEST_F(BesteFenster, AWipeThatFailsIsToldByTheReading)
{
    Starten(kEinName);
    programm.VerlaufSeitdem();
    std::filesystem::remove(programm.Bestendatei());
    std::filesystem::create_directory(programm.Bestendatei());
    Ansehen({Klick("lblOk"), Klick("cmdEnde")});
    programm.VerlaufSeitdem();
    Ansehen({Klick("lblTessel"), Taste('J'), Klick("lblOk")});
    EXPECT_EQ(programm.VerlaufSeitdem(),
              (Verlauf{"frmBeste", kFrage,
                       "frmMsgOk: \r\nDie Daten für »Beste Spieler«\r\nkonnten nicht gelesen "
                       "werden! | \r\nFehlernummer: 75"}));
    EXPECT_TRUE(std::filesystem::is_directory(programm.Bestendatei()));
}

}  // namespace
}  // namespace malvone
