// PointerInput.cpp: turns Qt's pointer events into those of the layer.
#include "ui/qt/input/PointerInput.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWidget>
#include <QWindow>

#include "ui/layer/App.h"
#include "ui/layer/PointerRouting.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/HandCursor.h"
#include "ui/qt/drawing/Painting.h"
#include "ui/qt/drawing/Scale.h"
#include "ui/qt/input/KeyTable.h"
#include "ui/qt/platform/Display.h"

namespace malvone::qt {
namespace {

std::int16_t ToButtons(Qt::MouseButtons buttons)
{
    int sum = 0;
    sum |= buttons.testFlag(Qt::LeftButton) ? kLeftButton : 0;
    sum |= buttons.testFlag(Qt::RightButton) ? kRightButton : 0;
    sum |= buttons.testFlag(Qt::MiddleButton) ? kMiddleButton : 0;
    return static_cast<std::int16_t>(sum);
}

}  // namespace

bool PointerInput::Handle(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:  // its second press counts as a press
        Pressed(static_cast<const QMouseEvent&>(event));
        return true;
    case QEvent::MouseMove: Moved(static_cast<const QMouseEvent&>(event)); return true;
    case QEvent::MouseButtonRelease: Released(static_cast<const QMouseEvent&>(event)); return true;
    case QEvent::ToolTip: ShowTip(static_cast<const QHelpEvent&>(event)); return true;
    default: return false;
    }
}

Mouse PointerInput::ToMouse(const QMouseEvent& event, Qt::MouseButtons buttons) const
{
    const QPointF place = scale_.PaintedAt(event.position());
    return {ToButtons(buttons), ToShift(event.modifiers()), ToTwips(place.x()), ToTwips(place.y())};
}

Visual* PointerInput::ControlUnder(QPointF position) const
{
    const QPointF place = scale_.PaintedAt(position);
    return ControlAt(*model_, ToTwips(place.x()), ToTwips(place.y()));
}

const Visual* PointerInput::Target(QPointF position) const
{
    return model_ != nullptr && App.TakesInput(*model_) ? ControlUnder(position) : nullptr;
}

void PointerInput::Pressed(const QMouseEvent& event)
{
    QToolTip::hideText();
    pressedAt_ = event.globalPosition().toPoint();
    frameAtPress_ = widget_.windowHandle()->framePosition();
    PointerPressed(*model_, ToMouse(event, event.button()));
}

void PointerInput::Moved(const QMouseEvent& event)
{
    dragging_ = dragging_ && event.buttons().testFlag(Qt::LeftButton);
    if (!dragging_) {
        PointerMoved(*model_, ToMouse(event, event.buttons()));
    }
    // The movement that begins a drag counts: a fast one may be the only one.
    if (dragging_) {
        widget_.move(frameAtPress_ + event.globalPosition().toPoint() - pressedAt_);
    }
    UpdateCursor(event.position());
}

void PointerInput::Released(const QMouseEvent& event)
{
    if (dragging_) {
        dragging_ = event.buttons().testFlag(Qt::LeftButton);
    } else {
        PointerReleased(*model_, ToMouse(event, event.button()));
    }
}

// Not every X11 window manager moves a window on request, so it is moved here. On Wayland only the
// compositor can move windows, and it handles the pointer meanwhile.
void PointerInput::Drag()
{
    if (WindowsCanBePlaced()) {
        dragging_ = true;
    } else {
        widget_.windowHandle()->startSystemMove();
    }
}

void PointerInput::UpdateCursor(QPointF position) const
{
    const Visual* const target = Target(position);
    if (target != nullptr && target->MousePointer == Pointer::Hand) {
        widget_.setCursor(HandCursor(widget_.devicePixelRatioF()));
    } else {
        widget_.unsetCursor();
    }
}

void PointerInput::ShowTip(const QHelpEvent& event) const
{
    const Visual* const target = Target(event.pos());
    if (target == nullptr || target->ToolTipText.Get().empty()) {
        QToolTip::hideText();
        return;
    }
    // The tip disappears when the pointer leaves the control.
    QToolTip::showText(event.globalPos(), ToQString(target->ToolTipText.Get()), &widget_,
                       scale_.ToWindow(PlaceOf(*target)).toAlignedRect());
}

}  // namespace malvone::qt
