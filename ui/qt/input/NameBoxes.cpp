// NameBoxes.cpp: makes and finds the line edits of a window.
#include "ui/qt/input/NameBoxes.h"

#include "ui/layer/Window.h"

namespace malvone::qt {

void NameBoxes::Follow(TextBox& model, const Scale& scale)
{
    auto found = boxes_.find(&model);
    if (found == boxes_.end()) {
        if (!model.Owner().InClient(model.Left, model.Top)) {
            return;
        }
        found = boxes_.emplace(&model, new NameBox(model, route_, &form_)).first;
    }
    found->second->Follow(scale);
}

void NameBoxes::Follow(const Scale& scale)
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
