// PictureStore.cpp: finds pictures ready, or renders them, and keeps them.
#include "ui/qt/drawing/PictureStore.h"

#include "ui/qt/drawing/ReadyPictures.h"

namespace malvone::qt {

const QImage& PictureStore::GetGround(const Picture& picture, QSize size, QSize seen, QRgb under)
{
    return Kept(LookOf(picture.File(), size, seen),
                [under](const Look& look) { return WithoutGround(qt::Rendered(look), under); });
}

const QImage& PictureStore::Get(const Picture& picture, QSize size, QSize seen)
{
    return Kept(LookOf(picture.File(), size, seen), qt::Rendered);
}

QImage PictureStore::Coarse(const Picture& picture)
{
    return Made(CoarseLook(picture), qt::Rendered);
}

QImage PictureStore::Made(const Look& look, const Render& render)
{
    const QImage ready = Ready(look);
    if (!ready.isNull()) {
        return ready;
    }
    ++rendered_;
    return render(look);
}

const QImage& PictureStore::Kept(const Look& look, const Render& render)
{
    auto found = images_.find(look);
    if (found == images_.end()) {
        found = images_.emplace(look, Made(look, render)).first;
    }
    return found->second;
}

}  // namespace malvone::qt
