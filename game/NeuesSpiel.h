// NeuesSpiel.h: the way into a game.
#pragma once

namespace malvone {

// Sets points and level to 0. It touches neither the board nor LevelPunkte, and no display.
void SpielZuruecksetzen();

}  // namespace malvone
