// Beste.h: the state of the best list outside its window, for one run of the program.
#pragma once

#include <cstdint>

#include "platform/Platform.h"
#include "ui/layer/Units.h"

namespace malvone {

struct Bestenstand
{
    Flag EintragModus = False;      // True: the window opens, or is open, for entering a name
    std::int16_t EintragPlatz = 0;  // place 0 to 4 of the new entry; -1 while there is none
    std::int32_t EndPunkte = 0;     // points of the finished game
    ReadLines Datei;                // the file as this run has last read or written it
};

inline Bestenstand Beste;

inline constexpr const char* kFreierPlatz = "Niemand";  // the name of a free place
inline constexpr const char* kNeuerName = "Spieler";    // of an entry until a name is typed

}  // namespace malvone
