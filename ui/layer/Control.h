// Control.h: what all objects on a window have in common, and what all visible ones have.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "ui/layer/Event.h"
#include "ui/layer/Property.h"
#include "ui/layer/Units.h"

namespace malvone {

class PictureBox;
class Window;

// Where a control belongs. An element of a control array has an index from 0 and shares the events
// of its array; a single control has none.
struct Seat
{
    Window& Owner;
    std::string_view Name;  // as in the code; constant data
    PictureBox* Container = nullptr;
    std::int16_t Index = -1;
    std::shared_ptr<Events> Shared = nullptr;
};

class Control : public PropertyOwner
{
public:
    virtual ~Control();

    std::string_view Name() const { return name_; }
    std::int16_t Index() const { return index_; }  // -1: no element of a control array
    std::string FullName() const;                  // "imgFeld(17)"
    Window& Owner() const { return owner_; }
    PictureBox* Container() const { return container_; }  // null: the window itself

    // A control takes input if it is enabled and both it and its container are visible.
    virtual bool Reachable() const;

    void Changed(Change what) override;
    // Tells the binding of an element that was added to a control array at run time.
    void TellAdded();

    Property<bool> Enabled{*this, Change::Enabled, true};
    Property<bool> Visible{*this, Change::Visible, true};

private:
    std::shared_ptr<Events> events_;

public:
    Event<>& Click;
    Event<Mouse>& MouseDown;
    Event<Mouse>& MouseUp;
    Event<Mouse>& MouseMove;

    void RaiseClick() const { Click.Raise(index_); }

protected:
    explicit Control(const Seat& seat);
    Events& AllEvents() { return *events_; }

private:
    Window& owner_;
    std::string_view name_;
    PictureBox* container_;
    std::int16_t index_;
};

// The text of an image's Tag together with its value as a number: each movement of the pointer
// reads the board a thousand times.
class TagText
{
public:
    TagText() = default;
    TagText(std::string text);              // NOLINT(google-explicit-constructor)
    TagText(const char* text);              // NOLINT(google-explicit-constructor)
    explicit TagText(std::int32_t number);  // its plain decimal digits

    const std::string& Text() const { return text_; }
    operator const std::string&() const { return text_; }  // NOLINT(google-explicit-constructor)
    // The value of decimal digits with an optional minus sign; 0 for any other text.
    std::int32_t Number() const { return number_; }

    // Nearly all are one digit long; for those, calling the library would take most of the time.
    friend bool operator==(const TagText& a, const TagText& b)
    {
        const bool single = a.text_.size() == 1 && b.text_.size() == 1;
        return single ? a.text_.front() == b.text_.front() : a.text_ == b.text_;
    }

private:
    std::string text_;
    std::int32_t number_ = 0;
};

// A control with a position and a size, in twips from the corner of its container or of the
// window's client area.
class Visual : public Control
{
public:
    Property<Twips> Left{*this, Change::Geometry, 0};
    Property<Twips> Top{*this, Change::Geometry, 0};
    Property<Twips> Width{*this, Change::Geometry, 0};
    Property<Twips> Height{*this, Change::Geometry, 0};
    TextProperty ToolTipText{*this, Change::Tip};
    Property<Pointer> MousePointer{*this, Change::Tip, Pointer::Default};
    Property<TagText> Tag{*this, Change::Data};

    void Move(Twips left, Twips top);
    void Move(Twips left, Twips top, Twips width, Twips height);

    // The corner in the window's client area, whatever the container.
    Twips WindowLeft() const;
    Twips WindowTop() const;
    // Visible, as is its container, and begins within the designed client area. What the design
    // puts outside stays hidden even if the window is enlarged.
    bool Seen() const;
    // Whether a point of the window's client area lies on the control.
    bool Covers(Twips x, Twips y) const;

    // The pointer ignores shapes and lines.
    virtual bool TakesPointer() const { return true; }
    // The arrow keys lead to the control as the pointer would: see Highlight.h. Fixed by the
    // design.
    bool ByArrows = false;
    // Buttons and text boxes can have the focus; the lowest number comes first in the tab order.
    virtual bool TakesFocus() const { return false; }
    std::int16_t TabIndex = 0;
    Property<bool> TabStop{*this, Change::State, true};

    // Takes from another control what a copy of it needs.
    void CopyFrom(const Visual& other);

protected:
    using Control::Control;
};

}  // namespace malvone
