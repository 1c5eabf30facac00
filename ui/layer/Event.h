// Event.h: the events of controls, which their window handles.
#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <utility>

#include "ui/layer/Units.h"

namespace malvone {

// Buttons and modifier keys as bits, in the numbers that the handlers compare with.
inline constexpr std::int16_t kLeftButton = 1;
inline constexpr std::int16_t kRightButton = 2;
inline constexpr std::int16_t kMiddleButton = 4;

inline constexpr std::int16_t kShiftKey = 1;
inline constexpr std::int16_t kCtrlKey = 2;
inline constexpr std::int16_t kAltKey = 4;

// A pointer event. Button is the button of a press or release, and the sum of all pressed buttons
// in a move. X and Y are twips from the corner of the object that gets the event.
struct Mouse
{
    std::int16_t Button = 0;
    std::int16_t Shift = 0;
    Twips X = 0;
    Twips Y = 0;
};

// An event with at most one handler, which takes the index within the control array and then the
// arguments. It may leave out the index, or everything.
template<class... Args>
class Event
{
public:
    Event() = default;

    template<class Handler>
    requires(!std::same_as<std::remove_cvref_t<Handler>, Event>) Event& operator=(Handler handler)
    {
        if constexpr (std::invocable<Handler, std::int16_t, const Args&...>) {
            handler_ = std::move(handler);
        } else if constexpr (std::invocable<Handler, const Args&...>) {
            handler_ = [handler = std::move(handler)](std::int16_t, const Args&... args) {
                handler(args...);
            };
        } else {
            handler_ = [handler = std::move(handler)](std::int16_t, const Args&...) { handler(); };
        }
        return *this;
    }

    void Raise(std::int16_t index, const Args&... args) const
    {
        if (handler_) {
            handler_(index, args...);
        }
    }

private:
    std::function<void(std::int16_t, const Args&...)> handler_;
};

// The events of a control, shared by all elements of a control array.
struct Events
{
    Event<> Click;
    Event<> Timer;
    Event<Mouse> MouseDown;
    Event<Mouse> MouseUp;
    Event<Mouse> MouseMove;
};

}  // namespace malvone
