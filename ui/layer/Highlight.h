// Highlight.h: the control that the arrow keys have led to, for players who use no pointer.
//
// For everything on the window the highlight is the pointer: moving to a control raises its
// MouseMove, and Delete or Backspace there is the left button. A frame shows the highlight until
// the pointer moves.
#pragma once

#include "ui/layer/Keys.h"

namespace malvone {

class Visual;
class Window;

// The last station of a key. Arrows without modifiers lead from one control with ByArrows to the
// next in their direction, and stop at the last one. The first arrow only shows the highlight,
// where the pointer was last or else at the bottom left. A window without such controls takes none
// of these keys.
bool TakenByHighlight(Window& window, Key key);

// The pointer moves over a control, null for the window itself: the frame goes.
void LeaveHighlight(Window& window, Visual* under);

}  // namespace malvone
