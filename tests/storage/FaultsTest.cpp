// FaultsTest.cpp: a game with an entry and a wipe, while the system refuses one call after the
// other: no name is lost, and nothing fails without a word.
#include <gtest/gtest.h>

#include <cstdlib>
#include <numeric>

#include "state/Beste.h"
#include "state/Spielstand.h"
#include "tests/support/Game.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::test {
namespace {

const std::string kBefore = "A\r\nB\r\nC\r\nD\r\nE\r\n5000\r\n400\r\n300\r\n200\r\n100\r\n";
const std::string kEntered = "A\r\nB\r\nC\r\nx\r\nD\r\n5000\r\n400\r\n300\r\n254\r\n200\r\n";
const std::string kWiped = "Niemand\r\nNiemand\r\nNiemand\r\nNiemand\r\nNiemand\r\n"
                           "5000\r\n4700\r\n4400\r\n4100\r\n3800\r\n";

// Says yes to everything, enters a name where one is asked for, and otherwise wipes the list.
class Player final : public script::Script
{
public:
    using Script::Script;

    void RunModal(Window& window) override
    {
        while (!ModalOver(window)) {
            if (&window != frmBeste.Current()) {
                RouteKey(window, {static_cast<std::int16_t>('J'), 0});
                RouteKey(window, {kKeyEsc, 0});
            } else if (Beste.EintragModus != False) {
                frmBeste->txtSpieler(Beste.EintragPlatz).Type("x");
                RaiseClick(frmBeste->cmdEnde);
            } else if (!RaiseClick(frmBeste->lblTessel)) {
                RaiseClick(frmBeste->cmdEnde);
            }
        }
    }
};

bool Tells(const std::string& told, const char* text)
{
    return told.find(text) != std::string::npos;
}

void PlayWith(NthCall& fault)
{
    Stage<Player> stage;
    WriteFile(stage.BestList, kBefore);
    stage.Platform.Fault = std::ref(fault);
    std::string told = stage.Start();
    RaiseClick(frmTessel->lblNeu);
    Stand.RundenZahl = 5;
    Stand.PunkteGesamt = 250;
    told += stage("board " + Board({"3", "3", "2"}) + "\n" + PointAt(9) + Press(9));
    bool failure = Tells(told, "gelesen werden!") || Tells(told, "gespeichert werden.");
    const auto list = Contents(stage.BestList);
    EXPECT_TRUE(list == kEntered || failure) << told;
    std::string all;
    for (const std::string& file : Names(stage.DataFolder)) {
        all += *Contents(stage.DataFolder / file);
    }
    for (const char* const name : {"A\r\n", "B\r\n", "C\r\n", "D\r\n", "E\r\n"}) {
        EXPECT_TRUE(Tells(all, name) || (list == kEntered && *name == 'E')) << name;
    }
    std::string board;
    for (int cell = 1; cell <= kZellen; ++cell) {
        board += frmTessel->imgFeld(cell).Tag->Text() + "\r\n";
    }
    EXPECT_TRUE(Contents(stage.Snapshot) == board || Tells(told, "Datei »tessel.ini«")) << told;

    RaiseClick(frmTessel->mnuInfo(kMenuBeste));
    told = stage.Told();
    failure = failure || Tells(told, "gelesen werden!") || Tells(told, "gespeichert werden.");
    const auto wiped = Contents(stage.BestList);
    EXPECT_TRUE(wiped == kWiped || failure) << told;
    EXPECT_TRUE(wiped == kWiped || wiped == list || !wiped) << "half a list: " << *wiped;
    for (const std::string& file : Names(stage.DataFolder)) {
        EXPECT_TRUE(file.ends_with(".txt") || file == "tessel.ini") << file << " is left over";
    }
    EXPECT_FALSE(failure && fault.Error == EINTR && !fault.Forever) << "not tried again";
}

TEST(Faults, WhateverCallIsRefusedNoNameIsLostAndNothingFailsWithoutAWord)
{
    std::vector<int> errors = {EACCES, EINTR, EIO, ENOENT};
    if (std::getenv("MALVONE_ALL_ERRORS") != nullptr) {  // takes minutes
        errors.resize(EHWPOISON);
        std::iota(errors.begin(), errors.end(), 1);
    }
    for (const int error : errors) {
        for (const bool forever : {false, true}) {
            NthCall fault{0, error, forever};
            for (int at = 1; fault.Calls + 1 >= at && !HasFailure(); ++at) {
                fault = {at, error, forever};
                SCOPED_TRACE(testing::Message() << "errno " << error << " call " << at
                                                << (forever ? " for ever" : ""));
                PlayWith(fault);
            }
            EXPECT_GT(fault.At, 40);
        }
    }
}

}  // namespace
}  // namespace malvone::test
