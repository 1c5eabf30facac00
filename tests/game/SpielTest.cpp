// SpielTest.cpp: games from level to level, through the events of the main window.
#include <gtest/gtest.h>

#include <string>

#include "board/SteuereBilder.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "tests/support/StilleBindung.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmDigital.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr const char* kKeinZug = "Es ist kein weiterer Zug mehr möglich.";

class Spielverlauf : public ::testing::Test
{
protected:
    Spielverlauf()
    {
        programm_.Starten();
        Klicken("lblNeu");
    }

    Programm programm_;

    void Klicken(const std::string& name) { ASSERT_TRUE(RaiseClick(*frmTessel->Find(name))); }
    static void Tippen(Key taste) { RouteKey(*frmTessel, taste); }

    // A board of stones from the bottom of the first column upward, "12" for example.
    static void Brett(const std::string& saeule)
    {
        for (int i = 1; i <= kZellen; ++i) {
            frmTessel->imgFeld(i).Tag = "0";
        }
        int zelle = UntersteZelle(0);
        for (const char stein : saeule) {
            frmTessel->imgFeld(zelle--).Tag = std::string(1, stein);
        }
    }
    // Points at the bottom stone of the first column and removes its group.
    static void Ziehen()
    {
        const int zelle = UntersteZelle(0);
        frmTessel->imgFeld.MouseMove.Raise(static_cast<std::int16_t>(zelle), Mouse());
        frmTessel->imgFeld.MouseDown.Raise(static_cast<std::int16_t>(zelle), Mouse{kLeftButton});
    }
    void LevelLeeren()
    {
        Brett("33");
        programm_.Antworten({Taste(kKeyEsc)});
        Ziehen();
    }
    // Ends the level with one stone left; two stones have been worth 4 points.
    void LevelVerlieren(std::deque<Antwort> weitere = {})
    {
        Brett("332");
        weitere.push_front(Taste(kKeyEsc));
        programm_.Antworten(std::move(weitere));
        Ziehen();
    }
    static bool Angeboten(bool weiter, bool wiederholen)
    {
        return frmTessel->imgNaechsterLevel.Visible == weiter &&
               frmTessel->imgWiederholen.Visible == wiederholen &&
               frmTessel->imgNochEinmal.Visible == wiederholen;
    }
    static int Levelziffer()
    {
        for (int ziffer = 0; ziffer <= kZifferLeer; ++ziffer) {
            if (frmTessel->imgDiggiLevel(0).Picture == frmDigital->imgDiggi(ziffer).Picture) {
                return ziffer;
            }
        }
        return -1;
    }
    static std::string Gesamtanzeige()
    {
        std::string text;
        for (int stelle = 4; stelle >= 0; --stelle) {
            const std::string name(frmTessel->imgDiggiPunkte(stelle).Picture->Name());
            const std::string ziffer = name.substr(20, name.size() - 21);
            text += ziffer == "10" ? "" : ziffer;
        }
        return text;
    }
};

using Levelende = Spielverlauf;
using NeuesSpiel = Spielverlauf;
using Befehle = Spielverlauf;
using Verlassen = Spielverlauf;

TEST_F(Levelende, BonusShowsWithTheNextRemoval)
{
    LevelLeeren();
    EXPECT_EQ(Stand.PunkteGesamt, 1004);
    EXPECT_EQ(Stand.RundenZahl, 2);
    EXPECT_EQ(Gesamtanzeige(), "4");
    EXPECT_EQ(Levelziffer(), 1);
    EXPECT_EQ(frmTessel->lblSumme.Caption.Get(), "");

    Brett("3321212");
    Ziehen();
    EXPECT_EQ(Gesamtanzeige(), "1008");
    EXPECT_EQ(Levelziffer(), 2);
}

TEST_F(Levelende, OnlyLevelFiveEndsTheGame)
{
    for (int level = 1; level <= 5; ++level) {
        LevelLeeren();
    }
    EXPECT_EQ(Stand.RundenZahl, 6);
    programm_.VerlaufSeitdem();
    LevelVerlieren();
    EXPECT_TRUE(Angeboten(true, true));
    EXPECT_EQ(programm_.VerlaufSeitdem().size(), 2U)
        << "a sound, and the message of the stones left";

    Stand.RundenZahl = 5;
    LevelVerlieren({Taste('N'), Taste('J')});  // no entry, but a new game
    EXPECT_EQ(Stand.RundenZahl, 1);
    EXPECT_EQ(Stand.PunkteGesamt, 0);
    EXPECT_TRUE(Angeboten(false, true)) << "the end of a game takes one picture of the offer away";
}

