// Spoken.cpp: the words for screen readers, and what they belong to.
#include "ui/services/Spoken.h"

#include <algorithm>

#include "state/Spielstand.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmMsgOk.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr std::array<std::string_view, kFarben + 1> kFarbnamen = {"leer", "orange", "hellgrün",
                                                                  "gelb", "himmelblau"};

Spoken Row(Visual& where, const Ziffernreihe& row)
{
    return {SpokenKind::Words, &where, row.Name(), &row};
}

std::vector<Spoken> On(FrmTessel& window)
{
    using enum SpokenKind;
    std::vector<Spoken> all = {
        {Words, &window.Label1(0)},
        {Button, &window.lblHilfe, "Hilfe"},
        {Button, &window.lblInfo, "Info"},
        Row(window.Image3, window.Punkte),
        Row(window.Image6, window.LevelPunkte),
        Row(window.Image4, window.Level),
        {Button, &window.lblNeu, "Neues Spiel"},
        {Button, &window.lblEnde, "Beenden"},
    };
    for (int cell = 1; cell < window.imgFeld.End(); ++cell) {
        all.push_back({Cell, &window.imgFeld(cell)});
    }
    all.push_back({Words, &window.lblSumme});
    all.push_back({Button, &window.imgNaechsterLevel, "Nächster Level"});
    all.push_back({Words, &window.lblMeldung});
    all.push_back({Button, &window.imgWiederholen, "Wiederholen"});
    return all;
}

std::vector<Spoken> On(FrmMsgOk& window)
{
    using enum SpokenKind;
    return {
        {Words, &window.lblMeldung, {}, nullptr, &window.lblTitel},
        {Button, &window.lblOk, "OK"},
        {Button, &window.Image2, "schließen"},
    };
}

std::vector<Spoken> On(FrmMsgJa& window)
{
    using enum SpokenKind;
    return {
        {Words, &window.lblMeldung, {}, nullptr, &window.lblTitel},
        {Button, &window.lblNein, "Nein"},
        {Button, &window.lblJa, "Ja"},
        {Button, &window.Image1, "schließen"},
    };
}

std::vector<Spoken> On(FrmBeste& window)
{
    using enum SpokenKind;
    std::vector<Spoken> all = {{Words, &window.Label1}, {Words, &window.Label2}};
    for (int platz = 0; platz < kPlaetze; ++platz) {
        const std::string place = "Platz " + std::to_string(platz + 1);
        TextBox& name = window.txtSpieler(platz);
        all.push_back({NameBox, &name, "Name, " + place});
        all.push_back({Words, &window.imgDiggi(platz * kZiffernJePlatz), place,
                       &window.Punkte[static_cast<std::size_t>(platz)], &name});
    }
    all.push_back({Button, &window.lblTessel, "Einträge löschen"});
    all.push_back({Button, &window.cmdEnde, "OK"});
    return all;
}

// Messages have line breaks and may begin with an empty line; only the words are spoken.
std::string OneLine(std::string_view text)
{
    std::string line;
    for (const char c : text) {
        const char next = c == '\r' || c == '\n' ? ' ' : c;
        if (next != ' ' || (!line.empty() && line.back() != ' ')) {
            line += next;
        }
    }
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

std::string CellName(const Visual& cell)
{
    const std::int32_t colour = cell.Tag->Number();
    return "Spalte " + std::to_string(Spalte(cell.Index()) + 1) + ", Reihe " +
           std::to_string(Reihe(cell.Index()) + 1) + ", " +
           std::string(kFarbnamen[HatBild(colour) ? static_cast<std::size_t>(colour) : 0]);
}

std::ptrdiff_t Stones(const std::array<std::int32_t, kZellen>& board)
{
    return kZellen - std::count(board.begin(), board.end(), 0);
}

}  // namespace

std::span<Image* const> Spoken::Digits() const
{
    return Display == nullptr ? std::span<Image* const>() : Display->Stellen();
}

