// Datenordner.cpp: asks the platform for the data folder.
#include "storage/Datenordner.h"

#include "ui/layer/App.h"
#include "ui/services/Klaenge.h"
#include "ui/services/Meldungen.h"

namespace malvone {

namespace {

constexpr Meldungstext kOrdnerFehlt = {
    "\r\nDas Anlegen des Ordners für die Daten ist fehlgeschlagen!",
    "\r\nDie Daten für die Stastitik\r\nkönnen nicht gespeichert werden!"};

}  // namespace

std::string WindowsOrdner()
{
    return App.System().GetWindowsDirectoryA();
}

void OrdnerAnlegen(const std::string& pfad)
{
    if (App.System().CreateDirectoryA(pfad)) {
        return;
    }
    // By design (kein-ausweichordner): one would expect the program's folder to take over here.
    // The missing folder stays the data folder, and each later use of a file meets that.
    // Test: games.start_without_data_folder
    SoundDirekt(kTonBeginn);
    MeldungZeigen(kOrdnerFehlt);
}

}  // namespace malvone
