// Zufallszahl.cpp: SplitMix64, a counter passed through a mixing function, with the constants that
// Steele, Lea and Flood published in 2014.
#include "board/Zufallszahl.h"

#include "state/Zellen.h"
#include "ui/layer/App.h"

namespace malvone {
namespace {

std::uint64_t Mischen(std::uint64_t z)
{
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31U);
}

Zufall zufall;

}  // namespace

void Zufall::Saeen(std::uint64_t uhrNs)
{
    zustand_ = Mischen(zustand_ + uhrNs);
}

std::uint64_t Zufall::Weiter()
{
    zustand_ += 0x9E3779B97F4A7C15ULL;
    return Mischen(zustand_);
}

float Zufall::Zahl()
{
    return static_cast<float>(Weiter() >> 40U) * 0x1p-24F;
}

std::int16_t FarbeAus(float zahl)
{
    // Truncate first: adding 1 to the greatest number would round it up to a fifth colour.
    return static_cast<std::int16_t>(static_cast<int>(zahl * static_cast<float>(kFarben)) + 1);
}

std::int16_t ZufallsFarbe()
{
    zufall.Saeen(App.System().ClockNs());
    return FarbeAus(zufall.Zahl());
}

}  // namespace malvone
