// Sound.h: sound for the game: counts the wave output devices and plays wave files, and never lets
// the game wait for a sound server.
#pragma once

#include <cstdint>
#include <future>
#include <memory>
#include <string>
#include <thread>

namespace malvone {

class Mailbox;

class Sound
{
public:
    // The library that talks to the sound server; the playing thread loads it.
    explicit Sound(std::string library = "libpulse.so.0");
    ~Sound();
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    // Starts the thread that loads the library, connects and counts the devices; returns at once.
    // Call it once. Before it, and after Finish(), there is no device and nothing sounds.
    void Prepare();

    // The number of wave output devices. Waits at most 100 ms for the answer and then assumes one
    // device, so that the menu offers sound.
    std::int32_t DeviceCount();

    // Plays a wave file (path in UTF-8) in place of the current one; returns at once. Does nothing
    // if there is no such file or it is no wave. If no server answers within some tenths of a
    // second, the wave is not played.
    void Play(std::string path);

    // Call before the program ends: stops the current wave without waiting for a server.
    void Finish();

private:
    const std::string library_;
    std::shared_ptr<Mailbox> mailbox_;  // shared with the thread, which may outlive this
    std::thread thread_;
    std::future<void> ended_;  // ready once the thread has nothing more to do
};

}  // namespace malvone
