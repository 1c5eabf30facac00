// DateienTest.cpp: what the file calls make of good, damaged and missing files, and what is left
// behind when they fail.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include "storage/modBeste.h"
#include "tests/support/StilleBindung.h"
#include "ui/windows/FrmBeste.h"

namespace malvone {

// For the names of failed comparisons.
void PrintTo(FileFault fault, std::ostream* os)
{
    *os << static_cast<int>(fault);
}

namespace {

namespace fs = std::filesystem;
using Aufruf = TestPlattform::Aufruf;

constexpr const char* kDatei = "C:\\datei.txt";
const std::vector<std::string> kAlt = {"alt", "1"};
const std::vector<std::string> kNeu = {"neu", "2"};
constexpr const char* kAltInhalt = "alt\r\n1\r\n";
constexpr const char* kNeuInhalt = "neu\r\n2\r\n";

TEST(Dateien, PathsOfTheGameLeadToTwoFolders)
{
    const Programm programm;
    const fs::path& platte = programm.Platte;
    const struct
    {
        const char* Pfad;
        std::optional<fs::path> Ort;
    } cases[] = {
        {"C:\\lindenspiele\\malvone.txt", platte / "lindenspiele/malvone.txt"},
        {"\\malvone.txt", platte / "malvone.txt"},
        {"C:\\", platte},
        {"P:\\TADA.WAV", programm.Programmordner / "TADA.WAV"},
        {"", std::nullopt},
        {"malvone.txt", std::nullopt},
        {"D:\\malvone.txt", std::nullopt},
        {"C:malvone.txt", std::nullopt},
        {"\\\\server\\malvone.txt", std::nullopt},
        {"/etc/passwd", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(programm.Plattform.Translate(c.Pfad), c.Ort) << c.Pfad;
    }
}

TEST(Dateien, WithoutAHomeNothingLeadsAnywhere)
{
    class OhneHeim : public TestPlattform
    {
    public:
        OhneHeim(const fs::path& ordner, Verlauf& verlauf)
            : TestPlattform(ordner, ordner, verlauf), ohne(std::nullopt, ordner)
        {}
        struct Ohne : FilePlatform
        {
            using FilePlatform::FilePlatform;
            void sndPlaySoundA(const std::string&) override {}
            std::int32_t waveOutGetNumDevs() override { return 0; }
            void ShellExecuteA(const std::string&) override {}
        } ohne;
    };
    Programm programm;
    OhneHeim plattform(programm.Platte, programm.Bindung.Verlauf);
    EXPECT_EQ(plattform.ohne.GetWindowsDirectoryA(), "");
    EXPECT_FALSE(plattform.ohne.CreateDirectoryA("C:\\lindenspiele"));
    EXPECT_EQ(plattform.ohne.OpenFileExist("\\malvone.txt"), kPathNotFound);
    EXPECT_EQ(plattform.ohne.ReadTextLines("\\malvone.txt", 1).Fault, FileFault::PathAccess);
    EXPECT_EQ(plattform.ohne.ReplaceTextLines("\\malvone.txt", kNeu), FileFault::PathAccess);
}

TEST(Dateien, TheDataRootComesFromTheEnvironment)
{
    const Testordner heim;
    const std::string home = heim.Pfad.string();
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
}

TEST(Dateien, LinesEndWithCrLfOrLfOrCr)
{
    Programm programm;
    const std::string block(64 * 1024 - 1, 'x');  // the CR is the last byte of a block
    const struct
    {
        std::string Inhalt;
        std::vector<std::string> Zeilen;
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
    };
    for (const auto& c : cases) {
        DateiSchreiben(programm.Platte / "datei.txt", c.Inhalt);
        const ReadLines gelesen = programm.Plattform.ReadTextLines(kDatei, 3);
        EXPECT_EQ(gelesen.Fault, FileFault::None);
        EXPECT_EQ(gelesen.Lines, c.Zeilen);
    }
}

TEST(Dateien, AShortFileGivesWhatItHolds)
{
    Programm programm;
    const struct
    {
        const char* Inhalt;
        std::vector<std::string> Zeilen;
    } cases[] = {{"", {}}, {"\n", {""}}, {"a\nb\r\n", {"a", "b"}}, {"a\nb", {"a", "b"}}};
    for (const auto& c : cases) {
        DateiSchreiben(programm.Platte / "datei.txt", c.Inhalt);
        const ReadLines gelesen = programm.Plattform.ReadTextLines(kDatei, 3);
        EXPECT_EQ(gelesen.Fault, FileFault::PastEnd);
        EXPECT_EQ(gelesen.Lines, c.Zeilen);
    }
}

// What lies in the place of the file, what the test for it says, and what every use of it meets.
TEST(Dateien, WhatIsNoFileIsRefusedAndLeftAlone)
{
    Programm programm;
    const fs::path ort = programm.Platte / "ort";
    const std::string langerName = "C:\\" + std::string(300, 'x');
    int leser = -1;
    const struct
    {
        const char* Was;
        std::function<void()> Anlegen;
        std::string Pfad;
        std::int32_t Test;
        FileFault Lesen;
        FileFault Schreiben;
    } cases[] = {
        {"folder", [&] { fs::create_directory(ort); }, "C:\\ort", kAccessRefused,
         FileFault::PathAccess, FileFault::PathAccess},
        {"file for a folder", [&] { DateiSchreiben(ort, ""); }, "C:\\ort\\datei", kPathNotFound,
         FileFault::PathAccess, FileFault::PathAccess},
        {"missing folder", [] {}, "C:\\ort\\datei", kPathNotFound, FileFault::NotFound,
         FileFault::NotFound},
        {"circle of links", [&] { fs::create_symlink(ort, ort); }, "C:\\ort", kAccessRefused,
         FileFault::PathAccess, FileFault::PathAccess},
        {"pipe", [&] { ::mkfifo(ort.c_str(), 0600); }, "C:\\ort", kAccessRefused,
         FileFault::PathAccess, FileFault::OtherDevice},
        {"pipe that somebody reads",
         [&] {
             ::mkfifo(ort.c_str(), 0600);
             leser = ::open(ort.c_str(), O_RDWR | O_NONBLOCK);
         },
         "C:\\ort", kAccessRefused, FileFault::PathAccess, FileFault::PathAccess},
        {"long name", [] {}, langerName, kAccessRefused, FileFault::PathAccess,
         FileFault::PathAccess},
        {"unreadable bytes", [&] { fs::create_symlink("/proc/self/mem", ort); }, "C:\\ort",
         kFileExists, FileFault::OtherDevice, FileFault::None},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Was);
        fs::create_directories(programm.Platte);
        c.Anlegen();
        const auto vorher = Namen(programm.Platte);
        EXPECT_EQ(programm.Plattform.OpenFileExist(c.Pfad), c.Test);
        EXPECT_EQ(programm.Plattform.ReadTextLines(c.Pfad, 1).Fault, c.Lesen);
        if (c.Schreiben != FileFault::None) {
            EXPECT_EQ(programm.Plattform.WriteTextLines(c.Pfad, kNeu), c.Schreiben);
            EXPECT_EQ(programm.Plattform.ReplaceTextLines(c.Pfad, kNeu), c.Schreiben);
            EXPECT_EQ(Namen(programm.Platte), vorher);
        }
        fs::remove_all(programm.Platte);
    }
    ::close(leser);
}

TEST(Dateien, AHugeFileTakesAMomentAndLittleMemory)
{
    Programm programm;
    const fs::path ort = programm.Platte / "datei.txt";
    constexpr std::size_t kMegabyte = 1024 * 1024;
    const struct
    {
        const char* Anfang;
        std::size_t Zeilen;
    } cases[] = {{"a\nb\n", 2}, {"", 0}};
    for (const auto& c : cases) {
        DateiSchreiben(ort, c.Anfang);
        {
            std::ofstream datei(ort, std::ios::binary | std::ios::app);
            const std::string megabyte(kMegabyte, 'x');
            for (int i = 0; i < 100; ++i) {
                datei << megabyte;
            }
        }
        struct rusage vorher
        {};
        struct rusage nachher
        {};
        ::getrusage(RUSAGE_SELF, &vorher);
        const auto beginn = std::chrono::steady_clock::now();
        const ReadLines gelesen = programm.Plattform.ReadTextLines(kDatei, 10);
        const auto dauer = std::chrono::steady_clock::now() - beginn;
        ::getrusage(RUSAGE_SELF, &nachher);
        EXPECT_EQ(gelesen.Fault, FileFault::OtherDevice);
        EXPECT_EQ(gelesen.Lines.size(), c.Zeilen);
        EXPECT_LT(dauer, std::chrono::milliseconds(500));
        EXPECT_LT(nachher.ru_maxrss - vorher.ru_maxrss, 8 * 1024) << "KiB";
    }
}

TEST(Dateien, TheLongestLineOf64KiBIsRead)
{
    Programm programm;
    const std::string zeile(64 * 1024, 'x');
    DateiSchreiben(programm.Platte / "datei.txt", zeile + "\r\nb\r\n");
    EXPECT_EQ(programm.Plattform.ReadTextLines(kDatei, 2).Lines,
              (std::vector<std::string>{zeile, "b"}));
    DateiSchreiben(programm.Platte / "datei.txt", zeile + "x\r\nb\r\n");
    EXPECT_EQ(programm.Plattform.ReadTextLines(kDatei, 2).Fault, FileFault::OtherDevice);
}

TEST(Dateien, AFailedReplacementLeavesTheOldFileAndNothingElse)
{
    const struct
    {
        Aufruf Gestoert;
        int Fehler;
        FileFault Erwartet;
    } cases[] = {
        {Aufruf::Open, EACCES, FileFault::NoPermission},  // read-only file or folder
        {Aufruf::Open, EROFS, FileFault::NoPermission},
        {Aufruf::Open, ENOSPC, FileFault::OtherDevice},
        {Aufruf::Write, ENOSPC, FileFault::OtherDevice},
        {Aufruf::Write, EIO, FileFault::OtherDevice},
        {Aufruf::Sync, ENOSPC, FileFault::OtherDevice},  // told only when it reaches the disk
        {Aufruf::Rename, EPERM, FileFault::NoPermission},
    };
    for (const bool vorhanden : {true, false}) {
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(c.Gestoert) << " " << c.Fehler);
            Programm programm;
            fs::create_directory(programm.Platte);
            if (vorhanden) {
                DateiSchreiben(programm.Platte / "datei.txt", kAltInhalt);
            }
            const auto vorher = Namen(programm.Platte);
            programm.Plattform.Gestoert = c.Gestoert;
            programm.Plattform.Fehler = c.Fehler;
            EXPECT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kNeu), c.Erwartet);
            EXPECT_EQ(Namen(programm.Platte), vorher);
            if (vorhanden) {
                EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kAltInhalt);
            }
        }
    }
}

