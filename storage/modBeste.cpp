// modBeste.cpp: "malvone.txt", five names and then five points, and how a result gets into it.
// While the program runs, the list lives in lstName and lstPunkte of frmBeste.
#include "storage/modBeste.h"

#include <algorithm>
#include <vector>

#include "state/Beste.h"
#include "state/Pfade.h"
#include "state/Spielstand.h"
#include "storage/Zahlen.h"
#include "ui/layer/App.h"
#include "ui/services/Meldungen.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

namespace {

constexpr Meldungstext kNichtLesbar = {
    "\r\nDie Daten für »Beste Spieler«\r\nkonnten nicht gelesen werden!",
    "\r\nFehlernummer: "};  // the number follows
constexpr Meldungstext kNichtGespeichert = {
    "\r\nDie Werte für »Beste Spieler«\r\nkonnten nicht gespeichert werden.",
    "\r\n\r\nFehler beim Speichern"};
constexpr Meldungstext kKeinEintrag = {
    "Ein Eintrag in die Liste der »Besten Spieler«\r\nist leider nicht möglich!",
    "\r\nMehr Erfolg beim nächsten Spiel."};
constexpr Meldungstext kNeueBestmarke = {
    "Sehr gut!!\r\nSie haben eine neue Bestmarke erreicht.",
    "Möchten Sie sich in die Liste der »Besten Spieler« eintragen?"};

constexpr int kErsterVorgabewert = 5000;
constexpr int kVorgabeschritt = 300;

constexpr Twips kVersatz = 100;  // of the window for the entry, up and left of the main window

// All names, then all points: the fields of a place are five lines apart.
constexpr std::size_t kZeilen = 2 * static_cast<std::size_t>(kPlaetze);

struct Eintrag
{
    std::string Name;
    std::string Punkte;
};

void ListenLeeren()
{
    frmBeste->lstName.Clear();
    frmBeste->lstPunkte.Clear();
}

std::int32_t Punktzahl(const Eintrag& eintrag)
{
    return Zahl32(eintrag.Punkte).value_or(0);
}

// The list as a new result meets it: places without a number stand behind all others, so that they
// are the first to go.
std::vector<Eintrag> Rangliste()
{
    std::vector<Eintrag> eintraege;
    eintraege.reserve(kPlaetze + 1);
    for (int platz = 0; platz < kPlaetze; ++platz) {
        eintraege.push_back({frmBeste->lstName.List(platz), frmBeste->lstPunkte.List(platz)});
    }
    std::stable_partition(eintraege.begin(), eintraege.end(), [](const Eintrag& eintrag) {
        return Zahl32(eintrag.Punkte).has_value();
    });
    return eintraege;
}

std::vector<std::string> Vorgabe()
{
    std::vector<std::string> zeilen(kPlaetze, kFreierPlatz);
    for (int platz = 0; platz < kPlaetze; ++platz) {
        zeilen.push_back(std::to_string(kErsterVorgabewert - platz * kVorgabeschritt));
    }
    return zeilen;
}

}  // namespace

std::string BesteDatei()
{
    // By design (wurzel-der-platte): one would expect DatenPfad. The list takes the data folder
    // directly, so without one it lies in the root of the drive, while the snapshot goes to the
    // program's folder. Test: games.start_without_windows_folder
    return MitBackslash(Daten.DatenOrdner) + "malvone.txt";
}

void BesteVorgabe()
{
    // By design (stille-vorgabe): one would expect a message when this fails. There is none; the
    // window of the best players tells it when it reads the list.
    // Test: BesteVorgabe.ADefaultListThatCannotBeWrittenIsSilent
    static_cast<void>(App.System().ReplaceTextLines(BesteDatei(), Vorgabe(), OldFile::Stays));
}

