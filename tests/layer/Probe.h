// Probe.h: a window with every kind of control, whose handlers tell what they hear.
#pragma once

#include <functional>
#include <string>

#include "tests/drehbuch/Text.h"
#include "tests/support/Game.h"
#include "ui/layer/Instance.h"

namespace malvone::test {

// What a handler has heard; true where the test has refused it.
inline std::function<bool(const std::string&)> Heard;

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
            {panel, 0, 0, 1000, 1000},         {inner(0), 100, 100, 300, 300},
            {inner(2), 300, 300, 300, 300},    {front, 800, 0, 400, 300},
            {back, 900, 0, 1000, 600},         {spot, 2000, 0, 500, 500},
            {line, 2000, 0, 500, 500},         {below, 2000, 0, 500, 500},
            {button(0), 0, 1200, 500, 200},    {button(1), 600, 1200, 500, 200},
            {button(3), 3100, 1200, 500, 200}, {box(0), 0, 1500, 500, 200},
            {box(1), 600, 1500, 500, 200},     {box(2), 1200, 1500, 500, 200},
        };
        for (const auto& p : places) {
            p.Thing.Move(p.Left, p.Top, p.Width, p.Height);
        }
        std::int16_t index = 0;
        for (Visual* const thing : std::initializer_list<Visual*>{&button(0), &box(1), &button(1),
                                                                  &box(0), &box(2), &button(3)}) {
            thing->TabIndex = index++;
        }
        button(0).Caption = "&Zero";
        button(1).Caption = "O&ne";
        button(3).Caption = "&Three";
        entry(1).Shortcut = {'N', kCtrlKey};
        entry(4).Shortcut = {kKeyF1, 0};
        for (Control* const control : Controls()) {
            Listen(*control);
        }
    }
    ~Probe() override { Heard("destroyed"); }

    MenuEntry menu{Named("menu"), nullptr};
    ControlArray<MenuEntry> entry{Named("entry"), {1, 4}, &menu};
    Timer clock{Named("clock")};
    PictureBox panel{Named("panel")};
    ControlArray<Image> inner{Named("inner", &panel), {2, 0}};
    Label front{Named("front")};
    Image back{Named("back")};
    Shape spot{Named("spot")};
    Line line{Named("line")};
    Image below{Named("below")};
    ControlArray<CommandButton> button{Named("button"), {0, 1, 3}};
    ControlArray<TextBox> box{Named("box"), {0, 1, 2}};
    ListBox list{Named("list")};

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
        // Elements of an array share their events.
        const auto tells = [name = std::string(control.Name())](const std::string& what) {
            return [what = what + name](std::int16_t i, const auto&... mouse) {
                Heard((what + (i < 0 ? "" : "(" + std::to_string(i) + ")") + ... + At(mouse)));
            };
        };
        control.Click = tells("click ");
        control.MouseDown = tells("down ");
        control.MouseUp = tells("up ");
        control.MouseMove = tells("move ");
        if (auto* const timer = dynamic_cast<Timer*>(&control)) {
            timer->Tick = tells("tick ");
        }
    }
};

class OtherWindow final : public Window
{
public:
    OtherWindow() : Window("other", 1000, 1000) { picture.Move(0, 0, 1000, 1000); }

    Image picture{Named("picture")};
    TextBox box{Named("box")};
};

inline Instance<Probe> probe{"probe"};
inline Instance<OtherWindow> other{"other"};

}  // namespace malvone::test
