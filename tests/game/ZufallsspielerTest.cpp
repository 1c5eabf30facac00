// ZufallsspielerTest.cpp: a player who does anything at any time, for ten thousand levels, while
// what must always hold is looked at after each of his doings.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <random>

#include "state/Pfade.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "storage/Datenordner.h"
#include "tests/support/StilleBindung.h"
#include "ui/layer/PointerRouting.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmHintergrund.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmMsgOk.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr int kLevel = 10'000;

// The seed of a run; MALVONE_SAAT repeats one that has failed.
unsigned Saat()
{
    const char* const saat = std::getenv("MALVONE_SAAT");
    return saat != nullptr ? static_cast<unsigned>(std::strtoul(saat, nullptr, 10)) : 4711U;
}

// What the test wants to have met in the end.
enum Erlebnis {
    kLeeresBrett,
    kVollesAngebot,
    kKleinesAngebot,
    kSpielende,
    kEintrag,
    kGeloescht,
    kNeuesSpiel,
    kWiederholt,
    kLesefehler,
    kProgrammende,
    kHandbuch,
    kInfo,
    kErlebnisse
};
constexpr const char* kErlebnisNamen[] = {"emptied board",      "full offer",      "reduced offer",
                                          "end of a game",      "entry",           "wiped list",
                                          "new game",           "repeated level",  "read error",
                                          "end of the program", "a manual opened", "information"};

class Spieler final : public Binding
{
public:
    Spieler()
    {
        std::filesystem::create_directory(programm_);
        DateiSchreiben(programm_ / "Malvone.pdf", "%PDF");
    }

    std::array<int, kErlebnisse> Erlebt{};
    int Level = 0;
    int Schritte = 0;

    void Spielen(int level)
    {
        while (Level < level && !::testing::Test::HasFailure()) {
            App.Begin(*this, plattform_);
            ZustandNeu();
            angebotUeberlebt_ = false;
            if (Mit(50)) {
                NiedrigeListe();
            }
            {
                const EventScope scope;
                Main();
            }
            while (Level < level && !App.Ended() && !::testing::Test::HasFailure()) {
                EXPECT_EQ(App.TopModal(), nullptr);
                ImHauptfenster();
                Pruefen();
            }
            Erlebt[kProgrammende] += App.Ended() ? 1 : 0;
            App.Finish();
            ListePruefen();
        }
    }

    Twips ScreenWidth() override { return 28800; }
    Twips ScreenHeight() override { return 16200; }
    void WindowShown(Window&, ShowMode) override {}
    void WindowHidden(Window&) override {}
    void WindowUnloaded(Window&) override {}
    void DragWindow(Window& window) override { Verruecken(window); }
    void Ended() override {}
    void RunModal(Window& window) override
    {
        if (frmMsgOk.Loaded() && &window == &*frmMsgOk) {
            InDerMeldung(window);
        } else if (frmMsgJa.Loaded() && &window == &*frmMsgJa) {
            InDerFrage(window);
        } else {
            InDerBestenliste(window);
        }
        Pruefen();
    }

private:
    // Every board that is filled is written down once, and every repeat reads it.
    struct Plattform final : TestPlattform
    {
        Plattform(Spieler& spieler, const std::filesystem::path& platte,
                  const std::filesystem::path& programm, Verlauf& verlauf)
            : TestPlattform(platte, programm, verlauf), Spieler_(spieler)
        {}
        FileFault WriteTextLines(const std::string& path,
                                 const std::vector<std::string>& lines) override
        {
            ++Spieler_.Level;
            return TestPlattform::WriteTextLines(path, lines);
        }
        void sndPlaySoundA(const std::string&) override {}
        std::uint64_t ClockNs() override { return ++Uhr_; }  // so that a seed repeats its run
        void ShellExecuteA(const std::string&) override { ++Spieler_.Erlebt[kHandbuch]; }
        void DeleteFileA(const std::string& path) override
        {
            Spieler_.Erlebt[kGeloescht] += path.ends_with("malvone.txt") ? 1 : 0;
            TestPlattform::DeleteFileA(path);
        }

        Spieler& Spieler_;

    private:
        std::uint64_t Uhr_ = 0;
    };

    std::mt19937 zufall_{Saat()};
    Testordner ordner_;
    std::filesystem::path programm_ = ordner_.Pfad / "programm";
    Verlauf verlauf_;
    Plattform plattform_{*this, ordner_.Pfad / "platte", programm_, verlauf_};
    // Most levels are left after a few moves, one in five is played to its end.
    int geduld_ = 0;
    int geduldFuer_ = -1;
    // After "play again" at the end of a game the offer of the repeat may stand alone.
    bool angebotUeberlebt_ = false;

