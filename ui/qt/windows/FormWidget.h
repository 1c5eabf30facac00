// FormWidget.h: one window of the game on the screen: paints the model and hands input to it.
#pragma once

#include <QWidget>

#include "ui/layer/Window.h"
#include "ui/qt/drawing/Scale.h"
#include "ui/qt/input/NameBoxes.h"
#include "ui/qt/input/PointerInput.h"
#include "ui/qt/windows/Placement.h"

namespace malvone::qt {

class MenuBar;
class PictureStore;

class FormWidget final : public QWidget
{
    Q_OBJECT

public:
    // `factor` is that of the main window's scale, which all windows with a fixed size share.
    FormWidget(Window& window, ShowMode mode, PictureStore& pictures, double factor);
    ~FormWidget() override;

    // Null when the window has been unloaded; the widget then waits for its own deletion.
    Window* Model() const { return window_; }
    void Detach();

    // Puts the window on the screen, or to the front where it is there already. It stays above
    // `below`.
    void Present(QWindow* below);
    // A minimised window comes back.
    void ToFront();
    // The screens have changed: the window comes back onto one of them, smaller if it has to.
    void FollowScreens();
    // Whether the player has seen it since it was shown.
    bool WasPainted() const { return painted_; }

    void Follow(Control& control, Change what);
    void Follow(Change what);
    void FollowFocus();

    PointerInput& Pointer() { return pointer_; }
    const PointerInput& Pointer() const { return pointer_; }

    // How large the design is drawn, and where.
    const Scale& DesignScale() const { return scale_; }
    // Takes the size of the design at another scale.
    void SetFactor(double factor);
    // A control's place on this widget.
    QRectF PlaceOnForm(const Visual& visual) const;
    // The widget of a text box; null where it has none.
    QWidget* BoxOf(const Control& box) const;

Q_SIGNALS:
    void Activated();
    void CloseWished();
    void Rescaled();
    // The window has been minimised or restored.
    void StateChanged();
    // The window has been painted for the first time since it was shown.
    void Painted();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Window* window_;
    PictureStore& pictures_;
    Placement placement_;
    MenuBar* menu_ = nullptr;
    NameBoxes boxes_;
    Scale scale_;
    PointerInput pointer_;
    double ratio_ = 1;  // the screen's pixels to Qt's, for which the scale was made
    bool painted_ = false;

    QSize SizeAt(double factor) const;
    QRectF Room() const;  // for the design: all below the menu
    void Rescale();
    void ShowMenuLast();
    bool RouteKey(const QKeyEvent& event);
    void Repaint(const Visual& visual, Change what);
    QRect Touched(const Visual& visual) const;
};

}  // namespace malvone::qt
