// LabelText.h: breaks a label's words into lines, places them and paints them.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <vector>

#include "ui/layer/Controls.h"

class QPainter;

namespace malvone::qt {

struct TextLine
{
    QString Text;
    QPointF Baseline;  // its left end, from the label's corner
    double Width = 0;
};

struct TextBlock
{
    std::vector<TextLine> Lines;
    double Height = 0;  // from the top of the first line to the bottom of the last one
};

// Breaks a label's caption at its width. Lines that do not fit its height move closer together, so
// that no word is cut off.
TextBlock BreakIntoLines(const Label& label);

void PaintLabel(QPainter& painter, const Label& label, const QRectF& place);

}  // namespace malvone::qt
