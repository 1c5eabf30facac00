// PictureStore.h: pictures in the pixels of the screen, each rendered once for each size it is
// shown in, on its first use.
#pragma once

#include <QImage>
#include <QSize>
#include <map>

#include "ui/layer/Picture.h"
#include "ui/qt/Look.h"

namespace malvone::qt {

class FirstPictures;

class PictureStore
{
public:
    // What has been rendered early is taken from there; it has to outlive the store.
    explicit PictureStore(FirstPictures* first = nullptr) : first_(first) {}

    // The picture in a size given in pixels of the screen; cut off at the lower right where only
    // a part can be seen. The reference holds until the next call.
    const QImage& Get(const Picture& picture, QSize size, QSize seen);
    const QImage& Get(const Picture& picture, QSize size) { return Get(picture, size, size); }
    // The ground of a window, without the part at its right end that looks like the plain colour
    // under it: most of a large picture is just that.
    const QImage& GetGround(const Picture& picture, QSize size, QSize seen, QRgb under);

    // A picture rendered coarsely, to be stretched, and not kept: for a cloudy ground as large as
    // the screen, which is painted once and would take a quarter of the start if it were fine.
    QImage Coarse(const Picture& picture) const;

private:
    FirstPictures* first_;
    std::map<Look, QImage> images_;

    QImage Render(const Look& look) const;
};

}  // namespace malvone::qt
