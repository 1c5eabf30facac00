// PictureStore.h: pictures in the pixels of the screen, each rendered once for each size it is
// shown in, on its first use.
#pragma once

#include <QImage>
#include <QSize>
#include <map>
#include <string_view>
#include <tuple>

#include "ui/layer/Picture.h"

class QPainter;

namespace malvone::qt {

class PictureStore
{
public:
    // The picture in a size given in pixels of the screen; cut off at the lower right where only
    // a part can be seen. The reference holds until the next call.
    const QImage& Get(const Picture& picture, QSize size, QSize seen);
    const QImage& Get(const Picture& picture, QSize size) { return Get(picture, size, size); }
    // The ground of a window, without the part at its right end that looks like the plain colour
    // under it: most of a large picture is just that.
    const QImage& GetGround(const Picture& picture, QSize size, QSize seen, QRgb under);

private:
    // File, size of the whole picture, size of the rendered part.
    using Look = std::tuple<std::string_view, int, int, int, int>;
    std::map<Look, QImage> images_;
};

// Paints a picture coarsely, stretched, and keeps nothing: for a cloudy ground as large as the
// screen, which is painted once and would take a quarter of the start if it were fine.
void PaintOnce(QPainter& painter, const Picture& picture, const QRectF& place);

}  // namespace malvone::qt
