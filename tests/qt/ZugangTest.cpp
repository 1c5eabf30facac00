// ZugangTest.cpp: what a screen reader finds in the windows of the game, and what it can do there.
#include <QAccessible>

#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "tests/qt/Spieltisch.h"

namespace malvone::qt {
namespace {

class Zugang : public Spieltisch
{
protected:
    QAccessibleInterface* Tree(const Window& window)
    {
        return QAccessible::queryAccessibleInterface(&Form(window));
    }

    static QAccessibleInterface* Named(QAccessibleInterface* tree, const QString& name)
    {
        for (int i = 0; i < tree->childCount(); ++i) {
            QAccessibleInterface* const child = tree->child(i);
            if (child->text(QAccessible::Name) == name) {
                return child;
            }
        }
        ADD_FAILURE() << "nothing is called " << qPrintable(name);
        return nullptr;
    }

    static void PressIt(QAccessibleInterface* control)
    {
        QAccessibleActionInterface* const action =
            control != nullptr ? control->actionInterface() : nullptr;
        ASSERT_NE(action, nullptr);
        if (action != nullptr) {
            action->doAction(QAccessibleActionInterface::pressAction());
        }
    }
};

TEST_F(Zugang, EveryControlThatTakesAClickHasANameAndAPlace)
{
    QAccessibleInterface* const tree = Tree(*frmTessel);
    EXPECT_EQ(tree->role(), QAccessible::Window);
    for (const Visual* const visual : frmTessel->FrontToBack()) {
        if (!IsSeen(*visual) || !visual->Click.Connected()) {
            continue;
        }
        QAccessibleInterface* const control =
            Named(tree, QString::fromStdString(visual->ToolTipText));
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->role(), QAccessible::Button);
        const QPoint middle = control->rect().center();
        EXPECT_EQ(tree->childAt(middle.x(), middle.y()), control);
        EXPECT_EQ(tree->child(tree->indexOfChild(control)), control);
        EXPECT_EQ(control->parent(), tree);
    }
}

TEST_F(Zugang, CellsAreCalledByColumnRowAndColour)
{
    PressIt(Named(Tree(*frmTessel), QStringLiteral("Neues Spiel beginnen")));
    EXPECT_EQ(Stand.RundenZahl, 1);
    const char* const colours[] = {"leer", "orange", "hellgrün", "gelb", "himmelblau"};
    for (const auto& [cell, place] :
         {std::pair{1, "Spalte 1, Reihe 1, "}, std::pair{25, "Spalte 3, Reihe 5, "},
          std::pair{140, "Spalte 14, Reihe 10, "}}) {
        const auto colour = static_cast<std::size_t>(frmTessel->imgFeld(cell).Tag->Number());
        Named(Tree(*frmTessel), QString::fromUtf8(place) + QString::fromUtf8(colours[colour]));
    }
}

TEST_F(Zugang, AStoneCanBeTakenWithoutAPointer)
{
    PressIt(Named(Tree(*frmTessel), QStringLiteral("Neues Spiel beginnen")));
    for (int cell = 1; cell <= kZellen - kReihen && Stand.PunkteGesamt == 0; ++cell) {
        if (frmTessel->imgFeld(cell).Tag == frmTessel->imgFeld(cell + kReihen).Tag) {
            Image& field = frmTessel->imgFeld(cell);
            QAccessibleInterface* const tree = Tree(*frmTessel);
            const QPoint middle = Middle(Form(*frmTessel), field).toPoint();
            const QPoint onScreen = Form(*frmTessel).mapToGlobal(middle);
            PressIt(tree->childAt(onScreen.x(), onScreen.y()));
        }
    }
    EXPECT_GE(Stand.PunkteGesamt, 4);
}

TEST_F(Zugang, AQuestionIsADialogThatCanBeReadAndAnswered)
{
    WhileOpen([&] { Form(*frmTessel).close(); },
              [&] {
                  QAccessibleInterface* const tree = Tree(*frmMsgJa);
                  EXPECT_EQ(tree->role(), QAccessible::Dialog);
                  QAccessibleInterface* const text = Named(
                      tree,
                      QStringLiteral("Sind Sie sicher, dass Sie das Spiel beenden möchten?\""));
                  ASSERT_NE(text, nullptr);
                  EXPECT_EQ(text->role(), QAccessible::StaticText);
                  PressIt(Named(tree, QStringLiteral("Fenster schließen ohne Bestätigung")));
              });
    EXPECT_FALSE(frmMsgJa.Loaded());
    EXPECT_FALSE(App.Ended());
}

}  // namespace
}  // namespace malvone::qt
