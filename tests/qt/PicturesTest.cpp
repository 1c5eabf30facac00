// PicturesTest.cpp: the shipped pictures and the table that names their files.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <set>

#include "ui/qt/drawing/HandCursor.h"
#include "ui/qt/drawing/PictureStore.h"
#include "ui/qt/drawing/Resources.h"
#include "ui/windows/Pictures.h"

namespace malvone::qt {
namespace {

QStringList warnings;

void KeepWarning(QtMsgType, const QMessageLogContext&, const QString& text)
{
    warnings += text;
}

TEST(Pictures, TheBankShowsEveryShippedFileAndNoOther)
{
    std::set<QString> shown = {QStringLiteral("hand.svg")};
    for (const PictureInfo& picture : AllPictures()) {
        shown.insert(ResourcePath(picture.File).section(QLatin1Char('/'), -1));
    }
    const QStringList shipped = QDir(QStringLiteral(":/pictures")).entryList();
    EXPECT_EQ(std::set<QString>(shipped.begin(), shipped.end()), shown);
}

// Qt draws these in another way than other programs, slowly, or leaves them out without a word.
TEST(Pictures, FilesHoldOnlyWhatQtDraws)
{
    const QRegularExpression forbidden(
        QStringLiteral("<(text|filter|mask|clipPath|style|image|script)\\b"
                       "|\\s(filter|mask|clip-path|style)="));
    for (const QFileInfo& info : QDir(QStringLiteral(":/pictures")).entryInfoList()) {
        QFile file(info.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(forbidden.match(QString::fromUtf8(file.readAll())).captured(), QString())
            << qPrintable(info.fileName());
    }
}

TEST(Pictures, PicturesLoadWithoutWarningInTheShapeThatTheBankGives)
{
    warnings.clear();
    const auto before = qInstallMessageHandler(KeepWarning);
    for (const PictureInfo& picture : AllPictures()) {
        QSvgRenderer svg(ResourcePath(picture.File));
        const QSize shape = svg.defaultSize();
        // One file may serve in several sizes, but not in another shape.
        EXPECT_EQ(shape.width() * picture.Height, shape.height() * picture.Width) << picture.Name;
        PictureStore store;
        QImage image = store.Get(Picture(picture), QSize(picture.Width, picture.Height));
        const QImage painted = image;
        image.fill(Qt::transparent);
        EXPECT_NE(painted, image) << picture.Name;
    }
    qInstallMessageHandler(before);
    EXPECT_EQ(warnings.join(QLatin1Char('\n')).toStdString(), "");
}

TEST(Pictures, APictureIsRenderedOnceForEachSize)
{
    PictureStore store;
    const Picture stone = PictureNamed("frmBilder.imgBild(1)");
    const auto pixels = [&](int size) { return store.Get(stone, QSize(size, size)).constBits(); };
    const auto* const first = pixels(32);
    EXPECT_EQ(pixels(32), first);
    EXPECT_NE(pixels(48), first);
    EXPECT_EQ(pixels(32), first);
}

TEST(Pictures, TheHandPointsWithItsFingerTip)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QCursor hand = HandCursor(ratio);
        EXPECT_EQ(hand.pixmap().deviceIndependentSize(), QSizeF(32, 32));
        EXPECT_GT(hand.pixmap().toImage().pixelColor(hand.hotSpot() + QPoint(0, 3)).alpha(), 0)
            << "at ratio " << ratio;
    }
}

}  // namespace
}  // namespace malvone::qt
