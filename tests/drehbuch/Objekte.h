// Objekte.h: the windows and controls behind the names that a script writes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/layer/Control.h"
#include "ui/layer/Window.h"

namespace malvone {

// What a command has found wrong with its line; told behind "? ".
using Grund = std::string;

// "frmTessel" or "frmTessel.imgFeld(17)". Looking up a name never loads a window.
struct Objekt
{
    InstanceBase* Instanz = nullptr;  // null: there is no such window
    std::string_view Name;            // of the control; empty: the window itself

    Window* Fenster() const { return Instanz == nullptr ? nullptr : Instanz->Current(); }
    // The control in the loaded window; null where there is none.
    Control* Steuerelement() const;
    // What the name stands for: a control or the window itself.
    PropertyOwner* Besitzer() const;
    // Why nobody can be found behind the name; nothing where somebody is, or where the window is
    // not loaded so that only its own name can be judged.
    std::optional<Grund> Fehler() const;
};

Objekt ObjektAus(std::string_view path);

// "OBJECT.PROPERTY" or "OBJECT.PROPERTY(INDEX)", cut at the last point.
struct Eigenschaftspfad
{
    Objekt Ziel;
    std::string_view Eigenschaft;
    std::optional<std::int32_t> Index;
};

std::optional<Eigenschaftspfad> PfadAus(std::string_view path);

}  // namespace malvone
