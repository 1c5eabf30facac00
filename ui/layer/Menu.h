// Menu.h: the entries of a window's menu.
#pragma once

#include "ui/layer/Control.h"
#include "ui/layer/Keys.h"

namespace malvone {

class MenuEntry final : public Control
{
public:
    // The parent is the entry that opens this one; null for an entry of the menu bar.
    MenuEntry(const Seat& seat, MenuEntry* parent) : Control(seat), parent_(parent) {}

    TextProperty Caption{*this, Change::Text};
    Property<bool> Checked{*this, Change::State, false};
    Key Shortcut;  // no key: none

    MenuEntry* Parent() const { return parent_; }
    bool Separator() const { return Caption.Get() == "-"; }
    // An entry works if it and all entries above it are enabled.
    bool Reachable() const override
    {
        return Control::Reachable() && (parent_ == nullptr || parent_->Reachable());
    }

private:
    MenuEntry* parent_;
};

}  // namespace malvone
