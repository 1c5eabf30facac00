// NeuesSpiel.h: the way into a game.
#pragma once

namespace malvone {

// Sets points and level to 0. It touches neither the board nor LevelPunkte, and no display.
void SpielZuruecksetzen();

// The first level of a new game: a new board, points and level from the start.
void SpielBeginnen();

}  // namespace malvone
