// Instance.cpp: the list of all windows by name; tells the binding of a new window.
#include "ui/layer/Instance.h"

#include <algorithm>

#include "ui/layer/App.h"

namespace malvone {

namespace {

std::vector<InstanceBase*>& Instances()
{
    static std::vector<InstanceBase*> instances;
    return instances;
}

}  // namespace

InstanceBase::InstanceBase(std::string_view name) : name_(name)
{
    Instances().push_back(this);
}

const std::vector<InstanceBase*>& InstanceBase::All()
{
    return Instances();
}

InstanceBase* InstanceBase::Find(std::string_view name)
{
    const auto found = std::find_if(Instances().begin(), Instances().end(),
                                    [&](const InstanceBase* i) { return i->Name() == name; });
    return found == Instances().end() ? nullptr : *found;
}

void InstanceBase::Announce(Window& window)
{
    window.instance_ = this;
    // After the end a touch must still return a window, but nothing is loaded any more.
    if (App.Ended()) {
        return;
    }
    App.Binding().WindowLoaded(window);
    window.Form_Load();
}

}  // namespace malvone
