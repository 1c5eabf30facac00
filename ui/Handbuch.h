// Handbuch.h: where the program's own files lie, and how a manual is opened.
#pragma once

#include <string>
#include <string_view>

namespace malvone {

// The folder of the program file, always with a backslash at its end.
std::string ProgrammOrdner();

// Opens a manual of that folder in the system's viewer. A missing one is passed over in silence.
void HandbuchOeffnen(std::string_view name);

}  // namespace malvone
