// fuzz_dateien.cpp: feeds both data files with arbitrary bytes through the routines of the game,
// and breaks off where the game crashes, changes a file that it only reads, or leaves the board in
// a state that no failure may leave.
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "storage/Spielstanddatei.h"
#include "storage/modBeste.h"
#include "tests/support/StilleBindung.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmTessel.h"

namespace {

using namespace malvone;

void Verlangen(bool bedingung)
{
    if (!bedingung) {
        std::abort();
    }
}

std::filesystem::path Arbeitsordner()
{
    return std::filesystem::exists("/dev/shm") ? "/dev/shm"
                                               : std::filesystem::temp_directory_path();
}

// One program for the whole run: bringing it up takes longer than all that is looked at.
Programm& DasProgramm()
{
    static const auto programm = std::make_unique<Programm>(Arbeitsordner());
    return *programm;
}

// Yes to every question, on from every message, and out of the list by its button.
void Bejahen(Window& fenster)
{
    if (Control* const ende = fenster.Find("cmdEnde")) {
        RaiseClick(*ende);
    } else {
        const bool frage = fenster.Name() == "frmMsgJa";
        RouteKey(fenster, {frage ? std::int16_t{'J'} : kKeyEsc, 0});
    }
}

// No level has begun, the window of the best players is not loaded, and both files are the input.
void NeuBeginnen(std::string_view inhalt)
{
    Programm& programm = DasProgramm();
    programm.Antworten({});
    if (!frmTessel.Loaded() || App.Ended()) {
        App.Begin(programm.Bindung, programm.Plattform);
        ZustandNeu();
        programm.Starten();
    }
    if (frmBeste.Loaded()) {
        frmBeste->Unload();
    }
    Stand = {};
    DateiSchreiben(programm.Bestendatei(), inhalt);
    DateiSchreiben(programm.Standdatei(), inhalt);
    programm.VerlaufSeitdem();
}

// A repeat either counts the level, with a picture for every cell, or tells its failure.
void StandPruefen()
{
    StandLaden();
    const bool gemeldet = !DasProgramm().VerlaufSeitdem().empty();
    Verlangen(gemeldet == (Stand.RundenZahl == 0));
    for (int zelle = 1; zelle <= kZellen && !gemeldet; ++zelle) {
        const std::int32_t wert = frmTessel->imgFeld(zelle).Tag->Number();
        Verlangen(wert >= 0 && wert <= kFarben);
    }
    const EventScope scope;
    for (const int zelle : {1, 75, 140}) {
        const auto index = static_cast<std::int16_t>(zelle);
        frmTessel->imgFeld(zelle).MouseMove.Raise(index, {});
        frmTessel->imgFeld(zelle).MouseDown.Raise(index, {kLeftButton, 0, 0, 0});
    }
}

// Looking at the list leaves the file alone; an entry leaves one that can be read again.
void ListePruefen(std::string_view inhalt, std::int32_t punkte)
{
    Programm& programm = DasProgramm();
    static_cast<void>(frmBeste->Name());
    programm.Antworten({Bejahen});
    RaiseMenuClick(frmTessel->mnuInfo(4));
    Verlangen(Dateiinhalt(programm.Bestendatei()) == inhalt);

    Stand.PunkteGesamt = punkte;
    programm.Antworten({Bejahen, Bejahen, Bejahen});
    BestePruefen();
    if (Beste.EintragPlatz >= 0) {
        const std::string name = frmBeste->lstName.List(Beste.EintragPlatz);
        Verlangen(name == kNeuerName);
        programm.VerlaufSeitdem();
        BesteLesen();
        Verlangen(programm.VerlaufSeitdem().empty());
        Verlangen(frmBeste->lstName.List(Beste.EintragPlatz) == name);
        Verlangen(PunkteDesPlatzes(Beste.EintragPlatz) == punkte);
    } else {
        Verlangen(Dateiinhalt(programm.Bestendatei()) == inhalt);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::int32_t kPunkte[] = {0, 1, 3801, 99999, 2147483647};
    const std::string inhalt(data, data + size);
    NeuBeginnen(inhalt);
    StandPruefen();
    NeuBeginnen(inhalt);  // the clicks may have ended a level, or the game
    ListePruefen(inhalt, kPunkte[size % std::size(kPunkte)]);
    return 0;
}
