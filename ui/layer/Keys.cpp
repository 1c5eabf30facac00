// Keys.cpp: the stations of a key on its way through a window.
#include "ui/layer/Keys.h"

#include <algorithm>
#include <vector>

#include "ui/layer/App.h"
#include "ui/layer/Highlight.h"

namespace malvone {
namespace {

// Clicks the first button that takes input and is the wanted one.
template<class Wanted>
bool ClickButton(const Window& window, Wanted wanted)
{
    for (Visual* const visual : window.FrontToBack()) {
        auto* const button = dynamic_cast<CommandButton*>(visual);
        if (button != nullptr && button->Reachable() && wanted(*button)) {
            button->RaiseClick();
            return true;
        }
    }
    return false;
}

bool TakenByShortcut(const Window& window, Key key)
{
    for (MenuEntry* const entry : window.MenuEntries()) {
        if (entry->Shortcut == key && entry->Reachable()) {
            entry->RaiseClick();
            return true;
        }
    }
    return false;
}

bool TakenByAccessKey(const Window& window, Key key)
{
    return key.Shift == kAltKey && ClickButton(window, [key](const CommandButton& button) {
               return AccessKey(button.Caption.Get()) == key.Code;
           });
}

bool TakenByDefaultButton(const Window& window, Key key)
{
    return key == Key{kKeyEnter, 0} &&
           ClickButton(window, [](const CommandButton& button) { return button.Default.Get(); });
}

bool TakenByFocusedButton(const Window& window, Key key)
{
    return key == Key{kKeySpace, 0} && ClickButton(window, [&](const CommandButton& button) {
               return &button == window.Focus();
           });
}

// By design (tab-bleibt): one would expect Tab to reach every button. One beyond the window's edge
// is no stop, or the focus would vanish there. Test: games.keys
bool IsTabStop(const Window& window, const Visual& visual)
{
    return visual.TakesFocus() && visual.TabStop && visual.Reachable() &&
           window.InClient(visual.WindowLeft(), visual.WindowTop());
}

bool TakenByTab(Window& window, Key key)
{
    if (key.Code != kKeyTab || (key.Shift & ~kShiftKey) != 0) {
        return false;
    }
    std::vector<Visual*> stops;
    for (Visual* const visual : window.FrontToBack()) {
        if (IsTabStop(window, *visual)) {
            stops.push_back(visual);
        }
    }
    if (stops.empty()) {
        return true;
    }
    std::stable_sort(stops.begin(), stops.end(),
                     [](const Visual* a, const Visual* b) { return a->TabIndex < b->TabIndex; });
    if (key.Shift == kShiftKey) {
        std::reverse(stops.begin(), stops.end());
    }
    const auto here = std::find(stops.begin(), stops.end(), window.Focus());
    const bool last = here == stops.end() || here + 1 == stops.end();
    window.SetFocus(last ? stops.front() : *(here + 1));
    return true;
}

}  // namespace

bool RouteKey(Window& window, Key key)
{
    if (!App.TakesInput(window)) {
        return false;
    }
    const EventScope scope;
    std::int16_t code = key.Code;
    window.Form_KeyDown(code, key.Shift);
    if (code == 0 || !App.TakesInput(window)) {
        return true;
    }
    return TakenByShortcut(window, key) || TakenByAccessKey(window, key) ||
           TakenByDefaultButton(window, key) || TakenByFocusedButton(window, key) ||
           TakenByTab(window, key) || TakenByHighlight(window, key);
}

bool MayRepeat(Key key)
{
    return key.Code >= kKeyLeft && key.Code <= kKeyDown;
}

}  // namespace malvone
