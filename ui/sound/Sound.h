// Sound.h: sound for the game: counts the wave output devices and plays wave files, and never lets
// the game wait for a sound server. All calls may come from any thread.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace malvone {

class Mailbox;

class Sound
{
public:
    // The library that speaks to the sound server; it is loaded beside the start.
    explicit Sound(std::string library = "libpulse.so.0");
    ~Sound();
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    // Starts the thread that loads the library, connects and counts the devices; returns at once.
    // Before it, and after Finish(), there is no device and nothing sounds.
    void Prepare();

    // The number of wave output devices. Waits at most 100 ms for the answer; if it is still open
    // then, a device counts as present, so that sound can be reached in the menu.
    std::int32_t DeviceCount();

    // Plays the wave file (path in UTF-8) in place of what sounds; returns at once. Nothing happens
    // where the path is empty or the file is no wave. What cannot sound within some tenths of a
    // second, since no server answers, never sounds.
    void Play(std::string path);

    // For leaving the program: ends what sounds and is never held up by a server.
    void Finish();

private:
    const std::string library_;
    std::mutex mutex_;
    std::shared_ptr<Mailbox> mailbox_;  // shared with the thread, which may outlive this object
    std::thread thread_;
};

}  // namespace malvone
