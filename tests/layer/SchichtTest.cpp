// SchichtTest.cpp: plays the layer by the script beside it, and what cannot be told in lines: the
// code page, tags, and what a program does after its end.
#include <gtest/gtest.h>

#include "platform/CodePage.h"
#include "tests/layer/Probe.h"

namespace malvone::test {

void Witness::Note(const std::string& what)
{
    Tell("! " + what);
    for (auto hook = hooks_.begin(); hook != hooks_.end(); ++hook) {
        if (what.starts_with(hook->first)) {
            const std::string command = hook->second;
            hooks_.erase(hook);
            Tell(Do(command));
            return;
        }
    }
}

std::string Witness::Do(std::string_view line)
{
    const std::string_view whole = line;
    const std::string name(script::CutOff(line, ' '));
    std::istringstream words{std::string(line)};
    const auto control = [&] { return probe->Find(line); };
    const auto nameOf = [](const Control* c) { return c == nullptr ? "window" : c->FullName(); };
    const auto told = [](bool done) { return done ? "" : "refused"; };
    InstanceBase* const instance = InstanceBase::Find(line);
    Mouse mouse;
    words >> mouse.Button >> mouse.X >> mouse.Y;
    if (name == "neu") {  // nothing is loaded
        hooks_.clear();
        withChanges_ = false;
        App.Begin(*this, App.System());
        return "";
    }
    if (name == "touch") return instance->Touch(), "";
    if (name == "show") return instance->Touch().Show(), "";
    if (name == "modal") return instance->Touch().Show(ShowMode::Modal), "";
    if (name == "hide") return instance->Touch().Hide(), "";
    if (name == "unload") return told(instance->Touch().Unload());
    if (name == "close") return told(RaiseClose(instance->Touch()));
    if (name == "activate") return told(RaiseActivate(instance->Touch()));
    if (name == "down") return PointerPressed(*probe, mouse), "";
    if (name == "move") return PointerMoved(*probe, mouse), "";
    if (name == "up") return PointerReleased(*probe, mouse), "";
    if (name == "pressed") return "= " + (probe->Pressed() ? nameOf(*probe->Pressed()) : "nothing");
    if (name == "at") {
        float x = 0;
        float y = 0;
        std::istringstream{std::string(line)} >> x >> y;
        return "= " + nameOf(ControlAt(*probe, x, y));
    }
    if (name == "press") {
        return RouteKey(*probe, script::KeyFrom(line).value()) ? "= taken" : "= left";
    }
    if (name == "focus") {
        if (!line.empty()) {
            probe->SetFocus(dynamic_cast<Visual*>(control()));
        }
        return "= " + nameOf(probe->Focus());
    }
    if (name == "element") {
        int index = 0;
        std::istringstream{std::string(line)} >> index;
        return probe->innen.Load(index), "";
    }
    if (name == "copy") {
        probe->innen(2).Picture = probe->innen(0).Picture;
        probe->innen(2).Tag = probe->innen(0).Tag;
        probe->knopf(1).Caption = probe->vorn.Caption;
        return "";
    }
    if (name == "typing") {  // "START LENGTH OLD|TYPED"
        TextBox& box = probe->feld(0);
        box.SelStart = std::stoi(std::string(script::CutOff(line, ' ')));
        box.SelLength = std::stoi(std::string(script::CutOff(line, ' ')));
        box.Text = std::string(script::CutOff(line, '|'));
        box.Type(script::Unmasked(line));
        return "= " + box.Text.Get() + " " + std::to_string(box.SelStart) + " " +
               std::to_string(box.SelLength);
    }
    if (name == "item") return probe->liste.AddItem(std::string(line)), "";
    if (name == "clear") return probe->liste.Clear(), "";
    if (name == "changes") return withChanges_ = true, "";
    if (name == "on") {  // "on EVENT = COMMAND"
        const std::size_t cut = line.find(" = ");
        hooks_[std::string(line.substr(0, cut))] = line.substr(cut + 3);
        return "";
    }
    if (name == "refuse") return Refused = true, "";
    if (name == "ende") return App.Ende(), App.Ende(), "";
    if (name == "top") return "= " + std::string(App.TopModal() ? App.TopModal()->Name() : "-");
    return Script::Do(whole);
}

namespace {

// The script is its own transcript: commands stand behind what waits, and what follows is the
// answer. The transcript of this run lies in the build folder: who has changed the layer looks at
// it and takes it over.
TEST(Schicht, PlaysAsItsScriptSays)
{
    const std::string script = *Contents(MALVONE_SOURCE_DIR "/tests/layer/schicht.drehbuch");
    std::istringstream lines(script);
    std::vector<std::string> commands;
    std::string comments;
    std::vector<std::string> before;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("#")) {
            comments += line + "\n";
        } else if (line.starts_with("> ")) {
            before.push_back(std::exchange(comments, ""));
            commands.push_back(line.substr(line.find(' ', 2) + 1) + "\n");
        }
    }
    Stage<Witness> stage;
    App.Begin(stage.Binding, stage.Platform);
    std::string all;
    for (const std::string& command : commands) {
        all += command;
    }
    std::istringstream raw(stage.Raw(all));
    std::string transcript;
    std::size_t next = 0;
    for (std::string line; std::getline(raw, line);) {
        const bool waits = line.starts_with("> ") && next < commands.size();
        transcript += waits ? before[next] + line + " " + commands[next] : line + "\n";
        next += waits ? 1 : 0;
    }
    WriteFile(MALVONE_BINARY_DIR "/schicht.drehbuch", transcript);
    EXPECT_EQ(script, transcript);
}

