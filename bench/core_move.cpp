// core_move.cpp: how long the board takes to handle a movement of the pointer or a click, with a
// plain flood fill as a yardstick.
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

using Board = std::array<std::int16_t, kZellen + 1>;

// A screen that shows nothing and closes every message.
class Canvas final : public Binding
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

// No files and no sound: only the board is measured.
class Nowhere final : public Platform
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
void Start()
{
    static Canvas canvas;
    static Nowhere nowhere;
    static const bool started = [] {
        App.Begin(canvas, nowhere);
        ZustandNeu();
        Main();
        Stand.RundenZahl = 1;
        return true;
    }();
    benchmark::DoNotOptimize(started);
}

constexpr std::size_t kBoards = 64;

// 1 to 4 colours at random.
const std::vector<Board>& Boards(std::int64_t colours)
{
    static std::array<std::vector<Board>, 5> all;
    std::vector<Board>& boards = all.at(static_cast<std::size_t>(colours));
    std::mt19937 chance(1);
    while (boards.size() < kBoards) {
        Board& board = boards.emplace_back();
        for (std::size_t i = 1; i <= kZellen; ++i) {
            board[i] = static_cast<std::int16_t>(1 + chance() % static_cast<unsigned>(colours));
        }
    }
    return boards;
}

void Set(const Board& board)
{
    for (int i = 1; i <= kZellen; ++i) {
        const auto place = static_cast<std::size_t>(i);
        frmTessel->imgFeld(i).Tag = TagText(board[place]);
        frmTessel->imgFeld(i).Picture = frmBilder->imgBild(board[place]).Picture;
        Zellen[place].Markiert = False;
        Zellen[place].Vorschau = False;
    }
}

void Point(std::int16_t cell)
{
    const EventScope scope;
    frmTessel->imgFeld.MouseMove.Raise(cell, Mouse{});
}

void Press(std::int16_t cell)
{
    const EventScope scope;
    frmTessel->imgFeld.MouseDown.Raise(cell, Mouse{kLeftButton, 0, 0, 0});
}

// One movement of the pointer onto another stone, over all stones of a board.
void PointAtEach(benchmark::State& state)
{
    Start();
    const std::vector<Board>& boards = Boards(state.range(0));
    std::size_t board = 0;
    std::int16_t cell = 0;
    for (auto _ : state) {
        if (cell == 0) {
            state.PauseTiming();
            Set(boards[board++ % kBoards]);
            state.ResumeTiming();
        }
        Point(static_cast<std::int16_t>(cell + 1));
        cell = static_cast<std::int16_t>((cell + 1) % kZellen);
    }
}
BENCHMARK(PointAtEach)->ArgName("colours")->Arg(4)->Arg(2)->Arg(1);

// The middle of a board of one colour stands for the slowest place, which is unknown.
void PointAtTheMiddle(benchmark::State& state)
{
    Start();
    Set(Boards(1).front());
    for (auto _ : state) {
        Point(75);
    }
}
BENCHMARK(PointAtTheMiddle);

// A click on a group of two or more, with removal, gravity, closing columns and the move test. On
// one colour it empties the board, and the filling of the next one is part of it.
void ClickOnAGroup(benchmark::State& state)
{
    Start();
    const std::vector<Board>& boards = Boards(state.range(0));
    std::mt19937 chance(2);
    std::size_t board = 0;
    for (auto _ : state) {
        state.PauseTiming();
        Set(boards[board++ % kBoards]);
        Stand.RundenZahl = 1;
        std::int16_t cell = 0;
        do {
            cell = static_cast<std::int16_t>(1 + chance() % kZellen);
            Point(cell);
        } while (Stand.MarkiertZahl < 2);
        state.ResumeTiming();
        Press(cell);
    }
}
BENCHMARK(ClickOnAGroup)->ArgName("colours")->Arg(4)->Arg(1);

// The yardstick: the group of a stone by flood fill over 140 plain numbers.
int FloodFill(const Board& board, int start)
{
    std::array<bool, kZellen + 1> found{};
    std::array<int, kZellen> open{};
    std::size_t count = 0;
    int group = 0;
    const auto add = [&](int cell) {
        const auto place = static_cast<std::size_t>(cell);
        if (!found[place] && board[place] == board[static_cast<std::size_t>(start)]) {
            found[place] = true;
            open[count++] = cell;
            ++group;
        }
    };
    add(start);
    while (count > 0) {
        const int cell = open[--count];
        if (Reihe(cell) > 0) {
            add(cell - 1);
        }
        if (Reihe(cell) < kReihen - 1) {
            add(cell + 1);
        }
        if (cell > kReihen) {
            add(cell - kReihen);
        }
        if (cell <= kZellen - kReihen) {
            add(cell + kReihen);
        }
    }
    return group;
}

void FloodFillOfAGroup(benchmark::State& state)
{
    const std::vector<Board>& boards = Boards(state.range(0));
    std::size_t number = 0;
    for (auto _ : state) {
        const Board& board = boards[number / kZellen % kBoards];
        benchmark::DoNotOptimize(FloodFill(board, static_cast<int>(1 + number % kZellen)));
        ++number;
    }
}
BENCHMARK(FloodFillOfAGroup)->ArgName("colours")->Arg(4)->Arg(1);

}  // namespace
}  // namespace malvone
