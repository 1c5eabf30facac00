// Mailbox.cpp: carries messages between the game and the playing thread.
#include "ui/sound/Mailbox.h"

#include <utility>

namespace malvone {

void Mailbox::Post(std::string path)
{
    const std::lock_guard lock(mutex_);
    mail_.Path = std::move(path);
    Wake();
}

void Mailbox::Close()
{
    const std::lock_guard lock(mutex_);
    mail_.End = true;
    Wake();
}

void Mailbox::Wake()
{
    if (waker_ && !woken_) {
        woken_ = true;
        waker_();
    }
}

std::optional<std::int32_t> Mailbox::AwaitAnswer(std::chrono::milliseconds atMost)
{
    std::unique_lock lock(mutex_);
    answered_.wait_for(lock, atMost, [this] { return devices_.has_value(); });
    return devices_;
}

void Mailbox::SetWaker(std::function<void()> waker)
{
    const std::lock_guard lock(mutex_);
    waker_ = std::move(waker);
}

Mailbox::Mail Mailbox::Take()
{
    const std::lock_guard lock(mutex_);
    woken_ = false;
    return {mail_.End, std::exchange(mail_.Path, {})};
}

void Mailbox::Answer(std::int32_t devices)
{
    const std::lock_guard lock(mutex_);
    devices_ = devices;
    answered_.notify_all();
}

}  // namespace malvone