// Handlers that still run after the end change nothing that anybody sees.
TEST(Ende, EndsAllModalLoopsAndNothingIsToldAnyMore)
{
    Stage<Witness> stage;
    App.Begin(stage.Binding, stage.Platform);
    bool back = false;
    probe->vorn.Click = [&] {
        nebenfenster->Show(ShowMode::Modal);
        back = true;
        probe->vorn.Caption = "egal";
        probe->SetFocus(&probe->feld(0));
        probe->innen.Load(7);
        nebenfenster->Show();
        nebenfenster->Hide();
        EXPECT_FALSE(probe->Unload());
    };
    stage.Told();
    EXPECT_EQ(stage("changes on\nset probe.uhr.Interval 1\nset probe.uhr.Enabled True\n"
                    "modal probe\ndo probe.vorn Click\n"
                    "on tick uhr = ende\ndo probe.uhr Timer\nwindows\n"),
              "! changed uhr State\n! changed uhr Enabled\n! show probe modal 0 0\n"
              "! Form_Activate\n! loaded nebenfenster\n! show nebenfenster modal 0 0\n"
              "! tick uhr\n! end\n");
    EXPECT_TRUE(back);
    EXPECT_TRUE(App.Ended());
    EXPECT_FALSE(RaiseTimer(probe->uhr));
    EXPECT_FALSE(RaiseClick(probe->vorn));
    EXPECT_FALSE(RouteKey(*probe, {'N', kCtrlKey}));
    PointerPressed(*probe, {kLeftButton, 0, 850, 50});
    PointerMoved(*probe, {0, 0, 850, 50});
    EXPECT_FALSE(probe->Unload());
    nebenfenster->Show(ShowMode::Modal);
    EXPECT_EQ(stage.Told(), "");
    App.Begin(stage.Binding, stage.Platform);
    EXPECT_FALSE(App.Ended());
    EXPECT_EQ(probe->vorn.Caption.Get(), "");
    EXPECT_EQ(stage.Told(), "! loaded probe\n! Form_Load\n");
}

TEST(Platz, GoesWithThePointerAndNothingIsPressedThatWasNotPointedAtLast)
{
    Stage<Witness> stage;
    App.Begin(stage.Binding, stage.Platform);
    probe->vorn.ByArrows = true;
    probe->hinten.ByArrows = true;
    probe->hinten.Move(1300, 0, 400, 300);
    probe->Show();
    EXPECT_FALSE(RouteKey(*probe, {kKeyDelete, 0})) << "nothing is pressed without a place";
    stage("move 0 1050 50\n");
    EXPECT_TRUE(RouteKey(*probe, {kKeyRight, 0}));
    EXPECT_EQ(probe->Highlighted(), &probe->vorn) << "the first arrow begins where the pointer was";
    RouteKey(*probe, {kKeyRight, 0});
    EXPECT_EQ(probe->Highlighted(), &probe->hinten);
    EXPECT_FALSE(RouteKey(*probe, {kKeyRight, kShiftKey}));
    stage("move 0 1050 50\n");
    EXPECT_EQ(probe->Highlighted(), &probe->hinten) << "a pointer that rests moves nothing";
    EXPECT_EQ(stage("down 1 1050 50\n"), "! move vorn 1 at 250,50\n! down vorn 1 at 250,50\n");
    EXPECT_EQ(probe->Highlighted(), nullptr);
    EXPECT_FALSE(RouteKey(*probe, {kKeyLeft, 0})) << "the pointer has its press to finish";
}

TEST(Text, TagsAreNumbersOnlyAsPlainDigitsAndAccessKeysStandBehindTheAmpersand)
{
    const std::pair<const char*, std::int32_t> tags[] = {{"0", 0},
                                                         {"4", 4},
                                                         {"-3", -3},
                                                         {"007", 7},
                                                         {"", 0},
                                                         {" 4", 0},
                                                         {"4 ", 0},
                                                         {"x", 0},
                                                         {"1.5", 0},
                                                         {"+1", 0},
                                                         {"2147483647", 2147483647},
                                                         {"2147483648", 0}};
    for (const auto& [text, number] : tags) {
        EXPECT_EQ(TagText(text).Number(), number) << text;
        EXPECT_EQ(TagText(text).Text(), text);
    }
    EXPECT_EQ(TagText(std::int32_t{-12}).Text(), "-12");
    EXPECT_NE(TagText("07"), TagText("7")) << "texts are compared, not numbers";
    const struct
    {
        const char* Caption;
        char Key;
        const char* Plain;
    } captions[] = {{"Spiel begi&nnen", 'N', "Spiel beginnen"},
                    {"b&eenden", 'E', "beenden"},
                    {"&Spiel  ", 'S', "Spiel  "},
                    {"Sound", 0, "Sound"},
                    {"am Ende &", 0, "am Ende "},
                    {"", 0, ""}};
    for (const auto& c : captions) {
        EXPECT_EQ(AccessKey(c.Caption), c.Key) << c.Caption;
        EXPECT_EQ(PlainCaption(c.Caption), c.Plain);
    }
}

}  // namespace
}  // namespace malvone::test
