// SteuereBilder.h: marks, previews and removal on the board, and the first steps of the marking
// chain. A stone's value is the number in the Tag of its cell; there is no other copy of the board.
#pragma once

#include <cstdint>

namespace malvone {

// The value of a cell, 1 to 140: 0 empty, 1 to 4 a stone.
std::int32_t Zellwert(int zelle);

// Shows a cell as its value says, without marks; nothing where the value has no picture.
void BildZeigen(int zelle);

void MarkierungenLoeschen();
// Gives every cell that shows a preview its plain picture back.
void VorschauZuruecknehmen();
// Empties all cells, at the end of a level.
void FeldLeeren();

// The marking chain: five steps, each called once, in this order by imgFeld_MouseMove. The chain is
// no flood fill. On a winding group it can stop short, and the stones that it leaves out are no
// part of the move.
// By design (kette-statt-flut): one would expect the whole connected group. Which stones a move
// takes can depend on the stone under the pointer. Test: games.marking
void StartSpalteMarkieren(int zelle);
void NachRechtsAusbreiten(std::int16_t farbe);
void NachLinksAusbreiten(std::int16_t farbe);
// Steps four and five: Sicherheit.h.

// Marks the neighbour at the side if it has the colour. The right neighbour exists for cells below
// 131, the left one for cells above 10: the caller makes sure.
void RechtsPruefen(int zelle, std::int16_t farbe);
void LinksPruefen(int zelle, std::int16_t farbe);

// Shows the marked stones with the faces of a colour, and in lblSumme what the move is worth. With
// the colour 0 the cells look empty.
void GruppeVorschauen(std::int16_t farbe);

// Removes the marked group if it has two stones or more, and adds the square of its size.
void ZugAusfuehren();

}  // namespace malvone
