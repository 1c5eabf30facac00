// Datenordner.h: in which folder the data files lie, and the small questions asked of paths and
// files.
#pragma once

#include <string>

#include "ui/layer/Units.h"

namespace malvone {

// Set by Main at the start, only read afterwards.
struct Datenlage
{
    std::string DatenOrdner;     // without a backslash at its end; empty without a Windows folder
    Flag DatenOrdnerOk = False;  // True: DatenPfad answers with DatenOrdner
};

extern Datenlage Daten;

// The data folder's own name, directly under the root of the drive.
inline constexpr const char* kDatenOrdnerName = "lindenspiele";

// The system's folder; empty when it cannot be found.
std::string WindowsOrdner();
std::string MitBackslash(std::string pfad);
// False for the empty path and for a free name in an existing folder. Everything else counts as
// there: files, folders, and any name in a folder that is missing.
bool ExistiertDatei(const std::string& pfad);
// Makes a folder; the player is told if that fails.
void OrdnerAnlegen(const std::string& pfad);
// Where the snapshot lies, with a backslash at the end. Asked anew at each use.
std::string DatenPfad();

}  // namespace malvone
