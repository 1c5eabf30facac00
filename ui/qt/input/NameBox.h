// NameBox.h: a text box as a line edit, in step with its model in both directions.
#pragma once

#include <QLineEdit>

#include "ui/layer/Controls.h"

namespace malvone::qt {

class Scale;

class NameBox final : public QLineEdit
{
    Q_OBJECT

public:
    NameBox(TextBox& model, QWidget* parent);

    // Updates the box from the model, at the window's scale.
    void Follow(const Scale& scale);
    // Call before the model is destroyed; the box takes no event from then on.
    void Detach() { model_ = nullptr; }

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    TextBox* model_;
    bool following_ = false;

    void FollowText();
    void TellModel();
};

}  // namespace malvone::qt
