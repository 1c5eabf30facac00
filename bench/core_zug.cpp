// core_zug.cpp: how long the board takes to answer the pointer: the whole event of a movement and
// of a click, with a plain flood fill beside them as a yardstick.
#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <vector>

#include "game/Main.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "ui/layer/App.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

using Brett = std::array<std::int16_t, kZellen + 1>;

// A screen that shows nothing and closes every message.
class Leinwand final : public Binding
{
public:
    Twips ScreenWidth() override { return 28800; }
    Twips ScreenHeight() override { return 16200; }
    void WindowShown(Window&, ShowMode) override {}
    void WindowHidden(Window&) override {}
    void WindowUnloaded(Window&) override {}
    void RunModal(Window& window) override { window.Unload(); }
    void DragWindow(Window&) override {}
    void Ended() override {}
};

// No files and no sound: what is measured is the board.
class Leerlauf final : public Platform
{
public:
    std::string GetWindowsDirectoryA() override { return "C:\\WINDOWS"; }
    bool CreateDirectoryA(const std::string&) override { return true; }
    std::int32_t OpenFileExist(const std::string&) override { return kFileNotFound; }
    void DeleteFileA(const std::string&) override {}
    ReadLines ReadTextLines(const std::string&, std::size_t) override
    {
        return {FileFault::NotFound, {}};
    }
    FileFault WriteTextLines(const std::string&, const std::vector<std::string>&) override
    {
        return FileFault::None;
    }
    FileFault RenewTextLines(const std::string&, std::size_t, const Renewal&) override
    {
        return FileFault::None;
    }
    void sndPlaySoundA(const std::string&) override {}
    std::int32_t waveOutGetNumDevs() override { return 0; }
    void ShellExecuteA(const std::string&) override {}
    std::uint64_t ClockNs() override { return 0; }
};

// The program, started once for all benchmarks.
void Starten()
{
    static Leinwand leinwand;
    static Leerlauf leerlauf;
    static const bool gestartet = [] {
        App.Begin(leinwand, leerlauf);
        ZustandNeu();
        Main();
        Stand.RundenZahl = 1;
        return true;
    }();
    benchmark::DoNotOptimize(gestartet);
}

constexpr std::size_t kBretter = 64;

// 1 to 4 colours at random.
const std::vector<Brett>& Bretter(std::int64_t farben)
{
    static std::array<std::vector<Brett>, 5> alle;
    std::vector<Brett>& bretter = alle.at(static_cast<std::size_t>(farben));
    std::mt19937 zufall(1);
    while (bretter.size() < kBretter) {
        Brett& brett = bretter.emplace_back();
        for (std::size_t i = 1; i <= kZellen; ++i) {
            brett[i] = static_cast<std::int16_t>(1 + zufall() % static_cast<unsigned>(farben));
        }
    }
    return bretter;
}

void Setzen(const Brett& brett)
{
    for (int i = 1; i <= kZellen; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        frmTessel->imgFeld(i).Tag = TagText(brett[stelle]);
        frmTessel->imgFeld(i).Picture = frmBilder->imgBild(brett[stelle]).Picture;
        Zellen[stelle].Markiert = False;
        Zellen[stelle].Vorschau = False;
    }
}

void Zeigen(std::int16_t zelle)
{
    const EventScope scope;
    frmTessel->imgFeld.MouseMove.Raise(zelle, Mouse{});
}

void Druecken(std::int16_t zelle)
{
    const EventScope scope;
    frmTessel->imgFeld.MouseDown.Raise(zelle, Mouse{kLeftButton, 0, 0, 0});
}

// One movement of the pointer onto another stone, over all stones of a board.
void BM_Zeigen(benchmark::State& state)
{
    Starten();
    const std::vector<Brett>& bretter = Bretter(state.range(0));
    std::size_t brett = 0;
    std::int16_t zelle = 0;
    for (auto _ : state) {
        if (zelle == 0) {
            state.PauseTiming();
            Setzen(bretter[brett++ % kBretter]);
            state.ResumeTiming();
        }
        Zeigen(static_cast<std::int16_t>(zelle + 1));
        zelle = static_cast<std::int16_t>((zelle + 1) % kZellen);
    }
}
BENCHMARK(BM_Zeigen)->ArgName("colours")->Arg(4)->Arg(2)->Arg(1);

// The pointer in the worst place: the stone of a board that takes longest is not known, so a board
// of one colour stands for it, with the pointer in the middle.
void BM_ZeigenInDerMitte(benchmark::State& state)
{
    Starten();
    Setzen(Bretter(1).front());
    for (auto _ : state) {
        Zeigen(75);
    }
}
BENCHMARK(BM_ZeigenInDerMitte);

// A click on a group of two or more, with removal, gravity, closing columns and the move test. On
// one colour it empties the board, and the filling of the next one is part of it.
void BM_Klicken(benchmark::State& state)
{
    Starten();
    const std::vector<Brett>& bretter = Bretter(state.range(0));
    std::mt19937 zufall(2);
    std::size_t brett = 0;
    for (auto _ : state) {
        state.PauseTiming();
        Setzen(bretter[brett++ % kBretter]);
        Stand.RundenZahl = 1;
        std::int16_t zelle = 0;
        do {
            zelle = static_cast<std::int16_t>(1 + zufall() % kZellen);
            Zeigen(zelle);
        } while (Stand.MarkiertZahl < 2);
        state.ResumeTiming();
        Druecken(zelle);
    }
}
BENCHMARK(BM_Klicken)->ArgName("colours")->Arg(4)->Arg(1);

// The yardstick: the group of a stone by flood fill over 140 plain numbers.
int Flut(const Brett& brett, int start)
{
    std::array<bool, kZellen + 1> gefunden{};
    std::array<int, kZellen> offen{};
    std::size_t zahl = 0;
    int gruppe = 0;
    const auto dazu = [&](int zelle) {
        const auto stelle = static_cast<std::size_t>(zelle);
        if (!gefunden[stelle] && brett[stelle] == brett[static_cast<std::size_t>(start)]) {
            gefunden[stelle] = true;
            offen[zahl++] = zelle;
            ++gruppe;
        }
    };
    dazu(start);
    while (zahl > 0) {
        const int zelle = offen[--zahl];
        if (Reihe(zelle) > 0) {
            dazu(zelle - 1);
        }
        if (Reihe(zelle) < kReihen - 1) {
            dazu(zelle + 1);
        }
        if (zelle > kReihen) {
            dazu(zelle - kReihen);
        }
        if (zelle <= kZellen - kReihen) {
            dazu(zelle + kReihen);
        }
    }
    return gruppe;
}

void BM_FlutZumVergleich(benchmark::State& state)
{
    const std::vector<Brett>& bretter = Bretter(state.range(0));
    std::size_t nummer = 0;
    for (auto _ : state) {
        const Brett& brett = bretter[nummer / kZellen % kBretter];
        benchmark::DoNotOptimize(Flut(brett, static_cast<int>(1 + nummer % kZellen)));
        ++nummer;
    }
}
BENCHMARK(BM_FlutZumVergleich)->ArgName("colours")->Arg(4)->Arg(1);

}  // namespace
}  // namespace malvone
