// Controls.h: the kinds of control that the windows are made of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/layer/Control.h"
#include "ui/layer/Picture.h"

namespace malvone {

// Text that wraps at the label's width. CR LF breaks a line.
class Label final : public Visual
{
public:
    explicit Label(const Seat& seat) : Visual(seat) {}

    TextProperty Caption{*this, Change::Text};
    Property<Colour> ForeColor{*this, Change::Look, 0};
    Property<Colour> BackColor{*this, Change::Look, Rgb(0xFFFFFF)};
    Property<bool> Transparent{*this, Change::Look, true};
    Property<Alignment> Align{*this, Change::Look, Alignment::Left};
    Property<Font> TextFont{*this, Change::Look};
};

// A property that makes its image as large as its picture, unless the image stretches.
class ImagePicture : public Property<Picture>
{
public:
    ImagePicture(Visual& image, const Property<bool>& stretch);
    ImagePicture& operator=(const Picture& picture);
    ImagePicture& operator=(const ImagePicture& other);
    ImagePicture& operator=(const Property<Picture>& other) { return *this = other.Get(); }
    ~ImagePicture() = default;
    ImagePicture(const ImagePicture&) = delete;

private:
    Visual& image_;
    const Property<bool>& stretch_;
};

// Shows a picture. With Stretch off the image is as large as its picture, and keeps its size while
// it has none; with Stretch on the picture fills the image.
class Image final : public Visual
{
public:
    explicit Image(const Seat& seat) : Visual(seat) {}

    Property<bool> Stretch{*this, Change::Look, false};
    ImagePicture Picture{*this, Stretch};

    void CopyFrom(const Image& other);
};

// A panel that holds other controls in front of its own picture.
class PictureBox final : public Visual
{
public:
    explicit PictureBox(const Seat& seat) : Visual(seat) {}

    Property<malvone::Picture> Picture{*this, Change::Picture};
    Property<Colour> BackColor{*this, Change::Look, Rgb(0xFFFFFF)};
    Property<bool> Border{*this, Change::Look, false};
};

class CommandButton final : public Visual
{
public:
    explicit CommandButton(const Seat& seat) : Visual(seat) {}

    TextProperty Caption{*this, Change::Text};
    Property<bool> Default{*this, Change::State, false};  // Enter clicks it
    bool TakesFocus() const override { return true; }
};

// One line of text. Text holds only what the files can hold; SelStart and SelLength count
// characters.
class TextBox final : public Visual
{
public:
    explicit TextBox(const Seat& seat) : Visual(seat) {}

    TextProperty Text{*this, Change::Text};
    Property<bool> Locked{*this, Change::State, false};
    Property<std::int32_t> SelStart{*this, Change::Select, 0};
    Property<std::int32_t> SelLength{*this, Change::Select, 0};
    Property<Font> TextFont{*this, Change::Look};
    Property<Colour> ForeColor{*this, Change::Look, 0};
    Property<Colour> BackColor{*this, Change::Look, Rgb(0xFFFFFF)};

    void SetFocus();
    bool TakesFocus() const override { return true; }

    // Types or pastes: replaces the selection by those characters that a file can hold, and puts
    // the caret behind them. Does nothing while Locked, or if no such character is left.
    void Type(std::string_view text);
};

// A plain ordered list of texts.
class ListBox final : public Visual
{
public:
    explicit ListBox(const Seat& seat) : Visual(seat) {}

    void AddItem(std::string text);
    void Clear();
    std::int32_t ListCount() const { return static_cast<std::int32_t>(items_.size()); }
    // The item at an index from 0; the empty text for any other index.
    const std::string& List(std::int32_t index) const;
    void SetList(std::int32_t index, std::string text);  // ignores any other index

private:
    std::vector<std::string> items_;
};

// A filled rectangle.
class Shape final : public Visual
{
public:
    explicit Shape(const Seat& seat) : Visual(seat) {}

    Property<Colour> FillColor{*this, Change::Look, 0};
    bool TakesPointer() const override { return false; }
};

// A line of one pixel from (X1, Y1) to (X2, Y2), in twips.
class Line final : public Visual
{
public:
    explicit Line(const Seat& seat) : Visual(seat) {}

    Property<Twips> X1{*this, Change::Geometry, 0};
    Property<Twips> Y1{*this, Change::Geometry, 0};
    Property<Twips> X2{*this, Change::Geometry, 0};
    Property<Twips> Y2{*this, Change::Geometry, 0};
    Property<Colour> BorderColor{*this, Change::Look, 0};
    bool TakesPointer() const override { return false; }
};

// Raises its event every Interval milliseconds while it is enabled and Interval is above 0.
class Timer final : public Control
{
public:
    explicit Timer(const Seat& seat) : Control(seat), Tick(AllEvents().Timer) { Enabled = false; }

    Property<std::int32_t> Interval{*this, Change::State, 0};
    Event<>& Tick;

    bool Running() const { return Enabled && Interval > 0; }
};

// The letter behind the single "&" of a caption, as a capital; 0 where there is none.
char AccessKey(std::string_view caption);
// The caption as it is read: without the "&" of its access key.
std::string PlainCaption(std::string_view caption);

}  // namespace malvone
