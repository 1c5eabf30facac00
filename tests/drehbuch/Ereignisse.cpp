// Ereignisse.cpp: the tables of events and keys, and who may get them.
#include "tests/drehbuch/Ereignisse.h"

#include <algorithm>
#include <array>

#include "tests/drehbuch/Texte.h"
#include "ui/layer/App.h"

namespace malvone {
namespace {

// The cells of the board are copies of element 0, which itself takes no input whatever its state.
constexpr std::string_view kVorlage = "imgFeld(0)";

Zustellung Berichtet(bool delivered)
{
    return delivered ? Zustellung::Angekommen : Zustellung::Abgelehnt;
}

bool Erreichbar(const Control& control)
{
    return App.TakesInput(control.Owner()) && control.Reachable() && control.FullName() != kVorlage;
}

Zustellung Klicken(Control& control, const Mouse&)
{
    if (dynamic_cast<Timer*>(&control) != nullptr) {
        return Zustellung::Unbekannt;
    }
    return Berichtet(Erreichbar(control) && RaiseClick(control));
}

Zustellung Ticken(Control& control, const Mouse&)
{
    auto* const timer = dynamic_cast<Timer*>(&control);
    return timer == nullptr ? Zustellung::Unbekannt : Berichtet(RaiseTimer(*timer));
}

template<class Choose>
Zustellung Zeigen(Control& control, const Mouse& mouse, Choose event)
{
    if (dynamic_cast<Visual*>(&control) == nullptr) {
        return Zustellung::Unbekannt;
    }
    if (!Erreichbar(control)) {
        return Zustellung::Abgelehnt;
    }
    event(control).Raise(control.Index(), mouse);
    return Zustellung::Angekommen;
}

Zustellung Bewegen(Control& control, const Mouse& mouse)
{
    return Zeigen(
        control, mouse, [](Control & c) -> auto& { return c.MouseMove; });
}
Zustellung Niederdruecken(Control& control, const Mouse& mouse)
{
    return Zeigen(
        control, mouse, [](Control & c) -> auto& { return c.MouseDown; });
}
Zustellung Loslassen(Control& control, const Mouse& mouse)
{
    return Zeigen(
        control, mouse, [](Control & c) -> auto& { return c.MouseUp; });
}

Zustellung FensterAktivieren(Window& window, const Mouse&)
{
    return Berichtet(RaiseActivate(window));
}
Zustellung FensterSchliessen(Window& window, const Mouse&)
{
    return Berichtet(RaiseClose(window));
}
Zustellung FensterBewegen(Window& window, const Mouse& mouse)
{
    if (!App.TakesInput(window)) {
        return Zustellung::Abgelehnt;
    }
    window.Form_MouseMove(mouse);
    return Zustellung::Angekommen;
}

struct Ereignis
{
    std::string_view Name;
    std::optional<std::int16_t> Taste;  // mouse button where the line names none; none: no argument
    Zustellung (*AmFenster)(Window&, const Mouse&);
    Zustellung (*AmSteuerelement)(Control&, const Mouse&);
};

constexpr std::array<Ereignis, 7> kEreignisse = {{
    {"Click", std::nullopt, nullptr, &Klicken},
    {"MouseMove", 0, &FensterBewegen, &Bewegen},
    {"MouseDown", kLeftButton, nullptr, &Niederdruecken},
    {"MouseUp", kLeftButton, nullptr, &Loslassen},
    {"Timer", std::nullopt, nullptr, &Ticken},
    {"Activate", std::nullopt, &FensterAktivieren, nullptr},
    {"Close", std::nullopt, &FensterSchliessen, nullptr},
}};

Zustellung AnObjekt(const Objekt& target, const Ereignis& event, const Mouse& mouse)
{
    if (target.Name.empty() ? event.AmFenster == nullptr : event.AmSteuerelement == nullptr) {
        return Zustellung::Unbekannt;
    }
    if (target.Fenster() == nullptr) {
        return Zustellung::Abgelehnt;
    }
    return target.Name.empty() ? event.AmFenster(*target.Fenster(), mouse)
                               : event.AmSteuerelement(*target.Steuerelement(), mouse);
}

struct BenannteTaste
{
    std::string_view Name;
    std::int16_t Code;
};
constexpr std::array<BenannteTaste, 5> kTasten = {{
    {"Enter", kKeyEnter},
    {"Space", kKeySpace},
    {"Esc", kKeyEsc},
    {"Tab", kKeyTab},
    {"F1", kKeyF1},
}};
constexpr std::array<BenannteTaste, 3> kUmschalter = {{
    {"Ctrl+", kCtrlKey},
    {"Alt+", kAltKey},
    {"Shift+", kShiftKey},
}};

std::optional<Key> TasteAus(std::string_view name)
{
    Key key;
    for (bool again = true; again;) {
        again = false;
        for (const BenannteTaste& modifier : kUmschalter) {
            if (name.starts_with(modifier.Name)) {
                key.Shift = static_cast<std::int16_t>(key.Shift | modifier.Code);
                name.remove_prefix(modifier.Name.size());
                again = true;
            }
        }
    }
    const auto found = std::find_if(kTasten.begin(), kTasten.end(),
                                    [&](const BenannteTaste& known) { return known.Name == name; });
    if (found != kTasten.end()) {
        key.Code = found->Code;
    } else if (name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z') {
        key.Code = static_cast<unsigned char>(name[0]);
    } else {
        return std::nullopt;
    }
    return key;
}

// Keys go to the topmost modal window, else to the main window.
Window* TastenFenster()
{
    if (App.TopModal() != nullptr) {
        return App.TopModal();
    }
    InstanceBase* const main = InstanceBase::Find("frmTessel");
    return main == nullptr ? nullptr : main->Current();
}

}  // namespace

Zustellbericht EreignisZustellen(std::string_view line)
{
    const Objekt target = ObjektAus(Abschneiden(line, ' '));
    if (const auto fault = target.Fehler()) {
        return {Zustellung::Unbekannt, *fault};
    }
    const std::string_view name = Abschneiden(line, ' ');
    const auto event = std::find_if(kEreignisse.begin(), kEreignisse.end(),
                                    [&](const Ereignis& known) { return known.Name == name; });
    if (event == kEreignisse.end()) {
        return {Zustellung::Unbekannt, "unknown event"};
    }
    Mouse mouse;
    mouse.Button = event->Taste.value_or(0);
    if (!line.empty()) {
        const auto button = ZahlAus<std::int16_t>(line);
        if (!event->Taste || !button || *button < 0) {
            return {Zustellung::Unbekannt, "bad argument"};
        }
        mouse.Button = *button;
    }
    return {AnObjekt(target, *event, mouse), "unknown event"};
}

Zustellbericht TasteDruecken(std::string_view name)
{
    const auto key = TasteAus(name);
    if (!key) {
        return {Zustellung::Unbekannt, "unknown key"};
    }
    Window* const window = TastenFenster();
    if (window == nullptr || !App.TakesInput(*window)) {
        return {Zustellung::Abgelehnt};
    }
    RouteKey(*window, *key);
    return {};
}

Zustellbericht TextTippen(std::string_view text)
{
    Window* const window = TastenFenster();
    auto* const box = window == nullptr ? nullptr : dynamic_cast<TextBox*>(window->Focus());
    if (box == nullptr || !Erreichbar(*box) || box->Locked) {
        return {Zustellung::Abgelehnt};
    }
    box->Type(text);
    return {};
}

}  // namespace malvone
