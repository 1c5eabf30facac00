// The letter box between the game and the thread that plays.
#include "ui/sound/Briefkasten.h"

#include <utility>

namespace malvone {

void Briefkasten::Einwerfen(std::string pfad)
{
    const std::lock_guard halten(Schloss);
    Inhalt.Pfad = std::move(pfad);
    Wecken();
}

void Briefkasten::Schliessen()
{
    const std::lock_guard halten(Schloss);
    Inhalt.Ende = true;
    Wecken();
}

void Briefkasten::Wecken()
{
    if (Wecker && !Geweckt) {
        Geweckt = true;
        Wecker();
    }
}

std::optional<std::int32_t> Briefkasten::AntwortAbwarten(std::chrono::milliseconds hoechstens)
{
    std::unique_lock halten(Schloss);
    Neues.wait_for(halten, hoechstens, [this] { return Geraete.has_value(); });
    return Geraete;
}

bool Briefkasten::FadenEndeAbwarten(std::chrono::milliseconds hoechstens)
{
    std::unique_lock halten(Schloss);
    return Neues.wait_for(halten, hoechstens, [this] { return FadenAmEnde; });
}

void Briefkasten::WeckerStellen(std::function<void()> wecker)
{
    const std::lock_guard halten(Schloss);
    Wecker = std::move(wecker);
}

Briefkasten::Post Briefkasten::Holen()
{
    const std::lock_guard halten(Schloss);
    Geweckt = false;
    Post post{Inhalt.Ende, std::move(Inhalt.Pfad)};
    Inhalt.Pfad.reset();
    return post;
}

void Briefkasten::Antworten(std::int32_t geraete)
{
    const std::lock_guard halten(Schloss);
    Geraete = geraete;
    Neues.notify_all();
}

void Briefkasten::FadenEndet()
{
    const std::lock_guard halten(Schloss);
    FadenAmEnde = true;
    Neues.notify_all();
}

}  // namespace malvone
