// Spoken.h: what a screen reader says of the windows, and when: the one place of these words and
// decisions, for every binding that draws. A binding asks what there is and carries it to its
// screen readers; the game knows nothing of it.
//
// What a binding does with it:
// - For each window it offers SpokenOn(window), in this order, each with NameOf and DescriptionOf.
//   The list is the same for the life of the window, but for the cells that the start adds: what is
//   not seen at the moment is in it too, and is hidden from the reader by IsSpokenNow.
// - Before it waits for input it compares the names with those it told last, tells the changes, and
//   says Reporter::News aloud where that is not empty.
// - A window whose Role is Message is an alert. Its title, TitleOf, is no part of SpokenOn.
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
    Words,    // a text as it stands on the window, or a row of digits with what it counts
    Button,   // answers a press
    Cell,     // a cell of the board; answers a press
    NameBox,  // a text box; its text is the binding's to tell
};

struct Spoken
{
    SpokenKind Kind = SpokenKind::Words;
    Visual* Where = nullptr;   // where it stands on the window, and what a press presses
    std::string Painted = {};  // the words in its picture; empty: it has a caption
    const Ziffernreihe* Display = nullptr;  // the row of digits that it names

    // The places of the row, from the units upward; empty where it is none.
    std::span<Image* const> Digits() const;
};

// Everything on a window that has words, in reading order. Empty for the backdrop.
std::vector<Spoken> SpokenOn(const Window& window);

// What it is called at the moment: "Neues Spiel", "Punkte: 36", "Spalte 3, Reihe 5, orange".
std::string NameOf(const Spoken& spoken);
// The tool tip; for the stone that the arrow keys have led to, what a move there is worth. Empty
// where there is nothing to add.
std::string DescriptionOf(const Spoken& spoken);
// Whether it is seen on the window and has words at the moment.
bool IsSpokenNow(const Spoken& spoken);

std::string TitleOf(const Window& window);

// Says in words what has happened on the board since it was asked last. It only looks, at
// stones and points.
class Reporter
{
public:
    // "4 Steine entfernt, 16 Punkte." Empty where nothing is to be said.
    std::string News();

private:
    std::array<std::int32_t, kZellen> board_{};
    std::int32_t points_ = 0;
};

}  // namespace malvone
