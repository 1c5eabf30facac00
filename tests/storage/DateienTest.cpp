// DateienTest.cpp: what the file calls make of good, damaged and missing files, and what is left
// behind when they fail, are interrupted or meet each other.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <atomic>
#include <cstdlib>
#include <thread>

#include "tests/support/Game.h"

namespace malvone {

// For the names of failed comparisons.
void PrintTo(FileFault fault, std::ostream* os)
{
    *os << static_cast<int>(fault);
}

namespace test {
namespace {

namespace fs = std::filesystem;
using Texte = std::vector<std::string>;

constexpr const char* kDatei = "C:\\datei.txt";
const Texte kNeu = {"neu", "2"};
constexpr const char* kAltInhalt = "alt\r\n1\r\n";
constexpr const char* kNeuInhalt = "neu\r\n2\r\n";

struct Getoetet
{};

// Files alone. One call of the system, counted from 1, fails, alone or with all of its kind behind
// it; or the program is killed there.
class Plattform : public FilePlatform
{
public:
    explicit Plattform(const std::optional<fs::path>& platte) : FilePlatform(platte, "/programm") {}

    int Stelle = 0;
    int Fehler = 0;  // 0: the kill
    bool FuerImmer = false;
    int Aufrufe = 0;

    void sndPlaySoundA(const std::string&) override {}
    std::int32_t waveOutGetNumDevs() override { return 0; }
    void ShellExecuteA(const std::string&) override {}

protected:
    int Open(const char* path, int flags, mode_t mode) override
    {
        return Scheitert("open") ? -1 : FilePlatform::Open(path, flags, mode);
    }
    ssize_t Write(int file, const char* bytes, std::size_t count) override
    {
        return Scheitert("write")
                   ? -1
                   : FilePlatform::Write(file, bytes, std::min<std::size_t>(count, 3));
    }
    int Sync(int file) override { return Scheitert("sync") ? -1 : FilePlatform::Sync(file); }
    int Close(int file) override
    {
        const int ergebnis = FilePlatform::Close(file);
        return Fehler != 0 && Scheitert("close") ? -1 : ergebnis;
    }
    int Rename(const char* from, const char* to) override
    {
        return Scheitert("rename") ? -1 : FilePlatform::Rename(from, to);
    }

private:
    std::string getroffen_;

    bool Scheitert(const std::string& aufruf)
    {
        const bool jetzt = ++Aufrufe == Stelle;
        if (jetzt && Fehler == 0) {
            throw Getoetet();
        }
        getroffen_ = jetzt ? aufruf : getroffen_;
        errno = Fehler;
        return jetzt || (FuerImmer && getroffen_ == aufruf);
    }
};

struct Dateien : testing::Test
{
    Folder Ordner;
    fs::path Platte = Ordner.Path / "platte";
    fs::path Datei = Platte / "datei.txt";
    Plattform System{Platte};

