// ScriptTest.cpp: what holds for every script: an answer to each command, and a quiet end.
#include <gtest/gtest.h>

#include <regex>

#include "tests/support/Game.h"

namespace malvone::test {
namespace {

std::string Play(const std::string& script, const Stage<>& stage = Stage<>())
{
    std::istringstream in(script);
    std::ostringstream out("\n", std::ios::ate);
    script::ScriptPlatform platform({stage.Disk, stage.Program}, out);
    script::Script(in, out).Play(platform);
    return out.str();
}

// As often as it has commands, and once more at their end.
void ExpectThatEachCommandIsAwaited(const std::string& script, const std::string& transcript)
{
    std::ptrdiff_t waits = -1;
    for (std::size_t at = 0; at != std::string::npos; at = transcript.find("\n> ", at + 1)) {
        ++waits;
    }
    EXPECT_EQ(waits, std::ranges::count(script, '\n') + 1) << script << transcript;
}

// Every window in turn, a message on top of another window, and the end of a game.
const std::string kThroughAllWindows =
    "do frmTessel.lblInfo Click\nkey Esc\ndo frmTessel.mnuInfo(4) Click\n"
    "set frmBeste.txtSpieler(0).Text Anna\nkey Alt+A\nkey J\ndo frmTessel.lblNeu Click\n"
    "key Enter\nkey Enter\nkey Enter\nkey Enter\nboard " +
    std::string(100, '1') + std::string(38, '0') + "34\n" + PointAt(10) + Press(10) +
    "key Esc\nkey J\ntype Berta\ndo frmBeste.cmdEnde Click\nkey J\n";

TEST(Script, InputThatEndsAnywhereEndsTheProgramQuietlyAndWritesNoEntry)
{
    for (std::size_t cut = 0; cut != std::string::npos;) {
        const std::string script = kThroughAllWindows.substr(0, cut);
        const Stage<> stage;
        const std::string transcript = Play(script, stage);
        ExpectThatEachCommandIsAwaited(script, transcript);
        EXPECT_EQ(transcript.rfind("\n> "), transcript.rfind('\n', transcript.size() - 2));
        EXPECT_EQ(Contents(stage.BestList)->find("Berta") != std::string::npos,
                  script.find("cmdEnde") != std::string::npos);
        cut = cut == kThroughAllWindows.size() ? std::string::npos
                                               : kThroughAllWindows.find('\n', cut) + 1;
    }
}

TEST(Script, ASecondRunInOneProcessBeginsAfreshAndOtherLineEndsChangeNothing)
{
    const std::string script = kThroughAllWindows + "state\nwindows\n";
    EXPECT_EQ(Play(std::regex_replace(script, std::regex("\n"), "\r\n")), Play(script));
}

}  // namespace
}  // namespace malvone::test
