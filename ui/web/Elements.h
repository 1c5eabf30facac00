// Elements.h: windows and controls as the page is told of them: names of an element's properties
// and attributes, with a value each.
#pragma once

#include <string>

#include "ui/layer/Window.h"
#include "ui/services/Spoken.h"

namespace malvone::web {

// How high the title or the menu is that lies above the client area. The main window has no title:
// the page is its frame.
Twips Above(const Window& window);

std::string IdOf(const Window& window);
std::string IdOf(const Control& control);

// Make an element where there is none yet, and tell it what has changed.
void Put(const Window& window);
void Put(const Control& control);
void Put(const Spoken& spoken, const std::string& name, const std::string& description);

}  // namespace malvone::web
