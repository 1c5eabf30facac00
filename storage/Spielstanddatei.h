// Spielstanddatei.h: the snapshot of a freshly filled board, from which its level can be repeated.
#pragma once

namespace malvone {

// Writes the values of all cells to a new file. The player, not the caller, is told of a failure.
void StandSpeichern();
// Puts the board of the file back and counts the level. After a failure, of which the player is
// told, only the next level is offered.
void StandLaden();

}  // namespace malvone
