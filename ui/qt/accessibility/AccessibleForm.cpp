// AccessibleForm.cpp: the tree behind the painted windows.
#include "ui/qt/accessibility/AccessibleForm.h"

#include <QGuiApplication>
#include <QMenuBar>
#include <algorithm>
#include <utility>

#include "ui/layer/PointerRouting.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/Painting.h"
#include "ui/qt/windows/FormWidget.h"

namespace malvone::qt {
namespace {

// Null if the widget or its window is gone.
Window* ModelOf(const FormWidget* form)
{
    return form != nullptr ? form->Model() : nullptr;
}

// Where the arrow keys have led; in a message, the words.
const Visual* PlaceOn(const Window& window)
{
    return window.Role == WindowRole::Message ? SpokenOn(window).front().Where
                                              : window.Highlighted();
}

void Tell(QAccessibleInterface* who, QAccessible::Event what)
{
    QAccessibleEvent event(who, what);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

bool AccessibleLeaf::isValid() const
{
    return ModelOf(form_) != nullptr;
}

QAccessibleInterface* AccessibleLeaf::parent() const
{
    return QAccessible::queryAccessibleInterface(form_);
}

QString AccessiblePart::text(QAccessible::Text kind) const
{
    if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Description)) {
        return {};
    }
    return ToQString(kind == QAccessible::Name ? NameOf(part_) : DescriptionOf(part_));
}

// Edges are rounded, not sizes: what touches in the design does not overlap here.
QRect AccessiblePart::rect() const
{
    const FormWidget* const form = form_;
    if (ModelOf(form) == nullptr) {
        return {};
    }
    QRectF place = PlaceOf(*part_.Where);
    for (const Image* const digit : part_.Digits()) {
        place |= digit->Visible ? PlaceOf(*digit) : QRectF();
    }
    place |= part_.TellsWith() ? PlaceOf(*part_.With) : QRectF();
    const QRect pixels = OnScreen(form->DesignScale().ToWindow(place), 1);
    return {form->mapToGlobal(pixels.topLeft()), pixels.size()};
}

// Orca reads the labels of a window that becomes active, unless a press of the mouse has opened it.
// So the words of a message are no label, but have the focus, and it reads what has the focus.
QAccessible::Role AccessiblePart::role() const
{
    const Window* const window = ModelOf(form_);
    const bool message = window != nullptr && window->Role == WindowRole::Message;
    return Pressable() ? QAccessible::Button
           : message   ? QAccessible::Paragraph
                       : QAccessible::StaticText;
}

QAccessible::State AccessiblePart::state() const
{
    QAccessible::State state;
    const Window* const window = ModelOf(form_);
    if (window == nullptr) {
        state.invalid = true;
        return state;
    }
    state.disabled = !part_.Where->Enabled;
    state.invisible = !IsSpokenNow(part_);
    state.focusable = part_.Where->ByArrows;
    state.focused = part_.Where == PlaceOn(*window) && form_->isActiveWindow();
    return state;
}

void* AccessiblePart::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

bool AccessiblePart::Pressable() const
{
    return part_.Kind == SpokenKind::Button || part_.Kind == SpokenKind::Cell;
}

QStringList AccessiblePart::actionNames() const
{
    return isValid() && Pressable() ? QStringList{pressAction()} : QStringList();
}

// The press may open a message, and a screen reader waits until this call returns.
void AccessiblePart::doAction(const QString& name)
{
    if (isValid() && Pressable() && name == pressAction()) {
        QMetaObject::invokeMethod(
            form_, [visual = part_.Where] { Press(*visual); }, Qt::QueuedConnection);
    }
}

QString AccessibleNews::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? Words : QString();
}

QAccessible::State AccessibleNews::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = Words.isEmpty();
    return state;
}

AccessibleForm::~AccessibleForm()
{
    for (const Node& node : nodes_) {
        if (node.Id != 0) {
            QAccessible::deleteAccessibleInterface(node.Id);
        }
    }
    if (news_ != 0) {
        QAccessible::deleteAccessibleInterface(news_);
    }
}

FormWidget* AccessibleForm::Form() const
{
    return static_cast<FormWidget*>(widget());
}

// Made on demand: screen readers may know a window before its cells exist.
std::vector<AccessibleForm::Node>& AccessibleForm::Nodes() const
{
    FormWidget* const form = Form();
    if (!nodes_.empty() || ModelOf(form) == nullptr) {
        return nodes_;
    }
    for (Spoken& part : SpokenOn(*form->Model())) {
        Node node{std::move(part)};
        if (node.Part.Kind != SpokenKind::NameBox) {
            node.Id = QAccessible::registerAccessibleInterface(new AccessiblePart(form, node.Part));
        }
        node.Name = ToQString(NameOf(node.Part));
        node.Seen = IsSpokenNow(node.Part);
        nodes_.push_back(std::move(node));
    }
    if (form->Model()->Role == WindowRole::Main) {
        news_ = QAccessible::registerAccessibleInterface(new AccessibleNews(form));
    }
    return nodes_;
}

