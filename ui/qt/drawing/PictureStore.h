// PictureStore.h: pictures in the pixels of the screen, each made once for each size it is shown
// in, on its first use.
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
    // The picture in a size given in pixels of the screen; cut off at the lower right where only
    // a part can be seen. The reference holds until the next call.
    const QImage& Get(const Picture& picture, QSize size, QSize seen);
    const QImage& Get(const Picture& picture, QSize size) { return Get(picture, size, size); }

    // The ground of a window, with its corner at a place of what is seen. Only the latest is kept:
    // a window that is resized has as many as it has sizes on the way.
    const QImage& GetGround(const Picture& picture, QSize size, QSize seen, QPoint corner);

    // A picture rendered coarsely, to be stretched, and not kept: for a cloudy ground as large as
    // the screen, which is painted once and would take a quarter of the start if it were fine.
    QImage Coarse(const Picture& picture);

    QIcon Icon(const Picture& picture);

    // How many pictures were not ready and had to be rendered.
    int Rendered() const { return rendered_; }

private:
    std::map<Look, QImage> images_;
    std::map<std::string_view, std::pair<Look, QImage>> grounds_;  // by their files
    int rendered_ = 0;

    QImage Made(const Look& look);
};

}  // namespace malvone::qt
