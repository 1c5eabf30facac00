// Pfade.cpp: paths as the game writes them, and the existence test.
#include "state/Pfade.h"

#include "ui/layer/App.h"

namespace malvone {

std::string MitBackslash(std::string pfad)
{
    if (!pfad.ends_with('\\')) {
        pfad += '\\';
    }
    return pfad;
}

std::string ProgrammOrdner()
{
    return MitBackslash(App.Path);
}

bool ExistiertDatei(const std::string& pfad)
{
    if (pfad.empty()) {
        return false;
    }
    // By design (existiert-im-nichts): one would expect False for a name under a missing folder.
    // It is True: only a file that was not found counts as absent, not a missing path, so that no
    // list is written at the start when the folder could not be made.
    // Test: Datenordner.OnlyAFreeNameInAnExistingFolderIsAbsent
    return App.System().OpenFileExist(pfad) != kFileNotFound;
}

std::string DatenPfad()
{
    return Daten.DatenOrdnerOk == True ? MitBackslash(Daten.DatenOrdner) : ProgrammOrdner();
}

}  // namespace malvone
