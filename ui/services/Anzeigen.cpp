// Anzeigen.cpp: numbers as rows of seven-segment pictures.
#include "ui/services/Anzeigen.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "state/Spielstand.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

// By design (volle-anzeige): one would expect the digits that fit. A number with more digits than
// the display has places shows a 9 in every place, which says "at least so many"; some of its
// digits would say far fewer. Test: Anzeigen.NumbersStandAtTheRightAndNinesWhereTheyEnd
void PunkteZeigen(Ziffernreihe& reihe, std::int32_t punkte)
{
    reihe.Zeigen(punkte < 0 ? "" : std::to_string(std::min(punkte, reihe.Groesste())));
}

}  // namespace

void AnzeigenAktualisieren()
{
    PunkteZeigen(frmTessel->Punkte, Stand.PunkteGesamt);
    PunkteZeigen(frmTessel->LevelPunkte, Stand.LevelPunkte);
    // By design (dunkler-level): one would expect two digits from level 10 on. The second place is
    // never lit, and a number without room leaves both dark.
    // Test: Anzeigen.NumbersStandAtTheRightAndNinesWhereTheyEnd
    const bool einstellig = Stand.RundenZahl >= 0 && Stand.RundenZahl <= 9;
    frmTessel->Level.Zeigen(einstellig ? std::to_string(Stand.RundenZahl) : "");
}

}  // namespace malvone