TEST_F(Levelende, TellsHowManyStonesAreLeft)
{
    const std::pair<const char*, const char*> faelle[] = {
        {"332", "Es ist noch ein Feld belegt."},
        {"3321", "Es sind noch 2 Felder belegt."},
        {"33212121", "Es sind noch 6 Felder belegt."},
    };
    for (const auto& [brett, rest] : faelle) {
        Brett(brett);
        programm_.Antworten({Taste(kKeyEsc)});
        programm_.VerlaufSeitdem();
        Ziehen();
        EXPECT_EQ(programm_.VerlaufSeitdem().back(),
                  "frmMsgOk: \r\n" + std::string(kKeinZug) + "\r\n" + rest +
                      " | \r\nSie erhalten keine Bonuspunkte in diesem Level.");
    }
}

TEST_F(Levelende, EmptiedRepeatStillMakesTheReducedOffer)
{
    LevelVerlieren();
    Klicken("imgWiederholen");
    LevelLeeren();
    LevelVerlieren();
    EXPECT_TRUE(Angeboten(true, false));
    EXPECT_EQ(frmTessel->lblMeldung.Caption.Get(), "Klicken Sie auf \r\n»Nächster Level«");
    EXPECT_TRUE(frmTessel->cmdSchalt(1).Visible);
    EXPECT_TRUE(frmTessel->mnuTessel(2).Enabled);
}

TEST_F(NeuesSpiel, AnswerNoTakesTheOfferAway)
{
    LevelVerlieren();
    EXPECT_TRUE(Angeboten(true, true));
    for (const Antwort& nein : {Taste('N'), Taste(kKeyEsc), Titelleiste(), Klick("lblNein")}) {
        programm_.Antworten({nein});
        Klicken("lblNeu");
        EXPECT_TRUE(Angeboten(false, false));
        EXPECT_EQ(Stand.PunkteGesamt, 4);
        EXPECT_EQ(Zellwert(10), 0) << "the board stays empty";
    }
    Tippen({'W', kCtrlKey});
    EXPECT_EQ(Stand.RundenZahl, 2) << "the menu still leads on";
}

TEST_F(NeuesSpiel, ClosingTheQuestionIsNeverTheAnswerBefore)
{
    programm_.Antworten({Taste('J')});
    Klicken("lblNeu");
    Stand.PunkteGesamt = 77;
    programm_.Antworten({Titelleiste()});
    Klicken("lblNeu");
    EXPECT_EQ(Stand.PunkteGesamt, 77);
}

TEST_F(Befehle, RepeatByMenuRaisesTheLevel)
{
    LevelVerlieren();
    Tippen({'W', kAltKey});
    EXPECT_EQ(Stand.RundenZahl, 2);
    EXPECT_EQ(Stand.PunkteGesamt, 4);
    EXPECT_EQ(Stand.LevelPunkte, 4);
    EXPECT_EQ(Stand.LevelWiederholt, 0);
    EXPECT_TRUE(Angeboten(true, true)) << "the offer stays on the window";
}

TEST_F(Befehle, LevelDisplayLagsUntilTheFirstRemoval)
{
    LevelVerlieren();
    Klicken("imgNaechsterLevel");
    EXPECT_EQ(Stand.RundenZahl, 2);
    EXPECT_EQ(Levelziffer(), 1);
    Brett("3321212");
    Ziehen();
    EXPECT_EQ(Levelziffer(), 2);

    LevelVerlieren();
    Klicken("imgWiederholen");
    EXPECT_EQ(Stand.RundenZahl, 2);
    EXPECT_EQ(Levelziffer(), 1) << "a repeat shows one level less";
}

