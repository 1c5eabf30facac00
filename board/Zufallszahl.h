// Zufallszahl.h: random colours.
#pragma once

#include <cstdint>

namespace malvone {

// A random generator that is reseeded from a clock before every number. The seed also takes in the
// generator's own state, so that the numbers stay random if the clock stands still or is too coarse
// for the 140 draws of a board.
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
// The colour of a new stone, 1 to 4, all equally likely.
std::int16_t ZufallsFarbe();

}  // namespace malvone
