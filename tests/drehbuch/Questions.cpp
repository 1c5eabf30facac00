// Questions.cpp: the board as 140 characters, the state as one line.
#include <algorithm>
#include <vector>

#include "state/Beste.h"
#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "tests/drehbuch/Commands.h"
#include "ui/layer/App.h"
#include "ui/services/Meldungen.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::script {
namespace {

const Answer kNoBoard = "? the board has not been made yet";

// The board, once all its cells are made; asking never loads the window.
FrmTessel* Board()
{
    return frmTessel.Loaded() && frmTessel->imgFeld.Has(kZellen) ? &*frmTessel : nullptr;
}

template<class Letter>
Answer EachCell(Letter letter)
{
    Answer line = "= ";
    for (int i = 1; i <= kZellen; ++i) {
        line += letter(i);
    }
    return line;
}

struct PictureRow
{
    std::string_view Name;
    std::string_view Letters;  // index = value of a cell
};
constexpr PictureRow kPictureRows[] = {
    {"frmBilder.imgBild(", ".1234"},
    {"frmBilder.imgVorschau(", "oabcd"},
    {"frmBilder.imgNeutral(", "OABCD"},
};

std::string TrueFalse(bool value)
{
    return value ? "True" : "False";
}

Answer SetBoard(FrmTessel& board, std::string_view values)
{
    const bool digits =
        std::all_of(values.begin(), values.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (values.size() != kZellen || !digits) {
        return "? 140 digits are needed";
    }
    for (int i = 1; i <= kZellen; ++i) {
        board.imgFeld(i).Tag = TagText(std::string(1, values[static_cast<std::size_t>(i - 1)]));
    }
    return "";
}

}  // namespace

char LetterOf(std::string_view picture)
{
    for (const PictureRow& row : kPictureRows) {
        for (std::size_t value = 0; value < row.Letters.size(); ++value) {
            if (picture == std::string(row.Name) + std::to_string(value) + ")") {
                return row.Letters[value];
            }
        }
    }
    return picture == "frmBilder.imgGrund" ? '_' : '?';
}

char LetterOfValue(char digit)
{
    const std::string_view plain = kPictureRows[0].Letters;
    return digit >= '0' && digit < static_cast<char>('0' + plain.size())
               ? plain[static_cast<std::size_t>(digit - '0')]
               : '?';
}

Answer AskOrSetBoard(std::string_view digits)
{
    FrmTessel* const board = Board();
    if (board == nullptr) {
        return kNoBoard;
    }
    if (!digits.empty()) {
        return SetBoard(*board, digits);
    }
    return EachCell([&](int i) {
        const std::string& value = board->imgFeld(i).Tag.Get().Text();
        return value.size() == 1 ? value[0] : '?';
    });
}

Answer AskMarks(std::string_view)
{
    return EachCell([](int i) { return Satz(i).Markiert != False ? '1' : '0'; });
}

Answer AskPreviews(std::string_view)
{
    return EachCell([](int i) { return Satz(i).Vorschau != False ? '1' : '0'; });
}

Answer AskPictures(std::string_view)
{
    FrmTessel* const board = Board();
    if (board == nullptr) {
        return kNoBoard;
    }
    return EachCell([&](int i) { return LetterOf(board->imgFeld(i).Picture.Get().Name()); });
}

Answer AskState(std::string_view)
{
    const auto number = [](std::int32_t value) { return std::to_string(value); };
    return "= PunkteGesamt=" + number(Stand.PunkteGesamt) +
           " LevelPunkte=" + number(Stand.LevelPunkte) + " ZugPunkte=" + number(Stand.ZugPunkte) +
           " RundenZahl=" + number(Stand.RundenZahl) +
           " MarkiertZahl=" + number(Stand.MarkiertZahl) +
           " BelegtZahl=" + number(Stand.BelegtZahl) +
           " PunkteLevelStart=" + number(Stand.PunkteLevelStart) +
           " LevelWiederholt=" + number(Stand.LevelWiederholt) +
           " KeinSpielBegonnen=" + TrueFalse(Stand.KeinSpielBegonnen) +
           " MsgAntwort=" + number(MsgAntwort) + " EndPunkte=" + number(Beste.EndPunkte) +
           " EintragModus=" + TrueFalse(Beste.EintragModus != False) +
           " EintragPlatz=" + number(Beste.EintragPlatz) +
           " PfeilPhase=" + number(frmTessel.Loaded() ? frmTessel->PfeilPhase : 0);
}

Answer AskWindows(std::string_view)
{
    std::vector<std::string_view> names;
    for (const InstanceBase* const instance : InstanceBase::All()) {
        if (instance->Loaded() && instance->Current()->Shown()) {
            names.push_back(instance->Name());
        }
    }
    std::sort(names.begin(), names.end());
    Answer line = "=";
    for (const std::string_view name : names) {
        line += " " + std::string(name);
    }
    return names.empty() ? "= " : line;
}

}  // namespace malvone::script
