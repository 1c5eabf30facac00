// vorab.cpp: renders at build time what the first frame of the game shows at scale 1, and writes it
// down as a source file of the program, as small as it can lie there without being packed.
#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

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

QSize SizeOf(const Picture& picture)
{
    return {picture.Width(), picture.Height()};
}

bool Opaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (!std::all_of(line, line + image.width(), [](QRgb p) { return qAlpha(p) == 255; })) {
            return false;
        }
    }
    return true;
}

// An opaque picture of few colours takes a byte for each pixel, another opaque one three: the
// program has 1.8 MB instead of 2.7.
QImage Small(const QImage& image)
{
    if (!Opaque(image)) {
        return image;
    }
    if (image.allGray()) {
        return image.convertToFormat(QImage::Format_Grayscale8);
    }
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        colours.insert(line, line + image.width());
    }
    constexpr std::size_t kTable = 256;
    return colours.size() > kTable
               ? image.convertToFormat(QImage::Format_RGB888)
               : image.convertToFormat(QImage::Format_Indexed8,
                                       QList<QRgb>(colours.begin(), colours.end()));
}

// What fills up the end of a row is left to chance by Qt; two builds have to write the same.
QByteArray RowsOf(const QImage& image)
{
    const qsizetype seen = (static_cast<qsizetype>(image.width()) * image.depth() + 7) / 8;
    const qsizetype whole = image.bytesPerLine();
    QByteArray rows;
    for (int y = 0; y < image.height(); ++y) {
        rows.append(reinterpret_cast<const char*>(image.constScanLine(y)), seen);
        rows.append(whole - seen, '\0');
    }
    return rows;
}

const char* NameOf(QImage::Format format)
{
    switch (format) {
    case QImage::Format_Grayscale8: return "Grayscale8";
    case QImage::Format_Indexed8: return "Indexed8";
    case QImage::Format_RGB888: return "RGB888";
    default: return "ARGB32_Premultiplied";
    }
}

// The source file: all pixels one after the other in one text, each picture on a border of 16
// bytes, then the colours, then the rows.
class Source
{
public:
    void Add(const Look& look, const QImage& rendered)
    {
        const QImage image = Small(rendered);
        const auto& [file, width, height, seenWidth, seenHeight] = look;
        rows_ << "    {{\"" << file << "\", " << width << ", " << height << ", " << seenWidth
              << ", " << seenHeight << "}, {" << image.width() << ", " << image.height()
              << "}, QImage::Format_" << NameOf(image.format()) << ", {kPixels + " << bytes_ << ", "
              << image.sizeInBytes() << "}, {kColours + " << colours_ << ", "
              << image.colorTable().size() << "}},\n";
        const QByteArray rows = RowsOf(image);
        AddBytes(reinterpret_cast<const uchar*>(rows.constData()),
                 static_cast<std::size_t>(rows.size()));
        for (const QRgb colour : image.colorTable()) {
            colourText_ += "0x" + QByteArray::number(colour, 16).toStdString() + ",";
            ++colours_;
        }
    }

    void AddIcon(std::string_view file)
    {
        QByteArray words;
        for (const int edge : {16, 22, 24, 32, 48, 64, 96, 128, 256}) {
            const QImage image = Rendered(LookOf(file, {edge, edge}, {edge, edge}))
                                     .convertToFormat(QImage::Format_ARGB32);
            const quint32 size = static_cast<quint32>(edge);
            words.append(reinterpret_cast<const char*>(&size), sizeof size);
            words.append(reinterpret_cast<const char*>(&size), sizeof size);
            words.append(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
        }
        constexpr int kSmallest = 9;
        const QByteArray packed = qCompress(words, kSmallest);
        icons_ << "    {\"" << file << "\", {kPixels + " << bytes_ << ", " << packed.size()
               << "}},\n";
        AddBytes(reinterpret_cast<const uchar*>(packed.constData()),
                 static_cast<std::size_t>(packed.size()));
    }

    bool Write(const char* path) const
    {
        std::ofstream file(path);
        file << "#include \"ui/qt/drawing/ReadyPictures.h\"\n\nnamespace malvone::qt {\nnamespace "
                "{\n"
             << "alignas(16) constexpr char kPixels[] =\n"
             << pixelText_ << ";\nconstexpr QRgb kColours[] = {" << colourText_
             << "0};\nconstexpr ReadyPicture kPictures[] = {\n"
             << rows_.str() << "};\n}\n\nstd::span<const ReadyPicture> ReadyPictures()\n"
             << "{\n    return kPictures;\n}\n\n"
             << "std::span<const ReadyIcon> ReadyIcons()\n{\n"
             << "    static constexpr ReadyIcon kIcons[] = {\n"
             << icons_.str() << "};\n    return kIcons;\n}\n\n}\n";
        return file.flush().good();
    }

private:
    std::string pixelText_;
    std::size_t bytes_ = 0;
    std::string colourText_;
    std::size_t colours_ = 0;
    std::ostringstream rows_;
    std::ostringstream icons_;

    void AddBytes(const uchar* bytes, std::size_t size)
    {
        constexpr std::size_t kBorder = 16;
        const std::size_t whole = (size + kBorder - 1) / kBorder * kBorder;
        constexpr char kDigits[] = "01234567";
        pixelText_ += '"';
        for (std::size_t i = 0; i < whole; ++i) {
            const unsigned byte = i < size ? bytes[i] : 0;
            pixelText_ += {'\\', kDigits[byte >> 6], kDigits[byte >> 3 & 7], kDigits[byte & 7]};
        }
        pixelText_ += "\"\n";
        bytes_ += whole;
    }
};

// The ground of the main window as it is seen, without the columns at its right end that are as
// white as the window.
void AddGround(Source& source, const FrmTessel& window)
{
    const Picture& picture = window.Picture;
    const QSize seen(ToWholePixels(window.ClientWidth), ToWholePixels(window.ClientHeight));
    const Look look = LookOf(picture.File(), SizeOf(picture), seen);
    source.Add(look, WithoutGround(Rendered(look), ToQColor(window.BackColor).rgb()));
}

// The board's frame is cut off where its box ends.
void AddFrame(Source& source, const PictureBox& box)
{
    const QSize seen(ToWholePixels(box.Width), ToWholePixels(box.Height));
    const Look look = LookOf(box.Picture->File(), SizeOf(box.Picture), seen);
    source.Add(look, Rendered(look));
}

bool Run(const char* path)
{
    const FrmTessel window;
    Source source;
    AddGround(source, window);
    AddFrame(source, window.Picture1);
    const Look backdrop = CoarseLook(PictureNamed("frmHintergrund.Image1"));
    source.Add(backdrop, Rendered(backdrop));
    for (const std::string_view name : kWhole) {
        const Picture picture = PictureNamed(name);
        const QSize size = SizeOf(picture);
        const Look look = LookOf(picture.File(), size, size);
        source.Add(look, Rendered(look));
    }
    source.AddIcon(PictureNamed("frmTessel.Icon").File());
    source.AddIcon(PictureNamed("frmBeste.Icon").File());
    return source.Write(path);
}

}  // namespace
}  // namespace malvone::qt

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return argc == 2 && malvone::qt::Run(argv[1]) ? 0 : 1;
}
