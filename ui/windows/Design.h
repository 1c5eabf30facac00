// Design.h: the rows of the tables that hold the windows' design.
#pragma once

#include <span>
#include <string_view>

#include "ui/layer/Window.h"
#include "ui/windows/Pictures.h"

namespace malvone::design {

// Left, Top, Width, Height in twips, from the corner of the container or of the client area.
struct Bounds
{
    Visual& control;
    Twips left;
    Twips top;
    Twips width;
    Twips height;
};

// A label's words and look; colours as #RRGGBB.
struct LabelLook
{
    Label& label;
    std::string_view caption;
    Font font;
    std::uint32_t foreColor;
    Alignment alignment;
};

// The tool tip of a control, and whether the pointer becomes a hand over it.
struct Tip
{
    Visual& control;
    Pointer pointer;
    std::string_view text;
};

// The picture that an image shows at first, by its name in the bank.
struct Shows
{
    Image& image;
    std::string_view picture;
};

struct Entry
{
    MenuEntry& entry;
    std::string_view caption;
    Key shortcut;
};

inline void Apply(std::span<const Bounds> rows)
{
    for (const Bounds& row : rows) {
        row.control.Move(row.left, row.top, row.width, row.height);
    }
}

inline void Apply(std::span<const LabelLook> rows)
{
    for (const LabelLook& row : rows) {
        row.label.Caption = std::string(row.caption);
        row.label.TextFont = row.font;
        row.label.ForeColor = Rgb(row.foreColor);
        row.label.Align = row.alignment;
    }
}

inline void Apply(std::span<const Tip> rows)
{
    for (const Tip& row : rows) {
        row.control.MousePointer = row.pointer;
        row.control.ToolTipText = std::string(row.text);
    }
}

inline void Apply(std::span<const Shows> rows)
{
    for (const Shows& row : rows) {
        row.image.Picture = PictureNamed(row.picture);
    }
}

inline void Apply(std::span<const Entry> rows)
{
    for (const Entry& row : rows) {
        row.entry.Caption = std::string(row.caption);
        row.entry.Shortcut = row.shortcut;
    }
}

}  // namespace malvone::design
