// Design.cpp: the table that needs the bank of pictures.
#include "ui/windows/Design.h"

#include "ui/windows/Pictures.h"

namespace malvone::design {

void Apply(std::span<const Shows> rows)
{
    for (const Shows& row : rows) {
        row.image.Picture = PictureNamed(row.picture);
    }
}

}  // namespace malvone::design
