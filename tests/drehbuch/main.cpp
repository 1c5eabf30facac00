// main.cpp: the script program: standard input in, standard output out.
#include <csignal>
#include <iostream>
#include <span>

#include "tests/drehbuch/Script.h"
#include "ui/layer/Number.h"

namespace {

template<class Number>
bool Read(std::string_view text, Number& number)
{
    const auto read = malvone::NumberFrom<Number>(text);
    number = read.value_or(0);
    return read && *read >= 0;
}

}  // namespace

int main(int argc, char** argv)
{
    std::signal(SIGXFSZ, SIG_IGN);  // as the game does
    malvone::script::Options options;
    malvone::script::Script script(std::cin, std::cout);
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    bool good = true;
    for (std::size_t i = 1; i < arguments.size() && good; ++i) {
        const std::string_view name = arguments[i];
        if (name == "--ohne-windowsordner") {
            options.WithoutWindowsFolder = true;
        } else if (name == "--changes") {
            script.TellChanges();
        } else if (name == "--spoken") {
            script.TellSpoken();
        } else if (++i == arguments.size()) {
            good = false;
        } else if (name == "--daten") {
            options.Data = arguments[i];
        } else if (name == "--programm") {
            options.Program = arguments[i];
        } else if (name == "--klanggeraete") {
            good = Read(arguments[i], options.SoundDevices);
        } else {
            good = name == "--clock" && Read(arguments[i], options.ClockNs.emplace());
        }
    }
    if (!good || options.Data.empty() || options.Program.empty()) {
        std::cerr << "usage: drehbuch --daten DIR --programm DIR [--ohne-windowsordner] "
                     "[--klanggeraete N] [--changes] [--spoken] [--clock NS]\n";
        return 2;
    }
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    malvone::script::ScriptPlatform platform(options, std::cout);
    script.Play(platform);
    return 0;
}