bool Spoken::TellsWith() const
{
    const auto* const box = dynamic_cast<const TextBox*>(With);
    return With != nullptr && (box == nullptr || box->Locked);
}

std::vector<Spoken> SpokenOn(const Window& window)
{
    if (&window == frmTessel.Current()) {
        return On(*frmTessel);
    }
    if (&window == frmMsgOk.Current()) {
        return On(*frmMsgOk);
    }
    if (&window == frmMsgJa.Current()) {
        return On(*frmMsgJa);
    }
    return &window == frmBeste.Current() ? On(*frmBeste) : std::vector<Spoken>();
}

std::string NameOf(const Spoken& spoken)
{
    if (spoken.Kind == SpokenKind::Cell) {
        return CellName(*spoken.Where);
    }
    if (const auto* const label = dynamic_cast<const Label*>(spoken.Where);
        label != nullptr && spoken.Painted.empty()) {
        const auto* const more = dynamic_cast<const Label*>(spoken.With);
        return OneLine(label->Caption.Get() + (more == nullptr ? "" : " " + more->Caption.Get()));
    }
    if (spoken.Display == nullptr) {
        const auto* const box = dynamic_cast<const TextBox*>(spoken.Where);
        return box != nullptr && box->Locked ? std::string() : spoken.Painted;
    }
    const std::string number = spoken.Display->Gezeigt();
    if (const auto* const owner = dynamic_cast<const TextBox*>(spoken.With)) {
        const std::string name = spoken.TellsWith() ? owner->Text.Get() : std::string();
        return spoken.Painted + ": " + (name.empty() ? "" : name + ", ") +
               (number.empty() ? "keine" : number) + (number == "1" ? " Punkt" : " Punkte");
    }
    return spoken.Painted + ": " + (number.empty() ? "dunkel" : number);
}

std::string DescriptionOf(const Spoken& spoken)
{
    const bool pointedAt = spoken.Kind == SpokenKind::Cell && spoken.Where->Tag->Number() != 0 &&
                           spoken.Where == spoken.Where->Owner().Highlighted();
    return OneLine(pointedAt ? frmTessel->lblSumme.Caption.Get() : spoken.Where->ToolTipText.Get());
}

bool IsSpokenNow(const Spoken& spoken)
{
    return spoken.Where->Seen() && !NameOf(spoken).empty();
}

std::string TitleOf(const Window& window)
{
    if (&window == frmMsgOk.Current()) {
        return OneLine(frmMsgOk->lblName.Caption.Get());
    }
    if (&window == frmMsgJa.Current()) {
        return OneLine(frmMsgJa->lblName.Caption.Get());
    }
    return OneLine(window.Caption.Get());
}

// The number of stones rises only when a board is filled. When it falls, a move has earned points
// for them, or the level has ended and they go without any.
std::string Reporter::News()
{
    if (!frmTessel.Loaded() || !frmTessel->imgFeld.Has(kZellen)) {
        return {};
    }
    std::array<std::int32_t, kZellen> board{};
    for (int cell = 1; cell <= kZellen; ++cell) {
        board[static_cast<std::size_t>(cell) - 1] = frmTessel->imgFeld(cell).Tag->Number();
    }
    const std::ptrdiff_t now = Stones(board);
    const std::ptrdiff_t before = Stones(board_);
    const bool filled = now > before || (now == kZellen && board != board_);
    const std::int32_t earned = Stand.PunkteGesamt - points_;
    board_ = board;
    points_ = Stand.PunkteGesamt;

    if (filled) {
        const bool first = Stand.RundenZahl == 1 && points_ == 0 && Stand.LevelWiederholt == 0;
        return first ? "Neues Spiel." : "Der Level beginnt.";
    }
    if (now == before) {
        return {};
    }
    if (earned > 0) {
        return std::to_string(before - now) + " Steine entfernt, " + std::to_string(earned) +
               " Punkte.";
    }
    return OneLine("Der Level ist zu Ende. " + frmTessel->lblMeldung.Caption.Get());
}

}  // namespace malvone
