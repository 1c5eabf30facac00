// KeyTable.cpp: the table of keys.
#include "ui/qt/input/KeyTable.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

#include "ui/layer/Event.h"

namespace malvone::qt {
namespace {

struct Row
{
    int Qt;
    std::int16_t Code;
};

constexpr Row kRows[] = {
    {Qt::Key_Backspace, kKeyBack}, {Qt::Key_Tab, kKeyTab},      {Qt::Key_Backtab, kKeyTab},
    {Qt::Key_Enter, kKeyEnter},    {Qt::Key_Return, kKeyEnter}, {Qt::Key_Escape, kKeyEsc},
    {Qt::Key_Space, kKeySpace},    {Qt::Key_Left, kKeyLeft},    {Qt::Key_Up, kKeyUp},
    {Qt::Key_Right, kKeyRight},    {Qt::Key_Down, kKeyDown},    {Qt::Key_Delete, kKeyDelete},
};

bool Between(int key, int first, int last)
{
    return key >= first && key <= last;
}

std::int16_t ToCode(int key)
{
    // Letters and digits have the same codes in Qt and in the layer.
    if (Between(key, Qt::Key_A, Qt::Key_Z) || Between(key, Qt::Key_0, Qt::Key_9)) {
        return static_cast<std::int16_t>(key);
    }
    if (Between(key, Qt::Key_F1, Qt::Key_F24)) {
        return static_cast<std::int16_t>(kKeyF1 + key - Qt::Key_F1);
    }
    const auto* const found = std::find_if(std::begin(kRows), std::end(kRows),
                                           [key](const Row& row) { return row.Qt == key; });
    return found == std::end(kRows) ? std::int16_t{0} : found->Code;
}

}  // namespace

Key ToKey(const QKeyEvent& event)
{
    return {ToCode(event.key()), ToShift(event.modifiers())};
}

bool RouteKey(Window& window, const QKeyEvent& event)
{
    const Key key = ToKey(event);
    return key.Code != 0 && (!event.isAutoRepeat() || MayRepeat(key)) && RouteKey(window, key);
}

std::int16_t ToShift(Qt::KeyboardModifiers modifiers)
{
    int shift = 0;
    shift |= modifiers.testFlag(Qt::ShiftModifier) ? kShiftKey : 0;
    shift |= modifiers.testFlag(Qt::ControlModifier) ? kCtrlKey : 0;
    shift |= modifiers.testFlag(Qt::AltModifier) ? kAltKey : 0;
    return static_cast<std::int16_t>(shift);
}

}  // namespace malvone::qt
