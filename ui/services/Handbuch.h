// Handbuch.h: how a manual is opened.
#pragma once

#include <string_view>

namespace malvone {

// Opens a manual of the program's folder in the system's viewer. A missing one is passed over in
// silence.
void HandbuchOeffnen(std::string_view name);

}  // namespace malvone
