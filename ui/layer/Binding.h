// Binding.h: what brings windows to life: draws them, feeds them events and waits for input.
#pragma once

#include "ui/layer/Controls.h"
#include "ui/layer/Window.h"

namespace malvone {

class Binding
{
public:
    virtual ~Binding() = default;
    Binding() = default;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    // The size of the whole primary screen in twips.
    virtual Twips ScreenWidth() = 0;
    virtual Twips ScreenHeight() = 0;

    // A binding overrides what it needs.

    // A window has been made as designed; its Form_Load comes next. A binding may now add the frame
    // and the menu bar, as far as it knows their size, to Width and Height.
    virtual void WindowLoaded(Window& /*window*/) {}
    // A window is shown; its Form_Activate comes next. Called again for each Show of a window that
    // is already shown, which brings it to the front.
    virtual void WindowShown(Window& /*window*/, ShowMode /*mode*/) {}
    // A shown window is hidden without being unloaded.
    virtual void WindowHidden(Window& /*window*/) {}
    // A window goes away. It is still whole, and is destroyed once no handler is running.
    virtual void WindowUnloaded(Window& /*window*/) {}

    // A value of a loaded window, or of one of its controls, has changed.
    virtual void WindowChanged(Window& /*window*/, Change /*what*/) {}
    virtual void ControlChanged(Control& /*control*/, Change /*what*/) {}
    // A control array of a loaded window has a new element.
    virtual void ControlAdded(Control& /*control*/) {}
    virtual void FocusChanged(Window& /*window*/) {}

    // Handles events until ModalOver(window) or the program is over.
    virtual void RunModal(Window& window) = 0;
    // The player drags a borderless window: it follows the pointer until the button is released.
    virtual void DragWindow(Window& /*window*/) {}
    // The program is over: every loop returns as soon as it can.
    virtual void Ended() {}
};

// Whether the modal loop of a window is to end: it has been hidden or unloaded, or the program is
// over.
bool ModalOver(const Window& window);

}  // namespace malvone