    int Wurf(int unter) { return static_cast<int>(zufall_() % static_cast<unsigned>(unter)); }
    bool Mit(int vomHundert) { return Wurf(100) < vomHundert; }

    void Zeigen(Window& fenster, Twips x, Twips y, std::int16_t tasten = 0)
    {
        PointerMoved(fenster, {tasten, 0, x, y});
    }
    void Klicken(Window& fenster, Twips x, Twips y, std::int16_t taste = kLeftButton)
    {
        PointerPressed(fenster, {taste, 0, x, y});
        if (Mit(5)) {
            x += static_cast<Twips>(Wurf(2000));
            Zeigen(fenster, x, y, taste);
        }
        PointerReleased(fenster, {taste, 0, x, y});
    }
    void Klicken(const Visual& ziel)
    {
        Klicken(ziel.Owner(), ziel.WindowLeft() + ziel.Width / 2,
                ziel.WindowTop() + ziel.Height / 2);
    }
    void Irgendwohin(Window& fenster)
    {
        const auto x = static_cast<Twips>(Wurf(static_cast<int>(fenster.ClientWidth)));
        const auto y = static_cast<Twips>(Wurf(static_cast<int>(fenster.ClientHeight)));
        Zeigen(fenster, x, y, Mit(20) ? kLeftButton : std::int16_t{0});
        if (Mit(40)) {
            constexpr std::int16_t kTasten[] = {kLeftButton, kRightButton, kMiddleButton};
            Klicken(fenster, x, y, kTasten[Wurf(3)]);
        }
    }
    void IrgendeineTaste(Window& fenster)
    {
        constexpr std::int16_t kTasten[] = {kKeyTab, kKeyEnter, kKeyEsc, kKeySpace, kKeyF1,
                                            'A',     'E',       'J',     'N',       'W'};
        RouteKey(fenster, {kTasten[Wurf(10)], static_cast<std::int16_t>(Mit(50) ? 0 : Wurf(8))});
    }
    void Verruecken(Window& fenster)
    {
        fenster.Move(static_cast<Twips>(Wurf(28800) - 5000), static_cast<Twips>(Wurf(16200) - 500));
    }

    static int Wert(int zelle) { return frmTessel->imgFeld(zelle).Tag->Number(); }
    static int Steine()
    {
        int steine = 0;
        for (int i = 1; i <= kZellen; ++i) {
            steine += Wert(i) != 0 ? 1 : 0;
        }
        return steine;
    }
    void AufDenStein(int zelle)
    {
        const Image& feld = frmTessel->imgFeld(zelle);
        const Twips x = feld.WindowLeft() + static_cast<Twips>(Wurf(480));
        const Twips y = feld.WindowTop() + static_cast<Twips>(Wurf(480));
        Zeigen(*frmTessel, x, y);
        const int vorher = Level;
        const std::int16_t taste = Mit(2) ? kRightButton : kLeftButton;
        const bool gezaehlt = taste == kLeftButton && Wert(zelle) != 0;
        Klicken(*frmTessel, x, y, taste);
        if (gezaehlt && !App.Ended() && Level == vorher && Wert(kZellen / 2) != 0) {
            EXPECT_EQ(Stand.BelegtZahl, Steine());
        }
    }
    // A stone that has a partner, by the player's own eyes; 0 where there is none.
    int IrgendeinPaar()
    {
        int gefunden = 0;
        int zahl = 0;
        for (int i = 1; i < kZellen; ++i) {
            const bool senkrecht = Reihe(i) < kReihen - 1 && Wert(i) == Wert(i + 1);
            const bool waagerecht = i <= kZellen - kReihen && Wert(i) == Wert(i + kReihen);
            if (Wert(i) != 0 && (senkrecht || waagerecht) && Wurf(++zahl) == 0) {
                gefunden = i;
            }
        }
        return gefunden;
    }

    // Boards of few stones, of few colours, or none that could be read.
    void SchnappschussAendern()
    {
        const auto datei = ordner_.Pfad / "platte" / "lindenspiele" / "tessel.ini";
        if (Mit(10)) {
            std::error_code fehler;
            std::filesystem::remove(datei, fehler);
            return;
        }
        const int farben = 1 + Wurf(3);
        const int hoehe = 1 + Wurf(4);
        std::string inhalt;
        for (int i = 1; i <= kZellen; ++i) {
            const bool stein = Reihe(i) >= kReihen - hoehe && Spalte(i) < 10 && !Mit(5);
            inhalt += std::to_string(stein ? 1 + Wurf(farben) : 0) + "\r\n";
        }
        if (Mit(10)) {
            inhalt.resize(inhalt.size() / 2);
        }
        DateiSchreiben(datei, inhalt);
    }

