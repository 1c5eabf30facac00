// Keys.h: keys by code, and the one way that a key takes through a window.
#pragma once

#include <cstdint>

namespace malvone {

class Window;

inline constexpr std::int16_t kKeyBack = 8;
inline constexpr std::int16_t kKeyTab = 9;
inline constexpr std::int16_t kKeyEnter = 13;
inline constexpr std::int16_t kKeyEsc = 27;
inline constexpr std::int16_t kKeySpace = 32;
inline constexpr std::int16_t kKeyLeft = 37;
inline constexpr std::int16_t kKeyUp = 38;
inline constexpr std::int16_t kKeyRight = 39;
inline constexpr std::int16_t kKeyDown = 40;
inline constexpr std::int16_t kKeyDelete = 46;
inline constexpr std::int16_t kKeyF1 = 112;
inline constexpr std::int16_t kKeyF10 = 121;
// Letters have the codes of their capitals, 'A' to 'Z', whatever Shift says.

struct Key
{
    std::int16_t Code = 0;
    std::int16_t Shift = 0;  // kShiftKey, kCtrlKey, kAltKey added up

    friend bool operator==(const Key&, const Key&) = default;
};

// Routes a key that has been pressed in a window: Form_KeyDown first, then the menu's shortcuts,
// access keys of visible and enabled buttons wherever they lie, the default button, the focused
// button, Tab, the highlight of the arrow keys. Returns whether somebody took it; what is left
// belongs to the text box that has the focus and to the platform. A key for a window that takes no
// input at present is not routed.
bool RouteKey(Window& window, Key key);

// A key that is held down speaks once: it must not answer the next question too. Only those that
// lead over the window are routed again and again.
bool MayRepeat(Key key);

}  // namespace malvone
