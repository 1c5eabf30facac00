// Look.h: what decides how a rendered picture looks, and the rendering.
#pragma once

#include <QImage>
#include <QSize>
#include <string_view>
#include <tuple>

#include "ui/layer/Picture.h"

namespace malvone::qt {

// File, size of the whole picture, size of the part of it that is rendered, in pixels of the
// screen.
using Look = std::tuple<std::string_view, int, int, int, int>;

Look LookOf(std::string_view file, QSize size, QSize seen);

// The backdrop is as large as the screen and painted once: its picture is rendered coarsely, at
// whatever scale, and stretched.
Look CoarseLook(const Picture& picture);

QImage Rendered(const Look& look);

// A rendered ground without the columns at its right end that look like the plain colour under it:
// most of a large picture is just that. A movement of the pointer is painted in 0.13 instead of
// 0.18 ms, the whole window in 0.42 instead of 0.53, and the program is 0.7 MB smaller (medians).
QImage WithoutGround(const QImage& image, QRgb under);

}  // namespace malvone::qt
