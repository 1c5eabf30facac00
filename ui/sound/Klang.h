// Sound for the game: counts the wave output devices and plays wave files, and never lets the game
// wait for a sound server. All calls may come from any thread.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace malvone {

class Briefkasten;

class Klang
{
public:
    // The library that speaks to the sound server; it is loaded beside the start.
    explicit Klang(std::string bibliothek = "libpulse.so.0");
    ~Klang();
    Klang(const Klang&) = delete;
    Klang& operator=(const Klang&) = delete;

    // Starts the thread that loads the library, connects and counts the devices; returns at once.
    // Before it, and after Beenden(), there is no device and nothing sounds.
    void Vorbereiten();

    // The number of wave output devices. Waits at most 100 ms for the answer; if it is still open
    // then, a device counts as present, so that sound can be reached in the menu.
    std::int32_t GeraeteZahl();

    // Plays the wave file (path in UTF-8) in place of what sounds; returns at once. Nothing happens
    // where the path is empty or the file is no wave. What cannot sound within some tenths of a
    // second, since no server answers, never sounds.
    void Spielen(std::string pfad);

    // For leaving the program: ends what sounds and is never held up by a server.
    void Beenden();

private:
    const std::string Bibliothek;
    std::mutex Schloss;
    std::shared_ptr<Briefkasten> Kasten;  // shared with the thread, which may outlive this object
    std::thread Faden;
};

}  // namespace malvone
