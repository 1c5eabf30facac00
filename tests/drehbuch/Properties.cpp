// Properties.cpp: the table of all properties, and how values of each type are written and read.
#include <algorithm>
#include <type_traits>

#include "tests/drehbuch/Commands.h"
#include "tests/drehbuch/Objects.h"
#include "tests/drehbuch/Text.h"
#include "ui/layer/Controls.h"
#include "ui/layer/Menu.h"
#include "ui/windows/Pictures.h"

namespace malvone::script {
namespace {

// How a value stands on a line, one function for each type of property.

std::string Written(bool value)
{
    return value ? "True" : "False";
}
std::string Written(Twips value)
{
    return TwipsText(value);
}
std::string Written(std::int32_t value)
{
    return std::to_string(value);
}
std::string Written(const std::string& value)
{
    return Masked(value);
}
std::string Written(const Picture& value)
{
    return value.Empty() ? "-" : std::string(value.Name());
}
std::string Written(Alignment value)
{
    return value == Alignment::Centre ? "2" : "0";
}
std::string Written(Pointer value)
{
    return value == Pointer::Hand ? "99" : "0";
}
std::string Written(const Font& value)
{
    return std::string(value.Name) + " " + TwipsText(value.Size) + (value.Bold ? " bold" : "");
}

// How it is read. False: the text is no such value, and nothing has been stored.

bool Read(std::string_view text, bool& value)
{
    value = text == "True";
    return value || text == "False";
}
bool Read(std::string_view text, Twips& value)
{
    const auto number = TwipsFrom(text);
    value = number.value_or(0);
    return number.has_value();
}
bool Read(std::string_view text, std::int32_t& value)
{
    constexpr std::int32_t kLargest = 0xFFFFFF;  // colours; all other numbers stay far below
    const auto number = NumberFrom<std::int32_t>(text);
    value = number.value_or(0);
    return number.has_value() && value >= 0 && value <= kLargest;
}
bool Read(std::string_view text, std::string& value)
{
    value = Unmasked(text);
    return true;
}
bool Read(std::string_view text, TagText& value)
{
    value = TagText(Unmasked(text));
    return true;
}
bool Read(std::string_view text, Picture& value)
{
    const auto known = AllPictures();
    const auto found = std::find_if(known.begin(), known.end(),
                                    [&](const PictureInfo& info) { return info.Name == text; });
    // A control of the bank that holds no picture has a name all the same.
    const auto* const image = dynamic_cast<const Image*>(ObjectFrom(text).Control());
    value = found == known.end() ? Picture() : Picture(*found);
    return found != known.end() || text == "-" || (image != nullptr && image->Picture->Empty());
}

// The answers to an attempt to set; where the object is of another kind than the property, there
// is none, so that one name can stand in the table for several kinds.
constexpr const char* kDone = "";
constexpr const char* kNoValue = "? not a value of this property";
constexpr const char* kFixed = "? the property is fixed";
constexpr const char* kUnknown = "? unknown property";

struct Property
{
    std::string_view Name;
    bool Indexed;
    std::optional<std::string> (*Ask)(const PropertyOwner&, std::int32_t);
    const char* (*Set)(PropertyOwner&, std::int32_t, std::string_view);  // null: another kind
    // What its owner tells when it changes.
    std::optional<Change> (*Kind)(const PropertyOwner&) = nullptr;
};

template<class Member>
struct MemberTypes;
template<class Class, class Type>
struct MemberTypes<Type Class::*>
{
    using Owner = Class;
};

template<auto Member>
std::optional<std::string> AskMember(const PropertyOwner& owner, std::int32_t)
{
    using Owner = typename MemberTypes<decltype(Member)>::Owner;
    const auto* const object = dynamic_cast<const Owner*>(&owner);
    if (object == nullptr) {
        return std::nullopt;
    }
    if constexpr (requires { (object->*Member).Get(); }) {
        return Written((object->*Member).Get());
    } else {
        return Written(object->*Member);
    }
}

template<auto Member>
const char* SetMember(PropertyOwner& owner, std::int32_t, std::string_view text)
{
    using Owner = typename MemberTypes<decltype(Member)>::Owner;
    auto* const object = dynamic_cast<Owner*>(&owner);
    if (object == nullptr) {
        return nullptr;
    }
    std::remove_cvref_t<decltype((object->*Member).Get())> value{};
    if (!Read(text, value)) {
        return kNoValue;
    }
    object->*Member = value;
    return kDone;
}

// Nothing for what is no property of the layer and so never changes.
template<auto Member>
std::optional<Change> KindOf(const PropertyOwner& owner)
{
    using Owner = typename MemberTypes<decltype(Member)>::Owner;
    const auto* const object = dynamic_cast<const Owner*>(&owner);
    if constexpr (requires { (object->*Member).Kind(); }) {
        return object == nullptr ? std::nullopt : std::optional((object->*Member).Kind());
    }
    return std::nullopt;
}

// What the design has fixed can only be asked for.
template<class Owner>
const char* Refuse(PropertyOwner& owner, std::int32_t, std::string_view)
{
    return dynamic_cast<Owner*>(&owner) == nullptr ? nullptr : kFixed;
}

std::optional<std::string> AskShown(const PropertyOwner& owner, std::int32_t)
{
    const auto* const window = dynamic_cast<const Window*>(&owner);
    return window == nullptr ? std::nullopt : std::optional(Written(window->Shown()));
}

const char* SetShown(PropertyOwner& owner, std::int32_t, std::string_view text)
{
    auto* const window = dynamic_cast<Window*>(&owner);
    bool visible = false;
    if (window == nullptr || !Read(text, visible)) {
        return window == nullptr ? nullptr : kNoValue;
    }
    window->Visible = visible;
    return kDone;
}

std::optional<std::string> AskListCount(const PropertyOwner& owner, std::int32_t)
{
    const auto* const list = dynamic_cast<const ListBox*>(&owner);
    return list == nullptr ? std::nullopt : std::optional(Written(list->ListCount()));
}

std::optional<std::string> AskListItem(const PropertyOwner& owner, std::int32_t index)
{
    const auto* const list = dynamic_cast<const ListBox*>(&owner);
    return list == nullptr ? std::nullopt : std::optional(Written(list->List(index)));
}

const char* SetListItem(PropertyOwner& owner, std::int32_t index, std::string_view text)
{
    auto* const list = dynamic_cast<ListBox*>(&owner);
    if (list == nullptr || index < 0 || index >= list->ListCount()) {
        return list == nullptr ? nullptr : kNoValue;
    }
    list->SetList(index, Unmasked(text));
    return kDone;
}

template<auto Member>
constexpr Property Free(std::string_view name)
{
    return {name, false, &AskMember<Member>, &SetMember<Member>, &KindOf<Member>};
}

template<auto Member>
constexpr Property Fixed(std::string_view name)
{
    return {name, false, &AskMember<Member>, &Refuse<typename MemberTypes<decltype(Member)>::Owner>,
            &KindOf<Member>};
}

constexpr Property kProperties[] = {
    {"Visible", false, &AskShown, &SetShown},
    Free<&Window::Left>("Left"),
    Free<&Window::Top>("Top"),
    Free<&Window::Width>("Width"),
    Free<&Window::Height>("Height"),
    Free<&Window::Caption>("Caption"),
    Free<&Window::Picture>("Picture"),
    Free<&Window::Icon>("Icon"),
    Free<&Window::BackColor>("BackColor"),
    Fixed<&Window::ClientWidth>("ClientWidth"),
    Fixed<&Window::ClientHeight>("ClientHeight"),
    Fixed<&Window::ShowInTaskbar>("ShowInTaskbar"),
    Fixed<&Window::MinButton>("MinButton"),
    Fixed<&Window::MaxButton>("MaxButton"),
    Fixed<&Window::KeyPreview>("KeyPreview"),

    Free<&Control::Enabled>("Enabled"),
    Free<&Control::Visible>("Visible"),
    Free<&Visual::Left>("Left"),
    Free<&Visual::Top>("Top"),
    Free<&Visual::Width>("Width"),
    Free<&Visual::Height>("Height"),
    Free<&Visual::ToolTipText>("ToolTipText"),
    Free<&Visual::Tag>("Tag"),
    Free<&Visual::TabStop>("TabStop"),
    Fixed<&Visual::MousePointer>("MousePointer"),
    Fixed<&Visual::TabIndex>("TabIndex"),

    Free<&Label::Caption>("Caption"),
    Free<&Label::ForeColor>("ForeColor"),
    Free<&Label::BackColor>("BackColor"),
    Free<&Label::Transparent>("Transparent"),
    Fixed<&Label::Align>("Alignment"),
    Fixed<&Label::TextFont>("Font"),

    Free<&Image::Picture>("Picture"),
    Free<&Image::Stretch>("Stretch"),

    Free<&PictureBox::Picture>("Picture"),
    Free<&PictureBox::BackColor>("BackColor"),
    Free<&PictureBox::Border>("Border"),

    Free<&CommandButton::Caption>("Caption"),
    Free<&CommandButton::Default>("Default"),

    Free<&TextBox::Text>("Text"),
    Free<&TextBox::Locked>("Locked"),
    Free<&TextBox::SelStart>("SelStart"),
    Free<&TextBox::SelLength>("SelLength"),
    Free<&TextBox::ForeColor>("ForeColor"),
    Free<&TextBox::BackColor>("BackColor"),
    Fixed<&TextBox::TextFont>("Font"),

    {"ListCount", false, &AskListCount, &Refuse<ListBox>},
    {"List", true, &AskListItem, &SetListItem},

    Free<&Shape::FillColor>("FillColor"),
    Free<&Line::X1>("X1"),
    Free<&Line::Y1>("Y1"),
    Free<&Line::X2>("X2"),
    Free<&Line::Y2>("Y2"),
    Free<&Line::BorderColor>("BorderColor"),

    Free<&MenuEntry::Caption>("Caption"),
    Free<&MenuEntry::Checked>("Checked"),
    Free<&Timer::Interval>("Interval"),
};

bool Meant(const Property& property, const PropertyPath& path)
{
    return property.Name == path.Property && property.Indexed == path.Index.has_value();
}

}  // namespace

std::vector<Value> ValuesOf(const PropertyOwner& owner)
{
    std::vector<Value> values;
    for (const Property& property : kProperties) {
        const auto value = property.Indexed ? std::nullopt : property.Ask(owner, 0);
        if (value) {
            const auto kind = property.Kind == nullptr ? std::nullopt : property.Kind(owner);
            const bool text = kind == Change::Text || property.Name == "ToolTipText";
            values.push_back({property.Name, kind, text ? '"' + *value + '"' : *value});
        }
    }
    if (const auto* const list = dynamic_cast<const ListBox*>(&owner)) {
        std::string items;
        for (std::int32_t i = 0; i < list->ListCount(); ++i) {
            items += (i == 0 ? "\"" : ", \"") + Masked(list->List(i)) + '"';
        }
        values.push_back({"List", Change::Text, items.empty() ? "-" : items});
    }
    return values;
}

Answer AskProperty(std::string_view path)
{
    const auto found = PathFrom(path);
    if (!found) {
        return kUnknown;
    }
    if (!found->Target.Fault().empty()) {
        return Answer(found->Target.Fault());
    }
    for (const Property& property : kProperties) {
        if (!Meant(property, *found)) {
            continue;
        }
        if (found->Target.Window() == nullptr) {
            return "= unloaded";
        }
        if (const auto value = property.Ask(*found->Target.Owner(), found->Index.value_or(0))) {
            return "= " + *value;
        }
    }
    return kUnknown;
}

Answer SetProperty(std::string_view line)
{
    const auto found = PathFrom(CutOff(line, ' '));
    if (!found) {
        return kUnknown;
    }
    if (!found->Target.Fault().empty()) {
        return Answer(found->Target.Fault());
    }
    if (found->Target.Window() == nullptr) {
        return "? the window is not loaded";
    }
    for (const Property& property : kProperties) {
        const char* const answer =
            Meant(property, *found)
                ? property.Set(*found->Target.Owner(), found->Index.value_or(0), line)
                : nullptr;
        if (answer != nullptr) {
            return answer;
        }
    }
    return kUnknown;
}

}  // namespace malvone::script
