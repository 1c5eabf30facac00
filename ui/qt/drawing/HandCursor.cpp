// HandCursor.cpp: renders the hand.
#include "ui/qt/drawing/HandCursor.h"

#include <QPixmap>
#include <map>

#include "ui/qt/drawing/Look.h"

namespace malvone::qt {
namespace {

constexpr QSize kSize(32, 32);
constexpr QPoint kHotSpot(5, 0);

QCursor CursorAt(double ratio)
{
    const QSize size = (QSizeF(kSize) * ratio).toSize();
    QPixmap pixmap = QPixmap::fromImage(qt::Rendered(LookOf("hand", size, size)));
    pixmap.setDevicePixelRatio(ratio);
    const QPoint hotSpot = (QPointF(kHotSpot) * ratio).toPoint();
    return QCursor(pixmap, hotSpot.x(), hotSpot.y());
}

}  // namespace

QCursor HandCursor(double ratio)
{
    static std::map<double, QCursor> cursors;
    auto found = cursors.find(ratio);
    if (found == cursors.end()) {
        found = cursors.emplace(ratio, CursorAt(ratio)).first;
    }
    return found->second;
}

}  // namespace malvone::qt
