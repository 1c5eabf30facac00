// Window.h: a window with its controls, its life and its events.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/layer/ControlArray.h"
#include "ui/layer/Controls.h"
#include "ui/layer/Menu.h"
#include "ui/layer/Picture.h"

namespace malvone {

class InstanceBase;

enum class ShowMode { Modeless = 0, Modal = 1 };

enum class Border { None, FixedSingle, Sizable };

// What a window is to the program, whatever it holds.
enum class WindowRole {
    Plain,     // the player opens and closes it
    Main,      // the game itself: keys are its own while no window is modal
    Backdrop,  // lies behind the game and says nothing
    Message,   // says or asks something and closes again
};

// Why a window is to close: the player or the system closes it, or the game unloads it. A question
// that is closed the first way has no answer.
enum class UnloadMode : std::int16_t { TitleBar = 0, Code = 1 };

// A window's Visible: reads whether the window is shown; setting it shows or hides the window.
class VisibleProperty
{
public:
    explicit VisibleProperty(Window& window) : window_(window) {}
    VisibleProperty& operator=(bool visible);
    operator bool() const;  // NOLINT(google-explicit-constructor)

private:
    Window& window_;
};

// A window overrides the events that it answers, which are named Form_. It defines its destructor
// beside its constructor, so that its table of functions lies where it is designed.
class Window : public PropertyOwner
{
public:
    virtual ~Window();

    std::string_view Name() const { return name_; }

    // The corner of the outer frame on the screen. Width and Height include frame and menu bar if
    // the binding has added them, else they are those of the client area.
    Property<Twips> Left{*this, Change::Geometry, 0};
    Property<Twips> Top{*this, Change::Geometry, 0};
    Property<Twips> Width{*this, Change::Geometry, 0};
    Property<Twips> Height{*this, Change::Geometry, 0};
    TextProperty Caption{*this, Change::Text};
    Property<malvone::Picture> Picture{*this, Change::Picture};
    Property<malvone::Picture> Icon{*this, Change::Picture};
    Property<Colour> BackColor{*this, Change::Look, Rgb(0xFFFFFF)};
    VisibleProperty Visible{*this};

    // Fixed by the design.
    WindowRole Role = WindowRole::Plain;
    Twips ClientWidth = 0;
    Twips ClientHeight = 0;
    Border BorderStyle = Border::None;
    bool ShowInTaskbar = true;
    bool MinButton = false;
    bool MaxButton = false;
    bool KeyPreview = true;

    // Whether a point lies within the designed client area; what the design puts outside it is
    // neither seen nor pointed at.
    bool InClient(Twips x, Twips y) const
    {
        return x >= 0 && y >= 0 && x < ClientWidth && y < ClientHeight;
    }

    void Move(Twips left, Twips top);
    void Move(Twips left, Twips top, Twips width, Twips height);

    // Shows the window and tells it that it is active. A modal Show returns once the window has
    // been hidden or unloaded, or the program is over.
    void Show(ShowMode mode = ShowMode::Modeless);
    void Hide();
    // Asks Form_QueryUnload, then Form_Unload, then takes the window away. False: it was refused.
    bool Unload(UnloadMode mode = UnloadMode::Code);

    // False for a window that has been taken away and waits for its destruction.
    bool Loaded() const { return instance_ != nullptr; }
    bool Shown() const { return shown_; }
    bool Modal() const;

    // All controls, menu entries and timers too, in the order of their declaration; elements of
    // control arrays made at run time come last.
    const std::vector<Control*>& Controls() const { return controls_; }
    // Everything that can lie on the window, from front to back: children before their container.
    const std::vector<Visual*>& FrontToBack() const;
    std::vector<MenuEntry*> MenuEntries() const;
    // The control of a name such as "imgFeld(17)" or "lblNeu"; null if there is none.
    Control* Find(std::string_view fullName) const;

    // The control with the focus; null if there is none.
    Visual* Focus() const { return focus_; }
    void SetFocus(Visual* control);

    // What is pressed: a control, or with null the window's own surface. No value: nothing.
    std::optional<Visual*> Pressed() const { return routed_.Pressed; }
    // Where the arrow keys have led to; null: nowhere. Bindings draw a frame there, and are told
    // when it comes and goes by Change::Highlight.
    Visual* Highlighted() const { return routed_.Highlighted; }
    // Lets the player drag the window by its surface: it follows the pointer until the button is
    // released; no control gets that release.
    void Drag();

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    // A handler that sets KeyCode to 0 has taken the key.
    virtual void Form_KeyDown(std::int16_t& /*KeyCode*/, std::int16_t /*Shift*/) {}
    // A handler that sets Cancel to anything but 0 refuses the closing.
    virtual void Form_QueryUnload(std::int16_t& /*Cancel*/, UnloadMode /*mode*/) {}
    virtual void Form_Unload() {}
    virtual void Form_MouseMove(const Mouse& /*mouse*/) {}

    void Changed(Change what) override;

protected:
    // Sizes are those of the client area.
    Window(std::string_view name, Twips clientWidth, Twips clientHeight);

    // For the declaration of a control. Controls are declared from front to back.
    Seat Named(std::string_view name, PictureBox* container = nullptr)
    {
        return Seat{*this, name, container, -1, nullptr};
    }

private:
    friend class Application;
    friend class Control;
    friend class InstanceBase;
    friend struct Routing;

    // What routing remembers from one event to the next. Nobody else writes it.
    struct Routed
    {
        std::optional<Visual*> Pressed;
        Visual* Highlighted = nullptr;
        // The control with ByArrows that the pointer, or a key, was on last.
        Visual* LastByArrows = nullptr;
        Twips PointerX = -1;  // where a binding last said it was
        Twips PointerY = -1;
    };

    std::string_view name_;
    InstanceBase* instance_ = nullptr;
    std::vector<Control*> controls_;
    mutable std::vector<Visual*> frontToBack_;
    Visual* focus_ = nullptr;
    Routed routed_;
    bool shown_ = false;

    void Add(Control& control);
    Visual* InitialFocus() const;
};

}  // namespace malvone
