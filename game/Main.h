// Main.h: the entry point of the game. The binding calls it once, then waits for input.
#pragma once

namespace malvone {

// Runs the program up to its first input. Modal messages may come up on the way.
void Main();

// Resets the program's state to that of a fresh start, for bindings that run the program several
// times in one process. Call it before Main.
void ZustandNeu();

}  // namespace malvone
