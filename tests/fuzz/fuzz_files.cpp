// Feeds arbitrary bytes to the two routines that load a data file, and aborts if one of them
// crashes, writes, or leaves behind what no failure may leave.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

#include "game/Main.h"
#include "platform/Files.h"
#include "state/Beste.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "storage/Spielstanddatei.h"
#include "storage/modBeste.h"
#include "ui/layer/App.h"
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

// Both files are the input, in memory, and may only be read.
class Input final : public FilePlatform
{
public:
    Input() : FilePlatform("/", "/") {}

    void Take(const std::uint8_t* data, std::size_t size) const
    {
        Require(::ftruncate(file_, 0) == 0);
        Require(::pwrite(file_, data, size, 0) == static_cast<ssize_t>(size));
    }
    std::int32_t OpenFileExist(const std::string&) override { return kFileExists; }
    ReadLines ReadTextLines(const std::string&, std::size_t count) override
    {
        return FilePlatform::ReadTextLines("\\proc\\self\\fd\\" + std::to_string(file_), count);
    }
    void DeleteFileA(const std::string&) override { std::abort(); }
    FileFault WriteTextLines(const std::string&, const std::vector<std::string>&) override
    {
        std::abort();
    }
    FileFault RenewTextLines(const std::string&, std::size_t, const Renewal&) override
    {
        std::abort();
    }
    void sndPlaySoundA(const std::string&) override {}
    void ShellExecuteA(const std::string&) override {}

private:
    int file_ = ::memfd_create("input", 0);
};

// A player who closes every message.
class Player final : public Binding
{
public:
    int Messages = 0;

    Twips ScreenWidth() override { return 28800; }
    Twips ScreenHeight() override { return 16200; }
    void WindowShown(Window&, ShowMode) override {}
    void WindowHidden(Window&) override {}
    void WindowUnloaded(Window&) override {}
    void RunModal(Window& window) override
    {
        ++Messages;
        window.Visible = false;
    }
    void DragWindow(Window&) override {}
    void Ended() override {}
};

// A repeat either counts the level, with a picture for every cell, or tells its failure.
void LoadSnapshot(Player& player)
{
    player.Messages = 0;
    Stand.RundenZahl = 0;
    StandLaden();
    Require(player.Messages == (Stand.RundenZahl == 0 ? 1 : 0));
    for (int cell = 1; cell <= kZellen && player.Messages == 0; ++cell) {
        const std::int32_t value = frmTessel->imgFeld(cell).Tag->Number();
        Require(value >= 0 && value <= kFarben);
    }
}

// Five places, or what there is of them and a message.
void LoadList(Player& player)
{
    player.Messages = 0;
    BesteLesen();
    const int items = frmBeste->lstName.ListCount() + frmBeste->lstPunkte.ListCount();
    Require(player.Messages == (items == 2 * kPlaetze ? 0 : 1));
    Require((Beste.Datei.Fault == FileFault::None) == (player.Messages == 0));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Input input;
    static Player player;
    if (!frmTessel.Loaded()) {
        App.Begin(player, input);
        Main();
        frmBeste.Touch();
    }
    input.Take(data, size);
    const EventScope scope;
    LoadSnapshot(player);
    LoadList(player);
    return 0;
}
