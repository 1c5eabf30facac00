// ReadyPictures.h: what the first frame shows at scale 1, rendered when the program was built. The
// pixels are read where the program's file lies in memory: nothing is unpacked or copied. Against
// rendering them at each start, beside Qt's own on another thread, this saves 11 of 58 ms of CPU
// time, 830 of 3,400 page faults and 1.7 of 5.9 MB of memory (medians of 9), for 0.8 MB of program.
#pragma once

#include <QImage>
#include <span>
#include <string_view>

#include "ui/qt/drawing/Look.h"

namespace malvone::qt {

struct ReadyPicture
{
    Look Shown;
    QSize Kept;  // smaller than what is seen where the rest looks like the ground under it
    QImage::Format Format = QImage::Format_Invalid;
    std::string_view Pixels;
    std::span<const QRgb> Colours;  // of the format with a table of colours
};

// One row for each of them. The build writes the table: assets/pictures/vorab.cpp.
std::span<const ReadyPicture> ReadyPictures();

// Null where there is no such picture.
QImage Ready(const Look& look);

// A picture in all sizes of an icon: width, height and pixels, in the words of the X protocol, one
// size after the other. Packed, since it is wanted once for each window and then at one stroke.
struct ReadyIcon
{
    std::string_view File;
    std::string_view Packed;
};
std::span<const ReadyIcon> ReadyIcons();

}  // namespace malvone::qt
