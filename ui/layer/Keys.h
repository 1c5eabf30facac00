// Keys.h: keys by code, and the way of a key through a window.
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
// Letters have the codes of their capitals, 'A' to 'Z', with or without Shift.

struct Key
{
    std::int16_t Code = 0;
    std::int16_t Shift = 0;  // the sum of kShiftKey, kCtrlKey and kAltKey

    friend bool operator==(const Key&, const Key&) = default;
};

// Routes a key that was pressed in a window: to Form_KeyDown first, then to the menu's shortcuts,
// the access keys of buttons that take input, wherever they lie, the default button, the focused
// button, Tab, and the highlight of the arrow keys. Returns whether the key was taken; otherwise it
// is for the focused text box and the platform. A window that takes no input gets no key.
bool RouteKey(Window& window, Key key);

// Whether a key that is held down counts again and again. Only arrow keys do: any other key must
// not answer the next question as well.
bool MayRepeat(Key key);

}  // namespace malvone
