// Ausgabe.cpp: lines out.
#include "tests/drehbuch/Ausgabe.h"

namespace malvone {

void Ausgabe::Zeile(std::string_view kind, std::string_view rest)
{
    if (!silent_) {
        out_ << kind << ' ' << rest << '\n';
    }
}

void Ausgabe::Zeile(std::string_view line)
{
    if (!silent_) {
        out_ << line << '\n';
    }
}

void Ausgabe::Warten(std::string_view where)
{
    Zeile(">", where);
    out_.flush();
}

void Ausgabe::Ende()
{
    Zeile("!", "end");
    out_.flush();
    Verstummen();
}

}  // namespace malvone
