// WindowsTest.cpp: the game in Qt's windows: painting, pointer, keys, places and modal windows.
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <cstring>

#include "state/Beste.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "tests/qt/GameOnScreen.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/PictureStore.h"
#include "ui/qt/windows/BackdropWindow.h"
#include "ui/windows/FrmBilder.h"

namespace malvone::qt {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif

struct Watch : QObject
{
    explicit Watch(std::function<void(const QEvent&)> see) : See(std::move(see)) {}
    bool eventFilter(QObject*, QEvent* event) override { return See(*event), false; }

    std::function<void(const QEvent&)> See;
};

class Windows : public GameOnScreen
{
protected:
    void NewGame() { Click(frmTessel->lblNeu); }

    static std::int32_t Stone(int cell) { return frmTessel->imgFeld(cell).Tag->Number(); }

    // A cell whose right neighbour has its colour.
    static int CellWithPartner()
    {
        for (int cell = 1; cell <= kZellen - kReihen; ++cell) {
            if (Stone(cell) != 0 && Stone(cell) == Stone(cell + kReihen)) {
                return cell;
            }
        }
        ADD_FAILURE() << "a board without neighbours of one colour";
        return 1;
    }

    // The number of cells that do not look on the screen as the model says.
    int WrongCells()
    {
        FormWidget& form = Form(*frmTessel);
        const QImage painted = Painted(form);
        int wrong = 0;
        for (int cell = 1; cell <= kZellen; ++cell) {
            const Image& field = frmTessel->imgFeld(cell);
            const QRect place = OnScreen(form.PlaceOnForm(field), 1);
            QImage expected(place.size(), painted.format());
            QPainter(&expected).drawImage(0, 0, pictures_.Get(field.Picture, place.size()));
            wrong += painted.copy(place) == expected ? 0 : 1;
        }
        return wrong;
    }

    static BackdropWindow& Backdrop()
    {
        const QWindowList all = QGuiApplication::topLevelWindows();
        return *qobject_cast<BackdropWindow*>(
            *std::find_if(all.begin(), all.end(), [](const QWindow* window) {
                return qobject_cast<const BackdropWindow*>(window) != nullptr;
            }));
    }

