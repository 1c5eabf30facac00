// Commands.h: what a script can say, by kind: events, properties, and questions about the whole
// game. Each command is answered by one line, or by the empty text where there is nothing to
// answer:
//   "= VALUE"    what was asked for, ready for the line
//   "refused"    the event cannot reach its target at present
//   "? REASON"   the line is not in order, and nothing has happened
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/layer/Keys.h"
#include "ui/layer/Property.h"

namespace malvone::script {

using Answer = std::string;

// Obeys one line.
Answer Obey(std::string_view line);

// Events.cpp
Answer DeliverEvent(std::string_view line);  // "OBJECT EVENT [BUTTON]"
Answer PressKey(std::string_view name);      // "Enter" or "Ctrl+Shift+N"
Answer TypeText(std::string_view text);      // into the text box that has the focus
std::optional<Key> KeyFrom(std::string_view name);

// Properties.cpp
Answer AskProperty(std::string_view path);  // "unloaded" where the window is not loaded
Answer SetProperty(std::string_view line);  // "PATH VALUE", without any event

struct Value
{
    std::string_view Property;
    std::optional<Change> Kind;  // as its owner tells it; nothing for what is fixed by the design
    std::string Text;            // as AskProperty answers, texts in quotes; a list is all its items
};
// Everything that stands in the table for a window or control.
std::vector<Value> ValuesOf(PropertyOwner& owner);

// Questions.cpp. All but the first take no argument.
Answer AskOrSetBoard(std::string_view digits);  // sets the 140 values and nothing else
Answer AskMarks(std::string_view);
Answer AskPreviews(std::string_view);
Answer AskPictures(std::string_view);  // 140 letters, one for each picture that a cell can show
Answer AskState(std::string_view);
Answer AskWindows(std::string_view);  // names of all shown windows, sorted
// The letter of a picture among those that a cell can show, and the one of a value's plain picture.
char LetterOf(std::string_view picture);
char LetterOfValue(char digit);

}  // namespace malvone::script
