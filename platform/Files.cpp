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
#include <utility>

#include "platform/TextLines.h"

namespace malvone {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kBlock = 4096;
constexpr mode_t kNewFile = 0666;  // less what the user's mask takes away
constexpr int kNewNames = 8;       // so many runs can replace one file at the same time
constexpr int kMostLinks = 40;

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

bool IsFolder(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

FileFault ReadLinesFrom(int file, std::size_t count, std::vector<std::string>& lines)
{
    LineCollector collector(count, lines);
    std::array<char, kBlock> block{};
    while (!collector.Complete()) {
        const ssize_t got = ::read(file, block.data(), block.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return FaultOf(errno);
        }
        if (got == 0) {
            collector.EndOfFile();
            return collector.Complete() ? FileFault::None : FileFault::PastEnd;
        }
        collector.Take({block.data(), static_cast<std::size_t>(got)});
        if (collector.TooLong()) {
            return FileFault::OtherDevice;
        }
    }
    return FileFault::None;
}

// The file behind a link; a circle of links is left to be refused when it is opened.
fs::path BehindLinks(fs::path path)
{
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++i) {
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return path;
}

bool SameFile(int file, const fs::path& name)
{
    struct stat open
    {};
    struct stat named
    {};
    return ::fstat(file, &open) == 0 && ::lstat(name.c_str(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
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

struct FilePlatform::Replacement
{
    fs::path Target;
    std::optional<struct stat> Old;  // nothing where there is no old file
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
        std::error_code error;  // what cannot be made is missed when the file is opened
        fs::create_directories(*root_, error);
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
    return place && ::mkdir(place->c_str(), 0777) == 0;
}

std::int32_t FilePlatform::OpenFileExist(const std::string& path)
{
    const std::optional<fs::path> place = Translate(path);
    if (!place) {
        return kPathNotFound;
    }
    struct stat found
    {};
    if (::stat(place->c_str(), &found) == 0) {
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
    const std::optional<fs::path> place = Translate(path);
    if (place && !Over) {
        ::unlink(place->c_str());
    }
}

ReadLines FilePlatform::ReadTextLines(const std::string& path, std::size_t count)
{
    const std::optional<fs::path> place = Translate(path);
    if (!place) {
        return {FileFault::PathAccess, {}};
    }
    const Handle file(*this, Open(place->c_str(), O_RDONLY | kOpenFlags, 0));
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
    Handle file(*this, Open(place->c_str(), O_WRONLY | O_CREAT | O_TRUNC | kOpenFlags, kNewFile));
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
                                         const std::vector<std::string>& lines)
{
    if (Over) {
        return FileFault::None;
    }
    const std::optional<fs::path> place = PlaceToWrite(path);
    if (!place) {
        return FileFault::PathAccess;
    }
    Replacement replacement{BehindLinks(*place), std::nullopt};
    FileFault fault = LookAtOld(replacement);
    if (fault != FileFault::None) {
        return fault;
    }
    fault = FileFault::OtherDevice;  // where all names are in use by other runs
    for (int i = 0; i < kNewNames; ++i) {
        const fs::path name =
            replacement.Target.string() + ".neu" + (i == 0 ? "" : std::to_string(i));
        errno = 0;
        const Handle file = OpenNew(replacement, name);
        if (!file.Valid()) {
            fault = errno != 0 ? FaultOf(errno) : fault;
            continue;
        }
        fault = Fill(replacement, file.Get(), FileContent(lines));
        if (fault == FileFault::None && Rename(name.c_str(), replacement.Target.c_str()) != 0) {
            fault = FaultOf(errno);
        }
        if (fault != FileFault::None) {
            ::unlink(name.c_str());
            return fault;
        }
        SyncFolder(replacement.Target.parent_path());
        return FileFault::None;
    }
    return fault;
}

// An old file that may not be written, or that is no file, is not to be replaced either.
FileFault FilePlatform::LookAtOld(Replacement& replacement)
{
    const Handle file(*this, Open(replacement.Target.c_str(), O_WRONLY | kOpenFlags, 0));
    if (!file.Valid()) {
        return errno == ENOENT ? FileFault::None : FaultOf(errno);
    }
    struct stat found
    {};
    if (::fstat(file.Get(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return FileFault::PathAccess;
    }
    replacement.Old = found;
    return FileFault::None;
}

// An empty file under a name that no other run is using: whoever writes it holds its lock, and the
// name still leads to it.
FilePlatform::Handle FilePlatform::OpenNew(const Replacement& replacement, const fs::path& name)
{
    const mode_t mode = replacement.Old ? replacement.Old->st_mode & kNewFile : kNewFile;
    Handle file(*this, Open(name.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | kOpenFlags, mode));
    if (!file.Valid()) {
        return file;
    }
    const bool locked = ::flock(file.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (!locked || !SameFile(file.Get(), name) || ::ftruncate(file.Get(), 0) != 0) {
        file.Close();
    }
    return file;
}

FileFault FilePlatform::Fill(const Replacement& replacement, int file, std::string_view content)
{
    const FileFault fault = WriteAll(file, content);
    if (fault != FileFault::None) {
        return fault;
    }
    if (replacement.Old) {
        // Where the file system has no owners or permissions, there is nothing to take over.
        const struct stat& old = *replacement.Old;
        static_cast<void>(::fchown(file, old.st_uid, old.st_gid) == 0);
        static_cast<void>(::fchmod(file, old.st_mode & 07777U) == 0);
    }
    return Sync(file) == 0 ? FileFault::None : FaultOf(errno);
}

FileFault FilePlatform::WriteAll(int file, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t written = Write(file, content.data(), content.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return written < 0 ? FaultOf(errno) : FileFault::OtherDevice;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return FileFault::None;
}

// Makes the new name outlive a power cut. Where that fails, the file is replaced all the same, and
// after a power cut it would be the old one, whole.
void FilePlatform::SyncFolder(const fs::path& folder)
{
    const Handle opened(*this, Open(folder.c_str(), O_RDONLY | O_DIRECTORY | kOpenFlags, 0));
    if (opened.Valid()) {
        static_cast<void>(Sync(opened.Get()));
    }
}

std::uint64_t FilePlatform::ClockNs()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
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
