// Files.cpp: files and folders by the calls of the system, with every outcome looked at.
#include "platform/Files.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/TextLines.h"

namespace malvone {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kBlock = 4096;
constexpr mode_t kNewFile = 0666;    // less what the user's mask takes away
constexpr mode_t kNewFolder = 0700;  // what belongs to the player alone, as on every desktop
constexpr int kMostLinks = 40;
constexpr int kMostKept = 999;
constexpr int kAttempts = 100;  // of a call that signals keep interrupting

// Two runs that replace a file at the same time wait for each other, but not for one that hangs.
constexpr int kLockAttempts = 400;
constexpr std::chrono::milliseconds kLockWait(5);

// Opening must neither wait for the other end of a pipe nor hand the file on to a viewer.
constexpr int kOpenFlags = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

FileFault FaultOf(int error)
{
    switch (error) {
    case ENOENT: return FileFault::NotFound;
    case EACCES:
    case EPERM:
    case EROFS: return FileFault::NoPermission;
    case EISDIR:
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG: return FileFault::PathAccess;
    default: return FileFault::OtherDevice;
    }
}

// A call of the system, made again where a signal came before its answer.
template<class Call>
auto Again(Call call)
{
    auto result = call();
    for (int i = 1; i < kAttempts && result < 0 && errno == EINTR; ++i) {
        result = call();
    }
    return result;
}

int Look(const fs::path& path, struct stat& found)
{
    return Again([&] { return ::stat(path.c_str(), &found); });
}

bool IsFolder(const fs::path& path)
{
    struct stat found
    {};
    return Look(path, found) == 0 && S_ISDIR(found.st_mode);
}

bool MakeFolder(const fs::path& path)
{
    return Again([&] { return ::mkdir(path.c_str(), kNewFolder); }) == 0;
}

// What cannot be made is missed when a file in it is opened.
void MakeFoldersAbove(const fs::path& path)
{
    const fs::path folder = path.parent_path();
    if (folder != path && !IsFolder(folder)) {
        MakeFoldersAbove(folder);
        MakeFolder(folder);
    }
}

FileFault ReadLinesFrom(int file, std::size_t count, std::vector<std::string>& lines)
{
    LineCollector collector(count, lines);
    std::array<char, kBlock> block{};
    while (!collector.Complete()) {
        const ssize_t got = Again([&] { return ::read(file, block.data(), block.size()); });
        if (got < 0) {
            return FaultOf(errno);
        }
        if (got == 0) {
            collector.EndOfFile();
            return collector.Complete() ? FileFault::None : FileFault::PastEnd;
        }
        collector.Take({block.data(), static_cast<std::size_t>(got)});
    }
    return FileFault::None;
}

// Leads on to the file behind a link, which may be missing. That the last one is no link is looked
// at twice, since the new file will take its place.
FileFault FollowLinks(fs::path& path)
{
    std::array<char, kBlock> next{};
    for (int i = 0; i < kMostLinks; ++i) {
        const ssize_t length =
            Again([&] { return ::readlink(path.c_str(), next.data(), next.size()); });
        if (length < 0) {
            const int error = errno;
            std::error_code none;
            const bool file = (error == EINVAL || error == ENOENT) && !fs::is_symlink(path, none);
            return file ? FileFault::None : FaultOf(error);
        }
        path = path.parent_path() / std::string(next.data(), static_cast<std::size_t>(length));
    }
    return FileFault::PathAccess;
}

// False where another run has held the lock for too long. A folder that knows no locks, on a
// network say, holds nobody up.
bool Locked(int folder)
{
    for (int i = 0; i < kLockAttempts; ++i) {
        const int refused = Again([&] { return ::flock(folder, LOCK_EX | LOCK_NB); });
        if (refused == 0 || errno != EWOULDBLOCK) {
            return true;
        }
        std::this_thread::sleep_for(kLockWait);
    }
    return false;
}

// Gives the file a second name that no file has yet: at no moment it is without one.
FileFault KeepBeside(const fs::path& file, fs::path& kept)
{
    for (int i = 1; i <= kMostKept; ++i) {
        kept = file.parent_path() / KeptName(file.filename().string(), i);
        if (Again([&] { return ::link(file.c_str(), kept.c_str()); }) == 0) {
            return FileFault::None;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    kept.clear();
    return FaultOf(errno);
}

fs::path HomeFolder()
{
    const char* const home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') {
        return home;
    }
    std::array<char, 4096> buffer{};
    struct passwd account
    {};
    struct passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &account, buffer.data(), buffer.size(), &found) != 0 ||
        found == nullptr || found->pw_dir == nullptr) {
        return {};
    }
    return found->pw_dir;
}

}  // namespace

