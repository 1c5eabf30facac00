// KlaengeTest.cpp: the list of sounds, the menu that switches them, and which event plays which.
#include <gtest/gtest.h>

#include <filesystem>

#include "state/Spielstand.h"
#include "storage/Spielstanddatei.h"
#include "tests/board/Brett.h"
#include "ui/Klaenge.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNamen[] = {"TADA.WAV",   "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV",
                                  "FEHLER.WAV", "BLIP.WAV",   "ding.wav"};

struct Stumm : TestPlattform
{
    explicit Stumm(Programm& programm)
        : TestPlattform(programm.Platte, programm.Programmordner, programm.Bindung.Verlauf)
    {}
    std::int32_t waveOutGetNumDevs() override { return 0; }
};

Verlauf NurKlaenge(const Verlauf& verlauf)
{
    Verlauf klaenge;
    for (const std::string& zeile : verlauf) {
        if (zeile.starts_with("sound ")) {
            klaenge.push_back(zeile.substr(6));
        }
    }
    return klaenge;
}

TEST(Klaenge, ListHoldsFullPathsAndNothingForWhatIsMissing)
{
    const Programm programm;
    for (int fehlt = -1; fehlt < 7; ++fehlt) {
        if (fehlt > 0) {  // the one before is back
            std::ofstream(programm.Programmordner / kNamen[fehlt - 1]).put('\n');
        }
        if (fehlt >= 0) {
            fs::remove(programm.Programmordner / kNamen[fehlt]);
        }
        SoundListeAnlegen();
        for (int i = 0; i < 7; ++i) {
            EXPECT_EQ(SoundDateien.at(static_cast<std::size_t>(i)),
                      i == fehlt ? "" : std::string("P:\\") + kNamen[i]);
        }
    }
    fs::remove(programm.Programmordner / "TADA.WAV");
    fs::create_directory(programm.Programmordner / "TADA.WAV");
    SoundListeAnlegen();
    EXPECT_EQ(SoundDateien[0], "") << "a folder is no sound";
}

TEST(Klaenge, GameRunsWithoutAnySoundFile)
{
    Programm programm;
    for (const char* const name : kNamen) {
        fs::remove(programm.Programmordner / name);
    }
    EXPECT_EQ(programm.Starten(), Verlauf{"sound "});
    RaiseClick(frmTessel->lblNeu);
    RaiseClick(frmTessel->cmdSchalt(0));
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{"sound "}) << "played as silence";
    EXPECT_EQ(Stand.RundenZahl, 2);
}

TEST(Klaenge, ExactlyOneEntryOfTheMenuIsMarked)
{
    Programm programm;
    programm.Starten();
    const struct
    {
        MenuEntry* Gewaehlt;
        bool An;
    } cases[] = {
        {nullptr, true},
        {&frmTessel->mnuSoundan, true},
        {&frmTessel->mnuSoundan, true},
        {&frmTessel->mnuSoundaus, false},
        {&frmTessel->mnuSoundaus, false},
        {&frmTessel->mnuSoundan, true},
    };
    for (const auto& c : cases) {
        if (c.Gewaehlt != nullptr) {
            EXPECT_TRUE(RaiseMenuClick(*c.Gewaehlt));
        }
        EXPECT_EQ(frmTessel->mnuSoundan.Checked, c.An);
        EXPECT_EQ(frmTessel->mnuSoundaus.Checked, !c.An);
        SoundSpielen(kTonPiep);
        EXPECT_EQ(programm.VerlaufSeitdem(), c.An ? Verlauf{"sound BLIP.WAV"} : Verlauf{});
    }
}

TEST(Klaenge, WithoutADeviceTheMenuIsGreyAndPlayingGoesOn)
{
    Programm programm;
    Stumm stumm(programm);
    App.Begin(programm.Bindung, stumm);
    EXPECT_EQ(programm.Starten(), Verlauf{"sound TADA.WAV"});
    EXPECT_FALSE(SoundKarteVorhanden());
    EXPECT_FALSE(frmTessel->mnuSound.Enabled);
    EXPECT_TRUE(frmTessel->mnuSoundan.Checked);
    EXPECT_FALSE(RaiseMenuClick(frmTessel->mnuSoundaus)) << "out of the player's reach";
    RaiseClick(frmTessel->lblHilfe);
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{"sound ding.wav"});
    App.Finish();
}

