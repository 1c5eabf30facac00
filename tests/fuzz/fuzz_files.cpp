// Feeds arbitrary bytes to the two routines that load a data file, and aborts if one of them
// crashes, changes the file, or leaves behind what no failure may leave.
#include <cstdint>
#include <cstdlib>

#include "state/Beste.h"
#include "state/Spielstand.h"
#include "storage/Spielstanddatei.h"
#include "storage/modBeste.h"
#include "tests/support/Game.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmTessel.h"

namespace {

using namespace malvone;

void Require(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

// Whether a message comes when a file of these bytes is loaded. A second one would stay open.
bool Fails(test::Game& game, const std::filesystem::path& file, const std::string& bytes,
           void (*load)())
{
    test::WriteFile(file, bytes);
    const std::string told = game("key Esc\n", load);
    Require(test::Contents(file) == bytes && App.TopModal() == nullptr && !App.Ended());
    return told.find("! show frmMsgOk") != std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static test::Game game;
    frmBeste.Touch();
    const std::string bytes(data, data + size);
    // A repeat either counts the level, with a picture for every cell, or tells its failure.
    Stand.RundenZahl = 0;
    const bool failed = Fails(game, game.Snapshot, bytes, &StandLaden);
    Require(failed == (Stand.RundenZahl == 0));
    for (int cell = 1; cell <= kZellen && !failed; ++cell) {
        const std::int32_t value = frmTessel->imgFeld(cell).Tag->Number();
        Require(value >= 0 && value <= kFarben);
    }
    // The list is five places, or what there is of them and a message.
    const bool unread = Fails(game, game.BestList, bytes, &BesteLesen);
    const int items = frmBeste->lstName.ListCount() + frmBeste->lstPunkte.ListCount();
    Require(unread == (items != 2 * kPlaetze));
    return 0;
}
