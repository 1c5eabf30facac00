// MeldungenTest.cpp: the two message windows, the manuals, the information window and the backdrop.
#include <gtest/gtest.h>

#include "game/Main.h"
#include "state/Pfade.h"
#include "tests/support/StilleBindung.h"
#include "ui/Handbuch.h"
#include "ui/Meldungen.h"
#include "ui/layer/PointerRouting.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmHintergrund.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmMsgOk.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr std::int16_t kAlleUmschalter[] = {0, kShiftKey, kCtrlKey, kAltKey,
                                            kShiftKey | kCtrlKey | kAltKey};

struct Gestartet : Programm
{
    Gestartet() { Starten(); }
};

// Presses and releases the left button in the middle of a control.
void Anklicken(Window& fenster, const Visual& ziel, std::int16_t taste = kLeftButton)
{
    const Mouse maus{taste, 0, ziel.WindowLeft() + ziel.Width / 2,
                     ziel.WindowTop() + ziel.Height / 2};
    PointerPressed(fenster, maus);
    PointerReleased(fenster, maus);
}

TEST(Meldungen, EachWayOutOfAQuestionGivesItsAnswer)
{
    const struct
    {
        const char* Weg;
        Antwort Tun;
        std::int16_t Erwartet;
    } cases[] = {
        {"yes", [](Window& w) { Anklicken(w, frmMsgJa->lblJa); }, 1},
        {"no", [](Window& w) { Anklicken(w, frmMsgJa->lblNein); }, 2},
        {"close icon", [](Window& w) { Anklicken(w, frmMsgJa->Image1); }, 3},
    };
    const struct
    {
        std::int16_t Code;
        std::int16_t Erwartet;
    } tasten[] = {{74, 1}, {78, 2}, {27, 3}};

    Gestartet programm;
    EXPECT_EQ(MsgAntwort, 0);
    for (const auto& c : cases) {
        programm.Antworten({c.Tun});
        EXPECT_EQ(FrageStellen("m", "t"), c.Erwartet == 1) << c.Weg;
        EXPECT_EQ(MsgAntwort, c.Erwartet) << c.Weg;
        EXPECT_FALSE(frmMsgJa.Loaded()) << c.Weg;
    }
    for (const auto& t : tasten) {
        for (const std::int16_t umschalter : kAlleUmschalter) {
            programm.Antworten({Taste(t.Code, umschalter)});
            EXPECT_EQ(FrageStellen("m", "t"), t.Erwartet == 1);
            EXPECT_EQ(MsgAntwort, t.Erwartet) << t.Code << "/" << umschalter;
        }
    }
    programm.VerlaufSeitdem();
}

TEST(Meldungen, OnlyTheTwoClicksAndEscCloseAMessageAndTheAnswerStays)
{
    Gestartet programm;
    constexpr std::int16_t kAlte[] = {0, 1, 2, 3};
    for (const std::int16_t alt : kAlte) {
        MsgAntwort = alt;
        for (const auto& weg : std::vector<Antwort>{
                 [](Window& w) { Anklicken(w, frmMsgOk->lblOk); },
                 [](Window& w) { Anklicken(w, frmMsgOk->Image2); },
                 Taste(kKeyEsc),
                 Taste(kKeyEsc, kShiftKey | kAltKey),
             }) {
            programm.Antworten({weg});
            MeldungZeigen("m", "t");
            EXPECT_FALSE(frmMsgOk.Loaded());
            EXPECT_EQ(MsgAntwort, alt);
        }
    }
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf(16, "frmMsgOk: m | t"));
}

