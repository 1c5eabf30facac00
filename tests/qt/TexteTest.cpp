// TexteTest.cpp: every text of the game can be read in the label that shows it.
#include <QFile>
#include <QFontMetricsF>
#include <set>

#include "tests/qt/Spieltisch.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/LabelText.h"

namespace malvone::qt {
namespace {

// All texts of message windows that the played games have met.
std::set<std::string> TextsOfMessages()
{
    std::set<std::string> found;
    for (const auto& entry :
         std::filesystem::directory_iterator(MALVONE_SOURCE_DIR "/tests/games")) {
        QFile script(QString::fromStdString(entry.path().string()));
        EXPECT_TRUE(script.open(QIODevice::ReadOnly));
        for (QString line : QString::fromUtf8(script.readAll()).split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1String("! text frmMsg"))) {
                line.replace(QLatin1String("\\r\\n"), QLatin1String("\r\n"));
                for (const QString& text : line.mid(16).split(QLatin1String(" | "))) {
                    found.insert(text.toStdString());
                }
            }
        }
    }
    return found;
}

void ExpectFits(const Label& label)
{
    const TextBlock block = BreakIntoLines(label);
    const double width = ToPixels(label.Width);
    EXPECT_LE(block.Height, ToPixels(label.Height)) << label.FullName() << label.Caption.Get();
    double lastBaseline = 0;
    const QFontMetricsF metrics(ToQFont(label.TextFont));
    for (const TextLine& line : block.Lines) {
        EXPECT_GE(line.Baseline.x(), 0) << label.Caption.Get();
        EXPECT_LE(line.Baseline.x() + line.Width, width + 0.01) << label.Caption.Get();
        if (!line.Text.isEmpty() && lastBaseline > 0) {
            EXPECT_GT(line.Baseline.y() - lastBaseline, metrics.capHeight()) << "lines touch";
        }
        lastBaseline = line.Baseline.y();
    }
}

// Words stay whole: a line ends where a word ends.
void ExpectWholeWords(const Label& label)
{
    QString joined;
    for (const TextLine& line : BreakIntoLines(label).Lines) {
        joined += line.Text + QLatin1Char(' ');
    }
    EXPECT_EQ(joined.simplified().toStdString(),
              ToQString(label.Caption.Get()).simplified().toStdString());
}

using Texte = Spieltisch;

TEST_F(Texte, EveryMessageFitsItsLabels)
{
    const std::set<std::string> texts = TextsOfMessages();
    ASSERT_GT(texts.size(), 20U);
    for (Label* const label :
         {&frmMsgOk->lblMeldung, &frmMsgOk->lblTitel, &frmMsgJa->lblMeldung, &frmMsgJa->lblTitel}) {
        for (const std::string& text : texts) {
            label->Caption = text;
            ExpectFits(*label);
            ExpectWholeWords(*label);
        }
    }
}

TEST_F(Texte, EveryTextOfTheMainWindowFits)
{
    const char* const texts[] = {"Klicken Sie auf »Neues Spiel«.",
                                 "Spielzug ist nicht möglich\r\nEs ist nur ein Feld markiert.",
                                 "Dieser Spielzug ergibt 19600 Punkte!"};
    for (const char* const text : texts) {
        frmTessel->lblSumme.Caption = text;
        frmTessel->lblMeldung.Caption = text;
        ExpectFits(frmTessel->lblSumme);
        ExpectFits(frmTessel->lblMeldung);
    }
    for (const Label* const label : {&frmTessel->Label1(0), &frmBeste->Label1, &frmBeste->Label2}) {
        ExpectFits(*label);
    }
    frmMsgOk->Form_Activate();
    frmMsgJa->Form_Activate();
    ExpectFits(frmMsgOk->lblName);
    ExpectFits(frmMsgJa->lblName);
}

}  // namespace
}  // namespace malvone::qt
