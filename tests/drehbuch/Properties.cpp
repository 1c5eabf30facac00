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

// How a value of each type stands on a line.
template<class Type>
std::string Written(const Type& value)
{
    if constexpr (std::is_same_v<Type, bool>) {
        return value ? "True" : "False";
    } else if constexpr (std::is_same_v<Type, Twips>) {
        return TwipsText(value);
    } else if constexpr (std::is_same_v<Type, std::string>) {
        return Masked(value);
    } else if constexpr (std::is_same_v<Type, TagText>) {
        return Masked(value.Text());
    } else if constexpr (std::is_same_v<Type, Picture>) {
        return value.Empty() ? "-" : std::string(value.Name());
    } else if constexpr (std::is_same_v<Type, Alignment>) {
        return value == Alignment::Centre ? "2" : "0";
    } else if constexpr (std::is_same_v<Type, Pointer>) {
        return value == Pointer::Hand ? "99" : "0";
    } else if constexpr (std::is_same_v<Type, Font>) {
        return std::string(value.Name) + " " + TwipsText(value.Size) + (value.Bold ? " bold" : "");
    } else {
        return std::to_string(value);
    }
}

std::optional<Picture> PictureFrom(std::string_view name)
{
    const auto known = AllPictures();
    const auto found = std::find_if(known.begin(), known.end(),
                                    [&](const PictureInfo& info) { return info.Name == name; });
    if (found != known.end()) {
        return Picture(*found);
    }
    // A control of the bank that holds no picture has a name all the same.
    const auto* const image = dynamic_cast<const Image*>(ObjectFrom(name).Control());
    const bool none = name == "-" || (image != nullptr && image->Picture->Empty());
    return none ? std::optional(Picture()) : std::nullopt;
}

// How it is read; nothing where the text is no such value.
template<class Type>
std::optional<Type> ValueFrom(std::string_view text)
{
    if constexpr (std::is_same_v<Type, bool>) {
        return text == "True" || text == "False" ? std::optional(text == "True") : std::nullopt;
    } else if constexpr (std::is_same_v<Type, Twips>) {
        return TwipsFrom(text);
    } else if constexpr (std::is_same_v<Type, Picture>) {
        return PictureFrom(text);
    } else if constexpr (std::is_same_v<Type, std::int32_t>) {
        constexpr std::int32_t kLargest = 0xFFFFFF;  // colours; all other numbers stay far below
        const auto number = NumberFrom<std::int32_t>(text);
        return number && *number >= 0 && *number <= kLargest ? number : std::nullopt;
    } else {
        return Type(Unmasked(text));
    }
}

constexpr const char* kNoValue = "? not a value of this property";
constexpr const char* kNotSettable = "? the property is fixed";
constexpr const char* kUnknown = "? unknown property";

// One use of a property: it is asked for, or given a new value.
struct Use
{
    std::optional<std::string_view> New = {};
    std::optional<std::int32_t> Index = {};  // of an item
    std::string Told = {};                   // the value, or what is wrong with the new one
    std::optional<Change> Kind = {};
};

struct Property
{
    std::string_view Name;
    bool (*Apply)(PropertyOwner&, Use&);  // false: the object is of another kind
    bool Indexed = false;
};

template<class Member>
struct MemberOf;
template<class Class, class Type>
struct MemberOf<Type Class::*>
{
    using Owner = Class;
};

template<class Field>
auto ValueOf(const Field& field)
{
    if constexpr (requires { field.Get(); }) {
        return field.Get();
    } else if constexpr (std::is_same_v<Field, VisibleProperty>) {
        return static_cast<bool>(field);
    } else {
        return field;
    }
}

constexpr bool kFixed = true;  // by the design: it can only be asked for

template<auto Member, bool kIsFixed = false>
bool UseMember(PropertyOwner& owner, Use& use)
{
    auto* const object = dynamic_cast<typename MemberOf<decltype(Member)>::Owner*>(&owner);
    if (object == nullptr) {
        return false;
    }
    auto& field = object->*Member;
    if constexpr (requires { field.Kind(); }) {
        use.Kind = field.Kind();
    }
    if (!use.New) {
        use.Told = Written(ValueOf(field));
    } else if constexpr (kIsFixed) {
        use.Told = kNotSettable;
    } else if (const auto value = ValueFrom<decltype(ValueOf(field))>(*use.New)) {
        field = *value;
    } else {
        use.Told = kNoValue;
    }
    return true;
}

bool UseList(PropertyOwner& owner, Use& use)
{
    auto* const list = dynamic_cast<ListBox*>(&owner);
    if (list == nullptr) {
        return false;
    }
    if (!use.New) {
        use.Told = use.Index ? Written(list->List(*use.Index)) : Written(list->ListCount());
    } else if (!use.Index) {
        use.Told = kNotSettable;
    } else if (*use.Index < 0 || *use.Index >= list->ListCount()) {
        use.Told = kNoValue;
    } else {
        list->SetList(*use.Index, Unmasked(*use.New));
    }
    return true;
}

