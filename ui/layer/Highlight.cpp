// Highlight.cpp: from an arrow key to a movement of the pointer.
#include "ui/layer/Highlight.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "ui/layer/App.h"
#include "ui/layer/PointerRouting.h"
#include "ui/layer/Routing.h"

namespace malvone {
namespace {

struct Direction
{
    std::int16_t Code;
    int Across;
    int Down;
};
constexpr Direction kDirections[] = {
    {kKeyLeft, -1, 0},
    {kKeyRight, 1, 0},
    {kKeyUp, 0, -1},
    {kKeyDown, 0, 1},
};

bool LedTo(const Visual& visual)
{
    return visual.ByArrows && visual.Reachable();
}

Visual* BottomLeft(const Window& window)
{
    Visual* best = nullptr;
    for (Visual* const visual : window.FrontToBack()) {
        const bool better =
            LedTo(*visual) && (best == nullptr || visual->Left < best->Left ||
                               (visual->Left == best->Left && visual->Top > best->Top));
        best = better ? visual : best;
    }
    return best;
}

// By how much two stretches overlap; 0 or less if they do not.
Twips Overlap(Twips a, Twips aLength, Twips b, Twips bLength)
{
    return std::min(a + aLength, b + bLength) - std::max(a, b);
}

// The nearest control straight ahead; of several at the same distance, the one least off to the
// side. If there is none, the highlight stays.
Visual& Next(const Window& window, Visual& from, const Direction& direction)
{
    const Mouse here = MiddleOf(from, 0);
    Visual* nearest = &from;
    std::pair<Twips, Twips> least;
    for (Visual* const visual : window.FrontToBack()) {
        const Mouse there = MiddleOf(*visual, 0);
        const Twips across = there.X - here.X;
        const Twips down = there.Y - here.Y;
        const bool sideways = direction.Down == 0;
        const Twips level =
            sideways ? Overlap(from.WindowTop(), from.Height, visual->WindowTop(), visual->Height)
                     : Overlap(from.WindowLeft(), from.Width, visual->WindowLeft(), visual->Width);
        const Twips ahead = across * static_cast<Twips>(direction.Across) +
                            down * static_cast<Twips>(direction.Down);
        const std::pair distance(ahead, std::abs(sideways ? down : across));
        if (LedTo(*visual) && level > 0 && ahead > 0 && (nearest == &from || distance < least)) {
            nearest = visual;
            least = distance;
        }
    }
    return *nearest;
}

// The movement takes the frame away, as every movement does, so it is put back.
void PointAt(Window& window, Visual& visual)
{
    Hover(window, MiddleOf(visual, 0));
    Routing::SetHighlight(window, &visual);
}

bool TakenByArrow(Window& window, const Direction& direction)
{
    if (Visual* const here = window.Highlighted(); here != nullptr && LedTo(*here)) {
        PointAt(window, Next(window, *here, direction));
        return true;
    }
    Visual* const last = Routing::Of(window).LastByArrows;
    Visual* const start = last != nullptr && LedTo(*last) ? last : BottomLeft(window);
    if (start != nullptr) {
        PointAt(window, *start);
    }
    return start != nullptr;
}

// By design (spiel-mit-tasten): one would expect Delete to do nothing here. It is the left button
// of players who use no pointer. Test: games.arrow_keys
//
// What lies there afterwards is pointed at, so that the next press takes what is shown; but not if
// a window has come up in between, which ends both the press and the preview. A control that has
// gone with the press keeps no highlight.
bool TakenByPress(Window& window)
{
    Visual* const here = window.Highlighted();
    if (here == nullptr || !LedTo(*here)) {
        return false;
    }
    PointerPressed(window, MiddleOf(*here, kLeftButton));
    const bool ended = !window.Pressed();
    PointerReleased(window, MiddleOf(*here, kLeftButton));
    if (!LedTo(*here)) {
        Routing::SetHighlight(window, nullptr);
    } else if (App.TakesInput(window) && !ended) {
        PointAt(window, *here);
    }
    return true;
}

}  // namespace

bool TakenByHighlight(Window& window, Key key)
{
    if (key.Shift != 0 || window.Pressed()) {
        return false;
    }
    if (key.Code == kKeyDelete || key.Code == kKeyBack) {
        return TakenByPress(window);
    }
    for (const Direction& direction : kDirections) {
        if (direction.Code == key.Code) {
            return TakenByArrow(window, direction);
        }
    }
    return false;
}

void LeaveHighlight(Window& window, Visual* under)
{
    Routing::SetHighlight(window, nullptr);
    if (under != nullptr && under->ByArrows) {
        Routing::Of(window).LastByArrows = under;
    }
}

void Routing::SetHighlight(Window& window, Visual* control)
{
    for (Visual* const changed : {std::exchange(window.routed_.Highlighted, control), control}) {
        if (changed != nullptr) {
            changed->Changed(Change::Highlight);
        }
    }
}

}  // namespace malvone
