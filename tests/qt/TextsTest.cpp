// TextsTest.cpp: every text of the game can be read in the label that shows it.
#include <QFontMetricsF>
#include <set>

#include "tests/qt/GameOnScreen.h"
#include "tests/support/Folder.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/LabelText.h"

namespace malvone::qt {
namespace {

// All texts of message windows that the played games have met.
std::set<std::string> TextsOfMessages()
{
    std::set<std::string> found;
    const std::string folder = MALVONE_SOURCE_DIR "/tests/games/";
    for (const std::string& name : test::Names(folder)) {
        const QString script = QString::fromStdString(*test::Contents(folder + name));
        for (QString line : script.split(QLatin1Char('\n'))) {
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

// No line is cut off or lies on another one, and a line ends where a word ends.
void ExpectFits(const Label& label)
{
    const std::string& text = label.Caption.Get();
    const TextBlock block = BreakIntoLines(label);
    EXPECT_LE(block.Height, ToPixels(label.Height)) << label.FullName() << text;
    QString joined;
    double lowest = 0;
    for (const TextLine& line : block.Lines) {
        EXPECT_GE(line.Baseline.x(), 0) << text;
        EXPECT_LE(line.Baseline.x() + line.Width, ToPixels(label.Width) + 0.01) << text;
        EXPECT_GT(line.Baseline.y(), lowest) << text;
        lowest = line.Baseline.y() + QFontMetricsF(ToQFont(label.TextFont)).capHeight();
        joined += line.Text + QLatin1Char(' ');
    }
    EXPECT_EQ(joined.simplified().toStdString(), ToQString(text).simplified().toStdString());
}

using Texts = GameOnScreen;

TEST_F(Texts, EveryMessageAndEveryMoveFitTheirLabels)
{
    const std::set<std::string> texts = TextsOfMessages();
    ASSERT_GT(texts.size(), 20U);
    for (Label* const label :
         {&frmMsgOk->lblMeldung, &frmMsgOk->lblTitel, &frmMsgJa->lblMeldung, &frmMsgJa->lblTitel}) {
        for (const std::string& text : texts) {
            label->Caption = text;
            ExpectFits(*label);
        }
    }
    for (const char* const move : {"Spielzug ist nicht möglich\r\nEs ist nur ein Feld markiert.",
                                   "Dieser Spielzug ergibt 19600 Punkte!"}) {
        frmTessel->lblSumme.Caption = move;
        ExpectFits(frmTessel->lblSumme);
    }
}

}  // namespace
}  // namespace malvone::qt
