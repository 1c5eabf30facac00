// Spoken.h: what a screen reader says about the windows, and when, for every binding that draws.
// The game knows nothing of it. A binding:
// - offers its screen readers SpokenOn(window) for each window, in this order, with NameOf and
//   DescriptionOf. The list stays the same for the life of the window, apart from the cells that
//   the start adds. Screen readers skip what IsSpokenNow denies;
// - reports the names that have changed before it waits for input, and says Reporter::News aloud
//   unless that is empty;
// - makes a window whose Role is Message an alert. Its title, TitleOf, is not in SpokenOn.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "state/Zellen.h"
#include "ui/layer/Window.h"
#include "ui/windows/Ziffernreihe.h"

namespace malvone {

enum class SpokenKind {
    Words,    // a text on the window, or a row of digits with what it counts
    Button,   // answers a press
    Cell,     // a cell of the board; answers a press
    NameBox,  // a text box; the binding adds its text
};

struct Spoken
{
    SpokenKind Kind = SpokenKind::Words;
    Visual* Where = nullptr;   // where it stands on the window, and what a press presses
    std::string Painted = {};  // the words in its picture; empty: it has a caption
    const Ziffernreihe* Display = nullptr;  // the row of digits that it names
    Visual* With = nullptr;  // the box of whose points the row shows; the rest of a message

    // The places of the row, from the units upward; empty where it is none.
    std::span<Image* const> Digits() const;
    // Whether that is told here alone: a text box tells itself, unless it is locked.
    bool TellsWith() const;
};

// Everything on a window that has words, in reading order. Empty for the backdrop.
std::vector<Spoken> SpokenOn(const Window& window);

// Its name at the moment: "Neues Spiel", "Punkte: 36", "Spalte 3, Reihe 5, orange",
// "Platz 1: Berta, 25 Punkte".
std::string NameOf(const Spoken& spoken);
// The tool tip, or what a move is worth at the stone that the arrow keys have led to. Empty if
// there is nothing to add.
std::string DescriptionOf(const Spoken& spoken);
// Whether it can be seen and has words at the moment.
bool IsSpokenNow(const Spoken& spoken);

std::string TitleOf(const Window& window);

// Says in words what has happened on the board since it was last asked, by looking at stones and
// points.
class Reporter
{
public:
    // "4 Steine entfernt, 16 Punkte." Empty if there is nothing to say.
    std::string News();

private:
    std::array<std::int32_t, kZellen> board_{};
    std::int32_t points_ = 0;
};

}  // namespace malvone
