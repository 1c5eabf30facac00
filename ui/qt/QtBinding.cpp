// QtBinding.cpp: does with widgets what the layer says of its windows.
#include "ui/qt/QtBinding.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include "ui/layer/App.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/windows/BackdropWindow.h"
#include "ui/qt/windows/FormWidget.h"
#include "ui/qt/windows/WindowManager.h"

namespace malvone::qt {

QtBinding::QtBinding()
{
    QApplication::setQuitOnLastWindowClosed(false);
    InstallAccessibility();
    const auto watch = [this](const QScreen* screen) {
        QObject::connect(
            screen, &QScreen::availableGeometryChanged, &windows_, [this] { ScreensChanged(); },
            Qt::QueuedConnection);
    };
    for (const QScreen* const screen : QGuiApplication::screens()) {
        watch(screen);
    }
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &windows_,
                     [this] { PrimaryScreenChanged(); });
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &windows_, watch);
    QObject::connect(
        qGuiApp, &QGuiApplication::screenRemoved, &windows_, [this] { ScreensChanged(); },
        Qt::QueuedConnection);
}

Twips QtBinding::ScreenWidth()
{
    return ToTwips(QGuiApplication::primaryScreen()->geometry().width());
}

Twips QtBinding::ScreenHeight()
{
    return ToTwips(QGuiApplication::primaryScreen()->geometry().height());
}

double QtBinding::Factor() const
{
    const FormWidget* const main = windows_.MainForm();
    return main != nullptr ? main->DesignScale().Factor() : 1;
}

FormWidget& QtBinding::Make(Window& window, ShowMode mode)
{
    auto* const form = new FormWidget(window, mode, pictures_, Factor());
    windows_.Add(*form);
    QObject::connect(form, &FormWidget::Painted, [this, form] { Painted(*form); });
    QObject::connect(form, &FormWidget::Activated, [this, form] {
        if (form->Model()->Role == WindowRole::Message) {
            reader_.Follow(*form, Change::Text);
        }
    });
    // Runs after Qt has handled the event. A question asked inside it would leave the window
    // closing for Qt, which would let the next request destroy it.
    QObject::connect(
        form, &FormWidget::CloseRequested, form, [form] { RaiseClose(*form->Model()); },
        Qt::QueuedConnection);
    return *form;
}

// Work that can wait until the player sees the window. The main window's icon serves all windows
// without one of their own.
void QtBinding::Painted(FormWidget& form)
{
    const Picture& icon = form.Model()->Icon;
    if (&form == windows_.MainForm()) {
        QApplication::setWindowIcon(pictures_.Icon(icon));
        if (BackdropWindow* const backdrop = windows_.Backdrop()) {
            backdrop->ShowPicture();
        }
    } else if (!icon.Empty()) {
        form.setWindowIcon(pictures_.Icon(icon));
    }
}

// Places are counted from the corner of that screen: they change, and the windows stay.
void QtBinding::PrimaryScreenChanged()
{
    for (FormWidget* const form : windows_.Forms()) {
        form->TellPlace();
    }
    QTimer::singleShot(0, &windows_, [this] { ScreensChanged(); });
}

void QtBinding::ScreensChanged()
{
    BackdropWindow* const backdrop = windows_.Backdrop();
    if (backdrop != nullptr && backdrop->isVisible()) {
        backdrop->CoverScreen();
    }
    for (FormWidget* const form : windows_.Forms()) {
        form->FollowScreens();
    }
}

// Widgets are made when their windows are first shown: most loaded windows never are. The main
// window's widget is made at once, since the window is placed by its size; for the others the size
// is enough. All are drawn as large as the main window.
void QtBinding::WindowLoaded(Window& window)
{
    if (window.Role == WindowRole::Main) {
        FormWidget& main = Make(window, ShowMode::Modeless);
        QObject::connect(&main, &FormWidget::Rescaled, [this, &main] {
            for (FormWidget* const form : windows_.Forms()) {
                if (form != &main) {
                    form->SetFactor(Factor());
                }
            }
        });
    } else {
        const QSize size = SizeOf(window, Factor());
        window.Width = ToTwips(size.width());
        window.Height = ToTwips(size.height());
    }
}

void QtBinding::WindowShown(Window& window, ShowMode mode)
{
    if (window.Role != WindowRole::Backdrop) {
        FormWidget* const form = windows_.FormOf(&window);
        windows_.Show(form != nullptr ? *form : Make(window, mode), mode);
    } else if (MannerOfBackdrop() != BackdropManner::None) {
        windows_.ShowBackdrop(window, pictures_);
    }
}

void QtBinding::WindowHidden(Window& window)
{
    if (FormWidget* const form = windows_.FormOf(&window)) {
        windows_.Hide(*form);
    }
    LeaveLoops();
}

void QtBinding::WindowUnloaded(Window& window)
{
    timers_.Forget(window);
    if (FormWidget* const form = windows_.FormOf(&window)) {
        windows_.Remove(*form);
    }
    LeaveLoops();
}

void QtBinding::WindowChanged(Window& window, Change what)
{
    if (FormWidget* const form = windows_.FormOf(&window)) {
        form->Follow(what);
    }
}

void QtBinding::ControlChanged(Control& control, Change what)
{
    if (auto* const timer = dynamic_cast<Timer*>(&control)) {
        timers_.Follow(*timer);
    } else if (FormWidget* const form = windows_.FormOf(&control.Owner())) {
        form->Follow(control, what);
        reader_.Follow(*form, what);
    }
}

void QtBinding::FocusChanged(Window& window)
{
    if (FormWidget* const form = windows_.FormOf(&window)) {
        form->FollowFocus();
    }
}

void QtBinding::RunModal(Window& /*window*/)
{
    QEventLoop loop;
    loops_.push_back(&loop);
    loop.exec();
    loops_.pop_back();
}

// The loop of a window that is still modal begins anew.
void QtBinding::LeaveLoops()
{
    for (QEventLoop* const loop : loops_) {
        loop->quit();
    }
}

void QtBinding::DragWindow(Window& window)
{
    if (FormWidget* const form = windows_.FormOf(&window)) {
        form->Pointer().Drag();
    }
}

// A window that refuses to close could hold up quit(); nothing holds up exit().
void QtBinding::Ended()
{
    timers_.StopAll();
    windows_.HideAll();
    QCoreApplication::exit(0);
}

}  // namespace malvone::qt
