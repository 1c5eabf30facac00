// A player for trials by ear and by machine: plays wave files as the game does.
//   spieler [--bibliothek NAME] {FILE | MILLISECONDS | leer} ...
// A number pauses, "leer" plays the empty path. Prints the devices counted and how long the game
// would have been held up.
#include "ui/sound/Klang.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace
{

using Uhr = std::chrono::steady_clock;

template <typename Tun>
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
    malvone::Klang klang(bibliothek);
    const double start = Gemessen([&] { klang.Vorbereiten(); });
    std::int32_t geraete = 0;
    const double zaehlen = Gemessen([&] { geraete = klang.GeraeteZahl(); });
    std::printf("Geraete %d\nVorbereiten %.2f ms\nGeraeteZahl %.2f ms\n", geraete, start, zaehlen);
    double spielen = 0;
    for (const std::string& wort : liste) {
        if (IstZahl(wort)) {
            std::this_thread::sleep_for(std::chrono::milliseconds(std::stoi(wort)));
        } else {
            spielen = std::max(spielen, Gemessen([&] { klang.Spielen(wort == "leer" ? "" : wort); }));
        }
    }
    const double beenden = Gemessen([&] { klang.Beenden(); });
    std::printf("Spielen %.2f ms\nBeenden %.2f ms\n", spielen, beenden);
    return 0;
}
