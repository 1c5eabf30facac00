// StilleBindung.h: the program without a screen, for tests of the core. Modal windows are answered
// from a queue, and what a player would see and hear is written down.
#pragma once

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "game/Main.h"
#include "platform/Files.h"
#include "ui/layer/App.h"

namespace malvone {

// What happened, in this order:
//   "sound CHIMES.WAV"              a wave was played
//   "open Malvone.pdf"              a manual was opened
//   "frmMsgOk: MELDUNG | TITEL"     a message window was shown
//   "frmBeste"                      another window was shown modally
//   "unanswered frmBeste"           the queue was empty, so the title bar closed the window
using Verlauf = std::vector<std::string>;

// What a player does in the modal window that is open. An answer that leaves the window open makes
// the next one follow in the same window.
using Antwort = std::function<void(Window&)>;

inline Antwort Taste(std::int16_t code, std::int16_t shift = 0)
{
    return [=](Window& fenster) { RouteKey(fenster, {code, shift}); };
}
inline Antwort Klick(std::string name)
{
    return [name](Window& fenster) { RaiseClick(*fenster.Find(name)); };
}
inline Antwort Titelleiste()
{
    return [](Window& fenster) { RaiseClose(fenster); };
}

class StilleBindung final : public Binding
{
public:
    malvone::Verlauf Verlauf;
    std::deque<Antwort> Antworten;

    Twips ScreenWidth() override { return 28800; }
    Twips ScreenHeight() override { return 16200; }
    void WindowShown(Window& window, ShowMode mode) override
    {
        const std::string name(window.Name());
        const auto* const meldung = dynamic_cast<Label*>(window.Find("lblMeldung"));
        const auto* const titel = dynamic_cast<Label*>(window.Find("lblTitel"));
        if (meldung != nullptr && titel != nullptr) {
            Verlauf.push_back(name + ": " + meldung->Caption.Get() + " | " + titel->Caption.Get());
        } else if (mode == ShowMode::Modal) {
            Verlauf.push_back(name);
        }
    }
    void WindowHidden(Window&) override {}
    void WindowUnloaded(Window&) override {}
    void RunModal(Window& window) override
    {
        if (Antworten.empty()) {
            Verlauf.push_back("unanswered " + std::string(window.Name()));
            RaiseClose(window);
            return;
        }
        const Antwort antwort = std::move(Antworten.front());
        Antworten.pop_front();
        antwort(window);
    }
    void DragWindow(Window&) override {}
    void Ended() override {}
};

// Real files in a folder of the test; everything else is written down.
class TestPlattform : public FilePlatform
{
public:
    TestPlattform(const std::filesystem::path& platte, const std::filesystem::path& programm,
                  Verlauf& verlauf)
        : FilePlatform(platte, programm), verlauf_(verlauf)
    {}

    enum class Aufruf { Keiner, Open, Write, Sync, Close, Rename };
    // The call that fails, with the error that it reports.
    Aufruf Gestoert = Aufruf::Keiner;
    int Fehler = 0;
    std::size_t HoechstensSchreiben = std::string::npos;  // bytes that one call writes
    bool MitWindowsordner = true;

