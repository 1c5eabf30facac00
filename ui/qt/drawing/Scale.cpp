// Scale.cpp: finds the scale of a window.
#include "ui/qt/drawing/Scale.h"

#include <algorithm>
#include <cmath>

#include "ui/qt/drawing/Conversions.h"

namespace malvone::qt {
namespace {

constexpr double kCellPixels = 32;

}  // namespace

Scale::Scale(const QSizeF& design, const QRectF& room, double ratio) : ratio_(ratio)
{
    constexpr double kRounding = 0.01;  // sizes are rounded up by more than that
    const double fitting = std::min(room.width() / design.width(), room.height() / design.height());
    const double cell = std::max(1.0, std::floor(kCellPixels * ratio * fitting + kRounding));
    factor_ = cell / (kCellPixels * ratio);
    const auto onPixel = [ratio](double place) { return std::floor(place * ratio) / ratio; };
    const QSizeF free = room.size() - design * factor_;
    corner_ = QPointF(onPixel(room.left() + std::max(0.0, free.width() / 2)),
                      onPixel(room.top() + std::max(0.0, free.height() / 2)));
}

// Half a pixel is what edges are rounded by.
QPointF Scale::PaintedAt(QPointF window) const
{
    constexpr double kInexact = 0.001;
    const auto middle = [this](double place) {
        return (std::floor(place * ratio_ + kInexact) + 1 - kHalfPixel) / ratio_;
    };
    return (QPointF(middle(window.x()), middle(window.y())) - corner_) / factor_;
}

}  // namespace malvone::qt
