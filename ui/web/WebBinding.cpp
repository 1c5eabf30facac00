// WebBinding.cpp: shows windows and waits for events, which it passes on to the layer.
#include "ui/web/WebBinding.h"

#include <algorithm>

#include "platform/CodePage.h"
#include "state/Spielstand.h"
#include "ui/layer/App.h"
#include "ui/layer/Instance.h"
#include "ui/layer/Keys.h"
#include "ui/layer/PointerRouting.h"
#include "ui/web/Elements.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::web {
namespace {

using emscripten::val;

std::vector<Window*> ShownWindows()
{
    std::vector<Window*> shown;
    for (const InstanceBase* const instance : InstanceBase::All()) {
        if (Window* const window = instance->Current(); window != nullptr && window->Shown()) {
            shown.push_back(window);
        }
    }
    return shown;
}

// Nothing may hang over the edge of the page: it could not be reached.
void KeepOnScreen(Window& window)
{
    window.Move(std::max<Twips>(0, std::min<Twips>(window.Left, Screen.Width - window.Width)),
                std::max<Twips>(0, std::min<Twips>(window.Top, Screen.Height - window.Height)));
}

// The page has changed its size: the backdrop covers it again, and the game moves to its middle,
// with all windows in front of it.
void FitScreen(Binding& binding)
{
    const std::vector<Window*> all = ShownWindows();
    std::for_each(all.begin(), all.end(), [&](Window* window) { binding.WindowLoaded(*window); });
    const Twips right = (Screen.Width - frmTessel->Width) / 2 - frmTessel->Left;
    const Twips down = (Screen.Height - frmTessel->Height) / 2 - frmTessel->Top;
    for (Window* const window : all) {
        if (window->Role == WindowRole::Backdrop) {
            window->Form_Load();
        } else {
            window->Move(window->Left + right, window->Top + down);
            KeepOnScreen(*window);
        }
    }
}

// The text stays as it was if none of what was typed can be kept.
void Typed(TextBox& box, const std::string& text, std::int32_t caret)
{
    const std::string kept = KeepTypable(text);
    if (!kept.empty() || text.empty()) {
        const std::size_t refused = CharacterCount(text) - CharacterCount(kept);
        box.Text = kept;
        box.SelStart = caret - static_cast<std::int32_t>(refused);
        box.SelLength = 0;
    }
}

void KeyPressed(const val& event)
{
    Window* const window = App.KeyWindow();
    const Key key{event["code"].as<std::int16_t>(), event["shift"].as<std::int16_t>()};
    if (window == nullptr || (event["held"].as<bool>() && !MayRepeat(key)) ||
        RouteKey(*window, key) || !App.TakesInput(*window)) {
        return;
    }
    const auto* const box = dynamic_cast<const TextBox*>(window->Focus());
    const bool typing = box != nullptr && !box->Locked;
    if (key == Key{kKeyEsc, 0} && window->BorderStyle == Border::FixedSingle && !typing) {
        RaiseClose(*window);  // as dialogs on pages do
    } else {
        Ask("openMenu", event["text"]);
    }
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

void WebBinding::WindowLoaded(Window& window)
{
    const bool main = window.Role == WindowRole::Main;
    window.Width = main ? Length("mainWidth") : window.ClientWidth;
    window.Height = main ? Length("mainHeight") : window.ClientHeight + Above(window);
}

// Elements are made in reading order.
void WebBinding::WindowShown(Window& window, ShowMode /*mode*/)
{
    KeepOnScreen(window);
    for (const Spoken& spoken : SpokenOn(window)) {
        ControlChanged(*spoken.Where, Change::Geometry);
        if (spoken.With != nullptr) {
            ControlChanged(*spoken.With, Change::Geometry);
        }
    }
    for (Control* const control : window.Controls()) {
        ControlChanged(*control, Change::Geometry);
    }
}

void WebBinding::WindowHidden(Window& window)
{
    Ask("remove", IdOf(window));
    const auto gone = [&](const Control* control) { return &control->Owner() == &window; };
    std::erase_if(changed_, gone);
    std::erase_if(said_, [&](const auto& said) { return gone(said.first); });
    dragged_ = dragged_ == &window ? nullptr : dragged_;
}

void WebBinding::ControlChanged(Control& control, Change what)
{
    if (const auto* const timer = dynamic_cast<Timer*>(&control)) {
        Ask("timer", IdOf(control), timer->Running() ? timer->Interval.Get() : 0);
    } else if (control.Owner().Shown() && what != Change::Data &&
               std::find(changed_.begin(), changed_.end(), &control) == changed_.end()) {
        changed_.push_back(&control);
    }
}

// Brings the page up to date before the program waits. Many changes are made in steps, so that the
// browser can go on in between.
void WebBinding::ShowChanges()
{
    constexpr std::size_t kStep = 20;
    const std::vector<Window*> all = ShownWindows();
    for (const Window* const window : all) {
        Put(*window);
    }
    for (std::size_t i = 0; i < changed_.size(); ++i) {
        Put(*changed_[i]);
        if (i % kStep == kStep - 1) {
            Ask<val>("pause").await();
        }
    }
    changed_.clear();
    for (const Window* const window : all) {
        for (const Spoken& spoken : SpokenOn(*window)) {
            std::pair now(NameOf(spoken), DescriptionOf(spoken));
            if (auto& told = said_[spoken.Where]; told != now) {
                told = std::move(now);
                Put(spoken, told.first, told.second);
            }
        }
    }
    if (const std::string news = reporter_.News(); !news.empty()) {
        Ask("say", news);
    }
    if (const Window* const front = App.KeyWindow()) {
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
    // Window and control may have gone since the event was queued.
    const InstanceBase* const instance = InstanceBase::Find(event["window"].as<std::string>());
    Window* const window = instance != nullptr ? instance->Current() : nullptr;
    if (kind == "key") {
        KeyPressed(event);
    } else if (kind == "resize") {
        FitScreen(*this);
    } else if (window == nullptr) {
        return;
    } else if (Control* const control = window->Find(event["control"].as<std::string>())) {
        Used(*control, kind, event);
    } else {
        Pointed(*window, kind, event);
    }
}

void WebBinding::Used(Control& control, const std::string& kind, const val& event)
{
    if (auto* const timer = dynamic_cast<Timer*>(&control)) {
        RaiseTimer(*timer);
    } else if (kind == "menu") {
        RaiseClick(control);
    } else if (kind == "press") {
        Press(dynamic_cast<Visual&>(control));
    } else if (auto& box = dynamic_cast<TextBox&>(control); App.TakesInput(box.Owner())) {
        box.SetFocus();
        if (kind == "text") {
            Typed(box, event["text"].as<std::string>(), event["caret"].as<std::int32_t>());
            ControlChanged(box, Change::Text);  // takes refused characters off the page
        }
    }
}

void WebBinding::Pointed(Window& window, const std::string& kind, const val& event)
{
    const Twips x = event["x"].as<Twips>() - window.Left;
    const Twips y = event["y"].as<Twips>() - window.Top;
    const Mouse mouse{event["button"].as<std::int16_t>(), event["shift"].as<std::int16_t>(), x,
                      y - Above(window)};
    if (kind == "close") {
        RaiseClose(window);
    } else if (kind == "move" && dragged_ == &window) {
        window.Move(window.Left + x - grip_.X, window.Top + y - grip_.Y);
    } else if (kind == "move") {
        PointerMoved(window, mouse);
    } else if (kind == "up") {
        if (std::exchange(dragged_, nullptr) == &window) {
            KeepOnScreen(window);
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

}  // namespace malvone::web
