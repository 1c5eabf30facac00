// Events.cpp: events and keys by name, delivered as a player would cause them, and who may get
// them.
#include <algorithm>
#include <map>

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

Answer ToWindow(Window& window, std::string_view event, const Mouse& mouse)
{
    if (event == "Activate") return Told(RaiseActivate(window));
    if (event == "Close") return Told(RaiseClose(window));
    const bool takes = App.TakesInput(window);
    if (takes) {
        window.Form_MouseMove(mouse);
    }
    return Told(takes);
}

Answer ToControl(Control& control, std::string_view event, const Mouse& mouse)
{
    auto* const timer = dynamic_cast<Timer*>(&control);
    if (event == "Timer") {
        return timer == nullptr ? kUnknownEvent : Told(RaiseTimer(*timer));
    }
    if (event == "Click") {
        return timer != nullptr ? kUnknownEvent : Told(Reachable(control) && RaiseClick(control));
    }
    if (dynamic_cast<Visual*>(&control) == nullptr) {
        return kUnknownEvent;
    }
    const auto& pointed = event == "MouseMove"   ? control.MouseMove
                          : event == "MouseDown" ? control.MouseDown
                                                 : control.MouseUp;
    const bool reachable = Reachable(control);
    if (reachable) {
        pointed.Raise(control.Index(), mouse);
    }
    return Told(reachable);
}

struct EventRow
{
    std::string_view Name;
    bool OfWindows;
    bool OfControls;
    std::optional<std::int16_t> Button = {};  // where the line names none; nothing: no argument
};
constexpr EventRow kEvents[] = {
    {"Click", false, true},
    {"MouseMove", true, true, 0},
    {"MouseDown", false, true, kLeftButton},
    {"MouseUp", false, true, kLeftButton},
    {"Timer", false, true},
    {"Activate", true, false},
    {"Close", true, false},
};

using NamedKeys = std::map<std::string_view, std::int16_t>;
const NamedKeys kKeys = {
    {"Enter", kKeyEnter}, {"Space", kKeySpace}, {"Esc", kKeyEsc},       {"Tab", kKeyTab},
    {"F1", kKeyF1},       {"Left", kKeyLeft},   {"Up", kKeyUp},         {"Right", kKeyRight},
    {"Down", kKeyDown},   {"Back", kKeyBack},   {"Delete", kKeyDelete},
};
const NamedKeys kModifiers = {{"Ctrl", kCtrlKey}, {"Alt", kAltKey}, {"Shift", kShiftKey}};

}  // namespace

std::optional<Key> KeyFrom(std::string_view name)
{
    Key key;
    while (name.find('+') != std::string_view::npos) {
        const auto modifier = kModifiers.find(CutOff(name, '+'));
        if (modifier == kModifiers.end()) {
            return std::nullopt;
        }
        key.Shift = static_cast<std::int16_t>(key.Shift | modifier->second);
    }
    const bool letter = name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z';
    const auto found = kKeys.find(name);
    key.Code = letter                 ? static_cast<unsigned char>(name[0])
               : found != kKeys.end() ? found->second
                                      : std::int16_t{0};
    return key.Code == 0 ? std::nullopt : std::optional(key);
}

Answer DeliverEvent(std::string_view line)
{
    const Object target = ObjectFrom(CutOff(line, ' '));
    if (!target.Fault().empty()) {
        return Answer(target.Fault());
    }
    const std::string_view name = CutOff(line, ' ');
    const bool toWindow = target.Name.empty();
    const auto* const event =
        std::find_if(std::begin(kEvents), std::end(kEvents), [&](const EventRow& row) {
            return row.Name == name && (toWindow ? row.OfWindows : row.OfControls);
        });
    if (event == std::end(kEvents)) {
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
    if (target.Window() == nullptr) {
        return kRefused;
    }
    return toWindow ? ToWindow(*target.Window(), name, mouse)
                    : ToControl(*target.Control(), name, mouse);
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
