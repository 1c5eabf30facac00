// Listener.cpp: asking as the binding of a screen reader does.
#include "tests/drehbuch/Listener.h"

#include <utility>

#include "tests/drehbuch/Text.h"
#include "ui/layer/App.h"

namespace malvone::script {

std::string Listener::Lines()
{
    Window* const window = App.KeyWindow();
    if (window == nullptr) {
        return "";
    }
    const std::string news = reporter_.News();
    std::string lines = news.empty() ? "" : "~ " + news + "\n";
    const auto tell = [&](const std::string& place, const std::string& name) {
        std::string& known = names_[std::string(window->Name()) + "." + place];
        if (std::exchange(known, name) != name) {
            lines += "~ " + place + ": " + (name.empty() ? "-" : name) + "\n";
        }
    };
    tell(window->Role == WindowRole::Message ? "alert" : "window",
         WithoutVersion(TitleOf(*window)));
    for (const Spoken& spoken : SpokenOn(*window)) {
        if (spoken.Kind != SpokenKind::Cell || spoken.Where == window->Highlighted()) {
            const std::string tip = DescriptionOf(spoken);
            const std::string name = NameOf(spoken) + (tip.empty() ? "" : " (" + tip + ")");
            tell(spoken.Where->FullName(), IsSpokenNow(spoken) ? name : "");
        }
    }
    return lines;
}

}  // namespace malvone::script
