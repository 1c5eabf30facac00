// BackdropWindow.cpp: shows the backdrop, and paints it where the display server does not.
#include "ui/qt/windows/BackdropWindow.h"

#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include "ui/layer/App.h"
#include "ui/qt/drawing/Painting.h"
#include "ui/qt/drawing/PictureStore.h"
#include "ui/qt/drawing/ServerGround.h"
#include "ui/qt/windows/Backdrop.h"
#include "ui/qt/windows/WindowManager.h"
#include "ui/windows/FrmHintergrund.h"

namespace malvone::qt {

BackdropWindow::BackdropWindow(malvone::Window& model, PictureStore& pictures)
    : model_(model), pictures_(pictures)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setSurfaceType(QSurface::RasterSurface);
    // Its caption is not meant to be seen, but a list of windows shows some name.
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
    const QImage picture = Coarse();
    onServer_ = ColourOnServer(*this, picture.pixel(picture.rect().center()));
    pictured_ = false;
    if (MannerOfBackdrop() == BackdropManner::FullScreen) {
        setWindowStates(Qt::WindowFullScreen);
    }
    setVisible(true);
}

QImage BackdropWindow::Coarse() const
{
    return pictures_.Coarse(static_cast<FrmHintergrund&>(model_).Image1.Picture);
}

void BackdropWindow::ShowPicture()
{
    if (onServer_) {
        PaintOnServer(*this, Coarse());
        pictured_ = true;
    }
}

void BackdropWindow::paintEvent(QPaintEvent* event)
{
    if (!onServer_) {
        PaintHere(event->region());
    }
}

void BackdropWindow::PaintHere(const QRegion& region)
{
    if (store_ == nullptr) {
        store_ = std::make_unique<QBackingStore>(this);
    }
    const bool fresh = store_->size() != size();
    const QRegion dirty = fresh ? QRegion(QRect(QPoint(), size())) : region;
    store_->resize(size());
    store_->beginPaint(dirty);
    {
        QPainter painter(store_->paintDevice());
        painter.setClipRegion(dirty);
        PaintWindow(painter, model_, pictures_, dirty, size());
    }
    store_->endPaint();
    store_->flush(dirty);
}

void BackdropWindow::resizeEvent(QResizeEvent* event)
{
    QWindow::resizeEvent(event);
    FitBackdrop(model_, width(), height());
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
            Q_EMIT CloseWished();
        }
        return true;
    }
    return QWindow::event(event);
}

}  // namespace malvone::qt
