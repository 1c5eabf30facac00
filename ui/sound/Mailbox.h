// Mailbox.h: carries messages between the game and the playing thread. Neither waits for the other
// while it holds the lock.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <string>

namespace malvone {

class Mailbox
{
public:
    struct Mail
    {
        bool End = false;
        std::optional<std::string> Path;  // the latest since the box was emptied
    };

    // For the game.
    void Post(std::string path);
    void Close();
    std::optional<std::int32_t> AwaitAnswer(std::chrono::milliseconds atMost);

    // For the thread. The waker is called on the game's side when mail arrives. After an empty one
    // has been set, no call of the old one is running or will run.
    void SetWaker(std::function<void()> waker);
    Mail Take();
    void Answer(std::int32_t devices);

private:
    void Wake();

    std::mutex mutex_;
    std::condition_variable answered_;
    Mail mail_;
    bool woken_ = false;  // since the box was emptied
    std::function<void()> waker_;
    std::optional<std::int32_t> devices_;
};

}  // namespace malvone
