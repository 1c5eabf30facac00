// WebBinding.cpp: windows come, go and wait; events find their way to the layer.
#include "ui/web/WebBinding.h"

#include <algorithm>
#include <utility>

#include "platform/CodePage.h"
#include "state/Spielstand.h"
#include "ui/layer/App.h"
#include "ui/layer/Instance.h"
#include "ui/layer/Keys.h"
#include "ui/layer/PointerRouting.h"
#include "ui/web/Elements.h"
#include "ui/web/Page.h"
#include "ui/windows/FrmHintergrund.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::web {
namespace {

using emscripten::val;

// What would hang over the edge of the page could not be reached.
void KeepOnScreen(Window& window)
{
    window.Move(std::max<Twips>(0, std::min<Twips>(window.Left, Screen.Width - window.Width)),
                std::max<Twips>(0, std::min<Twips>(window.Top, Screen.Height - window.Height)));
}

bool IsTypedInto(const Window& window)
{
    const auto* const box = dynamic_cast<const TextBox*>(window.Focus());
    return box != nullptr && !box->Locked;
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
    return Ask<Twips>("width");
}

Twips WebBinding::ScreenHeight()
{
    return Ask<Twips>("height");
}

void WebBinding::WindowLoaded(Window& window)
{
    const bool main = window.Role == WindowRole::Main;
    window.Width = main ? Ask<Twips>("mainWidth") : window.ClientWidth;
    window.Height = main ? Ask<Twips>("mainHeight") : window.ClientHeight + Above(window);
}

// The elements stand in the order in which they are read.
void WebBinding::WindowShown(Window& window, ShowMode /*mode*/)
{
    const auto shown = std::find_if(forms_.begin(), forms_.end(),
                                    [&](const Form& form) { return form.Model == &window; });
    if (shown != forms_.end()) {
        std::rotate(shown, shown + 1, forms_.end());
        return;
    }
    KeepOnScreen(window);
    Form& form = forms_.emplace_back(Form{&window, {}});
    for (const Spoken& spoken : SpokenOn(window)) {
        Touch(*spoken.Where);
        form.Said.emplace_back(spoken, "");
    }
    for (const Control* const control : window.Controls()) {
        Touch(*control);
    }
}

void WebBinding::WindowHidden(Window& window)
{
    WindowUnloaded(window);
}

void WebBinding::WindowUnloaded(Window& window)
{
    Ask("remove", IdOf(window));
    std::erase_if(forms_, [&](const Form& form) { return form.Model == &window; });
    std::erase_if(changed_, [&](const Control* control) { return &control->Owner() == &window; });
    dragged_ = dragged_ == &window ? nullptr : dragged_;
}

void WebBinding::ControlChanged(Control& control, Change what)
{
    if (const auto* const timer = dynamic_cast<Timer*>(&control)) {
        Ask("timer", IdOf(control), timer->Running() ? timer->Interval.Get() : 0);
    } else if (control.Owner().Shown() && what != Change::Data) {
        Touch(control);
    }
}

void WebBinding::Touch(const Control& control)
{
    if (std::find(changed_.begin(), changed_.end(), &control) == changed_.end()) {
        changed_.push_back(&control);
    }
}

void WebBinding::DragWindow(Window& window)
{
    dragged_ = &window;
}

void WebBinding::Ended()
{
    Ask("end");
}

// Before it waits, the program shows what has become different; where that is much, the browser
// goes on in between.
void WebBinding::ShowChanges()
{
    constexpr std::size_t kStep = 20;
    int level = 0;
    for (const Form& form : forms_) {
        Put(*form.Model, ++level);
    }
    for (std::size_t i = 0; i < changed_.size(); ++i) {
        Put(*changed_[i]);
        if (i % kStep == kStep - 1) {
            Ask<val>("pause").await();
        }
    }
    changed_.clear();
    for (Form& form : forms_) {
        for (auto& [spoken, told] : form.Said) {
            const std::string name = NameOf(spoken);
            if (std::string said = name + '\n' + DescriptionOf(spoken); said != told) {
                Put(spoken, name);
                told = std::move(said);
            }
        }
    }
    if (const std::string news = reporter_.News(); !news.empty()) {
        Ask("say", news);
    }
    const Window* const front = App.KeyWindow();
    if (front != nullptr) {
        const auto* const box = dynamic_cast<const TextBox*>(front->Focus());
        const Visual* const focus = box != nullptr ? box : front->Highlighted();
        Ask("focus", focus != nullptr ? IdOf(*focus) : IdOf(*front));
    }
}

// While there is a game that leaving the page would lose, the browser asks before the page goes.
void WebBinding::HandleNext()
{
    ShowChanges();
    const val event = Ask<val>("nextEvent", !Stand.KeinSpielBegonnen).await();
    const EventScope scope;
    const auto kind = event["kind"].as<std::string>();
    // A window, or a control as in "frmTessel.lblNeu". It may have gone since the page has named
    // it.
    const auto target = event["target"].as<std::string>();
    const std::size_t dot = std::min(target.find('.'), target.size());
    const InstanceBase* const instance = InstanceBase::Find(target.substr(0, dot));
    Window* const window = instance != nullptr ? instance->Current() : nullptr;
    if (kind == "key") {
        KeyPressed(event);
    } else if (kind == "resize") {
        FitScreen();
    } else if (window != nullptr && dot == target.size()) {
        Pointed(*window, kind, event);
    } else if (window != nullptr && window->Find(target.substr(dot + 1)) != nullptr) {
        Used(*window->Find(target.substr(dot + 1)), kind, event);
    }
}

void WebBinding::Used(Control& control, const std::string& kind, const val& event)
{
    if (auto* const timer = dynamic_cast<Timer*>(&control)) {
        RaiseTimer(*timer);
    } else if (auto* const entry = dynamic_cast<MenuEntry*>(&control)) {
        RaiseClick(*entry);
    } else if (kind == "press") {
        Press(dynamic_cast<Visual&>(control));
    } else if (auto& box = dynamic_cast<TextBox&>(control); App.TakesInput(box.Owner())) {
        box.SetFocus();
        if (kind == "text") {
            Typed(box, event["text"].as<std::string>(), event["caret"].as<std::int32_t>());
        }
    }
}

// Where nothing would be left of what was typed, the text stays as it was.
void WebBinding::Typed(TextBox& box, const std::string& text, std::int32_t caret)
{
    const std::string kept = KeepTypable(text);
    if (!kept.empty() || text.empty()) {
        const std::size_t refused = CharacterCount(text) - CharacterCount(kept);
        box.Text = kept;
        box.SelStart = caret - static_cast<std::int32_t>(refused);
        box.SelLength = 0;
    }
    Touch(box);  // the page has to forget what was refused
}

void WebBinding::Pointed(Window& window, const std::string& kind, const val& event)
{
    if (kind == "close") {
        RaiseClose(window);
        return;
    }
    const Twips x = event["x"].as<Twips>() - window.Left;
    const Twips y = event["y"].as<Twips>() - window.Top;
    const Mouse mouse{event["button"].as<std::int16_t>(), event["shift"].as<std::int16_t>(), x,
                      y - Above(window)};
    if (kind == "move" && dragged_ == &window) {
        window.Move(window.Left + x - grip_.X, window.Top + y - grip_.Y);
    } else if (kind == "move") {
        PointerMoved(window, mouse);
    } else if (kind == "up") {
        if (std::exchange(dragged_, nullptr) == &window) {
            KeepOnScreen(window);  // beyond the page's edge it could not be reached
        }
        PointerReleased(window, mouse);
    } else if (window.Role == WindowRole::Backdrop) {
        RaiseActivate(window);
    } else if (kind == "finger") {
        FingerPressed(window, mouse);
        PointerReleased(window, mouse);
    } else {
        grip_ = Mouse{0, 0, x, y};
        dragged_ = mouse.Y < 0 && App.TakesInput(window) ? &window : nullptr;
        PointerPressed(window, mouse);
    }
}

void WebBinding::KeyPressed(const val& event)
{
    Window* const window = App.KeyWindow();
    const Key key{event["code"].as<std::int16_t>(), event["shift"].as<std::int16_t>()};
    if (window == nullptr || (event["held"].as<bool>() && !MayRepeat(key))) {
        return;
    }
    if (RouteKey(*window, key) || !App.TakesInput(*window)) {
        return;
    }
    if (key == Key{kKeyEsc, 0} && window->BorderStyle == Border::FixedSingle &&
        !IsTypedInto(*window)) {
        RaiseClose(*window);  // as everywhere on pages
    } else {
        Ask("openMenu", event["text"]);
    }
}

// The page has got another size: the backdrop covers it, and the game stays in its middle with all
// windows that lie over it.
void WebBinding::FitScreen()
{
    for (const Form& form : forms_) {
        WindowLoaded(*form.Model);
    }
    const Twips right = (Screen.Width - frmTessel->Width) / 2 - frmTessel->Left;
    const Twips down = (Screen.Height - frmTessel->Height) / 2 - frmTessel->Top;
    for (const Form& form : forms_) {
        if (form.Model->Role == WindowRole::Backdrop) {
            frmHintergrund->Form_Load();
        } else {
            form.Model->Move(form.Model->Left + right, form.Model->Top + down);
            KeepOnScreen(*form.Model);
        }
    }
}

}  // namespace malvone::web