    PictureStore pictures_;
};

TEST_F(Windows, PointingRepaintsOnlyTheStonesAndTheText)
{
    NewGame();
    PointAt(frmTessel->Picture1);
    QCoreApplication::processEvents();
    QRegion painted;
    Watch watch([&](const QEvent& event) {
        if (event.type() == QEvent::Paint) {
            painted += static_cast<const QPaintEvent&>(event).region();
        }
    });
    FormWidget& form = Form(*frmTessel);
    form.installEventFilter(&watch);
    PointAt(frmTessel->imgFeld(CellWithPartner()));
    QCoreApplication::processEvents();
    const QRect text = form.PlaceOnForm(frmTessel->lblSumme).toAlignedRect();
    const QRect board = form.PlaceOnForm(frmTessel->Picture1).toAlignedRect();
    EXPECT_FALSE(painted.isEmpty());
    EXPECT_TRUE((painted - text - board).isEmpty());
    int pixels = 0;
    for (const QRect& part : painted - text) {
        pixels += part.width() * part.height();
    }
    // A group is a part of the board only; the frame around it stays as it is.
    EXPECT_LT(pixels, board.width() * board.height() / 2);
}

TEST_F(Windows, TheWholeDesignGrowsAndShrinksWithItsWindowInWholePixels)
{
    NewGame();
    FormWidget& form = Form(*frmTessel);
    const int menu = form.findChild<QMenuBar*>()->height();
    const struct
    {
        QSize Client;
        int Cell;
    } cases[] = {{{1510, 926}, 64}, {{1600, 926}, 64}, {{1133, 1200}, 48}, {{640, 420}, 27}};
    for (const auto& [client, cell] : cases) {
        form.resize(client.grownBy(QMargins(0, menu, 0, 0)));
        QCoreApplication::processEvents();
        EXPECT_EQ(form.PlaceOnForm(frmTessel->imgFeld(1)).width(), cell);
        EXPECT_EQ(WrongCells(), 0) << "cells of " << cell << " pixels";
        // The room that is left over lies at both sides, and the ornament goes on there.
        const QRectF design(form.DesignScale().Corner(), DesignOf(*frmTessel) * cell / 32);
        EXPECT_NEAR(design.center().x(), client.width() / 2.0, 1);
        EXPECT_NEAR(design.center().y(), menu + client.height() / 2.0, 1);
        EXPECT_NE(Painted(form).pixelColor(0, form.height() - 1), QColor(Qt::white));

        const Image& stone = frmTessel->imgFeld(CellWithPartner());
        Click(stone);
        EXPECT_GE(Stand.PunkteGesamt, 4);
        EXPECT_EQ(WrongCells(), 0);
    }
}

// Cells are painted in plain colours, each in another one than all around it. The pointer is asked
// along a whole line of pixels wherever the row of cells changes.
TEST_F(Windows, EachPixelOfTheBoardAnswersForTheCellThatIsPaintedThere)
{
    FormWidget& form = Form(*frmTessel);
    const auto& cells = frmTessel->imgFeld;
    const auto stoneOf = [](const Visual* cell) {
        const int place = cell->Index() - 1;
        return (place + 2 * (place / kReihen)) % (kFarben + 1);
    };
    const auto colourOf = [](int stone) { return qRgb(0, 0, stone + 1); };
    for (int cell = 1; cell <= kZellen; ++cell) {
        frmTessel->imgFeld(cell).Picture = frmBilder->imgBild(stoneOf(&cells(cell))).Picture;
    }
    frmTessel->Picture = frmTessel->Picture1.Picture = Picture();
    frmTessel->Picture1.BackColor = 0;
    const QRectF board = PlaceOf(cells(1)) | PlaceOf(cells(kZellen));
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        for (double wished = 0.5; wished < 4.31; wished += kSanitized ? 1.27 : 0.19) {
            const QRectF room(0, 23, 755 * wished + 90, 463 * wished);
            const Scale scale(DesignOf(*frmTessel), room, ratio);
            const QRect seen = OnScreen(scale.ToWindow(board), ratio).adjusted(-2, -2, 2, 2);
            const QSize cell = OnScreen(PlaceOf(cells(1)), scale.Factor() * ratio).size();
            PictureStore plain;
            for (int stone = 0; stone <= kFarben; ++stone) {
                const QImage& image = plain.Get(frmBilder->imgBild(stone).Picture, cell);
                const_cast<QImage&>(image).fill(colourOf(stone));
            }
            QImage painted(seen.size(), QImage::Format_RGB32);
            painted.setDevicePixelRatio(ratio);
            QPainter painter(&painted);
            painter.translate(scale.Corner() - QPointF(seen.topLeft()) / ratio);
            painter.scale(scale.Factor(), scale.Factor());
            PaintWindow(painter, *frmTessel, plain, board.toRect(), scale.ToDesign(room));
            painter.end();

            const PointerInput pointer(form, *frmTessel, scale);
            const auto under = [&](int x, int y) {
                return pointer.ControlUnder(QPointF(seen.topLeft() + QPoint(x, y)) / ratio);
            };
            std::vector<QRgb> line;
            int wrong = 0;
            for (int y = 0; y < seen.height(); ++y) {
                if (y == 0 || under(seen.width() / 2, y) != under(seen.width() / 2, y - 1)) {
                    line.clear();
                    for (int x = 0; x < seen.width(); ++x) {
                        const auto* const hit = dynamic_cast<const Image*>(under(x, y));
                        line.push_back(hit == nullptr ? qRgb(0, 0, 0) : colourOf(stoneOf(hit)));
                    }
                }
                const auto* const row = painted.constScanLine(y);
                wrong += std::memcmp(row, line.data(), line.size() * sizeof(QRgb)) == 0 ? 0 : 1;
            }
            EXPECT_EQ(wrong, 0) << "factor " << scale.Factor() << ", ratio " << ratio;
        }
    }
}

TEST_F(Windows, TheMenuFollowsTheModel)
{
    const auto* const bar = Form(*frmTessel).findChild<QMenuBar*>();
    const QList<QAction*> game = bar->actions().at(0)->menu()->actions();
    EXPECT_EQ(game.at(0)->shortcut().toString(QKeySequence::NativeText), QStringLiteral("Strg+N"));
    EXPECT_TRUE(game.at(2)->isSeparator());
    EXPECT_FALSE(game.at(1)->isEnabled());
    frmTessel->mnuTessel(2).Enabled = true;
    EXPECT_TRUE(game.at(1)->isEnabled());

    frmTessel->mnuSound.Enabled = true;
    const QList<QAction*> sound = bar->actions().at(1)->menu()->actions().at(0)->menu()->actions();
    EXPECT_TRUE(sound.at(0)->isChecked());
    for (const char* const again : {"chosen", "chosen once more"}) {
        sound.at(1)->trigger();
        QCoreApplication::processEvents();
        EXPECT_TRUE(sound.at(1)->isChecked() && !sound.at(0)->isChecked()) << again;
    }
}

