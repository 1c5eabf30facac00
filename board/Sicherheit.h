// Sicherheit.h: the last two steps of the marking chain, which catch what the walks missed.
#pragma once

#include <cstdint>

namespace malvone {

// Step four: one run over all cells; marks spread downwards and to the right, but not back. It ends
// by calling step five.
void SicherheitZellenlauf(std::int16_t farbe);

// Step five: a fixed list of runs over the inner cells, gone through once.
void SicherheitBloecke(std::int16_t farbe);

}  // namespace malvone
