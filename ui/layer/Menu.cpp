// Menu.cpp: whether an entry of a menu works.
#include "ui/layer/Menu.h"

namespace malvone {

bool MenuEntry::Reachable() const
{
    return Control::Reachable() && (parent_ == nullptr || parent_->Reachable());
}

}  // namespace malvone
