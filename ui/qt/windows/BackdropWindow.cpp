// BackdropWindow.cpp: shows and paints the backdrop.
#include "ui/qt/windows/BackdropWindow.h"

#include <QBackingStore>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include "ui/layer/App.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/Painting.h"
#include "ui/qt/windows/WindowManager.h"
#include "ui/windows/FrmHintergrund.h"

namespace malvone::qt {

BackdropWindow::BackdropWindow(malvone::Window& model, PictureStore& pictures)
    : model_(model), pictures_(pictures)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setSurfaceType(QSurface::RasterSurface);
    // Its caption is never shown, but lists of windows need a name.
    setTitle(QStringLiteral("Malvone"));
    connect(this, &QWindow::activeChanged, this, [this] {
        if (isActive()) {
            Q_EMIT Activated();
        }
    });
}

void BackdropWindow::CoverScreen()
{
    setGeometry(QGuiApplication::primaryScreen()->geometry());
}

void BackdropWindow::Present()
{
    if (isVisible()) {
        return;
    }
    CoverScreen();
    create();
    KeepOffTaskBar(winId());
    if (MannerOfBackdrop() == BackdropManner::FullScreen) {
        setWindowStates(Qt::WindowFullScreen);
    }
    setVisible(true);
}

void BackdropWindow::ShowPicture()
{
    pictured_ = true;
    Paint(QRect(QPoint(), size()));
}

void BackdropWindow::paintEvent(QPaintEvent* event)
{
    if (pictured_) {
        Paint(event->region());
    }
}

// In strips, since the pixels of a whole screen are more memory than the rest of the game. The
// server keeps its own copy. Strips overlap, as their edges may lie between pixels of the screen.
void BackdropWindow::Paint(const QRegion& region)
{
    constexpr int kStripHeight = 64;
    constexpr int kOverlap = 1;
    QBackingStore store(this);
    store.resize(QSize(width(), kStripHeight));
    for (int top = 0; top < height(); top += kStripHeight - kOverlap) {
        const QRegion strip = region & QRect(0, top, width(), kStripHeight);
        if (strip.isEmpty()) {
            continue;
        }
        store.beginPaint(strip.translated(0, -top));
        {
            QPainter painter(store.paintDevice());
            painter.translate(0, -top);
            painter.setClipRegion(strip);
            PaintWindow(painter, model_, pictures_, strip, QRect(QPoint(), size()));
        }
        store.endPaint();
        store.flush(strip, this, QPoint(0, -top));
    }
}

// The model and its picture follow.
void BackdropWindow::resizeEvent(QResizeEvent* event)
{
    QWindow::resizeEvent(event);
    model_.Move(0, 0, ToTwips(width()), ToTwips(height()));
    static_cast<FrmHintergrund&>(model_).Image1.Move(0, 0, model_.Width, model_.Height);
    if (pictured_) {
        ShowPicture();
    }
}

// The game decides whether its windows close.
bool BackdropWindow::event(QEvent* event)
{
    if (event->type() == QEvent::Close) {
        event->setAccepted(App.Ended());
        if (!App.Ended()) {
            Q_EMIT CloseRequested();
        }
        return true;
    }
    return QWindow::event(event);
}

}  // namespace malvone::qt
