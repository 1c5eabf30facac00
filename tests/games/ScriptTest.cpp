// ScriptTest.cpp: what holds for every script: an answer to each command, and a quiet end.
#include <gtest/gtest.h>

#include <regex>

#include "tests/support/Game.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmTessel.h"

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

TEST(Script, EveryEventAtEveryControlIsAnswered)
{
    std::vector<std::string> names = {Field(1), Field(24), Field(140)};
    const auto append = [&](const Window& window) {
        names.emplace_back(window.Name());
        for (const Control* const control : window.Controls()) {
            names.push_back(std::string(window.Name()) + "." + control->FullName());
        }
    };
    append(FrmTessel());
    append(FrmBeste());
    append(FrmMsgJa());
    std::erase(names, "frmMsgJa.lblJa");  // the answer that ends the program
    for (const char* const open :
         {"", "do frmTessel.mnuInfo(4) Click\n", "do frmTessel.lblEnde Click\n"}) {
        std::string script = "key Enter\n";
        for (const std::string& name : names) {
            for (const char* const event : {"Click", "MouseMove 1", "MouseDown", "MouseDown 2",
                                            "MouseUp", "Timer", "Activate", "Close"}) {
                script += open;
                script += "do " + name + " " + event + "\n";
                script += "key Esc\nkey Esc\ndo frmBeste.cmdEnde Click\nkey Esc\n";
            }
        }
        ExpectThatEachCommandIsAwaited(script, Play(script));
    }
}

}  // namespace
}  // namespace malvone::test
