// Look.cpp: renders pictures, or finds them rendered.
#include "ui/qt/drawing/Look.h"

#include <QPainter>
#include <QResource>
#include <QSvgRenderer>

#include "ui/qt/drawing/Resources.h"

namespace malvone::qt {

Look LookOf(std::string_view file, QSize size, QSize seen, QPoint corner)
{
    return {file, size.width(), size.height(), seen.width(), seen.height(), corner.x(), corner.y()};
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

// A ground goes on beyond the edges of its picture.
QImage Rendered(const Look& look)
{
    QImage image(look.SeenWidth, look.SeenHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(ResourcePath(look.File))
        .render(&painter, QRectF(look.Left, look.Top, look.Width, look.Height));
    painter.end();
    return image;
}

QString ReadyPath(const Look& look)
{
    return QStringLiteral(":/%1-%2x%3-%4x%5")
        .arg(QLatin1StringView(look.File.data(), static_cast<qsizetype>(look.File.size())))
        .arg(look.Width)
        .arg(look.Height)
        .arg(look.SeenWidth)
        .arg(look.SeenHeight);
}

QImage Ready(const Look& look)
{
    const QResource pixels(ReadyPath(look));
    return pixels.isValid() && look.Left == 0 && look.Top == 0
               ? QImage(pixels.data(), look.SeenWidth, look.SeenHeight,
                        QImage::Format_ARGB32_Premultiplied)
               : QImage();
}

}  // namespace malvone::qt
