// MenuBar.h: a window's menu as Qt shows it. Shortcuts are shown here and routed by the layer.
#pragma once

#include <QMenuBar>
#include <unordered_map>

#include "ui/layer/Window.h"

namespace malvone::qt {

// For every menu bar of the application that is made from now on. Each has a button for entries
// that find no room, and fetches that button's icon as soon as it is made: Qt then loads all its
// plugins for icons and image formats, 3 of 47 ms of CPU time of a start (medians of 9). Such a
// button shows an arrow here. And the line below the bar has no gaps.
void UseMenuStyle();

class MenuBar final : public QMenuBar
{
    Q_OBJECT

public:
    MenuBar(const Window& window, QWidget* parent);

    // Brings an entry to the state that it has in the model.
    void Follow(const MenuEntry& entry);
    // Opens the menu that a key stands for: F10 the first one, Alt and a letter the one with this
    // access key. False: there is none.
    bool Open(Key key);
    // The window is about to be destroyed: no entry does anything any more.
    void Detach();

protected:
    // While another window is modal the menu stays shut.
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    const Window* window_;
    std::unordered_map<const MenuEntry*, QAction*> actions_;

    bool Shut() const;
    void Add(MenuEntry& entry, bool opensMenu);
    QAction* OpenedBy(Key key) const;
    void Chosen(MenuEntry& entry);
};

}  // namespace malvone::qt
