// Scale.h: from pixels of the design to those of a window of any size.
#pragma once

#include <QPointF>
#include <QRectF>

namespace malvone::qt {

// How large a window draws its design, and where: the whole design, as large as the window has room
// for with every cell of the board in whole pixels of the screen, in the middle of that room.
class Scale
{
public:
    Scale() = default;  // as designed, from the window's corner
    // `ratio` is that of the screen's pixels to Qt's.
    Scale(const QSizeF& design, const QRectF& room, double ratio);

    double Factor() const { return factor_; }
    QPointF Corner() const { return corner_; }
    QRectF ToWindow(const QRectF& design) const
    {
        return {corner_ + design.topLeft() * factor_, design.size() * factor_};
    }
    QPointF ToDesign(QPointF window) const { return (window - corner_) / factor_; }
    QRectF ToDesign(const QRectF& window) const
    {
        return {ToDesign(window.topLeft()), window.size() / factor_};
    }

private:
    double factor_ = 1;
    QPointF corner_;
};

}  // namespace malvone::qt