TEST_F(Windows, AccessKeysOfButtonsGoBeforeThoseOfTheMenu)
{
    FormWidget& form = Form(*frmTessel);
    frmTessel->mnuSound.Enabled = true;
    const auto* const bar = form.findChild<QMenuBar*>();
    for (const auto& [key, modifier, place] :
         {std::tuple(Qt::Key_O, Qt::AltModifier, 1), std::tuple(Qt::Key_F10, Qt::NoModifier, 0)}) {
        Press(form, key, modifier);
        QMenu* const menu = bar->actions().at(place)->menu();
        ASSERT_EQ(QApplication::activePopupWidget(), menu) << "the menu, and no menu inside it";
        EXPECT_EQ(menu->activeAction(), menu->actions().constFirst());
        menu->close();
    }
    WhileOpen([&] { Press(form, Qt::Key_E, Qt::AltModifier); },
              [&] {
                  EXPECT_EQ(App.TopModal(), frmMsgJa.Current());
                  Press(Form(*frmMsgJa), Qt::Key_N);
              });
    EXPECT_FALSE(App.Ended());
}

TEST_F(Windows, AKeyThatIsHeldDownSpeaksOnce)
{
    FormWidget& form = Form(*frmTessel);
    WhileOpen([&] { Press(form, Qt::Key_E, Qt::ControlModifier); },
              [&] {
                  FormWidget& question = Form(*frmMsgJa);
                  Press(question, Qt::Key_J, {}, {}, true);
                  EXPECT_FALSE(App.Ended());
                  Press(question, Qt::Key_Escape);
              });
    EXPECT_FALSE(App.Ended());
}

TEST_F(Windows, AMessageIsSeenWholeEvenAtTheEdgeOfTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    for (const Twips far : {-6000.0F, ToTwips(screen.width())}) {
        frmTessel->Move(far, far);
        WhileOpen([this] { Form(*frmTessel).close(); },
                  [&] {
                      EXPECT_TRUE(screen.contains(Form(*frmMsgJa).geometry()));
                      Press(Form(*frmMsgJa), Qt::Key_Escape);
                  });
    }
}

TEST_F(Windows, AFrameFollowsTheArrowKeysUntilThePointerMoves)
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

TEST_F(Windows, TwoWishesToCloseTheGameAskOnce)
{
    FormWidget& form = Form(*frmTessel);
    QAction* const leave = form.findChild<QMenuBar*>()->actions().at(0)->menu()->actions().at(3);
    const std::function<void()> wishes[] = {
        [&form] { form.close(); },
        [] { Backdrop().close(); },
        [] {  // the end of the session
            QEvent quit(QEvent::Quit);
            QCoreApplication::sendEvent(qApp, &quit);
        },
        [leave] { leave->trigger(); },
    };
    for (const auto& wish : wishes) {
        WhileOpen(wish, [&] {
            wish();
            QCoreApplication::processEvents();
            EXPECT_TRUE(form.isVisible() && Backdrop().isVisible());
            if (frmMsgJa.Loaded()) {  // Qt may have handed the last wish to the question itself
                Press(Form(*frmMsgJa), Qt::Key_Escape);
            }
        });
        EXPECT_TRUE(form.isVisible() && Backdrop().isVisible());
        EXPECT_FALSE(App.Ended());
    }
}

TEST_F(Windows, TheFirstFrameRendersNothing)
{
    const QSize client(ToWholePixels(frmTessel->ClientWidth),
                       ToWholePixels(frmTessel->ClientHeight));
    QImage frame(client, QImage::Format_RGB32);
    QPainter painter(&frame);
    PaintWindow(painter, *frmTessel, pictures_, QRect(QPoint(), client), QRect(QPoint(), client));
    pictures_.Coarse(frmHintergrund->Image1.Picture);
    EXPECT_EQ(pictures_.Rendered(), 0);
}

class NameBoxes : public GameOnScreen
{
protected:
    // Opens the list for an entry at the third place, hands its box over, and closes the window.
    void TypeAtThirdPlace(const std::function<void(QLineEdit&)>& type)
    {
        Beste.EintragModus = True;
        Beste.EintragPlatz = 2;
        WhileOpen([] { frmBeste->Show(ShowMode::Modal); },
                  [&] {
                      auto* const box = qobject_cast<QLineEdit*>(Form(*frmBeste).focusWidget());
                      EXPECT_NE(box, nullptr) << "no box has the focus";
                      if (box != nullptr) {
                          type(*box);
                      }
                      Click(frmBeste->cmdEnde);
                  });
    }

