// MenuBar.h: a window's menu as Qt shows it. Shortcuts are shown here and routed by the layer.
#pragma once

#include <QMenuBar>
#include <unordered_map>

#include "ui/layer/Window.h"

namespace malvone::qt {

// Applies to all menu bars made from now on. Each has a button for entries that do not fit, whose
// icon makes Qt load all its plugins for icons and image formats: 3 of 47 ms of CPU time of a start
// (medians of 9). Here that button shows an arrow, and the line below the bar has no gaps.
void UseMenuStyle();

class MenuBar final : public QMenuBar
{
    Q_OBJECT

public:
    // For the main window, which goes with the program. The bar is hidden: show it after the
    // window. The first widget shown makes Qt look for a screen reader on the session bus, and this
    // way it does so while the window manager is at work on the window. That saves 4 of 59 ms to
    // the first frame, with a bus and without one (medians of 25).
    MenuBar(const Window& window, QWidget* parent);

    // Updates an entry from the model.
    void Follow(const MenuEntry& entry);
    // Opens the menu of a key: F10 the first one, Alt and a letter the one with this access key.
    void Open(Key key);

protected:
    // The menu stays shut while another window is modal.
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    const Window& window_;
    std::unordered_map<const MenuEntry*, QAction*> actions_;

    bool Shut() const;
    void Add(MenuEntry& entry, bool opensMenu);
    QAction* OpenedBy(Key key) const;
    void Chosen(MenuEntry& entry);
};

}  // namespace malvone::qt
