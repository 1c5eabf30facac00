// Drehbuch.h: the binding that plays a script: lines in are events and questions, lines out are
// what a player would see and hear.
#pragma once

#include <cstdint>
#include <filesystem>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"
#include "tests/drehbuch/Ausgabe.h"
#include "ui/layer/Binding.h"

namespace malvone {

struct Optionen
{
    std::filesystem::path Daten;
    std::filesystem::path Programm;
    bool OhneWindowsordner = false;
    std::int32_t Klanggeraete = 1;
};

// Reads the arguments behind the program's name; nothing, and a message, where they are not in
// order.
std::optional<Optionen> OptionenAus(const std::vector<std::string>& arguments, std::ostream& fault);

// Plays the whole program once, from its first statement to its end or to the end of the script.
class Drehbuch
{
public:
    Drehbuch(std::istream& in, std::ostream& out, const Optionen& options);
    ~Drehbuch();
    Drehbuch(const Drehbuch&) = delete;
    Drehbuch& operator=(const Drehbuch&) = delete;

    void Spielen();

private:
    // Files are those of the real program; what is heard or opened becomes a line.
    class Plattform final : public FilePlatform
    {
    public:
        Plattform(const Optionen& options, Ausgabe& out);
        std::string GetWindowsDirectoryA() override;
        void sndPlaySoundA(const std::string& path) override;
        std::int32_t waveOutGetNumDevs() override { return devices_; }
        void ShellExecuteA(const std::string& path) override;

    private:
        Ausgabe& out_;
        bool withoutWindowsFolder_;
        std::int32_t devices_;
    };

    class Bindung final : public Binding
    {
    public:
        explicit Bindung(Drehbuch& script) : script_(script) {}
        Twips ScreenWidth() override { return 28800; }
        Twips ScreenHeight() override { return 16200; }
        void WindowShown(Window& window, ShowMode mode) override;
        void WindowHidden(Window& window) override;
        void WindowUnloaded(Window& window) override;
        void RunModal(Window& window) override;
        void DragWindow(Window& window) override;
        void Ended() override;

    private:
        void Sagen(std::string_view what, const Window& window);

        Drehbuch& script_;
    };

    std::istream& in_;
    Ausgabe out_;
    Plattform platform_;
    Bindung binding_;

    // Waits, reads and obeys one command. Comments and empty lines are no commands.
    void NaechsterBefehl(std::string_view waiting);
};

}  // namespace malvone
