// Page.h: calls from the program to its page. The functions of the page are in page.js.
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

// A length of the page in twips, by name: of the screen, the main window, or a title or menu bar.
inline Twips Length(const char* name)
{
    return Ask<Twips>("length", std::string(name));
}

}  // namespace malvone::web
