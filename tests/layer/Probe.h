// Probe.h: a window with every kind of control, and a binding that tells all it hears, with
// commands of its own for what the scripts of the game do not need.
#pragma once

#include <map>
#include <string>

#include "tests/drehbuch/Commands.h"
#include "tests/drehbuch/Text.h"
#include "tests/support/Game.h"
#include "ui/layer/Instance.h"
#include "ui/layer/PointerRouting.h"

namespace malvone::test {

// The script's binding, with a line for each of its other calls and for each handler of the probe.
class Witness final : public script::Script
{
public:
    using Script::Script;

    // Set by the commands of a hook for the handler that the hook hangs in.
    bool Refused = false;

    // Tells what has happened, and then does what has been hung in there, once.
    void Note(const std::string& what);

    void WindowLoaded(Window& window) override { Note("loaded " + std::string(window.Name())); }
    void WindowChanged(Window& window, Change what) override
    {
        Changed(std::string(window.Name()), what);
    }
    void ControlChanged(Control& control, Change what) override
    {
        Changed(control.FullName(), what);
    }
    void ControlAdded(Control& control) override { Note("added " + control.FullName()); }
    void FocusChanged(Window& window) override
    {
        Note("focus " + (window.Focus() == nullptr ? "none" : window.Focus()->FullName()));
    }

protected:
    std::string Do(std::string_view line) override;

private:
    bool withChanges_ = false;
    std::map<std::string, std::string, std::less<>> hooks_;

    void Changed(const std::string& name, Change what)
    {
        static constexpr const char* kKinds[] = {"Geometry", "Visible",   "Enabled", "Picture",
                                                 "Text",     "Look",      "State",   "Select",
                                                 "Tip",      "Highlight", "Data"};
        if (withChanges_) {
            Note("changed " + name + " " + kKinds[static_cast<int>(what)]);
        }
    }
};

// Tells what a handler of a test window has heard; true where a hook has refused it.
inline bool Heard(const std::string& what)
{
    auto* const witness = dynamic_cast<Witness*>(&App.Screen());
    if (witness == nullptr) {
        return false;
    }
    witness->Refused = false;
    witness->Note(what);
    return std::exchange(witness->Refused, false);
}

inline std::string At(const Mouse& mouse)
{
    return " " + std::to_string(mouse.Button) + " at " + script::TwipsText(mouse.X) + "," +
           script::TwipsText(mouse.Y);
}

// From front to back as declared; the places make them overlap where a test wants it.
class Probe final : public Window
{
public:
    Probe() : Window("probe", 3000, 2000)
    {
        const struct
        {
            Visual& Thing;
            Twips Left, Top, Width, Height;
        } places[] = {
            {kasten, 0, 0, 1000, 1000},       {innen(0), 100, 100, 300, 300},
            {innen(2), 300, 300, 300, 300},   {vorn, 800, 0, 400, 300},
            {hinten, 900, 0, 1000, 600},      {fleck, 2000, 0, 500, 500},
            {strich, 2000, 0, 500, 500},      {unterFleck, 2000, 0, 500, 500},
            {knopf(0), 0, 1200, 500, 200},    {knopf(1), 600, 1200, 500, 200},
            {knopf(3), 3100, 1200, 500, 200}, {feld(0), 0, 1500, 500, 200},
            {feld(1), 600, 1500, 500, 200},   {feld(2), 1200, 1500, 500, 200},
        };
        for (const auto& p : places) {
            p.Thing.Move(p.Left, p.Top, p.Width, p.Height);
        }
        std::int16_t index = 0;
        for (Visual* const thing : std::initializer_list<Visual*>{&knopf(0), &feld(1), &knopf(1),
                                                                  &feld(0), &feld(2), &knopf(3)}) {
            thing->TabIndex = index++;
        }
        knopf(0).Caption = "&Null";
        knopf(1).Caption = "Ei&ns";
        knopf(3).Caption = "&Drei";
        punkt(1).Shortcut = {'N', kCtrlKey};
        punkt(4).Shortcut = {kKeyF1, 0};
        for (Control* const control : Controls()) {
            Listen(*control);
        }
    }
    ~Probe() override { Heard("destroyed"); }

    MenuEntry menu{Named("menu"), nullptr};
    ControlArray<MenuEntry> punkt{Named("punkt"), {1, 4}, &menu};
    Timer uhr{Named("uhr")};
    PictureBox kasten{Named("kasten")};
    ControlArray<Image> innen{Named("innen", &kasten), {2, 0}};
    Label vorn{Named("vorn")};
    Image hinten{Named("hinten")};
    Shape fleck{Named("fleck")};
    Line strich{Named("strich")};
    Image unterFleck{Named("unterFleck")};
    ControlArray<CommandButton> knopf{Named("knopf"), {0, 1, 3}};
    ControlArray<TextBox> feld{Named("feld"), {0, 1, 2}};
    ListBox liste{Named("liste")};

    void Form_Load() override { Heard("Form_Load"); }
    void Form_Activate() override { Heard("Form_Activate"); }
    void Form_Unload() override { Heard("Form_Unload"); }
    void Form_KeyDown(std::int16_t& KeyCode, std::int16_t Shift) override
    {
        if (Heard("key " + std::to_string(KeyCode) + "/" + std::to_string(Shift))) {
            KeyCode = 0;
        }
    }
    void Form_QueryUnload(std::int16_t& Cancel, UnloadMode mode) override
    {
        if (Heard("Form_QueryUnload " + std::to_string(static_cast<int>(mode)))) {
            Cancel = -1;
        }
    }
    void Form_MouseMove(const Mouse& mouse) override { Heard("move window" + At(mouse)); }

private:
    static void Listen(Control& control)
    {
        const auto named = [&control](const char* what, std::int16_t index) {
            return what + std::string(control.Name()) +
                   (index < 0 ? "" : "(" + std::to_string(index) + ")");
        };
        control.Click = [named](std::int16_t i) { Heard(named("click ", i)); };
        control.MouseDown = [named](std::int16_t i, const Mouse& mouse) {
            Heard(named("down ", i) + At(mouse));
        };
        control.MouseUp = [named](std::int16_t i, const Mouse& mouse) {
            Heard(named("up ", i) + At(mouse));
        };
        control.MouseMove = [named](std::int16_t i, const Mouse& mouse) {
            Heard(named("move ", i) + At(mouse));
        };
        if (auto* const timer = dynamic_cast<Timer*>(&control)) {
            timer->Tick = [named](std::int16_t i) { Heard(named("tick ", i)); };
        }
    }
};

class OtherWindow final : public Window
{
public:
    OtherWindow() : Window("nebenfenster", 1000, 1000) { bild.Move(0, 0, 1000, 1000); }

    Image bild{Named("bild")};
};

inline Instance<Probe> probe{"probe"};
inline Instance<OtherWindow> nebenfenster{"nebenfenster"};

}  // namespace malvone::test
