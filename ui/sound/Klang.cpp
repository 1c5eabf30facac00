// The game's side of sound: starts the playing thread, hands it post and lets it go.
#include "ui/sound/Klang.h"

#include "ui/sound/Briefkasten.h"
#include "ui/sound/PulseFunktionen.h"
#include "ui/sound/PulseSpieler.h"

#include <csignal>
#include <system_error>
#include <utility>

namespace malvone {
namespace {

constexpr std::chrono::milliseconds kGeduld{100};  // the longest that the game is ever held up

void FadenLaufen(const std::shared_ptr<Briefkasten>& kasten, const std::string& bibliothek)
{
    PulseFunktionen pulse;
    if (pulse.Laden(bibliothek)) {
        PulseSpieler(*kasten, pulse).Laufen();
    } else {
        kasten->Antworten(0);
    }
    kasten->FadenEndet();
}

// Signals are the game's business: a thread that is started meanwhile gets none.
class OhneSignale
{
public:
    OhneSignale()
    {
        sigset_t alle;
        sigfillset(&alle);
        pthread_sigmask(SIG_SETMASK, &alle, &Vorher);
    }
    ~OhneSignale() { pthread_sigmask(SIG_SETMASK, &Vorher, nullptr); }
    OhneSignale(const OhneSignale&) = delete;
    OhneSignale& operator=(const OhneSignale&) = delete;

private:
    sigset_t Vorher{};
};

}  // namespace

Klang::Klang(std::string bibliothek) : Bibliothek(std::move(bibliothek)) {}

Klang::~Klang()
{
    Beenden();
}

void Klang::Vorbereiten()
{
    const std::lock_guard halten(Schloss);
    if (Kasten) {
        return;
    }
    auto kasten = std::make_shared<Briefkasten>();
    try {
        const OhneSignale ohneSignale;
        Faden = std::thread(FadenLaufen, kasten, Bibliothek);
        Kasten = std::move(kasten);
    } catch (const std::system_error&) {
        // A system that has no thread left gets a game without sound.
    }
}

std::int32_t Klang::GeraeteZahl()
{
    std::shared_ptr<Briefkasten> kasten;
    {
        const std::lock_guard halten(Schloss);
        kasten = Kasten;
    }
    return kasten ? kasten->AntwortAbwarten(kGeduld).value_or(1) : 0;
}

void Klang::Spielen(std::string pfad)
{
    const std::lock_guard halten(Schloss);
    if (Kasten && !pfad.empty()) {
        Kasten->Einwerfen(std::move(pfad));
    }
}

void Klang::Beenden()
{
    const std::lock_guard halten(Schloss);
    if (!Kasten) {
        return;
    }
    Kasten->Schliessen();
    // A thread that hangs in the library is left behind; all it touches belongs to it.
    if (Kasten->FadenEndeAbwarten(kGeduld)) {
        Faden.join();
    } else {
        Faden.detach();
    }
    Kasten.reset();
}

}  // namespace malvone
