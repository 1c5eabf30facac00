// Conversions.h: the layer's measures, colours, fonts and texts as Qt's.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QRectF>
#include <QString>
#include <cmath>
#include <string_view>

#include "ui/layer/Units.h"

namespace malvone::qt {

// Qt's coordinates are pixels at 96 dpi; each window has its ratio of screen pixels to these.
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

// An edge in the middle of a pixel of the screen is rounded up whatever its last digits are. Edges
// lie on 32nds of a pixel, since a cell of 32 has a whole number of them.
inline constexpr double kHalfPixel = 0.5 + 1.0 / 64;

// Edges, not sizes, are rounded to pixels of the screen: what touches in the design touches there.
inline QRect OnScreen(const QRectF& pixels, double ratio)
{
    const auto edge = [ratio](double place) {
        return static_cast<int>(std::floor(place * ratio + kHalfPixel));
    };
    const QPoint corner(edge(pixels.left()), edge(pixels.top()));
    return {corner, QSize(edge(pixels.right()) - corner.x(), edge(pixels.bottom()) - corner.y())};
}

inline QColor ToQColor(Colour colour)
{
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

// A font of the design. Its size follows the twips and never the desktop's text size.
QFont ToQFont(const Font& font);

QString ToQString(std::string_view utf8);

}  // namespace malvone::qt
