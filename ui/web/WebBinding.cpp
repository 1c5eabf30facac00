// WebBinding.cpp: windows come, go and wait; events find their way to the layer.
#include "ui/web/WebBinding.h"

#include <algorithm>

#include "platform/CodePage.h"
#include "state/Spielstand.h"
#include "ui/layer/App.h"
#include "ui/layer/Keys.h"
#include "ui/layer/PointerRouting.h"
#include "ui/web/Elements.h"
#include "ui/web/Page.h"
#include "ui/windows/FrmHintergrund.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::web {
namespace {

Window* WindowNamed(const std::string& name)
{
    InstanceBase* const instance = InstanceBase::Find(name);
    return instance != nullptr ? instance->Current() : nullptr;
}

// Null where the control has gone since the page has named it.
Control* ControlNamed(const std::string& id)
{
    const std::size_t dot = std::min(id.find('.'), id.size() - 1);
    const Window* const window = WindowNamed(id.substr(0, dot));
    return window != nullptr ? window->Find(id.substr(dot + 1)) : nullptr;
}

std::vector<Picture> PicturesOf(const Window& window)
{
    std::vector<Picture> pictures;
    for (const Visual* const visual : window.FrontToBack()) {
        if (const auto* const image = dynamic_cast<const Image*>(visual)) {
            pictures.push_back(image->Picture);
        }
    }
    return pictures;
}

// What would hang over the edge of the page could not be reached.
void KeepOnScreen(Window& window)
{
    window.Move(std::max<Twips>(0, std::min<Twips>(window.Left, Screen.Width - window.Width)),
                std::max<Twips>(0, std::min<Twips>(window.Top, Screen.Height - window.Height)));
}

// As if the player pointed at the middle of the control and clicked.
void Press(const Visual& visual)
{
    Window& window = visual.Owner();
    Mouse mouse{0, 0, visual.WindowLeft() + visual.Width / 2,
                visual.WindowTop() + visual.Height / 2};
    PointerMoved(window, mouse);
    mouse.Button = kLeftButton;
    PointerPressed(window, mouse);
    PointerReleased(window, mouse);
}

}  // namespace

void WebBinding::Run()
{
    while (!App.Ended()) {
        HandleNext();
    }
}

void WebBinding::RunModal(Window& window)
{
    while (!ModalOver(window)) {
        HandleNext();
    }
}

Twips WebBinding::ScreenWidth()
{
    return static_cast<Twips>(Ask("width"));
}

Twips WebBinding::ScreenHeight()
{
    return static_cast<Twips>(Ask("height"));
}

// The page is drawn as large as the window with the menu fits it.
void WebBinding::WindowLoaded(Window& window)
{
    window.Height = window.ClientHeight + Above(window);
    if (!window.MenuEntries().empty()) {
        Tell("fit", std::to_string(window.Width), std::to_string(window.Height));
    }
}

void WebBinding::WindowShown(Window& window, ShowMode /*mode*/)
{
    const auto form = std::find_if(forms_.begin(), forms_.end(),
                                   [&](const Form& f) { return f.Model == &window; });
    if (form == forms_.end()) {
        KeepOnScreen(window);
        MakeForm(window);
    } else {
        std::rotate(form, form + 1, forms_.end());
    }
}

// The elements stand in the order in which they are read.
void WebBinding::MakeForm(Window& window)
{
    Put(window);
    Form form{&window, SpokenOn(window), {}};
    for (const Spoken& spoken : form.Said) {
        Put(*spoken.Where);
        Put(spoken, form.Names.emplace_back(NameOf(spoken)));
    }
    for (const Control* const control : window.Controls()) {
        Put(*control);
    }
    forms_.push_back(std::move(form));
}

void WebBinding::WindowHidden(Window& window)
{
    WindowUnloaded(window);
}

void WebBinding::WindowUnloaded(Window& window)
{
    std::erase_if(forms_, [&](const Form& form) { return form.Model == &window; });
    std::erase_if(changed_, [&](const Control* control) { return &control->Owner() == &window; });
    dragged_ = dragged_ == &window ? nullptr : dragged_;
}

void WebBinding::ControlChanged(Control& control, Change what)
{
    if (const auto* const timer = dynamic_cast<Timer*>(&control)) {
        Tell("timer", IdOf(control), timer->Running() ? std::to_string(timer->Interval) : "");
    } else if (control.Owner().Shown() && what != Change::Data) {
        changed_.insert(&control);
    }
}

void WebBinding::DragWindow(Window& window)
{
    dragged_ = &window;
}

void WebBinding::Ended()
{
    Tell("end");
}

// Before it waits, the program shows what has become different.
void WebBinding::ShowChanges()
{
    for (const Control* const control : changed_) {
        Put(*control);
    }
    changed_.clear();
    TellScreenReader();
    std::string order;
    for (const Form& form : forms_) {
        Put(*form.Model);
        order += std::string(form.Model->Name()) + " ";
    }
    const Window* const modal = App.TopModal();
    Tell("arrange", order, modal != nullptr ? std::string(modal->Name()) : "");
    const Window* const front = modal != nullptr ? modal : frmTessel.Current();
    const Visual* focus = front != nullptr ? front->Place() : nullptr;
    if (front != nullptr && dynamic_cast<const TextBox*>(front->Focus()) != nullptr) {
        focus = front->Focus();
    }
    Tell("focus", focus != nullptr ? IdOf(*focus) : "");
}

