// Optionen.cpp: the script program's command line.
#include "tests/drehbuch/Drehbuch.h"
#include "tests/drehbuch/Texte.h"

namespace malvone {
namespace {

constexpr const char* kAufruf =
    "usage: drehbuch --daten DIR --programm DIR [--ohne-windowsordner] [--klanggeraete N]";

// Takes one option from the front of the arguments. False: it is unknown or its value is missing.
bool OptionNehmen(std::size_t& i, const std::vector<std::string>& arguments, Optionen& options)
{
    const std::string& name = arguments[i++];
    if (name == "--ohne-windowsordner") {
        options.OhneWindowsordner = true;
        return true;
    }
    if (i == arguments.size()) {
        return false;
    }
    const std::string& value = arguments[i++];
    if (name == "--daten") {
        options.Daten = value;
        return !value.empty();
    }
    if (name == "--programm") {
        options.Programm = value;
        return !value.empty();
    }
    const auto count = ZahlAus<std::int32_t>(value);
    options.Klanggeraete = count.value_or(0);
    return name == "--klanggeraete" && count && *count >= 0;
}

}  // namespace

std::optional<Optionen> OptionenAus(const std::vector<std::string>& arguments, std::ostream& fault)
{
    Optionen options;
    for (std::size_t i = 0; i < arguments.size();) {
        const std::string name = arguments[i];
        if (!OptionNehmen(i, arguments, options)) {
            fault << "drehbuch: not in order: " << name << '\n' << kAufruf << '\n';
            return std::nullopt;
        }
    }
    if (options.Daten.empty() || options.Programm.empty()) {
        fault << "drehbuch: both folders are needed\n" << kAufruf << '\n';
        return std::nullopt;
    }
    return options;
}

}  // namespace malvone
