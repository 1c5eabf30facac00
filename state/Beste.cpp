// Beste.cpp: the one instance of the best list's state.
#include "state/Beste.h"

namespace malvone {

Bestenstand Beste;

}  // namespace malvone
