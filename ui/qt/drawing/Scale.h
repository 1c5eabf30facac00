// Scale.h: from pixels of the design to those of a window of any size.
#pragma once

#include <QPointF>
#include <QRectF>

namespace malvone::qt {

// How large a window draws its design, and where: whole and in the middle, as large as the room
// allows with every cell of the board in whole pixels of the screen.
class Scale
{
public:
    Scale() = default;  // as designed, from the window's corner
    // `ratio`: the screen's pixels to Qt's.
    Scale(const QSizeF& design, const QRectF& room, double ratio);

    double Ratio() const { return ratio_; }
    double Factor() const { return factor_; }
    QPointF Corner() const { return corner_; }
    QRectF ToWindow(const QRectF& design) const
    {
        return {corner_ + design.topLeft() * factor_, design.size() * factor_};
    }
    QRectF ToDesign(const QRectF& window) const
    {
        return {(window.topLeft() - corner_) / factor_, window.size() / factor_};
    }
    // What is painted in the pixel of the screen at a place of the window.
    QPointF PaintedAt(QPointF window) const;

private:
    double ratio_ = 1;
    double factor_ = 1;
    QPointF corner_;
};

}  // namespace malvone::qt
