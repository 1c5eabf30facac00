// ZufallsspielerTest.cpp: a player who does anything at any time, for many levels, while what must
// always hold is looked at before each of his doings.
#include <gtest/gtest.h>

#include <random>

#include "state/Spielstand.h"
#include "tests/support/Game.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::test {
namespace {

constexpr int kLevels = 1'000;

// The player is the program's input: each line that it waits for is one of his doings.
class Player final : public std::streambuf
{
public:
    int Levels = 0;

protected:
    int_type underflow() override
    {
        Look();
        if (testing::Test::HasFailure() || Levels >= kLevels) {
            return traits_type::eof();
        }
        Levels += frmTessel.Loaded() && round_ != Stand.RundenZahl ? 1 : 0;
        round_ = Stand.RundenZahl;
        line_ =
            (App.TopModal() == nullptr ? AtTheBoard() : InAWindow(App.TopModal()->Name())) + "\n";
        setg(line_.data(), line_.data(), line_.data() + line_.size());
        return traits_type::to_int_type(line_.front());
    }

private:
    std::mt19937 dice_{4711};
    std::string line_;
    int round_ = 0;
    bool halfOffer_ = false;  // after the end of a game the offer of the repeat may stand alone

    int Throw(int below) { return static_cast<int>(dice_() % static_cast<unsigned>(below)); }
    std::string OneOf(std::initializer_list<const char*> lines)
    {
        return std::data(lines)[Throw(static_cast<int>(lines.size()))];
    }

    // Few stones of few colours, so that levels end in every way.
    std::string SmallBoard()
    {
        std::string board(kZellen, '0');
        const int colours = 1 + Throw(3);
        const int height = 1 + Throw(3);
        for (int i = 1; i <= kZellen; ++i) {
            if (Reihe(i) >= kReihen - height && Spalte(i) < 8 && Throw(20) > 0) {
                board[static_cast<std::size_t>(i - 1)] = static_cast<char>('1' + Throw(colours));
            }
        }
        board[static_cast<std::size_t>(UntersteZelle(0) - 1)] = '1';
        return "board " + board;
    }

    std::string AtTheBoard()
    {
        const int chance = Throw(100);
        const int cell = 1 + Throw(kZellen);
        if (chance < 35) {
            return PointAt(cell) + Press(cell) + Press(Throw(4) > 0 ? UntersteZelle(0) : cell);
        }
        if (chance < 55) {
            return SmallBoard() + "\n" + PointAt(UntersteZelle(0)) + Press(UntersteZelle(0));
        }
        return OneOf({"do frmTessel.imgNaechsterLevel Click",
                      "do frmTessel.imgWiederholen Click",
                      "do frmTessel.imgNochEinmal Click",
                      "key Enter",
                      "key Alt+N",
                      "key Ctrl+W",
                      "key Alt+W",
                      "key Space",
                      "key Tab",
                      "key F1",
                      "do frmTessel.lblNeu Click",
                      "do frmTessel.lblEnde Click",
                      "do frmTessel Close",
                      "do frmTessel.lblInfo Click",
                      "do frmTessel.mnuTessel(2) Click",
                      "do frmTessel.mnuInfo(4) Click",
                      "do frmTessel.mnuSoundaus Click",
                      "do frmTessel.mnuSoundan Click",
                      "do frmTessel.Timer1 Timer",
                      "do frmHintergrund Activate",
                      "do frmTessel.Picture1 MouseMove",
                      "set frmTessel.Left 105"});
    }
    std::string InAWindow(std::string_view name)
    {
        if (name == "frmMsgOk") {
            return OneOf({"key Esc", "key Enter", "do frmMsgOk.lblOk Click", "do frmMsgOk Close",
                          "do frmMsgOk MouseMove 1", "key F1"});
        }
        if (name == "frmMsgJa") {
            // The end of the program is asked for often, and not always meant.
            const bool leaving = frmTessel->Shown() && Throw(4) > 0;
            return leaving ? OneOf({"key N", "key Esc", "do frmMsgJa.lblNein Click"})
                           : OneOf({"key J", "do frmMsgJa.lblJa Click", "do frmMsgJa Close"});
        }
        return OneOf({"do frmBeste.cmdEnde Click", "key Alt+A", "type Jürgen €", "type 漢字",
                      "key Esc", "do frmBeste.lblTessel Click", "do frmBeste Close", "key Tab"});
    }

