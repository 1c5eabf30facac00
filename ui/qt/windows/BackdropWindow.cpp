// BackdropWindow.cpp: shows and paints the backdrop.
#include "ui/qt/windows/BackdropWindow.h"

#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include "ui/layer/App.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/Painting.h"
#include "ui/qt/platform/Display.h"
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

void BackdropWindow::Paint(const QRegion& region)
{
    if (store_ == nullptr) {
        store_ = std::make_unique<QBackingStore>(this);
    }
    store_->resize(size());
    store_->beginPaint(region);
    {
        QPainter painter(store_->paintDevice());
        painter.setClipRegion(region);
        PaintWindow(painter, model_, pictures_, region, QRect(QPoint(), size()));
    }
    store_->endPaint();
    store_->flush(region);
    // A Wayland compositor goes on reading these pixels; all others have their own copy.
    if (WindowsCanBePlaced()) {
        store_.reset();
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
