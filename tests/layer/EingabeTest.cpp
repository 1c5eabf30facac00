// EingabeTest.cpp: which control gets the pointer, and which way a key takes.
#include <gtest/gtest.h>

#include "tests/layer/Probe.h"
#include "ui/layer/PointerRouting.h"

namespace malvone {
namespace {

std::string NameVon(const Control* control)
{
    return control == nullptr ? "window" : control->FullName();
}

TEST(Zeiger, FindsTheFrontmostVisibleControl)
{
    const GezeigteProbe schicht;
    const struct
    {
        Twips X, Y;
        const char* Oben;
    } cases[] = {
        {50, 50, "kasten"},        {150, 150, "innen(0)"},
        {350, 350, "innen(2)"},  // declared before innen(0), so it lies in front
        {599, 599, "innen(2)"},    {600, 600, "kasten"},
        {999, 999, "kasten"},      {850, 50, "kasten"},  // the container lies before the label
        {1050, 50, "vorn"},        {1250, 50, "hinten"},
        {1050, 350, "hinten"},     {1900, 50, "window"},
        {2100, 100, "unterFleck"},  // shapes and lines are looked through
        {2600, 1800, "window"},    {-1, 50, "window"},
        {50, 1000, "window"},      {50, 1250, "knopf(0)"},
        {3150, 1250, "window"},  // beside the designed client area
    };
    for (const auto& c : cases) {
        EXPECT_EQ(NameVon(ControlAt(*probe, c.X, c.Y)), c.Oben) << c.X << "," << c.Y;
    }
    probe->innen(2).Visible = false;
    EXPECT_EQ(NameVon(ControlAt(*probe, 350, 350)), "innen(0)");
    probe->innen(0).Enabled = false;
    EXPECT_EQ(NameVon(ControlAt(*probe, 350, 350)), "innen(0)") << "disabled ones still cover";
    probe->kasten.Visible = false;
    EXPECT_EQ(NameVon(ControlAt(*probe, 350, 350)), "window") << "a container hides its children";
    EXPECT_EQ(NameVon(ControlAt(*probe, 850, 50)), "vorn");
    Image& neu = probe->innen.Load(7);
    neu.Visible = true;
    probe->kasten.Visible = true;
    neu.Move(700, 700);
    EXPECT_EQ(NameVon(ControlAt(*probe, 750, 750)), "innen(7)") << "made at run time";
}

struct Schritt
{
    char Was;  // 'd' down, 'm' move, 'u' up
    std::int16_t Taste;
    Twips X, Y;
};

TEST(Zeiger, PressKeepsThePointerUntilRelease)
{
    const struct
    {
        const char* Name;
        std::vector<Schritt> Schritte;
        Verlauf Erwartet;
    } cases[] = {
        {"click",
         {{'m', 0, 1050, 50}, {'d', 1, 1050, 50}, {'u', 1, 1060, 60}},
         {"move vorn 0 at 250,50", "down vorn 1 at 250,50", "up vorn 1 at 260,60", "click vorn"}},
        {"places are those within the control, containers counted in",
         {{'m', 0, 350, 360}, {'d', 1, 150, 160}, {'u', 1, 150, 160}},
         {"move innen(2) 0 at 50,60", "down innen(0) 1 at 50,60", "up innen(0) 1 at 50,60",
          "click innen(0)"}},
        {"moves, release and no click go to the pressed control that the pointer has left, and "
         "what "
         "lies under it hears of a movement",
         {{'d', 1, 1050, 50}, {'m', 1, 350, 350}, {'u', 1, 350, 350}},
         {"down vorn 1 at 250,50", "move vorn 1 at -450,350", "up vorn 1 at -450,350",
          "move innen(2) 0 at 50,50"}},
        {"back again before the release clicks",
         {{'d', 1, 1050, 50}, {'m', 1, 2600, 1800}, {'u', 1, 1051, 51}},
         {"down vorn 1 at 250,50", "move vorn 1 at 1800,1800", "up vorn 1 at 251,51",
          "click vorn"}},
        {"the right button presses and does not click",
         {{'d', 2, 1050, 50}, {'u', 2, 1250, 50}},
         {"down vorn 2 at 250,50", "up vorn 2 at 450,50", "move hinten 0 at 350,50"}},
        {"the middle button presses and does not click",
         {{'d', 4, 1050, 50}, {'u', 4, 1050, 50}},
         {"down vorn 4 at 250,50", "up vorn 4 at 250,50"}},
        {"a second button goes to the pressed control",
         {{'d', 1, 1050, 50}, {'d', 2, 350, 350}, {'u', 1, 1050, 50}},
         {"down vorn 1 at 250,50", "down vorn 2 at -450,350", "up vorn 1 at 250,50", "click vorn"}},
        {"the window's own surface gets moves",
         {{'m', 0, 2600, 1800}, {'m', 1, 2601, 1801}},
         {"move window 0 at 2600,1800", "move window 1 at 2601,1801"}},
        {"a press on the surface clicks nothing where it is released",
         {{'d', 1, 2600, 1800}, {'u', 1, 1050, 50}},
         {"move vorn 0 at 250,50"}},
        {"the surface keeps the pointer too, however fast it leaves",
         {{'d', 1, 2600, 1800}, {'m', 1, 1050, 50}, {'u', 1, -70, 50}},
         {"move window 1 at 1050,50"}},
        {"beside the designed area nothing is pressed and nothing hears of a movement",
         {{'m', 0, 3150, 1250}, {'d', 1, 3150, 1250}, {'u', 1, 1050, 50}},
         {}},
        {"a release without a press", {{'u', 1, 1050, 50}}, {}},
    };
    for (const auto& c : cases) {
        const GezeigteProbe schicht;
        for (const Schritt& s : c.Schritte) {
            const Mouse maus{s.Taste, 0, s.X, s.Y};
            switch (s.Was) {
            case 'd': PointerPressed(*probe, maus); break;
            case 'm': PointerMoved(*probe, maus); break;
            default: PointerReleased(*probe, maus);
            }
        }
        EXPECT_EQ(NotizenSeitdem(), c.Erwartet) << c.Name;
        EXPECT_EQ(!probe->Pressed, c.Schritte.back().Was != 'd') << c.Name;
    }
}

TEST(Zeiger, DisabledControlSwallowsItAndAHiddenOneNeverClicks)
{
    const GezeigteProbe schicht;
    const Mouse maus{kLeftButton, 0, 1050, 50};
    probe->vorn.Enabled = false;
    PointerMoved(*probe, maus);
    PointerPressed(*probe, maus);
    PointerReleased(*probe, maus);
    EXPECT_EQ(NotizenSeitdem(), Verlauf{});

    probe->vorn.Enabled = true;
    probe->BeiDruck = [] { probe->vorn.Visible = false; };
    PointerPressed(*probe, maus);
    PointerReleased(*probe, maus);
    EXPECT_EQ(NotizenSeitdem(),
              (Verlauf{"down vorn 1 at 250,50", "up vorn 1 at 250,50", "move hinten 0 at 150,50"}));
    EXPECT_FALSE(RaiseClick(probe->vorn));
}

TEST(Tasten, StationsOfAKeyFromTheHandlerToTheFocus)
{
    const struct
    {
        const char* Name;
        std::function<void()> Vorher;
        Key Taste;
        bool Genommen;
        Verlauf Erwartet;
    } cases[] = {
        {"the handler sees it first and may take it",
         [] { probe->BeiTaste = [](std::int16_t& KeyCode) { KeyCode = 0; }; },
         {'N', kCtrlKey},
         true,
         {"key 78/2"}},
        {"then the shortcut", [] {}, {'N', kCtrlKey}, true, {"key 78/2", "click punkt(1)"}},
        {"with its very modifiers", [] {}, {'N', kCtrlKey | kShiftKey}, false, {"key 78/3"}},
        {"not of a disabled entry",
         [] { probe->punkt(1).Enabled = false; },
         {'N', kCtrlKey},
         false,
         {"key 78/2"}},
        {"not of an entry below a disabled one",
         [] { probe->menu.Enabled = false; },
         {'N', kCtrlKey},
         false,
         {"key 78/2"}},
        {"then access keys, the frontmost first",
         [] {},
         {'N', kAltKey},
         true,
         {"key 78/4", "click knopf(0)"}},
        {"of visible buttons",
         [] { probe->knopf(0).Visible = false; },
         {'N', kAltKey},
         true,
         {"key 78/4", "click knopf(1)"}},
        {"of enabled buttons",
         [] {
             probe->knopf(0).Enabled = false;
             probe->knopf(1).Visible = false;
         },
         {'N', kAltKey},
         false,
         {"key 78/4"}},
        {"wherever they lie", [] {}, {'D', kAltKey}, true, {"key 68/4", "click knopf(3)"}},
        {"only with Alt alone", [] {}, {'D', kAltKey | kCtrlKey}, false, {"key 68/6"}},
        {"a letter alone is nobody's", [] {}, {'D', 0}, false, {"key 68/0"}},
        {"Enter goes to the default button, whoever has the focus",
         [] {
             probe->knopf(1).Default = true;
             probe->SetFocus(&probe->knopf(0));
         },
         {kKeyEnter, 0},
         true,
         {"key 13/0", "click knopf(1)"}},
        {"Enter without a default button",
         [] { probe->SetFocus(&probe->knopf(0)); },
         {kKeyEnter, 0},
         false,
         {"key 13/0"}},
        {"Enter with Alt is not Enter",
         [] { probe->knopf(1).Default = true; },
         {kKeyEnter, kAltKey},
         false,
         {"key 13/4"}},
        {"Space goes to the button with the focus",
         [] { probe->SetFocus(&probe->knopf(0)); },
         {kKeySpace, 0},
         true,
         {"key 32/0", "click knopf(0)"}},
        {"Space in a text box stays there",
         [] { probe->SetFocus(&probe->feld(0)); },
         {kKeySpace, 0},
         false,
         {"key 32/0"}},
        {"a handler that unloads the window ends the way",
         [] { probe->BeiTaste = [](std::int16_t&) { probe->Unload(); }; },
         {'N', kCtrlKey},
         true,
         {"key 78/2", "Form_QueryUnload 1", "Form_Unload", "unloaded probe", "destroyed"}},
        {"a handler that hides it does too",
         [] { probe->BeiTaste = [](std::int16_t&) { probe->Hide(); }; },
         {kKeyF1, 0},
         true,
         {"key 112/0", "hidden probe"}},
    };
    for (const auto& c : cases) {
        const GezeigteProbe schicht;
        c.Vorher();
        EXPECT_EQ(RouteKey(*probe, c.Taste), c.Genommen) << c.Name;
        EXPECT_EQ(NotizenSeitdem(), c.Erwartet) << c.Name;
    }
}

TEST(Tasten, TabGoesRoundWhatTheWindowShows)
{
    const GezeigteProbe schicht;
    probe->feld(2).TabStop = false;
    const char* const runde[] = {"knopf(0)", "feld(1)", "knopf(1)", "feld(0)", "knopf(0)"};
    for (const char* const naechster : runde) {
        EXPECT_TRUE(RouteKey(*probe, {kKeyTab, 0}));
        EXPECT_EQ(NameVon(probe->Focus()), naechster);
    }
    for (const char* const naechster : {"feld(0)", "knopf(1)"}) {
        EXPECT_TRUE(RouteKey(*probe, {kKeyTab, kShiftKey}));
        EXPECT_EQ(NameVon(probe->Focus()), naechster);
    }
    probe->feld(1).Enabled = false;
    probe->knopf(0).Visible = false;
    for (const char* const naechster : {"feld(0)", "knopf(1)"}) {
        RouteKey(*probe, {kKeyTab, 0});
        EXPECT_EQ(NameVon(probe->Focus()), naechster);
    }
    EXPECT_FALSE(RouteKey(*probe, {kKeyTab, kCtrlKey}));
    for (const int i : {0, 1, 2}) {
        probe->feld(i).TabStop = false;
    }
    probe->knopf(1).TabStop = false;
    EXPECT_TRUE(RouteKey(*probe, {kKeyTab, 0}));
    EXPECT_EQ(NameVon(probe->Focus()), "knopf(1)") << "no stop is left";
}

TEST(Tasten, DefaultButtonHasTheFocusFromTheStart)
{
    const Schicht schicht;
    probe->knopf(1).Default = true;
    EXPECT_EQ(probe->Focus(), nullptr);
    probe->Show();
    EXPECT_EQ(NameVon(probe->Focus()), "knopf(1)");
    probe->SetFocus(&probe->feld(0));
    probe->Show();
    EXPECT_EQ(NameVon(probe->Focus()), "feld(0)") << "shown again, it keeps the focus";
}

}  // namespace
}  // namespace malvone
