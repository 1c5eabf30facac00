// App.h: the program and the screen as objects, and the events that bindings pass to windows.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "ui/layer/Binding.h"
#include "ui/layer/Window.h"

namespace malvone {

class Application
{
public:
    // The folder of the program file.
    std::string Path = kProgramFolder;
    const std::int16_t Major;
    const std::int16_t Minor;
    const std::int16_t Revision;

    Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // Connects the program to a binding and a platform, which must outlive Finish. Afterwards no
    // window is loaded and nothing has ended.
    void Begin(malvone::Binding& binding, Platform& platform);
    // Destroys all windows without any event: at the end of the process, and between two runs in
    // one process.
    void Finish();

    // Ends the program: all loops return, nothing is shown, loaded or written any more, and
    // handlers that are still running change nothing that can be seen.
    void Ende();
    bool Ended() const { return ended_; }

    malvone::Binding& Binding() const { return *binding_; }
    Platform& System() const { return *platform_; }

    // The topmost modal window, null if there is none.
    Window* TopModal() const { return modals_.empty() ? nullptr : modals_.back(); }
    // The loaded window with that role, null if there is none.
    Window* MainWindow() const;
    // The window that gets the keys: the topmost modal one, else the main window.
    Window* KeyWindow() const { return TopModal() != nullptr ? TopModal() : MainWindow(); }
    // Whether a window takes input now: it is shown, and no other window is modal above it.
    bool TakesInput(const Window& window) const;

private:
    friend class Window;
    friend class InstanceBase;
    friend class EventScope;

    malvone::Binding* binding_ = nullptr;
    Platform* platform_ = nullptr;
    bool ended_ = false;
    int depth_ = 0;
    std::vector<Window*> modals_;
    std::vector<std::unique_ptr<Window>> gone_;

    void RunModal(Window& window);
};

extern Application App;

// The screen as the game asks for it, in twips.
struct ScreenObject
{
    struct Extent
    {
        Twips (Binding::*Size)();
        operator Twips() const { return (App.Binding().*Size)(); }
    };
    Extent Width{&Binding::ScreenWidth};
    Extent Height{&Binding::ScreenHeight};
};
inline const ScreenObject Screen;

// Goes around everything that runs handlers, Main included: windows that were unloaded in the
// meantime are destroyed at the end of the outermost scope.
class EventScope
{
public:
    EventScope();
    ~EventScope();
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;
};

// Events from outside. Each returns false and does nothing if its target takes no input.
bool RaiseTimer(Timer& timer);
bool RaiseClick(Control& control);
bool RaiseActivate(Window& window);
bool RaiseClose(Window& window);

}  // namespace malvone
