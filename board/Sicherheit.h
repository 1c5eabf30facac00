// Sicherheit.h: the last two steps of the marking chain, which catch what the walks have missed.
#pragma once

#include <cstdint>

namespace malvone {

// Step four: one run over all cells; marks travel downward and to the right, but not back. Its last
// act is to call step five.
void SicherheitZellenlauf(std::int16_t farbe);

// Step five: a list of fixed runs over the inner cells, one after the other, without a second
// round.
void SicherheitBloecke(std::int16_t farbe);

}  // namespace malvone
