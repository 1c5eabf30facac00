// Meldungstext.h: the two texts of a message as one constant, and the message windows called with
// it.
#pragma once

#include <string_view>

#include "ui/Meldungen.h"

namespace malvone {

struct Meldungstext
{
    std::string_view Meldung;
    std::string_view Titel;
};

inline void MeldungZeigen(const Meldungstext& text)
{
    MeldungZeigen(text.Meldung, text.Titel);
}

inline bool FrageStellen(const Meldungstext& text)
{
    return FrageStellen(text.Meldung, text.Titel);
}

}  // namespace malvone
