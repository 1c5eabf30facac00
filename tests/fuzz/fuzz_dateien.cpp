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
#include "tests/support/Game.h"
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

// One program for the whole run: bringing it up takes longer than all that is looked at.
test::Game& TheGame()
{
    static const auto game = [] {
        if (std::filesystem::exists("/dev/shm")) {
            ::setenv("TMPDIR", "/dev/shm", 1);  // files in memory: the disk is not what is tried
        }
        return std::make_unique<test::Game>();
    }();
    return *game;
}

// Yes to every question, on from every message, and out of the list by its button.
template<class Doing>
std::string Bejahen(Doing doing)
{
    std::string answers;
    for (int i = 0; i < 5; ++i) {
        answers += "key J\nkey Esc\ndo frmBeste.cmdEnde Click\n";
    }
    return TheGame()(answers, doing);
}

// No level has begun, the window of the best players is not loaded, and both files are the input.
void NeuBeginnen(std::string_view inhalt)
{
    test::Game& game = TheGame();
    if (!frmTessel.Loaded() || App.Ended()) {
        game.Start();
    }
    if (frmBeste.Loaded()) {
        frmBeste->Unload();
    }
    Stand = {};
    test::WriteFile(game.BestList, inhalt);
    test::WriteFile(game.Snapshot, inhalt);
    game.Told();
}

// A repeat either counts the level, with a picture for every cell, or tells its failure.
void StandPruefen()
{
    const bool gemeldet = !Bejahen(&StandLaden).empty();
    Verlangen(gemeldet == (Stand.RundenZahl == 0));
    for (int zelle = 1; zelle <= kZellen && !gemeldet; ++zelle) {
        const std::int32_t wert = frmTessel->imgFeld(zelle).Tag->Number();
        Verlangen(wert >= 0 && wert <= kFarben);
    }
    Bejahen([] {
        for (const std::int16_t zelle : {std::int16_t{1}, std::int16_t{75}, std::int16_t{140}}) {
            frmTessel->imgFeld(zelle).MouseMove.Raise(zelle, {});
            frmTessel->imgFeld(zelle).MouseDown.Raise(zelle, {kLeftButton, 0, 0, 0});
        }
    });
}

// Looking at the list leaves the file alone; an entry leaves one that can be read again.
void ListePruefen(std::string_view inhalt, std::int32_t punkte)
{
    test::Game& game = TheGame();
    Bejahen([] { frmBeste.Touch(); });
    Bejahen([] { RaiseMenuClick(frmTessel->mnuInfo(4)); });
    Verlangen(test::Contents(game.BestList) == inhalt);

    Stand.PunkteGesamt = punkte;
    Bejahen(&BestePruefen);
    if (Beste.EintragPlatz >= 0) {
        const std::string name = frmBeste->lstName.List(Beste.EintragPlatz);
        Verlangen(name == kNeuerName);
        Verlangen(Bejahen(&BesteLesen).empty());
        Verlangen(frmBeste->lstName.List(Beste.EintragPlatz) == name);
        Verlangen(PunkteDesPlatzes(Beste.EintragPlatz) == punkte);
    } else {
        Verlangen(test::Contents(game.BestList) == inhalt);
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
