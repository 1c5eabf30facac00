// MenuBar.cpp: builds the menu and keeps it in step with the model.
#include "ui/qt/MenuBar.h"

#include <QEvent>
#include <QKeySequence>
#include <QMenu>
#include <algorithm>

#include "ui/layer/App.h"
#include "ui/qt/LabelText.h"

namespace malvone::qt {
namespace {

QString KeyName(Key key)
{
    QString name = (key.Shift & kCtrlKey) != 0 ? QStringLiteral("Strg+") : QString();
    if (key.Code >= kKeyF1) {
        return name + QStringLiteral("F%1").arg(key.Code - kKeyF1 + 1);
    }
    return name + QChar(key.Code);
}

// The blanks behind a caption belong to it: they keep the menus apart.
QString CaptionOf(const MenuEntry& entry)
{
    const QString caption = ToQString(entry.Caption.Get());
    return entry.Shortcut == Key() ? caption
                                   : caption + QLatin1Char('\t') + KeyName(entry.Shortcut);
}

}  // namespace

MenuBar::MenuBar(const Window& window, QWidget* parent) : QMenuBar(parent), window_(&window)
{
    const std::vector<MenuEntry*> entries = window.MenuEntries();
    for (MenuEntry* const entry : entries) {
        Add(*entry, std::any_of(entries.begin(), entries.end(), [entry](const MenuEntry* other) {
            return other->Parent() == entry;
        }));
    }
}

// Entries come after the entry that opens them.
void MenuBar::Add(MenuEntry& entry, bool opensMenu)
{
    QAction* action = nullptr;
    QWidget* parent = this;
    if (entry.Parent() != nullptr) {
        parent = actions_.at(entry.Parent())->menu();
    }
    if (opensMenu) {
        auto* const menu = new QMenu(parent);
        action = menu->menuAction();
    } else {
        action = new QAction(parent);
        action->setSeparator(entry.Separator());
        connect(action, &QAction::triggered, this, [this, &entry] { Chosen(entry); });
    }
    // Desktops have ideas of their own about entries with certain words.
    action->setMenuRole(QAction::NoRole);
    parent->addAction(action);
    actions_[&entry] = action;
    Follow(entry);
}

void MenuBar::Follow(const MenuEntry& entry)
{
    QAction* const action = actions_.at(&entry);
    action->setText(entry.Separator() ? QString() : CaptionOf(entry));
    action->setEnabled(entry.Enabled);
    action->setVisible(entry.Visible);
    // Only a checked entry shows a mark, and room for it.
    action->setCheckable(entry.Checked);
    action->setChecked(entry.Checked);
}

void MenuBar::Chosen(MenuEntry& entry)
{
    if (window_ == nullptr) {
        return;
    }
    RaiseMenuClick(entry);
    // Qt has toggled the mark of a checked entry; the model decides whether it is to go.
    if (window_ != nullptr) {
        Follow(entry);
    }
}

bool MenuBar::Open(char letter)
{
    const QKeySequence wanted(Qt::ALT | static_cast<Qt::Key>(letter));
    for (QAction* const action : actions()) {
        if (action->isEnabled() && QKeySequence::mnemonic(action->text()) == wanted) {
            setActiveAction(action);
            QMenu* const menu = action->menu();
            if (menu != nullptr && !menu->actions().empty()) {
                menu->setActiveAction(menu->actions().constFirst());
            }
            return true;
        }
    }
    return false;
}

void MenuBar::Detach()
{
    window_ = nullptr;
    actions_.clear();
}

bool MenuBar::Shut() const
{
    return window_ == nullptr || !App.TakesInput(*window_);
}

bool MenuBar::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::HoverMove:
    case QEvent::KeyPress:
        if (Shut()) {
            return true;
        }
        break;
    default: break;
    }
    return QMenuBar::event(event);
}

bool MenuBar::eventFilter(QObject* object, QEvent* event)
{
    return !Shut() && QMenuBar::eventFilter(object, event);
}

}  // namespace malvone::qt
