// Events.cpp: events and keys by name, delivered as a player would cause them, and who may get
// them.
#include <algorithm>
#include <array>

#include "tests/drehbuch/Commands.h"
#include "tests/drehbuch/Objects.h"
#include "tests/drehbuch/Text.h"
#include "ui/layer/App.h"

namespace malvone::script {
namespace {

// The cells of the board are copies of element 0, which itself takes no input whatever its state.
constexpr std::string_view kTemplate = "imgFeld(0)";

const Answer kRefused = "refused";
const Answer kUnknownEvent = "? unknown event";

Answer Told(bool delivered)
{
    return delivered ? "" : kRefused;
}

bool Reachable(const Control& control)
{
    return App.TakesInput(control.Owner()) && control.Reachable() &&
           control.FullName() != kTemplate;
}

Answer Click(Control& control, const Mouse&)
{
    const bool timer = dynamic_cast<Timer*>(&control) != nullptr;
    return timer ? kUnknownEvent : Told(Reachable(control) && RaiseClick(control));
}

Answer Tick(Control& control, const Mouse&)
{
    auto* const timer = dynamic_cast<Timer*>(&control);
    return timer == nullptr ? kUnknownEvent : Told(RaiseTimer(*timer));
}

template<auto Event>
Answer Point(Control& control, const Mouse& mouse)
{
    if (dynamic_cast<Visual*>(&control) == nullptr) {
        return kUnknownEvent;
    }
    if (!Reachable(control)) {
        return kRefused;
    }
    Event(control).Raise(control.Index(), mouse);
    return "";
}
malvone::Event<Mouse>& MoveOf(Control& control)
{
    return control.MouseMove;
}
malvone::Event<Mouse>& DownOf(Control& control)
{
    return control.MouseDown;
}
malvone::Event<Mouse>& UpOf(Control& control)
{
    return control.MouseUp;
}

Answer ActivateWindow(Window& window, const Mouse&)
{
    return Told(RaiseActivate(window));
}
Answer CloseWindow(Window& window, const Mouse&)
{
    return Told(RaiseClose(window));
}
Answer MoveOverWindow(Window& window, const Mouse& mouse)
{
    if (!App.TakesInput(window)) {
        return kRefused;
    }
    window.Form_MouseMove(mouse);
    return "";
}

struct EventRow
{
    std::string_view Name;
    std::optional<std::int16_t> Button;  // where the line names none; none: no argument
    Answer (*AtWindow)(Window&, const Mouse&);
    Answer (*AtControl)(Control&, const Mouse&);
};

constexpr std::array<EventRow, 7> kEvents = {{
    {"Click", std::nullopt, nullptr, &Click},
    {"MouseMove", 0, &MoveOverWindow, &Point<MoveOf>},
    {"MouseDown", kLeftButton, nullptr, &Point<DownOf>},
    {"MouseUp", kLeftButton, nullptr, &Point<UpOf>},
    {"Timer", std::nullopt, nullptr, &Tick},
    {"Activate", std::nullopt, &ActivateWindow, nullptr},
    {"Close", std::nullopt, &CloseWindow, nullptr},
}};

Answer Deliver(const Object& target, const EventRow& event, const Mouse& mouse)
{
    if (target.Name.empty() ? event.AtWindow == nullptr : event.AtControl == nullptr) {
        return kUnknownEvent;
    }
    if (target.Window() == nullptr) {
        return kRefused;
    }
    return target.Name.empty() ? event.AtWindow(*target.Window(), mouse)
                               : event.AtControl(*target.Control(), mouse);
}

struct NamedKey
{
    std::string_view Name;
    std::int16_t Code;
};
constexpr std::array<NamedKey, 11> kKeys = {{
    {"Enter", kKeyEnter},
    {"Space", kKeySpace},
    {"Esc", kKeyEsc},
    {"Tab", kKeyTab},
    {"F1", kKeyF1},
    {"Left", kKeyLeft},
    {"Up", kKeyUp},
    {"Right", kKeyRight},
    {"Down", kKeyDown},
    {"Delete", kKeyDelete},
    {"Back", kKeyBack},
}};
constexpr std::array<NamedKey, 3> kModifiers = {{
    {"Ctrl+", kCtrlKey},
    {"Alt+", kAltKey},
    {"Shift+", kShiftKey},
}};

}  // namespace

std::optional<Key> KeyFrom(std::string_view name)
{
    Key key;
    const auto begun = [&](const NamedKey& known) { return name.starts_with(known.Name); };
    const auto first = [&] { return std::find_if(kModifiers.begin(), kModifiers.end(), begun); };
    for (auto m = first(); m != kModifiers.end(); m = first()) {
        key.Shift = static_cast<std::int16_t>(key.Shift | m->Code);
        name.remove_prefix(m->Name.size());
    }
    const auto found = std::find_if(kKeys.begin(), kKeys.end(),
                                    [&](const NamedKey& known) { return known.Name == name; });
    if (found != kKeys.end()) {
        key.Code = found->Code;
    } else if (name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z') {
        key.Code = static_cast<unsigned char>(name[0]);
    } else {
        return std::nullopt;
    }
    return key;
}

Answer DeliverEvent(std::string_view line)
{
    const Object target = ObjectFrom(CutOff(line, ' '));
    if (!target.Fault().empty()) {
        return Answer(target.Fault());
    }
    const std::string_view name = CutOff(line, ' ');
    const auto event = std::find_if(kEvents.begin(), kEvents.end(),
                                    [&](const EventRow& row) { return row.Name == name; });
    if (event == kEvents.end()) {
        return kUnknownEvent;
    }
    Mouse mouse;
    mouse.Button = event->Button.value_or(0);
    if (!line.empty()) {
        const auto button = NumberFrom<std::int16_t>(line);
        if (!event->Button || !button || *button < 0) {
            return "? bad argument";
        }
        mouse.Button = *button;
    }
    return Deliver(target, *event, mouse);
}

Answer PressKey(std::string_view name)
{
    const auto key = KeyFrom(name);
    if (!key) {
        return "? unknown key";
    }
    Window* const window = App.KeyWindow();
    if (window == nullptr || !App.TakesInput(*window)) {
        return kRefused;
    }
    RouteKey(*window, *key);
    return "";
}

Answer TypeText(std::string_view text)
{
    Window* const window = App.KeyWindow();
    auto* const box = window == nullptr ? nullptr : dynamic_cast<TextBox*>(window->Focus());
    if (box == nullptr || !Reachable(*box) || box->Locked) {
        return kRefused;
    }
    box->Type(text);
    return "";
}

}  // namespace malvone::script
