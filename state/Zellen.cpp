// Zellen.cpp: the one array of cell records.
#include "state/Zellen.h"

namespace malvone {

std::array<Zelle, kZellen + 1> Zellen;

}  // namespace malvone