void BesteLoeschen()
{
    // In one step, or else in place: either leaves a link and the permissions as they are. Only a
    // file that refuses both is deleted.
    const std::string datei = BesteDatei();
    if (App.System().ReplaceTextLines(datei, Vorgabe(), OldFile::Goes) == FileFault::None ||
        App.System().WriteTextLines(datei, Vorgabe()) == FileFault::None) {
        return;
    }
    if (ExistiertDatei(datei)) {
        App.System().DeleteFileA(datei);
    }
    BesteVorgabe();
}

void BesteLesen()
{
    ListenLeeren();
    const ReadLines gelesen = App.System().ReadTextLines(BesteDatei(), kZeilen);
    for (std::size_t zeile = 0; zeile < gelesen.Lines.size(); ++zeile) {
        ListBox& liste = zeile < kPlaetze ? frmBeste->lstName : frmBeste->lstPunkte;
        liste.AddItem(gelesen.Lines[zeile]);
    }
    Beste.Gelesen = gelesen.Fault == FileFault::None;
    if (!Beste.Gelesen) {
        const auto nummer = static_cast<std::int32_t>(gelesen.Fault);
        MeldungZeigen(kNichtLesbar.Meldung,
                      std::string(kNichtLesbar.Titel) + std::to_string(nummer));
    }
}

void BesteSpeichern()
{
    std::vector<std::string> zeilen;
    zeilen.reserve(kZeilen);
    for (const ListBox* const liste : {&frmBeste->lstName, &frmBeste->lstPunkte}) {
        for (int platz = 0; platz < kPlaetze; ++platz) {
            zeilen.push_back(liste->List(platz));  // a missing item is an empty line
        }
    }
    const OldFile alte = Beste.Gelesen ? OldFile::Goes : OldFile::Kept;
    if (App.System().ReplaceTextLines(BesteDatei(), zeilen, alte) != FileFault::None) {
        MeldungZeigen(kNichtGespeichert);
        return;
    }
    Beste.Gelesen = true;
}

void BesteEintragen(std::int16_t platz)
{
    std::vector<Eintrag> eintraege = Rangliste();
    eintraege.insert(eintraege.begin() + platz, {kNeuerName, std::to_string(Beste.EndPunkte)});
    eintraege.pop_back();
    ListenLeeren();
    for (const Eintrag& eintrag : eintraege) {
        frmBeste->lstPunkte.AddItem(eintrag.Punkte);
        frmBeste->lstName.AddItem(eintrag.Name);
    }
    frmBeste->Move(frmTessel->Left - kVersatz, frmTessel->Top - kVersatz);
    frmBeste->Show(ShowMode::Modal);
}

std::int32_t PunkteDesPlatzes(int platz)
{
    return Punktzahl({frmBeste->lstName.List(platz), frmBeste->lstPunkte.List(platz)});
}

void BestePruefen()
{
    Beste.EintragModus = False;
    Beste.EintragPlatz = -1;
    Beste.EndPunkte = Stand.PunkteGesamt;
    // By design (keine-zahl-ist-null): one would expect a damaged list to be refused. A place whose
    // points are missing or no number counts as 0 and as the last one, so that it goes first.
    // Test: BestePruefen.APlaceWithoutANumberCountsAsNothing
    const std::vector<Eintrag> rangliste = Rangliste();
    // By design (der-aeltere-zuerst): one would expect the newer of two equal results to take the
    // place. Only a greater one does. Test: games.entry
    const auto geschlagen =
        std::find_if(rangliste.begin(), rangliste.end(),
                     [](const Eintrag& eintrag) { return Beste.EndPunkte > Punktzahl(eintrag); });
    if (geschlagen != rangliste.end()) {
        Beste.EintragPlatz = static_cast<std::int16_t>(geschlagen - rangliste.begin());
    }
    if (Beste.EintragPlatz == -1) {
        MeldungZeigen(kKeinEintrag);
    } else if (FrageStellen(kNeueBestmarke)) {
        Beste.EintragModus = True;
        BesteEintragen(Beste.EintragPlatz);
    }
}

}  // namespace malvone
