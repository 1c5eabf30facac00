// Script.cpp: the loops that wait for commands, and the lines that tell of windows.
#include "tests/drehbuch/Script.h"

#include <utility>

#include "game/Main.h"
#include "tests/drehbuch/Commands.h"
#include "tests/drehbuch/Text.h"
#include "ui/layer/App.h"

namespace malvone::script {

ScriptPlatform::ScriptPlatform(Options options, std::ostream& out)
    : FilePlatform(options.Data, options.Program), options_(std::move(options)), out_(out)
{}

std::string ScriptPlatform::GetWindowsDirectoryA()
{
    return options_.WithoutWindowsFolder ? "" : FilePlatform::GetWindowsDirectoryA();
}

void ScriptPlatform::Tell(std::string_view what, const std::string& path)
{
    if (!Over) {
        out_ << what << FileNameOf(path) << '\n';
    }
}

void Script::Play(Platform& platform)
{
    Begin(platform);
    while (!App.Ended()) {
        Step("-");
    }
    App.Finish();
}

void Script::Begin(Platform& platform)
{
    App.Begin(*this, platform);
    ZustandNeu();
    const EventScope scope;
    Main();
}

bool Script::ReadCommand(std::string& line)
{
    while (std::getline(in_, line)) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (!line.empty() && !line.starts_with('#')) {
            return true;
        }
    }
    return false;
}

void Script::Step(std::string_view waiting)
{
    out_ << (changes_ ? changes_->Lines() : "") << (listener_ ? listener_->Lines() : "");
    out_ << "> " << waiting << std::endl;
    std::string line;
    if (!ReadCommand(line)) {
        inputOver_ = true;
        App.Ende();
        return;
    }
    const EventScope scope;
    Tell(Do(line));
}

std::string Script::Do(std::string_view line)
{
    std::string answer = Obey(line);
    // What a script has set by itself it knows.
    const std::string_view name = CutOff(line, ' ');
    if (changes_ && answer.empty() && name == "set") {
        changes_->Told(CutOff(line, ' '));
    } else if (changes_ && answer.empty() && name == "board") {
        changes_->BoardSet();
    } else if (listener_ && name == "board") {
        listener_->Lines();
    }
    return answer;
}

void Script::Tell(std::string_view what, std::string_view whom)
{
    if (!what.empty() && !App.Ended()) {
        out_ << what << whom << '\n';
    }
}

void Script::WindowLoaded(Window& window)
{
    if (changes_) {
        changes_->Loaded(window);
    }
}

void Script::ControlAdded(Control& control)
{
    if (changes_) {
        changes_->Added(control);
    }
}

void Script::WindowShown(Window& window, ShowMode mode)
{
    const std::string name(window.Name());
    Tell("! show " + name + (mode == ShowMode::Modal ? " modal " : " ") + TwipsText(window.Left) +
         " " + TwipsText(window.Top));
    if (window.Role == WindowRole::Message) {
        const auto caption = [&](const char* label) {
            return Masked(dynamic_cast<Label&>(*window.Find(label)).Caption.Get());
        };
        Tell("! text " + name + " " + caption("lblMeldung") + " | " + caption("lblTitel"));
    }
    if (changes_) {
        for (const char* const told :
             {".Left", ".Top", ".lblMeldung.Caption", ".lblTitel.Caption"}) {
            changes_->Told(name + told);
        }
    }
}

void Script::RunModal(Window& window)
{
    while (!ModalOver(window)) {
        Step(window.Name());
    }
}

void Script::Ended()
{
    if (!inputOver_) {
        out_ << "! end" << std::endl;
    }
}

}  // namespace malvone::script
