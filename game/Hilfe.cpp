// Hilfe.cpp: the two picture buttons of the main window that lead to the manual and to the
// information window.
#include "ui/services/Handbuch.h"
#include "ui/services/Klaenge.h"
#include "ui/services/Meldungen.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

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
