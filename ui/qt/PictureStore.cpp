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

}  // namespace

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
    QSvgRenderer(ResourcePath(FileOf(picture.Name()))).render(&painter, place);
}

}  // namespace malvone::qt