    // A list that is easily beaten, by players who may be wiped away.
    void NiedrigeListe()
    {
        DateiSchreiben(ordner_.Pfad / "platte" / "lindenspiele" / "malvone.txt",
                       "Anna\r\nBert\r\nCara\r\nDora\r\nEmil\r\n"
                       "900\r\n700\r\n500\r\n300\r\n100\r\n");
    }

    void ImHauptfenster()
    {
        ++Schritte;
        FrmTessel& f = *frmTessel;
        if (Level != geduldFuer_) {
            geduldFuer_ = Level;
            geduld_ = Mit(20) || Stand.RundenZahl == 5 ? 1000 : Wurf(6);
        }
        if (--geduld_ < 0 && Mit(90)) {
            RouteKey(f, Mit(50) ? Key{kKeyEnter, 0} : Key{'N', kAltKey});
            return;
        }
        if (f.imgNaechsterLevel.Visible && Mit(50)) {
            Erlebt[f.imgWiederholen.Visible ? kVollesAngebot : kKleinesAngebot] += 1;
            if (Mit(60)) {
                SchnappschussAendern();
            }
            const int runde = Stand.RundenZahl;
            switch (Wurf(4)) {
            case 0: Klicken(f.imgNaechsterLevel); break;
            case 1:
            case 2:
                Klicken(f.imgWiederholen.Visible ? f.imgWiederholen : f.imgNaechsterLevel);
                break;
            default: RaiseMenuClick(f.mnuTessel(2)); break;
            }
            if (!App.Ended() && Steine() > 0 && Stand.RundenZahl != runde + 2) {
                Erlebt[kWiederholt] += 1;
            }
            return;
        }
        const int wurf = Wurf(1000);
        if (wurf < 900) {
            const int paar = IrgendeinPaar();
            AufDenStein(paar != 0 && Mit(95) ? paar : 1 + Wurf(kZellen));
            if (paar == 0 && Steine() == 0) {
                RouteKey(f, {kKeyEnter, 0});
            }
        } else if (wurf < 930) {
            Irgendwohin(f);
        } else if (wurf < 960) {
            IrgendeineTaste(f);
        } else if (wurf < 985) {
            const auto eintraege = f.MenuEntries();
            RaiseMenuClick(*eintraege[zufall_() % eintraege.size()]);
        } else if (wurf < 990) {
            RaiseTimer(f.Timer1);
        } else if (wurf < 994) {
            Verruecken(f);
        } else if (wurf < 997) {
            RaiseActivate(*frmHintergrund);
        } else {
            RaiseClose(f);
        }
    }

    void InDerMeldung(Window& fenster)
    {
        const std::string text = frmMsgOk->lblMeldung.Caption;
        if (text.find("kein weiterer Zug") != std::string::npos) {
            EXPECT_EQ(Stand.BelegtZahl, Steine());
            EXPECT_EQ(IrgendeinPaar(), 0);
        }
        Erlebt[kLeeresBrett] += text.find("alle Spielsteine entfernt") != std::string::npos ? 1 : 0;
        Erlebt[kLesefehler] += text.find("Einlesen") != std::string::npos ? 1 : 0;
        Erlebt[kInfo] += text.starts_with("Programmierung:") ? 1 : 0;
        switch (Wurf(5)) {
        case 0: Klicken(frmMsgOk->lblOk); break;
        case 1: Klicken(frmMsgOk->Image2); break;
        case 2: RouteKey(fenster, {kKeyEsc, 0}); break;
        case 3: IrgendeineTaste(fenster); break;
        default: Irgendwohin(fenster); break;
        }
    }

    void InDerFrage(Window& fenster)
    {
        const std::string text = frmMsgJa->lblMeldung.Caption;
        const bool spielende = text.find("aktuelle Spiel ist beendet") != std::string::npos;
        const bool verlassen = text.find("das Spiel beenden möchten") != std::string::npos;
        Erlebt[kSpielende] += spielende ? 1 : 0;
        angebotUeberlebt_ = angebotUeberlebt_ || spielende;
        switch (Wurf(verlassen ? 7 : 5)) {
        case 0: Klicken(frmMsgJa->lblJa); break;
        case 1:
            Erlebt[kNeuesSpiel] += text.find("aktuelle Spiel beenden") != std::string::npos ? 1 : 0;
            RouteKey(fenster, {'J', 0});
            break;
        case 2: Irgendwohin(fenster); break;
        case 3: IrgendeineTaste(fenster); break;
        case 4: RaiseClose(fenster); break;
        default:
            Klicken(Mit(50) ? static_cast<const Visual&>(frmMsgJa->lblNein) : frmMsgJa->Image1);
        }
    }

