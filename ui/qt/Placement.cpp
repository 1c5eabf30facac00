// Placement.cpp: places in twips, places in pixels.
#include "ui/qt/Placement.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "ui/qt/Scale.h"

namespace malvone::qt {
namespace {

QPoint ScreenCorner()
{
    return QGuiApplication::primaryScreen()->geometry().topLeft();
}

QPoint CornerOf(const Window& window)
{
    return {ToWholePixels(window.Left), ToWholePixels(window.Top)};
}

}  // namespace

bool WindowsCanBePlaced()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

void Placement::ToScreen()
{
    if (!telling_) {
        widget_.move(ScreenCorner() + CornerOf(window_));
    }
}

void Placement::FromScreen()
{
    const QWindow* const handle = widget_.windowHandle();
    if (handle == nullptr || !widget_.isVisible()) {
        return;
    }
    const QScopedValueRollback guard(telling_, true);
    const QPoint corner = handle->framePosition() - ScreenCorner();
    // A fraction of a pixel in the model is no move.
    if (WindowsCanBePlaced() && corner != CornerOf(window_)) {
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
