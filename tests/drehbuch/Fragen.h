// Fragen.h: questions about the whole board, the state of the game and the windows that are shown.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tests/drehbuch/Eigenschaften.h"

namespace malvone {

Antwort BrettFragen();   // 140 values, "?" for one of more than one character
Antwort MarkenFragen();  // 140 times 0 or 1
Antwort VorschauFragen();
Antwort BilderFragen();  // 140 letters, one for each picture that a cell can show
Antwort StandFragen();
Antwort FensterFragen();  // names of all shown windows, sorted

// Sets the 140 values and nothing else, no picture for example.
std::optional<Grund> BrettSetzen(std::string_view values);

}  // namespace malvone
