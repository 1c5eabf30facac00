// Pfade.h: where the program's files and its data lie, and small questions about paths and files.
// Knows no window.
#pragma once

#include <string>

#include "ui/layer/Units.h"

namespace malvone {

// Set by Main at the start; only read afterwards.
struct Datenlage
{
    std::string DatenOrdner;  // without a backslash at its end; empty without a Windows folder
    Flag DatenOrdnerOk =
        False;  // True, once there is a Windows folder: DatenPfad gives DatenOrdner
};

inline Datenlage Daten;

std::string MitBackslash(std::string pfad);
// The folder of the program file, always with a backslash at its end.
std::string ProgrammOrdner();
// False for the empty path and for a free name in an existing folder. Anything else counts as
// existing: files, folders, and any name in a missing folder.
bool ExistiertDatei(const std::string& pfad);
// Where the snapshot lies, with a backslash at its end. Ask again for each use.
std::string DatenPfad();

}  // namespace malvone
