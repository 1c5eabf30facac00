// Probe.h: a window with every kind of control, and a binding that writes down what it is told.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/StilleBindung.h"

namespace malvone {

// What the binding was told and which handlers have run, in one order.
inline Verlauf Notizen;

inline Verlauf NotizenSeitdem()
{
    return std::exchange(Notizen, {});
}

inline constexpr PictureInfo kKlein{"klein", 10, 20};
inline constexpr PictureInfo kGross{"gross", 100, 50};

// From front to back as declared; the places make them overlap where a test wants it.
class Probe final : public Window
{
public:
    Probe() : Window("probe", 3000, 2000)
    {
        const struct
        {
            Visual& Ding;
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
            p.Ding.Move(p.Left, p.Top, p.Width, p.Height);
        }
        std::int16_t platz = 0;
        for (Visual* const ding :
             {static_cast<Visual*>(&knopf(0)), static_cast<Visual*>(&feld(1)),
              static_cast<Visual*>(&knopf(1)), static_cast<Visual*>(&feld(0)),
              static_cast<Visual*>(&feld(2)), static_cast<Visual*>(&knopf(3))}) {
            ding->TabIndex = platz++;
        }
        knopf(0).Caption = "&Null";
        knopf(1).Caption = "Ei&ns";
        knopf(3).Caption = "&Drei";
        punkt(1).Shortcut = {'N', kCtrlKey};
        punkt(4).Shortcut = {kKeyF1, 0};
        for (Control* const control : Controls()) {
            Mithoeren(*control);
        }
    }
    ~Probe() override { Notizen.emplace_back("destroyed"); }

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

    // What a test hangs in.
    std::function<void(std::int16_t&)> BeiTaste;
    std::function<void(std::int16_t&)> BeiFrage;
    std::function<void()> BeiKlick;
    std::function<void()> BeiDruck;

    void Form_Load() override { Notizen.emplace_back("Form_Load"); }
    void Form_Activate() override { Notizen.emplace_back("Form_Activate"); }
    void Form_Unload() override { Notizen.emplace_back("Form_Unload"); }
    void Form_KeyDown(std::int16_t& KeyCode, std::int16_t Shift) override
    {
        Notizen.push_back("key " + std::to_string(KeyCode) + "/" + std::to_string(Shift));
        if (BeiTaste) {
            BeiTaste(KeyCode);
        }
    }
    void Form_QueryUnload(std::int16_t& Cancel, UnloadMode mode) override
    {
        Notizen.push_back("Form_QueryUnload " + std::to_string(static_cast<int>(mode)));
        if (BeiFrage) {
            BeiFrage(Cancel);
        }
    }
    void Form_MouseMove(const Mouse& mouse) override { MausNotieren("move window", mouse); }

private:
    static void MausNotieren(const std::string& was, const Mouse& mouse)
    {
        Notizen.push_back(was + " " + std::to_string(mouse.Button) + " at " +
                          std::to_string(static_cast<int>(mouse.X)) + "," +
                          std::to_string(static_cast<int>(mouse.Y)));
    }
    void Mithoeren(Control& control)
    {
        const auto name = [&control](std::int16_t index) {
            return std::string(control.Name()) +
                   (index < 0 ? "" : "(" + std::to_string(index) + ")");
        };
        control.Click = [this, name](std::int16_t index) {
            Notizen.push_back("click " + name(index));
            if (BeiKlick) {
                BeiKlick();
            }
        };
        control.MouseDown = [this, name](std::int16_t index, const Mouse& mouse) {
            MausNotieren("down " + name(index), mouse);
            if (BeiDruck) {
                BeiDruck();
            }
        };
        control.MouseUp = [name](std::int16_t index, const Mouse& mouse) {
            MausNotieren("up " + name(index), mouse);
        };
        control.MouseMove = [name](std::int16_t index, const Mouse& mouse) {
            MausNotieren("move " + name(index), mouse);
        };
        if (auto* const timer = dynamic_cast<Timer*>(&control)) {
            timer->Tick = [name](std::int16_t index) { Notizen.push_back("tick " + name(index)); };
        }
    }
};

class Nebenfenster final : public Window
{
public:
    Nebenfenster() : Window("nebenfenster", 1000, 1000) { bild.Move(0, 0, 1000, 1000); }

    Image bild{Named("bild")};
    Timer uhr{Named("uhr")};
};

inline Instance<Probe> probe{"probe"};
inline Instance<Nebenfenster> nebenfenster{"nebenfenster"};

class Mitschrift final : public Binding
{
public:
    std::deque<std::function<void(Window&)>> Antworten;
    bool MitAenderungen = false;

    Twips ScreenWidth() override { return 1600; }
    Twips ScreenHeight() override { return 1200; }
    void WindowLoaded(Window& window) override { Notieren("loaded", window); }
    void WindowShown(Window& window, ShowMode mode) override
    {
        Notieren(mode == ShowMode::Modal ? "shown modal" : "shown", window);
    }
    void WindowHidden(Window& window) override { Notieren("hidden", window); }
    void WindowUnloaded(Window& window) override { Notieren("unloaded", window); }
    void WindowChanged(Window& window, Change what) override
    {
        Aenderung(std::string(window.Name()), what);
    }
    void ControlChanged(Control& control, Change what) override
    {
        Aenderung(control.FullName(), what);
    }
    void ControlAdded(Control& control) override
    {
        if (MitAenderungen) {
            Notizen.push_back("added " + control.FullName());
        }
    }
    void FocusChanged(Window& window) override
    {
        if (MitAenderungen) {
            Notizen.push_back("focus " +
                              (window.Focus() == nullptr ? "none" : window.Focus()->FullName()));
        }
    }
    // Without an answer the window is hidden.
    void RunModal(Window& window) override
    {
        if (Antworten.empty()) {
            window.Hide();
            return;
        }
        const auto antwort = std::move(Antworten.front());
        Antworten.pop_front();
        antwort(window);
    }
    void DragWindow(Window& window) override { Notieren("drag", window); }
    void Ended() override { Notizen.emplace_back("ended"); }

private:
    static void Notieren(const std::string& was, const Window& window)
    {
        Notizen.push_back(was + " " + std::string(window.Name()));
    }
    void Aenderung(const std::string& name, Change what)
    {
        static constexpr const char* kArten[] = {"Geometry", "Visible", "Enabled", "Picture",
                                                 "Text",     "Look",    "State",   "Select",
                                                 "Tip",      "Place",   "Data"};
        if (MitAenderungen) {
            Notizen.push_back("changed " + name + " " + kArten[static_cast<int>(what)]);
        }
    }
};

// The layer alone, with nothing loaded.
struct Schicht
{
    Testordner Ordner;
    Mitschrift Bindung;
    Verlauf Gehoertes;
    TestPlattform Plattform{Ordner.Pfad, Ordner.Pfad, Gehoertes};

    Schicht()
    {
        App.Begin(Bindung, Plattform);
        Notizen.clear();
    }
    ~Schicht() { App.Finish(); }
    Schicht(const Schicht&) = delete;
    Schicht& operator=(const Schicht&) = delete;
};

// The same with the probe on the screen.
struct GezeigteProbe : Schicht
{
    GezeigteProbe()
    {
        probe->Show();
        Notizen.clear();
    }
};

}  // namespace malvone
