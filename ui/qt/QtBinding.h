// QtBinding.h: brings the windows of the game to life on a desktop.
#pragma once

#include <QEventLoop>
#include <QObject>
#include <memory>
#include <vector>

#include "ui/layer/Binding.h"
#include "ui/qt/Timers.h"
#include "ui/qt/accessibility/Accessibility.h"
#include "ui/qt/drawing/PictureStore.h"

namespace malvone::qt {

class BackdropWindow;
class FormWidget;

// Needs a QApplication that lives longer.
class QtBinding final : public Binding
{
public:
    QtBinding();
    ~QtBinding() override;

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

    // Brings all of the game to the front, minimised windows too, because the player asked for it.
    void ComeForward();

    // The widget of a window; null while it has none, and for the backdrop.
    FormWidget* FormOf(const Window& window) const;

private:
    struct ModalLoop
    {
        const Window* Shown;
        QEventLoop* Loop;
    };

    PictureStore pictures_;
    Timers timers_;
    ScreenReader reader_;
    // From the lowest to the topmost.
    std::vector<FormWidget*> forms_;
    std::vector<ModalLoop> loops_;
    std::unique_ptr<BackdropWindow> backdrop_;
    QObject receiver_;  // ends the connections to screens and timers with the binding

    FormWidget* MainForm() const;
    // How large windows are drawn.
    double Factor() const;
    void FollowManager(FormWidget& form);
    void Rescaled(const FormWidget& form);
    void Painted(FormWidget& form);
    void PrimaryScreenChanged();
    void ScreensChanged();
    FormWidget& Make(Window& window, ShowMode mode);
    QWindow* ParentOf(const Window& window, ShowMode mode) const;
    void ShowBackdrop(Window& window);
    void Activated(const FormWidget& form);
    void BackdropActivated();
    // All windows of the game from the lowest to the topmost, or only one of them.
    void BringToFront(const Window* only);
    void CloseMainWindow();
    void HandOnKeyboard(const FormWidget& from);
    void LeaveLoop(const Window& window);
};

}  // namespace malvone::qt
