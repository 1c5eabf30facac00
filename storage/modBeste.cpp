// modBeste.cpp: "malvone.txt", five names and then five points, and how a result gets into it.
// While the program runs, the list lives in lstName and lstPunkte of frmBeste.
#include "storage/modBeste.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/TextLines.h"
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
using Liste = std::vector<Eintrag>;

// What is missing in a list is empty.
Liste AusZeilen(const std::vector<std::string>& zeilen)
{
    const auto zeile = [&](std::size_t i) { return i < zeilen.size() ? zeilen[i] : std::string(); };
    Liste liste;
    for (std::size_t platz = 0; platz < kPlaetze; ++platz) {
        liste.push_back({zeile(platz), zeile(platz + kPlaetze)});
    }
    return liste;
}

std::vector<std::string> InZeilen(const Liste& liste)
{
    std::vector<std::string> zeilen(kZeilen);
    for (std::size_t platz = 0; platz < kPlaetze; ++platz) {
        zeilen[platz] = liste[platz].Name;
        zeilen[platz + kPlaetze] = liste[platz].Punkte;
    }
    return zeilen;
}

Liste ImFenster()
{
    Liste liste;
    for (int platz = 0; platz < kPlaetze; ++platz) {
        liste.push_back({frmBeste->lstName.List(platz), frmBeste->lstPunkte.List(platz)});
    }
    return liste;
}

void InsFenster(const std::vector<std::string>& zeilen)
{
    frmBeste->lstName.Clear();
    frmBeste->lstPunkte.Clear();
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        (i < kPlaetze ? frmBeste->lstName : frmBeste->lstPunkte).AddItem(zeilen[i]);
    }
}

std::int32_t Punktzahl(const Eintrag& eintrag)
{
    return Zahl32(eintrag.Punkte).value_or(0);
}

// The list as a new result finds it: places without a number come last, so that they are the first
// to go.
Liste Rangliste(Liste liste)
{
    std::stable_partition(liste.begin(), liste.end(), [](const Eintrag& eintrag) {
        return Zahl32(eintrag.Punkte).has_value();
    });
    return liste;
}

// The place 0 to 4 that a result takes; -1 if none.
// By design (der-aeltere-zuerst): one would expect the newer of two equal results to take the
// place. Only a greater one does. Test: games.entry
std::int16_t PlatzFuer(std::int32_t punkte, const Liste& rangliste)
{
    for (std::int16_t platz = 0; platz < kPlaetze; ++platz) {
        if (punkte > Punktzahl(rangliste[static_cast<std::size_t>(platz)])) {
            return platz;
        }
    }
    return -1;
}

void Einfuegen(const Eintrag& eintrag, std::int16_t platz, Liste& rangliste)
{
    rangliste.insert(rangliste.begin() + platz, eintrag);
    rangliste.pop_back();
}

std::vector<std::string> Vorgabe()
{
    std::vector<std::string> zeilen(kPlaetze, kFreierPlatz);
    for (int platz = 0; platz < kPlaetze; ++platz) {
        zeilen.push_back(std::to_string(kErsterVorgabewert - platz * kVorgabeschritt));
    }
    return zeilen;
}

// What saving makes of the file that it finds.
struct Speicherung
{
    std::vector<std::string> Zeilen;  // of the file afterwards
    OldFile Alte = OldFile::Goes;
    bool Eingetragen = true;                 // else the file stays as it is
    FileFault Lesefehler = FileFault::None;  // that the player is told
};

// By design (liste-von-jetzt): one would expect the list as this run knows it. If another run has
// written the file since, the new entry goes into that list, by the same rule. A file that is gone
// was wiped; two calls have to agree that it is.
// Test: BesteSpeichern.AnEntryGoesIntoTheListThatIsThereNow
Speicherung WasZuSpeichernIst(const ReadLines& jetzt)
{
    const bool ganz = jetzt.Fault == FileFault::None;
    if (jetzt == Beste.Datei) {
        return {InZeilen(ImFenster()), ganz ? OldFile::Goes : OldFile::Kept};
    }
    const bool geloescht = jetzt.Fault == FileFault::NotFound && !ExistiertDatei(BesteDatei());
    // By design (ungelesenes-bleibt): one would expect the new list in its place. A file that could
    // not be read whole is kept beside it. Test:
    // BesteSpeichern.AnEntryGoesIntoTheListThatIsThereNow
    if (!ganz && !geloescht) {
        return {InZeilen(ImFenster()), OldFile::Kept, true, jetzt.Fault};
    }
    const Eintrag eintrag = ImFenster()[static_cast<std::size_t>(Beste.EintragPlatz)];
    const Liste andere = AusZeilen(geloescht ? Vorgabe() : jetzt.Lines);
    Liste rangliste = Rangliste(andere);
    const std::int16_t platz = PlatzFuer(Punktzahl(eintrag), rangliste);
    if (platz < 0) {
        return {InZeilen(andere), OldFile::Goes, false};
    }
    Einfuegen(eintrag, platz, rangliste);
    return {InZeilen(rangliste)};
}

