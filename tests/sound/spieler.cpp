// A player for trials by ear and by machine: plays wave files as the game does.
//   spieler [--bibliothek NAME] {FILE | MILLISECONDS | leer | zaehlen} ...
// A number pauses, "leer" plays the empty path, "zaehlen" counts the devices. Prints how long the
// game would have been held up: by each kind of call, the longest.
#include "ui/sound/Sound.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace {

using Uhr = std::chrono::steady_clock;

template<typename Tun>
double Gemessen(Tun tun)
{
    const auto beginn = Uhr::now();
    tun();
    return std::chrono::duration<double, std::milli>(Uhr::now() - beginn).count();
}

bool IstZahl(const std::string& text)
{
    return text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

int main(int argc, char** argv)
{
    std::vector<std::string> liste(argv + 1, argv + argc);
    std::string bibliothek = "libpulse.so.0";
    if (liste.size() >= 2 && liste[0] == "--bibliothek") {
        bibliothek = liste[1];
        liste.erase(liste.begin(), liste.begin() + 2);
    }
    malvone::Sound klang(bibliothek);
    std::printf("Vorbereiten %.2f ms\n", Gemessen([&] { klang.Prepare(); }));
    double spielen = 0;
    for (const std::string& wort : liste) {
        if (wort == "zaehlen") {
            std::int32_t geraete = 0;
            const double dauerMs = Gemessen([&] { geraete = klang.DeviceCount(); });
            std::printf("Geraete %d\nZaehlen %.2f ms\n", geraete, dauerMs);
        } else if (IstZahl(wort)) {
            std::this_thread::sleep_for(std::chrono::milliseconds(std::stoi(wort)));
        } else {
            const std::string pfad = wort == "leer" ? "" : wort;
            spielen = std::max(spielen, Gemessen([&] { klang.Play(pfad); }));
        }
    }
    std::printf("Spielen %.2f ms\n", spielen);
    std::printf("Beenden %.2f ms\n", Gemessen([&] { klang.Finish(); }));
    return 0;
}
