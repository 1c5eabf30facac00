// NeuesSpiel.cpp: the click on the field for a new game, and the arrow that points to it.
#include "game/NeuesSpiel.h"

#include "board/iniTessel.h"
#include "state/Spielstand.h"
#include "ui/services/Anzeigen.h"
#include "ui/services/Klaenge.h"
#include "ui/services/Meldungen.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

void SpielZuruecksetzen()
{
    Stand.ZugPunkte = 0;
    Stand.PunkteGesamt = 0;
    Stand.RundenZahl = 0;
    Stand.MarkiertZahl = 0;
    frmTessel->cmdSchalt(kSchaltWeiter).Caption = "Spiel begi&nnen";
    frmTessel->cmdSchalt(kSchaltWeiter).ToolTipText = "Klicken Sie hier, um das Spiel zu beginnen";
}

void SpielBeginnen()
{
    SpielZuruecksetzen();
    FeldFuellen();
    Stand.KeinSpielBegonnen = false;
    AnzeigenAktualisieren();
    frmTessel->lblMeldung.Caption = "";
    Stand.PunkteLevelStart = 0;
    Stand.LevelWiederholt = 0;
}

// Nothing turns the timer on again.
void FrmTessel::PfeileAus()
{
    Timer1.Enabled = false;
    Timer1.Interval = 0;
    imgStart.Picture = frmBilder->imgPfeil(kPfeilLeer).Picture;
    imgNext.Picture = frmBilder->imgPfeil(kPfeilLeer).Picture;
}

void FrmTessel::AngebotAus()
{
    imgWiederholen.Visible = false;
    imgNaechsterLevel.Visible = false;
    imgNochEinmal.Visible = false;
}

// By design (frage-nimmt-angebot): one would expect the answer no to leave everything as it was.
// The offer of the next level is taken away before the question is asked, and stays away; menu and
// keyboard still offer it. Test: games.new_game
void FrmTessel::lblNeu_Click()
{
    PfeileAus();
    AngebotAus();
    if (!Stand.KeinSpielBegonnen) {
        SoundSpielen(kTonFrage);
        if (!FrageStellen("\r\nSind Sie sicher,\r\ndass Sie das aktuelle Spiel beenden möchten?",
                          "Wenn Sie sich für »Ja« entscheiden, beginnen Sie ein neues Spiel.\r\n"
                          "Mit »0« Punkten im ersten Level.\r\n»Neues Spiel« bestätigen")) {
            return;
        }
    }
    SpielBeginnen();
}

void FrmTessel::Timer1_Timer()
{
    PfeilBlinken();
}

void FrmTessel::PfeilBlinken()
{
    PfeilPhase = PfeilPhase == 0 ? 1 : 0;
    imgStart.Picture = frmBilder->imgPfeil(PfeilPhase).Picture;
}

}  // namespace malvone
