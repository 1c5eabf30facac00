// Elements.cpp: which properties the page hears of. How each looks stands in page.js.
#include "ui/web/Elements.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "ui/web/Page.h"
#include "ui/windows/PictureFiles.h"

namespace malvone::web {
namespace {

constexpr Twips kBar = 360;

// The properties of one element, a name and a value for each.
class Properties
{
public:
    template<class T>
    Properties& operator()(const char* name, const T& value)
    {
        text_ += (text_.empty() ? "" : "\x1e") + std::string(name) + "\x1f";
        if constexpr (std::is_same_v<T, bool>) {
            text_ += value ? "1" : "";
        } else if constexpr (std::is_arithmetic_v<T>) {
            const std::string number = std::to_string(value);
            text_ += number;
        } else {
            text_ += value;
        }
        return *this;
    }
    Properties& Font(const Font& font, Colour colour)
    {
        return (*this)("font", font.Size)("bold", font.Bold)("colour", colour);
    }
    // A picture in its own size, cut off where its place ends.
    Properties& Unscaled(const Picture& picture)
    {
        return (*this)("picture", FileOf(picture.Name()))("across", picture.Width());
    }
    void Tell(const std::string& id) const { web::Tell("put", id, text_); }

private:
    std::string text_;
};

std::string KeyName(Key key)
{
    std::string name = (key.Shift & kCtrlKey) != 0 ? "Control+" : "";
    name += (key.Shift & kAltKey) != 0 ? "Alt+" : "";
    if (key.Code >= kKeyF1) {
        return name + "F" + std::to_string(key.Code - kKeyF1 + 1);
    }
    return key.Code == 0 ? std::string() : name + static_cast<char>(key.Code);
}

std::string AccessKeyName(const std::string& caption)
{
    return KeyName({AccessKey(caption), kAltKey});
}

// What the design puts beside the client area stays out of sight.
bool IsSeen(const Visual& visual)
{
    const bool open = visual.Container() == nullptr || visual.Container()->Visible;
    return visual.Visible && open && visual.WindowLeft() < visual.Owner().ClientWidth &&
           visual.WindowTop() < visual.Owner().ClientHeight;
}

void PutEntry(const MenuEntry& entry)
{
    const std::string parent = entry.Parent() != nullptr ? IdOf(*entry.Parent()) : std::string();
    if (entry.Separator()) {
        Properties()("kind", "Separator")("parent", parent).Tell(IdOf(entry));
        return;
    }
    const std::string key = KeyName(entry.Shortcut);
    const std::string letter = AccessKeyName(entry.Caption);
    Properties()("kind", "MenuEntry")("parent", parent)("caption",
                                                        PlainCaption(entry.Caption.Get()))(
        "shortcut", key)("keys", parent.empty() ? letter : key)("letter", letter)(
        "enabled", entry.Enabled.Get())("hidden", !entry.Visible)("checked", entry.Checked.Get())
        .Tell(IdOf(entry));
}

void PutVisual(const Visual& visual)
{
    const std::vector<Visual*>& all = visual.Owner().FrontToBack();
    Properties element;
    element("left", visual.WindowLeft())("top", visual.WindowTop())("width", visual.Width.Get())(
        "height", visual.Height.Get())("hidden", !IsSeen(visual))("tip", visual.ToolTipText.Get())(
        "hand", visual.MousePointer == Pointer::Hand)("place", visual.Owner().Place() == &visual)(
        "level", std::distance(std::find(all.begin(), all.end(), &visual), all.end()));
    if (const auto* const image = dynamic_cast<const Image*>(&visual)) {
        element("kind", "Image")("picture", FileOf(image->Picture->Name()));
    } else if (const auto* const label = dynamic_cast<const Label*>(&visual)) {
        element("kind", "Label")("text", label->Caption.Get())
            .Font(label->TextFont, label->ForeColor)("centre", label->Align == Alignment::Centre)(
                "ground", label->Transparent ? -1 : label->BackColor);
    } else if (const auto* const panel = dynamic_cast<const PictureBox*>(&visual)) {
        element("kind", "PictureBox")("ground", panel->BackColor.Get())("border",
                                                                        panel->Border.Get())
            .Unscaled(panel->Picture);
    } else if (const auto* const box = dynamic_cast<const TextBox*>(&visual)) {
        element("kind", "TextBox")("value", box->Text.Get())("locked", box->Locked.Get())(
            "stop", box->TabStop && !box->Locked)("ground", box->BackColor.Get())
            .Font(box->TextFont, box->ForeColor)("select", std::to_string(box->SelStart) + " " +
                                                               std::to_string(box->SelLength));
    } else if (const auto* const button = dynamic_cast<const CommandButton*>(&visual)) {
        element("kind", "CommandButton")("keys", AccessKeyName(button->Caption))(
            "text", PlainCaption(button->Caption.Get()));
    } else if (const auto* const shape = dynamic_cast<const Shape*>(&visual)) {
        element("kind", "Shape")("ground", shape->FillColor.Get());
    } else if (const auto* const line = dynamic_cast<const Line*>(&visual)) {
        element("kind", "Line")("ground", line->BorderColor.Get())(
            "left", std::min<Twips>(line->X1, line->X2))("top",
                                                         std::min<Twips>(line->Y1, line->Y2))(
            "width", std::abs(line->X1 - line->X2) +
                         kTwipsPerPixel)("height", std::abs(line->Y1 - line->Y2) + kTwipsPerPixel);
    } else {
        element("kind", "List")("hidden", true);
    }
    element.Tell(IdOf(visual));
}

}  // namespace

Twips Above(const Window& window)
{
    const bool bar = window.BorderStyle == Border::FixedSingle || !window.MenuEntries().empty();
    return bar ? kBar : 0;
}

std::string IdOf(const Control& control)
{
    return std::string(control.Owner().Name()) + "." + control.FullName();
}

void Put(const Window& window)
{
    const bool page = !window.MenuEntries().empty();
    const bool silent = TitleOf(window) == "Form1";
    const char* const role = page ? "main" : IsMessage(window) ? "alertdialog" : "dialog";
    Properties()("kind", "Window")("left", window.Left.Get())("top", window.Top.Get())(
        "width", window.Width.Get())("height", window.Height.Get())("above", Above(window))(
        "ground", window.BackColor.Get())("role", silent ? "" : role)(
        "name", silent ? std::string() : TitleOf(window))(
        "title", page || Above(window) > 0 ? window.Caption.Get() : std::string())
        .Unscaled(window.Picture)
        .Tell(std::string(window.Name()));
}

void Put(const Control& control)
{
    if (const auto* const entry = dynamic_cast<const MenuEntry*>(&control)) {
        PutEntry(*entry);
    } else if (const auto* const visual = dynamic_cast<const Visual*>(&control)) {
        PutVisual(*visual);
    }
}

void Put(const Spoken& spoken, const std::string& name)
{
    constexpr const char* kRoles[] = {"img", "button", "button", ""};
    const bool caption = dynamic_cast<const Label*>(spoken.Where) && spoken.Painted.empty();
    Properties all;
    all("said", true)("role", caption ? "" : kRoles[static_cast<int>(spoken.Kind)])(
        "name", caption ? "" : name);
    if (spoken.Kind == SpokenKind::Button || spoken.Kind == SpokenKind::Cell) {
        all("stop", spoken.Kind == SpokenKind::Button);
    }
    all.Tell(IdOf(*spoken.Where));
}

}  // namespace malvone::web