std::optional<fs::path> DefaultDataRoot()
{
    const char* const data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/') {
        return data;
    }
    const fs::path home = HomeFolder();
    if (!home.is_absolute() || !IsFolder(home)) {
        return std::nullopt;
    }
    return home / ".local" / "share";
}

// An open file, closed at the latest when the handle goes.
class FilePlatform::Handle
{
public:
    Handle(FilePlatform& system, int file) : system_(&system), file_(file) {}
    Handle(Handle&& other) noexcept : system_(other.system_), file_(std::exchange(other.file_, -1))
    {}
    Handle& operator=(Handle&&) = delete;
    ~Handle() { Close(); }

    bool Valid() const { return file_ >= 0; }
    int Get() const { return file_; }
    // False where the system tells only now that something was not written.
    bool Close()
    {
        const int file = std::exchange(file_, -1);
        return file < 0 || system_->Close(file) == 0 || errno == EINTR;
    }

private:
    FilePlatform* system_;
    int file_;
};

FilePlatform::FilePlatform(std::optional<fs::path> root, fs::path programFolder)
    : root_(std::move(root)), programFolder_(std::move(programFolder))
{
    if (root_ && !root_->has_filename()) {  // the folder above a file has no slash at its end
        root_ = root_->parent_path();
    }
}

std::optional<fs::path> FilePlatform::Translate(std::string_view path) const
{
    const auto below = [&path](const fs::path& folder, std::size_t prefix) {
        std::string rest(path.substr(prefix));
        for (char& c : rest) {
            c = c == '\\' ? '/' : c;
        }
        return rest.empty() ? folder : folder / rest;
    };
    if (root_ && path.starts_with("C:\\")) {
        return below(*root_, 3);
    }
    if (root_ && path.starts_with('\\') && !path.starts_with("\\\\")) {
        return below(*root_, 1);
    }
    if (path.starts_with(kProgramFolder)) {
        return below(programFolder_, std::string_view(kProgramFolder).size());
    }
    return std::nullopt;
}

std::optional<fs::path> FilePlatform::PlaceToWrite(const std::string& path) const
{
    std::optional<fs::path> place = Translate(path);
    if (place && root_ && place->parent_path() == *root_) {
        MakeFoldersAbove(*place);
    }
    return place;
}

std::string FilePlatform::GetWindowsDirectoryA()
{
    return root_ ? "C:\\WINDOWS" : "";
}

bool FilePlatform::CreateDirectoryA(const std::string& path)
{
    if (Over) {
        return true;
    }
    const std::optional<fs::path> place = PlaceToWrite(path);
    return place && MakeFolder(*place);
}

std::int32_t FilePlatform::OpenFileExist(const std::string& path)
{
    const std::optional<fs::path> place = Translate(path);
    if (!place) {
        return kPathNotFound;
    }
    struct stat found
    {};
    if (Look(*place, found) == 0) {
        const bool readable = S_ISREG(found.st_mode) && ::access(place->c_str(), R_OK) == 0;
        return readable ? kFileExists : kAccessRefused;
    }
    const int error = errno;
    const fs::path folder = place->parent_path();
    if ((root_ && folder == *root_) || (error == ENOENT && IsFolder(folder))) {
        return error == ENOENT || error == ENOTDIR ? kFileNotFound : kAccessRefused;
    }
    return error == ENOENT || error == ENOTDIR ? kPathNotFound : kAccessRefused;
}

void FilePlatform::DeleteFileA(const std::string& path)
{
    std::optional<fs::path> place = Translate(path);
    if (place && !Over && FollowLinks(*place) == FileFault::None) {
        static_cast<void>(Again([&] { return ::unlink(place->c_str()); }));
    }
}

