// Window.cpp: the life of windows, from the first touch to the unloading.
#include "ui/layer/Window.h"

#include <algorithm>

#include "ui/layer/App.h"
#include "ui/layer/Instance.h"
#include "ui/layer/PointerRouting.h"

namespace malvone {

VisibleProperty& VisibleProperty::operator=(bool visible)
{
    if (visible && !window_.Shown()) {
        window_.Show();
    } else if (!visible) {
        window_.Hide();
    }
    return *this;
}

VisibleProperty::operator bool() const
{
    return window_.Shown();
}

Window::Window(std::string_view name, Twips clientWidth, Twips clientHeight)
    : ClientWidth(clientWidth), ClientHeight(clientHeight), name_(name)
{
    Width = clientWidth;
    Height = clientHeight;
}

Window::~Window() = default;

void Window::Add(Control& control)
{
    controls_.push_back(&control);
    frontToBack_.clear();
}

const std::vector<Visual*>& Window::FrontToBack() const
{
    if (!frontToBack_.empty()) {
        return frontToBack_;
    }
    const auto append = [this](const PictureBox* container, const auto& self) -> void {
        for (Control* const control : controls_) {
            auto* const visual = dynamic_cast<Visual*>(control);
            if (visual == nullptr || visual->Container() != container) {
                continue;
            }
            if (const auto* const box = dynamic_cast<const PictureBox*>(visual)) {
                self(box, self);
            }
            frontToBack_.push_back(visual);
        }
    };
    append(nullptr, append);
    return frontToBack_;
}

std::vector<MenuEntry*> Window::MenuEntries() const
{
    std::vector<MenuEntry*> entries;
    for (Control* const control : controls_) {
        if (auto* const entry = dynamic_cast<MenuEntry*>(control)) {
            entries.push_back(entry);
        }
    }
    return entries;
}

Control* Window::Find(std::string_view fullName) const
{
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) {
        return fullName.starts_with(c->Name()) && c->FullName() == fullName;
    });
    return found == controls_.end() ? nullptr : *found;
}

Visual* Window::InitialFocus() const
{
    Visual* first = nullptr;
    for (Visual* const visual : FrontToBack()) {
        const auto* const button = dynamic_cast<const CommandButton*>(visual);
        if (button != nullptr && button->Default && visual->Reachable() &&
            (first == nullptr || visual->TabIndex < first->TabIndex)) {
            first = visual;
        }
    }
    return first;
}

void Window::SetFocus(Visual* control)
{
    if (focus_ == control) {
        return;
    }
    focus_ = control;
    if (instance_ != nullptr && !App.Ended()) {
        App.Binding().FocusChanged(*this);
    }
}

bool Window::Modal() const
{
    return std::find(App.modals_.begin(), App.modals_.end(), this) != App.modals_.end();
}

void Window::Drag()
{
    LetGo(*this);
    App.Binding().DragWindow(*this);
}

void Window::Move(Twips left, Twips top)
{
    Left = left;
    Top = top;
}

void Window::Move(Twips left, Twips top, Twips width, Twips height)
{
    Move(left, top);
    Width = width;
    Height = height;
}

void Window::Show(ShowMode mode)
{
    if (App.Ended()) {
        return;
    }
    const EventScope scope;
    shown_ = true;
    if (mode == ShowMode::Modal) {
        App.modals_.push_back(this);
    }
    if (focus_ == nullptr) {
        SetFocus(InitialFocus());
    }
    App.Binding().WindowShown(*this, mode);
    Form_Activate();
    if (mode == ShowMode::Modal) {
        App.RunModal(*this);
    }
}

void Window::Hide()
{
    if (!shown_ || App.Ended()) {
        return;
    }
    shown_ = false;
    LetGo(*this);
    focus_ = nullptr;  // shown again, it begins with the designed focus
    App.Binding().WindowHidden(*this);
}

bool Window::Unload(UnloadMode mode)
{
    if (instance_ == nullptr || instance_->Current() != this || App.Ended()) {
        return false;
    }
    const EventScope scope;
    std::int16_t cancel = 0;
    Form_QueryUnload(cancel, mode);
    if (cancel != 0 || App.Ended() || instance_ == nullptr) {
        return false;
    }
    Form_Unload();
    if (App.Ended() || instance_ == nullptr) {
        return true;  // the handler has ended the program, or unloaded the window itself
    }
    shown_ = false;
    App.Binding().WindowUnloaded(*this);
    App.gone_.push_back(instance_->Release());
    instance_ = nullptr;
    return true;
}

void Window::Changed(Change what)
{
    if (instance_ != nullptr && !App.Ended()) {
        App.Binding().WindowChanged(*this, what);
    }
}

}  // namespace malvone
