// Sicherheit.h: the last two steps of the marking chain, which catch what the walks have missed.
#pragma once

#include <cstdint>
#include <span>

namespace malvone {

// Step four: one run over all cells; marks travel downward and to the right, but not back. Its last
// act is to call step five.
void SicherheitZellenlauf(std::int16_t farbe);

// Step five: a list of fixed runs over the inner cells, one after the other, without a second
// round.
void SicherheitBloecke(std::int16_t farbe);

// One of these runs: cells from the first to the last by a step; each gives its mark to neighbours
// of its colour, then takes one from marked neighbours, at the offsets named in that order.
struct Lauf
{
    int Erste;
    int Letzte;
    int Schritt;
    std::span<const int> GibtAn;
    std::span<const int> NimmtVon;
};
std::span<const Lauf> AlleLaeufe();

}  // namespace malvone