TEST_F(Befehle, RepeatTakesBackWhatAnEmptiedLevelHasEarned)
{
    LevelVerlieren();
    Klicken("imgNaechsterLevel");
    LevelLeeren();
    LevelVerlieren();
    EXPECT_EQ(Stand.PunkteGesamt, 4 + 1004 + 4);
    Klicken("imgWiederholen");
    EXPECT_EQ(Stand.PunkteGesamt, 4);
    EXPECT_EQ(Stand.RundenZahl, 3);
}

TEST_F(Befehle, EnterSkipsALevelWithoutLoss)
{
    Brett("3321212");
    Ziehen();
    for (int level = 2; level <= 6; ++level) {
        Tippen({kKeyEnter, 0});
    }
    EXPECT_EQ(Stand.RundenZahl, 6) << "level 5 went by without the best list";
    EXPECT_EQ(Stand.PunkteGesamt, 4);
    LevelVerlieren();
    EXPECT_TRUE(Angeboten(true, true));
}

TEST_F(Befehle, TabLeavesTheFocusWhereItIs)
{
    Tippen({kKeyTab, 0});
    Tippen({kKeySpace, 0});
    EXPECT_EQ(Stand.RundenZahl, 2) << "the space bar still takes the next level";
}

TEST(Start, EnterBeginsALevelAndLeavesTheArrowBlinking)
{
    Programm programm;
    programm.Starten();
    RouteKey(*frmTessel, {kKeyEnter, 0});
    EXPECT_EQ(Stand.RundenZahl, 1);
    EXPECT_TRUE(RaiseTimer(frmTessel->Timer1));
    EXPECT_EQ(frmTessel->lblMeldung.Caption.Get(), "Klicken Sie auf »Neues Spiel«.");
    RaiseClick(frmTessel->lblNeu);
    EXPECT_EQ(programm.VerlaufSeitdem().back(), "unanswered frmMsgJa") << "a level has begun";
    EXPECT_FALSE(RaiseTimer(frmTessel->Timer1));
}

TEST_F(Verlassen, EveryWayOutAsksOnceAndNoKeepsTheGame)
{
    const auto wege = {
        +[] { RaiseClick(frmTessel->lblEnde); },
        +[] {
            RouteKey(*frmTessel, {'E', kAltKey});
        },
        +[] {
            RouteKey(*frmTessel, {'E', kCtrlKey});
        },
        +[] { RaiseMenuClick(frmTessel->mnuTessel(4)); },
        +[] { RaiseClose(*frmTessel); },
    };
    programm_.VerlaufSeitdem();
    for (const auto& weg : wege) {
        programm_.Antworten({Taste('N')});
        weg();
        const Verlauf verlauf = programm_.VerlaufSeitdem();
        ASSERT_EQ(verlauf.size(), 2U);
        EXPECT_EQ(verlauf[0], "sound CHIMES.WAV");
        EXPECT_EQ(verlauf[1],
                  "frmMsgJa: \r\nSind Sie sicher,\r\ndass Sie das Spiel beenden möchten?\" | "
                  "\r\n»Beenden« bestätigen");
        EXPECT_FALSE(App.Ended());
        EXPECT_TRUE(frmTessel->Shown());
    }
    programm_.Antworten({Taste('J')});
    RaiseClose(*frmTessel);
    EXPECT_TRUE(App.Ended());
}

// The question at the end of a game stands inside the message loop of the best list; after no,
// whatever still runs must neither show nor write anything.
TEST_F(Verlassen, EndingInsideNestedWindowsWritesAndShowsNothingMore)
{
    Stand.RundenZahl = 5;
    Stand.PunkteGesamt = 9000;
    const auto vorher = Dateiinhalt(programm_.Standdatei());
    LevelVerlieren({Taste('J'), Klick("cmdEnde"), Taste('N')});
    EXPECT_TRUE(App.Ended());
    programm_.VerlaufSeitdem();
    frmTessel->Show();
    RouteKey(*frmTessel, {kKeyEnter, 0});
    EXPECT_TRUE(programm_.VerlaufSeitdem().empty());
    EXPECT_EQ(Dateiinhalt(programm_.Standdatei()), vorher);
    EXPECT_TRUE(Dateiinhalt(programm_.Bestendatei())->starts_with("Spieler\r\n"));
}

}  // namespace
}  // namespace malvone
