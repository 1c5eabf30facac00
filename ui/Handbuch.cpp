// Handbuch.cpp: the manuals, the information window, and the two picture buttons that lead to them.
#include "ui/Handbuch.h"

#include "storage/Datenordner.h"
#include "ui/Klaenge.h"
#include "ui/Meldungen.h"
#include "ui/layer/App.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

std::string ProgrammOrdner()
{
    return MitBackslash(App.Path);
}

void HandbuchOeffnen(std::string_view name)
{
    const std::string pfad = MitBackslash(ProgrammOrdner()) + std::string(name);
    if (ExistiertDatei(pfad) && !App.Ended()) {
        App.System().ShellExecuteA(pfad);
    }
}

void FrmTessel::lblHilfe_Click()
{
    SoundSpielen(kTonHinweis);
    HandbuchOeffnen("Malvone.pdf");
}

void FrmTessel::lblInfo_Click()
{
    SoundSpielen(kTonHinweis);
    MeldungZeigen("Programmierung:\r\nDas Malvone-Team\r\nhttps://malvone.example",
                  "Grafik:\r\nDas Malvone-Team\r\nhttps://malvone.example", Versatz{-200, -200});
}

void FrmTessel::lblHilfe_MouseDown()
{
    lblHilfe.Picture = frmBilder->cmdHilfeGruen.Picture;
}

void FrmTessel::lblHilfe_MouseUp()
{
    lblHilfe.Picture = frmBilder->cmdHilfeAuswahl.Picture;
}

void FrmTessel::lblInfo_MouseDown()
{
    lblInfo.Picture = frmBilder->cmdBeschreibungenFruen.Picture;
}

void FrmTessel::lblInfo_MouseUp()
{
    lblInfo.Picture = frmBilder->cmdBeschreibungenAuswahl.Picture;
}

}  // namespace malvone
