// Eigenschaften.h: properties by name, for asking and for setting without any event.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tests/drehbuch/Objekte.h"

namespace malvone {

struct Antwort
{
    std::string Wert;  // masked, ready for the line
    std::optional<Grund> Fehler = std::nullopt;
};

// "unloaded" as the value where the window is not loaded.
Antwort EigenschaftFragen(std::string_view path);
std::optional<Grund> EigenschaftSetzen(std::string_view path, std::string_view value);

}  // namespace malvone
