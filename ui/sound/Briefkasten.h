// The letter box between the game and the thread that plays: neither side ever waits for the other
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

class Briefkasten
{
public:
    struct Post
    {
        bool Ende = false;
        std::optional<std::string> Pfad;  // the last one thrown in since the box was emptied
    };

    // For the game.
    void Einwerfen(std::string pfad);
    void Schliessen();
    std::optional<std::int32_t> AntwortAbwarten(std::chrono::milliseconds hoechstens);
    bool FadenEndeAbwarten(std::chrono::milliseconds hoechstens);

    // For the thread. The waker is called from the game's side when post arrives; an empty one
    // takes it back: after that no call of it runs or begins.
    void WeckerStellen(std::function<void()> wecker);
    Post Holen();
    void Antworten(std::int32_t geraete);
    void FadenEndet();

private:
    void Wecken();

    std::mutex Schloss;
    std::condition_variable Neues;
    Post Inhalt;
    bool Geweckt = false;  // One waking per emptying is enough.
    std::function<void()> Wecker;
    std::optional<std::int32_t> Geraete;
    bool FadenAmEnde = false;
};

}  // namespace malvone