TEST(Dateien, APlainWriteTellsEveryFailure)
{
    for (const Aufruf aufruf : {Aufruf::Open, Aufruf::Write, Aufruf::Close}) {
        Programm programm;
        programm.Plattform.Gestoert = aufruf;
        programm.Plattform.Fehler = ENOSPC;
        EXPECT_EQ(programm.Plattform.WriteTextLines(kDatei, kNeu), FileFault::OtherDevice)
            << static_cast<int>(aufruf);
    }
}

TEST(Dateien, InterruptedAndPartialWritesEndInAWholeFile)
{
    Programm programm;
    programm.Plattform.HoechstensSchreiben = 1;
    EXPECT_EQ(programm.Plattform.WriteTextLines(kDatei, kAlt), FileFault::None);
    EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kAltInhalt);
    EXPECT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kNeu), FileFault::None);
    EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kNeuInhalt);
}

TEST(Dateien, AFullDiskKeepsTheOldFile)
{
    Programm programm;
    fs::create_directory(programm.Platte);
    if (::mount("tmpfs", programm.Platte.c_str(), "tmpfs", 0, "size=16k") != 0) {
        GTEST_SKIP() << "a small disk can be mounted by root alone; the failing calls of the other "
                        "tests stand in for it";
    }
    struct Aushaengen
    {
        const fs::path& Ort;
        ~Aushaengen() { ::umount(Ort.c_str()); }
    } aushaengen{programm.Platte};

    ASSERT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kAlt), FileFault::None);
    DateiSchreiben(programm.Platte / "voll", std::string(64 * 1024, 'x'));
    EXPECT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kNeu), FileFault::OtherDevice);
    EXPECT_EQ(programm.Plattform.WriteTextLines("C:\\neu.txt", kNeu), FileFault::OtherDevice);
    EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kAltInhalt);
    EXPECT_EQ(Namen(programm.Platte), (std::vector<std::string>{"datei.txt", "neu.txt", "voll"}));
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