void LesefehlerMelden(FileFault fehler)
{
    if (fehler != FileFault::None) {
        const auto nummer = static_cast<std::int32_t>(fehler);
        MeldungZeigen(kNichtLesbar.Meldung,
                      std::string(kNichtLesbar.Titel) + std::to_string(nummer));
    }
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
    // player is told when the window of the best players reads the list.
    // Test: BesteVorgabe.ADefaultListThatCannotBeWrittenIsSilent
    static_cast<void>(App.System().ReplaceTextLines(BesteDatei(), Vorgabe(), OldFile::Stays));
}

void BesteLoeschen()
{
    const std::string datei = BesteDatei();
    FileFault fehler = App.System().ReplaceTextLines(datei, Vorgabe(), OldFile::Goes);
    // A read-only file can still be deleted. It is not emptied in place: a fault in between would
    // leave half a list.
    if (fehler == FileFault::NoPermission && ExistiertDatei(datei)) {
        App.System().DeleteFileA(datei);
        fehler = App.System().ReplaceTextLines(datei, Vorgabe(), OldFile::Stays);
    }
    if (fehler != FileFault::None) {
        MeldungZeigen(kNichtGespeichert);
    }
}

void BesteLesen()
{
    Beste.Datei = App.System().ReadTextLines(BesteDatei(), kZeilen);
    InsFenster(Beste.Datei.Lines);
    LesefehlerMelden(Beste.Datei.Fault);
}

void BesteSpeichern()
{
    std::optional<Speicherung> neu;  // nothing is saved any more when the program is over
    const FileFault fehler = App.System().RenewTextLines(
        BesteDatei(), kZeilen, [&neu](const ReadLines& jetzt) -> std::optional<NewFile> {
            neu = WasZuSpeichernIst(jetzt);
            if (!neu->Eingetragen) {
                return std::nullopt;
            }
            return NewFile{neu->Zeilen, neu->Alte};
        });
    if (fehler != FileFault::None) {
        MeldungZeigen(kNichtGespeichert);
        return;
    }
    if (!neu) {
        return;
    }
    InsFenster(neu->Zeilen);
    Beste.Datei = FirstLines(FileContent(neu->Zeilen), kZeilen);
    LesefehlerMelden(neu->Lesefehler);
    if (!neu->Eingetragen) {
        MeldungZeigen(kKeinEintrag);
    }
}

void BesteEintragen(std::int16_t platz)
{
    Liste liste = Rangliste(ImFenster());
    Einfuegen({kNeuerName, std::to_string(Beste.EndPunkte)}, platz, liste);
    InsFenster(InZeilen(liste));
    frmBeste->Move(frmTessel->Left - kVersatz, frmTessel->Top - kVersatz);
    frmBeste->Show(ShowMode::Modal);
}

std::int32_t PunkteDesPlatzes(int platz)
{
    return Zahl32(frmBeste->lstPunkte.List(platz)).value_or(0);
}

void BestePruefen()
{
    Beste.EintragModus = False;
    Beste.EndPunkte = Stand.PunkteGesamt;
    // By design (keine-zahl-ist-null): one would expect a damaged list to be refused. A place whose
    // points are missing or not a number counts as 0 and as the last, so that it goes first.
    // Test: BestePruefen.APlaceWithoutANumberCountsAsNothing
    Beste.EintragPlatz = PlatzFuer(Beste.EndPunkte, Rangliste(ImFenster()));
    if (Beste.EintragPlatz == -1) {
        MeldungZeigen(kKeinEintrag);
    } else if (FrageStellen(kNeueBestmarke)) {
        Beste.EintragModus = True;
        BesteEintragen(Beste.EintragPlatz);
    }
}

}  // namespace malvone
