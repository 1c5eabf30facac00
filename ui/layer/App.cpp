// App.cpp: the program from start to end, modal loops, and events from outside.
#include "ui/layer/App.h"

#include "Version.h"
#include "ui/layer/Instance.h"
#include "ui/layer/PointerRouting.h"

namespace malvone {

Application App;

Application::Application() : Major(kVersionMajor), Minor(kVersionMinor), Revision(kVersionRevision)
{}

void Application::Begin(malvone::Binding& binding, Platform& platform)
{
    Finish();
    binding_ = &binding;
    platform_ = &platform;
    platform.Over = false;
    ended_ = false;
}

void Application::Finish()
{
    ended_ = true;  // so that no destructor of a window calls the binding
    modals_.clear();
    gone_.clear();
    for (InstanceBase* const instance : InstanceBase::All()) {
        instance->Release();
    }
}

void Application::Ende()
{
    if (ended_) {
        return;
    }
    ended_ = true;
    platform_->Over = true;
    binding_->Ended();
}

Window* Application::MainWindow() const
{
    for (const InstanceBase* const instance : InstanceBase::All()) {
        Window* const window = instance->Current();
        if (window != nullptr && window->Role == WindowRole::Main) {
            return window;
        }
    }
    return nullptr;
}

bool Application::TakesInput(const Window& window) const
{
    return !ended_ && window.Shown() && (TopModal() == nullptr || TopModal() == &window);
}

void Application::RunModal(Window& window)
{
    // By design (meldung-nimmt-druck): one would expect a press to last until its release. That
    // happens elsewhere now, or not at all, and the control would look pressed for good.
    // Test: Layer.PlaysAsItsScriptSays
    for (InstanceBase* const instance : InstanceBase::All()) {
        if (Window* const other = instance->Current()) {
            TakePressFrom(*other);
        }
    }
    while (!ModalOver(window)) {
        binding_->RunModal(window);
    }
    std::erase(modals_, &window);
}

bool ModalOver(const Window& window)
{
    return App.Ended() || !window.Shown();
}

EventScope::EventScope()
{
    ++App.depth_;
}

EventScope::~EventScope()
{
    --App.depth_;
    if (App.depth_ == 0 && !App.gone_.empty()) {
        App.gone_.clear();
    }
}

bool RaiseTimer(Timer& timer)
{
    if (App.Ended() || !timer.Owner().Loaded() || !timer.Running()) {
        return false;
    }
    const EventScope scope;
    timer.Tick.Raise(timer.Index());
    return true;
}

bool RaiseClick(Control& control)
{
    if (!App.TakesInput(control.Owner()) || !control.Reachable()) {
        return false;
    }
    const EventScope scope;
    control.RaiseClick();
    return true;
}

bool RaiseActivate(Window& window)
{
    if (!App.TakesInput(window)) {
        return false;
    }
    const EventScope scope;
    window.Form_Activate();
    return true;
}

bool RaiseClose(Window& window)
{
    if (!App.TakesInput(window)) {
        return false;
    }
    const EventScope scope;
    window.Unload(UnloadMode::TitleBar);
    return true;
}

}  // namespace malvone