    void InDerBestenliste(Window& fenster)
    {
        FrmBeste& f = *frmBeste;
        if (auto* const feld = dynamic_cast<TextBox*>(f.Focus()); feld != nullptr && Mit(50)) {
            constexpr const char* kGetippt[] = {"Anna", "Jürgen ", "€ß", "\r\n", "漢字", "\"", " "};
            feld->Type(kGetippt[Wurf(7)]);
            Erlebt[kEintrag] += feld->Locked ? 0 : 1;
        }
        switch (Wurf(6)) {
        case 0:
        case 1: Klicken(f.cmdEnde); break;
        case 2: Irgendwohin(fenster); break;
        case 3: IrgendeineTaste(fenster); break;
        case 4: RaiseClose(fenster); break;
        default: Klicken(f.lblTessel); break;
        }
    }

    void Pruefen()
    {
        if (App.Ended()) {
            return;
        }
        const FrmTessel& f = *frmTessel;
        EXPECT_GE(Stand.PunkteGesamt, 0);
        EXPECT_GE(Stand.LevelPunkte, 0);
        EXPECT_GE(Stand.ZugPunkte, 0);
        EXPECT_GE(Stand.PunkteLevelStart, 0);
        EXPECT_GE(Stand.RundenZahl, 0);
        EXPECT_TRUE(Stand.LevelWiederholt == 0 || Stand.LevelWiederholt == 1);
        EXPECT_TRUE(Stand.MarkiertZahl >= 0 && Stand.MarkiertZahl <= kZellen);

        EXPECT_EQ(f.imgWiederholen.Visible, f.imgNochEinmal.Visible);
        EXPECT_EQ(f.cmdSchalt(1).Visible, f.mnuTessel(2).Enabled);
        EXPECT_NE(f.mnuSoundan.Checked, f.mnuSoundaus.Checked);
        if (f.imgNaechsterLevel.Visible && App.TopModal() == nullptr) {
            angebotUeberlebt_ = false;
        }
        EXPECT_TRUE(f.imgNaechsterLevel.Visible || !f.imgWiederholen.Visible || angebotUeberlebt_);
        EXPECT_TRUE(f.imgNaechsterLevel.Visible || f.imgNext.Picture->Empty());
        EXPECT_EQ(f.Timer1.Enabled, f.Timer1.Interval == 300);

        if (App.TopModal() == nullptr && Schritte % 8 == 0) {
            BilderPruefen();
        }
    }

    static void BilderPruefen()
    {
        for (int i = 1; i <= kZellen; ++i) {
            const int wert = Wert(i);
            ASSERT_TRUE(wert >= 0 && wert <= 4) << "cell " << i;
            const Picture& bild = frmTessel->imgFeld(i).Picture.Get();
            const auto zelle = static_cast<std::size_t>(i);
            if (Zellen[zelle].Vorschau == False) {
                ASSERT_TRUE(bild == frmBilder->imgBild(wert).Picture.Get() ||
                            (wert == 0 && bild == frmBilder->imgGrund.Picture.Get()))
                    << "cell " << i << " shows " << bild.Name() << " for " << wert;
            }
        }
    }

    // Five names, then five points that never rise.
    void ListePruefen() const
    {
        std::ifstream datei(ordner_.Pfad / "platte" / "lindenspiele" / "malvone.txt");
        std::vector<std::string> zeilen;
        for (std::string zeile; std::getline(datei, zeile);) {
            EXPECT_TRUE(zeile.ends_with('\r'));
            zeilen.push_back(zeile.substr(0, zeile.size() - 1));
        }
        ASSERT_EQ(zeilen.size(), 10U);
        for (std::size_t platz = 5; platz < 9; ++platz) {
            EXPECT_GE(std::stol(zeilen[platz]), std::stol(zeilen[platz + 1]));
        }
    }
};

TEST(Zufallsspieler, TenThousandLevelsKeepTheRules)
{
    SCOPED_TRACE("MALVONE_SAAT=" + std::to_string(Saat()));
    Spieler spieler;
    spieler.Spielen(kLevel);
    EXPECT_GE(spieler.Level, kLevel) << "stopped after " << spieler.Schritte << " doings";
    for (int i = 0; i < kErlebnisse; ++i) {
        EXPECT_GT(spieler.Erlebt[static_cast<std::size_t>(i)], 3) << kErlebnisNamen[i];
    }
    if (std::getenv("MALVONE_SAAT") != nullptr) {
        std::cout << spieler.Schritte << " doings\n";
        for (int i = 0; i < kErlebnisse; ++i) {
            std::cout << kErlebnisNamen[i] << ": " << spieler.Erlebt[static_cast<std::size_t>(i)]
                      << "\n";
        }
    }
}

}  // namespace
}  // namespace malvone
