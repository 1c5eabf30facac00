// Levelende.cpp: what follows when a move leaves an empty board or no further move: the bonus, the
// offer of the next level, or the end of the game.
#include <string>

#include "board/SteuereBilder.h"
#include "board/iniTessel.h"
#include "game/NeuesSpiel.h"
#include "state/Beste.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "storage/modBeste.h"
#include "ui/layer/App.h"
#include "ui/services/Klaenge.h"
#include "ui/services/Meldungen.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr std::int32_t kBonus = 1000;
constexpr std::int16_t kLetzterLevel = 5;

std::string RestText(std::int16_t belegt)
{
    return belegt == 1 ? "Es ist noch ein Feld belegt."
                       : "Es sind noch " + std::to_string(belegt) + " Felder belegt.";
}

}  // namespace

void FrmTessel::BelegteFelderZaehlen()
{
    Stand.BelegtZahl = 0;
    for (int i = 1; i <= kZellen; ++i) {
        if (Zellwert(i) != 0) {
            ++Stand.BelegtZahl;
        }
    }
}

// By design (bonus-spaeter): one would expect the displays to count the bonus at once. They change
// with the first removal of the new level. Test: games.empty_board
void FrmTessel::LeeresFeldBelohnen()
{
    lblSumme.Caption = "";
    SoundSpielen(kTonErfolg);
    MeldungZeigen("\r\nSehr gut!!!\r\nSie haben alle Spielsteine entfernt!",
                  "\r\nSie erhalten 1000 Bonuspunkte");
    Stand.PunkteGesamt += kBonus;
    FeldFuellen();
}

void FrmTessel::LevelAuswerten()
{
    MeldungZeigen("\r\nEs ist kein weiterer Zug mehr möglich.\r\n" + RestText(Stand.BelegtZahl),
                  "\r\nSie erhalten keine Bonuspunkte in diesem Level.", Versatz{-1000, -1000});
    // By design (level-sechs): one would expect every level from 5 on to end the game. Only level 5
    // does; a player who empties it can play on forever. Test: games.empty_board
    if (Stand.RundenZahl == kLetzterLevel) {
        BestePruefen();
        ExternesEnde();
        lblSumme.Caption = "";
        return;
    }
    lblSumme.Caption = "";
    // By design (nur-einmal): one would expect a new level to be offered in full. The mark of a
    // repeat outlives a level that is emptied. Test: games.empty_board
    const bool volles = Stand.LevelWiederholt == 0;
    imgNaechsterLevel.Visible = true;
    imgWiederholen.Visible = volles;
    imgNochEinmal.Visible = volles;
    imgNext.Picture = frmBilder->imgPfeil(1).Picture;
    lblMeldung.Caption = volles ? "Klicken Sie auf \r\n»Nächster Level« oder »Wiederholen«."
                                : "Klicken Sie auf \r\n»Nächster Level«";
    FeldLeeren();
    WiederholenAnbieten(true);
}

void FrmTessel::ExternesEnde()
{
    if (FrageStellen("\r\nDas aktuelle Spiel ist beendet.\r\n"
                     "Möchten Sie ein neues Spiel beginnen?\"",
                     "\r\n»Neues Spiel« bestätigen")) {
        // By design (halbes-angebot): one would expect the whole offer to go. Only the next level
        // does. Test: games.commands
        imgNext.Picture = frmBilder->imgPfeil(kPfeilLeer).Picture;
        imgNaechsterLevel.Visible = false;
        Beste.EndPunkte = 0;
        SpielBeginnen();
        return;
    }
    App.Ende();
}

}  // namespace malvone
