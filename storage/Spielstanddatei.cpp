// Spielstanddatei.cpp: "tessel.ini", one line for each of the 140 cells.
#include "storage/Spielstanddatei.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "state/Pfade.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "storage/Zahlen.h"
#include "ui/layer/App.h"
#include "ui/services/Klaenge.h"
#include "ui/services/Meldungen.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

namespace {

constexpr Meldungstext kNichtGeschrieben = {
    "Das Schreiben der Daten in die Datei »tessel.ini«\r\nist fehlgeschlagen.",
    "\r\n»Level wiederholen« ist nicht möglich."};
constexpr Meldungstext kNichtGespeichert = {
    "Die zur Wiederholung des Levels erforderliche Datei »tessel.ini«\r\nwurde nicht gespeichert.",
    "\r\n»Level wiederholen« ist nicht möglich."};
constexpr Meldungstext kNichtLesbar = {
    "\r\nBeim Einlesen der Werte für die Wiederholung des Levels ist ein Fehler aufgetreten.",
    "\r\n»Level wiederholen« ist nicht möglich."};

using Zellwerte = std::array<std::int16_t, kZellen + 1>;  // index 1 to 140

std::string StandDatei()
{
    return DatenPfad() + "tessel.ini";
}

void NurNaechsterLevel()
{
    frmTessel->imgWiederholen.Visible = false;
    frmTessel->imgNochEinmal.Visible = false;
    frmTessel->imgNaechsterLevel.Visible = true;
}

// Reads the whole file before the board is touched: a short file changes nothing.
std::optional<Zellwerte> WerteLesen(const std::string& pfad)
{
    const ReadLines gelesen = App.System().ReadTextLines(pfad, kZellen);
    if (gelesen.Fault != FileFault::None) {
        return std::nullopt;
    }
    Zellwerte werte{};
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
        const auto stelle = static_cast<std::size_t>(zelle);
        const std::optional<std::int16_t> wert = Zahl16(gelesen.Lines[stelle - 1]);
        if (!wert) {
            return std::nullopt;
        }
        werte[stelle] = *wert;
    }
    return werte;
}

// False at the first value without a picture; the cells before it then hold their new values.
// By design (halber-stand): one would expect the board to be left alone, or put back. That cell
// keeps the bad value in its Tag under its old picture, and the cells after it are unchanged.
// Test: games.repeat_fails
bool WerteAufsBrett(const Zellwerte& werte)
{
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
        const auto stelle = static_cast<std::size_t>(zelle);
        Image& feld = frmTessel->imgFeld(zelle);
        feld.Tag = TagText(werte[stelle]);
        Zellen[stelle].Vorschau = False;
        const std::int32_t bild = feld.Tag->Number();
        if (bild < 0 || bild > kFarben) {
            return false;
        }
        feld.Picture = frmBilder->imgBild(bild).Picture;
    }
    return true;
}

void LesefehlerMelden()
{
    WiederholenAnbieten(false);
    SoundSpielen(kTonFehler);
    MeldungZeigen(kNichtLesbar);
    NurNaechsterLevel();
}

}  // namespace

void StandSpeichern()
{
    const std::string pfad = StandDatei();
    if (ExistiertDatei(pfad)) {
        App.System().DeleteFileA(pfad);
    }
    std::vector<std::string> zeilen;
    zeilen.reserve(kZellen);
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
        zeilen.push_back(frmTessel->imgFeld(zelle).Tag->Text());
    }
    if (App.System().WriteTextLines(pfad, zeilen) != FileFault::None) {
        MeldungZeigen(kNichtGeschrieben);
    }
}

void StandLaden()
{
    const std::string pfad = StandDatei();
    if (!ExistiertDatei(pfad)) {
        MeldungZeigen(kNichtGespeichert);
        WiederholenAnbieten(false);
        NurNaechsterLevel();
        return;
    }
    const std::optional<Zellwerte> werte = WerteLesen(pfad);
    if (!werte || !WerteAufsBrett(*werte)) {
        LesefehlerMelden();
        return;
    }
    ++Stand.RundenZahl;
    WiederholenAnbieten(false);
}

}  // namespace malvone
