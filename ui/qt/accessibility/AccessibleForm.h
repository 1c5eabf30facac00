// AccessibleForm.h: a window and its spoken parts as a tree for screen readers.
#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <QList>
#include <QPointer>
#include <vector>

#include "ui/services/Spoken.h"

namespace malvone::qt {

class FormWidget;

// A leaf of a window's tree: a part without a widget of its own.
class AccessibleLeaf : public QAccessibleInterface
{
public:
    explicit AccessibleLeaf(FormWidget* form) : form_(form) {}

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

protected:
    QPointer<FormWidget> form_;
};

// A painted part: named, placed and pressed through the model.
class AccessiblePart final : public AccessibleLeaf, public QAccessibleActionInterface
{
public:
    AccessiblePart(FormWidget* form, Spoken part) : AccessibleLeaf(form), part_(std::move(part)) {}

    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    Spoken part_;

    bool Pressable() const;
};

// News in words: screen readers say a notification when it is shown.
class AccessibleNews final : public AccessibleLeaf
{
public:
    using AccessibleLeaf::AccessibleLeaf;

    QString Words;

    QString text(QAccessible::Text kind) const override;
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override;
};

// The window: the menu bar, then the spoken parts in reading order; the main window has the news.
class AccessibleForm final : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;
    ~AccessibleForm() override;

    QString text(QAccessible::Text kind) const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    void Announce(const QString& words);
    // Announces what has been renamed, has come or has gone since the last call, and where the
    // arrow keys have led. Announces at most `names` names besides that of this place; returns
    // whether more are left.
    bool TellChanges(int names);

private:
    // A leaf, and what screen readers were last told about it.
    struct Node
    {
        Spoken Part = {};
        QAccessible::Id Id = 0;  // of the leaf; 0 for a real widget
        QString Name = {};
        bool Seen = false;
    };

    mutable std::vector<Node> nodes_;
    mutable QAccessible::Id news_ = 0;
    const Visual* place_ = nullptr;

    FormWidget* Form() const;
    std::vector<Node>& Nodes() const;
    static bool IsReadable(const Node& node);
    QAccessibleInterface* InterfaceOf(const Node& node) const;
    QAccessibleInterface* InterfaceOf(const Visual* visual) const;
    QList<QAccessibleInterface*> Children() const;
};

}  // namespace malvone::qt
