// Sizing.h: how large a window is on the screen, and how large it draws its design. All sizes are
// in Qt's pixels, without the frame.
#pragma once

#include <QRectF>
#include <QSize>
#include <QSizeF>

#include "ui/layer/Window.h"
#include "ui/qt/drawing/Scale.h"

class QMenuBar;
class QWidget;

namespace malvone::qt {

class Placement;

// The designed client area of a window, and its size at another scale.
QSizeF DesignOf(const Window& window);
QSize SizeOf(const Window& window, double factor);

class Sizing
{
public:
    // All must outlive this. A window without a menu has null.
    Sizing(QWidget& form, Window& window, QMenuBar* menu, const Placement& placement)
        : form_(form), window_(window), menu_(menu), placement_(placement)
    {}

    const Scale& DesignScale() const { return scale_; }
    // All below the menu.
    QRectF Room() const;
    // Fits menu and design into the window. Call when it has another size, or is on another screen.
    void LayOut();

    // Resizes the window to its design at a scale.
    void SetFactor(double factor);
    // The largest scale up to 1 at which the window fits on the primary screen.
    double FactorOnScreen() const;
    // Makes the window smaller if no screen has room for it any more. Once one has, it gets its
    // size and place back, unless the player has resized it since.
    void FitOntoScreens();

private:
    QWidget& form_;
    Window& window_;
    QMenuBar* menu_;
    const Placement& placement_;
    Scale scale_;
    // The window before the screens became too small for it, and its size since then.
    QSize large_;
    QPointF largePlace_;  // in twips
    QSize small_;

    QSize SizeAt(double factor) const;
};

}  // namespace malvone::qt
