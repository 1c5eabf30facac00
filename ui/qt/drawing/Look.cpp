// Look.cpp: renders pictures.
#include "ui/qt/drawing/Look.h"

#include <QPainter>
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

QImage WithoutGround(const QImage& image, QRgb under)
{
    int used = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        int last = image.width();
        while (last > used && line[last - 1] == under) {
            --last;
        }
        used = last;
    }
    return image.copy(0, 0, used, image.height());
}

}  // namespace malvone::qt
