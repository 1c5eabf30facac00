// iniTessel.h: a new board.
#pragma once

namespace malvone {

// Makes every new board: raises the level's number, gives all 140 cells a random stone and saves
// them as the snapshot. Leaves the total points and the displays alone.
void FeldFuellen();

// Makes cells 1 to 140 as new elements of imgFeld, empty and without marks. Once per run.
void FeldAnlegen();

}  // namespace malvone
