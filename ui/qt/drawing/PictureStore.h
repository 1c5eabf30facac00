// PictureStore.h: makes a picture once for each size it is shown in, on first use, and keeps it.
#pragma once

#include <QIcon>
#include <QImage>
#include <QSize>
#include <map>
#include <string_view>
#include <utility>

#include "ui/layer/Picture.h"
#include "ui/qt/drawing/Look.h"

namespace malvone::qt {

class PictureStore
{
public:
    // A picture in a size in pixels of the screen; cut off at the lower right if only a part is
    // seen. The reference is valid until the next call.
    const QImage& Get(const Picture& picture, QSize size, QSize seen);
    const QImage& Get(const Picture& picture, QSize size) { return Get(picture, size, size); }

    // The ground of a window; `corner` is the picture's, within what is seen. Only the latest is
    // kept: resizing a window would fill the memory with grounds.
    const QImage& GetGround(const Picture& picture, QSize size, QSize seen, QPoint corner);

    // A coarse picture to be stretched, which is not kept: for a cloudy ground as large as the
    // screen, which is painted once. A fine one would take a quarter of the start.
    QImage Coarse(const Picture& picture);

    QIcon Icon(const Picture& picture);

    // The number of pictures that were not ready and had to be rendered.
    int Rendered() const { return rendered_; }

private:
    std::map<Look, QImage> images_;
    std::map<std::string_view, std::pair<Look, QImage>> grounds_;  // by their files
    int rendered_ = 0;

    QImage Made(const Look& look);
};

}  // namespace malvone::qt
