// Accessibility.h: tells screen readers about windows that are painted as a whole. Spoken.h has the
// words.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <vector>

#include "ui/layer/Control.h"
#include "ui/services/Spoken.h"

namespace malvone::qt {

class FormWidget;

void InstallAccessibility();

// Collects changes while a handler runs and tells them when the game waits again, in a message's
// loop too, so that a display written digit by digit is told once.
class ScreenReader final : public QObject
{
    Q_OBJECT

public:
    ScreenReader();

    void Follow(FormWidget& form, Change what);

private:
    Reporter reporter_;
    std::vector<QPointer<FormWidget>> changed_;
    bool queued_ = false;
    QTimer rest_;  // runs between two portions of names

    void Tell();
};

}  // namespace malvone::qt
