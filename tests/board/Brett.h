// Brett.h: a running level for tests: boards as pictures of text, and the pointer on the stones.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "tests/support/StilleBindung.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

using Werte = std::array<int, kZellen + 1>;  // index 1 to 140
using Zellmenge = std::vector<int>;          // cell numbers, ascending

// A board from its rows, '.' for an empty cell. What is not given is empty: rows at the top,
// columns at the right.
inline Werte AusReihen(const std::vector<std::string_view>& reihen)
{
    Werte werte{};
    int reihe = kReihen - static_cast<int>(reihen.size());
    for (const std::string_view text : reihen) {
        for (int spalte = 0; spalte < static_cast<int>(text.size()); ++spalte) {
            const char zeichen = text[static_cast<std::size_t>(spalte)];
            const int zelle = spalte * kReihen + reihe + 1;
            werte.at(static_cast<std::size_t>(zelle)) = zeichen == '.' ? 0 : zeichen - '0';
        }
        ++reihe;
    }
    return werte;
}

// The board as rows again, for failures that can be read.
inline std::string AlsText(const Werte& werte)
{
    std::string text;
    for (int reihe = 0; reihe < kReihen; ++reihe) {
        for (int spalte = 0; spalte < kSpalten; ++spalte) {
            const int zelle = spalte * kReihen + reihe + 1;
            const int wert = werte[static_cast<std::size_t>(zelle)];
            text += wert == 0 ? "." : std::to_string(wert);
        }
        text += '\n';
    }
    return text;
}

inline Werte MitZellen(const Zellmenge& zellen, int wert, Werte werte = {})
{
    for (const int zelle : zellen) {
        werte.at(static_cast<std::size_t>(zelle)) = wert;
    }
    return werte;
}

// Level 1 of a new game, on a board that the test lays down.
struct Level : Programm
{
    Level()
    {
        Starten();
        RaiseClick(frmTessel->lblNeu);
        VerlaufSeitdem();
    }
    explicit Level(const Werte& werte) : Level() { Setzen(werte); }

    static void Setzen(const Werte& werte)
    {
        for (int i = 1; i <= kZellen; ++i) {
            const auto stelle = static_cast<std::size_t>(i);
            const int wert = werte[stelle];
            frmTessel->imgFeld(i).Tag = TagText(wert);
            frmTessel->imgFeld(i).Picture =
                wert >= 0 && wert <= 4 ? frmBilder->imgBild(wert).Picture.Get() : Picture();
            Zellen[stelle].Markiert = False;
            Zellen[stelle].Vorschau = False;
        }
    }
    static Werte Brett()
    {
        Werte werte{};
        for (int i = 1; i <= kZellen; ++i) {
            werte[static_cast<std::size_t>(i)] = frmTessel->imgFeld(i).Tag->Number();
        }
        return werte;
    }
    static std::string BrettText() { return AlsText(Brett()); }

    static void Zeigen(int zelle)
    {
        const EventScope scope;
        frmTessel->imgFeld.MouseMove.Raise(static_cast<std::int16_t>(zelle), Mouse{});
    }
    static void Druecken(int zelle, std::int16_t taste = kLeftButton)
    {
        const EventScope scope;
        frmTessel->imgFeld.MouseDown.Raise(static_cast<std::int16_t>(zelle), Mouse{taste});
    }
    static void ZeigenUndDruecken(int zelle)
    {
        Zeigen(zelle);
        Druecken(zelle);
    }

    static Zellmenge Markierte() { return MitFlag(&Zelle::Markiert); }
    static Zellmenge Vorgezeigte() { return MitFlag(&Zelle::Vorschau); }

    // The names of the pictures of all 140 cells.
    static std::vector<std::string> Bilder()
    {
        std::vector<std::string> namen;
        for (int i = 1; i <= kZellen; ++i) {
            namen.emplace_back(frmTessel->imgFeld(i).Picture->Name());
        }
        return namen;
    }
    // What the cells show when none is previewed.
    static std::vector<std::string> SchlichteBilder(const Werte& werte)
    {
        std::vector<std::string> namen;
        for (int i = 1; i <= kZellen; ++i) {
            const int wert = werte[static_cast<std::size_t>(i)];
            namen.push_back("frmBilder.imgBild(" + std::to_string(wert) + ")");
        }
        return namen;
    }

private:
    static Zellmenge MitFlag(Flag Zelle::*flag)
    {
        Zellmenge menge;
        for (int i = 1; i <= kZellen; ++i) {
            if (Zellen[static_cast<std::size_t>(i)].*flag != False) {
                menge.push_back(i);
            }
        }
        return menge;
    }
};

}  // namespace malvone
