// Look.h: what decides how a rendered picture looks, and the rendering.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
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

// A picture as an icon: a square with edges of one of these lengths, as title bars, task bars and
// switchers need them.
constexpr int kIconEdges[] = {16, 32, 64};
Look IconLook(const Picture& picture, int edge);

QImage Rendered(const Look& look);

// Where the pixels of a picture lie in the program if the build has rendered it, as it has all
// that the first frame shows at scale 1: assets/pictures/prerender.cpp.
QString ReadyPath(const Look& look);

// Such a picture, read where the program's file lies in memory: nothing is unpacked or copied. Null
// where there is none. Against rendering at each start this saves 7 of 44 ms to the first frame and
// as much CPU time, and 2.8 of 6.6 MB of memory (medians of 15), for 3 MB of program.
QImage Ready(const Look& look);

}  // namespace malvone::qt
