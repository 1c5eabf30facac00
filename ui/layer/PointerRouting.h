// PointerRouting.h: how pointer events get from a window's surface to a control.
#pragma once

#include "ui/layer/Window.h"

namespace malvone {

// The topmost visible control under a point of the client area, in twips; null: the window itself.
Visual* ControlAt(const Window& window, Twips x, Twips y);

// The pointer in the middle of a control.
Mouse MiddleOf(const Visual& visual, std::int16_t button);

// X and Y are those in the client area. A press keeps the pointer: moves, the release, and the
// click if the left button is released inside, all go to the pressed control, or to the window if
// its own surface was pressed. If the pointer has left the pressed control, the release is followed
// by a movement over what now lies under it. A window that takes no input gets nothing, and nothing
// outside the client area can be pressed.
void PointerPressed(Window& window, const Mouse& mouse);
void PointerMoved(Window& window, const Mouse& mouse);
void PointerReleased(Window& window, const Mouse& mouse);

// Forgets a press that will not see its release.
void LetGo(Window& window);
// The same, but the pressed control gets a release, so that it no longer looks pressed, and no
// click.
void TakePressFrom(Window& window);

// What a movement does. PointerMoved spares the highlight of the arrow keys if the pointer rests:
// browsers report a movement, too, when something changes below it.
void Hover(Window& window, const Mouse& mouse);

// A finger cannot point without touching. If its touch as a pointer changes what is seen, it has
// pointed; if nothing changes, it presses.
void FingerPressed(Window& window, const Mouse& mouse);

// For players who cannot use a pointer: as if it had come to the middle of a control and clicked.
// The movement, the press or the release may take the window away; the rest then does nothing.
void Press(Visual& visual);

}  // namespace malvone
