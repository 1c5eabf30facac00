// PictureStore.cpp: renders pictures and keeps them.
#include "ui/qt/PictureStore.h"

#include "ui/qt/FirstPictures.h"
#include "ui/qt/PictureFiles.h"

namespace malvone::qt {
namespace {

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
    const Look look = LookOf(FileOf(picture.Name()), size, seen);
    auto found = images_.find(look);
    if (found == images_.end()) {
        const QImage whole = Render(look);
        found = images_.emplace(look, whole.copy(0, 0, ColumnsInUse(whole, under), whole.height()))
                    .first;
    }
    return found->second;
}

const QImage& PictureStore::Get(const Picture& picture, QSize size, QSize seen)
{
    const Look look = LookOf(FileOf(picture.Name()), size, seen);
    auto found = images_.find(look);
    if (found == images_.end()) {
        found = images_.emplace(look, Render(look)).first;
    }
    return found->second;
}

QImage PictureStore::Coarse(const Picture& picture) const
{
    return Render(CoarseLook(picture));
}

QImage PictureStore::Render(const Look& look) const
{
    const QImage early = first_ != nullptr ? first_->Take(look) : QImage();
    return early.isNull() ? Rendered(look) : early;
}

}  // namespace malvone::qt
