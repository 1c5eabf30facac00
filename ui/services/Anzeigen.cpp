// Anzeigen.cpp: numbers as rows of seven-segment pictures.
#include "ui/services/Anzeigen.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "state/Spielstand.h"
#include "ui/windows/FrmDigital.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

using Stellen = ControlArray<Image>;

void Leeren(const Stellen& stellen)
{
    for (int stelle = 0; stelle < stellen.End(); ++stelle) {
        stellen(stelle).Picture = frmDigital->imgDiggi(kZifferLeer).Picture;
    }
}

// The last character of the decimal text goes to place 0; places above the number stay blank.
void Schreiben(const Stellen& stellen, std::int32_t zahl)
{
    const std::string text = std::to_string(zahl);
    int stelle = 0;
    for (auto zeichen = text.rbegin(); zeichen != text.rend(); ++zeichen, ++stelle) {
        stellen(stelle).Picture = frmDigital->imgDiggi(*zeichen - '0').Picture;
    }
}

// By design (volle-anzeige): one would expect the digits that fit. A number with more digits than
// the display has places shows a 9 in every place, which says "at least so many" and never names
// fewer points than there are. Test: Anzeigen.NumbersStandAtTheRightAndNinesWhereTheyEnd
void PunkteSchreiben(const Stellen& stellen, std::int32_t punkte)
{
    std::int32_t hoechste = 0;
    for (int stelle = 0; stelle < stellen.End(); ++stelle) {
        hoechste = hoechste * 10 + 9;
    }
    if (punkte >= 0) {
        Schreiben(stellen, std::min(punkte, hoechste));
    }
}

}  // namespace

void AnzeigenAktualisieren()
{
    const Stellen& level = frmTessel->imgDiggiLevel;
    Leeren(frmTessel->imgDiggiPunkte);
    Leeren(frmTessel->imgDiggiLevelPunkte);
    Leeren(level);

    PunkteSchreiben(frmTessel->imgDiggiPunkte, Stand.PunkteGesamt);
    PunkteSchreiben(frmTessel->imgDiggiLevelPunkte, Stand.LevelPunkte);
    // By design (dunkler-level): one would expect two digits from level 10 on. The second place is
    // never lit, and a number without room leaves both dark.
    // Test: Anzeigen.NumbersStandAtTheRightAndNinesWhereTheyEnd
    if (Stand.RundenZahl >= 0 && Stand.RundenZahl <= 9) {
        Schreiben(level, Stand.RundenZahl);
    }
}

}  // namespace malvone
