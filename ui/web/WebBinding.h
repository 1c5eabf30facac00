// WebBinding.h: brings the windows of the game to life on a page. The page has one queue of events;
// whoever waits, the main loop or the loop of a modal window, takes the next one from it.
#pragma once

#include <emscripten/val.h>

#include <string>
#include <utility>
#include <vector>

#include "ui/layer/Binding.h"
#include "ui/services/Spoken.h"

namespace malvone::web {

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
    // A window on the page, and by what name a screen reader knows each of its parts.
    struct Form
    {
        Window* Model;
        std::vector<std::pair<Spoken, std::string>> Said;
    };

    std::vector<Form> forms_;  // from the lowest to the topmost
    std::vector<const Control*> changed_;
    Reporter reporter_;
    Window* dragged_ = nullptr;
    Mouse grip_;  // where the pressed window was pressed, from its corner

    void Touch(const Control& control);
    void ShowChanges();
    void HandleNext();
    void Used(Control& control, const std::string& kind, const emscripten::val& event);
    void Typed(TextBox& box, const std::string& text, std::int32_t caret);
    void Pointed(Window& window, const std::string& kind, const emscripten::val& event);
    void KeyPressed(const emscripten::val& event);
    void FitScreen();
};

}  // namespace malvone::web
