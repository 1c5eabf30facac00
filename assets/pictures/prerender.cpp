// prerender.cpp: renders at build time what the first frame of the game shows at scale 1: a file of
// bare pixels for each picture, and the list that makes them resources of the program.
#include <QFile>
#include <QGuiApplication>

#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/Look.h"
#include "ui/windows/FrmTessel.h"
#include "ui/windows/Pictures.h"

namespace malvone::qt {
namespace {

// Pictures that are seen whole, in their own size.
constexpr std::string_view kWhole[] = {
    "frmTessel.Image1",       "frmTessel.Image3",          "frmTessel.Image4",
    "frmTessel.Image6",       "frmBilder.cmdHilfeAuswahl", "frmBilder.cmdBeschreibungenAuswahl",
    "frmBilder.imgGrund",     "frmBilder.imgPfeil(0)",     "frmBilder.imgPfeil(1)",
    "frmDigital.imgDiggi(0)", "frmDigital.imgDiggi(10)",
};

QSize Pixels(Twips width, Twips height)
{
    return {ToWholePixels(width), ToWholePixels(height)};
}

QSize SizeOf(const Picture& picture)
{
    return {picture.Width(), picture.Height()};
}

bool Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

bool Run(const QString& folder)
{
    const FrmTessel window;
    const PictureBox& board = window.Picture1;
    const Picture& ground = window.Picture;
    const Picture& frame = board.Picture;
    std::vector<Look> looks = {
        LookOf(ground.File(), SizeOf(ground), Pixels(window.ClientWidth, window.ClientHeight)),
        LookOf(frame.File(), SizeOf(frame), Pixels(board.Width, board.Height)),
        CoarseLook(PictureNamed("frmHintergrund.Image1")),
    };
    for (const std::string_view name : kWhole) {
        const Picture picture = PictureNamed(name);
        looks.push_back(LookOf(picture.File(), SizeOf(picture), SizeOf(picture)));
    }
    for (const int edge : kIconEdges) {
        looks.push_back(IconLook(window.Icon, edge));
    }
    QByteArray list = "<RCC>\n<qresource>\n";
    bool written = true;
    for (const Look& look : looks) {
        const QImage image = Rendered(look);
        const QString name = ReadyPath(look).mid(2);
        written = written && Write(folder + QLatin1Char('/') + name,
                                   QByteArray(reinterpret_cast<const char*>(image.constBits()),
                                              image.sizeInBytes()));
        list += "<file>" + name.toLatin1() + "</file>\n";
    }
    return written && Write(folder + QStringLiteral("/ready.qrc"), list + "</qresource>\n</RCC>\n");
}

}  // namespace
}  // namespace malvone::qt

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return argc == 2 && malvone::qt::Run(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
