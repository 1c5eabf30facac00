// AccessibleForm.h: a window and its painted controls as a tree for screen readers.
#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <unordered_map>

#include "ui/layer/Control.h"

namespace malvone::qt {

class FormWidget;

// One painted control. It is named and pressed through the model.
class AccessibleControl final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleControl(FormWidget* form, Visual* visual) : form_(form), visual_(visual) {}

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<FormWidget> form_;
    Visual* visual_;

    bool Pressable() const;
};

// The window: menu bar and text boxes are Qt's own, the named controls follow behind them.
class AccessibleForm final : public QAccessibleWidget
{
public:
    explicit AccessibleForm(FormWidget* form);
    ~AccessibleForm() override;

    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessible::Role role() const override;

    // The interface of one control; null where it has no name or cannot be seen.
    QAccessibleInterface* Of(const Visual& visual) const;

private:
    mutable std::unordered_map<const Visual*, QAccessible::Id> known_;

    FormWidget* Form() const;
    // The named controls that can be seen, the cells of the board by their numbers.
    std::vector<Visual*> Spoken() const;
    QAccessibleInterface* InterfaceOf(Visual& visual) const;
};

}  // namespace malvone::qt
