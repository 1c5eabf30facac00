// Accessibility.h: what screen readers get to know of windows that are painted as a whole.
#pragma once

#include <QString>

#include "ui/layer/Control.h"

namespace malvone::qt {

class FormWidget;

void InstallAccessibility();

// What a control is called: its words, its tool tip, or the cell's column, row and colour. Empty
// for what only decorates.
QString SpokenName(const Visual& visual);

// Tells a screen reader, where one listens, that the words of a control have changed.
void TellScreenReader(FormWidget& form, const Control& control, Change what);

}  // namespace malvone::qt
