// BilderTest.cpp: the shipped pictures and the table that names their files.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSvgRenderer>
#include <QXmlStreamReader>
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

int PaintedPixels(const QImage& image)
{
    int painted = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            painted += image.pixelColor(x, y).alpha() > 127 ? 1 : 0;
        }
    }
    return painted;
}

TEST(Bilder, TheBankShowsEveryShippedFileAndNoOther)
{
    std::set<QString> shown = {QStringLiteral("hand.svg")};
    for (const PictureInfo& picture : AllPictures()) {
        shown.insert(ResourcePath(picture.File).section(QLatin1Char('/'), -1));
    }
    const QStringList shipped = QDir(QStringLiteral(":/pictures")).entryList();
    EXPECT_EQ(std::set<QString>(shipped.begin(), shipped.end()), shown);
}

// Qt draws these in another way than other programs, slowly, or leaves them out without a word.
TEST(Bilder, FilesHoldOnlyWhatQtDraws)
{
    const QSet<QString> forbidden = {QStringLiteral("text"),  QStringLiteral("filter"),
                                     QStringLiteral("mask"),  QStringLiteral("clipPath"),
                                     QStringLiteral("style"), QStringLiteral("image"),
                                     QStringLiteral("script")};
    for (const QFileInfo& info : QDir(QStringLiteral(":/pictures")).entryInfoList()) {
        QFile file(info.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement) {
                continue;
            }
            EXPECT_FALSE(forbidden.contains(xml.name().toString()))
                << qPrintable(info.fileName() + xml.name().toString());
            for (const QXmlStreamAttribute& attribute : xml.attributes()) {
                EXPECT_FALSE(forbidden.contains(attribute.name().toString()))
                    << qPrintable(info.fileName() + attribute.name().toString());
            }
        }
        EXPECT_FALSE(xml.hasError()) << qPrintable(info.fileName() + xml.errorString());
    }
}

TEST(Bilder, PicturesLoadWithoutWarningInTheShapeThatTheBankGives)
{
    warnings.clear();
    const auto before = qInstallMessageHandler(KeepWarning);
    for (const PictureInfo& picture : AllPictures()) {
        QSvgRenderer svg(ResourcePath(picture.File));
        const QSize shape = svg.defaultSize();
        // One file may serve in several sizes, but not in another shape.
        EXPECT_EQ(shape.width() * picture.Height, shape.height() * picture.Width) << picture.Name;
        PictureStore store;
        const QImage image = store.Get(Picture(picture), QSize(picture.Width, picture.Height));
        EXPECT_GT(PaintedPixels(image), picture.Width * picture.Height / 5) << picture.Name;
    }
    qInstallMessageHandler(before);
    EXPECT_EQ(warnings.join(QLatin1Char('\n')).toStdString(), "");
}

TEST(Bilder, APictureIsRenderedOnceForEachSize)
{
    PictureStore store;
    const Picture stone = PictureNamed("frmBilder.imgBild(1)");
    const auto pixels = [&](int size) { return store.Get(stone, QSize(size, size)).constBits(); };
    const auto* const first = pixels(32);
    EXPECT_EQ(pixels(32), first);
    EXPECT_NE(pixels(48), first);
    EXPECT_EQ(pixels(32), first);
}

TEST(Bilder, TheHandPointsWithItsFingerTip)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QCursor hand = HandCursor(ratio);
        EXPECT_EQ(hand.pixmap().deviceIndependentSize(), QSizeF(32, 32));
        const QImage image = hand.pixmap().toImage();
        bool tip = false;
        for (int down = 0; down <= 3; ++down) {
            tip = tip || image.pixelColor(hand.hotSpot() + QPoint(0, down)).alpha() > 0;
        }
        EXPECT_TRUE(tip) << "at ratio " << ratio;
    }
}

}  // namespace
}  // namespace malvone::qt
