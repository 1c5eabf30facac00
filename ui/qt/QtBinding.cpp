// QtBinding.cpp: windows come, go and wait.
#include "ui/qt/QtBinding.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "ui/layer/App.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/platform/Display.h"
#include "ui/qt/windows/BackdropWindow.h"
#include "ui/qt/windows/FormWidget.h"
#include "ui/qt/windows/WindowManager.h"

namespace malvone::qt {
namespace {

// Runs after Qt has handled the event. A question asked inside it would leave the window closing
// for Qt, which would let the next request destroy it.
void Close(const FormWidget& form)
{
    if (form.Model() != nullptr) {
        RaiseClose(*form.Model());
    }
}

}  // namespace

QtBinding::QtBinding()
{
    QApplication::setQuitOnLastWindowClosed(false);
    InstallAccessibility();
    const auto watch = [this](const QScreen* screen) {
        QObject::connect(
            screen, &QScreen::availableGeometryChanged, &receiver_, [this] { ScreensChanged(); },
            Qt::QueuedConnection);
    };
    for (const QScreen* const screen : QGuiApplication::screens()) {
        watch(screen);
    }
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &receiver_,
                     [this] { PrimaryScreenChanged(); });
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &receiver_, watch);
    QObject::connect(
        qGuiApp, &QGuiApplication::screenRemoved, &receiver_, [this] { ScreensChanged(); },
        Qt::QueuedConnection);
}

