// Spielstanddatei.cpp: "tessel.ini", one line for each of the 140 cells.
#include "storage/Spielstanddatei.h"

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
std::optional<std::vector<std::int16_t>> WerteLesen(const std::string& pfad)
{
    const ReadLines gelesen = App.System().ReadTextLines(pfad, kZellen);
    std::vector<std::int16_t> werte;
    for (const std::string& zeile : gelesen.Lines) {
        const std::optional<std::int16_t> wert = Zahl16(zeile);
        if (!wert) {
            return std::nullopt;
        }
        werte.push_back(*wert);
    }
    return gelesen.Fault == FileFault::None ? std::optional(werte) : std::nullopt;
}

// False at the first value without a picture; the cells before it then hold their new values.
// By design (halber-stand): one would expect the board to be left alone, or put back. That cell
// keeps the bad value in its Tag under its old picture, and the cells after it are unchanged.
// Test: games.repeat_fails
bool WerteAufsBrett(const std::vector<std::int16_t>& werte)
{
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
        const std::int16_t wert = werte[static_cast<std::size_t>(zelle) - 1];
        Image& feld = frmTessel->imgFeld(zelle);
        feld.Tag = TagText(wert);
        Satz(zelle).Vorschau = False;
        if (!HatBild(wert)) {
            return false;
        }
        feld.Picture = frmBilder->imgBild(wert).Picture;
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
    const std::optional<std::vector<std::int16_t>> werte = WerteLesen(pfad);
    if (!werte || !WerteAufsBrett(*werte)) {
        LesefehlerMelden();
        return;
    }
    ++Stand.RundenZahl;
    WiederholenAnbieten(false);
}

}  // namespace malvone
