// Platform.h: what the game asks of the system below it, under the names that the game uses.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace malvone {

// What went wrong with a file, in the numbers that the player is told.
enum class FileFault : std::int32_t {
    None = 0,
    NotFound = 53,
    OtherDevice = 57,   // full disk, input/output error
    PastEnd = 62,       // the file ended before the wanted line
    NoPermission = 70,  // read-only file or folder
    PathAccess = 75,    // a folder in the place of a file, a file in the place of a folder
};

struct ReadLines
{
    FileFault Fault = FileFault::None;
    std::vector<std::string> Lines;  // UTF-8, without line ends; what was read up to the fault

    friend bool operator==(const ReadLines&, const ReadLines&) = default;
};

// What becomes of a file that a new one is to replace.
enum class OldFile {
    Goes,   // the new one takes its place
    Kept,   // the same, but the old one is kept beside it under a free name
    Stays,  // the new one is not written
};

struct NewFile
{
    std::vector<std::string> Lines;
    OldFile Old = OldFile::Goes;
};

// Works out a new file from what the old one holds now; without a value the old one stays.
using Renewal = std::function<std::optional<NewFile>(const ReadLines& now)>;

// Answers of OpenFile with OF_EXIST.
inline constexpr std::int32_t kFileExists = 0;
inline constexpr std::int32_t kFileNotFound = 2;   // a free name in an existing folder
inline constexpr std::int32_t kPathNotFound = 3;   // the folder is missing
inline constexpr std::int32_t kAccessRefused = 5;  // it exists and cannot be opened: a folder

// Paths are written as the game writes them, with drive letter and backslashes:
//   "C:\..." and "\..."  the root of the current drive, in which the data folder lies
//   "P:\..."             the program's folder, in which sounds and manuals lie
class Platform
{
public:
    virtual ~Platform() = default;
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;

    // The program is over: nothing is written, deleted or made any more.
    bool Over = false;

    // The system's folder, beginning with drive letter and colon; empty when it cannot be found.
    virtual std::string GetWindowsDirectoryA() = 0;
    // Makes one folder level. False: it could not be made.
    virtual bool CreateDirectoryA(const std::string& path) = 0;
    // Tests for a file or folder: one of the four answers above.
    virtual std::int32_t OpenFileExist(const std::string& path) = 0;
    // Whether a folder lists a file of that name, be it readable or not.
    virtual bool HasFile(const std::string& path) { return OpenFileExist(path) == kFileExists; }
    // Removes a file, if it can.
    virtual void DeleteFileA(const std::string& path) = 0;

    // Reads the first `count` lines of a text file (Windows-1252; lines end with CR LF, LF or CR).
    // Fewer lines than that are PastEnd.
    virtual ReadLines ReadTextLines(const std::string& path, std::size_t count) = 0;
    // Writes a new file line by line, each ended by CR LF. A fault may leave a part of it behind.
    virtual FileFault WriteTextLines(const std::string& path,
                                     const std::vector<std::string>& lines) = 0;
    // The same in one step: a complete new file replaces the old one, or the old one stays as it
    // was, which is a fault. The new file is worked out from the first `count` lines of the old
    // one, which no other run changes in between. A count of 0 reads nothing.
    virtual FileFault RenewTextLines(const std::string& path, std::size_t count,
                                     const Renewal& renewal) = 0;
    FileFault ReplaceTextLines(const std::string& path, const std::vector<std::string>& lines,
                               OldFile old)
    {
        return RenewTextLines(path, 0, [&](const ReadLines&) { return NewFile{lines, old}; });
    }

    // Hands a wave file to the player and returns at once; the empty path is silence.
    virtual void sndPlaySoundA(const std::string& path) = 0;
    virtual std::int32_t waveOutGetNumDevs() { return 1; }
    // Opens a document in the system's viewer, if it can.
    virtual void ShellExecuteA(const std::string& path) = 0;

    // Nanoseconds of the system's clock. It may stand still between two calls.
    virtual std::uint64_t ClockNs()
    {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        return static_cast<std::uint64_t>(std::chrono::nanoseconds(now).count());
    }
};

// The folder of the program file, as the game writes it.
inline constexpr const char* kProgramFolder = "P:\\";

}  // namespace malvone
