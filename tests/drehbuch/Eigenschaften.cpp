// Eigenschaften.cpp: the table of all properties, and how values of each type are written and read.
#include "tests/drehbuch/Eigenschaften.h"

#include <algorithm>
#include <type_traits>

#include "tests/drehbuch/Texte.h"
#include "ui/layer/Controls.h"
#include "ui/layer/Menu.h"
#include "ui/windows/Pictures.h"

namespace malvone {
namespace {

// How a value stands on a line, one function for each type of property.

std::string Geschrieben(bool value)
{
    return value ? "True" : "False";
}
std::string Geschrieben(Twips value)
{
    return TwipsText(value);
}
std::string Geschrieben(std::int32_t value)
{
    return std::to_string(value);
}
std::string Geschrieben(std::int16_t value)
{
    return std::to_string(value);
}
std::string Geschrieben(const std::string& value)
{
    return Maskiert(value);
}
std::string Geschrieben(const TagText& value)
{
    return Maskiert(value.Text());
}
std::string Geschrieben(const Picture& value)
{
    return value.Empty() ? "-" : std::string(value.Name());
}
std::string Geschrieben(Alignment value)
{
    return value == Alignment::Centre ? "2" : "0";
}
std::string Geschrieben(Pointer value)
{
    return value == Pointer::Hand ? "99" : "0";
}
std::string Geschrieben(const Font& value)
{
    return std::string(value.Name) + " " + TwipsText(value.Size) + (value.Bold ? " bold" : "");
}

// How it is read. False: the text is no such value, and nothing has been stored.

bool Lesen(std::string_view text, bool& value)
{
    value = text == "True";
    return value || text == "False";
}
bool Lesen(std::string_view text, Twips& value)
{
    const auto number = TwipsAus(text);
    value = number.value_or(0);
    return number.has_value();
}
bool Lesen(std::string_view text, std::int32_t& value)
{
    constexpr std::int32_t kLargest = 0xFFFFFF;  // colours; all other numbers stay far below
    const auto number = ZahlAus<std::int32_t>(text);
    value = number.value_or(0);
    return number.has_value() && value >= 0 && value <= kLargest;
}
bool Lesen(std::string_view text, std::string& value)
{
    value = Entmaskiert(text);
    return true;
}
bool Lesen(std::string_view text, TagText& value)
{
    value = TagText(Entmaskiert(text));
    return true;
}
bool Lesen(std::string_view text, Picture& value)
{
    const auto known = AllPictures();
    const auto found = std::find_if(known.begin(), known.end(),
                                    [&](const PictureInfo& info) { return info.Name == text; });
    // A control of the bank that holds no picture has a name all the same.
    const auto* const image = dynamic_cast<const Image*>(ObjektAus(text).Steuerelement());
    value = found == known.end() ? Picture() : Picture(*found);
    return found != known.end() || text == "-" || (image != nullptr && image->Picture->Empty());
}

enum class Ausgang { Erledigt, AndereArt, KeinWert, NurLesbar };

// One property of one kind of object. The functions answer AndereArt, or nothing, where the object
// is of another kind, so that one name can stand in the table for several kinds.
struct Eigenschaft
{
    using Fragen = std::optional<std::string> (*)(const PropertyOwner&, std::int32_t);
    using Setzen = Ausgang (*)(PropertyOwner&, std::int32_t, std::string_view);

