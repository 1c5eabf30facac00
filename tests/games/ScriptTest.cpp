// ScriptTest.cpp: what holds for every script: an answer to each command, and a quiet end.
#include <gtest/gtest.h>

#include "tests/support/Game.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::test {
namespace {

// What a script's last line leaves behind, and how often the program has waited.
struct Outcome
{
    std::string Transcript;
    std::ptrdiff_t Waits = 0;
    std::string LastLine;
};

Outcome Play(const std::string& script, const Stage<>& stage = Stage<>())
{
    std::istringstream in(script);
    std::ostringstream out;
    script::ScriptPlatform platform({stage.Disk, stage.Program}, out);
    script::Script(in, out).Play(platform);
    Outcome outcome;
    outcome.Transcript = out.str();
    std::istringstream lines(outcome.Transcript);
    for (std::string line; std::getline(lines, line); outcome.LastLine = line) {
        outcome.Waits += line.starts_with("> ") ? 1 : 0;
    }
    return outcome;
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
        const Outcome outcome = Play(script, stage);
        EXPECT_EQ(outcome.Waits, std::ranges::count(script, '\n') + 1) << script;
        EXPECT_TRUE(outcome.LastLine.starts_with("> ")) << outcome.Transcript;
        EXPECT_EQ(Contents(stage.BestList)->find("Berta") != std::string::npos,
                  script.find("cmdEnde") != std::string::npos);
        cut = cut == kThroughAllWindows.size() ? std::string::npos
                                               : kThroughAllWindows.find('\n', cut) + 1;
    }
}

TEST(Script, ASecondRunInOneProcessBeginsAfreshAndOtherLineEndsChangeNothing)
{
    std::string other;
    for (const char c : kThroughAllWindows + "state\nwindows\n") {
        other += c == '\n' ? "\r\n" : std::string(1, c);
    }
    EXPECT_EQ(Play(other).Transcript, Play(kThroughAllWindows + "state\nwindows\n").Transcript);
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
        EXPECT_EQ(Play(script).Waits, std::ranges::count(script, '\n') + 1) << open;
    }
}

}  // namespace
}  // namespace malvone::test
