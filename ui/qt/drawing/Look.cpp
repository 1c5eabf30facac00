// Look.cpp: renders pictures, or finds them rendered.
#include "ui/qt/drawing/Look.h"

#include <QPainter>
#include <QResource>
#include <QSvgRenderer>

#include "ui/qt/drawing/Resources.h"

namespace malvone::qt {

Look LookOf(std::string_view file, QSize size, QSize seen)
{
    return {file, size.width(), size.height(), seen.width(), seen.height()};
}

Look CoarseLook(const Picture& picture)
{
    constexpr int kCoarser = 2;
    const QSize size(picture.Width() / kCoarser, picture.Height() / kCoarser);
    return LookOf(picture.File(), size, size);
}

Look IconLook(const Picture& picture, int edge)
{
    return LookOf(picture.File(), {edge, edge}, {edge, edge});
}

QImage Rendered(const Look& look)
{
    const auto& [file, width, height, seenWidth, seenHeight] = look;
    QImage image(seenWidth, seenHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(ResourcePath(file)).render(&painter, QRectF(0, 0, width, height));
    painter.end();
    return image;
}

QString ReadyPath(const Look& look)
{
    const auto& [file, width, height, seenWidth, seenHeight] = look;
    return QStringLiteral(":/%1-%2x%3-%4x%5")
        .arg(QLatin1StringView(file.data(), static_cast<qsizetype>(file.size())))
        .arg(width)
        .arg(height)
        .arg(seenWidth)
        .arg(seenHeight);
}

QImage Ready(const Look& look)
{
    const QResource pixels(ReadyPath(look));
    const int width = std::get<3>(look);
    const int height = std::get<4>(look);
    return pixels.isValid()
               ? QImage(pixels.data(), width, height, QImage::Format_ARGB32_Premultiplied)
               : QImage();
}

}  // namespace malvone::qt