TEST(Dateien, AReadOnlyFileOrFolderIsTold)
{
    for (const bool ordner : {false, true}) {
        Programm programm;
        const fs::path datei = programm.Platte / "datei.txt";
        DateiSchreiben(datei, kAltInhalt);
        ::chmod((ordner ? programm.Platte : datei).c_str(), 0555);
        const OhneVorrechte ohne(programm.Ordner.Pfad);
        EXPECT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kNeu), FileFault::NoPermission);
        EXPECT_EQ(Dateiinhalt(datei), kAltInhalt);
        EXPECT_EQ(programm.Plattform.CreateDirectoryA("C:\\ordner"), !ordner);
        EXPECT_EQ(programm.Plattform.WriteTextLines("C:\\neu.txt", kNeu),
                  ordner ? FileFault::NoPermission : FileFault::None);
    }
}

TEST(Dateien, AReplacedFileKeepsItsLinkAndItsPermissions)
{
    Programm programm;
    const fs::path ziel = programm.Ordner.Pfad / "anderswo" / "liste";
    DateiSchreiben(ziel, kAltInhalt);
    ::chmod(ziel.c_str(), 0664);
    fs::create_directory(programm.Platte);
    fs::create_symlink("../anderswo/liste", programm.Platte / "datei.txt");
    EXPECT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kNeu), FileFault::None);
    EXPECT_TRUE(fs::is_symlink(programm.Platte / "datei.txt"));
    EXPECT_EQ(Dateiinhalt(ziel), kNeuInhalt);
    EXPECT_EQ(fs::status(ziel).permissions(), static_cast<fs::perms>(0664));
    EXPECT_EQ(Namen(ziel.parent_path()), (std::vector<std::string>{"liste"}));
}

