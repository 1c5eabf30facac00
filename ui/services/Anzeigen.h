// Anzeigen.h: the three displays of digits on the main window.
#pragma once

namespace malvone {

// Repaints the total points, the level's points and its number from the state of the game. They
// change only here, and lag behind the counters until the next call.
void AnzeigenAktualisieren();

}  // namespace malvone
