// Look.h: renders pictures, or finds them rendered by the build.
#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>
#include <string_view>
#include <tuple>

#include "ui/layer/Picture.h"

namespace malvone::qt {

// In pixels of the screen: how large the whole picture is, how large the part is that is rendered,
// and where the picture's corner lies in that part.
struct Look
{
    std::string_view File;
    int Width = 0;
    int Height = 0;
    int SeenWidth = 0;
    int SeenHeight = 0;
    int Left = 0;
    int Top = 0;

    friend bool operator==(const Look&, const Look&) = default;
    friend bool operator<(const Look& a, const Look& b)
    {
        const auto all = [](const Look& look) {
            return std::tie(look.File, look.Width, look.Height, look.SeenWidth, look.SeenHeight,
                            look.Left, look.Top);
        };
        return all(a) < all(b);
    }
};

Look LookOf(std::string_view file, QSize size, QSize seen, QPoint corner = {});

// The backdrop is as large as the screen and painted once, so its picture is rendered in a coarse
// size and stretched.
Look CoarseLook(const Picture& picture);

// Icons are squares with edges of these lengths, for title bars, task bars and switchers.
constexpr int kIconEdges[] = {16, 32, 64};
Look IconLook(const Picture& picture, int edge);

QImage Rendered(const Look& look);

// The resource with the pixels of a picture that the build has rendered, as it has all that the
// first frame shows at scale 1 (assets/pictures/prerender.cpp).
QString ReadyPath(const Look& look);

// Such a picture, which shares the pixels of the program's file; null if there is none. Compared to
// rendering at each start this saves 7 of 44 ms to the first frame and as much CPU time, and 2.8 of
// 6.6 MB of memory (medians of 15), for 3 MB of program.
QImage Ready(const Look& look);

}  // namespace malvone::qt