    std::string_view Name;
    bool MitIndex;
    Fragen Frage;
    Setzen Setze;
};

template<class Member>
struct MemberTypes;
template<class Class, class Type>
struct MemberTypes<Type Class::*>
{
    using Owner = Class;
    using Value = Type;
};

template<auto Member>
std::optional<std::string> MemberFragen(const PropertyOwner& owner, std::int32_t)
{
    using Types = MemberTypes<decltype(Member)>;
    const auto* const object = dynamic_cast<const typename Types::Owner*>(&owner);
    if (object == nullptr) {
        return std::nullopt;
    }
    if constexpr (requires { (object->*Member).Get(); }) {
        return Geschrieben((object->*Member).Get());
    } else {
        return Geschrieben(object->*Member);
    }
}

template<auto Member>
Ausgang MemberSetzen(PropertyOwner& owner, std::int32_t, std::string_view text)
{
    using Types = MemberTypes<decltype(Member)>;
    auto* const object = dynamic_cast<typename Types::Owner*>(&owner);
    if (object == nullptr) {
        return Ausgang::AndereArt;
    }
    std::remove_cvref_t<decltype((object->*Member).Get())> value{};
    if (!Lesen(text, value)) {
        return Ausgang::KeinWert;
    }
    object->*Member = value;
    return Ausgang::Erledigt;
}

// What the design has fixed can only be asked for.
template<auto Member>
Ausgang MemberFest(PropertyOwner& owner, std::int32_t, std::string_view)
{
    using Types = MemberTypes<decltype(Member)>;
    return dynamic_cast<typename Types::Owner*>(&owner) == nullptr ? Ausgang::AndereArt
                                                                   : Ausgang::NurLesbar;
}

std::optional<std::string> FensterSichtbar(const PropertyOwner& owner, std::int32_t)
{
    const auto* const window = dynamic_cast<const Window*>(&owner);
    return window == nullptr ? std::nullopt : std::optional(Geschrieben(window->Shown()));
}

Ausgang FensterZeigen(PropertyOwner& owner, std::int32_t, std::string_view text)
{
    auto* const window = dynamic_cast<Window*>(&owner);
    if (window == nullptr) {
        return Ausgang::AndereArt;
    }
    bool visible = false;
    if (!Lesen(text, visible)) {
        return Ausgang::KeinWert;
    }
    window->Visible = visible;
    return Ausgang::Erledigt;
}

std::optional<std::string> ListenLaenge(const PropertyOwner& owner, std::int32_t)
{
    const auto* const list = dynamic_cast<const ListBox*>(&owner);
    return list == nullptr ? std::nullopt : std::optional(Geschrieben(list->ListCount()));
}

Ausgang ListenLaengeFest(PropertyOwner& owner, std::int32_t, std::string_view)
{
    return dynamic_cast<ListBox*>(&owner) == nullptr ? Ausgang::AndereArt : Ausgang::NurLesbar;
}

std::optional<std::string> ListenEintrag(const PropertyOwner& owner, std::int32_t index)
{
    const auto* const list = dynamic_cast<const ListBox*>(&owner);
    return list == nullptr ? std::nullopt : std::optional(Geschrieben(list->List(index)));
}

Ausgang ListenEintragSetzen(PropertyOwner& owner, std::int32_t index, std::string_view text)
{
    auto* const list = dynamic_cast<ListBox*>(&owner);
    if (list == nullptr) {
        return Ausgang::AndereArt;
    }
    if (index < 0 || index >= list->ListCount()) {
        return Ausgang::KeinWert;
    }
    list->SetList(index, Entmaskiert(text));
    return Ausgang::Erledigt;
}

template<auto Member>
constexpr Eigenschaft Setzbar(std::string_view name)
{
    return {name, false, &MemberFragen<Member>, &MemberSetzen<Member>};
}

template<auto Member>
constexpr Eigenschaft Fest(std::string_view name)
{
    return {name, false, &MemberFragen<Member>, &MemberFest<Member>};
}

constexpr Eigenschaft kEigenschaften[] = {
    {"Visible", false, &FensterSichtbar, &FensterZeigen},
    Setzbar<&Window::Left>("Left"),
    Setzbar<&Window::Top>("Top"),
    Setzbar<&Window::Width>("Width"),
    Setzbar<&Window::Height>("Height"),
    Setzbar<&Window::Caption>("Caption"),
    Setzbar<&Window::Picture>("Picture"),
    Setzbar<&Window::Icon>("Icon"),
    Setzbar<&Window::BackColor>("BackColor"),
    Fest<&Window::ClientWidth>("ClientWidth"),
    Fest<&Window::ClientHeight>("ClientHeight"),
    Fest<&Window::ShowInTaskbar>("ShowInTaskbar"),
    Fest<&Window::MinButton>("MinButton"),
    Fest<&Window::MaxButton>("MaxButton"),
    Fest<&Window::KeyPreview>("KeyPreview"),

    Setzbar<&Control::Enabled>("Enabled"),
    Setzbar<&Control::Visible>("Visible"),
    Setzbar<&Visual::Left>("Left"),
    Setzbar<&Visual::Top>("Top"),
    Setzbar<&Visual::Width>("Width"),
    Setzbar<&Visual::Height>("Height"),
    Setzbar<&Visual::ToolTipText>("ToolTipText"),
    Setzbar<&Visual::Tag>("Tag"),
    Setzbar<&Visual::TabStop>("TabStop"),
    Fest<&Visual::MousePointer>("MousePointer"),
    Fest<&Visual::TabIndex>("TabIndex"),

    Setzbar<&Label::Caption>("Caption"),
    Setzbar<&Label::ForeColor>("ForeColor"),
    Setzbar<&Label::BackColor>("BackColor"),
    Setzbar<&Label::Transparent>("Transparent"),
    Fest<&Label::Align>("Alignment"),
    Fest<&Label::TextFont>("Font"),

    Setzbar<&Image::Picture>("Picture"),
    Setzbar<&Image::Stretch>("Stretch"),

    Setzbar<&PictureBox::Picture>("Picture"),
    Setzbar<&PictureBox::BackColor>("BackColor"),
    Setzbar<&PictureBox::Border>("Border"),

    Setzbar<&CommandButton::Caption>("Caption"),
    Setzbar<&CommandButton::Default>("Default"),

    Setzbar<&TextBox::Text>("Text"),
    Setzbar<&TextBox::Locked>("Locked"),
    Setzbar<&TextBox::SelStart>("SelStart"),
    Setzbar<&TextBox::SelLength>("SelLength"),
    Setzbar<&TextBox::ForeColor>("ForeColor"),
    Setzbar<&TextBox::BackColor>("BackColor"),
    Fest<&TextBox::TextFont>("Font"),

    {"ListCount", false, &ListenLaenge, &ListenLaengeFest},
    {"List", true, &ListenEintrag, &ListenEintragSetzen},

    Setzbar<&Shape::FillColor>("FillColor"),
    Setzbar<&Line::X1>("X1"),
    Setzbar<&Line::Y1>("Y1"),
    Setzbar<&Line::X2>("X2"),
    Setzbar<&Line::Y2>("Y2"),
    Setzbar<&Line::BorderColor>("BorderColor"),

    Setzbar<&MenuEntry::Caption>("Caption"),
    Setzbar<&MenuEntry::Checked>("Checked"),
    Setzbar<&Timer::Interval>("Interval"),
};

bool Gemeint(const Eigenschaft& property, const Eigenschaftspfad& path)
{
    return property.Name == path.Eigenschaft && property.MitIndex == path.Index.has_value();
}

}  // namespace

Antwort EigenschaftFragen(std::string_view path)
{
    const auto found = PfadAus(path);
    if (!found) {
        return {"", "unknown property"};
    }
    if (const auto fault = found->Ziel.Fehler()) {
        return {"", *fault};
    }
    for (const Eigenschaft& property : kEigenschaften) {
        if (!Gemeint(property, *found)) {
            continue;
        }
        if (found->Ziel.Fenster() == nullptr) {
            return {"unloaded"};
        }
        if (auto value = property.Frage(*found->Ziel.Besitzer(), found->Index.value_or(0))) {
            return {std::move(*value)};
        }
    }
    return {"", "unknown property"};
}

std::optional<Grund> EigenschaftSetzen(std::string_view path, std::string_view value)
{
    const auto found = PfadAus(path);
    if (!found) {
        return "unknown property";
    }
    if (const auto fault = found->Ziel.Fehler()) {
        return fault;
    }
    if (found->Ziel.Fenster() == nullptr) {
        return "the window is not loaded";
    }
    for (const Eigenschaft& property : kEigenschaften) {
        if (!Gemeint(property, *found)) {
            continue;
        }
        switch (property.Setze(*found->Ziel.Besitzer(), found->Index.value_or(0), value)) {
        case Ausgang::Erledigt: return std::nullopt;
        case Ausgang::KeinWert: return "not a value of this property";
        case Ausgang::NurLesbar: return "the property is fixed";
        case Ausgang::AndereArt: break;
        }
    }
    return "unknown property";
}

}  // namespace malvone
