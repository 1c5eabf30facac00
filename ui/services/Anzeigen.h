// Anzeigen.h: the three displays of digits on the main window.
#pragma once

namespace malvone {

// Repaints total points, points of the level and number of the level from the state of the game.
// They change at no other moment: until the next call they lag behind the counters.
void AnzeigenAktualisieren();

}  // namespace malvone
