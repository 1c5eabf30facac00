// WebBinding.h: brings the windows of the game to life on a page. The page has one queue of events;
// whoever waits, the main loop or the loop of a modal window, takes the next one from it.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "ui/layer/Binding.h"
#include "ui/windows/Spoken.h"

namespace malvone::web {

struct PageEvent;

class WebBinding final : public Binding
{
public:
    // Handles events until the program is over.
    void Run();

    Twips ScreenWidth() override;
    Twips ScreenHeight() override;
    void WindowLoaded(Window& window) override;
    void WindowShown(Window& window, ShowMode mode) override;
    void WindowHidden(Window& window) override;
    void WindowUnloaded(Window& window) override;
    void ControlChanged(Control& control, Change what) override;
    void RunModal(Window& window) override;
    void DragWindow(Window& window) override;
    void Ended() override;

private:
    // A window on the page, and what a screen reader has been told of it.
    struct Form
    {
        Window* Model;
        std::vector<Spoken> Said;
        std::vector<std::string> Names;
    };

    std::vector<Form> forms_;  // from the lowest to the topmost
    std::set<Control*> changed_;
    Reporter reporter_;
    Window* dragged_ = nullptr;
    Twips pointerX_ = 0;  // where the pointer was last, on the page
    Twips pointerY_ = 0;
    bool pointing_ = false;  // a finger is down that has only pointed

    void MakeForm(Window& window);
    void ShowChanges();
    void TellScreenReader();
    void HandleNext();
    void Handle(Control& control, const PageEvent& event);
    void Pointed(Window& window, const PageEvent& event);
    void Touched(Window& window, const Mouse& mouse);
    void KeyPressed(const PageEvent& event);
    void FitScreen();
};

}  // namespace malvone::web
