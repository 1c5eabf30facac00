// FillFeld.cpp: stones fall within their column.
#include "board/FillFeld.h"

#include "board/SteuereBilder.h"
#include "state/Zellen.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

// The pass runs from top to bottom, so everything above a gap is closed up already.
void SpalteFallenLassen(int oberste, int unterste)
{
    for (int i = oberste; i <= unterste; ++i) {
        if (Zellwert(i) != 0) {
            continue;
        }
        for (int k = i; k > oberste; --k) {
            frmTessel->imgFeld(k).Tag = frmTessel->imgFeld(k - 1).Tag;
        }
        frmTessel->imgFeld(oberste).Tag = "0";
    }
}

}  // namespace

void SteineFallenLassen()
{
    for (int spalte = 0; spalte < kSpalten; ++spalte) {
        SpalteFallenLassen(ObersteZelle(spalte), UntersteZelle(spalte));
    }
    for (int i = 1; i <= kZellen; ++i) {
        BildZeigen(i);
    }
}

}  // namespace malvone
