// BackdropWindow.h: the window behind the game. It covers the screen with one picture and takes no
// input.
#pragma once

#include <QWindow>

#include "ui/layer/Window.h"

namespace malvone::qt {

class PictureStore;

// Not a widget, which would keep all pixels of the screen in memory.
class BackdropWindow final : public QWindow
{
    Q_OBJECT

public:
    // The model and the pictures must outlive the window.
    BackdropWindow(malvone::Window& model, PictureStore& pictures);

    // Shows the window in the way that suits the window manager, without its picture.
    void Present();
    // Call once the main window has been painted: painting this one first would delay it.
    void ShowPicture();
    // Takes the size of the primary screen. Not every window manager does it.
    void CoverScreen();
    bool Minimized() const { return windowStates().testFlag(Qt::WindowMinimized); }
    malvone::Window& Model() const { return model_; }

Q_SIGNALS:
    void Activated();
    void CloseRequested();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    malvone::Window& model_;
    PictureStore& pictures_;
    bool pictured_ = false;

    void Paint(const QRegion& region);
};

}  // namespace malvone::qt
