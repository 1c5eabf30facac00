// SpielTest.cpp: what a game forgets, and how it ends inside nested windows. The course of games
// stands in the played ones.
#include <gtest/gtest.h>

#include "state/Spielstand.h"
#include "tests/support/Game.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::test {
namespace {

// Ends the level with one stone left; the two others have been worth 4 points.
const std::string kLose =
    "board " + Board({"3", "3", "2"}) + "\n" + PointAt(9) + Press(9) + "key Esc\n";

TEST(NeuesSpiel, ForgetsThatALevelWasRepeated)
{
    Game game;
    game("do frmTessel.lblNeu Click\n" + kLose + "do frmTessel.imgWiederholen Click\n");
    EXPECT_EQ(Stand.LevelWiederholt, 1);
    game("do frmTessel.lblNeu Click\nkey J\n");
    EXPECT_EQ(Stand.LevelWiederholt, 0);
    game(kLose + "do frmTessel.imgWiederholen Click\ndo frmTessel.mnuTessel(1) Click\nkey N\n");
    EXPECT_EQ(Stand.LevelWiederholt, 1) << "the answer was no";
}

TEST(Levelende, TheEndOfAGameTakesOnePictureOfTheOfferAndItsArrow)
{
    Game game;
    game("do frmTessel.lblNeu Click\n");
    Stand.RundenZahl = 4;
    game(kLose + "key Ctrl+W\n");  // level 5, with the offer still on view
    const std::string told = game(kLose + "key Esc\nkey J\nstate\nget frmTessel.imgNext.Picture\n"
                                          "get frmTessel.imgNaechsterLevel.Visible\n"
                                          "get frmTessel.imgWiederholen.Visible\n");
    EXPECT_NE(told.find("PunkteGesamt=0 LevelPunkte=0 ZugPunkte=0 RundenZahl=1"),
              std::string::npos);
    EXPECT_TRUE(told.ends_with("= -\n= False\n= True\n")) << told;
}

// The question at the end of a game stands inside the message loop of the best list; after no,
// whatever still runs must neither show nor write anything.
TEST(Verlassen, EndingInsideNestedWindowsWritesAndShowsNothingMore)
{
    Game game;
    game("do frmTessel.lblNeu Click\n");
    Stand.RundenZahl = 5;
    Stand.PunkteGesamt = 9000;
    const auto before = Contents(game.Snapshot);
    const std::string told = game(kLose + "key J\ndo frmBeste.cmdEnde Click\nkey N\n");
    EXPECT_TRUE(told.ends_with("! end\n")) << told;
    frmTessel->Show();
    RouteKey(*frmTessel, {kKeyEnter, 0});
    EXPECT_EQ(game.Told(), "");
    EXPECT_EQ(Contents(game.Snapshot), before);
    EXPECT_TRUE(Contents(game.BestList)->starts_with("Spieler\r\n"));
}

}  // namespace
}  // namespace malvone::test