ReadLines FilePlatform::ReadTextLines(const std::string& path, std::size_t count)
{
    const std::optional<fs::path> place = Translate(path);
    if (!place) {
        return {FileFault::PathAccess, {}};
    }
    const Handle file = OpenFile(*place, O_RDONLY);
    if (!file.Valid()) {
        return {FaultOf(errno), {}};
    }
    struct stat found
    {};
    if (::fstat(file.Get(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return {FileFault::PathAccess, {}};
    }
    ReadLines result;
    result.Fault = ReadLinesFrom(file.Get(), count, result.Lines);
    return result;
}

FileFault FilePlatform::WriteTextLines(const std::string& path,
                                       const std::vector<std::string>& lines)
{
    if (Over) {
        return FileFault::None;
    }
    const std::optional<fs::path> place = PlaceToWrite(path);
    if (!place) {
        return FileFault::PathAccess;
    }
    Handle file = OpenFile(*place, O_WRONLY | O_CREAT | O_TRUNC, kNewFile);
    if (!file.Valid()) {
        return FaultOf(errno);
    }
    struct stat found
    {};
    if (::fstat(file.Get(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return FileFault::PathAccess;
    }
    const FileFault fault = WriteAll(file.Get(), FileContent(lines));
    if (fault != FileFault::None) {
        return fault;
    }
    return file.Close() ? FileFault::None : FaultOf(errno);
}

FileFault FilePlatform::ReplaceTextLines(const std::string& path,
                                         const std::vector<std::string>& lines, OldFile old)
{
    if (Over) {
        return FileFault::None;
    }
    const std::optional<fs::path> place = PlaceToWrite(path);
    if (!place) {
        return FileFault::PathAccess;
    }
    fs::path target = *place;
    FileFault fault = FollowLinks(target);
    if (fault != FileFault::None) {
        return fault;
    }
    const Handle folder = OpenFile(target.parent_path(), O_RDONLY | O_DIRECTORY);
    if (!Locked(folder.Get())) {
        return FileFault::OtherDevice;
    }
    const fs::path name = target.string() + ".neu";
    std::remove(name.c_str());  // what a run that was killed has left there
    std::optional<mode_t> mode;
    fault = LookAtOld(target, old, mode);
    if (fault != FileFault::None) {
        return fault;
    }
    fault = WriteNew(name, FileContent(lines), mode);
    fs::path kept;
    if (fault == FileFault::None && mode && old == OldFile::Kept) {
        fault = KeepBeside(target, kept);
    }
    if (fault == FileFault::None &&
        Again([&] { return Rename(name.c_str(), target.c_str()); }) != 0) {
        fault = FaultOf(errno);
    }
    if (fault != FileFault::None) {
        std::remove(name.c_str());
        std::remove(kept.c_str());
        return fault;
    }
    // The new name is to outlive a power cut. Where that fails, the file is replaced all the same,
    // and after a power cut it would be the old one, whole.
    static_cast<void>(Sync(folder.Get()));
    return FileFault::None;
}

// Gives the permissions that the new file takes over; none where there is no old file, which two
// calls have to agree on.
FileFault FilePlatform::LookAtOld(const fs::path& target, OldFile old, std::optional<mode_t>& mode)
{
    const bool writable = OpenFile(target, O_WRONLY).Valid();
    const int refused = writable ? 0 : errno;
    struct stat found
    {};
    if (Look(target, found) != 0) {
        const bool missing = errno == ENOENT;
        return missing && refused == ENOENT ? FileFault::None : FaultOf(missing ? refused : errno);
    }
    if (!S_ISREG(found.st_mode)) {
        return FileFault::PathAccess;
    }
    mode = found.st_mode & 0777U;
    switch (old) {
    case OldFile::Stays: return FileFault::NoPermission;
    case OldFile::Kept: *mode |= S_IRUSR | S_IWUSR; return FileFault::None;
    case OldFile::Goes: break;
    }
    return writable ? FileFault::None : FaultOf(refused);
}

// A complete new file, on the disk. It is never open to more users than the old one.
FileFault FilePlatform::WriteNew(const fs::path& name, std::string_view content,
                                 std::optional<mode_t> mode)
{
    Handle file = OpenFile(name, O_WRONLY | O_CREAT | O_EXCL, mode.value_or(kNewFile));
    if (!file.Valid()) {
        return FaultOf(errno);
    }
    if (mode) {  // not every file system has permissions
        static_cast<void>(::fchmod(file.Get(), *mode) == 0);
    }
    const FileFault fault = WriteAll(file.Get(), content);
    if (fault != FileFault::None) {
        return fault;
    }
    const bool safe = Again([&] { return Sync(file.Get()); }) == 0;
    return safe && file.Close() ? FileFault::None : FaultOf(errno);
}

FileFault FilePlatform::WriteAll(int file, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t written = Again([&] { return Write(file, content.data(), content.size()); });
        if (written <= 0) {
            return written < 0 ? FaultOf(errno) : FileFault::OtherDevice;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return FileFault::None;
}

FilePlatform::Handle FilePlatform::OpenFile(const fs::path& path, int flags, mode_t mode)
{
    return {*this, Again([&] { return Open(path.c_str(), flags | kOpenFlags, mode); })};
}

int FilePlatform::Open(const char* path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

ssize_t FilePlatform::Write(int file, const char* bytes, std::size_t count)
{
    return ::write(file, bytes, count);
}

int FilePlatform::Sync(int file)
{
    return ::fsync(file);
}

int FilePlatform::Close(int file)
{
    return ::close(file);
}

int FilePlatform::Rename(const char* from, const char* to)
{
    return std::rename(from, to);
}

}  // namespace malvone
