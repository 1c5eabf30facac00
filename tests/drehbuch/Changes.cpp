// Changes.cpp: comparing what is heard with what is known, and putting it into few lines.
#include "tests/drehbuch/Changes.h"

#include <algorithm>
#include <utility>

#include "state/Zellen.h"
#include "tests/drehbuch/Commands.h"
#include "tests/drehbuch/Objects.h"
#include "tests/drehbuch/Text.h"
#include "ui/services/Spoken.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::script {

// A property of a control, or of those elements of an array in which it has changed.
struct Changes::Line
{
    std::string Owner;
    std::string Property;               // empty: the text or the picture of a control
    std::map<int, std::string> Values;  // by index, -1 for what is no element

    // "lblSumme", or with neighbours as a range "txtSpieler(0-4,9)".
    std::string Owners() const
    {
        std::string indexes;
        for (auto i = Values.begin(); i != Values.end() && i->first >= 0;) {
            const int first = i->first;
            int last = first;
            for (++i; i != Values.end() && i->first == last + 1; ++i) {
                ++last;
            }
            indexes += (indexes.empty() ? "(" : ",") + std::to_string(first) +
                       (last > first ? "-" + std::to_string(last) : "");
        }
        return Owner + indexes + (indexes.empty() ? "" : ")");
    }

    // "A" where all values are alike, else "2 x A, B", and "7 x (A, B)" where they come round
    // again.
    std::string Change() const
    {
        std::vector<std::string> values;
        for (const auto& [index, value] : Values) {
            values.push_back(value);
        }
        const std::size_t all = values.size();
        std::size_t round = 1;
        while (all % round != 0 || !std::equal(values.begin() + static_cast<std::ptrdiff_t>(round),
                                               values.end(), values.begin())) {
            ++round;
        }
        std::string text;
        for (std::size_t i = 0, next = 0; i < round; i = next) {
            for (next = i; next < round && values[next] == values[i]; ++next) {
            }
            text += (i == 0 ? "" : ", ") +
                    (next > i + 1 ? std::to_string(next - i) + " x " : std::string()) + values[i];
        }
        return " " + Property + (Property.empty() ? "" : " ") +
               (round == 1 || round == all ? text
                                           : std::to_string(all / round) + " x (" + text + ")");
    }
};

namespace {

std::string PathOf(const Control& control)
{
    return std::string(control.Owner().Name()) + "." + control.FullName();
}

std::string NameOf(const Control* control)
{
    return control == nullptr ? "-" : control->FullName();
}

// What may change and can be seen or used: properties, and what a window has beside them.
std::vector<Value> AllValuesOf(PropertyOwner& owner)
{
    std::vector<Value> values = ValuesOf(owner);
    std::erase_if(values, [](const Value& v) { return !v.Kind || v.Kind == Change::Data; });
    if (const auto* const window = dynamic_cast<const Window*>(&owner)) {
        values.push_back({"Focus", Change::Select, NameOf(window->Focus())});
        values.push_back({"Highlight", Change::Highlight, NameOf(window->Highlighted())});
    }
    return values;
}

}  // namespace

void Changes::Know(PropertyOwner& owner, const std::string& path)
{
    for (const Value& value : AllValuesOf(owner)) {
        if (!known_.emplace(path + "." + std::string(value.Property), value.Text).second) {
            heard_[path].insert(*value.Kind);
        }
    }
}

const std::string& Changes::Known(const Control& control, const char* property) const
{
    return known_.at(PathOf(control) + property);
}

void Changes::Loaded(Window& window)
{
    Know(window, std::string(window.Name()));
    for (Control* const control : window.Controls()) {
        Know(*control, PathOf(*control));
    }
}

void Changes::Added(Control& control)
{
    Know(control, PathOf(control));
}

void Changes::Heard(const Control& control, Change what)
{
    heard_[PathOf(control)].insert(what);
    if (what == Change::Highlight) {
        Heard(control.Owner(), what);
    }
}

void Changes::Told(std::string_view path)
{
    const auto property = PathFrom(path);
    if (!property || property->Target.Owner() == nullptr) {
        return;
    }
    for (const Value& value : AllValuesOf(*property->Target.Owner())) {
        if (value.Property == property->Property) {
            known_[std::string(path)] = value.Text;
        }
    }
}

std::string Changes::Lines()
{
    std::string displays;
    std::string properties;
    std::map<std::string_view, Window*> shown;
    for (const InstanceBase* const instance : InstanceBase::All()) {
        if (instance->Loaded() && instance->Current()->Shown()) {
            shown[instance->Name()] = instance->Current();
        }
    }
    for (const auto& [name, window] : shown) {
        properties += PropertyLines(*window);
        displays += DisplayLine(*window);
    }
    return BoardLines() + displays + properties;
}

