// Zellen.cpp: the one array of cell records.
#include "board/Zellen.h"

namespace malvone {

std::array<Zelle, kZellen + 1> Zellen;

}  // namespace malvone