    std::string GetWindowsDirectoryA() override
    {
        return MitWindowsordner ? FilePlatform::GetWindowsDirectoryA() : "";
    }
    void sndPlaySoundA(const std::string& path) override { Aufschreiben("sound ", path); }
    std::int32_t waveOutGetNumDevs() override { return 1; }
    void ShellExecuteA(const std::string& path) override { Aufschreiben("open ", path); }

protected:
    int Open(const char* path, int flags, mode_t mode) override
    {
        return Stoeren(Aufruf::Open) ? -1 : FilePlatform::Open(path, flags, mode);
    }
    ssize_t Write(int file, const char* bytes, std::size_t count) override
    {
        if (HoechstensSchreiben < count && !std::exchange(unterbrochen_, !unterbrochen_)) {
            errno = EINTR;  // every other call is interrupted
            return -1;
        }
        return Stoeren(Aufruf::Write)
                   ? -1
                   : FilePlatform::Write(file, bytes, std::min(count, HoechstensSchreiben));
    }
    int Sync(int file) override { return Stoeren(Aufruf::Sync) ? -1 : FilePlatform::Sync(file); }
    int Close(int file) override
    {
        const int ergebnis = FilePlatform::Close(file);
        return Stoeren(Aufruf::Close) ? -1 : ergebnis;
    }
    int Rename(const char* from, const char* to) override
    {
        return Stoeren(Aufruf::Rename) ? -1 : FilePlatform::Rename(from, to);
    }

private:
    Verlauf& verlauf_;
    bool unterbrochen_ = false;

    bool Stoeren(Aufruf aufruf)
    {
        if (Gestoert == aufruf) {
            errno = Fehler;
        }
        return Gestoert == aufruf;
    }
    void Aufschreiben(std::string_view was, const std::string& path)
    {
        verlauf_.push_back(std::string(was) + path.substr(path.find_last_of('\\') + 1));
    }
};

// A folder of its own that goes with the test.
class Testordner
{
public:
    explicit Testordner(const std::filesystem::path& darin = std::filesystem::temp_directory_path())
    {
        std::string muster = (darin / "malvone-XXXXXX").string();
        Pfad = ::mkdtemp(muster.data());
    }
    ~Testordner()
    {
        std::error_code error;
        std::filesystem::remove_all(Pfad, error);
    }
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;

    std::filesystem::path Pfad;
};

// A fresh program that is tied to the silent binding. Main has not run.
struct Programm
{
    Testordner Ordner;
    std::filesystem::path Platte = Ordner.Pfad / "platte";
    std::filesystem::path Programmordner = Ordner.Pfad / "programm";
    StilleBindung Bindung;
    TestPlattform Plattform{Platte, Programmordner, Bindung.Verlauf};

    explicit Programm(const std::filesystem::path& darin = std::filesystem::temp_directory_path())
        : Ordner(darin)
    {
        std::filesystem::create_directory(Programmordner);
        for (const char* const name : {"TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV",
                                       "FEHLER.WAV", "BLIP.WAV", "ding.wav", "Bestespieler.pdf"}) {
            std::ofstream(Programmordner / name).put('\n');
        }
        ZustandNeu();
        App.Begin(Bindung, Plattform);
    }
    ~Programm() { App.Finish(); }
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;

    // Runs Main, and gives back what was to be seen and heard meanwhile.
    Verlauf Starten()
    {
        Main();
        return VerlaufSeitdem();
    }
    Verlauf VerlaufSeitdem() { return std::exchange(Bindung.Verlauf, {}); }
    void Antworten(std::deque<Antwort> antworten) { Bindung.Antworten = std::move(antworten); }

    std::filesystem::path Datenordner() const { return Platte / "lindenspiele"; }
    std::filesystem::path Bestendatei() const { return Datenordner() / "malvone.txt"; }
    std::filesystem::path Standdatei() const { return Datenordner() / "tessel.ini"; }
};

// A file byte for byte; nothing where there is none.
inline std::optional<std::string> Dateiinhalt(const std::filesystem::path& pfad)
{
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(datei), {});
}
inline void DateiSchreiben(const std::filesystem::path& pfad, std::string_view inhalt)
{
    std::filesystem::create_directories(pfad.parent_path());
    std::ofstream(pfad, std::ios::binary) << inhalt;
}
// The names in a folder, sorted.
inline std::vector<std::string> Namen(const std::filesystem::path& ordner)
{
    std::vector<std::string> namen;
    for (const auto& eintrag : std::filesystem::directory_iterator(ordner)) {
        namen.push_back(eintrag.path().filename().string());
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

}  // namespace malvone
