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

    // Puts the window on the screen, as the window manager needs it.
    void Present();
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
    bool painted_ = false;  // by the display server
    // Only where the server cannot paint the window.
    std::unique_ptr<QBackingStore> store_;

    void TryServer();
    void PaintHere(const QRegion& region);
};

}  // namespace malvone::qt
