// PictureStore.cpp: renders pictures and keeps them.
#include "ui/qt/PictureStore.h"

#include <QPainter>
#include <QSvgRenderer>

#include "ui/qt/PictureFiles.h"

namespace malvone::qt {
namespace {

QImage Rendered(std::string_view file, QSize size, QSize seen)
{
    QImage image(seen, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(ResourcePath(file)).render(&painter, QRectF(QPointF(), size));
    return image;
}

// How many columns at the left hold anything but one colour.
int ColumnsInUse(const QImage& image, QRgb colour)
{
    int used = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        int last = image.width();
        while (last > used && line[last - 1] == colour) {
            --last;
        }
        used = last;
    }
    return used;
}

}  // namespace

const QImage& PictureStore::GetGround(const Picture& picture, QSize size, QSize seen, QRgb under)
{
    const std::string_view file = FileOf(picture.Name());
    const Look look{file, size.width(), size.height(), seen.width(), seen.height()};
    auto found = images_.find(look);
    if (found == images_.end()) {
        const QImage whole = Rendered(file, size, seen);
        found = images_.emplace(look, whole.copy(0, 0, ColumnsInUse(whole, under), whole.height()))
                    .first;
    }
    return found->second;
}

const QImage& PictureStore::Get(const Picture& picture, QSize size, QSize seen)
{
    const std::string_view file = FileOf(picture.Name());
    const Look look{file, size.width(), size.height(), seen.width(), seen.height()};
    auto found = images_.find(look);
    if (found == images_.end()) {
        found = images_.emplace(look, Rendered(file, size, seen)).first;
    }
    return found->second;
}

void PaintOnce(QPainter& painter, const Picture& picture, const QRectF& place)
{
    constexpr int kCoarser = 2;
    const QSize size(picture.Width() / kCoarser, picture.Height() / kCoarser);
    painter.drawImage(place, Rendered(FileOf(picture.Name()), size, size));
}

}  // namespace malvone::qt