TEST(Meldungen, OtherKeysAndButtonsLeaveThemOpen)
{
    Gestartet programm;
    programm.Antworten({Taste(kKeyEnter), Taste(kKeyEnter, kAltKey), Taste(kKeySpace), Taste('A'),
                        Taste(kKeyTab), Taste('E', kCtrlKey), Taste('J'), Taste('N'),
                        [](Window& w) { Anklicken(w, frmMsgOk->lblOk, kRightButton); },
                        [](Window& w) { Anklicken(w, frmMsgOk->lblMeldung); },
                        [](Window& w) { Anklicken(w, frmMsgOk->lblName); },
                        [](Window& w) {
                            EXPECT_TRUE(w.Shown());
                            w.Unload();
                        }});
    MeldungZeigen("m", "t");
    programm.Antworten({Taste(kKeyEnter), Taste(kKeyEnter, kAltKey), Taste(kKeySpace), Taste('A'),
                        Taste(kKeyTab), Taste('E', kCtrlKey),
                        [](Window& w) { Anklicken(w, frmMsgJa->lblJa, kRightButton); },
                        [](Window& w) { Anklicken(w, frmMsgJa->lblTitel); },
                        [](Window& w) {
                            EXPECT_EQ(MsgAntwort, 0);
                            EXPECT_TRUE(w.Shown());
                            w.Unload();
                        }});
    EXPECT_FALSE(FrageStellen("m", "t"));
    EXPECT_EQ(programm.VerlaufSeitdem(), (Verlauf{"frmMsgOk: m | t", "frmMsgJa: m | t"}));
    EXPECT_TRUE(programm.Bindung.Antworten.empty());
}

TEST(Meldungen, SecondQuestionStartsWithTheFirstAnswerAndFreshTexts)
{
    Gestartet programm;
    programm.Antworten({Taste('J'), [](Window& w) {
                            EXPECT_EQ(MsgAntwort, 1);
                            EXPECT_EQ(frmMsgJa->lblMeldung.Caption.Get(), "zwei");
                            EXPECT_EQ(frmMsgJa->lblTitel.Caption.Get(), "");
                            RouteKey(w, {'N', 0});
                        }});
    EXPECT_TRUE(FrageStellen("eins", "t"));
    EXPECT_FALSE(FrageStellen("zwei", ""));
    EXPECT_EQ(MsgAntwort, 2);
    programm.Antworten({Titelleiste()});
    MsgAntwort = 1;
    EXPECT_FALSE(FrageStellen("closed by the system", ""))
        << "the yes before does not stand for it";
    EXPECT_EQ(MsgAntwort, 3);
}

TEST(Meldungen, OpenOverTheMainWindowWhereverItHasBeenMoved)
{
    Gestartet programm;
    const struct
    {
        Twips Left, Top, Width, Height;
    } lagen[] = {{8737.5F, 4627.5F, 11325, 6945},
                 {0, 0, 11325, 6945},
                 {-3000, 12000, 11325, 6945},
                 {105, 15, 11505, 7650}};
    for (const auto& l : lagen) {
        frmTessel->Move(l.Left, l.Top, l.Width, l.Height);
        std::vector<std::pair<Twips, Twips>> orte;
        const Antwort merken = [&orte](Window& w) {
            orte.emplace_back(w.Left, w.Top);
            RouteKey(w, {kKeyEsc, 0});
        };
        programm.Antworten({merken, merken, merken});
        MeldungZeigen("m", "t");
        FrageStellen("m", "t");
        MeldungZeigen("m", "t", Versatz{-1000, -200});
        EXPECT_EQ(orte, (std::vector<std::pair<Twips, Twips>>{
                            {l.Left + (l.Width - 5805) / 2, l.Top + (l.Height - 3420) / 2},
                            {l.Left + (l.Width - 5880) / 2, l.Top + (l.Height - 3540) / 2},
                            {l.Left - 1000, l.Top - 200}}));
    }
}

TEST(Meldungen, TitleIsWrittenAtEachActivationAndNothingElseChanges)
{
    Gestartet programm;
    programm.Antworten({[](Window& w) {
                            EXPECT_EQ(frmMsgJa->lblName.Caption.Get(), "Malvone  Vers.: 3.1.0");
                            frmMsgJa->lblName.Caption = "";
                            RaiseActivate(w);
                            EXPECT_EQ(frmMsgJa->lblName.Caption.Get(), "Malvone  Vers.: 3.1.0");
                            EXPECT_EQ(frmMsgJa->lblMeldung.Caption.Get(), "m");
                        },
                        Taste('N')});
    FrageStellen("m", "t");
    programm.Antworten({[](Window& w) {
        EXPECT_EQ(frmMsgOk->lblName.Caption.Get(), "Malvone  Vers.: 3.1.0");
        RouteKey(w, {kKeyEsc, 0});
    }});
    MeldungZeigen("m", "t");
}

// Counts the moves of windows that the system is asked to begin.
class Ziehbindung final : public Binding
{
public:
    explicit Ziehbindung(std::vector<Mouse> bewegungen) : bewegungen_(std::move(bewegungen)) {}
    int Gezogen = 0;

