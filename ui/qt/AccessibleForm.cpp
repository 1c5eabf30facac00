// AccessibleForm.cpp: the tree behind the painted windows.
#include "ui/qt/AccessibleForm.h"

#include <algorithm>
#include <typeinfo>

#include "ui/layer/PointerRouting.h"
#include "ui/qt/Accessibility.h"
#include "ui/qt/FormWidget.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Scale.h"

namespace malvone::qt {
namespace {

// Null when the widget or its window has gone.
Window* ModelOf(const FormWidget* form)
{
    return form != nullptr ? form->Model() : nullptr;
}

}  // namespace

bool AccessibleControl::isValid() const
{
    return ModelOf(form_) != nullptr;
}

QAccessibleInterface* AccessibleControl::parent() const
{
    return QAccessible::queryAccessibleInterface(form_);
}

QString AccessibleControl::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && isValid() ? SpokenName(*visual_) : QString();
}

QRect AccessibleControl::rect() const
{
    const FormWidget* const form = form_;
    if (ModelOf(form) == nullptr) {
        return {};
    }
    const QRect place = PlaceOf(*visual_).toAlignedRect().translated(form->Origin());
    return {form->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role AccessibleControl::role() const
{
    if (isValid() && Pressable()) {
        return QAccessible::Button;
    }
    const bool words = isValid() && dynamic_cast<const Label*>(visual_) != nullptr;
    return words ? QAccessible::StaticText : QAccessible::Graphic;
}

QAccessible::State AccessibleControl::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.disabled = isValid() && !visual_->Reachable();
    state.invisible = isValid() && !IsSeen(*visual_);
    return state;
}

void* AccessibleControl::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

bool AccessibleControl::Pressable() const
{
    return visual_->Click.Connected() || visual_->MouseDown.Connected();
}

QStringList AccessibleControl::actionNames() const
{
    return isValid() && Pressable() ? QStringList{pressAction()} : QStringList();
}

// As if the player pointed at the middle of the control and clicked.
void AccessibleControl::doAction(const QString& name)
{
    if (!isValid() || name != pressAction()) {
        return;
    }
    Mouse mouse;
    mouse.X = visual_->WindowLeft() + visual_->Width / 2;
    mouse.Y = visual_->WindowTop() + visual_->Height / 2;
    PointerMoved(visual_->Owner(), mouse);
    mouse.Button = kLeftButton;
    // The window may go away with each of these, and this object with it.
    const QPointer<FormWidget> form = form_;
    if (Window* const window = ModelOf(form)) {
        PointerPressed(*window, mouse);
    }
    if (Window* const window = ModelOf(form)) {
        PointerReleased(*window, mouse);
    }
}

AccessibleForm::AccessibleForm(FormWidget* form) : QAccessibleWidget(form) {}

AccessibleForm::~AccessibleForm()
{
    for (const auto& [visual, id] : known_) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

FormWidget* AccessibleForm::Form() const
{
    return static_cast<FormWidget*>(widget());
}

std::vector<Visual*> AccessibleForm::Spoken() const
{
    std::vector<Visual*> spoken;
    const Window* const window = ModelOf(Form());
    if (window == nullptr) {
        return spoken;
    }
    for (Visual* const visual : window->FrontToBack()) {
        const Visual& seen = *visual;
        if (typeid(seen) != typeid(TextBox) && IsSeen(seen) && !SpokenName(seen).isEmpty()) {
            spoken.push_back(visual);
        }
    }
    return spoken;
}

QAccessibleInterface* AccessibleForm::InterfaceOf(Visual& visual) const
{
    const auto found = known_.find(&visual);
    if (found != known_.end()) {
        return QAccessible::accessibleInterface(found->second);
    }
    auto* const control = new AccessibleControl(Form(), &visual);
    known_[&visual] = QAccessible::registerAccessibleInterface(control);
    return control;
}

QAccessibleInterface* AccessibleForm::Of(const Visual& visual) const
{
    const std::vector<Visual*> spoken = Spoken();
    const auto found = std::find(spoken.begin(), spoken.end(), &visual);
    return found == spoken.end() ? nullptr : InterfaceOf(**found);
}

int AccessibleForm::childCount() const
{
    return QAccessibleWidget::childCount() + static_cast<int>(Spoken().size());
}

QAccessibleInterface* AccessibleForm::child(int index) const
{
    const int widgets = QAccessibleWidget::childCount();
    if (index < widgets) {
        return QAccessibleWidget::child(index);
    }
    const std::vector<Visual*> spoken = Spoken();
    const auto place = static_cast<std::size_t>(index - widgets);
    return place < spoken.size() ? InterfaceOf(*spoken[place]) : nullptr;
}

QAccessibleInterface* AccessibleForm::childAt(int x, int y) const
{
    const FormWidget* const form = Form();
    const Visual* visual = nullptr;
    if (ModelOf(form) != nullptr) {
        visual = form->ControlUnder(form->mapFromGlobal(QPoint(x, y)));
    }
    QAccessibleInterface* const control = visual != nullptr ? Of(*visual) : nullptr;
    return control != nullptr ? control : QAccessibleWidget::childAt(x, y);
}

int AccessibleForm::indexOfChild(const QAccessibleInterface* child) const
{
    const int widgets = QAccessibleWidget::childCount();
    const std::vector<Visual*> spoken = Spoken();
    for (std::size_t i = 0; i < spoken.size(); ++i) {
        const auto found = known_.find(spoken[i]);
        if (found != known_.end() && QAccessible::accessibleInterface(found->second) == child) {
            return widgets + static_cast<int>(i);
        }
    }
    return QAccessibleWidget::indexOfChild(child);
}

QAccessible::Role AccessibleForm::role() const
{
    const Window* const window = ModelOf(Form());
    return window != nullptr && window->Modal() ? QAccessible::Dialog : QAccessible::Window;
}

}  // namespace malvone::qt
