// Ausgabe.h: the lines that the script program writes; after the end nothing is written any more.
#pragma once

#include <ostream>
#include <string_view>

namespace malvone {

class Ausgabe
{
public:
    explicit Ausgabe(std::ostream& out) : out_(out) {}

    void Zeile(std::string_view kind, std::string_view rest);
    void Zeile(std::string_view line);
    // The program waits for input: "-" is the outer loop, else the name of a modal window.
    void Warten(std::string_view where);
    void Ende();
    void Verstummen() { silent_ = true; }

private:
    std::ostream& out_;
    bool silent_ = false;
};

}  // namespace malvone
