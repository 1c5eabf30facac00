// Painting.cpp: paints grounds and controls from back to front.
#include "ui/qt/drawing/Painting.h"

#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <algorithm>

#include "ui/layer/Window.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/LabelText.h"
#include "ui/qt/drawing/PictureStore.h"

namespace malvone::qt {
namespace {

constexpr QColor kButtonFace(0xE0, 0xE0, 0xE0);
constexpr QColor kDarkEdge(0x80, 0x80, 0x80);
constexpr QColor kLightEdge(0xE8, 0xE8, 0xE8);

// A stretched picture with more pixels than this is not kept.
constexpr int kLargestKept = 1000 * 800;

class Painting
{
public:
    Painting(QPainter& painter, PictureStore& pictures)
        : painter_(painter), pictures_(pictures), ratio_(painter.deviceTransform().m11())
    {}

    void Ground(const Window& window, const QRectF& room) const;
    void Paint(const Visual& visual, const QRectF& place) const;
    void Frame(const QRectF& place) const;

private:
    QPainter& painter_;
    PictureStore& pictures_;
    double ratio_;

    QRect OnThisScreen(const QRectF& place) const;
    void Put(const QImage& image, QPoint corner) const;
    void Unscaled(const Picture& picture, const QRectF& place) const;
    void Paint(const Image& image, const QRectF& place) const;
    void Paint(const PictureBox& box, const QRectF& place) const;
    void Paint(const Line& line) const;
    void Plain(const QRectF& place, const QColor& face, const std::string& words) const;
};

// Images are painted in pixels of the screen, without the painter's scale.
QRect Painting::OnThisScreen(const QRectF& place) const
{
    return OnScreen(place, ratio_);
}

void Painting::Put(const QImage& image, QPoint corner) const
{
    painter_.save();
    painter_.scale(1 / ratio_, 1 / ratio_);
    painter_.drawImage(corner, image);
    painter_.restore();
}

// A picture in its own size, cut off at the edges of its place.
void Painting::Unscaled(const Picture& picture, const QRectF& place) const
{
    const QSizeF own(picture.Width(), picture.Height());
    const QRect whole = OnThisScreen(QRectF(place.topLeft(), own));
    const QRect seen = OnThisScreen(QRectF(place.topLeft(), own.boundedTo(place.size())));
    Put(pictures_.Get(picture, whole.size(), seen.size()), whole.topLeft());
}

// In a window wider or higher than its design the ground goes on to the edges.
void Painting::Ground(const Window& window, const QRectF& room) const
{
    painter_.fillRect(room, ToQColor(window.BackColor));
    if (window.Picture->Empty()) {
        return;
    }
    const QRect seen = OnThisScreen(room);
    const QSizeF own(window.Picture->Width(), window.Picture->Height());
    const QSize whole = OnThisScreen(QRectF(QPointF(), own)).size();
    Put(pictures_.GetGround(window.Picture, whole, seen.size(), -seen.topLeft()), seen.topLeft());
}

void Painting::Paint(const Image& image, const QRectF& place) const
{
    const Picture& picture = image.Picture;
    if (picture.Empty()) {
        return;
    }
    if (!image.Stretch) {
        Unscaled(picture, place);
        return;
    }
    const QRect target = OnThisScreen(place);
    if (target.width() * target.height() > kLargestKept) {
        painter_.drawImage(place, pictures_.Coarse(picture));
    } else {
        Put(pictures_.Get(picture, target.size()), target.topLeft());
    }
}

void Painting::Paint(const PictureBox& box, const QRectF& place) const
{
    painter_.fillRect(place, ToQColor(box.BackColor));
    if (!box.Picture->Empty()) {
        Unscaled(box.Picture, place);
    }
    if (box.Border) {
        const double right = place.right() - 1;
        const double bottom = place.bottom() - 1;
        painter_.fillRect(QRectF(place.left(), bottom, place.width(), 1), kLightEdge);
        painter_.fillRect(QRectF(right, place.top(), 1, place.height()), kLightEdge);
        painter_.fillRect(QRectF(place.left(), place.top(), place.width(), 1), kDarkEdge);
        painter_.fillRect(QRectF(place.left(), place.top(), 1, place.height()), kDarkEdge);
    }
}

void Painting::Paint(const Line& line) const
{
    painter_.setPen(QPen(ToQColor(line.BorderColor), 1));
    painter_.drawLine(
        QLineF(ToPixels(line.X1), ToPixels(line.Y1), ToPixels(line.X2), ToPixels(line.Y2)));
}

void Painting::Plain(const QRectF& place, const QColor& face, const std::string& words) const
{
    painter_.fillRect(place, face);
    painter_.setPen(kDarkEdge);
    painter_.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
    painter_.setPen(Qt::black);
    painter_.setFont(ToQFont(Font()));
    painter_.drawText(place, Qt::AlignCenter, ToQString(words));
}

// Marks the place of the arrow keys, in white between black, which stands out from every stone to
// every eye. Around a stone it is square outside and round inside, like the stone; wide buttons
// have round ends.
void Painting::Frame(const QRectF& place) const
{
    constexpr double kHalfLine = 0.5;
    constexpr double kThickness = 3;
    const bool button = place.width() > place.height();
    const double outside = button ? place.height() / 2 : 0;
    const double inside = button ? outside - kThickness : 10;
    QPainterPath ring;
    ring.addRoundedRect(place.adjusted(kHalfLine, kHalfLine, -kHalfLine, -kHalfLine), outside,
                        outside);
    ring.addRoundedRect(place.adjusted(kThickness, kThickness, -kThickness, -kThickness), inside,
                        inside);
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(Qt::black, 1));
    painter_.setBrush(Qt::white);
    painter_.drawPath(ring);
    painter_.restore();
}

// Text boxes are widgets of their own and paint themselves.
void Painting::Paint(const Visual& visual, const QRectF& place) const
{
    if (const auto* const image = dynamic_cast<const Image*>(&visual)) {
        Paint(*image, place);
    } else if (const auto* const label = dynamic_cast<const Label*>(&visual)) {
        PaintLabel(painter_, *label, place);
    } else if (const auto* const box = dynamic_cast<const PictureBox*>(&visual)) {
        Paint(*box, place);
    } else if (const auto* const line = dynamic_cast<const Line*>(&visual)) {
        Paint(*line);
    } else if (const auto* const shape = dynamic_cast<const Shape*>(&visual)) {
        painter_.fillRect(place, ToQColor(shape->FillColor));
    } else if (const auto* const button = dynamic_cast<const CommandButton*>(&visual)) {
        Plain(place, kButtonFace, PlainCaption(button->Caption.Get()));
    } else if (dynamic_cast<const ListBox*>(&visual) != nullptr) {
        Plain(place, Qt::white, {});
    }
}

}  // namespace

QRectF PlaceOf(const Visual& visual)
{
    if (const auto* const line = dynamic_cast<const Line*>(&visual)) {
        return QRectF(QPointF(ToPixels(line->X1), ToPixels(line->Y1)),
                      QPointF(ToPixels(line->X2), ToPixels(line->Y2)))
            .normalized()
            .adjusted(-1, -1, 1, 1);
    }
    return {ToPixels(visual.WindowLeft()), ToPixels(visual.WindowTop()), ToPixels(visual.Width),
            ToPixels(visual.Height)};
}

void PaintWindow(QPainter& painter, const Window& window, PictureStore& pictures,
                 const QRegion& dirty, const QRectF& room)
{
    const Painting painting(painter, pictures);
    painting.Ground(window, room);
    const std::vector<Visual*>& frontToBack = window.FrontToBack();
    std::for_each(frontToBack.rbegin(), frontToBack.rend(), [&](const Visual* visual) {
        const QRectF place = PlaceOf(*visual);
        if (visual->Seen() && dirty.intersects(place.toAlignedRect())) {
            painting.Paint(*visual, place);
            if (visual == window.Highlighted()) {
                painting.Frame(place);
            }
        }
    });
}

}  // namespace malvone::qt
