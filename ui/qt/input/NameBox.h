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
    // Returns whether a key has been taken by the window before the box sees it.
    using KeyRoute = std::function<bool(const QKeyEvent&)>;

    NameBox(TextBox& model, KeyRoute route, QWidget* parent);

    // Takes over what the model says, at the window's scale.
    void Follow(const Scale& scale);
    // The model is about to be destroyed.
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
