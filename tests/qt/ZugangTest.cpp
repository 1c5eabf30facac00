// ZugangTest.cpp: what who cannot see or point finds in the windows of the game; how it reaches a
// screen reader is played in zugang_e2e.py.
#include <QAccessible>

#include "tests/qt/Spieltisch.h"
#include "ui/qt/drawing/Conversions.h"

namespace malvone::qt {
namespace {

class Zugang : public Spieltisch
{
protected:
    QAccessibleInterface* Tree(const Window& window)
    {
        return QAccessible::queryAccessibleInterface(&Form(window));
    }

    static void PressIt(QAccessibleInterface* tree, const QString& name)
    {
        for (int i = 0; i < tree->childCount(); ++i) {
            if (tree->child(i)->text(QAccessible::Name) == name) {
                tree->child(i)->actionInterface()->doAction(
                    QAccessibleActionInterface::pressAction());
                return;
            }
        }
        ADD_FAILURE() << "nothing is called " << qPrintable(name);
    }
};

TEST_F(Zugang, EveryPartIsFoundWhereItIsSeen)
{
    int seen = 0;
    for (const Window* const window :
         {static_cast<Window*>(&*frmTessel), static_cast<Window*>(&*frmBeste)}) {
        const bool open = window->Shown();
        if (!open) {
            frmBeste->Show();
        }
        QAccessibleInterface* const tree = Tree(*window);
        for (int i = 0; i < tree->childCount(); ++i) {
            QAccessibleInterface* const part = tree->child(i);
            const QString name = part->text(QAccessible::Name);
            EXPECT_EQ(tree->indexOfChild(part), i) << qPrintable(name);
            EXPECT_EQ(part->parent(), tree) << qPrintable(name);
            if (part->actionInterface() == nullptr || part->state().invisible || name.isEmpty()) {
                continue;
            }
            const QPoint middle = part->rect().center();
            EXPECT_EQ(tree->childAt(middle.x(), middle.y()), part) << qPrintable(name);
            ++seen;
        }
    }
    EXPECT_GT(seen, 140);
}

TEST_F(Zugang, APressComesBackBeforeTheQuestionThatItOpens)
{
    PressIt(Tree(*frmTessel), QStringLiteral("Beenden"));
    EXPECT_EQ(App.TopModal(), nullptr);
    WhileOpen([] { QCoreApplication::processEvents(); },
              [&] {
                  EXPECT_EQ(Tree(*frmMsgJa)->role(), QAccessible::AlertMessage);
                  PressIt(Tree(*frmMsgJa), QStringLiteral("Nein"));
                  QCoreApplication::processEvents();
              });
    EXPECT_FALSE(frmMsgJa.Loaded());
    EXPECT_FALSE(App.Ended());
}

TEST_F(Zugang, AFrameFollowsTheArrowKeysUntilThePointerMoves)
{
    FormWidget& form = Form(*frmTessel);
    const auto look = [&form](const Visual& cell) {
        return Painted(form).copy(OnScreen(form.PlaceOnForm(cell), 1));
    };
    const QImage plain = look(frmTessel->imgFeld(20));
    constexpr bool heldDown = true;
    Press(form, Qt::Key_Right);
    Press(form, Qt::Key_Right, {}, {}, heldDown);
    EXPECT_EQ(frmTessel->Highlighted(), &frmTessel->imgFeld(20));
    EXPECT_EQ(look(frmTessel->imgFeld(10)), plain);
    EXPECT_NE(look(frmTessel->imgFeld(20)), plain);
    PointAt(frmTessel->imgFeld(1));
    EXPECT_EQ(look(frmTessel->imgFeld(20)), plain);
}

}  // namespace
}  // namespace malvone::qt
