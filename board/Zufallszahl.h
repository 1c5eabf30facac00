// Zufallszahl.h: chance.
#pragma once

#include <cstdint>

namespace malvone {

// A random generator that takes its seed anew from a clock before every number. The seed takes in
// the generator's running state as well, so that a clock that stands still, or one that is coarser
// than the 140 draws of a board, leaves the numbers random.
class Zufall
{
public:
    void Saeen(std::uint64_t uhrNs);
    // From 0 up to but not including 1, uniform, in steps of 2 to the -24.
    float Zahl();

private:
    std::uint64_t zustand_ = 0;

    std::uint64_t Weiter();
};

// The colour, 1 to 4, for a number from 0 up to but not including 1.
std::int16_t FarbeAus(float zahl);
// The colour of a new stone, 1 to 4, each with the same chance.
std::int16_t ZufallsFarbe();

}  // namespace malvone
