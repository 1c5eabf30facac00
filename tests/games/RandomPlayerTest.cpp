// RandomPlayerTest.cpp: a player who picks commands of the played games at random, for many levels,
// while what must always hold is checked before each command.
//   MALVONE_SEED=22 MALVONE_LEVELS=1000000 drehbuch_tests --gtest_filter='RandomPlayer*'
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>

#include "state/Spielstand.h"
#include "tests/support/Game.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::test {
namespace {

int FromEnvironment(const char* name, int usual)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? usual : std::atoi(value);
}

// The commands of all played games by the window that waited for them; what no player can do is
// left out.
std::map<std::string, std::vector<std::string>> PlayedCommands()
{
    std::map<std::string, std::vector<std::string>> commands;
    for (const std::string& name : Names(MALVONE_SOURCE_DIR "/tests/games")) {
        std::istringstream script(*Contents(MALVONE_SOURCE_DIR "/tests/games/" + name));
        bool plain = !name.ends_with(".drehbuch");
        for (std::string line; std::getline(script, line) && !plain;) {
            plain = line == "#: plain";
            std::istringstream words(line);
            std::string mark;
            std::string window;
            std::string command;
            words >> mark >> window >> std::ws;
            std::getline(words, command);
            if (mark == ">" && !command.empty() && !command.starts_with("set ")) {
                commands[window].push_back(command + "\n");
            }
        }
    }
    return commands;
}

// The player is the program's input, line by line.
class Player final : public std::streambuf
{
public:
    const int MostLevels = FromEnvironment("MALVONE_LEVELS", 1'000);
    int Levels = 0;
    int GamesOver = 0;

protected:
    int_type underflow() override
    {
        Look();
        if (testing::Test::HasFailure() || Levels >= MostLevels) {
            return traits_type::eof();
        }
        Levels += frmTessel.Loaded() && round_ != Stand.RundenZahl ? 1 : 0;
        round_ = Stand.RundenZahl;
        line_ = Doing();
        setg(line_.data(), line_.data(), line_.data() + line_.size());
        return traits_type::to_int_type(line_.front());
    }

private:
    std::mt19937 dice_{static_cast<unsigned>(FromEnvironment("MALVONE_SEED", 4711))};
    std::map<std::string, std::vector<std::string>> commands_ = PlayedCommands();
    std::string line_;
    int round_ = 0;
    bool halfOffer_ = false;
    bool gameOver_ = false;

    std::size_t Throw(std::size_t below) { return dice_() % below; }
    std::string Doing()
    {
        if (App.TopModal() == nullptr && Throw(3) == 0) {
            const int cell = 1 + static_cast<int>(Throw(kZellen));
            return PointAt(cell) + Press(Throw(4) > 0 ? cell : UntersteZelle(0));
        }
        const auto& known =
            commands_[App.TopModal() == nullptr ? "-" : std::string(App.TopModal()->Name())];
        // The end of the program is asked for often, and not always meant.
        const bool leaving = frmMsgJa.Loaded() && frmTessel->Shown() && Throw(4) > 0;
        const std::string& command = known.at(Throw(known.size()));
        if (command.starts_with("board ")) {  // in a level; a click shows what has been set
            const int stone = static_cast<int>(command.find_first_not_of('0', 6)) - 5;
            return Stand.RundenZahl == 0 ? "key Enter\n" : command + PointAt(stone) + Press(stone);
        }
        return leaving ? "key N\n" : command;
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
        // After the end of a game the offer of the repeat may stand alone.
        const bool half = f.imgWiederholen.Visible && !f.imgNaechsterLevel.Visible;
        EXPECT_TRUE(!half || halfOffer_ || gameOver_);
        halfOffer_ = half;
        gameOver_ = frmMsgJa.Loaded() &&
                    frmMsgJa->lblMeldung.Caption->find("Spiel ist beendet") != std::string::npos;
        GamesOver += gameOver_ ? 1 : 0;
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

TEST(RandomPlayer, ManyLevelsKeepTheRules)
{
    const Stage<> stage;
    Player player;
    std::istream in(&player);
    std::ostringstream out;
    script::ScriptPlatform platform({stage.Disk, stage.Program}, out);
    while (player.Levels < player.MostLevels && !HasFailure()) {
        WriteFile(stage.BestList, "Anna\r\nBert\r\nCara\r\nDora\r\nEmil\r\n"
                                  "900\r\n700\r\n500\r\n300\r\n100\r\n");
        in.clear();
        out.str("");
        script::Script(in, out).Play(platform);
    }
    EXPECT_GT(player.GamesOver, player.MostLevels / 100);
}

}  // namespace
}  // namespace malvone::test
