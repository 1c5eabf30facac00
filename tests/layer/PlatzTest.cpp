// PlatzTest.cpp: the place of the arrow keys beside a real pointer.
#include <gtest/gtest.h>

#include "tests/layer/Probe.h"
#include "ui/layer/PointerRouting.h"

namespace malvone {
namespace {

TEST(Platz, GoesWithThePointerAndNothingIsPressedThatWasNotPointedAtLast)
{
    const GezeigteProbe schicht;
    probe->vorn.ByArrows = true;
    probe->hinten.ByArrows = true;
    probe->hinten.Move(1300, 0, 400, 300);
    const Mouse vorn{0, 0, 1050, 50};
    EXPECT_FALSE(RouteKey(*probe, {kKeyDelete, 0})) << "nothing is pressed without a place";
    PointerMoved(*probe, vorn);
    EXPECT_TRUE(RouteKey(*probe, {kKeyRight, 0}));
    EXPECT_EQ(probe->Place(), &probe->vorn) << "the first arrow begins where the pointer was";
    RouteKey(*probe, {kKeyRight, 0});
    EXPECT_EQ(probe->Place(), &probe->hinten);
    EXPECT_FALSE(RouteKey(*probe, {kKeyRight, kShiftKey}));
    PointerMoved(*probe, vorn);
    EXPECT_EQ(probe->Place(), &probe->hinten) << "a pointer that rests moves nothing";
    Notizen.clear();
    PointerPressed(*probe, {kLeftButton, 0, 1050, 50});
    EXPECT_EQ(NotizenSeitdem(), (Verlauf{"move vorn 1 at 250,50", "down vorn 1 at 250,50"}));
    EXPECT_EQ(probe->Place(), nullptr);
    EXPECT_FALSE(RouteKey(*probe, {kKeyLeft, 0})) << "the pointer has its press to finish";
}

}  // namespace
}  // namespace malvone
