// Spielstanddatei.h: the snapshot of a freshly filled board, from which its level can be repeated.
#pragma once

namespace malvone {

// Writes the values of all cells to a new file. Tells the player, not the caller, of a failure.
void StandSpeichern();
// Puts the board of the file back and counts the level. A failure, too, is told to the player;
// after it only the next level is offered.
void StandLaden();

}  // namespace malvone
