// modBeste.h: the best list: its file, inserting a result, the decision at the end of a game.
#pragma once

#include <cstdint>
#include <string>

namespace malvone {

std::string BesteDatei();
// Writes the list of a first start unless there is a file after all. Fails silently.
void BesteVorgabe();
// Replaces the file by the list of a first start. Fails silently.
void BesteLoeschen();
// From the file to the lists. After a failure, of which the player is told, they hold what was read
// before it.
void BesteLesen();
// From the lists to the file, in one step. A file that was not read whole is kept beside it. After
// a failure, of which the player is told, the file is the old one.
void BesteSpeichern();
// Inserts Beste.EndPunkte at a place 0 to 4 and lets the player type a name.
void BesteEintragen(std::int16_t platz);
// Decides whether the finished game enters the list, and lets the player enter a name.
void BestePruefen();

// The points at a place; 0 where it is missing or holds no number.
std::int32_t PunkteDesPlatzes(int platz);

}  // namespace malvone
