// LayerTest.cpp: plays the layer by the script beside it, and checks what no transcript can show.
#include <gtest/gtest.h>

#include <map>

#include "tests/drehbuch/Commands.h"
#include "tests/layer/Probe.h"
#include "ui/layer/PointerRouting.h"

namespace malvone::test {
namespace {

// The script's binding with a line for each thing that the probe hears, and with commands for what
// the scripts of the game do not need.
class Witness final : public script::Script
{
public:
    Witness(std::istream& in, std::ostream& out) : Script(in, out)
    {
        Heard = [this](const std::string& what) { return Note(what); };
    }
    ~Witness() override
    {
        Heard = [](const std::string&) { return false; };
    }

    std::map<std::pair<std::string, Change>, int> Told;  // how often a control has told a change

    void WindowChanged(Window& window, Change what) override
    {
        ++Told[{std::string(window.Name()), what}];
        Script::WindowChanged(window, what);
    }
    void ControlChanged(Control& control, Change what) override
    {
        ++Told[{control.FullName(), what}];
        Script::ControlChanged(control, what);
    }

protected:
    std::string Do(std::string_view line) override;

private:
    bool quiet_ = false;
    bool refused_ = false;
    std::map<std::string, std::string, std::less<>> hooks_;

    // Reports what has happened, and then runs the hook for it, once.
    bool Note(const std::string& what)
    {
        if (quiet_) {
            return false;
        }
        Tell("! " + what);
        refused_ = false;
        for (auto hook = hooks_.begin(); hook != hooks_.end(); ++hook) {
            if (what.starts_with(hook->first)) {
                const std::string command = hook->second;
                hooks_.erase(hook);
                Tell(Do(command));
                break;
            }
        }
        return std::exchange(refused_, false);
    }
    void WindowShown(Window& window, ShowMode mode) override
    {
        if (!quiet_) {
            Script::WindowShown(window, mode);
        }
    }
    // Everything begins anew; the probe is shown, and nothing is reported.
    void BeginAnew(bool shown)
    {
        quiet_ = true;
        hooks_.clear();
        App.Begin(*this, App.System());
        TellChanges();
        if (shown) {
            probe->Show();
        }
        quiet_ = false;
    }
};

std::string NameOf(const Control* control)
{
    return control == nullptr ? "window" : control->FullName();
}

// A letter for each 100 twips, in the order of the names below; a point for the window.
std::string Map()
{
    std::string map = "=";
    for (int y = -1; y <= 20; ++y) {
        map += "\n  ";
        for (int x = -1; x <= 30; ++x) {
            const std::string name =
                NameOf(ControlAt(*probe, static_cast<Twips>(100 * x), static_cast<Twips>(100 * y)));
            map += name == "window" ? '.' : name.ends_with(')') ? name[name.size() - 2] : name[0];
        }
    }
    return map;
}

std::string Witness::Do(std::string_view line)
{
    const std::string_view whole = line;
    const std::string name(script::CutOff(line, ' '));
    const auto told = [](bool done) { return done ? "" : "refused"; };
    InstanceBase* const instance = InstanceBase::Find(line);
    Mouse mouse;
    std::istringstream{std::string(line)} >> mouse.Button >> mouse.X >> mouse.Y;
    if (name == "new") return BeginAnew(false), "";
    if (name == "fresh") return BeginAnew(true), "";
    if (name == "show") return instance->Touch().Show(), "";
    if (name == "modal") return instance->Touch().Show(ShowMode::Modal), "";
    if (name == "hide") return instance->Touch().Hide(), "";
    if (name == "unload") return told(instance->Touch().Unload());
    if (name == "close") return told(RaiseClose(instance->Touch()));
    if (name == "activate") return told(RaiseActivate(instance->Touch()));
    if (name == "down") return PointerPressed(*probe, mouse), "";
    if (name == "move") return PointerMoved(*probe, mouse), "";
    if (name == "up") return PointerReleased(*probe, mouse), "";
    if (name == "finger") return FingerPressed(*probe, mouse), "";
    if (name == "drag") return probe->Drag(), "";
    if (name == "map") return Map();
    if (name == "press") return RouteKey(*probe, *script::KeyFrom(line)) ? "= taken" : "= left";
    if (name == "focus") {
        probe->SetFocus(dynamic_cast<Visual*>(probe->Find(line)));
        return "";
    }
    if (name == "element") return probe->inner.Load(mouse.Button), "";
    if (name == "copy") {
        probe->inner(2).Picture = probe->inner(0).Picture;
        probe->button(1).Caption = probe->front.Caption;
        return "";
    }
    if (name == "typing") {  // "START LENGTH OLD|TYPED"
        TextBox& box = other->box;
        box.SelStart = std::stoi(std::string(script::CutOff(line, ' ')));
        box.SelLength = std::stoi(std::string(script::CutOff(line, ' ')));
        box.Text = std::string(script::CutOff(line, '|'));
        box.Type(script::Unmasked(line));
        return "= " + box.Text.Get() + " " + std::to_string(box.SelStart) + " " +
               std::to_string(box.SelLength);
    }
    if (name == "item") return probe->list.AddItem(std::string(line)), "";
    if (name == "clear") return probe->list.Clear(), "";
    if (name == "on") {  // "on EVENT = COMMAND"
        const std::size_t cut = line.find(" = ");
        hooks_[std::string(line.substr(0, cut))] = line.substr(cut + 3);
        return "";
    }
    if (name == "refuse") return refused_ = true, "";
    if (name == "end") return App.Ende(), App.Ende(), "";
    if (name == "arrows") {
        probe->front.ByArrows = probe->back.ByArrows = true;
        probe->back.Move(1300, 0, 400, 300);
        return "";
    }
    if (name == "top") return "= " + std::string(App.TopModal() ? App.TopModal()->Name() : "-");
    return Script::Do(whole);
}

// The script is its own transcript: commands stand behind what waits, and what follows is the
// answer. The transcript of this run lies in the build folder, to be read and copied over the
// script after an intended change.
TEST(Layer, PlaysAsItsScriptSays)
{
    const std::string script = *Contents(MALVONE_SOURCE_DIR "/tests/layer/layer.drehbuch");
    std::istringstream lines(script);
    std::vector<std::string> commands;
    std::vector<std::string> before(1);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("#")) {
            before.back() += line + "\n";
        } else if (line.starts_with("> ")) {
            commands.push_back(line.substr(line.find(' ', 2) + 1) + "\n");
            before.emplace_back();
        }
    }
    std::string all;
    for (const std::string& command : commands) {
        all += command;
    }
    Stage<Witness> stage;
    App.Begin(stage.Binding, stage.Platform);
    std::istringstream told(stage.Raw(all));
    std::string transcript;
    std::size_t next = 0;
    for (std::string line; std::getline(told, line);) {
        const bool waits = line.starts_with("> ") && next < commands.size();
        transcript += waits ? before[next] + line + " " + commands[next] : line + "\n";
        next += waits ? 1 : 0;
    }
    WriteFile(MALVONE_BINARY_DIR "/layer.drehbuch", transcript);
    EXPECT_EQ(script, transcript);
}

