// LabelText.cpp: breaks and paints the words of labels.
#include "ui/qt/drawing/LabelText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>

#include "ui/qt/drawing/Conversions.h"

namespace malvone::qt {
namespace {

// Breaks one paragraph at the width and adds its lines; an empty paragraph is an empty line.
void AddLines(std::vector<TextLine>& lines, const QString& paragraph, const QFont& font,
              double width)
{
    QTextLayout layout(paragraph, font);
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.push_back({paragraph.mid(line.textStart(), line.textLength()).trimmed(),
                         {},
                         line.naturalTextWidth()});
    }
    layout.endLayout();
}

double LineSpacing(const QFontMetricsF& metrics, std::size_t lines, double height)
{
    if (lines < 2) {
        return metrics.height();
    }
    return std::min(metrics.height(), (height - metrics.height()) / static_cast<double>(lines - 1));
}

}  // namespace

TextBlock BreakIntoLines(const Label& label)
{
    TextBlock block;
    if (label.Caption.Get().empty()) {
        return block;
    }
    const QFont font = ToQFont(label.TextFont);
    const QFontMetricsF metrics(font);
    const double width = ToPixels(label.Width);
    const QStringList paragraphs = ToQString(label.Caption.Get()).split(QStringLiteral("\r\n"));
    for (const QString& paragraph : paragraphs) {
        AddLines(block.Lines, paragraph, font, width);
    }
    const double spacing = LineSpacing(metrics, block.Lines.size(), ToPixels(label.Height));
    double top = 0;
    for (TextLine& line : block.Lines) {
        const double left = label.Align == Alignment::Centre ? (width - line.Width) / 2 : 0;
        line.Baseline = QPointF(left, top + metrics.ascent());
        top += spacing;
    }
    block.Height = top - spacing + metrics.height();
    return block;
}

void PaintLabel(QPainter& painter, const Label& label, const QRectF& place)
{
    if (!label.Transparent) {
        painter.fillRect(place, ToQColor(label.BackColor));
    }
    const TextBlock block = BreakIntoLines(label);
    if (block.Lines.empty()) {
        return;
    }
    painter.setFont(ToQFont(label.TextFont));
    painter.setPen(ToQColor(label.ForeColor));
    for (const TextLine& line : block.Lines) {
        painter.drawText(place.topLeft() + line.Baseline, line.Text);
    }
}

}  // namespace malvone::qt
