// Meldungen.h: how the game tells the player something, or asks a question.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ui/layer/Units.h"

namespace malvone {

inline constexpr std::int16_t kAntwortJa = 1;
inline constexpr std::int16_t kAntwortNein = 2;
inline constexpr std::int16_t kAntwortGeschlossen = 3;  // closed without an answer

// The last answer of frmMsgJa, 0 before the first. It is not reset before a question.
inline std::int16_t MsgAntwort = 0;

// Where a message opens, in twips from the corner of frmTessel. Without it, it opens centred.
struct Versatz
{
    Twips Links;
    Twips Oben;
};

// The two texts of a message.
struct Meldungstext
{
    std::string_view Meldung;
    std::string_view Titel;
};

// Shows frmMsgOk and returns when it has closed. CR LF breaks a line; a text that begins with it
// begins on the second line.
void MeldungZeigen(std::string_view meldung, std::string_view titel);
void MeldungZeigen(std::string_view meldung, std::string_view titel, Versatz versatz);
inline void MeldungZeigen(const Meldungstext& text)
{
    MeldungZeigen(text.Meldung, text.Titel);
}

// Shows frmMsgJa, centred. True only if the answer is yes.
bool FrageStellen(std::string_view meldung, std::string_view titel);
inline bool FrageStellen(const Meldungstext& text)
{
    return FrageStellen(text.Meldung, text.Titel);
}

// The program's name and version as the windows show them.
std::string TitelMitVersion();

}  // namespace malvone
