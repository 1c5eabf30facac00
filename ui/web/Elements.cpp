// Elements.cpp: turns windows and controls into elements of the page. Their look is in page.css.
#include "ui/web/Elements.h"

#include <emscripten.h>

#include <algorithm>
#include <type_traits>

#include "ui/layer/App.h"
#include "ui/web/Page.h"

// clang-format off
EM_JS(void, TellText, (const char* name, const char* value), {
    page.told[UTF8ToString(name)] = UTF8ToString(value);
})
// clang-format on

namespace malvone::web {
namespace {

std::string Css(Colour colour)
{
    const auto part = [colour](int shift) { return std::to_string(colour >> shift & 0xFF); };
    return "rgb(" + part(0) + " " + part(8) + " " + part(16) + ")";
}

// Sets properties of an element by name. Names with dashes are custom properties, which page.css
// turns into lengths and colours.
class Element
{
public:
    template<class T>
    const Element& operator()(const char* name, const T& value) const
    {
        if constexpr (std::is_same_v<T, bool>) {
            TellText(name, value ? "true" : "");
        } else if constexpr (std::is_arithmetic_v<T>) {
            TellText(name, std::to_string(value).c_str());
        } else {
            TellText(name, std::string(value).c_str());
        }
        return *this;
    }
    const Element& Bounds(Twips left, Twips top, Twips width, Twips height) const
    {
        return (*this)("--left", left)("--top", top)("--width", width)("--height", height);
    }
    const Element& Words(const Font& font, Colour colour) const
    {
        constexpr float kTwipsPerPoint = 20;
        (*this)("--font", font.Size * kTwipsPerPoint)("--weight", font.Bold ? "bold" : "normal");
        return (*this)("--colour", Css(colour));
    }
    // Makes the element inside another one, or changes the one that is there.
    void Put(const std::string& id, const char* kind = "", const std::string& inside = "") const
    {
        Ask("put", id, std::string(kind), inside);
    }
};

std::string KeyName(Key key, const char* control)
{
    const std::string modifiers = (key.Shift & kCtrlKey) != 0  ? control
                                  : (key.Shift & kAltKey) != 0 ? "Alt+"
                                                               : "";
    if (key.Code >= kKeyF1) {
        return modifiers + "F" + std::to_string(key.Code - kKeyF1 + 1);
    }
    return key.Code == 0 ? "" : modifiers + static_cast<char>(key.Code);
}

// Entries lie in the list of their parent, or in the window's menu bar; the page makes both.
void PutEntry(const MenuEntry& entry)
{
    const MenuEntry* const parent = entry.Parent();
    const std::string inside = parent != nullptr ? IdOf(*parent) : IdOf(entry.Owner());
    if (entry.Separator()) {
        Element()("role", "separator").Put(IdOf(entry), "Separator", inside);
        return;
    }
    // If one entry of a list is checked, all of them are options of one choice.
    const std::vector<MenuEntry*> all = entry.Owner().MenuEntries();
    const bool choice = std::any_of(all.begin(), all.end(), [&](const MenuEntry* other) {
        return other->Parent() == parent && other->Checked;
    });
    const char letter = AccessKey(entry.Caption.Get());
    const Key key = parent != nullptr ? entry.Shortcut : Key{letter, kAltKey};
    const Element element;
    element("textContent", PlainCaption(entry.Caption.Get()))("data-letter",
                                                              std::string(1, letter));
    element("aria-keyshortcuts", KeyName(key, "Control+"));
    element("data-shortcut", KeyName(entry.Shortcut, "Strg+"));
    element("disabled", !entry.Enabled)("hidden", !entry.Visible)("role", choice ? "menuitemradio"
                                                                                 : "menuitem");
    element("aria-checked", !choice ? "" : entry.Checked ? "true" : "false");
    element.Put(IdOf(entry), "MenuEntry", inside);
}

// Sets what only this kind of control has, and gives the element's class. Buttons, lists and
// rectangles of the design lie outside the windows and are never seen.
const char* Describe(const Visual& visual, const Element& element)
{
    if (const auto* const image = dynamic_cast<const Image*>(&visual)) {
        element("data-picture", image->Picture->File());
        return "Image";
    }
    if (const auto* const label = dynamic_cast<const Label*>(&visual)) {
        std::string text = label->Caption;
        std::erase(text, '\r');
        element("textContent", text).Words(label->TextFont, label->ForeColor);
        element("--align", label->Align == Alignment::Centre ? "center" : "left");
        element("--ground", label->Transparent ? "transparent" : Css(label->BackColor));
        return "Label";
    }
    if (const auto* const panel = dynamic_cast<const PictureBox*>(&visual)) {
        element("--ground", Css(panel->BackColor))("data-picture", panel->Picture->File());
        element("data-border", panel->Border.Get());
        return "PictureBox";
    }
    if (const auto* const box = dynamic_cast<const TextBox*>(&visual)) {
        element.Words(box->TextFont, box->ForeColor)("--ground", Css(box->BackColor));
        element("tabIndex", box->TabStop && !box->Locked ? 0 : -1)("readOnly", box->Locked.Get());
        element("value", box->Text.Get())("selectionEnd", box->SelStart + box->SelLength);
        element("selectionStart", box->SelStart.Get());
        return "TextBox";
    }
    if (const auto* const line = dynamic_cast<const Line*>(&visual)) {
        const auto [left, right] = std::minmax<Twips>(line->X1, line->X2);
        const auto [top, bottom] = std::minmax<Twips>(line->Y1, line->Y2);
        element.Bounds(left, top, right - left + kTwipsPerPixel, bottom - top + kTwipsPerPixel);
        element("--ground", Css(line->BorderColor));
    }
    return "Line";
}

void PutVisual(const Visual& visual)
{
    const std::vector<Visual*>& all = visual.Owner().FrontToBack();
    const Element element;
    element("--level", std::distance(std::find(all.begin(), all.end(), &visual), all.end()));
    element.Bounds(visual.WindowLeft(), visual.WindowTop(), visual.Width, visual.Height);
    element("hidden", !visual.Seen())("title", visual.ToolTipText.Get());
    element("data-hand", visual.MousePointer == Pointer::Hand);
    element("data-highlight", visual.Owner().Highlighted() == &visual);
    const char* const kind = Describe(visual, element);
    element.Put(IdOf(visual), kind, IdOf(visual.Owner()));
}

}  // namespace

Twips Above(const Window& window)
{
    return window.BorderStyle != Border::None ? Length("bar") : 0;
}

std::string IdOf(const Window& window)
{
    return std::string(window.Name());
}

std::string IdOf(const Control& control)
{
    return IdOf(control.Owner()) + "." + control.FullName();
}

void Put(const Window& window)
{
    const std::string id = IdOf(window);
    const bool main = window.Role == WindowRole::Main;
    const bool message = window.Role == WindowRole::Message;
    const bool titled = window.BorderStyle == Border::FixedSingle;
    const Window* const modal = App.TopModal();
    const Element element;
    element.Bounds(window.Left, window.Top, window.Width, window.Height);
    element("--ground", Css(window.BackColor))("data-picture", window.Picture->File());
    element("role", main ? "main" : message ? "alertdialog" : "dialog");
    element("aria-label", TitleOf(window))("aria-modal", modal == &window);
    element("aria-describedby", message ? id + ".lblMeldung " + id + ".lblTitel" : "");
    element("aria-hidden", window.Role == WindowRole::Backdrop)("data-bar", Above(window) > 0);
    element("inert", modal != nullptr && modal != &window);
    element("data-title", titled ? window.Caption.Get() : "").Put(id, "Window", "screen");
    if (main) {
        Element()("textContent", window.Caption.Get()).Put("title");
    }
}

void Put(const Control& control)
{
    if (const auto* const entry = dynamic_cast<const MenuEntry*>(&control)) {
        PutEntry(*entry);
    } else if (const auto* const visual = dynamic_cast<const Visual*>(&control)) {
        PutVisual(*visual);
    }
}

void Put(const Spoken& spoken, const std::string& name, const std::string& description)
{
    const bool cell = spoken.Kind == SpokenKind::Cell;
    const bool presses = cell || spoken.Kind == SpokenKind::Button;
    const bool caption = dynamic_cast<const Label*>(spoken.Where) && spoken.Painted.empty();
    const Element element;
    element("aria-hidden", name.empty())("aria-label", caption ? "" : name);
    element("aria-description", cell ? description : "");
    if (spoken.Kind != SpokenKind::NameBox && !caption) {
        element("role", presses ? "button" : "img");
    }
    if (presses) {
        element("tabIndex", cell ? -1 : 0);
    }
    element.Put(IdOf(*spoken.Where));
}

}  // namespace malvone::web
