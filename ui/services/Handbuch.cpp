// Handbuch.cpp: the manuals beside the program file.
#include "ui/services/Handbuch.h"

#include <string>

#include "state/Pfade.h"
#include "ui/layer/App.h"

namespace malvone {

void HandbuchOeffnen(std::string_view name)
{
    const std::string pfad = ProgrammOrdner() + std::string(name);
    if (ExistiertDatei(pfad) && !App.Ended()) {
        App.System().ShellExecuteA(pfad);
    }
}

}  // namespace malvone
