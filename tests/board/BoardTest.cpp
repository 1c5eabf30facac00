// BoardTest.cpp: the rules of the board, on many boards: which stones the pointer marks, where
// stones and columns go, whether a move is left, and the chance that boards are made of. Single
// moves stand in the played games.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <random>

#include "board/AllesnachLinks.h"
#include "board/FillFeld.h"
#include "board/Zufallszahl.h"
#include "board/iniTessel.h"
#include "tests/support/Game.h"

namespace malvone::test {
namespace {

constexpr std::size_t kRows = kReihen;

std::string BoardAfter(Game& game, const std::string& board, const std::function<void()>& what)
{
    game("board " + board + "\n");
    what();
    return game("board\n").substr(2, kZellen);
}

// The cases were chosen with faults put into the tables of the runs, the order of the steps and the
// walks: each fault that shows on any of many thousand boards shows on one of these. A line holds a
// board, the cell that is pointed at, and the marks of all cells.
TEST(Marks, EveryPointingMarksTheseStonesAndNoOthers)
{
    std::ifstream pointings(MALVONE_SOURCE_DIR "/tests/board/marks.txt");
    Game game;
    game("do frmTessel.lblNeu Click\n");
    int count = 0;
    std::string board;
    std::string marks;
    for (int cell = 0; pointings >> board >> cell >> marks; ++count) {
        const std::string told = game("board " + board + "\n" + PointAt(cell) +
                                      "marks\npreviews\nget frmTessel.lblSumme.Caption\n");
        const auto stones = std::ranges::count(marks, '1');
        EXPECT_EQ(told, "= " + marks + "\n= " + marks + "\n= Dieser Spielzug ergibt " +
                            std::to_string(stones * stones) + " Punkte!\n")
            << "cell " << cell << " of " << board;
    }
    EXPECT_GE(count, 40);
}

TEST(Falling, StonesOfRandomBoardsLieBelowAllEmptyCellsInTheirOldOrder)
{
    std::mt19937 dice(1);
    Game game;
    for (int i = 0; i < 50; ++i) {
        std::string before;
        std::string after;
        for (int column = 0; column < kSpalten; ++column) {
            std::string stones;
            for (int row = 0; row < kReihen; ++row) {
                before += "01234"[dice() % 5];
                stones += before.back() == '0' ? "" : before.substr(before.size() - 1);
            }
            after += std::string(kRows - stones.size(), '0') + stones;
        }
        ASSERT_EQ(BoardAfter(game, before, &SteineFallenLassen), after) << before;
        std::ranges::replace(after, '0', '.');
        ASSERT_EQ(game("pictures\n"), "= " + after + "\n");
    }
}

TEST(Columns, OneCallClosesUpToSixEmptyColumnsWithStonesToTheirRight)
{
    const struct
    {
        std::string_view Before;  // the bottom row
        std::string_view After;
    } cases[] = {
        {"12..3", "123"},
        {"12341234123412", "12341234123412"},
        {"1.2.3.4.1.2.34", "12341234"},      // six, one by one
        {"1......2", "12"},                  // six in one gap
        {"......1", "1"},                    // six at the left end
        {"1..2..3..4", "1234"},              // six in three gaps
        {"1.......2", "1.2"},                // seven in one gap
        {".......1", ".1"},                  // seven at the left end
        {".1.2.3.4.1.2.3", "123412.3"},      // seven, one by one
        {"..1..2..3..4", "123..4"},          // eight: what is left stands at the right
        {".............1", ".......1"},      // thirteen
        {"1234123412341", "1234123412341"},  // the last column alone is empty
    };
    Game game;
    for (const auto& c : cases) {
        // A second row on some of the stones: columns move whole, without a change of rows.
        const auto board = [](std::string_view bottom) {
            std::string upper(bottom);
            std::ranges::transform(upper, upper.begin(), [](char stone) {
                return stone > '2' ? static_cast<char>('5' - stone + '0') : '.';
            });
            return Board({upper, std::string(kSpalten, '.'), bottom});
        };
        EXPECT_EQ(BoardAfter(game, board(c.Before), &SpaltenSchliessen), board(c.After))
            << c.Before;
    }
}

// Every pair of the board, one by one, on stones that are no pairs otherwise.
TEST(Moves, EveryPairOfTheBoardIsSeenAndNothingElse)
{
    std::string loose;
    for (int i = 1; i <= kZellen; ++i) {
        loose += static_cast<char>('1' + (Spalte(i) + Reihe(i)) % 2);
    }
    Game game;
    const auto move = [&game](const std::string& board) {
        game("board " + board + "\n");
        Flag result = 7;
        ZugVorhanden(result);
        return result;
    };
    EXPECT_EQ(move(loose), False);
    EXPECT_EQ(move(std::string(kZellen, '0')), False);
    for (std::size_t i = 0; i < kZellen; ++i) {
        for (const std::size_t j : {i + 1, i + 2, i + kRows - 1, i + kRows, i + kRows + 1}) {
            const bool beside = j == i + kRows || (j == i + 1 && j % kRows != 0);
            std::string board = loose;
            if (j < kZellen) {
                board[i] = board[j] = '4';
                EXPECT_EQ(move(board), beside ? True : False) << i << " and " << j;
            }
        }
    }
}

// The sum of (observed - expected)^2 / expected over all classes, all equally likely.
double ChiSquare(const std::map<int, int>& counts, int classes)
{
    double samples = 0;
    for (const auto& [each, count] : counts) {
        samples += count;
    }
    const double expected = samples / classes;
    double sum = (classes - static_cast<double>(counts.size())) * expected;
    for (const auto& [each, count] : counts) {
        sum += (count - expected) * (count - expected) / expected;
    }
    return sum;
}

// The bounds are passed by chance about once in 10^9 runs.
TEST(Filling, BoardsAreRandomUnderAnyClock)
{
    std::uint64_t calls = 0;
    const std::pair<const char*, std::function<std::uint64_t()>> clocks[] = {
        {"stands still", [] { return std::uint64_t{1'700'000'000'000'000'000}; }},
        {"stands still at 0", [] { return std::uint64_t{0}; }},
        {"counts nanoseconds", [&] { return ++calls; }},
        {"ticks each 15.6 ms", [&] { return ++calls / 500 * 15'625'000; }},
        {"runs backwards", [&] { return 1'700'000'000'000'000'000 - ++calls * 1'000; }},
    };
    for (const auto& [name, clock] : clocks) {
        Game game;
        game.Platform.Clock = clock;
        std::map<int, int> cells;
        std::map<int, int> neighbours;  // one cell and the next
        std::map<int, int> successors;  // one cell on two boards in a row
        std::string last(kZellen, '0');
        for (int b = 0; b < 300; ++b) {
            FeldFuellen();
            const std::string board = game("board\n").substr(2, kZellen);
            EXPECT_NE(board, last) << name;
            for (std::size_t i = 0; i < kZellen; ++i) {
                ++cells[static_cast<int>(i) * 256 + board[i]];
                if (i % 2 == 1) {
                    ++neighbours[board[i - 1] * 256 + board[i]];
                }
                if (b % 2 == 1) {
                    ++successors[last[i] * 256 + board[i]];
                }
            }
            last = board;
        }
        EXPECT_LT(ChiSquare(cells, kFarben * kZellen), 620) << name;
        EXPECT_LT(ChiSquare(neighbours, kFarben * kFarben), 75) << name;
        EXPECT_LT(ChiSquare(successors, kFarben * kFarben), 75) << name;
    }
}

TEST(Filling, NumbersReachBothEndsOfTheRangeAndNeverOne)
{
    Zufall chance;
    chance.Saeen(1);
    float smallest = 1;
    float largest = 0;
    for (int i = 0; i < 100'000; ++i) {
        const float number = chance.Zahl();
        smallest = std::min(smallest, number);
        largest = std::max(largest, number);
    }
    EXPECT_GE(smallest, 0.0F);
    EXPECT_LT(smallest, 0.001F);
    EXPECT_GT(largest, 0.999F);
    EXPECT_LT(largest, 1.0F);
    const std::pair<float, int> colours[] = {{0, 1}, {0.25F, 2}, {0.75F, 4}, {1 - 0x1p-24F, 4}};
    for (const auto& [number, colour] : colours) {
        EXPECT_EQ(FarbeAus(number), colour) << number;
    }
}

}  // namespace
}  // namespace malvone::test
