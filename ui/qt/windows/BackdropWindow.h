// BackdropWindow.h: the window behind the game. It covers the screen with one picture, takes no
// input, and is no widget: the first widget that is shown makes Qt look for a screen reader on the
// session bus, which can wait until the main window is on its way.
#pragma once

#include <QBackingStore>
#include <QWindow>
#include <memory>

#include "ui/layer/Window.h"

namespace malvone::qt {

class PictureStore;

class BackdropWindow final : public QWindow
{
    Q_OBJECT

public:
    // The model and the pictures have to outlive the window.
    BackdropWindow(malvone::Window& model, PictureStore& pictures);

    // Puts the window on the screen, as the window manager needs it. Where the display server
    // paints it, it is plain at first.
    void Present();
    // To be called when the main window has been painted: to stretch a picture over the whole
    // screen keeps the server busy while that window waits for it, for 12 to 16 of 68 to 78 ms to
    // the first frame (medians of 9).
    void ShowPicture();
    // Takes the size of the primary screen: where no window manager does it, nobody else will.
    void CoverScreen();
    malvone::Window& Model() const { return model_; }

Q_SIGNALS:
    void Activated();
    void CloseWished();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    malvone::Window& model_;
    PictureStore& pictures_;
    bool onServer_ = false;  // the display server paints the window, in one colour at first,
    bool pictured_ = false;  // then with the picture
    // Only where the server cannot.
    std::unique_ptr<QBackingStore> store_;

    QImage Coarse() const;
    void PaintHere(const QRegion& region);
};

}  // namespace malvone::qt
