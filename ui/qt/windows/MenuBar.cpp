// MenuBar.cpp: builds the menu and keeps it in step with the model.
#include "ui/qt/windows/MenuBar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QProxyStyle>
#include <QStyleOption>
#include <QToolButton>
#include <QTranslator>
#include <algorithm>

#include "ui/layer/App.h"
#include "ui/qt/drawing/Conversions.h"

namespace malvone::qt {
namespace {

// Translates the one key name that the menu shows.
class KeyNames final : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool control = QLatin1String(context) == QLatin1String("QShortcut") &&
                             QLatin1String(source) == QLatin1String("Ctrl");
        return control ? QStringLiteral("Strg") : QString();
    }
};

// Qt shows the shortcut beside the entry and tells it to screen readers apart from the name. The
// layer routes the key, so Qt may react to it in the open menu only.
void ShowShortcut(QAction& action, Key key)
{
    if (key == Key()) {
        return;
    }
    const int code = key.Code >= kKeyF1 ? Qt::Key_F1 + key.Code - kKeyF1 : key.Code;
    const int control = (key.Shift & kCtrlKey) != 0 ? static_cast<int>(Qt::CTRL) : 0;
    action.setShortcut(QKeySequence(control | code));
    action.setShortcutContext(Qt::WidgetShortcut);
}

// The desktop's own style without the icon of that button, and without the gap of a pixel that fine
// screens show at the end of each entry in the line below the menu bar.
class MenuStyle final : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        const auto* const entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (element != CE_MenuBarItem || entry == nullptr ||
            entry->state.testFlag(State_Selected)) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        QStyleOptionMenuItem wider(*entry);
        wider.rect.adjust(-1, 0, 1, 0);  // on both sides, which leaves the words where they are
        QProxyStyle::drawControl(element, &wider, painter, widget);
    }

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override
    {
        return icon == SP_ToolBarHorizontalExtensionButton
                   ? QIcon()
                   : QProxyStyle::standardIcon(icon, option, widget);
    }
};

}  // namespace

void UseMenuStyle()
{
    QApplication::setStyle(new MenuStyle(QApplication::style()));
}

MenuBar::MenuBar(const Window& window, QWidget* parent) : QMenuBar(parent), window_(window)
{
    hide();
    QCoreApplication::installTranslator(new KeyNames(this));
    if (auto* const button = findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"))) {
        button->setArrowType(Qt::RightArrow);
    }
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
        ShowShortcut(*action, entry.Shortcut);
        // A screen reader that chooses an entry waits for the end of its call.
        connect(
            action, &QAction::triggered, this, [this, &entry] { Chosen(entry); },
            Qt::QueuedConnection);
    }
    // Otherwise some desktops move entries with certain words.
    action->setMenuRole(QAction::NoRole);
    parent->addAction(action);
    actions_[&entry] = action;
    Follow(entry);
}

void MenuBar::Follow(const MenuEntry& entry)
{
    QAction* const action = actions_.at(&entry);
    // The blanks at the end of a caption keep the menus apart.
    action->setText(entry.Separator() ? QString() : ToQString(entry.Caption.Get()));
    action->setEnabled(entry.Enabled);
    action->setVisible(entry.Visible);
    // An unchecked entry leaves no room for a mark.
    action->setCheckable(entry.Checked);
    action->setChecked(entry.Checked);
}

void MenuBar::Chosen(MenuEntry& entry)
{
    RaiseClick(entry);
    Follow(entry);  // Qt has toggled its mark; the model decides about it
}

QAction* MenuBar::OpenedBy(Key key) const
{
    if (key == Key{kKeyF10, 0}) {
        return actions().constFirst();
    }
    const bool letter = key.Shift == kAltKey && key.Code >= 'A' && key.Code <= 'Z';
    const QKeySequence wanted(Qt::ALT | static_cast<Qt::Key>(key.Code));
    for (QAction* const action : actions()) {
        if (letter && action->isEnabled() && QKeySequence::mnemonic(action->text()) == wanted) {
            return action;
        }
    }
    return nullptr;
}

// The first entry is selected as if by an arrow key, which opens no submenu.
void MenuBar::Open(Key key)
{
    QAction* const action = OpenedBy(key);
    if (action == nullptr || Shut()) {
        return;
    }
    setActiveAction(action);
    if (QMenu* const menu = action->menu()) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QCoreApplication::sendEvent(menu, &down);
    }
}

bool MenuBar::Shut() const
{
    return !App.TakesInput(window_);
}

bool MenuBar::event(QEvent* event)
{
    return (event->isInputEvent() && Shut()) || QMenuBar::event(event);
}

bool MenuBar::eventFilter(QObject* object, QEvent* event)
{
    return !Shut() && QMenuBar::eventFilter(object, event);
}

}  // namespace malvone::qt
