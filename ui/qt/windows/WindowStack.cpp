// WindowStack.cpp: keeps the game's windows in their order.
#include "ui/qt/windows/WindowStack.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>

#include "ui/layer/App.h"
#include "ui/qt/platform/Display.h"
#include "ui/qt/windows/BackdropWindow.h"
#include "ui/qt/windows/FormWidget.h"
#include "ui/qt/windows/WindowManager.h"

namespace malvone::qt {

WindowStack::WindowStack() = default;

WindowStack::~WindowStack()
{
    for (FormWidget* const form : forms_) {
        form->Detach();
        form->deleteLater();
    }
    // No event loop runs any more.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

FormWidget* WindowStack::FormOf(const Window* window) const
{
    const auto found = std::find_if(forms_.begin(), forms_.end(), [&](const FormWidget* form) {
        return form->Model() == window;
    });
    return found == forms_.end() ? nullptr : *found;
}

FormWidget* WindowStack::MainForm() const
{
    return FormOf(App.MainWindow());
}

void WindowStack::Add(FormWidget& form)
{
    forms_.push_back(&form);
    connect(&form, &FormWidget::StateChanged, this, [this, &form] { FollowManager(form); });
    connect(&form, &FormWidget::Activated, this, [this, &form] { Activated(form); });
}

// The window that a modal form stays above: the one that was modal before it, or the main window.
QWindow* WindowStack::ParentOf(const FormWidget& form, ShowMode mode) const
{
    QWindow* parent = nullptr;
    for (const FormWidget* const other : forms_) {
        if (mode == ShowMode::Modal && other != &form && other->Model()->Shown() &&
            other->isVisible()) {
            parent = other->windowHandle();
        }
    }
    return parent;
}

void WindowStack::Show(FormWidget& form, ShowMode mode)
{
    if (mode == ShowMode::Modal) {
        // The latest modal window lies on top, even if it was made long ago.
        std::erase(forms_, &form);
        forms_.push_back(&form);
        while (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }
    form.Present(ParentOf(form, mode));
    form.FollowFocus();
}

// Closing the backdrop closes the game.
void WindowStack::ShowBackdrop(Window& window, PictureStore& pictures)
{
    if (backdrop_ == nullptr) {
        backdrop_ = std::make_unique<BackdropWindow>(window, pictures);
        connect(backdrop_.get(), &BackdropWindow::Activated, this, [this] { BackdropActivated(); });
        connect(backdrop_.get(), &BackdropWindow::CloseRequested, this,
                [this] { Q_EMIT MainForm()->CloseRequested(); });
    }
    backdrop_->Present();
}

void WindowStack::Hide(FormWidget& form)
{
    HandOnKeyboard(form);
    form.hide();
}

void WindowStack::Remove(FormWidget& form)
{
    HandOnKeyboard(form);
    std::erase(forms_, &form);
    form.Detach();
    form.deleteLater();
}

void WindowStack::HideAll()
{
    for (FormWidget* const form : forms_) {
        form->hide();
    }
    if (backdrop_ != nullptr) {
        backdrop_->hide();
    }
}

// Without a window manager nobody gives the keyboard to another window when one goes away.
void WindowStack::HandOnKeyboard(const FormWidget& from)
{
    if (!from.isActiveWindow()) {
        return;
    }
    QTimer::singleShot(0, this, [this] {
        FormWidget* const next = FormOf(App.KeyWindow());
        if (next != nullptr && next->isVisible()) {
            next->activateWindow();
        }
    });
}

// If only the game were minimised, the backdrop would stay, and there might be no way back: not
// every desktop shows minimised windows. When the desktop is shown, the windows go and come back
// together; some managers forget the backdrop, which is in no task bar.
void WindowStack::FollowManager(FormWidget& form)
{
    constexpr int kManagerMs = 100;  // the manager may not be through with all windows yet
    QTimer::singleShot(kManagerMs, &form, [this, &form] {
        if (backdrop_ == nullptr || !form.isVisible()) {
            return;
        }
        if (!form.isMinimized() && !backdrop_->isVisible()) {
            backdrop_->Present();
            BringToFront();
        } else if (form.isMinimized() && !backdrop_->Minimized()) {
            ManagerShowsDesktop() ? backdrop_->hide() : form.ToFront();
        }
    });
}

// A modal window stays in front.
// By design (aktiv-nur-beim-zeigen): one would expect Form_Activate for every window that comes
// back to the front. Only the backdrop gets it: the window of the best players would put its list's
// names back over one that is being typed. Test: NameBoxes.ANameBeingTypedSurvivesAnotherWindow
void WindowStack::Activated(const FormWidget& form)
{
    FormWidget* const modal = FormOf(App.TopModal());
    if (modal != nullptr && modal != &form && modal->isVisible()) {
        modal->ToFront();
    }
}

// A backdrop that comes to the front gives it back; without a modal window the game itself does so.
// But it may be in front only because all other windows are being minimised.
void WindowStack::BackdropActivated()
{
    FormWidget* const main = MainForm();
    if (main != nullptr && (ManagerShowsDesktop() || ManagerHides(main->winId()))) {
        FollowManager(*main);
    } else if (App.TopModal() == nullptr) {
        RaiseActivate(backdrop_->Model());
    } else {
        BringToFront();
    }
}

// Window managers put a clicked backdrop above all inactive windows, so each window of the game is
// activated in turn, the modal one last.
void WindowStack::BringToFront()
{
    for (FormWidget* const form : forms_) {
        if (form->isVisible()) {
            form->ToFront();
        }
    }
}

void WindowStack::ComeForward()
{
    if (backdrop_ != nullptr && backdrop_->isVisible()) {
        backdrop_->setWindowStates(backdrop_->windowStates() & ~Qt::WindowMinimized);
        backdrop_->raise();
    }
    FormWidget* const key = FormOf(App.KeyWindow());
    if (key != nullptr && !WindowsCanBePlaced()) {
        key->ToFront();  // takes the later start's token, which is good for one window only
        return;
    }
    BringToFront();
    for (const FormWidget* const form : forms_) {
        if (form->isVisible()) {
            ActivateForPlayer(form->winId());
        }
    }
}

}  // namespace malvone::qt
