// Elements.cpp: what the page hears of windows and controls. How it looks stands in page.css.
#include "ui/web/Elements.h"

#include <emscripten.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <type_traits>

#include "ui/layer/App.h"
#include "ui/web/Page.h"

// clang-format off
EM_JS(void, TellText, (const char* name, const char* value), {
    page.told[UTF8ToString(name)] = UTF8ToString(value);
})
EM_JS(void, TellNumber, (const char* name, double value), {
    page.told[UTF8ToString(name)] = String(value);
})
// clang-format on

namespace malvone::web {
namespace {

std::string Css(Colour colour)
{
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%06X",
                  static_cast<unsigned>(Rgb(static_cast<std::uint32_t>(colour))));
    return text.data();
}

// The properties of an element by name. Those that begin with dashes are of its style; page.css
// makes lengths and colours of them.
class Element
{
public:
    template<class T>
    const Element& operator()(const char* name, const T& value) const
    {
        if constexpr (std::is_same_v<T, bool>) {
            TellText(name, value ? "true" : "");
        } else if constexpr (std::is_arithmetic_v<T>) {
            TellNumber(name, static_cast<double>(value));
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
    // The element lies in another one, of the page or put before.
    void Put(const char* kind, const std::string& id, const std::string& inside) const
    {
        Ask("put", std::string(kind), id, inside);
    }
};

std::string KeyName(Key key, const char* control = "Control+")
{
    std::string name = (key.Shift & kCtrlKey) != 0 ? control : "";
    name += (key.Shift & kAltKey) != 0 ? "Alt+" : "";
    if (key.Code >= kKeyF1) {
        return name + "F" + std::to_string(key.Code - kKeyF1 + 1);
    }
    return key.Code == 0 ? std::string() : name + static_cast<char>(key.Code);
}

// The list that an entry opens; without one, the menu bar.
std::string ListOf(const Window& window, const MenuEntry* entry)
{
    return (entry != nullptr ? IdOf(*entry) : IdOf(window)) + " menu";
}

// Entries are told before those of their lists, so that each list comes to stand behind its entry.
void PutEntry(const MenuEntry& entry)
{
    const Window& window = entry.Owner();
    const MenuEntry* const parent = entry.Parent();
    const std::string list = ListOf(window, parent);
    if (parent == nullptr) {
        Element()("role", "menubar").Put("Menu", list, IdOf(window));
    } else {
        Element()("aria-haspopup", "menu").Put("MenuEntry", IdOf(*parent), "");
        Element()("role", "menu")("hidden", true)
            .Put("Menu", list, ListOf(window, parent->Parent()));
    }
    if (entry.Separator()) {
        Element()("role", "separator").Put("Separator", IdOf(entry), list);
        return;
    }
    const char letter = AccessKey(entry.Caption.Get());
    const Key key = parent != nullptr ? entry.Shortcut : Key{letter, kAltKey};
    const Element element;
    element("textContent", PlainCaption(entry.Caption.Get()));
    element("data-letter", letter == 0 ? std::string() : std::string(1, letter));
    element("aria-keyshortcuts", KeyName(key))("data-shortcut", KeyName(entry.Shortcut, "Strg+"));
    element("disabled", !entry.Enabled)("hidden", !entry.Visible);
    // Where one entry of a list is checked, all are a choice.
    const std::vector<MenuEntry*> all = window.MenuEntries();
    const bool choice = std::any_of(all.begin(), all.end(), [&](const MenuEntry* other) {
        return other->Parent() == parent && other->Checked;
    });
    element("role", choice ? "menuitemradio" : "menuitem");
    element("aria-checked", choice ? entry.Checked ? "true" : "false" : "");
    element.Put("MenuEntry", IdOf(entry), list);
}

// What only controls of its kind have. The kind names the element's class.
const char* Describe(const Visual& visual, const Element& element)
{
    if (const auto* const image = dynamic_cast<const Image*>(&visual)) {
        element("data-picture", image->Picture->File());
        return "Image";
    }
    if (const auto* const label = dynamic_cast<const Label*>(&visual)) {
        std::string text = label->Caption;
        std::erase(text, '\r');
        element("textContent", text);
        element.Words(label->TextFont, label->ForeColor);
        element("--align", label->Align == Alignment::Centre ? "center" : "left");
        element("--ground", label->Transparent ? "transparent" : Css(label->BackColor));
        return "Label";
    }
    if (const auto* const panel = dynamic_cast<const PictureBox*>(&visual)) {
        element("--ground", Css(panel->BackColor));
        element("--across", panel->Picture->Width());
        element("data-border", panel->Border.Get())("data-picture", panel->Picture->File());
        return "PictureBox";
    }
    if (const auto* const box = dynamic_cast<const TextBox*>(&visual)) {
        element.Words(box->TextFont, box->ForeColor);
        element("--ground", Css(box->BackColor));
        element("value", box->Text.Get());
        element("readOnly", box->Locked.Get())("tabIndex", box->TabStop && !box->Locked ? 0 : -1);
        element("selectionEnd", box->SelStart + box->SelLength)("selectionStart",
                                                                box->SelStart.Get());
        return "TextBox";
    }
    if (const auto* const button = dynamic_cast<const CommandButton*>(&visual)) {
        element("aria-keyshortcuts", KeyName({AccessKey(button->Caption.Get()), kAltKey}));
        element("textContent", PlainCaption(button->Caption.Get()));
        return "CommandButton";
    }
    if (const auto* const shape = dynamic_cast<const Shape*>(&visual)) {
        element("--ground", Css(shape->FillColor));
        return "Shape";
    }
    if (const auto* const line = dynamic_cast<const Line*>(&visual)) {
        const auto [left, right] = std::minmax<Twips>(line->X1, line->X2);
        const auto [top, bottom] = std::minmax<Twips>(line->Y1, line->Y2);
        element.Bounds(left, top, right - left + kTwipsPerPixel, bottom - top + kTwipsPerPixel);
        element("--ground", Css(line->BorderColor));
        return "Line";
    }
    return "List";
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
    element.Put(kind, IdOf(visual), IdOf(visual.Owner()));
}

}  // namespace

Twips Above(const Window& window)
{
    const bool bar = window.BorderStyle == Border::FixedSingle || !window.MenuEntries().empty();
    return bar ? Ask<Twips>("bar") : 0;
}

std::string IdOf(const Window& window)
{
    return std::string(window.Name());
}

std::string IdOf(const Control& control)
{
    return IdOf(control.Owner()) + "." + control.FullName();
}

void Put(const Window& window, int level)
{
    const Element element;
    element("--level", level)("data-bar", Above(window) > 0)("--across", window.Picture->Width());
    element.Bounds(window.Left, window.Top, window.Width, window.Height);
    element("--ground", Css(window.BackColor));
    const bool main = window.Role == WindowRole::Main;
    const bool message = window.Role == WindowRole::Message;
    const bool silent = window.Role == WindowRole::Backdrop;
    const Window* const modal = App.TopModal();
    const std::string words = IdOf(window) + ".lblMeldung " + IdOf(window) + ".lblTitel";
    element("data-picture", window.Picture->File());
    element("role", main ? "main" : message ? "alertdialog" : "dialog");
    element("aria-label", TitleOf(window))("aria-describedby", message ? words : "");
    element("aria-hidden", silent)("aria-modal", modal == &window);
    element("inert", modal != nullptr && modal != &window);
    element("data-title", main || Above(window) == 0 ? std::string() : window.Caption.Get());
    element.Put("Window", IdOf(window), "screen");
    if (main) {
        Element()("textContent", window.Caption.Get()).Put("", "title", "");
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

void Put(const Spoken& spoken, const std::string& name)
{
    const bool presses = spoken.Kind == SpokenKind::Button || spoken.Kind == SpokenKind::Cell;
    const bool caption = dynamic_cast<const Label*>(spoken.Where) && spoken.Painted.empty();
    const Element element;
    element("aria-hidden", "")("aria-label", caption ? "" : name);
    if (spoken.Kind == SpokenKind::Cell) {
        element("aria-description", DescriptionOf(spoken));
    }
    if (spoken.Kind != SpokenKind::NameBox && !caption) {
        element("role", presses ? "button" : "img");
    }
    if (presses) {
        element("tabIndex", spoken.Kind == SpokenKind::Button ? 0 : -1);
    }
    element.Put("", IdOf(*spoken.Where), "");
}

}  // namespace malvone::web
