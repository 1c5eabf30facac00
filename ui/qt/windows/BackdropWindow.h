// BackdropWindow.h: the window behind the game. It covers the screen with one picture and takes no
// input.
#pragma once

#include <QBackingStore>
#include <QWindow>
#include <memory>

#include "ui/layer/Window.h"

namespace malvone::qt {

class PictureStore;

// No widget: it would keep all pixels of the screen in memory.
class BackdropWindow final : public QWindow
{
    Q_OBJECT

public:
    // The model and the pictures have to outlive the window.
    BackdropWindow(malvone::Window& model, PictureStore& pictures);

    // Puts the window on the screen, as the window manager needs it, without its picture.
    void Present();
    // To be called when the main window has been painted, which would wait for this.
    void ShowPicture();
    // Takes the size of the primary screen: where no window manager does it, nobody else will.
    void CoverScreen();
    bool Minimized() const { return windowStates().testFlag(Qt::WindowMinimized); }
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
    bool pictured_ = false;
    std::unique_ptr<QBackingStore> store_;

    void Paint(const QRegion& region);
};

}  // namespace malvone::qt
