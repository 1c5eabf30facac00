// Sicherheit.cpp: the run over all cells, and the fixed runs as one table.
#include "board/Sicherheit.h"

#include <span>

#include "board/SteuereBilder.h"
#include "state/Zellen.h"

namespace malvone {
namespace {

// A run visits cells from the first to the last in steps. Each cell passes its mark on to
// neighbours of its colour, then takes one over from marked neighbours, at the given offsets in
// their order.
struct Lauf
{
    int Erste;
    int Letzte;
    int Schritt;
    std::span<const int> GibtAn;
    std::span<const int> NimmtVon;
};

constexpr int kHoch = -1;
constexpr int kTief = +1;
constexpr int kRechts = +kReihen;
constexpr int kLinks = -kReihen;

constexpr int kNurRechts[] = {kRechts};
constexpr int kNurLinks[] = {kLinks};
constexpr int kRechtsTief[] = {kRechts, kTief};
constexpr int kLinksTief[] = {kLinks, kTief};
constexpr int kTiefSeiten[] = {kTief, kRechts, kLinks};
constexpr int kHochSeiten[] = {kHoch, kRechts, kLinks};
constexpr int kRundum[] = {kTief, kHoch, kRechts, kLinks};

// In the first and in the last column no cell tests the neighbour above it.
std::span<const int> Nachbarn(int zelle)
{
    const bool oben = Reihe(zelle) == 0;
    const bool unten = Reihe(zelle) == kReihen - 1;
    if (Spalte(zelle) == 0) {
        return oben || unten ? std::span<const int>(kNurRechts) : kRechtsTief;
    }
    if (Spalte(zelle) == kSpalten - 1) {
        return oben || unten ? std::span<const int>(kNurLinks) : kLinksTief;
    }
    if (oben) {
        return kTiefSeiten;
    }
    return unten ? std::span<const int>(kHochSeiten) : kRundum;
}

constexpr int kGibtVier[] = {kRechts, kLinks, kTief, kHoch};
constexpr int kNimmtVier[] = {kRechts, kLinks, kHoch, kTief};
constexpr int kGibtDrei[] = {kRechts, kTief, kHoch};  // the first column has nothing to its left
constexpr int kSeiten[] = {kRechts, kLinks};
constexpr std::span<const int> kNichts;

// The first runs go down one column each, rows 2 to 9, from the middle of the board outwards; the
// others go along one row each, from the second column to the thirteenth.
constexpr Lauf kLaeufe[] = {
    {62, 69, 1, kGibtVier, kNimmtVier},    // 1
    {52, 59, 1, kGibtVier, kNimmtVier},    // 2
    {72, 79, 1, kGibtVier, kNimmtVier},    // 3
    {42, 49, 1, kGibtVier, kNimmtVier},    // 4
    {82, 89, 1, kGibtVier, kNimmtVier},    // 5
    {32, 39, 1, kGibtVier, kNimmtVier},    // 6
    {92, 99, 1, kGibtVier, kNichts},       // 7
    {22, 29, 1, kGibtVier, kNimmtVier},    // 8
    {102, 109, 1, kGibtVier, kNimmtVier},  // 9
    {2, 9, 1, kGibtDrei, kNichts},         // 10
    {12, 19, 1, kGibtVier, kNimmtVier},    // 11
    {112, 119, 1, kGibtVier, kNichts},     // 12
    {122, 129, 1, kGibtVier, kNimmtVier},  // 13
    {102, 109, 1, kGibtVier, kNimmtVier},  // 14
    {11, 121, 10, kSeiten, kSeiten},       // 15
    {12, 122, 10, kGibtVier, kNimmtVier},  // 16
    {13, 123, 10, kGibtVier, kNimmtVier},  // 17
    {14, 124, 10, kGibtVier, kNimmtVier},  // 18
    {15, 125, 10, kGibtVier, kNimmtVier},  // 19
    {16, 126, 10, kGibtVier, kNimmtVier},  // 20
    {17, 127, 10, kGibtVier, kNimmtVier},  // 21
    {18, 128, 10, kGibtVier, kNimmtVier},  // 22
    {19, 129, 10, kSeiten, kSeiten},       // 23
};

void Geben(int zelle, std::span<const int> abstaende, std::int16_t farbe)
{
    if (Satz(zelle).Markiert == False) {
        return;
    }
    for (const int abstand : abstaende) {
        if (Zellwert(zelle + abstand) == farbe) {
            Satz(zelle + abstand).Markiert = True;
        }
    }
}

void Nehmen(int zelle, std::span<const int> abstaende, std::int16_t farbe)
{
    if (Zellwert(zelle) != farbe) {
        return;
    }
    for (const int abstand : abstaende) {
        if (Satz(zelle + abstand).Markiert != False) {
            Satz(zelle).Markiert = True;
        }
    }
}

}  // namespace

void SicherheitZellenlauf(std::int16_t farbe)
{
    for (int i = 1; i <= kZellen; ++i) {
        Geben(i, Nachbarn(i), farbe);
    }
    SicherheitBloecke(farbe);
}

void SicherheitBloecke(std::int16_t farbe)
{
    for (const Lauf& lauf : kLaeufe) {
        for (int i = lauf.Erste; i <= lauf.Letzte; i += lauf.Schritt) {
            Geben(i, lauf.GibtAn, farbe);
            Nehmen(i, lauf.NimmtVon, farbe);
        }
    }
}

}  // namespace malvone
