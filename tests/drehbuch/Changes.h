// Changes.h: what a player now sees or can use differently than before, worked out from what a
// binding hears: nobody sees a change that bindings are not told of.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "ui/layer/Window.h"
#include "ui/windows/Ziffernreihe.h"

namespace malvone::script {

class Changes
{
public:
    // A window is known from here on as it is designed; one that has been loaded before, as it
    // looked when it was told last.
    void Loaded(Window& window);
    void Added(Control& control);

    void Heard(const Window& window, Change what)
    {
        heard_[std::string(window.Name())].insert(what);
    }
    void Heard(const Control& control, Change what);
    // Another line has already told the property at this path.
    void Told(std::string_view path);
    // The script has set up the board: each cell gets the picture of its value, as in a game.
    void BoardSet();

    // A line for each change since the last time on the windows that are shown: the board, the
    // displays, and all properties in the order in which windows declare their controls. What
    // changes alike shares a line, and so do the elements of an array.
    std::string Lines();

private:
    struct Line;

    std::map<std::string, std::string, std::less<>> known_;  // by path and property
    std::map<std::string, std::string> displays_;            // by name
    std::map<std::string, std::set<Change>> heard_;          // by path
    std::string board_;
    std::string pictures_;  // empty where they are what the board says

    void Know(PropertyOwner& owner, const std::string& path);
    const std::string& Known(const Control& control, const char* property) const;
    void Compare(PropertyOwner& owner, const std::string& path, std::string_view name, int index,
                 std::vector<Line>& lines);
    std::string PropertyLines(Window& window);
    std::string DisplayLine(Window& window);
    std::string NumberOn(const Ziffernreihe& display) const;
    std::string BoardLines();
};

}  // namespace malvone::script
