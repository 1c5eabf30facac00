// modBeste.h: the best list: its file, the insertion of a result, the decision at a game's end.
#pragma once

#include <cstdint>
#include <string>

namespace malvone {

std::string BesteDatei();
// Writes the list of a first start; a file that is there after all stays. Fails in silence.
void BesteVorgabe();
// Puts the list of a first start in the place of the file. Fails in silence.
void BesteLoeschen();
// File to lists. After a failure, which the player is told, the lists hold what was read before it.
void BesteLesen();
// Lists to file, in one step. A file that was not read whole is kept beside it. After a failure,
// which the player is told, the file is the old one.
void BesteSpeichern();
// Inserts Beste.EndPunkte at a place 0 to 4 and lets the player type a name.
void BesteEintragen(std::int16_t platz);
// Decides whether the finished game comes into the list, and lets the player enter it.
void BestePruefen();

// The points at a place; a place that is missing or holds no number counts as 0.
std::int32_t PunkteDesPlatzes(int platz);

}  // namespace malvone
