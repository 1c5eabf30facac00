// Drehbuch.cpp: the table of commands, the loops that wait for them, and the lines of windows.
#include "tests/drehbuch/Drehbuch.h"

#include <algorithm>

#include "game/Main.h"
#include "tests/drehbuch/Ereignisse.h"
#include "tests/drehbuch/Fragen.h"
#include "tests/drehbuch/Texte.h"
#include "ui/layer/App.h"

namespace malvone {
namespace {

void Antworten(Ausgabe& out, const Antwort& answer)
{
    if (answer.Fehler) {
        out.Zeile("?", *answer.Fehler);
    } else {
        out.Zeile("=", answer.Wert);
    }
}

void Melden(Ausgabe& out, const Zustellbericht& report)
{
    if (report.Ergebnis == Zustellung::Abgelehnt) {
        out.Zeile("refused");
    } else if (report.Ergebnis == Zustellung::Unbekannt) {
        out.Zeile("?", report.Fehler);
    }
}

void Melden(Ausgabe& out, const std::optional<Grund>& fault)
{
    if (fault) {
        out.Zeile("?", *fault);
    }
}

template<Antwort (*Question)()>
void Fragen(Ausgabe& out, std::string_view arguments)
{
    if (arguments.empty()) {
        Antworten(out, Question());
    } else {
        out.Zeile("?", "bad argument");
    }
}

void BrettFragenOderSetzen(Ausgabe& out, std::string_view arguments)
{
    if (arguments.empty()) {
        Antworten(out, BrettFragen());
    } else {
        Melden(out, BrettSetzen(arguments));
    }
}

void EigenschaftFragenAus(Ausgabe& out, std::string_view path)
{
    Antworten(out, EigenschaftFragen(path));
}

void EigenschaftSetzenAus(Ausgabe& out, std::string_view arguments)
{
    const std::string_view path = Abschneiden(arguments, ' ');
    Melden(out, EigenschaftSetzen(path, arguments));
}

template<Zustellbericht (*Deliver)(std::string_view)>
void Zustellen(Ausgabe& out, std::string_view arguments)
{
    Melden(out, Deliver(arguments));
}

struct Befehl
{
    std::string_view Name;
    void (*Tun)(Ausgabe&, std::string_view arguments);
};

constexpr Befehl kBefehle[] = {
    {"do", &Zustellen<EreignisZustellen>}, {"key", &Zustellen<TasteDruecken>},
    {"type", &Zustellen<TextTippen>},      {"get", &EigenschaftFragenAus},
    {"set", &EigenschaftSetzenAus},        {"board", &BrettFragenOderSetzen},
    {"marks", &Fragen<MarkenFragen>},      {"previews", &Fragen<VorschauFragen>},
    {"pictures", &Fragen<BilderFragen>},   {"state", &Fragen<StandFragen>},
    {"windows", &Fragen<FensterFragen>},
};

void Ausfuehren(Ausgabe& out, std::string_view line)
{
    if (!IstUtf8(line)) {
        out.Zeile("?", "the line is not UTF-8");
        return;
    }
    const std::string_view name = Abschneiden(line, ' ');
    const auto* const command =
        std::find_if(std::begin(kBefehle), std::end(kBefehle),
                     [&](const Befehl& known) { return known.Name == name; });
    if (command == std::end(kBefehle)) {
        out.Zeile("?", "unknown command");
        return;
    }
    command->Tun(out, line);
}

}  // namespace

Drehbuch::Drehbuch(std::istream& in, std::ostream& out, const Optionen& options)
    : in_(in), out_(out), platform_(options, out_), binding_(*this)
{}

Drehbuch::~Drehbuch() = default;

void Drehbuch::Spielen()
{
    App.Begin(binding_, platform_);
    ZustandNeu();
    {
        const EventScope scope;
        Main();
    }
    while (!App.Ended()) {
        NaechsterBefehl("-");
    }
    App.Finish();
}

void Drehbuch::NaechsterBefehl(std::string_view waiting)
{
    out_.Warten(waiting);
    std::string line;
    do {
        if (!std::getline(in_, line)) {
            out_.Verstummen();
            App.Ende();
            return;
        }
        if (line.ends_with('\r')) {
            line.pop_back();
        }
    } while (line.empty() || line.starts_with('#'));

    const EventScope scope;
    Ausfuehren(out_, line);
}

Drehbuch::Plattform::Plattform(const Optionen& options, Ausgabe& out)
    : FilePlatform(options.Daten, options.Programm), out_(out),
      withoutWindowsFolder_(options.OhneWindowsordner), devices_(options.Klanggeraete)
{}

std::string Drehbuch::Plattform::GetWindowsDirectoryA()
{
    return withoutWindowsFolder_ ? std::string() : FilePlatform::GetWindowsDirectoryA();
}

void Drehbuch::Plattform::sndPlaySoundA(const std::string& path)
{
    out_.Zeile("! sound", DateinameAus(path));
}

void Drehbuch::Plattform::ShellExecuteA(const std::string& path)
{
    out_.Zeile("! open", DateinameAus(path));
}

void Drehbuch::Bindung::Sagen(std::string_view what, const Window& window)
{
    script_.out_.Zeile("!", std::string(what) + " " + std::string(window.Name()));
}

void Drehbuch::Bindung::WindowShown(Window& window, ShowMode mode)
{
    const std::string name(window.Name());
    script_.out_.Zeile("! show", name + (mode == ShowMode::Modal ? " modal " : " ") +
                                     TwipsText(window.Left) + " " + TwipsText(window.Top));
    // The message windows are the ones that have both labels of a message.
    const auto* const text = dynamic_cast<Label*>(window.Find("lblMeldung"));
    const auto* const title = dynamic_cast<Label*>(window.Find("lblTitel"));
    if (text != nullptr && title != nullptr) {
        script_.out_.Zeile("! text", name + " " + Maskiert(text->Caption.Get()) + " | " +
                                         Maskiert(title->Caption.Get()));
    }
}

void Drehbuch::Bindung::WindowHidden(Window& window)
{
    Sagen("hide", window);
}

void Drehbuch::Bindung::WindowUnloaded(Window& window)
{
    Sagen("unload", window);
}

void Drehbuch::Bindung::RunModal(Window& window)
{
    while (!ModalOver(window)) {
        script_.NaechsterBefehl(window.Name());
    }
}

void Drehbuch::Bindung::DragWindow(Window& window)
{
    Sagen("drag", window);
}

void Drehbuch::Bindung::Ended()
{
    script_.out_.Ende();
}

}  // namespace malvone
