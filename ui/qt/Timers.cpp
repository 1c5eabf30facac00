// Timers.cpp: one QTimer for each running timer of the model.
#include "ui/qt/Timers.h"

#include "ui/layer/App.h"

namespace malvone::qt {

void Timers::Follow(Timer& timer)
{
    if (!timer.Running()) {
        running_.erase(&timer);
        return;
    }
    Clock& clock = running_[&timer];
    if (!clock) {
        clock.reset(new QTimer);
        QObject::connect(clock.get(), &QTimer::timeout, [&timer] { RaiseTimer(timer); });
    }
    clock->start(timer.Interval);
}

void Timers::Forget(const Window& window)
{
    std::erase_if(running_, [&](const auto& entry) { return &entry.first->Owner() == &window; });
}

}  // namespace malvone::qt
