// NameBoxes.h: the line edits of a window, one for each text box in sight.
#pragma once

#include <unordered_map>

#include "ui/layer/Window.h"
#include "ui/qt/input/NameBox.h"

namespace malvone::qt {

class NameBoxes
{
public:
    // The boxes belong to the form. A text box outside the client area only holds data.
    NameBoxes(QWidget& form, Window& window);

    // Updates all boxes from the model, at the window's scale.
    void Follow(const Scale& scale) const;
    // Null if there is none.
    NameBox* Of(const Control* model) const;
    // Call before the models are destroyed.
    void Detach();

private:
    std::unordered_map<const Control*, NameBox*> boxes_;
};

}  // namespace malvone::qt
