// Page.h: the one place where the program and its page meet. What the page can do stands in
// page.js; it decides nothing.
#pragma once

#include <emscripten/val.h>

namespace malvone::web {

// Calls a function of the page by its name.
template<class Result = void, class... Arguments>
Result Ask(const char* what, const Arguments&... arguments)
{
    return emscripten::val::global("page").call<Result>(what, arguments...);
}

}  // namespace malvone::web
