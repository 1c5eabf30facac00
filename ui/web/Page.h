// Page.h: the one place where the program and its page meet. What the page can do stands in
// page.js; it decides nothing.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "platform/Platform.h"

namespace malvone::web {

// Calls a function of the page by its name.
void Tell(const char* what, const std::string& a = {}, const std::string& b = {});
double Ask(const char* what);

// An event from the queue of the page. Lengths are twips from the page's corner.
struct PageEvent
{
    std::string Kind;
    std::string Target;  // "frmTessel" for a window, "frmTessel.lblNeu" for a control
    std::array<float, 5> Numbers{};
    std::string Text = {};
};

// Waits for the next event and takes it. While there is a game that leaving the page would lose,
// the browser asks before the page goes.
PageEvent NextEvent(bool gameRuns);

// Entries of the storage, bytes under a name; nothing where there is none.
std::optional<std::string> ReadEntry(const std::string& name);
FileFault WriteEntry(const std::string& name, const std::string& bytes);

}  // namespace malvone::web