// Each property takes one of these as a new value.
TEST(Layer, EveryNewValueIsToldOnceAndTheSameNever)
{
    Stage<Witness> stage;
    App.Begin(stage.Binding, stage.Platform);
    std::vector<std::pair<std::string, PropertyOwner*>> owners = {{"probe", &*probe}};
    for (Control* const control : probe->Controls()) {
        owners.emplace_back("probe." + control->FullName(), control);
    }
    auto& told = stage.Binding.Told;
    int count = 0;
    for (const auto& [path, owner] : owners) {
        const std::string name = path.substr(path.find('.') + 1);
        for (const script::Value& value : script::ValuesOf(*owner)) {
            if (!value.Kind) {
                continue;  // what is fixed, and the window's Visible, which shows and hides it
            }
            const std::string property = path + "." + std::string(value.Property);
            const std::string before = script::AskProperty(property);
            for (const char* const other : {"True", "False", "7", "frmBilder.imgGrund", "x"}) {
                told.clear();
                const std::string refused = script::SetProperty(property + " " + other);
                if (refused.empty() && script::AskProperty(property) != before) {
                    EXPECT_EQ((told[{name, *value.Kind}]), 1) << property << " " << other;
                    told.clear();
                    script::SetProperty(property + " " + other);
                    EXPECT_TRUE(told.empty()) << property;
                    ++count;
                    break;
                }
            }
        }
    }
    EXPECT_GT(count, 200);
}

// Handlers that still run after the end change nothing that anybody sees.
TEST(Ending, EndsAllModalLoopsAndNothingIsToldAnyMore)
{
    Stage<Witness> stage;
    App.Begin(stage.Binding, stage.Platform);
    stage("fresh\n");
    bool back = false;
    probe->front.Click = [&] {
        other->Show(ShowMode::Modal);
        back = true;
        probe->front.Caption = "whatever";
        probe->SetFocus(&probe->box(0));
        probe->inner.Load(7);
        other->Show();
        other->Hide();
        EXPECT_FALSE(probe->Unload());
    };
    EXPECT_EQ(
        stage("modal probe\ndo probe.front Click\nset probe.clock.Interval 1\n"
              "set probe.clock.Enabled True\non tick = end\ndo probe.clock Timer\nwindows\n"),
        "! show probe modal 0 0\n! Form_Activate\n! show other modal 0 0\n! tick clock\n! end\n");
    EXPECT_TRUE(back);
    EXPECT_TRUE(App.Ended());
    EXPECT_FALSE(RaiseTimer(probe->clock));
    EXPECT_FALSE(RaiseClick(probe->front));
    EXPECT_FALSE(RouteKey(*probe, {'N', kCtrlKey}));
    PointerPressed(*probe, {kLeftButton, 0, 850, 50});
    PointerMoved(*probe, {0, 0, 850, 50});
    EXPECT_FALSE(probe->Unload());
    other->Show(ShowMode::Modal);
    EXPECT_EQ(stage.Told(), "");
    App.Begin(stage.Binding, stage.Platform);
    EXPECT_FALSE(App.Ended());
    EXPECT_EQ(probe->front.Caption.Get(), "");
}

TEST(Text, TagsAreNumbersOnlyAsPlainDigitsAndAccessKeysStandBehindTheAmpersand)
{
    for (const std::int32_t number : {0, 4, -3, 2147483647}) {
        EXPECT_EQ(TagText(std::to_string(number)), TagText(number));
        EXPECT_EQ(TagText(std::to_string(number)).Number(), number);
    }
    for (const char* const text : {"", " 4", "4 ", "x", "1.5", "+1", "2147483648"}) {
        EXPECT_EQ(TagText(text).Number(), 0) << text;
    }
    EXPECT_NE(TagText("07"), TagText("7")) << "texts are compared, not numbers";
    EXPECT_EQ(AccessKey("Spiel begi&nnen"), 'N');
    EXPECT_EQ(AccessKey("am Ende &") + AccessKey(""), 0);
    EXPECT_EQ(PlainCaption("&Spiel  ") + PlainCaption("am Ende &"), "Spiel  am Ende ");
}

}  // namespace
}  // namespace malvone::test
