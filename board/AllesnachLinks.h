// AllesnachLinks.h: what comes after gravity: closing columns, and whether a move is left.
#pragma once

#include "ui/layer/Units.h"

namespace malvone {

// Moves columns to the left over empty ones, values and pictures alike.
// By design (sechs-durchgaenge): one would expect every empty column to be closed. One call closes
// at most six that have stones to their right; the rest waits for the next left click on a stone.
// Test: games.columns
void SpaltenSchliessen();

// Ergebnis becomes True if two direct neighbours hold the same stone, else False.
void ZugVorhanden(Flag& Ergebnis);

}  // namespace malvone
