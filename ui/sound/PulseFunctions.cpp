// PulseFunctions.cpp: looks up the functions of libpulse.
#include "ui/sound/PulseFunctions.h"

#include <dlfcn.h>

namespace malvone {
namespace {

template<typename Function>
bool LookUp(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(::dlsym(library, name));
    return function != nullptr;
}

}  // namespace

bool PulseFunctions::Load(const std::string& library)
{
    void* const handle = ::dlopen(library.c_str(), RTLD_LAZY | RTLD_LOCAL);
    bool all = handle != nullptr;
#define MALVONE_LOOK_UP(name) all = all && LookUp(handle, #name, name);
    MALVONE_PULSE_FUNCTIONS(MALVONE_LOOK_UP)
#undef MALVONE_LOOK_UP
    return all;
}

}  // namespace malvone
