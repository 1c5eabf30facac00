// AccessibilityTest.cpp: what players who cannot see or point find in the windows. How it
// reaches a screen reader is played in accessibility_e2e.py.
#include <QAccessible>

#include "tests/qt/GameOnScreen.h"
#include "ui/qt/drawing/Conversions.h"

namespace malvone::qt {
namespace {

using Accessibility = GameOnScreen;

TEST_F(Accessibility, EveryPartIsFoundWhereItIsSeen)
{
    frmBeste->Show();
    int seen = 0;
    for (FormWidget* const form : {&Form(*frmTessel), &Form(*frmBeste)}) {
        QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(form);
        for (int i = 0; i < tree->childCount(); ++i) {
            QAccessibleInterface* const part = tree->child(i);
            const QString name = part->text(QAccessible::Name);
            EXPECT_TRUE(tree->indexOfChild(part) == i && part->parent() == tree)
                << qPrintable(name);
            if (part->actionInterface() != nullptr && !part->state().invisible && !name.isEmpty()) {
                const QPoint middle = part->rect().center();
                EXPECT_EQ(tree->childAt(middle.x(), middle.y()), part) << qPrintable(name);
                ++seen;
            }
        }
    }
    EXPECT_GT(seen, 140);
}

TEST_F(Accessibility, AFrameFollowsTheArrowKeysUntilThePointerMoves)
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