TEST(Dateien, WhatAKilledRunLeftBehindDoesNoHarm)
{
    Programm programm;
    DateiSchreiben(programm.Platte / "datei.txt", kAltInhalt);
    DateiSchreiben(programm.Platte / "datei.txt.neu", std::string(1000, 'x'));
    EXPECT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kNeu), FileFault::None);
    EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kNeuInhalt);
    EXPECT_EQ(Namen(programm.Platte), (std::vector<std::string>{"datei.txt"}));

    fs::create_directory(programm.Platte / "datei.txt.neu");
    fs::create_symlink("datei.txt", programm.Platte / "datei.txt.neu1");
    EXPECT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kAlt), FileFault::None);
    EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kAltInhalt);
}

// Another run that saves the same list at the same time has the new file in its hands.
TEST(Dateien, ANewFileThatAnotherRunIsWritingIsNotTouched)
{
    Programm programm;
    const fs::path fremd = programm.Platte / "datei.txt.neu";
    DateiSchreiben(programm.Platte / "datei.txt", kAltInhalt);
    DateiSchreiben(fremd, "half a li");
    const int schloss = ::open(fremd.c_str(), O_WRONLY);
    ASSERT_EQ(::flock(schloss, LOCK_EX), 0);
    EXPECT_EQ(programm.Plattform.ReplaceTextLines(kDatei, kNeu), FileFault::None);
    ::close(schloss);
    EXPECT_EQ(Dateiinhalt(fremd), "half a li");
    EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kNeuInhalt);
}

TEST(Dateien, ANewFileThatAnotherRunPutsInPlaceIsNotWritten)
{
    class Wettlauf : public TestPlattform
    {
    public:
        using TestPlattform::TestPlattform;

    protected:
        int Open(const char* path, int flags, mode_t mode) override
        {
            const int datei = TestPlattform::Open(path, flags, mode);
            const fs::path pfad = path;
            if (pfad.extension() == ".neu") {  // the other run is done between open and lock
                DateiSchreiben(pfad, kAltInhalt);
                fs::rename(pfad, pfad.parent_path() / pfad.stem());
            }
            return datei;
        }
    };
    Programm programm;
    Wettlauf plattform(programm.Platte, programm.Programmordner, programm.Bindung.Verlauf);
    fs::create_directory(programm.Platte);
    EXPECT_EQ(plattform.ReplaceTextLines(kDatei, kNeu), FileFault::None);
    EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kNeuInhalt);
    EXPECT_EQ(Namen(programm.Platte), (std::vector<std::string>{"datei.txt"}));
}

TEST(Dateien, AfterTheEndNothingIsWrittenDeletedOrMade)
{
    Programm programm;
    DateiSchreiben(programm.Platte / "datei.txt", kAltInhalt);
    App.Ende();
    programm.Plattform.WriteTextLines(kDatei, kNeu);
    programm.Plattform.ReplaceTextLines(kDatei, kNeu);
    programm.Plattform.DeleteFileA(kDatei);
    programm.Plattform.CreateDirectoryA("C:\\ordner");
    EXPECT_EQ(Namen(programm.Platte), (std::vector<std::string>{"datei.txt"}));
    EXPECT_EQ(Dateiinhalt(programm.Platte / "datei.txt"), kAltInhalt);
}

