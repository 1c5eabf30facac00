// main.cpp: the script program: standard input in, standard output out.
#include <iostream>

#include "tests/drehbuch/Drehbuch.h"

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto options = malvone::OptionenAus(arguments, std::cerr);
    if (!options) {
        return 2;
    }
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    malvone::Drehbuch(std::cin, std::cout, *options).Spielen();
    return 0;
}
