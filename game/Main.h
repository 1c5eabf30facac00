// Main.h: the entry point of the game; the binding calls it once and then waits for input.
#pragma once

namespace malvone {

// Brings the program up to its first input. Modal messages may be shown on the way.
void Main();

// Makes the program's state that of a fresh start: bindings that run the program several times in
// one process call it before Main.
void ZustandNeu();

}  // namespace malvone
