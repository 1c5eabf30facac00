// Spielstand.cpp: the one instance of the state of a game.
#include "game/Spielstand.h"

namespace malvone {

Spielstand Stand;

}  // namespace malvone
