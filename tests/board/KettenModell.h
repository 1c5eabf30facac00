// KettenModell.h: the marking chain a second time, as its rules are told and without a line of the
// game's own code, to hold the game's marks against.
#pragma once

namespace malvone::modell {

// One thing for each cell, index 1 to 140.
template<class T>
struct JeZelle
{
    T zelle[141] = {};

    T& operator[](int i) { return zelle[i]; }
    const T& operator[](int i) const { return zelle[i]; }
    friend bool operator==(const JeZelle&, const JeZelle&) = default;
};
using Brett = JeZelle<int>;
using Marken = JeZelle<bool>;

struct Kette
{
    const Brett& wert;
    Marken marke{};
    int farbe = 0;
    bool rechts = false;
    bool links = false;
    int ohneLauf = 0;  // leaves out one of the 23 runs, to see that it matters

    void Pruefen(int nachbar)
    {
        if (wert[nachbar] == farbe) {
            marke[nachbar] = true;
        }
    }
    void PruefenMelden(int nachbar, bool& gefunden)
    {
        if (wert[nachbar] == farbe) {
            marke[nachbar] = true;
            gefunden = true;
        }
    }
    static bool Oben(int i) { return i % 10 == 1; }
    static bool Unten(int i) { return i % 10 == 0; }

    void StartSpalte(int start)
    {
        farbe = wert[start];
        marke[start] = true;
        int i = start;
        while (true) {
            if (i < 131) PruefenMelden(i + 10, rechts);
            if (i > 10) PruefenMelden(i - 10, links);
            if (Oben(i)) break;
            if (wert[i - 1] == farbe) marke[i - 1] = true;
            if (!marke[i - 1]) break;
            i = i - 1;
        }
        i = start;
        while (true) {
            if (i < 131) PruefenMelden(i + 10, rechts);
            if (i > 10) PruefenMelden(i - 10, links);
            if (Unten(i)) break;
            if (wert[i + 1] == farbe) marke[i + 1] = true;
            if (!marke[i + 1]) break;
            i = i + 1;
        }
    }

    void NachRechts()
    {
        do {
            rechts = false;
            int l = 140;
            while (!marke[l])
                --l;
            for (int k = l;; --k) {
                if (marke[k] && k < 131) PruefenMelden(k + 10, rechts);
                if (marke[k] && k > 10) Pruefen(k - 10);
                if (Oben(k)) break;
                if (marke[k]) Pruefen(k - 1);
            }
            for (int k = l;; ++k) {
                if (marke[k] && k < 131) PruefenMelden(k + 10, rechts);
                if (marke[k] && k > 10) Pruefen(k - 10);
                if (Unten(k)) break;
                if (marke[k]) Pruefen(k + 1);
            }
        } while (rechts);
    }

    void NachLinks()
    {
        do {
            links = false;
            int l = 1;
            while (!marke[l])
                ++l;
            for (int k = l;; --k) {
                if (marke[k] && k > 10) PruefenMelden(k - 10, links);
                if (marke[k] && k < 131) Pruefen(k + 10);
                if (Oben(k)) break;
                if (marke[k]) Pruefen(k - 1);
            }
            for (int k = l;; ++k) {
                if (marke[k] && k > 10) PruefenMelden(k - 10, links);
                if (marke[k] && k < 131) Pruefen(k + 10);
                if (Unten(k)) break;
                if (marke[k]) Pruefen(k + 1);
            }
        } while (links);
    }

    void Zellenlauf()
    {
        for (int i = 1; i <= 140; ++i) {
            if (!marke[i]) continue;
            if (i == 1 || i == 10) {
                Pruefen(i + 10);
            } else if (i <= 9) {
                Pruefen(i + 10);
                Pruefen(i + 1);
            } else if (i == 131 || i == 140) {
                Pruefen(i - 10);
            } else if (i >= 132) {
                Pruefen(i - 10);
                Pruefen(i + 1);
            } else if (Oben(i)) {
                Pruefen(i + 1);
                Pruefen(i + 10);
                Pruefen(i - 10);
            } else if (Unten(i)) {
                Pruefen(i - 1);
                Pruefen(i + 10);
                Pruefen(i - 10);
            } else {
                Pruefen(i + 1);
                Pruefen(i - 1);
                Pruefen(i + 10);
                Pruefen(i - 10);
            }
        }
    }

    void Bloecke()
    {
        // First and last cell, step, four offsets to give to and four to take from; 0 is none.
        static constexpr int kLauf[23][11] = {
            {62, 69, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {52, 59, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {72, 79, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {42, 49, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {82, 89, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {32, 39, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {92, 99, 1, 10, -10, 1, -1, 0, 0, 0, 0},
            {22, 29, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {102, 109, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {2, 9, 1, 10, 1, -1, 0, 0, 0, 0, 0},
            {12, 19, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {112, 119, 1, 10, -10, 1, -1, 0, 0, 0, 0},
            {122, 129, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {102, 109, 1, 10, -10, 1, -1, 10, -10, -1, 1},
            {11, 121, 10, 10, -10, 0, 0, 10, -10, 0, 0},
            {12, 122, 10, 10, -10, 1, -1, 10, -10, -1, 1},
            {13, 123, 10, 10, -10, 1, -1, 10, -10, -1, 1},
            {14, 124, 10, 10, -10, 1, -1, 10, -10, -1, 1},
            {15, 125, 10, 10, -10, 1, -1, 10, -10, -1, 1},
            {16, 126, 10, 10, -10, 1, -1, 10, -10, -1, 1},
            {17, 127, 10, 10, -10, 1, -1, 10, -10, -1, 1},
            {18, 128, 10, 10, -10, 1, -1, 10, -10, -1, 1},
            {19, 129, 10, 10, -10, 0, 0, 10, -10, 0, 0},
        };
        for (int n = 0; n < 23; ++n) {
            if (n + 1 == ohneLauf) continue;
            const int* const lauf = kLauf[n];
            for (int i = lauf[0]; i <= lauf[1]; i += lauf[2]) {
                for (int d = 3; d < 7; ++d) {
                    if (marke[i] && lauf[d] != 0) Pruefen(i + lauf[d]);
                }
                for (int d = 7; d < 11; ++d) {
                    if (wert[i] == farbe && lauf[d] != 0 && marke[i + lauf[d]]) marke[i] = true;
                }
            }
        }
    }
};

// What pointing at a stone marks.
inline Marken Markieren(const Brett& wert, int start, int ohneLauf = 0)
{
    Kette kette{wert};
    kette.ohneLauf = ohneLauf;
    kette.StartSpalte(start);
    kette.NachRechts();
    kette.NachLinks();
    kette.Zellenlauf();
    kette.Bloecke();
    return kette.marke;
}

// The connected group of a stone, by plain flood fill.
inline Marken Gruppe(const Brett& wert, int start)
{
    Marken marke{};
    int offen[140];
    int zahl = 0;
    marke[start] = true;
    offen[zahl++] = start;
    while (zahl > 0) {
        const int i = offen[--zahl];
        const int nachbarn[4] = {i % 10 == 1 ? 0 : i - 1, i % 10 == 0 ? 0 : i + 1,
                                 i > 10 ? i - 10 : 0, i < 131 ? i + 10 : 0};
        for (const int j : nachbarn) {
            if (j != 0 && !marke[j] && wert[j] == wert[start]) {
                marke[j] = true;
                offen[zahl++] = j;
            }
        }
    }
    return marke;
}

}  // namespace malvone::modell
