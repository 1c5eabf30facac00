// Spielstand.cpp: the one instance of the state of a game.
#include "state/Spielstand.h"

namespace malvone {

Spielstand Stand;

}  // namespace malvone
