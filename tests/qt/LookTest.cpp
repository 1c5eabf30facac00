// LookTest.cpp: whole windows beside the pictures of them that are kept in tests/qt/kept.
#include <QDir>
#include <QMenuBar>
#include <QPainter>

#include "state/Zellen.h"
#include "tests/qt/GameOnScreen.h"
#include "ui/windows/FrmBilder.h"

namespace malvone::qt {
namespace {

class Look : public GameOnScreen
{
protected:
    // The look of this run lies in the build folder, to be opened and copied over the kept one
    // after an intended change.
    void ExpectAsKept(const Window& window) const
    {
        FormWidget& form = Form(window);
        const auto* const menu = form.findChild<QMenuBar*>();
        const QImage look =
            Painted(form)
                .copy(form.rect().adjusted(0, menu == nullptr ? 0 : menu->height(), 0, 0))
                .convertToFormat(QImage::Format_RGB32);
        const QString name = QLatin1String(window.Name().data()) + QStringLiteral(".png");
        QDir(QStringLiteral(MALVONE_BINARY_DIR)).mkdir(QStringLiteral("kept"));
        EXPECT_TRUE(look.save(QStringLiteral(MALVONE_BINARY_DIR "/kept/") + name));
        const QImage kept = QImage(QStringLiteral(MALVONE_SOURCE_DIR "/tests/qt/kept/") + name)
                                .convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(look.size(), kept.size()) << window.Name();
        QRect other;
        for (int y = 0; y < look.height(); ++y) {
            for (int x = 0; x < look.width(); ++x) {
                const QRgb a = look.pixel(x, y);
                const QRgb b = kept.pixel(x, y);
                const int apart =
                    std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                              std::abs(qBlue(a) - qBlue(b))});
                other |= apart > kTolerance ? QRect(x, y, 1, 1) : QRect();
            }
        }
        EXPECT_TRUE(other.isNull())
            << window.Name() << " looks otherwise from " << other.left() << "," << other.top()
            << " to " << other.right() << "," << other.bottom();
    }

private:
    static constexpr int kTolerance = 24;  // of 255; other versions round edges in another way
};

TEST_F(Look, WindowsLookAsTheyAreKept)
{
    for (int i = 1; i <= kZellen; ++i) {
        const int value = (i + i / 7) % (kFarben + 1);
        const auto& bank = i % 6 == 0   ? frmBilder->imgVorschau
                           : i % 9 == 0 ? frmBilder->imgNeutral
                                        : frmBilder->imgBild;
        frmTessel->imgFeld(i).Picture = bank(value).Picture;
    }
    frmTessel->Punkte.Zeigen("43210");
    frmTessel->LevelPunkte.Zeigen("8765");
    frmTessel->Level.Zeigen("9");
    for (Image* const image :
         {&frmTessel->imgNaechsterLevel, &frmTessel->imgWiederholen, &frmTessel->imgNochEinmal}) {
        image->Visible = true;
    }
    frmTessel->lblHilfe.Picture = frmBilder->cmdHilfeGruen.Picture;
    frmTessel->lblInfo.Picture = frmBilder->cmdBeschreibungenFruen.Picture;
    frmTessel->imgStart.Picture = frmBilder->imgPfeil(0).Picture;
    frmTessel->lblSumme.Caption = "Spielzug ist nicht möglich\r\nEs ist nur ein Feld markiert.";
    frmTessel->lblSumme.ForeColor = 255;
    PointAt(frmTessel->imgNaechsterLevel);
    Press(Form(*frmTessel), Qt::Key_Right);  // the frame of the arrow keys comes where that was
    ExpectAsKept(*frmTessel);

    frmMsgOk->lblMeldung.Caption = "\r\nSehr gut!!!\r\nSie haben alle Spielsteine entfernt!";
    frmMsgOk->Show();
    frmMsgOk->lblName.Caption = "Malvone";
    ExpectAsKept(*frmMsgOk);
    frmMsgJa->lblTitel.Caption = "eins\r\nzwei\r\ndrei\r\nvier\r\nfünf\r\nsechs";
    frmMsgJa->Show();
    frmMsgJa->lblName.Caption = "Malvone";
    ExpectAsKept(*frmMsgJa);

    // What the design keeps beside the window is put into sight.
    frmBeste->shpEnde.Move(300, 3500);
    frmBeste->shpTessel.Move(2000, 4000);
    frmBeste->Show();
    frmBeste->lblTessel.Visible = true;
    ExpectAsKept(*frmBeste);
}

}  // namespace
}  // namespace malvone::qt
