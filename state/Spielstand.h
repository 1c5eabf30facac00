// Spielstand.h: the state of a game, for one run of the program.
#pragma once

#include <cstdint>

namespace malvone {

struct Spielstand
{
    std::int32_t PunkteGesamt = 0;      // points of the whole game
    std::int32_t LevelPunkte = 0;       // points of the moves of the level, without the bonus
    std::int32_t ZugPunkte = 0;         // value of the last move; 0 if it removed nothing
    std::int16_t RundenZahl = 0;        // number of the level; 0 before the first one
    std::int16_t MarkiertZahl = 0;      // stones that the last preview found marked
    std::int16_t BelegtZahl = 0;        // stones on the board at the last count
    std::int32_t PunkteLevelStart = 0;  // PunkteGesamt when the next level was last taken
    std::int16_t LevelWiederholt = 0;   // 1 from a repeat until the next level or the next game
    bool KeinSpielBegonnen = false;     // true from the start until the first level has begun
};

inline Spielstand Stand;

}  // namespace malvone
