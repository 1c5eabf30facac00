// WindowStack.h: which of the game's windows lies in front, and which one has the keyboard,
// whatever window managers do.
#pragma once

#include <QObject>
#include <memory>
#include <vector>

#include "ui/layer/Window.h"

class QWindow;

namespace malvone::qt {

class BackdropWindow;
class FormWidget;
class PictureStore;

class WindowStack final : public QObject
{
    Q_OBJECT

public:
    WindowStack();
    ~WindowStack() override;

    // From the lowest to the topmost, without the backdrop.
    const std::vector<FormWidget*>& Forms() const { return forms_; }
    // The widget of a window; null while it has none, for the backdrop, and for null.
    FormWidget* FormOf(const Window* window) const;
    FormWidget* MainForm() const;
    // Null until it is shown for the first time. It stays as long as the program.
    BackdropWindow* Backdrop() const { return backdrop_.get(); }

    // Takes the form over, on top of the others.
    void Add(FormWidget& form);
    // Shows a form, or brings it to the front.
    void Show(FormWidget& form, ShowMode mode);
    // Call before the main window is shown for the first time.
    void ShowBackdrop(Window& window, PictureStore& pictures);
    void Hide(FormWidget& form);
    // Deletes the form later: one of its own events may be what unloads its window.
    void Remove(FormWidget& form);
    void HideAll();

    // Brings all of the game to the front, minimised windows too, because the player asked for it.
    void ComeForward();

private:
    std::vector<FormWidget*> forms_;
    std::unique_ptr<BackdropWindow> backdrop_;

    QWindow* ParentOf(const FormWidget& form, ShowMode mode) const;
    void BringToFront();
    void Activated(const FormWidget& form);
    void BackdropActivated();
    void FollowManager(FormWidget& form);
    void HandOnKeyboard(const FormWidget& from);
};

}  // namespace malvone::qt
