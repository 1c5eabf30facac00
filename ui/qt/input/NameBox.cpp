// NameBox.cpp: a line edit that accepts only what the files can hold.
#include "ui/qt/input/NameBox.h"

#include <QEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QValidator>
#include <limits>

#include "platform/CodePage.h"
#include "ui/layer/App.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/drawing/Painting.h"
#include "ui/qt/drawing/Scale.h"
#include "ui/qt/input/KeyTable.h"

namespace malvone::qt {
namespace {

QString Typable(const QString& text)
{
    return ToQString(KeepTypable(text.toStdString()));
}

// Silently removes foreign characters from what is typed, pasted, dropped or composed. If nothing
// is left, the text stays as it was: a foreign letter must not empty a selected name.
class Sieve final : public QValidator
{
public:
    Sieve(const TextBox& model, QObject* parent) : QValidator(parent), model_(model) {}

    State validate(QString& text, int& caret) const override
    {
        const QString before = Typable(text.left(caret));
        const QString behind = Typable(text.mid(caret));
        const bool foreign = before.size() + behind.size() < text.size();
        // The model still has the text and the selection from before.
        const auto kept = static_cast<qsizetype>(CharacterCount(model_.Text.Get())) -
                          static_cast<qsizetype>(model_.SelLength.Get());
        if (foreign && before.size() + behind.size() <= kept) {
            return Invalid;
        }
        text = before + behind;
        caret = static_cast<int>(before.size());
        return Acceptable;
    }

private:
    const TextBox& model_;
};

// The box keeps the design's colours on every desktop.
QPalette Colours(const TextBox& model)
{
    QPalette palette(QColor(0xE0, 0xE0, 0xE0), Qt::white);
    palette.setColor(QPalette::Base, ToQColor(model.BackColor));
    palette.setColor(QPalette::Text, ToQColor(model.ForeColor));
    palette.setColor(QPalette::Highlight, QColor(0x00, 0x00, 0x80));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

bool IsInput(const QEvent& event)
{
    return event.isInputEvent() || event.type() == QEvent::InputMethod ||
           event.type() == QEvent::DragEnter || event.type() == QEvent::Drop;
}

// Qt would type the letter of an unknown command such as Alt+A, over a selected name if there is
// one. AltGr comes without these modifiers, so € and @ can be typed.
bool TypesWithCommandKey(const QKeyEvent& event)
{
    const bool command = (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier)) != 0;
    return command && !event.text().isEmpty() && event.text().front().isPrint();
}

}  // namespace

NameBox::NameBox(TextBox& model, QWidget* parent) : QLineEdit(parent), model_(&model)
{
    setValidator(new Sieve(model, this));
    setMaxLength(std::numeric_limits<int>::max());
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAccessibleName(QStringLiteral("Name, Platz %1").arg(model.Index() + 1));
    connect(this, &QLineEdit::textChanged, this, &NameBox::TellModel);
    connect(this, &QLineEdit::cursorPositionChanged, this, &NameBox::TellModel);
    connect(this, &QLineEdit::selectionChanged, this, &NameBox::TellModel);
}

void NameBox::Follow(const Scale& scale)
{
    if (following_) {
        return;
    }
    const QScopedValueRollback guard(following_, true);
    setGeometry(scale.ToWindow(PlaceOf(*model_)).toRect());
    QFont font = ToQFont(model_->TextFont);
    font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * scale.Factor())));
    setFont(font);
    setPalette(Colours(*model_));
    // A locked name can only be read and cannot be selected.
    setReadOnly(model_->Locked);
    setFocusPolicy(model_->Locked ? Qt::NoFocus : Qt::ClickFocus);  // Tab is the layer's
    setAttribute(Qt::WA_TransparentForMouseEvents, model_->Locked);
    setEnabled(model_->Enabled);
    setVisible(model_->Seen());
    FollowText();
}

void NameBox::FollowText()
{
    const QString wanted = ToQString(model_->Text.Get());
    if (text() != wanted) {
        setText(wanted);
    }
    if (model_->Locked) {
        deselect();
    } else if (model_->SelLength > 0) {
        setSelection(model_->SelStart, model_->SelLength);
    } else {
        setCursorPosition(model_->SelStart);
    }
}

void NameBox::TellModel()
{
    if (following_) {
        return;
    }
    const QScopedValueRollback guard(following_, true);
    model_->Text = text().toStdString();
    model_->SelStart = hasSelectedText() ? selectionStart() : cursorPosition();
    model_->SelLength = hasSelectedText() ? selectionLength() : 0;
}

bool NameBox::event(QEvent* event)
{
    if (model_ == nullptr || (IsInput(*event) && !App.TakesInput(model_->Owner()))) {
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();  // makes it a key press
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        // An ignored key would reach the parent and be routed a second time.
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (!RouteKey(model_->Owner(), key) && !TypesWithCommandKey(key)) {
            QLineEdit::event(event);
        }
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void NameBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    model_->SetFocus();
}

}  // namespace malvone::qt
