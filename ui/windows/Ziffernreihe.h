// Ziffernreihe.h: a row of digit places that shows a number, and knows what it shows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/layer/ControlArray.h"
#include "ui/layer/Controls.h"

namespace malvone {

class Ziffernreihe
{
public:
    // What the row counts, in the player's words, and its places from the units upward, all of an
    // array unless told otherwise. The array has to outlive it.
    Ziffernreihe(std::string name, const ControlArray<Image>& stellen,
                 const std::vector<int>& indexes);
    Ziffernreihe(std::string name, const ControlArray<Image>& stellen)
        : Ziffernreihe(std::move(name), stellen, Indexes(0, stellen.End() - 1))
    {}

    const std::string& Name() const { return name_; }
    // From the units upward.
    const std::vector<Image*>& Stellen() const { return stellen_; }
    // The greatest number that has room.
    std::int32_t Groesste() const;

    // Shows a number at the right; places before it stay dark, and so does the place of a character
    // that is no digit. Digits without room are left out.
    void Zeigen(std::string_view zahl);
    // The digits that can be seen, from the highest on; empty where all places are dark.
    std::string Gezeigt() const;

private:
    std::string name_;
    std::vector<Image*> stellen_;
    std::string ziffern_;  // what the places show, from the units upward
};

}  // namespace malvone
