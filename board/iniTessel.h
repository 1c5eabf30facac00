// iniTessel.h: a new board.
#pragma once

namespace malvone {

// The one place that makes a new board: raises the level's number, gives all 140 cells a random
// stone and stores them as the snapshot. It leaves the total points and the displays alone.
void FeldFuellen();

// Makes the cells 1 to 140 as new elements of imgFeld, empty and without marks. Once in a run.
void FeldAnlegen();

}  // namespace malvone
