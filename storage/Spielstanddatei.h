// Spielstanddatei.h: the snapshot of a board as it was filled, so that its level can be repeated.
#pragma once

namespace malvone {

// Writes the values of all cells to a new file. A failure is told to the player, not to the caller.
void StandSpeichern();
// Puts the board of the file back and counts the level; here too a failure is told to the player,
// and leaves only the next level to be taken.
void StandLaden();

}  // namespace malvone
