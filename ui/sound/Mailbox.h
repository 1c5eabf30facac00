// Mailbox.h: the letter box between the game and the thread that plays: neither side ever waits for
// the other while it holds the lock.
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
        std::optional<std::string> Path;  // the last one thrown in since the box was emptied
    };

    // For the game.
    void Post(std::string path);
    void Close();
    std::optional<std::int32_t> AwaitAnswer(std::chrono::milliseconds atMost);
    bool AwaitThreadEnd(std::chrono::milliseconds atMost);

    // For the thread. The waker is called from the game's side when post arrives; an empty one
    // takes it back: after that no call of it runs or begins.
    void SetWaker(std::function<void()> waker);
    Mail Take();
    void Answer(std::int32_t devices);
    void ThreadEnds();

private:
    void Wake();

    std::mutex mutex_;
    std::condition_variable news_;
    Mail mail_;
    bool woken_ = false;  // One waking per emptying is enough.
    std::function<void()> waker_;
    std::optional<std::int32_t> devices_;
    bool threadEnded_ = false;
};

}  // namespace malvone
