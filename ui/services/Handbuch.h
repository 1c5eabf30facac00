// Handbuch.h: opens the manuals.
#pragma once

#include <string_view>

namespace malvone {

// Opens a manual of the program's folder in the system's viewer. Ignores one that is missing.
void HandbuchOeffnen(std::string_view name);

}  // namespace malvone