    void Look()
    {
        const FrmTessel& f = *frmTessel;
        EXPECT_GE(std::min({Stand.PunkteGesamt, Stand.LevelPunkte, Stand.ZugPunkte,
                            Stand.PunkteLevelStart, std::int32_t{Stand.RundenZahl}}),
                  0);
        EXPECT_TRUE(Stand.LevelWiederholt == 0 || Stand.LevelWiederholt == 1);
        EXPECT_TRUE(Stand.MarkiertZahl >= 0 && Stand.MarkiertZahl <= kZellen);
        EXPECT_EQ(f.imgWiederholen.Visible, f.imgNochEinmal.Visible);
        EXPECT_EQ(f.cmdSchalt(1).Visible, f.mnuTessel(2).Enabled);
        EXPECT_NE(f.mnuSoundan.Checked, f.mnuSoundaus.Checked);
        EXPECT_EQ(f.Timer1.Enabled, f.Timer1.Interval == 300);
        EXPECT_TRUE(f.imgNaechsterLevel.Visible || f.imgNext.Picture->Empty());
        halfOffer_ = !f.imgNaechsterLevel.Visible && (halfOffer_ || App.TopModal() != nullptr);
        EXPECT_TRUE(f.imgNaechsterLevel.Visible || !f.imgWiederholen.Visible || halfOffer_);
        for (int i = 1; App.TopModal() == nullptr && i <= kZellen; ++i) {
            const int value = f.imgFeld(i).Tag->Number();
            const Picture& shown = f.imgFeld(i).Picture.Get();
            ASSERT_TRUE(value >= 0 && value <= kFarben) << i;
            ASSERT_TRUE(Satz(i).Vorschau != False ||
                        shown == frmBilder->imgBild(value).Picture.Get() ||
                        (value == 0 && shown == frmBilder->imgGrund.Picture.Get()))
                << i << " shows " << shown.Name() << " for " << value;
        }
    }
};

// Five names, then five points that never rise.
void LookAtTheList(const std::string& list)
{
    std::istringstream file(list);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line); lines.push_back(line)) {
        EXPECT_TRUE(line.ends_with('\r'));
    }
    ASSERT_EQ(lines.size(), 10U);
    for (std::size_t place = 5; place < 9; ++place) {
        EXPECT_GE(std::stol(lines[place]), std::stol(lines[place + 1]));
    }
}

TEST(Zufallsspieler, ManyLevelsKeepTheRules)
{
    const Stage<> stage;
    Player player;
    std::istream in(&player);
    std::ostringstream out;
    script::ScriptPlatform platform({stage.Disk, stage.Program}, out);
    while (player.Levels < kLevels && !HasFailure()) {
        WriteFile(stage.BestList, "Anna\r\nBert\r\nCara\r\nDora\r\nEmil\r\n"
                                  "900\r\n700\r\n500\r\n300\r\n100\r\n");
        in.clear();
        script::Script(in, out).Play(platform);
        LookAtTheList(*Contents(stage.BestList));
    }
    for (const char* const met :
         {"alle Spielsteine entfernt", "kein weiterer Zug", "Spiel ist beendet", "neue Bestmarke",
          "Einträge löschen", "aktuelle Spiel beenden", "! open Malvone.pdf",
          "! open Meldefenster.pdf", "Programmierung", "! end", "! drag frmMsgOk"}) {
        EXPECT_NE(out.str().find(met), std::string::npos) << met;
    }
}

}  // namespace
}  // namespace malvone::test
