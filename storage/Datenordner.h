// Datenordner.h: finds the folder of the data files, and makes it.
#pragma once

#include <string>

namespace malvone {

// The data folder's own name, directly under the root of the drive.
inline constexpr const char* kDatenOrdnerName = "lindenspiele";

// The system's folder; empty if it cannot be found.
std::string WindowsOrdner();
// Makes a folder; the player is told if that fails.
void OrdnerAnlegen(const std::string& pfad);

}  // namespace malvone
