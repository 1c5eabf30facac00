// FrmBeste.cpp: the window of the best players: holds the list in memory, shows it, and takes the
// name of a new entry.
#include "ui/windows/FrmBeste.h"

#include <string>

#include "platform/CodePage.h"
#include "state/Beste.h"
#include "storage/modBeste.h"
#include "ui/layer/Keys.h"
#include "ui/services/Handbuch.h"
#include "ui/services/Meldungen.h"

namespace malvone {

namespace {

constexpr Meldungstext kAlleLoeschen = {
    "\r\nSind Sie sicher,\r\ndass Sie alle Einträge löschen möchten?",
    "\r\n»Einträge löschen« bestätigen"};

constexpr Twips kNamenLeft = 1300;
constexpr Twips kNamenTop = 750;
constexpr Twips kZeilenabstand = 90;

}  // namespace

void FrmBeste::Form_Load()
{
    cmdTessel.Visible = true;
    shpTessel.Visible = true;
    ZeilenAnordnen();
    for (Ziffernreihe& reihe : Punkte) {
        reihe.Zeigen("");
    }
    BesteLesen();
}

void FrmBeste::ZeilenAnordnen()
{
    const TextBox& name = txtSpieler(0);
    for (int platz = 0; platz < kPlaetze; ++platz) {
        const Twips top = kNamenTop + static_cast<Twips>(platz) * (name.Height + kZeilenabstand);
        txtSpieler(platz).Move(kNamenLeft, top, name.Width, name.Height);
    }
    const Twips einerLeft = imgDiggi(0).Left;
    const Twips ersteTop = imgDiggi(0).Top;
    for (int i = 0; i < imgDiggi.End(); ++i) {
        const int platz = i / kZiffernJePlatz;
        const int stelle = i % kZiffernJePlatz;
        Image& ziffer = imgDiggi(i);
        ziffer.Move(einerLeft - static_cast<Twips>(stelle) * ziffer.Width,
                    ersteTop + static_cast<Twips>(platz) * (ziffer.Height + kZeilenabstand));
    }
}

void FrmBeste::Form_Activate()
{
    lblTessel.Visible = false;
    if (Beste.EintragModus == False) {
        for (int platz = 0; platz < lstName.ListCount(); ++platz) {
            if (lstName.List(platz) != kFreierPlatz) {
                lblTessel.Visible = true;
            }
        }
    }
    for (int platz = 0; platz < kPlaetze; ++platz) {
        txtSpieler(platz).Text = lstName.List(platz);
        txtSpieler(platz + kPlaetze).Text = lstPunkte.List(platz);
    }
    FelderSperren();
    if (Beste.EintragModus == True) {
        cmdTessel.Visible = false;
        shpTessel.Visible = false;
        TextBox& name = txtSpieler(Beste.EintragPlatz);
        name.Locked = false;
        name.TabStop = true;
        name.SelStart = 0;
        name.SelLength = static_cast<std::int32_t>(CharacterCount(name.Text.Get()));
        name.SetFocus();
    }
    PunkteAnzeigen();
}

void FrmBeste::FelderSperren()
{
    for (int i = 0; i < 2 * kPlaetze; ++i) {
        txtSpieler(i).TabStop = false;
        txtSpieler(i).Locked = true;
        txtSpieler(i).SelLength = 0;  // an earlier entry may still be selected
    }
}

void FrmBeste::PunkteAnzeigen()
{
    for (int platz = 0; platz < kPlaetze; ++platz) {
        Ziffernreihe& reihe = Punkte[static_cast<std::size_t>(platz)];
        const std::int32_t punkte = PunkteDesPlatzes(platz);
        // By design (leere-ziffer): one would expect a 0 here. A row whose points are 0 stays dark,
        // unlike the displays of the main window. Test: BesteFenster.ARowShowsItsPoints
        if (punkte == 0) {
            reihe.Zeigen("");
            continue;
        }
        // By design (siebte-stelle): one would expect seven digits to be seen. The first of them
        // lies in a place that is never visible. More than seven digits have no room: nines in
        // every place say "at least". Test: BesteFenster.ARowShowsItsPoints
        const std::int32_t groesste = reihe.Groesste();
        reihe.Zeigen(punkte > groesste ? std::to_string(groesste) : lstPunkte.List(platz));
    }
}

void FrmBeste::cmdEnde_Click()
{
    lstName.Clear();
    lstPunkte.Clear();
    for (int platz = 0; platz < kPlaetze; ++platz) {
        lstName.AddItem(txtSpieler(platz).Text);
        lstPunkte.AddItem(txtSpieler(platz + kPlaetze).Text);
    }
    if (Beste.EintragModus == True) {
        TextBox& name = txtSpieler(Beste.EintragPlatz);
        // By design (blanker-name): one would expect a name of blanks to count as empty. It is
        // saved as typed. Test: games.entry
        if (name.Text.Get().empty()) {
            name.Text = kNeuerName;
            lstName.SetList(Beste.EintragPlatz, kNeuerName);
        }
        BesteSpeichern();
    }
    Visible = false;
}

void FrmBeste::cmdTessel_Click()
{
    Beste.EintragModus = False;
    bool alleFrei = true;
    for (int platz = 0; platz < kPlaetze; ++platz) {
        alleFrei = alleFrei && txtSpieler(platz).Text.Get() == kFreierPlatz;
    }
    // By design (niemand-ist-frei): one would expect to be asked about an entry of a player who
    // calls himself "Niemand". The name counts as a free place. Test: games.best_list
    if (!alleFrei && FrageStellen(kAlleLoeschen)) {
        BesteLoeschen();
        BesteLesen();
        cmdTessel.Visible = false;
        shpTessel.Visible = false;
    }
    // By design (fenster-geht-zu): one would expect the answer no to lead back to the list. The
    // window closes whatever the answer was. Test: games.best_list
    Visible = false;
}

void FrmBeste::lblTessel_Click()
{
    cmdTessel_Click();
}

void FrmBeste::Form_KeyDown(std::int16_t& KeyCode, std::int16_t /*Shift*/)
{
    if (KeyCode == kKeyF1) {
        HandbuchOeffnen("Bestespieler.pdf");
    }
}

void FrmBeste::Form_Unload()
{
    // By design (verlorener-eintrag): one would expect an entry to be saved by the title bar's
    // close box too. Only cmdEnde saves. Test: games.entry
    Visible = false;
}

}  // namespace malvone
