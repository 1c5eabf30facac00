// Conversions.cpp: finds fonts for those of the design.
#include "ui/qt/drawing/Conversions.h"

namespace malvone::qt {

QFont ToQFont(const Font& font)
{
    constexpr double kPixelsPerPoint = 96.0 / 72.0;
    // Few desktops have MS Sans Serif. Arial, the font of all other words, is close to it.
    QFont result(font.Name == "MS Sans Serif" ? QStringLiteral("Arial") : ToQString(font.Name));
    result.setStyleHint(QFont::SansSerif);
    result.setPixelSize(
        static_cast<int>(std::lround(static_cast<double>(font.Size) * kPixelsPerPoint)));
    result.setBold(font.Bold);
    return result;
}

QString ToQString(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace malvone::qt
