// FilesTest.cpp: what the file calls make of good, damaged and missing files, and what is left
// behind when they fail, are interrupted or meet each other.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cstdlib>

#include "tests/support/Faults.h"
#include "tests/support/Folder.h"

namespace malvone {

// For the messages of failed comparisons.
void PrintTo(FileFault fault, std::ostream* os)
{
    *os << static_cast<int>(fault);
}

namespace test {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

constexpr const char* kFile = "C:\\file.txt";
constexpr const char* kKept = "file-nicht-gelesen-1.txt";
const Texts kNew = {"new", "2"};
constexpr const char* kOldContent = "old\r\n1\r\n";
constexpr const char* kNewContent = "new\r\n2\r\n";

class FilesAlone : public FilePlatform
{
public:
    explicit FilesAlone(const std::optional<fs::path>& disk) : FilePlatform(disk, "/programm") {}
    void sndPlaySoundA(const std::string&) override {}
    void ShellExecuteA(const std::string&) override {}
};
using Platform = Faulty<FilesAlone>;

struct Files : testing::Test
{
    Folder Home;
    fs::path Disk = Home.Path / "disk";
    fs::path File = Disk / "file.txt";
    Platform System{Disk};

    void Make(std::string_view content = kOldContent) const { WriteFile(File, content); }
};

TEST_F(Files, PathsOfTheGameLeadToTwoFolders)
{
    const std::pair<const char*, std::optional<fs::path>> cases[] = {
        {"C:\\lindenspiele\\malvone.txt", Disk / "lindenspiele/malvone.txt"},
        {"\\malvone.txt", Disk / "malvone.txt"},
        {"C:\\", Disk},
        {"P:\\TADA.WAV", "/programm/TADA.WAV"}};
    for (const auto& [path, place] : cases) {
        EXPECT_EQ(System.Translate(path), place) << path;
    }
    for (const char* const path : {"", "malvone.txt", "D:\\malvone.txt", "C:malvone.txt",
                                   "\\\\server\\malvone.txt", "/etc/passwd"}) {
        EXPECT_EQ(System.Translate(path), std::nullopt) << path;
    }
}

TEST_F(Files, TheDataRootComesFromTheEnvironment)
{
    const std::string home = Home.Path.string();
    const std::tuple<std::string, std::string, std::optional<std::string>> cases[] = {
        {"/daten", home, "/daten"},         {"daten", home, home + "/.local/share"},
        {"", home, home + "/.local/share"}, {"", home + "/missing", std::nullopt},
        {"", "heim", std::nullopt},
    };
    for (const auto& [data, user, place] : cases) {
        ::setenv("XDG_DATA_HOME", data.c_str(), 1);
        ::setenv("HOME", user.c_str(), 1);
        EXPECT_EQ(DefaultDataRoot(), place) << data << " " << user;
    }
    ::unsetenv("XDG_DATA_HOME");
    ::setenv("HOME", home.c_str(), 1);

    Platform none(std::nullopt);
    EXPECT_EQ(none.GetWindowsDirectoryA(), "");
    EXPECT_FALSE(none.CreateDirectoryA("C:\\lindenspiele"));
    EXPECT_EQ(none.OpenFileExist("\\malvone.txt"), kPathNotFound);
    EXPECT_EQ(none.ReadTextLines("\\malvone.txt", 1).Fault, FileFault::PathAccess);
    EXPECT_EQ(none.ReplaceTextLines("\\malvone.txt", kNew, OldFile::Goes), FileFault::PathAccess);
}

TEST_F(Files, MissingFoldersAreMadeForThePlayerAlone)
{
    Platform deep(Disk / "a" / "b" / "");  // a slash at the end changes nothing
    EXPECT_TRUE(deep.CreateDirectoryA("C:\\lindenspiele"));
    for (const char* const folder : {"", "a", "a/b", "a/b/lindenspiele"}) {
        EXPECT_EQ(fs::status(Disk / folder).permissions(), fs::perms::owner_all) << folder;
    }
    EXPECT_FALSE(deep.CreateDirectoryA("C:\\missing\\below"));
    EXPECT_TRUE(deep.CreateDirectoryA("C:\\lindenspiele")) << "another run has just made it";
    WriteFile(Disk / "a/b/file", "");
    EXPECT_FALSE(deep.CreateDirectoryA("C:\\file"));
}

TEST_F(Files, AFileIsReadLineByLineAsFarAsItGoes)
{
    const std::string block(4096 - 1, 'x');  // the CR is the last byte of a block
    const std::string name(200'000, 'x');
    const struct
    {
        std::string Content;
        Texts Lines;
        FileFault Fault = FileFault::None;
    } cases[] = {
        {"a\r\nb\r\nc\r\n", {"a", "b", "c"}},
        {"a\nb\nc\n", {"a", "b", "c"}},
        {"a\rb\rc\r", {"a", "b", "c"}},
        {"a\n\rb\r\nc", {"a", "", "b"}},
        {"a\r\r\n\nb", {"a", "", ""}},
        {"a\nb\nc", {"a", "b", "c"}},  // the last line needs no end
        {block + "\r\nb\nc", {block, "b", "c"}},
        {std::string("a\0b\n\x1A\n\xFC", 7), {std::string("a\0b", 3), "\x1A", "ü"}},
        {"", {}, FileFault::PastEnd},
        {"a\nb", {"a", "b"}, FileFault::PastEnd},
        {name + "\r\nb\nc", {name, "b", "c"}},
    };
    for (const auto& c : cases) {
        Make(c.Content);
        const ReadLines read = System.ReadTextLines(kFile, 3);
        EXPECT_EQ(read.Fault, c.Fault) << c.Content.substr(0, 20);
        EXPECT_EQ(read.Lines, c.Lines);
    }
}

// What lies in the place of the file, what the test for it says, and what reading it meets.
TEST_F(Files, WhatIsNoFileIsRefusedAndLeftAlone)
{
    const fs::path place = Disk / "place";
    const struct
    {
        const char* What;
        std::function<void()> Make;
        std::string Path;
        std::int32_t Test;
        FileFault Read;
    } cases[] = {
        {"folder", [&] { fs::create_directory(place); }, "C:\\place", kAccessRefused,
         FileFault::PathAccess},
        {"file for a folder", [&] { WriteFile(place, ""); }, "C:\\place\\file", kPathNotFound,
         FileFault::PathAccess},
        {"missing folder", [] {}, "C:\\place\\file", kPathNotFound, FileFault::NotFound},
        {"circle of links", [&] { fs::create_symlink(place, place); }, "C:\\place", kAccessRefused,
         FileFault::PathAccess},
        {"pipe", [&] { ::mkfifo(place.c_str(), 0600); }, "C:\\place", kAccessRefused,
         FileFault::PathAccess},
        {"long name", [] {}, "C:\\" + std::string(300, 'x'), kAccessRefused, FileFault::PathAccess},
        {"unreadable bytes", [&] { fs::create_symlink("/proc/self/mem", place); }, "C:\\place",
         kFileExists, FileFault::OtherDevice},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        fs::create_directories(Disk);
        c.Make();
        const auto before = Names(Disk);
        EXPECT_EQ(System.OpenFileExist(c.Path), c.Test);
        EXPECT_EQ(System.HasFile(c.Path), c.Test == kFileExists);
        EXPECT_EQ(System.ReadTextLines(c.Path, 1).Fault, c.Read);
        System.DeleteFileA(c.Path);
        for (const OldFile old : {OldFile::Goes, OldFile::Kept, OldFile::Stays}) {
            EXPECT_NE(System.ReplaceTextLines(c.Path, kNew, old), FileFault::None);
        }
        EXPECT_EQ(Names(Disk), before);
        fs::remove_all(Disk);
    }
}

TEST_F(Files, AKillAtAnyCallLeavesTheOldFileOrTheNewOneAndTheNextSaveClearsUp)
{
    for (const OldFile old : {OldFile::Goes, OldFile::Kept}) {
        int at = 0;
        for (bool killed = true; killed;) {
            fs::remove_all(Disk);
            Make();
            // Nothing is thrown while a file is closed on the way out.
            System.Fault = [call = NthCall{++at, 0}](std::string_view name) mutable {
                return name == "close" ? 0 : call(name);
            };
            killed = false;
            try {
                System.ReplaceTextLines(kFile, kNew, old);
            } catch (const NthCall&) {
                killed = true;
            }
            const std::string content = Contents(File).value_or("");
            EXPECT_TRUE(content == kOldContent || content == kNewContent) << content;
            fs::remove(Disk / kKept);
            EXPECT_EQ(Platform(Disk).ReplaceTextLines(kFile, kNew, OldFile::Goes), FileFault::None);
            EXPECT_EQ(Names(Disk), Texts{"file.txt"});
        }
        EXPECT_GT(at, 8);
    }
}

TEST_F(Files, ARunThatHangsWithTheLockHoldsNobodyUpForEver)
{
    Make();
    const int folder = ::open(Disk.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(folder, LOCK_EX), 0);
    EXPECT_NE(System.ReplaceTextLines(kFile, kNew, OldFile::Goes), FileFault::None);
    EXPECT_EQ(Contents(File), kOldContent);
    ::close(folder);
    EXPECT_EQ(System.ReplaceTextLines(kFile, kNew, OldFile::Goes), FileFault::None);
}

TEST_F(Files, AReplacedFileKeepsItsLinkAndItsPermissions)
{
    const fs::path target = Home.Path / "elsewhere" / "list";
    fs::create_directory(Disk);
    fs::create_symlink("../elsewhere/list", File);
    for (const auto rights : {static_cast<fs::perms>(0600), static_cast<fs::perms>(0664)}) {
        WriteFile(target, kOldContent);
        fs::permissions(target, rights);
        EXPECT_EQ(System.ReplaceTextLines(kFile, kNew, OldFile::Goes), FileFault::None);
        EXPECT_TRUE(fs::is_symlink(File));
        EXPECT_EQ(Contents(target), kNewContent);
        EXPECT_EQ(fs::status(target).permissions(), rights);
        EXPECT_EQ(Names(target.parent_path()), Texts{"list"});
    }
    System.DeleteFileA(kFile);
    EXPECT_FALSE(fs::exists(target));
    EXPECT_EQ(System.ReplaceTextLines(kFile, kNew, OldFile::Stays), FileFault::None);
    EXPECT_EQ(Contents(target), kNewContent);
}

TEST_F(Files, WhatLiesInThePlaceOfTheNewFileIsNotWrittenThrough)
{
    const fs::path strange = Home.Path / "strange";
    const fs::path next = Disk / "file.txt.neu";
    WriteFile(strange, "strange");
    const std::function<void()> cases[] = {[&] { fs::create_hard_link(strange, next); },
                                           [&] { fs::create_symlink(strange, next); },
                                           [&] { fs::create_directory(next); }};
    for (const auto& make : cases) {
        Make();
        make();
        EXPECT_EQ(System.ReplaceTextLines(kFile, kNew, OldFile::Goes), FileFault::None);
        EXPECT_EQ(Contents(strange), "strange");
        EXPECT_EQ(Contents(File), kNewContent);
        EXPECT_EQ(Names(Disk), Texts{"file.txt"});
    }
}

TEST_F(Files, AFileWithoutPermissionIsToldOrKeptBesideTheNewOneAndOverNoOther)
{
    Make();
    ::chmod(File.c_str(), 0000);
    WriteFile(Disk / kKept, "older");
    const auto refused = [&](int nth, OldFile old) {
        System.Fault = [nth](std::string_view call) mutable {
            return call == "open" && --nth == 0 ? EACCES : 0;
        };
        return System.ReplaceTextLines(kFile, kNew, old);
    };
    for (const int nth : {2, 3}) {  // after their folder the old file, and the new one
        EXPECT_EQ(refused(nth, OldFile::Goes), FileFault::NoPermission);
        EXPECT_EQ(Contents(File), kOldContent);
    }
    EXPECT_EQ(refused(2, OldFile::Kept), FileFault::None);
    EXPECT_EQ(fs::status(File).permissions(), fs::perms(0600));
    EXPECT_EQ(Contents(File), kNewContent);
    EXPECT_EQ(Contents(Disk / kKept), "older");
    EXPECT_EQ(Contents(Disk / "file-nicht-gelesen-2.txt"), kOldContent);
    EXPECT_EQ(Names(Disk).size(), 3U);
    System.Fault = Fails("open", EACCES);
    EXPECT_EQ(System.ReadTextLines(kFile, 1).Fault, FileFault::NoPermission);
    EXPECT_EQ(System.WriteTextLines("C:\\new.txt", kNew), FileFault::NoPermission);
}

TEST_F(Files, WhereThereAreNoSecondNamesACopyIsKept)
{
    Make();
    ::chmod(File.c_str(), 0640);
    System.Fault = Fails("link", EPERM);
    EXPECT_EQ(System.ReplaceTextLines(kFile, kNew, OldFile::Kept), FileFault::None);
    EXPECT_EQ(System.ReadTextLines(kFile, 2).Lines, kNew);
    EXPECT_EQ(Contents(Disk / kKept), kOldContent);
    EXPECT_EQ(fs::status(Disk / kKept).permissions(), fs::perms(0640));
}

TEST_F(Files, AfterTheEndNothingIsWrittenDeletedOrMade)
{
    Make();
    System.Over = true;
    System.WriteTextLines(kFile, kNew);
    System.ReplaceTextLines(kFile, kNew, OldFile::Goes);
    System.DeleteFileA(kFile);
    System.CreateDirectoryA("C:\\folder");
    EXPECT_EQ(Names(Disk), Texts{"file.txt"});
    EXPECT_EQ(Contents(File), kOldContent);
}

}  // namespace
}  // namespace test
}  // namespace malvone
