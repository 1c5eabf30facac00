// Commands.cpp: the table of commands.
#include "tests/drehbuch/Commands.h"

#include "platform/CodePage.h"
#include "tests/drehbuch/Text.h"

namespace malvone::script {
namespace {

struct Command
{
    std::string_view Name;
    Answer (*Obey)(std::string_view arguments);
    bool TakesArguments = true;
};

constexpr Command kCommands[] = {
    {"do", &DeliverEvent},
    {"key", &PressKey},
    {"type", &TypeText},
    {"get", &AskProperty},
    {"set", &SetProperty},
    {"board", &AskOrSetBoard},
    {"marks", &AskMarks, false},
    {"previews", &AskPreviews, false},
    {"pictures", &AskPictures, false},
    {"state", &AskState, false},
    {"windows", &AskWindows, false},
};

}  // namespace

Answer Obey(std::string_view line)
{
    if (!IsUtf8(line)) {
        return "? the line is not UTF-8";
    }
    const std::string_view name = CutOff(line, ' ');
    for (const Command& command : kCommands) {
        if (command.Name == name) {
            return command.TakesArguments || line.empty() ? command.Obey(line) : "? bad argument";
        }
    }
    return "? unknown command";
}

}  // namespace malvone::script
