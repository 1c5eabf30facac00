// Control.cpp: where controls lie, whether they take input, and how they report changes.
#include "ui/layer/Control.h"

#include <utility>

#include "ui/layer/App.h"
#include "ui/layer/Binding.h"
#include "ui/layer/Controls.h"
#include "ui/layer/Number.h"
#include "ui/layer/Window.h"

namespace malvone {

Control::Control(const Seat& seat)
    : events_(seat.Shared ? seat.Shared : std::make_shared<Events>()), Click(events_->Click),
      MouseDown(events_->MouseDown), MouseUp(events_->MouseUp), MouseMove(events_->MouseMove),
      owner_(seat.Owner), name_(seat.Name), container_(seat.Container), index_(seat.Index)
{
    owner_.Add(*this);
}

Control::~Control() = default;

std::string Control::FullName() const
{
    std::string name(name_);
    return index_ < 0 ? name : name + "(" + std::to_string(index_) + ")";
}

bool Control::Reachable() const
{
    return Visible && Enabled && (container_ == nullptr || container_->Reachable());
}

void Control::Changed(Change what)
{
    if (owner_.instance_ != nullptr && !App.Ended()) {
        App.Binding().ControlChanged(*this, what);
    }
}

void Control::TellAdded()
{
    if (owner_.instance_ != nullptr && !App.Ended()) {
        App.Binding().ControlAdded(*this);
    }
}

TagText::TagText(std::string text)
    : text_(std::move(text)), number_(NumberFrom<std::int32_t>(text_).value_or(0))
{}

TagText::TagText(const char* text) : TagText(std::string(text)) {}

TagText::TagText(std::int32_t number) : text_(std::to_string(number)), number_(number) {}

void Visual::Move(Twips left, Twips top)
{
    Left = left;
    Top = top;
}

void Visual::Move(Twips left, Twips top, Twips width, Twips height)
{
    Move(left, top);
    Width = width;
    Height = height;
}

Twips Visual::WindowLeft() const
{
    return Left + (Container() == nullptr ? 0 : Container()->WindowLeft());
}

Twips Visual::WindowTop() const
{
    return Top + (Container() == nullptr ? 0 : Container()->WindowTop());
}

bool Visual::Seen() const
{
    return Visible && (Container() == nullptr || Container()->Visible) &&
           WindowLeft() < Owner().ClientWidth && WindowTop() < Owner().ClientHeight;
}

bool Visual::Covers(Twips x, Twips y) const
{
    const Twips left = WindowLeft();
    const Twips top = WindowTop();
    return x >= left && x < left + Width && y >= top && y < top + Height;
}

void Visual::CopyFrom(const Visual& other)
{
    Move(other.Left, other.Top, other.Width, other.Height);
    Enabled = other.Enabled.Get();
    ToolTipText = other.ToolTipText.Get();
    MousePointer = other.MousePointer.Get();
    Tag = other.Tag.Get();
    ByArrows = other.ByArrows;
}

}  // namespace malvone
