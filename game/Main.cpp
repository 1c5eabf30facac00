// Main.cpp: how the program comes up.
#include "game/Main.h"

#include <string>

#include "board/SteuereBilder.h"
#include "board/iniTessel.h"
#include "game/NeuesSpiel.h"
#include "state/Beste.h"
#include "state/Pfade.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "storage/Datenordner.h"
#include "storage/modBeste.h"
#include "ui/layer/App.h"
#include "ui/services/Anzeigen.h"
#include "ui/services/Klaenge.h"
#include "ui/services/Meldungen.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmHintergrund.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr int kBlinkenMs = 300;

constexpr Meldungstext kPlatteFehlt = {"\r\nDie Festplatte auf Ihrem System wurde nicht erkannt!",
                                       "\r\nEin Speichern von Daten ist leider nicht möglich"};

// The data folder lies in the root of the drive that holds the Windows folder.
void DatenordnerWaehlen()
{
    const std::string windows = WindowsOrdner();
    if (windows.empty()) {
        SoundDirekt(kTonBeginn);
        MeldungZeigen(kPlatteFehlt);
        return;
    }
    Daten.DatenOrdnerOk = True;
    Daten.DatenOrdner = MitBackslash(windows.substr(0, 2)) + kDatenOrdnerName;
    if (!ExistiertDatei(Daten.DatenOrdner)) {
        OrdnerAnlegen(Daten.DatenOrdner);
    }
}

void BestenlisteVorbereiten()
{
    if (!ExistiertDatei(BesteDatei())) {
        BesteVorgabe();
    }
}

void ErsteHinweise()
{
    frmTessel->lblMeldung.Caption = "Klicken Sie auf »Neues Spiel«.";
    frmTessel->lblSumme.Caption = "";
    frmTessel->lblNeu.Caption = "";
    frmTessel->imgNaechsterLevel.Visible = false;
    frmTessel->imgWiederholen.Visible = false;
    frmTessel->imgNochEinmal.Visible = false;
}

void SoundMenuEinrichten()
{
    if (SoundKarteVorhanden()) {
        frmTessel->mnuSoundan.Checked = true;
    } else {
        frmTessel->mnuSound.Enabled = false;
    }
}

}  // namespace

void ZustandNeu()
{
    Stand = {};
    Beste = {};
    Daten = {};
    Zellen = {};
    SoundDateien = {};
    MsgAntwort = 0;
}

void Main()
{
    SoundListeAnlegen();
    DatenordnerWaehlen();
    BestenlisteVorbereiten();
    Load(frmTessel);
    AnzeigenAktualisieren();
    ErsteHinweise();
    FeldAnlegen();
    SoundMenuEinrichten();
    Stand.KeinSpielBegonnen = true;
    SpielZuruecksetzen();
    Load(frmHintergrund);
    frmHintergrund->Visible = true;
    frmTessel->Show();
}

void FrmTessel::Form_Load()
{
    Move((Screen.Width - Width) / 2, (Screen.Height - Height) / 2);
    WiederholenAnbieten(false);
    lblSumme.ForeColor = kDunkelblau;
    Timer1.Enabled = true;
    Timer1.Interval = kBlinkenMs;
    imgNext.Picture = frmBilder->imgPfeil(kPfeilLeer).Picture;
    Caption = TitelMitVersion();
    SoundDirekt(kTonErfolg);
    imgNochEinmal.Visible = false;
}

}  // namespace malvone
