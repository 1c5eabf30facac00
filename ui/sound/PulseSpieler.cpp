// The player on PulseAudio: after every waking it looks where connection and stream stand and takes
// the next step. Its states are those that libpulse keeps; callbacks only note what they are told.
#include "ui/sound/PulseSpieler.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace malvone {
namespace {

constexpr std::chrono::milliseconds kAntwortFrist{300};
constexpr std::int64_t kNachschubMs = 20;  // how often a sounding wave is asked for more, at most
constexpr std::int64_t kVorratMs = 2000;   // how much of a wave the server holds
constexpr std::string_view kKeinGeraet = "auto_null";  // what stands in where hardware is missing

std::uint32_t BytesFuer(const Welle& welle, std::int64_t ms)
{
    const auto rahmen = static_cast<std::size_t>(welle.Rate * ms / 1000);
    return static_cast<std::uint32_t>(rahmen * welle.RahmenBytes());
}

}  // namespace

PulseSpieler::PulseSpieler(Briefkasten& kasten, const PulseFunktionen& pulse)
    : Kasten(kasten), Pulse(pulse)
{}

void PulseSpieler::Laufen()
{
    Schleife = Pulse.pa_mainloop_new();
    if (Schleife == nullptr) {
        Kasten.Antworten(0);
        return;
    }
    Kasten.WeckerStellen([this] { Pulse.pa_mainloop_wakeup(Schleife); });
    Verbinden();
    for (bool weiter = true; weiter;) {
        const Briefkasten::Post post = Kasten.Holen();
        if (post.Pfad) {
            Beginnen(*post.Pfad);
        }
        Weiter();
        weiter = !post.Ende && Schlafen();
    }
    Kasten.WeckerStellen({});
    Trennen();
    Pulse.pa_mainloop_free(Schleife);
}

void PulseSpieler::Beginnen(const std::string& pfad)
{
    std::optional<Welle> welle = WelleLaden(pfad);
    if (!welle) {
        return;
    }
    Wartet = std::move(welle);
    if (Verbindung == nullptr) {
        Verbinden();
    }
}

bool PulseSpieler::Schlafen()
{
    int dauer = -1;  // microseconds; until something happens
    if (Frist) {
        const auto rest = std::chrono::ceil<std::chrono::microseconds>(*Frist - Uhr::now());
        dauer = static_cast<int>(std::max<std::int64_t>(rest.count(), 0));
    }
    return Pulse.pa_mainloop_prepare(Schleife, dauer) >= 0 &&
           Pulse.pa_mainloop_poll(Schleife) >= 0 && Pulse.pa_mainloop_dispatch(Schleife) >= 0;
}

void PulseSpieler::Weiter()
{
    if (Verbindung == nullptr) {
        return;
    }
    const pa_context_state_t zustand = Pulse.pa_context_get_state(Verbindung);
    if (zustand == PA_CONTEXT_READY && Geraete == Zaehlung::Offen) {
        GeraeteErfragen();
    }
    if (zustand == PA_CONTEXT_READY && Geraete == Zaehlung::Fertig) {
        StromPflegen();
    }
    const bool zuSpaet = Frist && Uhr::now() >= *Frist;
    if (!PA_CONTEXT_IS_GOOD(zustand) || zuSpaet) {
        Trennen();
    }
}

void PulseSpieler::AntwortVerlangen()
{
    // A second demand does not give the server more time for the first.
    if (!Frist) {
        Frist = Uhr::now() + kAntwortFrist;
    }
}

