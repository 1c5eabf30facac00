// AllesnachLinks.cpp: columns close up to the left; the test for a move.
#include "board/AllesnachLinks.h"

#include "board/SteuereBilder.h"
#include "state/Zellen.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr int kDurchgaenge = 6;

bool SpalteLeer(int oberste)
{
    for (int i = oberste; i < oberste + kReihen; ++i) {
        if (Zellwert(i) != 0) {
            return false;
        }
    }
    return true;
}

void RechteSpalteHolen(int oberste)
{
    for (int k = oberste; k < oberste + kReihen; ++k) {
        Image& hier = frmTessel->imgFeld(k);
        Image& rechts = frmTessel->imgFeld(k + kReihen);
        hier.Picture = rechts.Picture;
        hier.Tag = rechts.Tag;
        rechts.Tag = "0";
        rechts.Picture = frmBilder->imgBild(0).Picture;
    }
}

// The texts are compared; only the first cell's is read as a number.
bool Paar(int zelle, int nachbar)
{
    return Zellwert(zelle) != 0 && frmTessel->imgFeld(zelle).Tag == frmTessel->imgFeld(nachbar).Tag;
}

}  // namespace

void SpaltenSchliessen()
{
    for (int durchgang = 0; durchgang < kDurchgaenge; ++durchgang) {
        for (int spalte = 0; spalte < kSpalten - 1; ++spalte) {
            if (SpalteLeer(ObersteZelle(spalte))) {
                RechteSpalteHolen(ObersteZelle(spalte));
            }
        }
    }
}

void ZugVorhanden(Flag& Ergebnis)
{
    Ergebnis = False;
    for (int i = 1; i <= kZellen; ++i) {
        const bool senkrecht = Reihe(i) < kReihen - 1 && Paar(i, i + 1);
        const bool waagerecht = Spalte(i) < kSpalten - 1 && Paar(i, i + kReihen);
        if (senkrecht || waagerecht) {
            Ergebnis = True;
            return;
        }
    }
}

}  // namespace malvone
