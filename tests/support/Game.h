// Game.h: the test kit of the core: the whole program behind the binding of the script
// program, in folders of its own. A test says what happens in the lines of a script and compares
// the lines that come back.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "state/Zellen.h"
#include "tests/drehbuch/Script.h"
#include "tests/support/Faults.h"
#include "tests/support/Folder.h"
#include "ui/layer/App.h"

namespace malvone::test {

// The platform of the script program, with the test's own clock.
class TestPlatform : public Faulty<script::ScriptPlatform>
{
public:
    using Faulty::Faulty;

    std::function<std::uint64_t()> Clock;

    std::uint64_t ClockNs() override { return Clock ? Clock() : ScriptPlatform::ClockNs(); }
};

// A stage for the program or for the layer alone: folders, a platform, and a binding that reads and
// writes lines. Nothing has begun.
template<class TheBinding = script::Script>
class Stage
{
public:
    const Folder Home;
    const std::filesystem::path Disk = Home.Path / "daten";  // the root of the drive
    const std::filesystem::path Program = Home.Path / "programm";
    const std::filesystem::path DataFolder = Disk / "lindenspiele";
    const std::filesystem::path BestList = DataFolder / "malvone.txt";
    const std::filesystem::path Snapshot = DataFolder / "tessel.ini";

private:
    std::istringstream in_;
    std::ostringstream out_;

public:
    TestPlatform Platform;
    TheBinding Binding{in_, out_};

    explicit Stage(script::Options options = {}) : Platform(Complete(std::move(options)), out_)
    {
        std::filesystem::create_directory(Disk);
        for (const char* const name :
             {"TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV", "BLIP.WAV",
              "ding.wav", "Malvone.pdf", "Meldefenster.pdf", "Bestespieler.pdf"}) {
            WriteFile(Program / name, "");
        }
    }
    ~Stage() { App.Finish(); }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    // Runs Main. The lines are for the messages that stop it.
    std::string Start(const std::string& lines = "")
    {
        in_.clear();
        in_.str(lines);
        Binding.Begin(Platform);
        return Told();
    }
    // Plays the lines; what came back, without those lines that only say who waits. Lines that end
    // while a modal window waits end the program.
    std::string operator()(const std::string& lines)
    {
        Play(lines);
        return Told();
    }
    // The whole transcript.
    std::string Raw(const std::string& lines)
    {
        Play(lines);
        return std::exchange(out_, std::ostringstream()).str();
    }
    // The same for something that the test does itself; the lines are for the windows that it
    // opens.
    template<class Doing>
    std::string operator()(const std::string& lines, Doing doing)
    {
        in_.clear();
        in_.str(lines);
        {
            const EventScope scope;
            doing();
        }
        return Told();
    }
    // What has been told since the last time.
    std::string Told()
    {
        std::istringstream all(std::exchange(out_, std::ostringstream()).str());
        std::string told;
        for (std::string line; std::getline(all, line);) {
            told += line.starts_with("> ") ? "" : line + "\n";
        }
        return told;
    }

private:
    void Play(const std::string& lines)
    {
        in_.clear();
        in_.str(lines);
        while (!App.Ended() && in_.peek() != std::istringstream::traits_type::eof()) {
            Binding.Step("-");
        }
    }
    script::Options Complete(script::Options options) const
    {
        options.Data = Disk;
        options.Program = Program;
        return options;
    }
};

// The program after its start.
struct Game : Stage<>
{
    explicit Game(const std::string& bestList = "")
    {
        if (!bestList.empty()) {
            WriteFile(BestList, bestList);
        }
        Start();
    }
};

// 140 digits from the rows of a board, '.' for an empty cell. What is not given is empty: rows at
// the top, columns at the right.
inline std::string Board(const std::vector<std::string_view>& rows)
{
    std::string cells(kZellen, '0');
    std::size_t row = kReihen - rows.size();
    for (const std::string_view text : rows) {
        for (std::size_t column = 0; column < text.size(); ++column) {
            cells[column * kReihen + row] = text[column] == '.' ? '0' : text[column];
        }
        ++row;
    }
    return cells;
}

// A row of digit places as it is seen, dark ones as '.'; the first of them is the units.
inline std::string Digits(const ControlArray<Image>& places, int first, int last)
{
    std::string digits;
    for (int i = last; i >= first; --i) {
        const std::string_view name = places(i).Picture->Name();
        digits += !places(i).Visible       ? ""
                  : name.ends_with("(10)") ? "."
                                           : name.substr(name.size() - 2, 1);
    }
    return digits;
}

inline std::string Field(int cell)
{
    return "frmTessel.imgFeld(" + std::to_string(cell) + ")";
}
inline std::string PointAt(int cell)
{
    return "do " + Field(cell) + " MouseMove\n";
}
inline std::string Press(int cell)
{
    return "do " + Field(cell) + " MouseDown\n";
}

}  // namespace malvone::test