    static void Type(QLineEdit& box, const QString& text)
    {
        for (const QChar letter : text) {
            Press(box, Qt::Key_unknown, {}, letter);
        }
    }
};

TEST_F(NameBoxes, OnlyTheBoxesInSightAreWidgetsAndOnlyTheEntryIsOpen)
{
    TypeAtThirdPlace([](QLineEdit& entry) {
        const auto boxes = entry.window()->findChildren<QLineEdit*>();
        EXPECT_EQ(boxes.size(), kPlaetze);
        for (const QLineEdit* const box : boxes) {
            EXPECT_EQ(box->isReadOnly(), box != &entry);
            EXPECT_EQ(box->palette().color(QPalette::Base), QColor(Qt::white));
            EXPECT_EQ(box->palette().color(QPalette::Text), QColor(Qt::black));
        }
        EXPECT_EQ(entry.selectedText(), entry.text()) << "the first key replaces the name";
    });
}

TEST_F(NameBoxes, KeysReachTheBoxAloneAndOnce)
{
    int keys = 0;
    Watch watch([&](const QEvent& event) { keys += event.type() == QEvent::KeyPress ? 1 : 0; });
    TypeAtThirdPlace([&](QLineEdit& box) {
        box.window()->installEventFilter(&watch);
        Press(box, Qt::Key_F1);
        Press(box, Qt::Key_N, {}, QStringLiteral("n"));
        Press(box, Qt::Key_Space, {}, QStringLiteral(" "));
        Press(box, Qt::Key_Return, {}, QStringLiteral("\r"));
        EXPECT_EQ(frmBeste->txtSpieler(2).Text.Get(), "n ");
        EXPECT_TRUE(frmBeste->Shown());
        EXPECT_EQ(keys, 0);
    });
}

TEST_F(NameBoxes, ANameIsLockedAgainInTheViewAfterItsEntry)
{
    TypeAtThirdPlace([](QLineEdit&) {});
    Beste.EintragModus = False;
    WhileOpen([] { frmBeste->Show(ShowMode::Modal); },
              [&] {
                  FormWidget& form = Form(*frmBeste);
                  EXPECT_EQ(form.focusWidget(), &form);
                  for (const QLineEdit* const box : form.findChildren<QLineEdit*>()) {
                      EXPECT_EQ(box->selectedText(), QString());
                      EXPECT_EQ(form.childAt(box->geometry().center()), nullptr)
                          << "a click would choose a locked name";
                  }
                  Click(frmBeste->cmdEnde);
              });
    TypeAtThirdPlace([](QLineEdit& box) { EXPECT_TRUE(box.hasSelectedText()); });
}

TEST_F(NameBoxes, TheModelWritesIntoTheBoxToo)
{
    TypeAtThirdPlace([](QLineEdit& box) {
        const std::string longName(200'000, 'x');
        frmBeste->txtSpieler(2).Text = longName;
        EXPECT_EQ(box.text().toStdString(), longName);
        frmBeste->txtSpieler(2).Text = "Anna";
        frmBeste->txtSpieler(2).SelStart = 1;
        frmBeste->txtSpieler(2).SelLength = 2;
        EXPECT_EQ(box.text(), QStringLiteral("Anna"));
        EXPECT_EQ(box.selectedText(), QStringLiteral("nn"));
        Type(box, QStringLiteral("Ω日x"));  // what no file holds is not typed
        EXPECT_EQ(frmBeste->txtSpieler(2).Text.Get(), "Axa");
        EXPECT_EQ(frmBeste->txtSpieler(2).SelStart, 2);
        EXPECT_EQ(frmBeste->txtSpieler(2).SelLength, 0);
    });
}

TEST_F(NameBoxes, ANameBeingTypedSurvivesAnotherWindow)
{
    TypeAtThirdPlace([&](QLineEdit& box) {
        Type(box, QStringLiteral("Ada"));
        QWidget other;
        other.show();
        other.activateWindow();
        QCoreApplication::processEvents();
        box.window()->activateWindow();
        QCoreApplication::processEvents();
        EXPECT_EQ(frmBeste->txtSpieler(2).Text.Get(), "Ada");
        EXPECT_TRUE(box.hasFocus());
        EXPECT_FALSE(box.hasSelectedText());
    });
}

}  // namespace
}  // namespace malvone::qt
