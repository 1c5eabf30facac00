// Scale.h: from the game's twips to Qt's pixels, on to the size that a window really has, and on to
// the pixels of the screen.
#pragma once

#include <QColor>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <cmath>

#include "ui/layer/Units.h"

namespace malvone::qt {

// Qt's coordinates are pixels at 96 dpi; the ratio to the pixels of the screen is the window's.
inline double ToPixels(Twips twips)
{
    return static_cast<double>(twips) / static_cast<double>(kTwipsPerPixel);
}

inline int ToWholePixels(Twips twips)
{
    return static_cast<int>(std::lround(ToPixels(twips)));
}

inline Twips ToTwips(double pixels)
{
    return static_cast<Twips>(pixels) * kTwipsPerPixel;
}

// Edges, not sizes, are rounded to pixels of the screen: what touches in the design touches there.
inline QRect OnScreen(const QRectF& pixels, double ratio)
{
    const auto edge = [ratio](double place) {
        return static_cast<int>(std::lround(place * ratio));
    };
    const QPoint corner(edge(pixels.left()), edge(pixels.top()));
    return {corner, QSize(edge(pixels.right()) - corner.x(), edge(pixels.bottom()) - corner.y())};
}

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

inline QColor ToQColor(Colour colour)
{
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

}  // namespace malvone::qt