    void Anlegen(std::string_view inhalt = kAltInhalt) const { WriteFile(Datei, inhalt); }
};

TEST_F(Dateien, PathsOfTheGameLeadToTwoFolders)
{
    const struct
    {
        const char* Pfad;
        std::optional<fs::path> Ort;
    } cases[] = {
        {"C:\\lindenspiele\\malvone.txt", Platte / "lindenspiele/malvone.txt"},
        {"\\malvone.txt", Platte / "malvone.txt"},
        {"C:\\", Platte},
        {"P:\\TADA.WAV", "/programm/TADA.WAV"},
        {"", std::nullopt},
        {"malvone.txt", std::nullopt},
        {"D:\\malvone.txt", std::nullopt},
        {"C:malvone.txt", std::nullopt},
        {"\\\\server\\malvone.txt", std::nullopt},
        {"/etc/passwd", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(System.Translate(c.Pfad), c.Ort) << c.Pfad;
    }
}

TEST_F(Dateien, TheDataRootComesFromTheEnvironment)
{
    const std::string home = Ordner.Path.string();
    const struct
    {
        std::string Data;
        std::string Home;
        std::optional<std::string> Ort;
    } cases[] = {
        {"/daten", home, "/daten"},         {"daten", home, home + "/.local/share"},
        {"", home, home + "/.local/share"}, {"", home + "/fehlt", std::nullopt},
        {"", "heim", std::nullopt},
    };
    for (const auto& c : cases) {
        ::setenv("XDG_DATA_HOME", c.Data.c_str(), 1);
        ::setenv("HOME", c.Home.c_str(), 1);
        EXPECT_EQ(DefaultDataRoot(), c.Ort) << c.Data << " " << c.Home;
    }
    ::unsetenv("XDG_DATA_HOME");
    ::setenv("HOME", home.c_str(), 1);

    Plattform ohne(std::nullopt);
    EXPECT_EQ(ohne.GetWindowsDirectoryA(), "");
    EXPECT_FALSE(ohne.CreateDirectoryA("C:\\lindenspiele"));
    EXPECT_EQ(ohne.OpenFileExist("\\malvone.txt"), kPathNotFound);
    EXPECT_EQ(ohne.ReadTextLines("\\malvone.txt", 1).Fault, FileFault::PathAccess);
    EXPECT_EQ(ohne.ReplaceTextLines("\\malvone.txt", kNeu, OldFile::Goes), FileFault::PathAccess);
}

TEST_F(Dateien, MissingFoldersAreMadeForThePlayerAlone)
{
    Plattform tief(Platte / "a" / "b");
    EXPECT_TRUE(tief.CreateDirectoryA("C:\\lindenspiele"));
    for (const char* const ordner : {"", "a", "a/b", "a/b/lindenspiele"}) {
        EXPECT_EQ(fs::status(Platte / ordner).permissions(), fs::perms::owner_all) << ordner;
    }
    EXPECT_FALSE(tief.CreateDirectoryA("C:\\fehlt\\darin"));
}

TEST_F(Dateien, AFileIsReadLineByLineAsFarAsItGoes)
{
    const std::string block(4096 - 1, 'x');  // the CR is the last byte of a block
    const std::string laengste(64 * 1024, 'x');
    std::string endlos;
    endlos.resize(50'000'000, 'x');
    const struct
    {
        std::string Inhalt;
        Texte Zeilen;
        FileFault Fehler = FileFault::None;
    } cases[] = {
        {"a\r\nb\r\nc\r\n", {"a", "b", "c"}},
        {"a\nb\nc\n", {"a", "b", "c"}},
        {"a\rb\rc\r", {"a", "b", "c"}},
        {"a\n\rb\r\nc", {"a", "", "b"}},
        {"a\r\r\n\nb", {"a", "", ""}},
        {"a\nb\nc", {"a", "b", "c"}},  // the last line needs no end
        {"a\nb\nc\nd", {"a", "b", "c"}},
        {"\n\n\n", {"", "", ""}},
        {block + "\r\nb\nc", {block, "b", "c"}},
        {std::string("a\0b\n\x1A\n\xFC", 7), {std::string("a\0b", 3), "\x1A", "ü"}},
        {"", {}, FileFault::PastEnd},
        {"\n", {""}, FileFault::PastEnd},
        {"a\nb", {"a", "b"}, FileFault::PastEnd},
        {laengste + "\r\nb\nc", {laengste, "b", "c"}},
        {"a\n" + laengste + "x\nc", {"a"}, FileFault::OtherDevice},
        {"a\n" + endlos, {"a"}, FileFault::OtherDevice},
    };
    struct rusage vorher
    {};
    ::getrusage(RUSAGE_SELF, &vorher);
    for (const auto& c : cases) {
        Anlegen(c.Inhalt);
        const ReadLines gelesen = System.ReadTextLines(kDatei, 3);
        EXPECT_EQ(gelesen.Fault, c.Fehler) << c.Inhalt.substr(0, 20);
        EXPECT_EQ(gelesen.Lines, c.Zeilen);
    }
    struct rusage nachher
    {};
    ::getrusage(RUSAGE_SELF, &nachher);
    EXPECT_LT(nachher.ru_maxrss - vorher.ru_maxrss, 16 * 1024) << "KiB for a line without end";
}

// What lies in the place of the file, what the test for it says, and what every use of it meets.
TEST_F(Dateien, WhatIsNoFileIsRefusedAndLeftAlone)
{
    const fs::path ort = Platte / "ort";
    const struct
    {
        const char* Was;
        std::function<void()> Anlegen;
        std::string Pfad;
        std::int32_t Test;
        FileFault Lesen;
        FileFault Ersetzen;
    } cases[] = {
        {"folder", [&] { fs::create_directory(ort); }, "C:\\ort", kAccessRefused,
         FileFault::PathAccess, FileFault::PathAccess},
        {"file for a folder", [&] { WriteFile(ort, ""); }, "C:\\ort\\datei", kPathNotFound,
         FileFault::PathAccess, FileFault::PathAccess},
        {"missing folder", [] {}, "C:\\ort\\datei", kPathNotFound, FileFault::NotFound,
         FileFault::NotFound},
        {"circle of links", [&] { fs::create_symlink(ort, ort); }, "C:\\ort", kAccessRefused,
         FileFault::PathAccess, FileFault::PathAccess},
        {"pipe", [&] { ::mkfifo(ort.c_str(), 0600); }, "C:\\ort", kAccessRefused,
         FileFault::PathAccess, FileFault::PathAccess},
        {"long name", [] {}, "C:\\" + std::string(300, 'x'), kAccessRefused, FileFault::PathAccess,
         FileFault::PathAccess},
        {"unreadable bytes", [&] { fs::create_symlink("/proc/self/mem", ort); }, "C:\\ort",
         kFileExists, FileFault::OtherDevice, FileFault::NotFound},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Was);
        fs::create_directories(Platte);
        c.Anlegen();
        const auto vorher = Names(Platte);
        EXPECT_EQ(System.OpenFileExist(c.Pfad), c.Test);
        EXPECT_EQ(System.ReadTextLines(c.Pfad, 1).Fault, c.Lesen);
        for (const OldFile alte : {OldFile::Goes, OldFile::Kept, OldFile::Stays}) {
            EXPECT_NE(System.ReplaceTextLines(c.Pfad, kNeu, alte), FileFault::None);
        }
        EXPECT_EQ(Names(Platte), vorher);
        fs::remove_all(Platte);
    }
}

// Whatever call fails, once or from then on: a failure leaves the old file, success the new one,
// and neither leaves anything else. What is to be kept is kept before it can be lost.
TEST_F(Dateien, AnyCallThatFailsLeavesTheOldFileOrTheNewOneAndNothingElse)
{
    const int fehler[] = {EACCES, EDQUOT, EEXIST, EINTR, EIO, EMFILE, ENOENT, ENOSPC, EROFS};
    const struct
    {
        OldFile Alte;
        bool Vorhanden;
        Texte Danach;
    } cases[] = {
        {OldFile::Goes, true, {"datei.txt"}},
        {OldFile::Goes, false, {"datei.txt"}},
        {OldFile::Kept, true, {"datei-nicht-gelesen-1.txt", "datei.txt"}},
        {OldFile::Kept, false, {"datei.txt"}},
    };
    for (const auto& c : cases) {
        for (const int errnummer : fehler) {
            for (const bool immer : {false, true}) {
                int gelungen = 0;
                bool zuEnde = false;
                for (int stelle = 1; !zuEnde; ++stelle) {
                    SCOPED_TRACE(testing::Message() << static_cast<int>(c.Alte) << " errno "
                                                    << errnummer << " call " << stelle);
                    fs::remove_all(Platte);
                    fs::create_directories(Platte);
                    if (c.Vorhanden) {
                        Anlegen();
                    }
                    Plattform system(Platte);
                    system.Stelle = stelle;
                    system.Fehler = errnummer;
                    system.FuerImmer = immer;
                    const auto vorher = Names(Platte);
                    const bool gut =
                        system.ReplaceTextLines(kDatei, kNeu, c.Alte) == FileFault::None;
                    EXPECT_EQ(Names(Platte), gut ? c.Danach : vorher);
                    EXPECT_EQ(Contents(Datei).value_or(kAltInhalt), gut ? kNeuInhalt : kAltInhalt);
                    EXPECT_EQ(Contents(Platte / "datei-nicht-gelesen-1.txt").value_or(kAltInhalt),
                              kAltInhalt);
                    EXPECT_TRUE(gut || errnummer != EINTR || immer) << "not tried again";
                    gelungen += gut ? 1 : 0;
                    zuEnde = system.Aufrufe < stelle || HasFailure();
                }
                EXPECT_GT(gelungen, 0);
            }
        }
    }
    for (const int stelle : {1, 2, 3}) {  // a plain write: open, write, close
        Plattform system(Platte);
        system.Stelle = stelle == 3 ? 5 : stelle;
        system.Fehler = ENOSPC;
        EXPECT_EQ(system.WriteTextLines(kDatei, kNeu), FileFault::OtherDevice) << stelle;
    }
}

TEST_F(Dateien, AKillAtAnyCallLeavesTheOldFileOrTheNewOneAndTheNextSaveClearsUp)
{
    for (const OldFile alte : {OldFile::Goes, OldFile::Kept}) {
        System.Stelle = 1;
        for (bool getoetet = true; getoetet; ++System.Stelle) {
            fs::remove_all(Platte);
            Anlegen();
            System.Aufrufe = 0;
            getoetet = false;
            try {
                System.ReplaceTextLines(kDatei, kNeu, alte);
            } catch (const Getoetet&) {
                getoetet = true;
            }
            const std::string inhalt = Contents(Datei).value_or("");
            EXPECT_TRUE(inhalt == kAltInhalt || inhalt == kNeuInhalt) << inhalt;
            fs::remove(Platte / "datei-nicht-gelesen-1.txt");
            EXPECT_EQ(Plattform(Platte).ReplaceTextLines(kDatei, kNeu, OldFile::Goes),
                      FileFault::None);
            EXPECT_EQ(Names(Platte), Texte{"datei.txt"});
        }
        EXPECT_GT(System.Stelle, 8);
    }
}

TEST_F(Dateien, TwoRunsThatSaveAtOnceBothSucceedAndNeverMixTheirLists)
{
    const auto speichern = [this](char zeichen, std::atomic<int>& gescheitert) {
        Plattform system(Platte);
        for (int i = 0; i < 100; ++i) {
            const Texte zeilen(3, std::string(20, zeichen));
            gescheitert +=
                system.ReplaceTextLines(kDatei, zeilen, OldFile::Goes) != FileFault::None;
        }
    };
    Anlegen();
    std::atomic<int> gescheitert = 0;
    std::atomic<int> fertig = 0;
    const auto lauf = [&](char zeichen) {
        speichern(zeichen, gescheitert);
        ++fertig;
    };
    std::thread einer(lauf, 'a');
    std::thread anderer(lauf, 'b');
    const auto liste = [](char zeichen) {
        const std::string zeile = std::string(20, zeichen) + "\r\n";
        return zeile + zeile + zeile;
    };
    bool ganz = true;
    while (fertig < 2) {
        const std::string inhalt = Contents(Datei).value_or("");
        ganz = ganz && (inhalt == liste('a') || inhalt == liste('b') || inhalt == kAltInhalt);
    }
    einer.join();
    anderer.join();
    EXPECT_TRUE(ganz);
    EXPECT_EQ(gescheitert, 0);
    EXPECT_EQ(Names(Platte), Texte{"datei.txt"});
}

TEST_F(Dateien, AReplacedFileKeepsItsLinkAndItsPermissions)
{
    const fs::path ziel = Ordner.Path / "anderswo" / "liste";
    fs::create_directory(Platte);
    fs::create_symlink("../anderswo/liste", Datei);
    for (const auto rechte : {static_cast<fs::perms>(0600), static_cast<fs::perms>(0664)}) {
        WriteFile(ziel, kAltInhalt);
        fs::permissions(ziel, rechte);
        EXPECT_EQ(System.ReplaceTextLines(kDatei, kNeu, OldFile::Goes), FileFault::None);
        EXPECT_TRUE(fs::is_symlink(Datei));
        EXPECT_EQ(Contents(ziel), kNeuInhalt);
        EXPECT_EQ(fs::status(ziel).permissions(), rechte);
        EXPECT_EQ(Names(ziel.parent_path()), Texte{"liste"});
    }
    System.DeleteFileA(kDatei);
    EXPECT_FALSE(fs::exists(ziel));
    EXPECT_EQ(System.ReplaceTextLines(kDatei, kNeu, OldFile::Stays), FileFault::None);
    EXPECT_EQ(Contents(ziel), kNeuInhalt);
}

TEST_F(Dateien, WhatLiesInThePlaceOfTheNewFileIsNotWrittenThrough)
{
    const fs::path fremd = Ordner.Path / "fremd";
    const fs::path neu = Platte / "datei.txt.neu";
    WriteFile(fremd, "fremd");
    const std::function<void()> cases[] = {[&] { fs::create_hard_link(fremd, neu); },
                                           [&] { fs::create_symlink(fremd, neu); },
                                           [&] { fs::create_directory(neu); }};
    for (const auto& anlegen : cases) {
        Anlegen();
        anlegen();
        EXPECT_EQ(System.ReplaceTextLines(kDatei, kNeu, OldFile::Goes), FileFault::None);
        EXPECT_EQ(Contents(fremd), "fremd");
        EXPECT_EQ(Contents(Datei), kNeuInhalt);
        EXPECT_EQ(Names(Platte), Texte{"datei.txt"});
    }
}

// Nothing is read-only for root: the test then goes on as a user who is nobody.
class OhneVorrechte
{
public:
    explicit OhneVorrechte(const fs::path& ordner)
    {
        if (root_) {
            for (const auto& eintrag : fs::recursive_directory_iterator(ordner)) {
                EXPECT_EQ(::lchown(eintrag.path().c_str(), kNiemand, kNiemand), 0);
            }
            EXPECT_EQ(::lchown(ordner.c_str(), kNiemand, kNiemand), 0);
            EXPECT_EQ(::seteuid(kNiemand), 0);
        }
    }
    ~OhneVorrechte()
    {
        if (root_) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    OhneVorrechte(const OhneVorrechte&) = delete;
    OhneVorrechte& operator=(const OhneVorrechte&) = delete;

private:
    static constexpr uid_t kNiemand = 65534;
    const bool root_ = ::geteuid() == 0;
};

TEST_F(Dateien, AReadOnlyFileOrFolderIsTold)
{
    for (const bool ordner : {false, true}) {
        fs::remove_all(Platte);
        Anlegen();
        ::chmod((ordner ? Platte : Datei).c_str(), 0555);
        const OhneVorrechte ohne(Ordner.Path);
        EXPECT_EQ(System.ReplaceTextLines(kDatei, kNeu, OldFile::Goes), FileFault::NoPermission);
        EXPECT_EQ(Contents(Datei), kAltInhalt);
        EXPECT_EQ(System.CreateDirectoryA("C:\\ordner"), !ordner);
        EXPECT_EQ(System.WriteTextLines("C:\\neu.txt", kNeu),
                  ordner ? FileFault::NoPermission : FileFault::None);
    }
}

TEST_F(Dateien, AFileWithoutPermissionIsKeptBesideTheNewOneAndOverNoOther)
{
    Anlegen();
    WriteFile(Platte / "datei-nicht-gelesen-1.txt", "aelter");
    ::chmod(Datei.c_str(), 0000);
    {
        const OhneVorrechte ohne(Ordner.Path);
        EXPECT_EQ(System.ReadTextLines(kDatei, 1).Fault, FileFault::NoPermission);
        EXPECT_EQ(System.ReplaceTextLines(kDatei, kNeu, OldFile::Kept), FileFault::None);
        EXPECT_EQ(System.ReadTextLines(kDatei, 2).Lines, kNeu);
    }
    ::chmod((Platte / "datei-nicht-gelesen-2.txt").c_str(), 0600);
    EXPECT_EQ(Contents(Platte / "datei-nicht-gelesen-1.txt"), "aelter");
    EXPECT_EQ(Contents(Platte / "datei-nicht-gelesen-2.txt"), kAltInhalt);
    EXPECT_EQ(Names(Platte).size(), 3U);
}

TEST_F(Dateien, AfterTheEndNothingIsWrittenDeletedOrMade)
{
    Anlegen();
    System.Over = true;
    System.WriteTextLines(kDatei, kNeu);
    System.ReplaceTextLines(kDatei, kNeu, OldFile::Goes);
    System.DeleteFileA(kDatei);
    System.CreateDirectoryA("C:\\ordner");
    EXPECT_EQ(Names(Platte), Texte{"datei.txt"});
    EXPECT_EQ(Contents(Datei), kAltInhalt);
}

}  // namespace
}  // namespace test
}  // namespace malvone