constexpr Property kProperties[] = {
    {"Visible", &UseMember<&Window::Visible>},
    {"Left", &UseMember<&Window::Left>},
    {"Top", &UseMember<&Window::Top>},
    {"Width", &UseMember<&Window::Width>},
    {"Height", &UseMember<&Window::Height>},
    {"Caption", &UseMember<&Window::Caption>},
    {"Picture", &UseMember<&Window::Picture>},
    {"Icon", &UseMember<&Window::Icon>},
    {"BackColor", &UseMember<&Window::BackColor>},
    {"ClientWidth", &UseMember<&Window::ClientWidth, kFixed>},
    {"ClientHeight", &UseMember<&Window::ClientHeight, kFixed>},
    {"ShowInTaskbar", &UseMember<&Window::ShowInTaskbar, kFixed>},
    {"MinButton", &UseMember<&Window::MinButton, kFixed>},
    {"MaxButton", &UseMember<&Window::MaxButton, kFixed>},
    {"KeyPreview", &UseMember<&Window::KeyPreview, kFixed>},

    {"Enabled", &UseMember<&Control::Enabled>},
    {"Visible", &UseMember<&Control::Visible>},
    {"Left", &UseMember<&Visual::Left>},
    {"Top", &UseMember<&Visual::Top>},
    {"Width", &UseMember<&Visual::Width>},
    {"Height", &UseMember<&Visual::Height>},
    {"ToolTipText", &UseMember<&Visual::ToolTipText>},
    {"Tag", &UseMember<&Visual::Tag>},
    {"TabStop", &UseMember<&Visual::TabStop>},
    {"MousePointer", &UseMember<&Visual::MousePointer, kFixed>},
    {"TabIndex", &UseMember<&Visual::TabIndex, kFixed>},

    {"Caption", &UseMember<&Label::Caption>},
    {"ForeColor", &UseMember<&Label::ForeColor>},
    {"BackColor", &UseMember<&Label::BackColor>},
    {"Transparent", &UseMember<&Label::Transparent>},
    {"Alignment", &UseMember<&Label::Align, kFixed>},
    {"Font", &UseMember<&Label::TextFont, kFixed>},

    {"Picture", &UseMember<&Image::Picture>},
    {"Stretch", &UseMember<&Image::Stretch>},

    {"Picture", &UseMember<&PictureBox::Picture>},
    {"BackColor", &UseMember<&PictureBox::BackColor>},
    {"Border", &UseMember<&PictureBox::Border>},

    {"Caption", &UseMember<&CommandButton::Caption>},
    {"Default", &UseMember<&CommandButton::Default>},

    {"Text", &UseMember<&TextBox::Text>},
    {"Locked", &UseMember<&TextBox::Locked>},
    {"SelStart", &UseMember<&TextBox::SelStart>},
    {"SelLength", &UseMember<&TextBox::SelLength>},
    {"ForeColor", &UseMember<&TextBox::ForeColor>},
    {"BackColor", &UseMember<&TextBox::BackColor>},
    {"Font", &UseMember<&TextBox::TextFont, kFixed>},

    {"ListCount", &UseList},
    {"List", &UseList, true},

    {"FillColor", &UseMember<&Shape::FillColor>},
    {"X1", &UseMember<&Line::X1>},
    {"Y1", &UseMember<&Line::Y1>},
    {"X2", &UseMember<&Line::X2>},
    {"Y2", &UseMember<&Line::Y2>},
    {"BorderColor", &UseMember<&Line::BorderColor>},

    {"Caption", &UseMember<&MenuEntry::Caption>},
    {"Checked", &UseMember<&MenuEntry::Checked>},
    {"Interval", &UseMember<&Timer::Interval>},
};

// Finds the property that is meant and uses it. Nothing: there is none.
std::optional<Answer> Apply(std::string_view path, Use use)
{
    const auto found = PathFrom(path);
    if (!found) {
        return std::nullopt;
    }
    if (!found->Target.Fault().empty()) {
        return Answer(found->Target.Fault());
    }
    if (use.New && found->Target.Window() == nullptr) {
        return "? the window is not loaded";
    }
    use.Index = found->Index;
    for (const Property& property : kProperties) {
        if (property.Name != found->Property || property.Indexed != found->Index.has_value()) {
            continue;
        }
        if (found->Target.Window() == nullptr) {
            return "= unloaded";
        }
        if (property.Apply(*found->Target.Owner(), use)) {
            return (use.New ? "" : "= ") + use.Told;
        }
    }
    return std::nullopt;
}

}  // namespace

std::vector<Value> ValuesOf(PropertyOwner& owner)
{
    std::vector<Value> values;
    for (const Property& property : kProperties) {
        Use use;
        if (!property.Indexed && property.Apply(owner, use)) {
            const bool text = use.Kind == Change::Text || property.Name == "ToolTipText";
            values.push_back({property.Name, use.Kind, text ? '"' + use.Told + '"' : use.Told});
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
    return Apply(path, {}).value_or(kUnknown);
}

Answer SetProperty(std::string_view line)
{
    const std::string_view path = CutOff(line, ' ');
    return Apply(path, {line}).value_or(kUnknown);
}

}  // namespace malvone::script
