// iniTessel.cpp: the cells of the board, made once, and their filling.
#include "board/iniTessel.h"

#include "board/SteuereBilder.h"
#include "board/Zufallszahl.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "storage/Spielstanddatei.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr Twips kRand = 100;    // from the corner of Picture1 to the first cell
constexpr Twips kRaster = 480;  // a picture's 32 pixels, so that the cells lie edge to edge

void ZelleAnlegen(int zelle)
{
    Image& feld = frmTessel->imgFeld.Load(zelle);
    feld.Visible = true;
    feld.Move(kRand + kRaster * static_cast<Twips>(Spalte(zelle)),
              kRand + kRaster * static_cast<Twips>(Reihe(zelle)));
    feld.Picture = frmBilder->imgGrund.Picture;
    feld.Tag = "0";
    Satz(zelle) = Zelle();
    Satz(zelle).ObererRand = Reihe(zelle) == 0 ? True : False;
    Satz(zelle).UntererRand = Reihe(zelle) == kReihen - 1 ? True : False;
}

}  // namespace

void FeldAnlegen()
{
    for (int i = 1; i <= kZellen; ++i) {
        ZelleAnlegen(i);
    }
    frmTessel->imgFeld(0).Visible = false;
    frmTessel->imgFeld(0).Enabled = false;
}

void FeldFuellen()
{
    ++Stand.RundenZahl;
    for (int i = 1; i <= kZellen; ++i) {
        frmTessel->imgFeld(i).Tag = TagText(ZufallsFarbe());
        Satz(i).Vorschau = False;
        BildZeigen(i);
    }
    Stand.LevelPunkte = 0;
    WiederholenAnbieten(false);
    StandSpeichern();
    MarkierungenLoeschen();
}

}  // namespace malvone
