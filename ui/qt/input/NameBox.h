// NameBox.h: a text box as a line edit, in step with its model in both directions.
#pragma once

#include <QLineEdit>
#include <functional>

#include "ui/layer/Controls.h"

class QKeyEvent;

namespace malvone::qt {

class Scale;

class NameBox final : public QLineEdit
{
    Q_OBJECT

public:
    // Whether the window takes a key before the box sees it.
    using KeyRoute = std::function<bool(const QKeyEvent&)>;

    NameBox(TextBox& model, KeyRoute route, QWidget* parent);

    // Updates the box from the model, at the window's scale.
    void Follow(const Scale& scale);
    // Call before the model is destroyed.
    void Detach() { model_ = nullptr; }

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    TextBox* model_;
    KeyRoute route_;
    bool following_ = false;

    void FollowText();
    void TellModel();
};

}  // namespace malvone::qt
