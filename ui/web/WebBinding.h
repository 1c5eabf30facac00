// WebBinding.h: shows the game's windows on a page. The page has one queue of events; the main loop
// and the loops of modal windows take their events from it.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "ui/layer/Binding.h"
#include "ui/services/Spoken.h"
#include "ui/web/Page.h"

namespace malvone::web {

class WebBinding final : public Binding
{
public:
    // Handles events until the program is over.
    void Run();

    Twips ScreenWidth() override { return Length("screenWidth"); }
    Twips ScreenHeight() override { return Length("screenHeight"); }
    void WindowLoaded(Window& window) override;
    void WindowShown(Window& window, ShowMode mode) override;
    void WindowHidden(Window& window) override;
    void WindowUnloaded(Window& window) override { WindowHidden(window); }
    void ControlChanged(Control& control, Change what) override;
    void RunModal(Window& window) override;
    void DragWindow(Window& window) override { dragged_ = &window; }
    void Ended() override { Ask("end"); }

private:
    std::vector<const Control*> changed_;  // since the page was last brought up to date
    // Name and description for screen readers that the page has for each part of the shown windows.
    std::map<const Visual*, std::pair<std::string, std::string>> said_;
    Reporter reporter_;
    Window* dragged_ = nullptr;
    Mouse grip_;  // where the dragged window was pressed, from its corner

    void ShowChanges();
    void HandleNext();
    void Used(Control& control, const std::string& kind, const emscripten::val& event);
    void Pointed(Window& window, const std::string& kind, const emscripten::val& event);
};

}  // namespace malvone::web
