// SteuereBilder.h: marks, previews and removal on the board, and the first steps of the marking
// chain. The value of a cell is the number in its Tag; there is no other copy of the board.
#pragma once

#include <cstdint>

#include "ui/layer/Units.h"

namespace malvone {

inline constexpr Colour kDunkelblau = Rgb(0x0000C0);  // of the line that says what a move is worth

// The value of a cell, 1 to 140: 0 empty, 1 to 4 a stone.
std::int32_t Zellwert(int zelle);

// Shows a cell by its value, without marks; a value without a picture shows nothing.
void BildZeigen(int zelle);

void MarkierungenLoeschen();
// Puts the plain picture back on every cell that shows a preview.
void VorschauZuruecknehmen();
// Empties all cells, at the end of a level.
void FeldLeeren();

// The marking chain: five steps that imgFeld_MouseMove calls once each, in this order. It is not a
// flood fill: on a winding group it can stop short, and the stones it leaves out are not part of
// the move.
// By design (kette-statt-flut): one would expect the whole connected group. Which stones a move
// takes can depend on the stone under the pointer. Test: games.marking
void StartSpalteMarkieren(int zelle);
void NachRechtsAusbreiten(std::int16_t farbe);
void NachLinksAusbreiten(std::int16_t farbe);
// Steps four and five: Sicherheit.h.

// Marks the neighbour on that side if it has the colour. The caller makes sure that it exists: on
// the right for cells below 131, on the left for cells above 10.
void RechtsPruefen(int zelle, std::int16_t farbe);
void LinksPruefen(int zelle, std::int16_t farbe);

// Shows the marked stones with the faces of a colour, and what the move is worth in lblSumme. With
// colour 0 the cells look empty.
void GruppeVorschauen(std::int16_t farbe);

// Removes the marked group if it has two stones or more, and adds the square of its size.
void ZugAusfuehren();

}  // namespace malvone
