// main.cpp: the script program: standard input in, standard output out.
#include <getopt.h>

#include <csignal>
#include <cstdio>
#include <iostream>

#include "tests/drehbuch/Script.h"
#include "tests/drehbuch/Text.h"

namespace {

using malvone::script::Options;

// What is told beside the lines of every script.
struct Told
{
    bool Changes = false;
    bool Spoken = false;
};

template<class Number>
bool ReadNumber(Number& number)
{
    const auto read = malvone::NumberFrom<Number>(optarg);
    number = read.value_or(0);
    return read && *read >= 0;
}

// What the command line says; false, and a message, where it is not in order.
bool ReadOptions(int argc, char** argv, Options& options, Told& told)
{
    constexpr option kOptions[] = {{"daten", required_argument, nullptr, 'd'},
                                   {"programm", required_argument, nullptr, 'p'},
                                   {"ohne-windowsordner", no_argument, nullptr, 'o'},
                                   {"klanggeraete", required_argument, nullptr, 'k'},
                                   {"clock", required_argument, nullptr, 't'},
                                   {"changes", no_argument, nullptr, 'c'},
                                   {"spoken", no_argument, nullptr, 's'},
                                   {nullptr, 0, nullptr, 0}};
    opterr = 0;  // one message for all faults, below
    bool good = true;
    for (int name = 0; (name = getopt_long(argc, argv, "", kOptions, nullptr)) != -1;) {
        switch (name) {
        case 'd': options.Data = optarg; break;
        case 'p': options.Program = optarg; break;
        case 'o': options.WithoutWindowsFolder = true; break;
        case 'k': good = ReadNumber(options.SoundDevices) && good; break;
        case 't': good = ReadNumber(options.ClockNs.emplace()) && good; break;
        case 'c': told.Changes = true; break;
        case 's': told.Spoken = true; break;
        default: good = false;
        }
    }
    good = good && optind == argc && !options.Data.empty() && !options.Program.empty();
    if (!good) {
        std::cerr << "usage: drehbuch --daten DIR --programm DIR [--ohne-windowsordner] "
                     "[--klanggeraete N] [--changes] [--spoken] [--clock NS]\n";
    }
    return good;
}

}  // namespace

int main(int argc, char** argv)
{
    std::signal(SIGXFSZ, SIG_IGN);  // as the game does
    Options options;
    Told told;
    if (!ReadOptions(argc, argv, options, told)) {
        return 2;
    }
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    malvone::script::ScriptPlatform platform(options, std::cout);
    malvone::script::Script script(std::cin, std::cout);
    if (told.Changes) {
        script.TellChanges();
    }
    if (told.Spoken) {
        script.TellSpoken();
    }
    script.Play(platform);
    return 0;
}