QString AccessibleForm::text(QAccessible::Text kind) const
{
    const Window* const window = ModelOf(Form());
    return kind == QAccessible::Name && window != nullptr ? ToQString(TitleOf(*window))
                                                          : QAccessibleWidget::text(kind);
}

// Qt tells that a window has got the keyboard before it calls the window active. Taken at its word,
// it would tell that the main window goes when it comes back, and Orca would stop speaking.
QAccessible::State AccessibleForm::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const QWindow* const focus = QGuiApplication::focusWindow();
    state.active = state.active || (focus != nullptr && focus == Form()->windowHandle());
    return state;
}

QAccessible::Role AccessibleForm::role() const
{
    const Window* const window = ModelOf(Form());
    if (window != nullptr && window->Role == WindowRole::Message) {
        return QAccessible::AlertMessage;
    }
    return window != nullptr && window->Modal() ? QAccessible::Dialog : QAccessible::Window;
}

// A text box that cannot be typed into is read together with its points.
bool AccessibleForm::IsReadable(const Node& node)
{
    return node.Id != 0 || IsSpokenNow(node.Part);
}

QAccessibleInterface* AccessibleForm::InterfaceOf(const Node& node) const
{
    return node.Id != 0 ? QAccessible::accessibleInterface(node.Id)
                        : QAccessible::queryAccessibleInterface(Form()->BoxOf(*node.Part.Where));
}

QAccessibleInterface* AccessibleForm::InterfaceOf(const Visual* visual) const
{
    const std::vector<Node>& nodes = Nodes();
    const auto found = std::find_if(nodes.begin(), nodes.end(), [visual](const Node& node) {
        const std::span<Image* const> digits = node.Part.Digits();
        return (node.Part.Where == visual && IsReadable(node)) ||
               (node.Part.TellsWith() && node.Part.With == visual) ||
               std::find(digits.begin(), digits.end(), visual) != digits.end();
    });
    return visual == nullptr || found == nodes.end() ? nullptr : InterfaceOf(*found);
}

QList<QAccessibleInterface*> AccessibleForm::Children() const
{
    QList<QAccessibleInterface*> children;
    if (ModelOf(Form()) == nullptr) {
        return children;
    }
    if (auto* const menu = Form()->findChild<QMenuBar*>()) {
        children.push_back(QAccessible::queryAccessibleInterface(menu));
    }
    for (const Node& node : Nodes()) {
        if (IsReadable(node)) {
            children.push_back(InterfaceOf(node));
        }
    }
    if (news_ != 0) {
        children.push_back(QAccessible::accessibleInterface(news_));
    }
    return children;
}

int AccessibleForm::childCount() const
{
    return static_cast<int>(Children().size());
}

QAccessibleInterface* AccessibleForm::child(int index) const
{
    return Children().value(index);
}

int AccessibleForm::indexOfChild(const QAccessibleInterface* child) const
{
    return static_cast<int>(Children().indexOf(child));
}

QAccessibleInterface* AccessibleForm::childAt(int x, int y) const
{
    const FormWidget* const form = Form();
    const Visual* const visual =
        ModelOf(form) != nullptr ? form->Pointer().ControlUnder(form->mapFromGlobal(QPoint(x, y)))
                                 : nullptr;
    QAccessibleInterface* const part = InterfaceOf(visual);
    return part != nullptr ? part : QAccessibleWidget::childAt(x, y);
}

QAccessibleInterface* AccessibleForm::focusChild() const
{
    const Window* const window = ModelOf(Form());
    QAccessibleInterface* const place =
        window != nullptr && Form()->isActiveWindow() ? InterfaceOf(PlaceOn(*window)) : nullptr;
    return place != nullptr ? place : QAccessibleWidget::focusChild();
}

void AccessibleForm::Announce(const QString& words)
{
    Nodes();
    QAccessibleInterface* const news = QAccessible::accessibleInterface(news_);
    static_cast<AccessibleNews*>(news)->Words = words;
    Tell(news, QAccessible::NameChanged);
    Tell(news, QAccessible::ObjectShow);
}

bool AccessibleForm::TellChanges(int names)
{
    bool more = false;
    const Visual* const place = PlaceOn(*Form()->Model());
    for (Node& node : Nodes()) {
        if (node.Id == 0) {
            continue;
        }
        const QString name = ToQString(NameOf(node.Part));
        const bool seen = IsSpokenNow(node.Part);
        if (node.Name != name && (names > 0 || node.Part.Where == place)) {
            node.Name = name;
            Tell(InterfaceOf(node), QAccessible::NameChanged);
            --names;
        }
        more = more || node.Name != name;
        if (std::exchange(node.Seen, seen) != seen) {
            Tell(InterfaceOf(node), seen ? QAccessible::ObjectShow : QAccessible::ObjectHide);
        }
    }
    const bool elsewhere = std::exchange(place_, place) != place;
    if (role() == QAccessible::AlertMessage ? Form()->isActiveWindow() : elsewhere) {
        QAccessibleInterface* const part = InterfaceOf(place);
        Tell(part != nullptr ? part : this, QAccessible::Focus);
    }
    return more;
}

}  // namespace malvone::qt
