// NeuesSpiel.h: the way into a game.
#pragma once

namespace malvone {

// Sets points and level to 0. Leaves the board, LevelPunkte and the displays alone.
void SpielZuruecksetzen();

// Begins a new game: level 1, no points, a new board.
void SpielBeginnen();

}  // namespace malvone
