// Objects.cpp: names into objects.
#include "tests/drehbuch/Objects.h"

#include "tests/drehbuch/Text.h"

namespace malvone::script {

Control* Object::Control() const
{
    return Window() == nullptr || Name.empty() ? nullptr : Window()->Find(Name);
}

PropertyOwner* Object::Owner() const
{
    return Name.empty() ? static_cast<PropertyOwner*>(Window()) : Control();
}

std::string_view Object::Fault() const
{
    if (Instance == nullptr) {
        return "? unknown window";
    }
    return Window() != nullptr && Owner() == nullptr ? "? unknown control" : "";
}

Object ObjectFrom(std::string_view path)
{
    const std::size_t point = path.find('.');
    if (point != std::string_view::npos && point + 1 == path.size()) {
        return {};
    }
    const std::string_view window = CutOff(path, '.');
    return {InstanceBase::Find(window), path};
}

std::optional<PropertyPath> PathFrom(std::string_view path)
{
    const std::size_t point = path.rfind('.');
    if (point == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view index = path.substr(point + 1);
    const bool indexed = index.find('(') != std::string_view::npos;
    PropertyPath found{ObjectFrom(path.substr(0, point)), CutOff(index, '('), {}};
    if (!indexed) {
        return found;
    }
    if (index.ends_with(')')) {
        found.Index = NumberFrom<std::int32_t>(index.substr(0, index.size() - 1));
    }
    return found.Index ? std::optional(found) : std::nullopt;
}

}  // namespace malvone::script
