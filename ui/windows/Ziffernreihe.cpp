// Ziffernreihe.cpp: from a number's characters to the pictures of digits.
#include "ui/windows/Ziffernreihe.h"

#include "ui/windows/FrmDigital.h"

namespace malvone {
namespace {

constexpr char kDunkel = ' ';

}  // namespace

Ziffernreihe::Ziffernreihe(std::string name, const ControlArray<Image>& stellen,
                           const std::vector<int>& indexes)
    : name_(std::move(name))
{
    for (const int index : indexes) {
        stellen_.push_back(&stellen(index));
    }
    ziffern_.assign(stellen_.size(), kDunkel);
}

std::int32_t Ziffernreihe::Groesste() const
{
    std::int32_t groesste = 0;
    for (std::size_t stelle = 0; stelle < stellen_.size(); ++stelle) {
        groesste = groesste * 10 + 9;
    }
    return groesste;
}

void Ziffernreihe::Zeigen(std::string_view zahl)
{
    for (std::size_t stelle = 0; stelle < stellen_.size(); ++stelle) {
        const char zeichen = stelle < zahl.size() ? zahl[zahl.size() - 1 - stelle] : kDunkel;
        const bool ziffer = zeichen >= '0' && zeichen <= '9';
        ziffern_[stelle] = ziffer ? zeichen : kDunkel;
        stellen_[stelle]->Picture =
            frmDigital->imgDiggi(ziffer ? zeichen - '0' : kZifferLeer).Picture;
    }
}

std::string Ziffernreihe::Gezeigt() const
{
    std::string gezeigt;
    for (std::size_t stelle = stellen_.size(); stelle-- > 0;) {
        if (ziffern_[stelle] != kDunkel && stellen_[stelle]->Visible) {
            gezeigt += ziffern_[stelle];
        }
    }
    return gezeigt;
}

}  // namespace malvone
