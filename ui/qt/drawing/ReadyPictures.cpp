// ReadyPictures.cpp: hands ready pictures out as images.
#include "ui/qt/drawing/ReadyPictures.h"

#include <algorithm>

namespace malvone::qt {

QImage Ready(const Look& look)
{
    const std::span<const ReadyPicture> all = ReadyPictures();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const ReadyPicture& row) { return row.Shown == look; });
    if (found == all.end()) {
        return {};
    }
    // Given constant pixels, Qt would copy them as soon as the table of colours is set. Nobody
    // paints on these images.
    auto* const pixels = const_cast<uchar*>(reinterpret_cast<const uchar*>(found->Pixels.data()));
    const auto bytes = static_cast<qsizetype>(found->Pixels.size()) / found->Kept.height();
    QImage image(pixels, found->Kept.width(), found->Kept.height(), bytes, found->Format);
    if (!found->Colours.empty()) {
        image.setColorTable(QList<QRgb>(found->Colours.begin(), found->Colours.end()));
    }
    return image;
}

}  // namespace malvone::qt
