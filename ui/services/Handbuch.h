// Handbuch.h: opens the manuals.
#pragma once

#include <string_view>

namespace malvone {

// Opens a manual from the program's folder in the system's viewer. A missing one is ignored.
void HandbuchOeffnen(std::string_view name);

}  // namespace malvone
