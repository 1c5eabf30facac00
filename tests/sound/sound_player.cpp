// A player for trials by ear and by machine: plays wave files as the game does.
//   sound_player [LIBRARY]
// Each line of the input is the path of a wave, empty for none, or "count" for the number of
// devices. Each is answered by how many milliseconds the game would have been held up, and by the
// number; so are the beginning and the end.
#include "ui/sound/Sound.h"

#include <chrono>
#include <iostream>
#include <string>

namespace {

template<typename Call>
double Measured(Call call)
{
    const auto begin = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
        .count();
}

}  // namespace

int main(int argc, char** argv)
{
    malvone::Sound sound(argc > 1 ? argv[1] : "libpulse.so.0");
    std::cout << Measured([&] { sound.Prepare(); }) << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        if (line == "count") {
            std::int32_t devices = 0;
            std::cout << Measured([&] { devices = sound.DeviceCount(); });
            std::cout << ' ' << devices << std::endl;
        } else {
            std::cout << Measured([&] { sound.Play(line); }) << std::endl;
        }
    }
    std::cout << Measured([&] { sound.Finish(); }) << std::endl;
    return 0;
}
