// NameBoxes.h: the line edits of a window, one for each text box in sight.
#pragma once

#include <unordered_map>

#include "ui/qt/input/NameBox.h"

namespace malvone::qt {

class NameBoxes
{
public:
    // The boxes belong to the form, which has to outlive this.
    NameBoxes(QWidget& form, NameBox::KeyRoute route) : form_(form), route_(std::move(route)) {}

    // Takes over what the model says, and makes a box for one that is new. A text box beside the
    // client area is mere data and has no widget.
    void Follow(TextBox& model, const Scale& scale);
    // The window has got another scale.
    void Follow(const Scale& scale);
    // Null where there is none.
    NameBox* Of(const Control* model) const;
    // The models are about to be destroyed.
    void Detach();

private:
    QWidget& form_;
    NameBox::KeyRoute route_;
    std::unordered_map<const Control*, NameBox*> boxes_;
};

}  // namespace malvone::qt
