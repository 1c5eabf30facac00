// NameBoxes.h: the line edits of a window, one for each text box in sight.
#pragma once

#include <unordered_map>

#include "ui/qt/input/NameBox.h"

namespace malvone::qt {

class NameBoxes
{
public:
    // The boxes belong to the form, which must outlive this.
    NameBoxes(QWidget& form, NameBox::KeyRoute route) : form_(form), route_(std::move(route)) {}

    // Updates a box from the model; makes it on the first call. Text boxes outside the client area
    // only hold data and have no widget.
    void Follow(TextBox& model, const Scale& scale);
    // Call when the scale of the window has changed.
    void Follow(const Scale& scale);
    // Null if there is none.
    NameBox* Of(const Control* model) const;
    // Call before the models are destroyed.
    void Detach();

private:
    QWidget& form_;
    NameBox::KeyRoute route_;
    std::unordered_map<const Control*, NameBox*> boxes_;
};

}  // namespace malvone::qt
