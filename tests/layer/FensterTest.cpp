// FensterTest.cpp: the life of windows, modal loops, timers and the end of the program.
#include <gtest/gtest.h>

#include "tests/layer/Probe.h"
#include "ui/layer/PointerRouting.h"

namespace malvone {
namespace {

TEST(Fenster, FirstTouchLoadsAndUnloadBeginsAnew)
{
    const Schicht schicht;
    EXPECT_FALSE(probe.Loaded());
    probe->vorn.Caption = "beschrieben";
    EXPECT_EQ(NotizenSeitdem(), (Verlauf{"loaded probe", "Form_Load"}));
    EXPECT_TRUE(probe.Loaded());
    EXPECT_FALSE(probe->Shown());
    EXPECT_EQ(InstanceBase::Find("probe"), &probe);

    EXPECT_TRUE(probe->Unload());
    EXPECT_EQ(NotizenSeitdem(),
              (Verlauf{"Form_QueryUnload 1", "Form_Unload", "unloaded probe", "destroyed"}));
    EXPECT_FALSE(probe.Loaded());
    EXPECT_EQ(probe->vorn.Caption.Get(), "");
    EXPECT_EQ(NotizenSeitdem(), (Verlauf{"loaded probe", "Form_Load"}));
}

TEST(Fenster, QueryUnloadCanRefuse)
{
    const GezeigteProbe schicht;
    for (const std::int16_t nein : {std::int16_t{1}, std::int16_t{-1}}) {
        probe->BeiFrage = [nein](std::int16_t& Cancel) { Cancel = nein; };
        EXPECT_FALSE(probe->Unload());
        EXPECT_TRUE(RaiseClose(*probe));
        EXPECT_EQ(NotizenSeitdem(), (Verlauf{"Form_QueryUnload 1", "Form_QueryUnload 0"}));
        EXPECT_TRUE(probe->Shown());
    }
}

TEST(Fenster, ShowAndHideAreToldAndKeepTheWindow)
{
    const Schicht schicht;
    probe->Visible = true;
    EXPECT_EQ(NotizenSeitdem(),
              (Verlauf{"loaded probe", "Form_Load", "shown probe", "Form_Activate"}));
    probe->Visible = true;
    EXPECT_EQ(NotizenSeitdem(), Verlauf{});
    probe->Show();
    EXPECT_EQ(NotizenSeitdem(), (Verlauf{"shown probe", "Form_Activate"}));
    probe->Visible = false;
    probe->Hide();
    EXPECT_EQ(NotizenSeitdem(), Verlauf{"hidden probe"});
    EXPECT_TRUE(probe.Loaded());
    EXPECT_FALSE(RaiseActivate(*probe)) << "a hidden window takes no input";
    EXPECT_EQ(NotizenSeitdem(), Verlauf{});
}

TEST(Fenster, HandlerMayUnloadItsOwnWindowAndGoOn)
{
    const GezeigteProbe schicht;
    Probe* const alt = &*probe;
    probe->BeiKlick = [alt] {
        alt->Unload();
        Notizen.push_back("still here: " + std::string(alt->Name()));
        probe->vorn.Caption = "das neue";
        alt->vorn.Caption = "das alte";
        EXPECT_FALSE(alt->Unload()) << "twice";
    };
    RaiseClick(probe->vorn);
    EXPECT_EQ(NotizenSeitdem(),
              (Verlauf{"click vorn", "Form_QueryUnload 1", "Form_Unload", "unloaded probe",
                       "still here: probe", "loaded probe", "Form_Load", "destroyed"}));
    EXPECT_EQ(probe->vorn.Caption.Get(), "das neue");
}

TEST(Modal, ShowReturnsWhenTheWindowIsHiddenOrUnloaded)
{
    Schicht schicht;
    const struct
    {
        void (*Schliessen)(Window&);
        Verlauf Gesehen;
        bool Geladen;
    } cases[] = {
        {[](Window& w) { w.Hide(); }, {"hidden probe"}, true},
        {[](Window& w) { w.Unload(); },
         {"Form_QueryUnload 1", "Form_Unload", "unloaded probe", "destroyed"},
         false},
        {[](Window& w) { w.Close(); },
         {"Form_QueryUnload 0", "Form_Unload", "unloaded probe", "destroyed"},
         false},
    };
    for (const auto& c : cases) {
        Load(probe);
        Notizen.clear();
        schicht.Bindung.Antworten = {[](Window& w) { EXPECT_TRUE(w.Modal()); }, c.Schliessen};
        probe->Show(ShowMode::Modal);
        Verlauf erwartet = {"shown modal probe", "Form_Activate"};
        erwartet.insert(erwartet.end(), c.Gesehen.begin(), c.Gesehen.end());
        EXPECT_EQ(NotizenSeitdem(), erwartet);
        EXPECT_EQ(probe.Loaded(), c.Geladen);
        EXPECT_EQ(App.TopModal(), nullptr);
    }
}

TEST(Modal, OnlyTheTopmostWindowTakesInputWhileTimersRunOn)
{
    GezeigteProbe schicht;
    probe->uhr.Enabled = true;
    probe->uhr.Interval = 300;
    probe->punkt(1).Enabled = true;
    schicht.Bindung.Antworten = {[](Window& oben) {
        EXPECT_EQ(App.TopModal(), &oben);
        EXPECT_TRUE(App.TakesInput(oben));
        EXPECT_FALSE(App.TakesInput(*probe));
        EXPECT_FALSE(RaiseClick(probe->vorn));
        EXPECT_FALSE(RaiseMenuClick(probe->punkt(1)));
        EXPECT_FALSE(RaiseActivate(*probe));
        EXPECT_FALSE(RaiseClose(*probe));
        EXPECT_FALSE(RouteKey(*probe, {'N', kCtrlKey}));
        PointerPressed(*probe, {kLeftButton, 0, 850, 50});
        PointerMoved(*probe, {kLeftButton, 0, 850, 50});
        PointerReleased(*probe, {kLeftButton, 0, 850, 50});
        EXPECT_EQ(NotizenSeitdem(), Verlauf{"shown modal nebenfenster"});
        EXPECT_TRUE(RaiseTimer(probe->uhr));
        oben.Hide();
    }};
    Load(nebenfenster);
    Notizen.clear();
    nebenfenster->Show(ShowMode::Modal);
    EXPECT_EQ(NotizenSeitdem(), (Verlauf{"tick uhr", "hidden nebenfenster"}));
    EXPECT_TRUE(RaiseClick(probe->vorn));
}

TEST(Modal, PressThatOpensAWindowFindsNoReleaseBehindIt)
{
    GezeigteProbe schicht;
    probe->BeiDruck = [] { nebenfenster->Show(ShowMode::Modal); };
    PointerPressed(*probe, {kLeftButton, 0, 850, 50});
    NotizenSeitdem();
    EXPECT_FALSE(probe->Pressed);
    PointerReleased(*probe, {kLeftButton, 0, 850, 50});
    EXPECT_EQ(NotizenSeitdem(), Verlauf{});
}

TEST(Modal, NestedWindowsCloseFromTheInside)
{
    GezeigteProbe schicht;
    schicht.Bindung.Antworten = {
        [](Window& aussen) {
            nebenfenster->Show(ShowMode::Modal);
            EXPECT_EQ(App.TopModal(), &aussen);
            EXPECT_TRUE(App.TakesInput(aussen));
            aussen.Hide();
        },
        [](Window& innen) {
            EXPECT_EQ(App.TopModal(), &innen);
            EXPECT_FALSE(App.TakesInput(*probe));
            innen.Unload();
        },
    };
    probe->Show(ShowMode::Modal);
    EXPECT_EQ(App.TopModal(), nullptr);
    EXPECT_FALSE(nebenfenster.Loaded());
    EXPECT_FALSE(probe->Shown());
}

TEST(Ende, EndsAllModalLoopsAndNothingIsToldAnyMore)
{
    GezeigteProbe schicht;
    probe->uhr.Enabled = true;
    probe->uhr.Interval = 1;
    schicht.Bindung.Antworten = {
        [](Window&) {
            nebenfenster->Show(ShowMode::Modal);
            Notizen.emplace_back("back in the outer handler");
            probe->vorn.Caption = "egal";
            nebenfenster->Show();
            nebenfenster->Hide();
            EXPECT_FALSE(probe->Unload());
        },
        [](Window&) {
            App.Ende();
            App.Ende();
        },
        [](Window&) { ADD_FAILURE() << "a loop has gone on after the end"; },
    };
    schicht.Bindung.MitAenderungen = true;
    probe->Show(ShowMode::Modal);
    EXPECT_EQ(NotizenSeitdem(),
              (Verlauf{"shown modal probe", "Form_Activate", "loaded nebenfenster",
                       "shown modal nebenfenster", "ended", "back in the outer handler"}));
    EXPECT_TRUE(App.Ended());
    EXPECT_FALSE(RaiseTimer(probe->uhr));
    EXPECT_FALSE(RaiseClick(probe->vorn));
    EXPECT_FALSE(RouteKey(*probe, {'N', kCtrlKey}));
    PointerPressed(*probe, {kLeftButton, 0, 850, 50});
    PointerMoved(*probe, {0, 0, 850, 50});
    EXPECT_EQ(NotizenSeitdem(), Verlauf{});
}

TEST(Ende, TouchAfterTheEndGivesAnObjectThatLoadsNothing)
{
    Schicht schicht;
    App.Ende();
    Notizen.clear();
    probe->vorn.Caption = "niemand sieht es";
    probe->Show(ShowMode::Modal);
    EXPECT_EQ(NotizenSeitdem(), Verlauf{});
}

TEST(Ende, ProgramCanBeginAgain)
{
    Schicht schicht;
    probe->vorn.Caption = "erster Lauf";
    App.Ende();
    App.Finish();
    App.Begin(schicht.Bindung, schicht.Plattform);
    Notizen.clear();
    EXPECT_FALSE(App.Ended());
    EXPECT_EQ(probe->vorn.Caption.Get(), "");
    EXPECT_EQ(NotizenSeitdem(), (Verlauf{"loaded probe", "Form_Load"}));
}

TEST(Uhr, TicksOnlyWhileItRunsOnAShownWindow)
{
    const GezeigteProbe schicht;
    const struct
    {
        bool Enabled;
        std::int32_t Interval;
        bool Gezeigt;
        bool Tickt;
    } cases[] = {
        {false, 300, true, false}, {true, 0, true, false},    {true, -1, true, false},
        {true, 300, true, true},   {true, 300, false, false},
    };
    EXPECT_FALSE(probe->uhr.Enabled) << "as designed";
    for (const auto& c : cases) {
        probe->uhr.Enabled = c.Enabled;
        probe->uhr.Interval = c.Interval;
        probe->Visible = c.Gezeigt;
        Notizen.clear();
        EXPECT_EQ(RaiseTimer(probe->uhr), c.Tickt);
        EXPECT_EQ(NotizenSeitdem(), c.Tickt ? Verlauf{"tick uhr"} : Verlauf{});
    }
}

}  // namespace
}  // namespace malvone
