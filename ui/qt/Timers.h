// Timers.h: lets the timers of the model tick. Nothing runs while no timer of the model runs.
#pragma once

#include <QTimer>
#include <memory>
#include <unordered_map>

#include "ui/layer/Window.h"

namespace malvone::qt {

class Timers
{
public:
    // Call when a timer has been switched on or off, or has a new interval.
    void Follow(Timer& timer);
    // Call before a window is destroyed.
    void Forget(const Window& window);
    void StopAll() { running_.clear(); }

private:
    // A timer may be stopped by its own tick.
    struct Later
    {
        void operator()(QTimer* clock) const
        {
            clock->stop();
            clock->deleteLater();
        }
    };
    using Clock = std::unique_ptr<QTimer, Later>;
    std::unordered_map<Timer*, Clock> running_;
};

}  // namespace malvone::qt
