// Zellen.h: how the cells of the board are numbered, and the marks that they carry.
#pragma once

#include <array>
#include <cstddef>

#include "ui/layer/Units.h"

namespace malvone {

// Cells are numbered 1 to 140: down each column, then on to the top of the next one to the right.
inline constexpr int kSpalten = 14;
inline constexpr int kReihen = 10;
inline constexpr int kZellen = kSpalten * kReihen;

inline constexpr std::int16_t kFarben = 4;  // values 1 to 4 are stones, 0 is an empty cell

// Whether a value is one that a cell can have; a damaged snapshot may hold others.
constexpr bool HatBild(std::int32_t wert)
{
    return wert >= 0 && wert <= kFarben;
}

constexpr int Spalte(int zelle)  // 0 to 13
{
    return (zelle - 1) / kReihen;
}
constexpr int Reihe(int zelle)  // 0 to 9, 0 at the top
{
    return (zelle - 1) % kReihen;
}
constexpr int ObersteZelle(int spalte)
{
    return spalte * kReihen + 1;
}
constexpr int UntersteZelle(int spalte)
{
    return spalte * kReihen + kReihen;
}

// Marks belong to cell numbers, not to stones: when stones fall, no mark moves with them.
struct Zelle
{
    Flag Markiert = False;     // belongs to the group that is marked now
    Flag Vorschau = False;     // shows a preview picture and needs its plain one back
    Flag ObererRand = False;   // top cell of its column
    Flag UntererRand = False;  // bottom cell of its column
};

// Index 1 to 140; record 0 belongs to no cell.
inline std::array<Zelle, kZellen + 1> Zellen;

inline Zelle& Satz(int zelle)
{
    return Zellen[static_cast<std::size_t>(zelle)];
}

}  // namespace malvone
