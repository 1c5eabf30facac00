// Scale.h: from the game's twips to Qt's pixels, and on to those of the screen.
#pragma once

#include <QColor>
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

inline QColor ToQColor(Colour colour)
{
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

}  // namespace malvone::qt
