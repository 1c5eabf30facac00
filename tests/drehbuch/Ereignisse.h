// Ereignisse.h: events by name, delivered to windows and controls as a player would cause them.
#pragma once

#include <string_view>

#include "tests/drehbuch/Objekte.h"

namespace malvone {

enum class Zustellung {
    Angekommen,
    Abgelehnt,  // the target cannot be reached at present
    Unbekannt,  // such an object knows no such event, or the line is not in order
};

struct Zustellbericht
{
    Zustellung Ergebnis = Zustellung::Angekommen;
    Grund Fehler = {};
};

// "OBJECT EVENT [BUTTON]".
Zustellbericht EreignisZustellen(std::string_view line);

// "Enter" or "Ctrl+Shift+N": presses a key in the window that takes keys at present.
Zustellbericht TasteDruecken(std::string_view name);

// Types into the text box that has the focus.
Zustellbericht TextTippen(std::string_view text);

}  // namespace malvone
