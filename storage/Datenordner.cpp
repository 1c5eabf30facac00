// Datenordner.cpp: asks the platform for folders and files, in the game's own way of writing paths.
#include "storage/Datenordner.h"

#include "ui/Handbuch.h"
#include "ui/Klaenge.h"
#include "ui/Meldungen.h"
#include "ui/layer/App.h"

namespace malvone {

Datenlage Daten;

namespace {

constexpr Meldungstext kOrdnerFehlt = {
    "\r\nDas Anlegen des Ordners für die Daten ist fehlgeschlagen!",
    "\r\nDie Daten für die Stastitik\r\nkönnen nicht gespeichert werden!"};

}  // namespace

std::string WindowsOrdner()
{
    return App.System().GetWindowsDirectoryA();
}

std::string MitBackslash(std::string pfad)
{
    if (!pfad.ends_with('\\')) {
        pfad += '\\';
    }
    return pfad;
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

void OrdnerAnlegen(const std::string& pfad)
{
    if (App.System().CreateDirectoryA(pfad)) {
        Daten.DatenOrdnerOk = True;
        return;
    }
    // By design (kein-ausweichordner): one would expect the program's folder to take over here.
    // The missing folder stays the data folder, and each later use of a file meets that.
    // Test: Datenordner.AFolderThatCannotBeMadeStaysTheDataFolder
    SoundDirekt(kTonBeginn);
    MeldungZeigen(kOrdnerFehlt);
}

std::string DatenPfad()
{
    return Daten.DatenOrdnerOk == True ? MitBackslash(Daten.DatenOrdner) : ProgrammOrdner();
}

}  // namespace malvone
