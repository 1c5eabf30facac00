// Elements.h: turns windows and controls into elements of the page, with properties and attributes.
#pragma once

#include <string>

#include "ui/layer/Window.h"
#include "ui/services/Spoken.h"

namespace malvone::web {

// Height of the title or menu bar above the client area, in twips. The main window has no title:
// the page is its frame.
Twips Above(const Window& window);

std::string IdOf(const Window& window);
std::string IdOf(const Control& control);

// Make the element of a window or control, or update the one that is there.
void Put(const Window& window);
void Put(const Control& control);
void Put(const Spoken& spoken, const std::string& name, const std::string& description);

}  // namespace malvone::web
