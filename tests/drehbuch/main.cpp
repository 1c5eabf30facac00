// main.cpp: the script program: standard input in, standard output out.
#include <getopt.h>

#include <csignal>
#include <cstdio>
#include <iostream>

#include "tests/drehbuch/Script.h"
#include "tests/drehbuch/Text.h"

namespace {

using malvone::script::Options;

// What the command line says; false, and a message, where it is not in order.
bool ReadOptions(int argc, char** argv, Options& options, bool& changes)
{
    constexpr option kOptions[] = {{"daten", required_argument, nullptr, 'd'},
                                   {"programm", required_argument, nullptr, 'p'},
                                   {"ohne-windowsordner", no_argument, nullptr, 'o'},
                                   {"klanggeraete", required_argument, nullptr, 'k'},
                                   {"clock", required_argument, nullptr, 't'},
                                   {"changes", no_argument, nullptr, 'c'},
                                   {nullptr, 0, nullptr, 0}};
    opterr = 0;  // one message for all faults, below
    bool good = true;
    for (int name = 0; (name = getopt_long(argc, argv, "", kOptions, nullptr)) != -1;) {
        const auto count =
            name == 'k' ? malvone::script::NumberFrom<std::int32_t>(optarg) : std::nullopt;
        switch (name) {
        case 'd': options.Data = optarg; break;
        case 'p': options.Program = optarg; break;
        case 'c': changes = true; break;
        case 't':
            options.ClockNs = malvone::script::NumberFrom<std::uint64_t>(optarg);
            good = good && options.ClockNs;
            break;
        case 'o': options.WithoutWindowsFolder = true; break;
        case 'k':
            good = good && count && *count >= 0;
            options.SoundDevices = count.value_or(0);
            break;
        default: good = false;
        }
    }
    good = good && optind == argc && !options.Data.empty() && !options.Program.empty();
    if (!good) {
        std::cerr << "usage: drehbuch --daten DIR --programm DIR [--ohne-windowsordner] "
                     "[--klanggeraete N] [--changes] [--clock NS]\n";
    }
    return good;
}

}  // namespace

int main(int argc, char** argv)
{
    std::signal(SIGXFSZ, SIG_IGN);  // as the game does
    Options options;
    bool changes = false;
    if (!ReadOptions(argc, argv, options, changes)) {
        return 2;
    }
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    malvone::script::ScriptPlatform platform(options, std::cout);
    malvone::script::Script script(std::cin, std::cout);
    if (changes) {
        script.TellChanges();
    }
    script.Play(platform);
    return 0;
}
