// Place.h: the place on a window that the arrow keys move, for who cannot point.
//
// To everything on the window the place is the pointer: what it comes to hears a movement, and
// Delete or Backspace there is the left button. A frame shows it until the pointer moves.
#pragma once

#include "ui/layer/Keys.h"

namespace malvone {

class Visual;
class Window;

// The last station of a key. Without modifiers the arrows lead from one control with ByArrows to
// the next in their direction, over all of them and no further than the last; the first one only
// shows where the place is: where the pointer was last, else at the bottom left. A window without
// such controls takes none of these keys.
bool TakenByPlace(Window& window, Key key);

// The pointer moves over a control, null for the window itself: the frame goes.
void LeavePlace(Window& window, Visual* under);

}  // namespace malvone