// A list that tells its own number, so that a mixture of two lists is seen.
void ListeFuellen(int nummer)
{
    frmBeste->lstName.Clear();
    frmBeste->lstPunkte.Clear();
    for (int platz = 0; platz < kPlaetze; ++platz) {
        frmBeste->lstName.AddItem("Läufer " + std::to_string(nummer) + std::string(400, 'x'));
        frmBeste->lstPunkte.AddItem(std::to_string(nummer));
    }
}

// The number of a list that is whole; nothing for anything else.
std::optional<int> NummerDerListe(const fs::path& pfad)
{
    const std::string inhalt = Dateiinhalt(pfad).value_or("");
    const std::size_t stelle = inhalt.rfind('\n', inhalt.size() - 2);
    const int nummer = stelle == std::string::npos ? -1 : std::atoi(inhalt.c_str() + stelle + 1);
    std::string namen;
    std::string punkte;
    for (int platz = 0; platz < kPlaetze; ++platz) {
        namen += "L\xE4ufer " + std::to_string(nummer) + std::string(400, 'x') + "\r\n";
        punkte += std::to_string(nummer) + "\r\n";
    }
    return inhalt == namen + punkte ? std::optional<int>(nummer) : std::nullopt;
}

// Saves list after list in a process of its own, and has saved the first one when this returns.
pid_t SpeichernOhneEnde(int erste, int schritt)
{
    int rohr[2] = {-1, -1};
    EXPECT_EQ(::pipe(rohr), 0);
    const pid_t kind = ::fork();
    if (kind == 0) {
        for (int nummer = erste;; nummer += schritt) {
            ListeFuellen(nummer);
            BesteSpeichern();
            if (nummer == erste) {
                static_cast<void>(::write(rohr[1], "x", 1) == 1);
            }
        }
    }
    char bereit = 0;
    EXPECT_EQ(::read(rohr[0], &bereit, 1), 1);
    ::close(rohr[0]);
    ::close(rohr[1]);
    return kind;
}

// A kill is no power cut: what was written is there whether the disk is fast or slow. In memory a
// save takes so little time that a kill meets every step of it.
fs::path SchnellerOrdner()
{
    return ::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : fs::temp_directory_path();
}

void Toeten(pid_t kind)
{
    ::kill(kind, SIGKILL);
    ::waitpid(kind, nullptr, 0);
}

// Under the address sanitizer a new process takes twenty times as long.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kToetungen = 100;
#else
constexpr int kToetungen = 500;
#endif

TEST(Dateien, AKillAtAnyMomentLeavesTheOldListOrTheNewOne)
{
    Programm programm(SchnellerOrdner());
    programm.Starten();
    std::mt19937 zufall(20240229);
    std::uniform_int_distribution<int> mikrosekunden(0, 500);
    int gespeichert = 0;
    int mittenDrin = 0;
    for (int i = 0; i < kToetungen; ++i) {
        const pid_t kind = SpeichernOhneEnde(gespeichert + 1, 1);
        ASSERT_GT(kind, 0);
        std::this_thread::sleep_for(std::chrono::microseconds(mikrosekunden(zufall)));
        Toeten(kind);
        const std::optional<int> nummer = NummerDerListe(programm.Bestendatei());
        ASSERT_TRUE(nummer) << "kill " << i << ": " << *Dateiinhalt(programm.Bestendatei());
        ASSERT_GT(*nummer, gespeichert) << "kill " << i;
        gespeichert = *nummer;
        const std::vector<std::string> namen = Namen(programm.Datenordner());
        ASSERT_LE(namen.size(), 2U) << "left-overs pile up";
        mittenDrin += namen.size() == 2 ? 1 : 0;
    }
    EXPECT_GT(mittenDrin, kToetungen / 5) << "hardly any kill met a save half-way";
}

TEST(Dateien, TwoRunsThatSaveAtOnceNeverMixTheirLists)
{
    Programm programm(SchnellerOrdner());
    programm.Starten();
    ListeFuellen(0);
    BesteSpeichern();
    const pid_t kinder[] = {SpeichernOhneEnde(1, 2), SpeichernOhneEnde(2, 2)};
    const auto ende = std::chrono::steady_clock::now() + std::chrono::milliseconds(400);
    int gesehen = 0;
    bool ganz = true;
    for (; ganz && std::chrono::steady_clock::now() < ende; ++gesehen) {
        ganz = NummerDerListe(programm.Bestendatei()).has_value();
    }
    for (const pid_t kind : kinder) {
        Toeten(kind);
    }
    EXPECT_TRUE(ganz) << "after " << gesehen << " looks";
    EXPECT_TRUE(NummerDerListe(programm.Bestendatei()));
}

}  // namespace
}  // namespace malvone
