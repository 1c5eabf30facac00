// Befehle.cpp: the commands of the main window outside the board, except for the new game.
#include "board/iniTessel.h"
#include "state/Beste.h"
#include "state/Spielstand.h"
#include "storage/Spielstanddatei.h"
#include "ui/services/Anzeigen.h"
#include "ui/services/Klaenge.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr Twips kBesteVersatz = -500;

void BesteAnsehen()
{
    Beste.EintragModus = False;
    frmBeste->Move(frmTessel->Left + kBesteVersatz, frmTessel->Top + kBesteVersatz);
    frmBeste->Show(ShowMode::Modal);
}

}  // namespace

void FrmTessel::cmdSchalt_Click(std::int16_t Index)
{
    switch (Index) {
    // By design (taste-ueberspringt): one would expect a question, or a price, for a level that is
    // left. There is none. Test: games.commands
    // By design (pfeil-blinkt-weiter): one would expect the arrow to go. It stays until a picture
    // or label is clicked. Test: games.new_game
    case kSchaltWeiter:
        Stand.KeinSpielBegonnen = false;
        FeldFuellen();
        SoundSpielen(kTonBeginn);
        break;
    // By design (wiederholung-zaehlt): one would expect the level to keep its number and its
    // points to go. By menu or keyboard the number rises by one and all points stay; only the
    // picture gives them back. Test: games.commands
    case kSchaltWiederholen:
        StandLaden();
        SoundSpielen(kTonBeginn);
        break;
    case kSchaltEnde: Unload(); break;
    default: break;
    }
}

void FrmTessel::imgNaechsterLevel_Click()
{
    PfeileAus();
    AngebotAus();
    lblMeldung.Caption = "";
    Stand.PunkteLevelStart = Stand.PunkteGesamt;
    Stand.LevelPunkte = 0;
    Stand.LevelWiederholt = 0;
    // By design (level-anzeige-spaeter): one would expect the new number at once. The displays are
    // painted before it rises, and show it with the level's first removal. Test: games.levels
    AnzeigenAktualisieren();
    cmdSchalt_Click(kSchaltWeiter);
}

// Points and level go back before the snapshot is read: reading it raises the level again, and a
// failure leaves both set back.
void FrmTessel::imgWiederholen_Click()
{
    PfeileAus();
    AngebotAus();
    // By design (wiederholung-nimmt-alles): one would expect only the points of this level to go.
    // Emptying the level before it has noted nothing, so its points go too. Test: games.levels
    Stand.PunkteGesamt = Stand.PunkteLevelStart;
    Stand.LevelPunkte = 0;
    --Stand.RundenZahl;
    Stand.LevelWiederholt = 1;
    lblSumme.Caption = "";
    lblMeldung.Caption = "";
    AnzeigenAktualisieren();
    StandLaden();
}

void FrmTessel::mnuTessel_Click(std::int16_t Index)
{
    switch (Index) {
    case kMenuNeu: lblNeu_Click(); break;
    case kMenuWiederholen: cmdSchalt_Click(kSchaltWiederholen); break;
    case kMenuEnde: cmdSchalt_Click(kSchaltEnde); break;
    default: break;
    }
}

void FrmTessel::mnuInfo_Click(std::int16_t Index)
{
    switch (Index) {
    case kMenuHilfe: lblHilfe_Click(); break;
    case kMenuInfo: lblInfo_Click(); break;
    case kMenuBeste: BesteAnsehen(); break;
    default: break;
    }
}

void FrmTessel::mnuSoundan_Click()
{
    mnuSoundan.Checked = true;
    mnuSoundaus.Checked = false;
}

void FrmTessel::mnuSoundaus_Click()
{
    mnuSoundaus.Checked = true;
    mnuSoundan.Checked = false;
}

void FrmTessel::lblEnde_Click()
{
    Unload();
}

// F1 is also the shortcut of a menu entry. It is handled here, so that the manual opens once.
void FrmTessel::Form_KeyDown(std::int16_t& KeyCode, std::int16_t /*Shift*/)
{
    if (KeyCode == kKeyF1) {
        KeyCode = 0;
        lblHilfe_Click();
    }
}

}  // namespace malvone
