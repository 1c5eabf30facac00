// FillFeld.h: gravity.
#pragma once

namespace malvone {

// Closes every gap within every column: stones fall down and keep their order. Then repaints the
// whole board, whether anything has moved or not. Marks stay where they are.
void SteineFallenLassen();

}  // namespace malvone
