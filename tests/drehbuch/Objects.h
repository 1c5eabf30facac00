// Objects.h: the windows and controls that a script names.
#pragma once

#include <optional>
#include <string_view>

#include "ui/layer/Control.h"
#include "ui/layer/Instance.h"

namespace malvone::script {

// "frmTessel" or "frmTessel.imgFeld(17)". Looking up a name never loads a window.
struct Object
{
    InstanceBase* Instance = nullptr;  // null: there is no such window
    std::string_view Name;             // of the control; empty: the window itself

    // The window, null while it is not loaded.
    malvone::Window* Window() const { return Instance == nullptr ? nullptr : Instance->Current(); }
    // The control in the loaded window; null where there is none.
    malvone::Control* Control() const;
    // What the name stands for: a control or the window itself.
    PropertyOwner* Owner() const;
    // What is wrong with the name; empty where it stands for something, or where the window is not
    // loaded, so that only its own name can be judged.
    std::string_view Fault() const;
};

Object ObjectFrom(std::string_view path);

// "OBJECT.PROPERTY" or "OBJECT.PROPERTY(INDEX)", cut at the last point.
struct PropertyPath
{
    Object Target;
    std::string_view Property;
    std::optional<std::int32_t> Index;
};

std::optional<PropertyPath> PathFrom(std::string_view path);

}  // namespace malvone::script