QtBinding::~QtBinding()
{
    timers_.StopAll();
    for (FormWidget* const form : forms_) {
        form->Detach();
        delete form;
    }
    // No event loop runs any more to delete what was to be deleted later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Twips QtBinding::ScreenWidth()
{
    return ToTwips(QGuiApplication::primaryScreen()->geometry().width());
}

Twips QtBinding::ScreenHeight()
{
    return ToTwips(QGuiApplication::primaryScreen()->geometry().height());
}

FormWidget* QtBinding::FormOf(const Window& window) const
{
    const auto found = std::find_if(forms_.begin(), forms_.end(), [&](const FormWidget* form) {
        return form->Model() == &window;
    });
    return found == forms_.end() ? nullptr : *found;
}

FormWidget& QtBinding::Make(Window& window, ShowMode mode)
{
    auto* const form = new FormWidget(window, mode, pictures_, Factor());
    forms_.push_back(form);
    QObject::connect(form, &FormWidget::StateChanged, form, [this, form] { FollowManager(*form); });
    QObject::connect(form, &FormWidget::Rescaled, [this, form] { Rescaled(*form); });
    QObject::connect(form, &FormWidget::Painted, [this, form] { Painted(*form); });
    QObject::connect(form, &FormWidget::Activated, [this, form] { Activated(*form); });
    QObject::connect(
        form, &FormWidget::CloseRequested, form, [form] { Close(*form); }, Qt::QueuedConnection);
    return *form;
}

FormWidget* QtBinding::MainForm() const
{
    const auto found = std::find_if(forms_.begin(), forms_.end(), [](const FormWidget* form) {
        return form->Model()->Role == WindowRole::Main;
    });
    return found == forms_.end() ? nullptr : *found;
}

double QtBinding::Factor() const
{
    const FormWidget* const main = MainForm();
    return main != nullptr ? main->DesignScale().Factor() : 1;
}

// If only the game were minimised, the backdrop would stay, and there might be no way back: not
// every desktop shows minimised windows. When the desktop is shown, the windows go and come back
// together; some managers forget the backdrop, which is in no task bar.
void QtBinding::FollowManager(FormWidget& form)
{
    constexpr int kManagerMs = 100;  // the manager may not be through with all windows yet
    QTimer::singleShot(kManagerMs, &form, [this, &form] {
        if (backdrop_ == nullptr || !backdrop_->Model().Shown() || !form.isVisible()) {
            return;
        }
        if (!form.isMinimized() && !backdrop_->isVisible()) {
            ShowBackdrop(backdrop_->Model());
            BringToFront(nullptr);
        } else if (form.isMinimized() && !backdrop_->Minimized()) {
            ManagerShowsDesktop() ? backdrop_->hide() : form.ToFront();
        }
    });
}

// All windows are drawn as large as the main window.
void QtBinding::Rescaled(const FormWidget& form)
{
    if (&form != MainForm()) {
        return;
    }
    for (FormWidget* const other : forms_) {
        if (other != &form) {
            other->SetFactor(Factor());
        }
    }
}

// Work that can wait until the player sees the window. The main window's icon serves all windows
// without one of their own.
void QtBinding::Painted(FormWidget& form)
{
    if (form.Model() == nullptr || !form.isVisible()) {
        return;
    }
    const Picture& icon = form.Model()->Icon;
    if (&form == MainForm()) {
        QApplication::setWindowIcon(pictures_.Icon(icon));
        if (backdrop_ != nullptr) {
            backdrop_->ShowPicture();
        }
    } else if (!icon.Empty()) {
        form.setWindowIcon(pictures_.Icon(icon));
    }
}

// Places are counted from the corner of that screen: they change, and the windows stay.
void QtBinding::PrimaryScreenChanged()
{
    for (FormWidget* const form : forms_) {
        form->TellPlace();
    }
    QTimer::singleShot(0, &receiver_, [this] { ScreensChanged(); });
}

void QtBinding::ScreensChanged()
{
    if (backdrop_ != nullptr && backdrop_->isVisible()) {
        backdrop_->CoverScreen();
    }
    for (FormWidget* const form : forms_) {
        form->FollowScreens();
    }
}

// Widgets are made when their windows are first shown: most loaded windows never are. The main
// window's widget is made at once, since the window is placed by its size; for the others the size
// is enough.
void QtBinding::WindowLoaded(Window& window)
{
    if (window.Role == WindowRole::Main) {
        Make(window, ShowMode::Modeless);
    } else {
        const QSize size = SizeOf(window, Factor());
        window.Width = ToTwips(size.width());
        window.Height = ToTwips(size.height());
    }
}

// The window that another one stays above: for a modal window the one that was modal before it, or
// the main window; on Wayland, where only the compositor stacks windows, the backdrop for the rest.
QWindow* QtBinding::ParentOf(const Window& window, ShowMode mode) const
{
    QWindow* parent = WindowsCanBePlaced() ? nullptr : backdrop_.get();
    for (FormWidget* const form : forms_) {
        const Window* const other = form->Model();
        if (mode == ShowMode::Modal && other != &window && other->Shown() && form->isVisible()) {
            parent = form->windowHandle();
        }
    }
    return parent;
}

void QtBinding::WindowShown(Window& window, ShowMode mode)
{
    if (window.Role == WindowRole::Backdrop) {
        if (MannerOfBackdrop() != BackdropManner::None) {
            ShowBackdrop(window);
        }
        return;
    }
    FormWidget* form = FormOf(window);
    if (form == nullptr) {
        form = &Make(window, mode);
    }
    if (mode == ShowMode::Modal) {
        // The latest modal window lies on top, even if it was made long ago.
        std::rotate(std::find(forms_.begin(), forms_.end(), form),
                    std::find(forms_.begin(), forms_.end(), form) + 1, forms_.end());
        while (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }
    form->Present(ParentOf(window, mode));
    form->FollowFocus();
}

void QtBinding::ShowBackdrop(Window& window)
{
    if (backdrop_ == nullptr) {
        backdrop_ = std::make_unique<BackdropWindow>(window, pictures_);
        QObject::connect(backdrop_.get(), &BackdropWindow::Activated,
                         [this] { BackdropActivated(); });
        QObject::connect(
            backdrop_.get(), &BackdropWindow::CloseRequested, backdrop_.get(),
            [this] { CloseMainWindow(); }, Qt::QueuedConnection);
    }
    backdrop_->Present();
    const FormWidget* const main = MainForm();
    if (main != nullptr && main->WasPainted()) {
        backdrop_->ShowPicture();
    }
}

void QtBinding::WindowHidden(Window& window)
{
    if (window.Role == WindowRole::Backdrop && backdrop_ != nullptr) {
        backdrop_->hide();
    }
    if (FormWidget* const form = FormOf(window)) {
        HandOnKeyboard(*form);
        form->hide();
    }
    LeaveLoop(window);
}

void QtBinding::WindowUnloaded(Window& window)
{
    timers_.Forget(window);
    if (window.Role == WindowRole::Backdrop && backdrop_ != nullptr) {
        // One of its own events may be what unloads the window.
        backdrop_.release()->deleteLater();
    }
    if (FormWidget* const form = FormOf(window)) {
        HandOnKeyboard(*form);
        std::erase(forms_, form);
        form->Detach();
        // One of its own events may be what unloads the window.
        form->deleteLater();
    }
    LeaveLoop(window);
}

// A window that goes is about to leave the keyboard to nobody, where no window manager sees to it.
void QtBinding::HandOnKeyboard(const FormWidget& from)
{
    if (!from.isActiveWindow()) {
        return;
    }
    QTimer::singleShot(0, &receiver_, [this] {
        const Window* const modal = App.TopModal();
        FormWidget* const next = modal != nullptr ? FormOf(*modal) : MainForm();
        if (next != nullptr && next->isVisible() && !App.Ended()) {
            next->activateWindow();
        }
    });
}

void QtBinding::WindowChanged(Window& window, Change what)
{
    if (FormWidget* const form = FormOf(window)) {
        form->Follow(what);
    }
}

void QtBinding::ControlChanged(Control& control, Change what)
{
    if (auto* const timer = dynamic_cast<Timer*>(&control)) {
        timers_.Follow(*timer);
    } else if (FormWidget* const form = FormOf(control.Owner())) {
        form->Follow(control, what);
        reader_.Follow(*form, what);
    }
}

void QtBinding::FocusChanged(Window& window)
{
    if (FormWidget* const form = FormOf(window)) {
        form->FollowFocus();
    }
}

void QtBinding::RunModal(Window& window)
{
    if (ModalOver(window)) {
        return;
    }
    QEventLoop loop;
    loops_.push_back({&window, &loop});
    loop.exec();
    std::erase_if(loops_, [&loop](const ModalLoop& running) { return running.Loop == &loop; });
}

void QtBinding::LeaveLoop(const Window& window)
{
    for (const ModalLoop& running : loops_) {
        if (running.Shown == &window) {
            running.Loop->quit();
        }
    }
}

void QtBinding::DragWindow(Window& window)
{
    if (FormWidget* const form = FormOf(window)) {
        form->Pointer().Drag();
    }
}

// A window that refuses to close could hold up quit(); nothing holds up exit().
void QtBinding::Ended()
{
    timers_.StopAll();
    for (FormWidget* const form : forms_) {
        form->hide();
    }
    if (backdrop_ != nullptr) {
        backdrop_->hide();
    }
    QCoreApplication::exit(0);
}

// A modal window stays in front.
// By design (aktiv-nur-beim-zeigen): one would expect Form_Activate for every window that comes
// back to the front. Only the backdrop gets it: the window of the best players would put its list's
// names back over one that is being typed. Test: NameBoxes.ANameBeingTypedSurvivesAnotherWindow
void QtBinding::Activated(const FormWidget& form)
{
    const Window* const modal = App.TopModal();
    if (modal != nullptr && form.Model() != modal) {
        BringToFront(modal);
    }
}

// A backdrop that comes to the front gives it back; without a modal window the game itself does so.
// But it may be in front because all other windows are leaving.
void QtBinding::BackdropActivated()
{
    FormWidget* const main = MainForm();
    if (main != nullptr && (ManagerShowsDesktop() || ManagerHides(main->winId()))) {
        FollowManager(*main);
    } else if (App.TopModal() == nullptr) {
        RaiseActivate(backdrop_->Model());
    } else {
        BringToFront(nullptr);
    }
}

// Window managers put a clicked backdrop above all inactive windows, so each window of the game is
// activated in turn, the modal one last.
void QtBinding::BringToFront(const Window* only)
{
    for (FormWidget* const form : forms_) {
        if (form->isVisible() && (only == nullptr || only == form->Model())) {
            form->ToFront();
        }
    }
}

void QtBinding::ComeForward()
{
    if (backdrop_ != nullptr && backdrop_->isVisible()) {
        backdrop_->setWindowStates(backdrop_->windowStates() & ~Qt::WindowMinimized);
        backdrop_->raise();
    }
    BringToFront(nullptr);
    for (const FormWidget* const form : forms_) {
        if (form->isVisible()) {
            ActivateForPlayer(form->winId());
        }
    }
}

// Closing the backdrop closes the game.
void QtBinding::CloseMainWindow()
{
    if (const FormWidget* const main = MainForm()) {
        Close(*main);
    }
}

}  // namespace malvone::qt
