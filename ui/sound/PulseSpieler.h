// Plays waves on a PulseAudio server (or PipeWire in its place), on the thread that calls Laufen().
// A server that does not answer in time is given up, and with it what should have sounded; the next
// wave tries anew.
#pragma once

#include "ui/sound/Briefkasten.h"
#include "ui/sound/PulseFunktionen.h"
#include "ui/sound/Welle.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace malvone {

class PulseSpieler
{
public:
    PulseSpieler(Briefkasten& kasten, const PulseFunktionen& pulse);

    // Returns when the letter box has been closed. Sleeps whenever there is nothing to do.
    void Laufen();

private:
    using Uhr = std::chrono::steady_clock;

    void Beginnen(const std::string& pfad);
    bool Schlafen();
    void Weiter();

    void Verbinden();
    void Trennen();
    void GeraeteErfragen();
    static void GeraetGemeldet(pa_context* verbindung, const pa_sink_info* geraet, int ende,
                               void* spieler);

    void StromPflegen();
    void StromAnlegen();
    void StromSchreiben();
    void StromLoesen();
    static void StromLeer(pa_stream* strom, int erfolg, void* spieler);

    void AntwortVerlangen();

    Briefkasten& Kasten;
    const PulseFunktionen& Pulse;
    pa_mainloop* Schleife = nullptr;

    enum class Zaehlung { Offen, Laeuft, Fertig };
    pa_context* Verbindung = nullptr;
    Zaehlung Geraete = Zaehlung::Offen;
    std::int32_t GeraeteZahl = 0;

    std::optional<Welle> Wartet;  // the wave that sounds next, as soon as that is possible
    pa_stream* Strom = nullptr;
    Welle Klingt;
    std::size_t Geschrieben = 0;  // bytes of Klingt that the server has
    bool Verklingt = false;       // All is written and the server will tell when it has sounded.
    bool Verklungen = false;

    std::optional<Uhr::time_point> Frist;  // until when the server owes an answer
};

}  // namespace malvone
