// Script.h: the binding that plays a script: lines in are events and questions, lines out are what
// a player would see and hear.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "tests/drehbuch/Changes.h"
#include "tests/drehbuch/Listener.h"
#include "ui/layer/Binding.h"

namespace malvone::script {

// What the command line says of the machine that the game plays on.
struct Options
{
    std::filesystem::path Data;     // stands for the root of the drive
    std::filesystem::path Program;  // holds sounds and manuals
    bool WithoutWindowsFolder = false;
    std::int32_t SoundDevices = 1;
    std::optional<std::uint64_t> ClockNs = std::nullopt;  // a clock that stands still
};

// Files are those of the real program; what is heard or opened becomes a line.
class ScriptPlatform : public FilePlatform
{
public:
    ScriptPlatform(Options options, std::ostream& out);
    std::string GetWindowsDirectoryA() override;
    void sndPlaySoundA(const std::string& path) override { Tell("! sound ", path); }
    std::int32_t waveOutGetNumDevs() override { return options_.SoundDevices; }
    void ShellExecuteA(const std::string& path) override { Tell("! open ", path); }
    std::uint64_t ClockNs() override
    {
        return options_.ClockNs ? *options_.ClockNs : FilePlatform::ClockNs();
    }

private:
    Options options_;
    std::ostream& out_;

    void Tell(std::string_view what, const std::string& path);
};

class Script : public Binding
{
public:
    Script(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

    // From here on each wait begins with what has changed for a player.
    void TellChanges() { changes_.emplace(); }
    // ... or with what a screen reader says.
    void TellSpoken() { listener_.emplace(); }

    // Plays the whole program once, from its first statement to its end or to the end of the input.
    void Play(Platform& platform);
    // The same in pieces: Main, and then one command after the other.
    void Begin(Platform& platform);
    // Says who waits, reads one command and obeys it. The end of the input ends the program.
    void Step(std::string_view waiting);

    Twips ScreenWidth() override { return 28800; }
    Twips ScreenHeight() override { return 16200; }
    void WindowLoaded(Window& window) override;
    void WindowChanged(Window& window, Change what) override { Hear(window, what); }
    void ControlChanged(Control& control, Change what) override { Hear(control, what); }
    void ControlAdded(Control& control) override;
    void FocusChanged(Window& window) override { Hear(window, Change::Select); }
    void WindowShown(Window& window, ShowMode mode) override;
    void WindowHidden(Window& window) override { Tell("! hide ", window); }
    void WindowUnloaded(Window& window) override { Tell("! unload ", window); }
    void RunModal(Window& window) override;
    void DragWindow(Window& window) override { Tell("! drag ", window); }
    void Ended() override;

protected:
    // Answers one command.
    virtual std::string Do(std::string_view line);
    // After the end of the program nothing is told any more.
    void Tell(std::string_view what, std::string_view whom = "");

private:
    std::istream& in_;
    std::ostream& out_;
    bool inputOver_ = false;
    std::optional<Changes> changes_;
    std::optional<Listener> listener_;

    template<class Object>
    void Hear(const Object& object, Change what)
    {
        if (changes_) {
            changes_->Heard(object, what);
        }
    }
    void Tell(std::string_view what, const Window& window) { Tell(what, window.Name()); }
    // The next line that is neither a comment nor empty. False: the input is over.
    bool ReadCommand(std::string& line);
};

}  // namespace malvone::script
