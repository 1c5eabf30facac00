// Fragen.cpp: the board as 140 characters, the state as one line.
#include "tests/drehbuch/Fragen.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

#include "state/Beste.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "ui/Meldungen.h"
#include "ui/layer/App.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

const Grund kKeinBrett = "the board has not been made yet";

// The board, once all its cells are made; asking never loads the window.
FrmTessel* Brett()
{
    return frmTessel.Loaded() && frmTessel->imgFeld.Has(kZellen) ? &*frmTessel : nullptr;
}

template<class Letter>
Antwort JedeZelle(Letter letter)
{
    std::string line;
    for (int i = 1; i <= kZellen; ++i) {
        line += letter(i);
    }
    return {line};
}

struct BilderReihe
{
    std::string_view Name;
    std::string_view Buchstaben;  // index = value of a cell
};
constexpr std::array<BilderReihe, 3> kBilderReihen = {{
    {"frmBilder.imgBild", ".1234"},
    {"frmBilder.imgVorschau", "oabcd"},
    {"frmBilder.imgNeutral", "OABCD"},
}};

std::map<std::string, char, std::less<>> BilderBuchstaben()
{
    std::map<std::string, char, std::less<>> letters = {{"frmBilder.imgGrund", '_'}};
    for (const BilderReihe& row : kBilderReihen) {
        for (std::size_t value = 0; value < row.Buchstaben.size(); ++value) {
            letters[std::string(row.Name) + "(" + std::to_string(value) + ")"] =
                row.Buchstaben[value];
        }
    }
    return letters;
}

std::string WahrFalsch(bool value)
{
    return value ? "True" : "False";
}

}  // namespace

Antwort BrettFragen()
{
    FrmTessel* const board = Brett();
    if (board == nullptr) {
        return {"", kKeinBrett};
    }
    return JedeZelle([&](int i) {
        const std::string& value = board->imgFeld(i).Tag.Get().Text();
        return value.size() == 1 ? value[0] : '?';
    });
}

Antwort MarkenFragen()
{
    return JedeZelle(
        [](int i) { return Zellen[static_cast<std::size_t>(i)].Markiert != False ? '1' : '0'; });
}

Antwort VorschauFragen()
{
    return JedeZelle(
        [](int i) { return Zellen[static_cast<std::size_t>(i)].Vorschau != False ? '1' : '0'; });
}

Antwort BilderFragen()
{
    static const auto letters = BilderBuchstaben();
    FrmTessel* const board = Brett();
    if (board == nullptr) {
        return {"", kKeinBrett};
    }
    return JedeZelle([&](int i) {
        const auto found = letters.find(board->imgFeld(i).Picture.Get().Name());
        return found == letters.end() ? '?' : found->second;
    });
}

Antwort StandFragen()
{
    const int phase = frmTessel.Loaded() ? frmTessel->PfeilPhase : 0;
    const std::vector<std::pair<const char*, std::string>> values = {
        {"PunkteGesamt", std::to_string(Stand.PunkteGesamt)},
        {"LevelPunkte", std::to_string(Stand.LevelPunkte)},
        {"ZugPunkte", std::to_string(Stand.ZugPunkte)},
        {"RundenZahl", std::to_string(Stand.RundenZahl)},
        {"MarkiertZahl", std::to_string(Stand.MarkiertZahl)},
        {"BelegtZahl", std::to_string(Stand.BelegtZahl)},
        {"PunkteLevelStart", std::to_string(Stand.PunkteLevelStart)},
        {"LevelWiederholt", std::to_string(Stand.LevelWiederholt)},
        {"KeinSpielBegonnen", WahrFalsch(Stand.KeinSpielBegonnen)},
        {"MsgAntwort", std::to_string(MsgAntwort)},
        {"EndPunkte", std::to_string(Beste.EndPunkte)},
        {"EintragModus", WahrFalsch(Beste.EintragModus != False)},
        {"EintragPlatz", std::to_string(Beste.EintragPlatz)},
        {"PfeilPhase", std::to_string(phase)},
    };
    std::string line;
    for (const auto& [name, value] : values) {
        line += (line.empty() ? "" : " ") + std::string(name) + "=" + value;
    }
    return {line};
}

Antwort FensterFragen()
{
    std::vector<std::string_view> names;
    for (const InstanceBase* const instance : InstanceBase::All()) {
        if (instance->Loaded() && instance->Current()->Shown()) {
            names.push_back(instance->Name());
        }
    }
    std::sort(names.begin(), names.end());
    std::string line;
    for (const std::string_view name : names) {
        line += (line.empty() ? "" : " ") + std::string(name);
    }
    return {line};
}

std::optional<Grund> BrettSetzen(std::string_view values)
{
    FrmTessel* const board = Brett();
    if (board == nullptr) {
        return kKeinBrett;
    }
    const bool digits =
        std::all_of(values.begin(), values.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (values.size() != kZellen || !digits) {
        return "140 digits are needed";
    }
    for (int i = 1; i <= kZellen; ++i) {
        board->imgFeld(i).Tag = TagText(std::string(1, values[static_cast<std::size_t>(i - 1)]));
    }
    return std::nullopt;
}

}  // namespace malvone
