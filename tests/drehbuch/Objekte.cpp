// Objekte.cpp: names into objects.
#include "tests/drehbuch/Objekte.h"

#include "tests/drehbuch/Texte.h"

namespace malvone {

Control* Objekt::Steuerelement() const
{
    return Fenster() == nullptr || Name.empty() ? nullptr : Fenster()->Find(Name);
}

PropertyOwner* Objekt::Besitzer() const
{
    if (Name.empty()) {
        return Fenster();
    }
    return Steuerelement();
}

std::optional<Grund> Objekt::Fehler() const
{
    if (Instanz == nullptr) {
        return "unknown window";
    }
    if (Fenster() != nullptr && Besitzer() == nullptr) {
        return "unknown control";
    }
    return std::nullopt;
}

Objekt ObjektAus(std::string_view path)
{
    const std::size_t point = path.find('.');
    if (point != std::string_view::npos && point + 1 == path.size()) {
        return {};
    }
    const std::string_view window = Abschneiden(path, '.');
    return {InstanceBase::Find(window), path};
}

std::optional<Eigenschaftspfad> PfadAus(std::string_view path)
{
    const std::size_t point = path.rfind('.');
    if (point == std::string_view::npos) {
        return std::nullopt;
    }
    Eigenschaftspfad found{ObjektAus(path.substr(0, point)), path.substr(point + 1), {}};
    const std::size_t bracket = found.Eigenschaft.find('(');
    if (bracket == std::string_view::npos) {
        return found;
    }
    std::string_view index = found.Eigenschaft.substr(bracket + 1);
    found.Eigenschaft = found.Eigenschaft.substr(0, bracket);
    if (!index.ends_with(')')) {
        return std::nullopt;
    }
    index.remove_suffix(1);
    found.Index = ZahlAus<std::int32_t>(index);
    return found.Index ? std::optional(found) : std::nullopt;
}

}  // namespace malvone
