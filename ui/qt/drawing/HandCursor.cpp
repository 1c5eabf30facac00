// HandCursor.cpp: renders the hand.
#include "ui/qt/drawing/HandCursor.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <map>

#include "ui/qt/drawing/Resources.h"

namespace malvone::qt {
namespace {

constexpr QSize kSize(32, 32);
constexpr QPoint kHotSpot(5, 0);

QCursor Rendered(double ratio)
{
    QPixmap pixmap((QSizeF(kSize) * ratio).toSize());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(ResourcePath("hand")).render(&painter);
    painter.end();
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
        found = cursors.emplace(ratio, Rendered(ratio)).first;
    }
    return found->second;
}

}  // namespace malvone::qt
