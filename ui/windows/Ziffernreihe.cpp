// Ziffernreihe.cpp: from a number's characters to the pictures of digits.
#include "ui/windows/Ziffernreihe.h"

#include "ui/windows/FrmDigital.h"

namespace malvone {
namespace {

constexpr char kDunkel = ' ';

bool IstZiffer(char zeichen)
{
    return zeichen >= '0' && zeichen <= '9';
}

}  // namespace

Ziffernreihe::Ziffernreihe(std::string name, const ControlArray<Image>& stellen, IndexRange bereich)
    : name_(std::move(name))
{
    for (int stelle = bereich.First; stelle <= bereich.Last; ++stelle) {
        stellen_.push_back(&stellen(stelle));
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
        const bool ziffer = IstZiffer(zeichen);
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
