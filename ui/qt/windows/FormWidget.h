// FormWidget.h: a window of the game: paints the model and passes input to it.
#pragma once

#include <QWidget>

#include "ui/layer/Window.h"
#include "ui/qt/input/NameBoxes.h"
#include "ui/qt/input/PointerInput.h"
#include "ui/qt/windows/Placement.h"
#include "ui/qt/windows/Sizing.h"

namespace malvone::qt {

class MenuBar;
class PictureStore;

class FormWidget final : public QWidget
{
    Q_OBJECT

public:
    // `factor` is the main window's, which all windows of a fixed size share.
    FormWidget(Window& window, ShowMode mode, PictureStore& pictures, double factor);

    // Null once the window has been unloaded. The widget takes no event then and waits to be
    // deleted.
    Window* Model() const { return window_; }
    void Detach();

    // Shows the window, or brings it to the front. It stays above `below`.
    void Present(QWindow* below);
    // Restores the window if it is minimised.
    void ToFront();
    // Call when screens have changed: moves the window onto a screen, and shrinks it if need be.
    void FollowScreens();
    // Tells the model where the window is.
    void TellPlace() { placement_.FromScreen(); }

    void Follow(Control& control, Change what);
    void Follow(Change what);
    void FollowFocus();

    PointerInput& Pointer() { return pointer_; }
    const PointerInput& Pointer() const { return pointer_; }

    const Scale& DesignScale() const { return sizing_.DesignScale(); }
    // Resizes the window to its design at another scale.
    void SetFactor(double factor);
    // A control's place on this widget.
    QRectF PlaceOnForm(const Visual& visual) const;
    // The widget of a text box; null where it has none.
    QWidget* BoxOf(const Control& box) const;

Q_SIGNALS:
    void Activated();
    void CloseRequested();
    void Rescaled();
    // The window has been minimised or restored.
    void StateChanged();
    // Sent once, when the window has been painted for the first time.
    void Painted();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Window* window_;
    PictureStore& pictures_;
    MenuBar* menu_;
    Placement placement_;
    Sizing sizing_;
    NameBoxes boxes_;
    PointerInput pointer_;
    bool painted_ = false;

    void Rescale();
    void Repaint(const Visual& visual, Change what);
    QRect Touched(const Visual& visual) const;
};

}  // namespace malvone::qt
