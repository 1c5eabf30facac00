// QtBinding.h: brings the windows of the game to life on a desktop.
#pragma once

#include <QEventLoop>
#include <vector>

#include "ui/layer/Binding.h"
#include "ui/qt/Timers.h"
#include "ui/qt/accessibility/Accessibility.h"
#include "ui/qt/drawing/PictureStore.h"
#include "ui/qt/windows/WindowStack.h"

namespace malvone::qt {

// Needs a QApplication that lives longer.
class QtBinding final : public Binding
{
public:
    QtBinding();

    Twips ScreenWidth() override;
    Twips ScreenHeight() override;
    void WindowLoaded(Window& window) override;
    void WindowShown(Window& window, ShowMode mode) override;
    void WindowHidden(Window& window) override;
    void WindowUnloaded(Window& window) override;
    void WindowChanged(Window& window, Change what) override;
    void ControlChanged(Control& control, Change what) override;
    void FocusChanged(Window& window) override;
    void RunModal(Window& window) override;
    void DragWindow(Window& window) override;
    void Ended() override;

    WindowStack& Windows() { return windows_; }

private:
    PictureStore pictures_;
    WindowStack windows_;
    Timers timers_;  // gone before the windows, which clear away what is to be deleted later
    ScreenReader reader_;
    std::vector<QEventLoop*> loops_;  // of modal windows, the innermost last

    // How large windows are drawn.
    double Factor() const;
    FormWidget& Make(Window& window, ShowMode mode);
    void Painted(FormWidget& form);
    void PrimaryScreenChanged();
    void ScreensChanged();
    void LeaveLoops();
};

}  // namespace malvone::qt
