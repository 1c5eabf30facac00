// Listener.h: the game as a screen reader tells it.
#pragma once

#include <map>
#include <string>

#include "ui/services/Spoken.h"

namespace malvone::script {

class Listener
{
public:
    // What has happened since the last time, and each name on the topmost window that has
    // changed, with its tool tip. Of the cells only the one that the arrow keys are at is told.
    std::string Lines();

private:
    Reporter reporter_;
    std::map<std::string, std::string> names_;  // by window and by place on it
};

}  // namespace malvone::script