    Twips ScreenWidth() override { return 28800; }
    Twips ScreenHeight() override { return 16200; }
    void WindowShown(Window&, ShowMode) override {}
    void WindowHidden(Window&) override {}
    void WindowUnloaded(Window&) override {}
    void RunModal(Window& window) override
    {
        for (const Mouse& maus : bewegungen_) {
            PointerMoved(window, maus);
        }
        window.Unload();
    }
    void DragWindow(Window&) override { ++Gezogen; }
    void Ended() override {}

private:
    std::vector<Mouse> bewegungen_;
};

TEST(Meldungen, SurfaceAndTitleDragWithTheLeftButtonAlone)
{
    const struct
    {
        const char* Name;
        Mouse Maus;
        bool Zieht;
    } cases[] = {
        {"surface", {1, 0, 100, 600}, true},
        {"title line", {1, 0, 2000, 300}, true},
        {"surface with Shift", {1, kShiftKey, 100, 600}, true},
        {"no button", {0, 0, 100, 600}, false},
        {"right button", {2, 0, 100, 600}, false},
        {"both buttons", {3, 0, 100, 600}, false},
        {"left and middle", {5, 0, 2000, 300}, false},
        {"right button on the title", {2, 0, 2000, 300}, false},
        {"panel", {1, 0, 100, 2770}, false},
        {"upper text", {1, 0, 2000, 1000}, false},
        {"lower text", {1, 0, 2000, 2000}, false},
        {"close icon", {1, 0, 5500, 200}, false},
        {"hot area", {1, 0, 3700, 3000}, false},
    };
    Programm programm;
    for (const auto& c : cases) {
        Ziehbindung bindung({c.Maus});
        TestPlattform plattform(programm.Platte, programm.Programmordner, programm.Bindung.Verlauf);
        App.Begin(bindung, plattform);
        MeldungZeigen("m", "t");
        EXPECT_EQ(bindung.Gezogen, c.Zieht ? 1 : 0) << "frmMsgOk, " << c.Name;
        FrageStellen("m", "t");
        EXPECT_EQ(bindung.Gezogen, c.Zieht ? 2 : 0) << "frmMsgJa, " << c.Name;
        App.Finish();
    }
}

TEST(Handbuch, F1OpensTheManualOfItsWindowOnceWhereThereIsOne)
{
    const struct
    {
        const char* Fenster;
        const char* Datei;
        std::function<void(Programm&)> Druecken;
        Verlauf Davor;
    } cases[] = {
        {"main window",
         "Malvone.pdf",
         [](Programm&) {
             RouteKey(*frmTessel, {kKeyF1, 0});
         },
         {"sound ding.wav"}},
        {"help button",
         "Malvone.pdf",
         [](Programm&) { RaiseClick(frmTessel->lblHilfe); },
         {"sound ding.wav"}},
        {"menu",
         "Malvone.pdf",
         [](Programm&) { RaiseMenuClick(frmTessel->mnuInfo(1)); },
         {"sound ding.wav"}},
        {"question",
         "Meldefenster.pdf",
         [](Programm& p) {
             p.Antworten({Taste(kKeyF1, kCtrlKey), Taste('N')});
             FrageStellen("m", "t");
             EXPECT_EQ(MsgAntwort, 2) << "the question was left open";
         },
         {"frmMsgJa: m | t"}},
        {"message",
         "Meldefenster.pdf",
         [](Programm& p) {
             p.Antworten({Taste(kKeyF1), Taste(kKeyEsc)});
             MeldungZeigen("m", "t");
         },
         {"frmMsgOk: m | t"}},
        {"best list",
         "Bestespieler.pdf",
         [](Programm& p) {
             p.Antworten({Taste(kKeyF1), Klick("cmdEnde")});
             RaiseMenuClick(frmTessel->mnuInfo(4));
         },
         {"frmBeste"}},
    };
    for (const auto& c : cases) {
        for (const bool vorhanden : {true, false}) {
            Gestartet programm;
            const auto pfad = programm.Programmordner / c.Datei;
            std::filesystem::remove(pfad);
            if (vorhanden) {
                DateiSchreiben(pfad, "%PDF");
            }
            c.Druecken(programm);
            Verlauf erwartet = c.Davor;
            if (vorhanden) {
                erwartet.push_back(std::string("open ") + c.Datei);
            }
            EXPECT_EQ(programm.VerlaufSeitdem(), erwartet) << c.Fenster;
            EXPECT_TRUE(frmTessel->Shown());
        }
    }
}

