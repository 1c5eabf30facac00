// Placement.cpp: places in twips, places in pixels.
#include "ui/qt/windows/Placement.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/platform/Display.h"

namespace malvone::qt {
namespace {

// Long enough for a manager's first answer, too short for a player to move the window.
constexpr int kInsistMs = 400;

QPoint ScreenCorner()
{
    return QGuiApplication::primaryScreen()->geometry().topLeft();
}

// Without a window manager Qt mistakes the growth of a window for its frame.
bool IsFrame(const QMargins& frame)
{
    constexpr int kThickest = 120;
    return !frame.isNull() && frame.left() + frame.right() < kThickest &&
           frame.top() + frame.bottom() < kThickest;
}

QPoint CornerOf(const Window& window)
{
    return {ToWholePixels(window.Left), ToWholePixels(window.Top)};
}

}  // namespace

void Placement::ToScreen()
{
    if (!telling_) {
        insisting_ = QDeadlineTimer(widget_.isVisible() ? 0 : kInsistMs);
        widget_.move(Outer().topLeft());
    }
}

QRect Placement::Outer() const
{
    return {ScreenCorner() + CornerOf(window_),
            QSize(ToWholePixels(window_.Width), ToWholePixels(window_.Height))};
}

bool Placement::Fits(QSize size) const
{
    const QWindow* const handle = widget_.windowHandle();
    const QSize outer = size.grownBy(handle != nullptr ? handle->frameMargins() : QMargins());
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&outer](const QScreen* screen) {
        const QSize room = screen->availableSize();
        return outer.width() <= room.width() && outer.height() <= room.height();
    });
}

// By design (auf-dem-schirm): one would expect a window where the model has put it, beyond the edge
// too. It is moved so far that all of it can be seen.
// Test: Windows.AMessageIsSeenWholeEvenAtTheEdgeOfTheScreen
void Placement::OntoScreen()
{
    const QRect outer = Outer();
    const QScreen* screen = QGuiApplication::screenAt(outer.center());
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    const QRect room = screen->availableGeometry();
    const QPoint corner(
        std::max(room.left(), std::min(outer.left(), room.right() + 1 - outer.width())),
        std::max(room.top(), std::min(outer.top(), room.bottom() + 1 - outer.height())));
    if (corner != outer.topLeft()) {
        const QScopedValueRollback guard(telling_, true);
        window_.Left = ToTwips(corner.x() - ScreenCorner().x());
        window_.Top = ToTwips(corner.y() - ScreenCorner().y());
    }
}

// A window is centred on the screen, or over another one, before its frame is known.
void Placement::KeepCentred(const QMargins& frame)
{
    const QWindow* const below = widget_.windowHandle()->transientParent();
    const QRect around =
        below != nullptr ? below->frameGeometry() : QGuiApplication::primaryScreen()->geometry();
    const QPoint off = Outer().center() - around.center();
    if (std::abs(off.x()) > 1 || std::abs(off.y()) > 1) {
        return;
    }
    window_.Left = window_.Left - ToTwips(frame.left() + frame.right()) / 2;
    window_.Top = window_.Top - ToTwips(frame.top() + frame.bottom()) / 2;
    widget_.move(Outer().topLeft());
}

void Placement::FromScreen()
{
    const QWindow* const handle = widget_.windowHandle();
    if (handle == nullptr || !widget_.isVisible()) {
        return;
    }
    const QScopedValueRollback guard(telling_, true);
    const QPoint corner = handle->framePosition() - ScreenCorner();
    const bool insists = !insisting_.hasExpired() && handle->frameMargins().isNull() &&
                         QGuiApplication::mouseButtons() == Qt::NoButton;
    if (!framed_ && IsFrame(handle->frameMargins())) {
        framed_ = true;
        KeepCentred(handle->frameMargins());
    } else if (insists && corner != CornerOf(window_)) {
        insisting_ = QDeadlineTimer();
        widget_.move(Outer().topLeft());
    } else if (WindowsCanBePlaced() && corner != CornerOf(window_)) {
        // A model that only lies between two pixels has not been moved.
        window_.Left = ToTwips(corner.x());
        window_.Top = ToTwips(corner.y());
    }
    TellSize();
}

void Placement::TellSize()
{
    const QScopedValueRollback guard(telling_, true);
    const QWindow* const handle = widget_.windowHandle();
    const QMargins frame = handle != nullptr ? handle->frameMargins() : QMargins();
    const QSize whole = widget_.size().grownBy(frame);
    window_.Width = ToTwips(whole.width());
    window_.Height = ToTwips(whole.height());
}

}  // namespace malvone::qt
