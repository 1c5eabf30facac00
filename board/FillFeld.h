// FillFeld.h: gravity.
#pragma once

namespace malvone {

// Closes all gaps within the columns: stones fall and keep their order. Then repaints the whole
// board, whether anything moved or not. Marks stay where they are.
void SteineFallenLassen();

}  // namespace malvone