TEST(Handbuch, ProgramFolderEndsWithOneBackslash)
{
    const Programm programm;
    const std::string alt = App.Path;
    for (const char* const pfad : {"C:\\spiele", "C:\\spiele\\"}) {
        App.Path = pfad;
        EXPECT_EQ(ProgrammOrdner(), "C:\\spiele\\");
    }
    App.Path = alt;
}

TEST(Bildknoepfe, ShowTheirPressedLookForAnyButtonAndClickWithTheLeft)
{
    Gestartet programm;
    const struct
    {
        const Image& Knopf;
        const char* Ruhe;
        const char* Gedrueckt;
        const char* Folge;
    } cases[] = {
        {frmTessel->lblHilfe, "frmBilder.cmdHilfeAuswahl", "frmBilder.cmdHilfeGruen",
         "sound ding.wav"},
        {frmTessel->lblInfo, "frmBilder.cmdBeschreibungenAuswahl",
         "frmBilder.cmdBeschreibungenFruen", "sound ding.wav"},
    };
    for (const auto& c : cases) {
        for (const std::int16_t taste : {kLeftButton, kRightButton, kMiddleButton}) {
            const Mouse maus{taste, 0, c.Knopf.Left + 10, c.Knopf.Top + 10};
            EXPECT_EQ(c.Knopf.Picture->Name(), c.Ruhe);
            PointerPressed(*frmTessel, maus);
            EXPECT_EQ(c.Knopf.Picture->Name(), c.Gedrueckt);
            PointerReleased(*frmTessel, maus);
            EXPECT_EQ(c.Knopf.Picture->Name(), c.Ruhe);
            const Verlauf verlauf = programm.VerlaufSeitdem();
            EXPECT_EQ(verlauf.empty(), taste != kLeftButton);
            EXPECT_TRUE(verlauf.empty() || verlauf[0] == c.Folge);
        }
    }
}

TEST(Information, NamesTwoHeadingsWithThreeLinesEach)
{
    Gestartet programm;
    std::pair<Twips, Twips> ort;
    programm.Antworten({[&ort](Window& w) {
        ort = {w.Left, w.Top};
        const auto zeilen = [](const std::string& text) {
            std::size_t zahl = 1;
            for (std::size_t i = text.find("\r\n"); i != std::string::npos;
                 i = text.find("\r\n", i + 2)) {
                ++zahl;
            }
            return zahl;
        };
        const std::string meldung = frmMsgOk->lblMeldung.Caption;
        const std::string titel = frmMsgOk->lblTitel.Caption;
        EXPECT_TRUE(meldung.starts_with("Programmierung:\r\n")) << meldung;
        EXPECT_TRUE(titel.starts_with("Grafik:\r\n")) << titel;
        EXPECT_EQ(zeilen(meldung), 3U);
        EXPECT_EQ(zeilen(titel), 3U);
        RouteKey(w, {kKeyEsc, 0});
    }});
    RaiseMenuClick(frmTessel->mnuInfo(2));
    EXPECT_EQ(ort, (std::pair<Twips, Twips>{frmTessel->Left - 200, frmTessel->Top - 200}));
}

TEST(Backdrop, CoversTheScreenAndGivesTheFrontBackToTheGame)
{
    Gestartet programm;
    EXPECT_TRUE(frmHintergrund->Shown());
    EXPECT_EQ((std::vector{frmHintergrund->Left.Get(), frmHintergrund->Top.Get(),
                           frmHintergrund->Width.Get(), frmHintergrund->Height.Get()}),
              (std::vector<Twips>{0, 0, 28800, 16200}));
    const Image& bild = frmHintergrund->Image1;
    EXPECT_EQ((std::vector{bild.Left.Get(), bild.Top.Get(), bild.Width.Get(), bild.Height.Get()}),
              (std::vector<Twips>{0, 0, 28800, 16200}));
    frmTessel->Hide();
    EXPECT_TRUE(RaiseActivate(*frmHintergrund));
    EXPECT_TRUE(frmTessel->Shown());
    Anklicken(*frmHintergrund, bild);
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{});
}

}  // namespace
}  // namespace malvone