void WebBinding::TellScreenReader()
{
    for (Form& form : forms_) {
        for (std::size_t i = 0; i < form.Said.size(); ++i) {
            std::string name = NameOf(form.Said[i]);
            if (name != form.Names[i]) {
                Put(form.Said[i], name);
                form.Names[i] = std::move(name);
            }
        }
    }
    if (const std::string news = reporter_.News(); !news.empty()) {
        Tell("say", news);
    }
}

void WebBinding::HandleNext()
{
    ShowChanges();
    const PageEvent event = NextEvent(!Stand.KeinSpielBegonnen);
    const EventScope scope;
    if (event.Kind == "key") {
        KeyPressed(event);
    } else if (event.Kind == "resize") {
        FitScreen();
    } else if (Window* const window = WindowNamed(event.Target)) {
        if (event.Kind == "close") {
            RaiseClose(*window);
        } else {
            Pointed(*window, event);
        }
    } else if (Control* const control = ControlNamed(event.Target)) {
        Handle(*control, event);
    }
}

void WebBinding::Handle(Control& control, const PageEvent& event)
{
    auto* const box = dynamic_cast<TextBox*>(&control);
    if (auto* const timer = dynamic_cast<Timer*>(&control)) {
        RaiseTimer(*timer);
    } else if (event.Kind == "menu") {
        RaiseClick(control);
    } else if (event.Kind == "press") {
        Press(dynamic_cast<Visual&>(control));
    } else if (box != nullptr && App.TakesInput(box->Owner())) {
        box->SetFocus();
        if (event.Kind == "focus") {
            return;
        }
        const std::string kept = KeepTypable(event.Text);
        const auto refused = CharacterCount(event.Text) - CharacterCount(kept);
        box->Text = kept;
        box->SelStart =
            static_cast<std::int32_t>(event.Numbers[0]) - static_cast<std::int32_t>(refused);
        box->SelLength = 0;
        changed_.insert(box);  // the page has to forget what was refused
    }
}

void WebBinding::Pointed(Window& window, const PageEvent& event)
{
    const auto [x, y, button, shift, finger] = event.Numbers;
    const Mouse mouse{static_cast<std::int16_t>(button), static_cast<std::int16_t>(shift),
                      x - window.Left, y - window.Top - Above(window)};
    if (event.Kind == "down") {
        if (&window == frmHintergrund.Current()) {
            RaiseActivate(window);
        } else if (mouse.Y < 0 && App.TakesInput(window)) {
            dragged_ = &window;
        } else if (finger != 0) {
            Touched(window, mouse);
        } else {
            PointerPressed(window, mouse);
        }
    } else if (dragged_ == &window && event.Kind == "move") {
        window.Move(window.Left + x - pointerX_, window.Top + y - pointerY_);
    } else if (event.Kind == "move") {
        PointerMoved(window, mouse);
    } else {
        if (dragged_ == nullptr && !pointing_) {
            PointerReleased(window, mouse);
        }
        dragged_ = nullptr;
        pointing_ = false;
    }
    pointerX_ = x;
    pointerY_ = y;
}

// A finger cannot point without touching. Where its coming changes what is seen, it has pointed;
// where nothing changes, it presses.
void WebBinding::Touched(Window& window, const Mouse& mouse)
{
    Mouse coming = mouse;
    coming.Button = 0;
    const std::vector<Picture> before = PicturesOf(window);
    PointerMoved(window, coming);
    pointing_ = before != PicturesOf(window);
    if (!pointing_) {
        PointerPressed(window, mouse);
    }
}

void WebBinding::KeyPressed(const PageEvent& event)
{
    Window* const window = App.TopModal() != nullptr ? App.TopModal() : frmTessel.Current();
    const Key key{static_cast<std::int16_t>(event.Numbers[0]),
                  static_cast<std::int16_t>(event.Numbers[1])};
    const bool heldDown = event.Numbers[2] != 0;
    if (window == nullptr || (heldDown && !MayRepeat(key))) {
        return;
    }
    if (!RouteKey(*window, key) && App.TakesInput(*window)) {
        Tell("openMenu", event.Text);
    }
}

// The page has got another size: the backdrop covers it, and the game stays in its middle with all
// windows that lie over it.
void WebBinding::FitScreen()
{
    const Twips right = (Screen.Width - frmTessel->Width) / 2 - frmTessel->Left;
    const Twips down = (Screen.Height - frmTessel->Height) / 2 - frmTessel->Top;
    for (const Form& form : forms_) {
        if (form.Model == frmHintergrund.Current()) {
            frmHintergrund->Form_Load();
        } else {
            form.Model->Move(form.Model->Left + right, form.Model->Top + down);
            KeepOnScreen(*form.Model);
        }
    }
}

}  // namespace malvone::web