void Changes::Compare(PropertyOwner& owner, const std::string& path, std::string_view name,
                      int index, std::vector<Line>& lines)
{
    const auto heard = heard_.extract(path);
    if (heard.empty()) {
        return;
    }
    for (const Value& value : AllValuesOf(owner)) {
        std::string& known = known_[path + "." + std::string(value.Property)];
        if (!heard.mapped().contains(*value.Kind) ||
            std::exchange(known, value.Text) == value.Text) {
            continue;
        }
        const bool plain =
            !name.empty() && (value.Kind == Change::Text || value.Kind == Change::Picture);
        const std::string_view property = plain ? "" : value.Property;
        auto line = std::find_if(lines.begin(), lines.end(), [&](const Line& other) {
            return other.Owner == name && other.Property == property;
        });
        if (line == lines.end()) {
            line = lines.insert(line, {std::string(name), std::string(property), {}});
        }
        line->Values[index] = value.Text;
    }
}

std::string Changes::PropertyLines(Window& window)
{
    std::vector<Line> lines;
    Compare(window, std::string(window.Name()), "", -1, lines);
    for (Control* const control : window.Controls()) {
        Compare(*control, PathOf(*control), control->Name(), control->Index(), lines);
    }
    // Pictures of cells and digits are told by the board and by the displays.
    for (const Spoken& spoken : SpokenOn(window)) {
        std::vector<const Visual*> told(spoken.Digits().begin(), spoken.Digits().end());
        if (spoken.Kind == SpokenKind::Cell) {
            told.push_back(spoken.Where);
        }
        for (const Visual* const control : told) {
            for (Line& line : lines) {
                if (line.Property.empty() && line.Owner == control->Name()) {
                    line.Values.erase(control->Index());
                }
            }
        }
    }
    std::vector<std::pair<std::string, std::string>> changes;  // what has become what
    for (const Line& line : lines) {
        if (line.Values.empty()) {
            continue;
        }
        const std::string change = line.Change();
        const auto same = std::find_if(changes.begin(), changes.end(),
                                       [&](const auto& other) { return other.second == change; });
        if (same == changes.end()) {
            changes.emplace_back((line.Owner.empty() ? "" : ".") + line.Owners(), change);
        } else {
            same->first += ", " + line.Owners();
        }
    }
    std::string text;
    for (const auto& [owners, change] : changes) {
        text += "~ " + std::string(window.Name()) + owners + WithoutVersion(change) + "\n";
    }
    return text;
}

// Dark places before the first digit say nothing.
std::string Changes::NumberOn(const Ziffernreihe& display) const
{
    constexpr std::string_view kBank = "frmDigital.imgDiggi(";
    std::string number;
    for (auto place = display.Stellen().rbegin(); place != display.Stellen().rend(); ++place) {
        const std::string_view picture = Known(**place, ".Picture");
        const bool dark = picture == "frmDigital.imgDiggi(10)";
        if (Known(**place, ".Visible") == "True" && !(dark && number.empty())) {
            const bool digit = picture.starts_with(kBank) && picture.size() == kBank.size() + 2;
            number += dark ? '_' : digit ? picture[kBank.size()] : '?';
        }
    }
    return number.empty() ? "dark" : number;
}

std::string Changes::DisplayLine(Window& window)
{
    std::string line;
    for (const Spoken& spoken : SpokenOn(window)) {
        const std::string number = spoken.Display == nullptr ? "" : NumberOn(*spoken.Display);
        if (std::exchange(displays_[spoken.Painted], number) != number) {
            line += (line.empty() ? "~ " : ", ") + spoken.Display->Name() + ": " + number;
        }
    }
    return line.empty() ? "" : line + "\n";
}

// A board without pictures behind it shows what it says.
std::string Changes::BoardLines()
{
    const std::string digits = AskOrSetBoard("").substr(2);
    if (digits.size() != kZellen) {
        return "";
    }
    std::string plain;
    std::string pictures;
    for (int i = 1; i <= kZellen; ++i) {
        plain += LetterOfValue(digits[static_cast<std::size_t>(i - 1)]);
        pictures += LetterOf(Known(frmTessel->imgFeld(i), ".Picture"));
    }
    const std::string before = std::exchange(pictures_, pictures == plain ? "" : pictures);
    const bool empty = plain.find_first_not_of('.') == std::string::npos;
    if (std::exchange(board_, digits) != digits) {
        return "~ board " + (empty ? "empty" : digits) + "\n" +
               (pictures_.empty() ? "" : "~ pictures " + pictures + "\n");
    }
    return before != pictures_
               ? "~ pictures " + (pictures_.empty() ? "as the board" : pictures) + "\n"
               : "";
}

void Changes::BoardSet()
{
    for (int i = 1; i <= kZellen; ++i) {
        Image& cell = frmTessel->imgFeld(i);
        const std::int32_t value = cell.Tag->Number();
        if (value <= kFarben) {
            cell.Picture = frmBilder->imgBild(value).Picture;
        }
    }
    Lines();
}

}  // namespace malvone::script
