// FormWidget.cpp: a window on the screen.
#include "ui/qt/windows/FormWidget.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include "ui/layer/App.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/Painting.h"
#include "ui/qt/drawing/PictureStore.h"
#include "ui/qt/input/KeyTable.h"
#include "ui/qt/windows/MenuBar.h"
#include "ui/qt/windows/WindowManager.h"

namespace malvone::qt {
namespace {

// Managers that tile windows leave dialogs their size.
Qt::WindowFlags FlagsOf(const Window& window, ShowMode mode)
{
    const bool tiled = MannerOfBackdrop() == BackdropManner::None;
    const Qt::WindowFlags kind = mode == ShowMode::Modal || tiled ? Qt::Dialog : Qt::Window;
    if (window.BorderStyle == Border::None) {
        return kind | Qt::FramelessWindowHint;
    }
    Qt::WindowFlags flags = kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    flags.setFlag(Qt::WindowMinimizeButtonHint, window.MinButton);
    flags.setFlag(Qt::WindowMaximizeButtonHint, window.MaxButton);
    return flags;
}

}  // namespace

FormWidget::FormWidget(Window& window, ShowMode mode, PictureStore& pictures, double factor)
    : QWidget(nullptr, FlagsOf(window, mode)), window_(&window), pictures_(pictures),
      menu_(window.MenuEntries().empty() ? nullptr : new MenuBar(window, this)),
      placement_(*this, window), sizing_(*this, window, menu_, placement_), boxes_(*this, window),
      pointer_(*this, window, sizing_.DesignScale())
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    SetFactor(window.Role == WindowRole::Main ? sizing_.FactorOnScreen() : factor);
    placement_.TellSize();
    Follow(Change::Text);
}

void FormWidget::SetFactor(double factor)
{
    sizing_.SetFactor(factor);
    Rescale();
}

void FormWidget::Rescale()
{
    const double before = DesignScale().Factor();
    sizing_.LayOut();
    boxes_.Follow(DesignScale());
    update();
    if (DesignScale().Factor() != before) {
        Q_EMIT Rescaled();
    }
}

void FormWidget::Detach()
{
    window_ = nullptr;
    boxes_.Detach();
    pointer_.Detach();
    hide();
}

void FormWidget::Present(QWindow* below)
{
    if (!isVisible()) {
        // Until its frame is known, an existing native window takes its position for that of the
        // client area, and so does a widget that remembers a frame. So each show begins like the
        // first, with a new window and no frame.
        if (windowHandle() != nullptr) {
            destroy();
            setParent(nullptr, windowFlags());
        }
        placement_.OntoScreen();
        placement_.ToScreen();
        winId();
        windowHandle()->setTransientParent(below);
        windowHandle()->setBaseSize(baseSize());
        if (!window_->ShowInTaskbar) {
            KeepOffTaskBar(winId());
        }
        show();
        if (menu_ != nullptr) {
            menu_->show();
        }
        placement_.FromScreen();
    }
    ToFront();
}

void FormWidget::ToFront()
{
    if (isMinimized()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    raise();
    activateWindow();
}

void FormWidget::FollowScreens()
{
    if (!isVisible()) {
        return;
    }
    if (window_->Role == WindowRole::Main && !isMaximized()) {
        sizing_.FitOntoScreens();
    }
    placement_.OntoScreen();
    placement_.ToScreen();
}

QRectF FormWidget::PlaceOnForm(const Visual& visual) const
{
    return DesignScale().ToWindow(PlaceOf(visual));
}

void FormWidget::paintEvent(QPaintEvent* event)
{
    const Scale& scale = DesignScale();
    if (scale.Ratio() != devicePixelRatioF()) {
        Rescale();  // another screen
    }
    QRegion dirty;
    for (const QRect& part : event->region()) {
        dirty += scale.ToDesign(QRectF(part)).toAlignedRect();
    }
    QPainter painter(this);
    painter.translate(scale.Corner());
    painter.scale(scale.Factor(), scale.Factor());
    PaintWindow(painter, *window_, pictures_, dirty, scale.ToDesign(sizing_.Room()));
    if (!painted_) {
        painted_ = true;
        QMetaObject::invokeMethod(this, &FormWidget::Painted, Qt::QueuedConnection);
    }
}

void FormWidget::Follow(Change what)
{
    switch (what) {
    case Change::Geometry:
        if (isVisible()) {
            placement_.ToScreen();
        }
        break;
    case Change::Text:
        // The captions of windows without a title bar are placeholders.
        setWindowTitle(window_->BorderStyle == Border::None ? QStringLiteral("Malvone")
                                                            : ToQString(window_->Caption.Get()));
        break;
    default: update(); break;
    }
}

void FormWidget::Follow(Control& control, Change what)
{
    if (const auto* const entry = dynamic_cast<const MenuEntry*>(&control)) {
        menu_->Follow(*entry);
    } else if (NameBox* const box = boxes_.Of(&control)) {
        box->Follow(DesignScale());
        if (window_->Focus() == &control) {
            FollowFocus();
        }
    } else if (const auto* const visual = dynamic_cast<const Visual*>(&control)) {
        Repaint(*visual, what);
    }
}

// In the model a locked box may still have the focus from an entry.
void FormWidget::FollowFocus()
{
    NameBox* const box = boxes_.Of(window_->Focus());
    QWidget* const focused =
        box != nullptr && !box->isReadOnly() ? box : static_cast<QWidget*>(this);
    focused->setFocus(Qt::OtherFocusReason);
}

QWidget* FormWidget::BoxOf(const Control& box) const
{
    return boxes_.Of(&box);
}

// All that a control's pixels can touch, in Qt's pixels.
QRect FormWidget::Touched(const Visual& visual) const
{
    const QRect place = PlaceOnForm(visual).toAlignedRect();
    const double ratio = devicePixelRatioF();
    const bool wholePixels = std::floor(ratio) == ratio;
    return wholePixels ? place : place.adjusted(-1, -1, 1, 1);
}

void FormWidget::Repaint(const Visual& visual, Change what)
{
    if (what == Change::Data || what == Change::Tip || what == Change::Enabled || !isVisible()) {
        return;
    }
    if (what == Change::Geometry) {
        update();  // its old place is unknown, and this is rare
    } else if (visual.Visible || what == Change::Visible) {
        update(Touched(visual));
    }
}

bool FormWidget::event(QEvent* event)
{
    if (window_ == nullptr && event->type() != QEvent::DeferredDelete) {
        return true;
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();  // makes it a key press, which the layer sees first
        return true;
    case QEvent::KeyPress: {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (!RouteKey(*window_, key) && menu_ != nullptr) {
            menu_->Open(ToKey(key));
        }
        return true;
    }
    default: return pointer_.Handle(*event) || QWidget::event(event);
    }
}

void FormWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        Q_EMIT Activated();
    } else if (event->type() == QEvent::WindowStateChange) {
        Q_EMIT StateChanged();
    }
}

// The game itself closes its windows, or does not.
void FormWidget::closeEvent(QCloseEvent* event)
{
    event->setAccepted(App.Ended());
    if (!App.Ended()) {
        Q_EMIT CloseRequested();
    }
}

void FormWidget::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    placement_.FromScreen();
}

// By design (waechst-mit): one would expect a larger window to have more ground around the design.
// It has a larger design. Test: Windows.TheWholeDesignGrowsAndShrinksWithItsWindowInWholePixels
void FormWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Rescale();
    placement_.FromScreen();
}

}  // namespace malvone::qt
