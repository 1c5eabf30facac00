// Looks the functions of libpulse up.
#include "ui/sound/PulseFunktionen.h"

#include <dlfcn.h>

namespace malvone {
namespace {

template<typename Funktion>
bool Suchen(void* bibliothek, const char* name, Funktion& funktion)
{
    funktion = reinterpret_cast<Funktion>(::dlsym(bibliothek, name));
    return funktion != nullptr;
}

}  // namespace

bool PulseFunktionen::Laden(const std::string& bibliothek)
{
    void* const griff = ::dlopen(bibliothek.c_str(), RTLD_NOW | RTLD_LOCAL);
    bool alle = griff != nullptr;
#define MALVONE_SUCHEN(name) alle = alle && Suchen(griff, #name, name);
    MALVONE_PULSE_FUNKTIONEN(MALVONE_SUCHEN)
#undef MALVONE_SUCHEN
    return alle;
}

}  // namespace malvone
