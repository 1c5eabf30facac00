// NameBoxes.cpp: makes and finds the line edits of a window.
#include "ui/qt/input/NameBoxes.h"

namespace malvone::qt {

NameBoxes::NameBoxes(QWidget& form, Window& window)
{
    for (Visual* const visual : window.FrontToBack()) {
        auto* const model = dynamic_cast<TextBox*>(visual);
        if (model != nullptr && window.InClient(model->Left, model->Top)) {
            boxes_.emplace(model, new NameBox(*model, &form));
        }
    }
}

void NameBoxes::Follow(const Scale& scale) const
{
    for (const auto& [model, box] : boxes_) {
        box->Follow(scale);
    }
}

NameBox* NameBoxes::Of(const Control* model) const
{
    const auto found = boxes_.find(model);
    return found != boxes_.end() ? found->second : nullptr;
}

void NameBoxes::Detach()
{
    for (const auto& [model, box] : boxes_) {
        box->Detach();
    }
    boxes_.clear();
}

}  // namespace malvone::qt
