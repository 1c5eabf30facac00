// Page.h: the one place where the program and its page meet. What the page can do stands in
// page.js; it decides nothing.
#pragma once

#include <emscripten/val.h>

#include <string>

#include "ui/layer/Units.h"

namespace malvone::web {

// Calls a function of the page by its name.
template<class Result = void, class... Arguments>
Result Ask(const char* what, const Arguments&... arguments)
{
    return emscripten::val::global("page").call<Result>(what, arguments...);
}

// Lengths of the page by name, in twips: screen, main window, and the bar of a title or a menu.
inline Twips Length(const char* name)
{
    return Ask<Twips>("length", std::string(name));
}

}  // namespace malvone::web
