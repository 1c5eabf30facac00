// Pfade.h: where the program's files and the data lie, and the small questions asked of paths and
// files. Nothing in here knows a window.
#pragma once

#include <string>

#include "ui/layer/Units.h"

namespace malvone {

// Set by Main at the start, only read afterwards.
struct Datenlage
{
    std::string DatenOrdner;  // without a backslash at its end; empty without a Windows folder
    Flag DatenOrdnerOk =
        False;  // True, once there is a Windows folder: DatenPfad gives DatenOrdner
};

extern Datenlage Daten;

std::string MitBackslash(std::string pfad);
// The folder of the program file, always with a backslash at its end.
std::string ProgrammOrdner();
// False for the empty path and for a free name in an existing folder. Everything else counts as
// there: files, folders, and any name in a folder that is missing.
bool ExistiertDatei(const std::string& pfad);
// Where the snapshot lies, with a backslash at the end. Asked anew at each use.
std::string DatenPfad();

}  // namespace malvone
