// PointerRouting.h: the one way that pointer events take from a window's surface to a control.
#pragma once

#include "ui/layer/Window.h"

namespace malvone {

// The topmost visible control under a place of the client area, in twips; null: the window itself.
Visual* ControlAt(const Window& window, Twips x, Twips y);

// The pointer in the middle of a control.
Mouse MiddleOf(const Visual& visual, std::int16_t button);

// X and Y of the mouse are those in the client area. A press keeps the pointer: all moves, the
// release and, for the left button and while the pointer is still inside, the click go to the
// pressed control, or to the window where its own surface was pressed. Where the pointer has left
// the pressed control, what lies under it hears of a movement after the release. Windows that take
// no input at present get nothing, and nothing outside the client area can be pressed.
void PointerPressed(Window& window, const Mouse& mouse);
void PointerMoved(Window& window, const Mouse& mouse);
void PointerReleased(Window& window, const Mouse& mouse);

// Ends a press whose release comes to nobody.
void LetGo(Window& window);

// What a movement does. A pointer that rests leaves the highlight of the arrow keys alone, though
// browsers tell of a movement when something changes below it.
void Hover(Window& window, const Mouse& mouse);

// A finger cannot point without touching. Where its coming changes what is seen, it has pointed;
// where nothing changes, it presses.
void FingerPressed(Window& window, const Mouse& mouse);

// For players who cannot point: as if the pointer had come to the middle of a control and clicked.
// The movement, the press or the release may take the window away; what is left does nothing then.
void Press(Visual& visual);

}  // namespace malvone
