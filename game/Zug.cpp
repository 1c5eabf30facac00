// Zug.cpp: the pointer on the board: what moving it and pressing its button do.
#include "board/AllesnachLinks.h"
#include "board/FillFeld.h"
#include "board/Sicherheit.h"
#include "board/SteuereBilder.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

void FrmTessel::imgFeld_MouseMove(std::int16_t Index)
{
    // By design (leere-zelle-schweigt): one would expect the preview to end on an empty cell. It
    // stays. Test: games.preview_and_move
    if (Zellwert(Index) == 0) {
        return;
    }
    MarkierungenLoeschen();
    VorschauZuruecknehmen();
    Satz(Index).Markiert = True;
    const auto farbe = static_cast<std::int16_t>(Zellwert(Index));
    StartSpalteMarkieren(Index);
    NachRechtsAusbreiten(farbe);
    NachLinksAusbreiten(farbe);
    SicherheitZellenlauf(farbe);
    GruppeVorschauen(farbe);
}

// By design (klick-auf-marken): one would expect the clicked group to go. The click acts on the
// marks of the last pointer event; the cell only has to hold a stone.
// Test: games.preview_and_move
void FrmTessel::imgFeld_MouseDown(std::int16_t Index, const Mouse& mouse)
{
    if (Zellwert(Index) == 0 || mouse.Button != kLeftButton) {
        return;
    }
    GruppeVorschauen(0);
    Stand.MarkiertZahl = 0;
    ZugAusfuehren();
    SteineFallenLassen();
    BelegteFelderZaehlen();
    if (Stand.BelegtZahl == 0) {
        LeeresFeldBelohnen();
        return;
    }
    SpaltenSchliessen();
    Flag zug = False;
    ZugVorhanden(zug);
    if (zug == False) {
        LevelAuswerten();
    }
}

// The pointer is on the margin around the stones.
void FrmTessel::Picture1_MouseMove()
{
    VorschauZuruecknehmen();
    lblSumme.Caption = "";
}

}  // namespace malvone
