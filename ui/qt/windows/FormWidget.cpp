// FormWidget.cpp: a window on the screen.
#include "ui/qt/windows/FormWidget.h"

#include <QCloseEvent>
#include <QHelpEvent>
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

// At half the designed size the game can still be played.
constexpr double kSmallestFactor = 0.5;

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
      placement_(*this, window),
      boxes_(*this, [this](const QKeyEvent& event) { return RouteKey(event); }),
      pointer_(*this, window, scale_)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    if (!window.MenuEntries().empty()) {
        menu_ = new MenuBar(window, this);
    }
    SetFactor(menu_ == nullptr ? factor : FactorOnScreen(DesignOf(window), SizeAt(1).height()));
    placement_.TellSize();
    Follow(Change::Text);
    for (Visual* const visual : window.FrontToBack()) {
        if (auto* const box = dynamic_cast<TextBox*>(visual)) {
            boxes_.Follow(*box, scale_);
        }
    }
}

FormWidget::~FormWidget() = default;

QSize FormWidget::SizeAt(double factor) const
{
    const QSize client = SizeOf(*window_, factor);
    const int menu = menu_ != nullptr ? menu_->heightForWidth(client.width()) : 0;
    return client.grownBy(QMargins(0, menu, 0, 0));
}

void FormWidget::SetFactor(double factor)
{
    if (window_->BorderStyle == Border::Sizable) {
        setMinimumSize(SizeAt(kSmallestFactor));
        resize(SizeAt(factor));
    } else {
        setFixedSize(SizeAt(factor));
    }
    Rescale();
}

QRectF FormWidget::Room() const
{
    return rect().adjusted(0, menu_ != nullptr ? menu_->height() : 0, 0, 0);
}

// The whole design is drawn in a window of any size.
void FormWidget::Rescale()
{
    if (menu_ != nullptr) {
        menu_->setGeometry(0, 0, width(), menu_->heightForWidth(width()));
    }
    const double before = scale_.Factor();
    ratio_ = devicePixelRatioF();
    scale_ = Scale(DesignOf(*window_), Room(), ratio_);
    boxes_.Follow(scale_);
    update();
    if (scale_.Factor() != before) {
        Q_EMIT Rescaled();
    }
}

void FormWidget::Detach()
{
    window_ = nullptr;
    if (menu_ != nullptr) {
        menu_->Detach();
    }
    boxes_.Detach();
    pointer_.Detach();
    hide();
}

void FormWidget::Present(QWindow* below)
{
    if (!isVisible()) {
        // Until its frame is known, an existing native window takes its position for that of the
        // client area. So each show begins with a new one.
        destroy();
        painted_ = false;
        placement_.OntoScreen();
        placement_.ToScreen();
        winId();
        windowHandle()->setTransientParent(below);
        if (!window_->ShowInTaskbar) {
            KeepOffTaskBar(winId());
        }
        ShowMenuLast();
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

// The first widget that is shown makes Qt look for a screen reader on the session bus. A menu is
// shown before the window that holds it: shown after it, the bus is asked while the window manager
// is at work on the window. This saves 4 of 59 ms to the first frame, with a bus and without one
// (medians of 25).
void FormWidget::ShowMenuLast()
{
    if (menu_ != nullptr) {
        menu_->hide();
    }
    show();
    if (menu_ != nullptr) {
        menu_->show();
    }
}

// Monitors that are switched off take their screens with them, and bring them back. A window that
// was made smaller for that gets its size and place again, unless the player has resized it since.
void FormWidget::FollowScreens()
{
    if (!isVisible()) {
        return;
    }
    if (menu_ != nullptr && !isMaximized()) {
        FitOntoScreens();
    }
    placement_.OntoScreen();
    placement_.ToScreen();
}

void FormWidget::FitOntoScreens()
{
    const double fitting = FactorOnScreen(DesignOf(*window_), SizeAt(1).height());
    if (fitting < scale_.Factor() && !placement_.Fits(size())) {
        if (size() != small_) {
            large_ = size();
            largePlace_ = QPointF(window_->Left, window_->Top);
        }
        SetFactor(fitting);
        small_ = size();
    } else if (size() == small_ && placement_.Fits(large_)) {
        small_ = QSize();
        resize(large_);
        window_->Move(static_cast<Twips>(largePlace_.x()), static_cast<Twips>(largePlace_.y()));
    } else if (size() == small_ && fitting > scale_.Factor()) {
        SetFactor(fitting);
        small_ = size();
    }
}

QRectF FormWidget::PlaceOnForm(const Visual& visual) const
{
    return scale_.ToWindow(PlaceOf(visual));
}

void FormWidget::paintEvent(QPaintEvent* event)
{
    if (window_ == nullptr) {
        return;
    }
    if (ratio_ != devicePixelRatioF()) {
        Rescale();  // another screen
    }
    QRegion dirty;
    for (const QRect& part : event->region()) {
        dirty += scale_.ToDesign(QRectF(part)).toAlignedRect();
    }
    QPainter painter(this);
    painter.translate(scale_.Corner());
    painter.scale(scale_.Factor(), scale_.Factor());
    PaintWindow(painter, *window_, pictures_, dirty, scale_.ToDesign(Room()));
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
    } else if (auto* const box = dynamic_cast<TextBox*>(&control)) {
        boxes_.Follow(*box, scale_);
        if (window_->Focus() == box) {
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

void FormWidget::mousePressEvent(QMouseEvent* event)
{
    pointer_.Pressed(*event);
}

// The second press of a double click counts as a press.
void FormWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void FormWidget::mouseMoveEvent(QMouseEvent* event)
{
    pointer_.Moved(*event);
}

void FormWidget::mouseReleaseEvent(QMouseEvent* event)
{
    pointer_.Released(*event);
}

bool FormWidget::RouteKey(const QKeyEvent& event)
{
    const Key key = ToKey(event);
    if (window_ == nullptr || key.Code == 0) {
        return false;
    }
    if ((!event.isAutoRepeat() || MayRepeat(key)) && malvone::RouteKey(*window_, key)) {
        return true;
    }
    return menu_ != nullptr && window_ != nullptr && App.TakesInput(*window_) && menu_->Open(key);
}

bool FormWidget::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();  // makes it a key press, which the layer sees first
        return true;
    case QEvent::KeyPress: RouteKey(*static_cast<QKeyEvent*>(event)); return true;
    case QEvent::ToolTip: pointer_.ShowTip(*static_cast<QHelpEvent*>(event)); return true;
    default: return QWidget::event(event);
    }
}

void FormWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (window_ == nullptr) {
        return;
    }
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
    if (!App.Ended() && window_ != nullptr) {
        Q_EMIT CloseRequested();
    }
}

void FormWidget::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    if (window_ != nullptr) {
        placement_.FromScreen();
    }
}

// By design (waechst-mit): one would expect a larger window to have more ground around the design.
// It has a larger design. Test: Windows.TheWholeDesignGrowsAndShrinksWithItsWindowInWholePixels
void FormWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (window_ != nullptr) {
        Rescale();
        placement_.FromScreen();
    }
}

}  // namespace malvone::qt