void PulseSpieler::Verbinden()
{
    Geraete = Zaehlung::Offen;
    GeraeteZahl = 0;
    Verbindung = Pulse.pa_context_new(Pulse.pa_mainloop_get_api(Schleife), "Malvone");
    if (Verbindung == nullptr ||
        Pulse.pa_context_connect(Verbindung, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        Trennen();
        return;
    }
    AntwortVerlangen();
}

void PulseSpieler::Trennen()
{
    StromLoesen();
    if (Verbindung != nullptr) {
        Pulse.pa_context_disconnect(Verbindung);
        Pulse.pa_context_unref(Verbindung);
        Verbindung = nullptr;
    }
    Wartet.reset();
    Frist.reset();
    Kasten.Antworten(0);
}

void PulseSpieler::GeraeteErfragen()
{
    Geraete = Zaehlung::Laeuft;
    pa_operation* const frage =
        Pulse.pa_context_get_sink_info_list(Verbindung, &PulseSpieler::GeraetGemeldet, this);
    if (frage != nullptr) {
        Pulse.pa_operation_unref(frage);
    }
}

void PulseSpieler::GeraetGemeldet(pa_context* /*verbindung*/, const pa_sink_info* geraet, int ende,
                                  void* spieler)
{
    auto& ich = *static_cast<PulseSpieler*>(spieler);
    if (ende == 0) {
        ich.GeraeteZahl += geraet->name == kKeinGeraet ? 0 : 1;
        return;
    }
    ich.Geraete = Zaehlung::Fertig;
    ich.Frist.reset();
    ich.Kasten.Antworten(ich.GeraeteZahl);
}

void PulseSpieler::StromPflegen()
{
    if (Strom != nullptr) {
        const pa_stream_state_t zustand = Pulse.pa_stream_get_state(Strom);
        if (zustand == PA_STREAM_CREATING) {
            return;  // It cannot even be taken back before the server has answered.
        }
        Frist.reset();
        if (zustand == PA_STREAM_READY && !Verklungen && !Wartet) {
            StromSchreiben();
        } else {
            StromLoesen();
        }
    }
    if (Wartet) {
        StromAnlegen();
    }
}

void PulseSpieler::StromAnlegen()
{
    Klingt = std::move(*Wartet);
    Wartet.reset();
    Geschrieben = 0;
    Verklingt = Verklungen = false;

    const pa_sample_spec art{Klingt.Bits == 8 ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE, Klingt.Rate,
                             Klingt.Kanaele};
    // With early requests the size of a request is the delay of the device: a wave is heard soon
    // although the server holds much of it.
    const auto beliebig = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr vorrat{beliebig, BytesFuer(Klingt, kVorratMs), beliebig,
                                BytesFuer(Klingt, kNachschubMs), beliebig};
    Strom = Pulse.pa_stream_new(Verbindung, "Malvone", &art, nullptr);
    if (Strom == nullptr) {
        return;
    }
    if (Pulse.pa_stream_connect_playback(Strom, nullptr, &vorrat, PA_STREAM_EARLY_REQUESTS, nullptr,
                                         nullptr) < 0) {
        StromLoesen();
        return;
    }
    AntwortVerlangen();
}

void PulseSpieler::StromSchreiben()
{
    const std::size_t platz = Pulse.pa_stream_writable_size(Strom);
    if (platz == static_cast<std::size_t>(-1)) {
        return;  // The connection is going down; its state tells it.
    }
    const std::size_t rest = Klingt.Daten.size() - Geschrieben;
    const std::size_t menge = std::min(rest, platz - platz % Klingt.RahmenBytes());
    if (menge > 0 && Pulse.pa_stream_write(Strom, Klingt.Daten.data() + Geschrieben, menge, nullptr,
                                           0, PA_SEEK_RELATIVE) < 0) {
        StromLoesen();
        return;
    }
    Geschrieben += menge;
    if (Geschrieben == Klingt.Daten.size() && !Verklingt) {
        Verklingt = true;
        pa_operation* const frage = Pulse.pa_stream_drain(Strom, &PulseSpieler::StromLeer, this);
        if (frage != nullptr) {
            Pulse.pa_operation_unref(frage);
        }
    }
}

void PulseSpieler::StromLoesen()
{
    if (Strom == nullptr) {
        return;
    }
    Pulse.pa_stream_disconnect(Strom);
    Pulse.pa_stream_unref(Strom);
    Strom = nullptr;
}

void PulseSpieler::StromLeer(pa_stream* strom, int /*erfolg*/, void* spieler)
{
    auto& ich = *static_cast<PulseSpieler*>(spieler);
    if (strom == ich.Strom) {
        ich.Verklungen = true;
    }
}

}  // namespace malvone