TEST(Klaenge, TroubleAtTheStartIsHeardWhateverTheMenuSays)
{
    const struct
    {
        const char* Name;
        void (*Vorher)(Programm&);
        Verlauf Gespielt;
    } cases[] = {
        {"no trouble", [](Programm&) {}, {}},
        {"no disk", [](Programm& p) { p.Plattform.MitWindowsordner = false; }, {"CHIMES.WAV"}},
        {"no data folder",
         [](Programm& p) { DateiSchreiben(p.Platte, "no folder"); },
         {"CHIMES.WAV"}},
    };
    for (const auto& c : cases) {
        Programm programm;
        c.Vorher(programm);
        SoundListeAnlegen();
        Load(frmTessel);
        EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{"sound TADA.WAV"});
        frmTessel->mnuSoundan.Checked = false;
        programm.Antworten({Taste(kKeyEsc)});
        Verlauf klaenge = NurKlaenge(programm.Starten());
        EXPECT_EQ(klaenge, c.Gespielt) << c.Name;
    }
}

TEST(Klaenge, EveryEventHasItsSound)
{
    const Werte zweiPaare = AusReihen({"1122"});
    const struct
    {
        const char* Ereignis;
        std::function<void(Level&)> Tun;
        Verlauf Gespielt;
    } cases[] = {
        {"pointing", [](Level& l) { l.Zeigen(10); }, {}},
        {"removal", [](Level& l) { l.ZeigenUndDruecken(10); }, {"WHOOSH.WAV"}},
        {"click without a group", [](Level& l) { l.Druecken(10); }, {}},
        {"emptied board",
         [](Level& l) {
             l.Setzen(AusReihen({"11"}));
             l.ZeigenUndDruecken(10);
         },
         {"WHOOSH.WAV", "TADA.WAV"}},
        {"level end with stones left",
         [](Level& l) {
             l.Setzen(AusReihen({"112"}));
             l.ZeigenUndDruecken(10);
         },
         {"WHOOSH.WAV"}},
        {"next level", [](Level&) { RaiseClick(frmTessel->cmdSchalt(0)); }, {"CHIMES.WAV"}},
        {"next level by the picture",
         [](Level&) {
             frmTessel->imgNaechsterLevel.Visible = true;
             RaiseClick(frmTessel->imgNaechsterLevel);
         },
         {"CHIMES.WAV"}},
        {"repeat by keyboard",
         [](Level&) {
             frmTessel->cmdSchalt(1).Visible = true;
             RaiseClick(frmTessel->cmdSchalt(1));
         },
         {"CHIMES.WAV"}},
        {"repeat by the picture",
         [](Level&) {
             frmTessel->imgWiederholen.Visible = true;
             RaiseClick(frmTessel->imgWiederholen);
         },
         {}},
        {"repeat of a damaged snapshot",
         [](Level& l) {
             DateiSchreiben(l.Standdatei(), "1\r\n");
             frmTessel->cmdSchalt(1).Visible = true;
             RaiseClick(frmTessel->cmdSchalt(1));
         },
         {"FEHLER.WAV", "CHIMES.WAV"}},
        {"the manual's button does nothing",
         [](Level&) { RaiseClick(frmTessel->cmdSchalt(2)); },
         {}},
        {"question before quitting",
         [](Level&) { RaiseClick(frmTessel->lblEnde); },
         {"CHIMES.WAV"}},
        {"question of a new game", [](Level&) { RaiseClick(frmTessel->lblNeu); }, {"FRAGE.WAV"}},
        {"help", [](Level&) { RaiseClick(frmTessel->lblHilfe); }, {"ding.wav"}},
        {"help by key",
         [](Level&) {
             RouteKey(*frmTessel, {kKeyF1, 0});
         },
         {"ding.wav"}},
        {"help by menu", [](Level&) { RaiseMenuClick(frmTessel->mnuInfo(1)); }, {"ding.wav"}},
        {"information", [](Level&) { RaiseClick(frmTessel->lblInfo); }, {"ding.wav"}},
        {"information by menu",
         [](Level&) { RaiseMenuClick(frmTessel->mnuInfo(2)); },
         {"ding.wav"}},
        {"best list", [](Level&) { RaiseMenuClick(frmTessel->mnuInfo(4)); }, {}},
    };
    for (const auto& c : cases) {
        for (const bool an : {true, false}) {
            Level level(zweiPaare);
            RaiseMenuClick(an ? frmTessel->mnuSoundan : frmTessel->mnuSoundaus);
            c.Tun(level);
            EXPECT_EQ(NurKlaenge(level.VerlaufSeitdem()), an ? c.Gespielt : Verlauf{})
                << c.Ereignis;
        }
    }
}

}  // namespace
}  // namespace malvone
