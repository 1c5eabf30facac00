// PictureStore.cpp: finds pictures ready, or renders them, and keeps them.
#include "ui/qt/drawing/PictureStore.h"

namespace malvone::qt {

const QImage& PictureStore::Get(const Picture& picture, QSize size, QSize seen)
{
    const Look look = LookOf(picture.File(), size, seen);
    auto found = images_.find(look);
    if (found == images_.end()) {
        found = images_.emplace(look, Made(look)).first;
    }
    return found->second;
}

const QImage& PictureStore::GetGround(const Picture& picture, QSize size, QSize seen, QPoint corner)
{
    const Look look = LookOf(picture.File(), size, seen, corner);
    auto& [kept, image] = grounds_[picture.File()];
    if (kept != look) {
        kept = look;
        image = Made(look);
    }
    return image;
}

QImage PictureStore::Coarse(const Picture& picture)
{
    return Made(CoarseLook(picture));
}

QIcon PictureStore::Icon(const Picture& picture)
{
    QIcon icon;
    for (const int edge : kIconEdges) {
        icon.addPixmap(QPixmap::fromImage(Made(IconLook(picture, edge))));
    }
    return icon;
}

QImage PictureStore::Made(const Look& look)
{
    const QImage ready = Ready(look);
    if (!ready.isNull()) {
        return ready;
    }
    ++rendered_;
    return qt::Rendered(look);
}

}  // namespace malvone::qt
