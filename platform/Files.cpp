// Files.cpp: files and folders by system calls; the outcome of each is checked.
#include "platform/Files.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
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
constexpr mode_t kNewFolder = 0700;  // for the player alone, as on every desktop
constexpr int kMostLinks = 40;
constexpr int kMostKept = 999;

// Runs that replace a file at the same time wait for each other, but not for one that hangs.
constexpr int kLockAttempts = 400;
constexpr std::chrono::milliseconds kLockWait(5);

// Opening neither waits for the other end of a pipe nor passes the file on to a viewer.
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

fs::path HomeFolder()
{
    const char* const home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') {
        return home;
    }
    const struct passwd* const account = ::getpwuid(::getuid());
    return account == nullptr ? fs::path() : fs::path(account->pw_dir);
}

}  // namespace

std::optional<fs::path> DefaultDataRoot()
{
    const char* const data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/') {
        return data;
    }
    const fs::path home = HomeFolder();
    std::error_code none;
    if (!home.is_absolute() || !fs::is_directory(home, none)) {
        return std::nullopt;
    }
    return home / ".local" / "share";
}

// An open file, closed at the latest when the handle goes.
class FilePlatform::Handle
{
public:
    Handle(FilePlatform& system, int file) : system_(system), file_(file) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Close(); }

    bool Valid() const { return file_ >= 0; }
    int Get() const { return file_; }
    // False where the system says only now that something was not written.
    bool Close()
    {
        const int file = std::exchange(file_, -1);
        return file < 0 || system_.SystemCalls::Close(file) == 0;
    }

private:
    FilePlatform& system_;
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
        std::replace(rest.begin(), rest.end(), '\\', '/');
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

bool FilePlatform::Stat(const fs::path& path, struct stat& found)
{
    return Call("stat", [&] { return ::stat(path.c_str(), &found); }) == 0;
}

bool FilePlatform::MakeFolder(const fs::path& folder)
{
    return Call("mkdir", [&] { return ::mkdir(folder.c_str(), kNewFolder); }) == 0;
}

bool FilePlatform::Sync(int file)
{
    return Call("sync", [&] { return ::fsync(file); }) == 0;
}

void FilePlatform::Remove(const fs::path& path)
{
    Call("remove", [&] { return ::remove(path.c_str()); });
}

mode_t FilePlatform::KindOf(const fs::path& path)
{
    struct stat found
    {};
    return Stat(path, found) ? found.st_mode & S_IFMT : 0;
}

bool FilePlatform::IsFolder(const fs::path& path)
{
    return KindOf(path) == S_IFDIR;
}

// What cannot be made is noticed when a file in it is opened.
void FilePlatform::MakeFoldersAbove(const fs::path& path)
{
    const fs::path folder = path.parent_path();
    if (folder != path && !IsFolder(folder)) {
        MakeFoldersAbove(folder);
        MakeFolder(folder);
    }
}

std::optional<fs::path> FilePlatform::PlaceToWrite(const std::string& path)
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
    // Another run may have made it in the meantime.
    return place && (MakeFolder(*place) || (errno == EEXIST && IsFolder(*place)));
}

std::int32_t FilePlatform::OpenFileExist(const std::string& path)
{
    const std::optional<fs::path> place = Translate(path);
    if (!place) {
        return kPathNotFound;
    }
    struct stat found
    {};
    if (Stat(*place, found)) {
        const bool readable = S_ISREG(found.st_mode) &&
                              Call("access", [&] { return ::access(place->c_str(), R_OK); }) == 0;
        return readable ? kFileExists : kAccessRefused;
    }
    const int error = errno;
    if (error != ENOENT && error != ENOTDIR) {
        return kAccessRefused;
    }
    const fs::path folder = place->parent_path();
    const bool listed = (root_ && folder == *root_) || (error == ENOENT && IsFolder(folder));
    return listed ? kFileNotFound : kPathNotFound;
}

bool FilePlatform::HasFile(const std::string& path)
{
    const std::optional<fs::path> place = Translate(path);
    return place && KindOf(*place) == S_IFREG;
}

void FilePlatform::DeleteFileA(const std::string& path)
{
    std::optional<fs::path> place = Translate(path);
    if (place && !Over && FollowLinks(*place) == FileFault::None && KindOf(*place) == S_IFREG) {
        Remove(*place);
    }
}

ReadLines FilePlatform::ReadTextLines(const std::string& path, std::size_t count)
{
    const std::optional<fs::path> place = Translate(path);
    if (!place) {
        return {FileFault::PathAccess, {}};
    }
    const Handle file = OpenFile(*place, O_RDONLY);
    ReadLines result{Opened(file), {}};
    if (result.Fault != FileFault::None) {
        return result;
    }
    LineCollector collector(count, result.Lines);
    std::array<char, kBlock> block{};
    ssize_t got = 0;
    while (!collector.Complete() && (got = Read(file, block)) > 0) {
        collector.Take({block.data(), static_cast<std::size_t>(got)});
    }
    result.Fault = got < 0 ? FaultOf(errno) : collector.EndOfFile();
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
    const FileFault fault = Opened(file);
    if (fault != FileFault::None) {
        return fault;
    }
    const bool good = WriteAll(file.Get(), FileContent(lines)) && file.Close();
    return good ? FileFault::None : FaultOf(errno);
}

FileFault FilePlatform::RenewTextLines(const std::string& path, std::size_t count,
                                       const Renewal& renewal)
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
    const std::optional<NewFile> next =
        renewal(count == 0 ? ReadLines() : ReadTextLines(path, count));
    if (!next) {
        return FileFault::None;
    }
    fault = Replace(target, *next);
    if (fault == FileFault::None) {
        // The new name is to survive a power cut. If this fails, the file has been replaced all the
        // same; after a power cut it would be the old one, whole.
        Sync(folder.Get());
    }
    return fault;
}

FileFault FilePlatform::Replace(const fs::path& target, const NewFile& next)
{
    const fs::path name = target.string() + ".neu";
    Remove(name);  // a run that was killed may have left it
    std::optional<mode_t> mode;
    FileFault fault = LookAtOld(target, next.Old, mode);
    if (fault != FileFault::None) {
        return fault;
    }
    fault = WriteNew(name, FileContent(next.Lines), mode);
    fs::path kept;
    if (fault == FileFault::None && mode && next.Old == OldFile::Kept) {
        fault = KeepBeside(target, kept);
    }
    if (fault == FileFault::None &&
        Call("rename", [&] { return ::rename(name.c_str(), target.c_str()); }) != 0) {
        fault = FaultOf(errno);
    }
    if (fault != FileFault::None) {
        Remove(name);
        if (!kept.empty()) {
            Remove(kept);
        }
    }
    return fault;
}

// Finds the permissions that the new file takes over; none where there is no old file, on which two
// calls have to agree.
FileFault FilePlatform::LookAtOld(const fs::path& target, OldFile old, std::optional<mode_t>& mode)
{
    const bool writable = OpenFile(target, O_WRONLY).Valid();
    const int refused = writable ? 0 : errno;
    struct stat found
    {};
    if (!Stat(target, found)) {
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

// Writes a complete new file to the disk. It is never open to more users than the old one.
FileFault FilePlatform::WriteNew(const fs::path& name, std::string_view content,
                                 std::optional<mode_t> mode)
{
    Handle file = OpenFile(name, O_WRONLY | O_CREAT | O_EXCL, mode.value_or(kNewFile));
    if (!file.Valid()) {
        return FaultOf(errno);
    }
    if (mode) {  // not every file system has permissions
        Call("fchmod", [&] { return ::fchmod(file.Get(), *mode); });
    }
    const bool good = WriteAll(file.Get(), content) && Sync(file.Get()) && file.Close();
    return good ? FileFault::None : FaultOf(errno);
}

// False leaves the reason in errno.
bool FilePlatform::WriteAll(int file, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t written =
            Call("write", [&] { return ::write(file, content.data(), Portion(content.size())); });
        if (written <= 0) {
            errno = written < 0 ? errno : EIO;
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// Gives the file a second name that no file has yet, so that it is never without one. A file system
// without second names gets a copy.
FileFault FilePlatform::KeepBeside(const fs::path& file, fs::path& kept)
{
    for (int i = 1; i <= kMostKept; ++i) {
        const fs::path name = file.parent_path() / KeptName(file.filename().string(), i);
        int error =
            Call("link", [&] { return ::link(file.c_str(), name.c_str()); }) == 0 ? 0 : errno;
        if (error != 0 && error != EEXIST) {
            error = Copy(file, name);
        }
        if (error == 0) {
            kept = name;
        }
        if (error != EEXIST) {
            return error == 0 ? FileFault::None : FaultOf(error);
        }
    }
    return FileFault::PathAccess;
}

// Makes a whole copy on the disk, or none. Returns the error number, 0 for success.
int FilePlatform::Copy(const fs::path& from, const fs::path& to)
{
    const Handle source = OpenFile(from, O_RDONLY);
    struct stat found
    {};
    if (!source.Valid() || !Stat(source, found)) {
        return errno;
    }
    Handle copy = OpenFile(to, O_WRONLY | O_CREAT | O_EXCL, found.st_mode & 0777U);
    if (!copy.Valid()) {
        return errno;
    }
    std::array<char, kBlock> block{};
    bool good = true;
    ssize_t got = 0;
    while (good && (got = Read(source, block)) > 0) {
        good = WriteAll(copy.Get(), {block.data(), static_cast<std::size_t>(got)});
    }
    good = good && got == 0 && Sync(copy.Get()) && copy.Close();
    const int error = good ? 0 : errno;
    if (!good) {
        Remove(to);
    }
    return error;
}

// Leads on to the file behind a link, which may be missing. Whether the last one is a link is asked
// twice, since the new file will take its place.
FileFault FilePlatform::FollowLinks(fs::path& path)
{
    std::array<char, kBlock> next{};
    for (int i = 0; i < kMostLinks; ++i) {
        const ssize_t length =
            Call("readlink", [&] { return ::readlink(path.c_str(), next.data(), next.size()); });
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

// False if another run has held the lock for too long. A folder without locks, on a network say,
// delays nobody.
bool FilePlatform::Locked(int folder)
{
    for (int i = 0; i < kLockAttempts; ++i) {
        const bool locked = Call("flock", [&] { return ::flock(folder, LOCK_EX | LOCK_NB); }) == 0;
        if (locked || errno != EWOULDBLOCK) {
            return true;
        }
        std::this_thread::sleep_for(kLockWait);
    }
    return false;
}

// What is wrong with a file that has just been opened: pipes, devices and folders are no place for
// lines.
FileFault FilePlatform::Opened(const Handle& file)
{
    if (!file.Valid()) {
        return FaultOf(errno);
    }
    struct stat found
    {};
    const bool regular = Stat(file, found) && S_ISREG(found.st_mode);
    return regular ? FileFault::None : FileFault::PathAccess;
}

FilePlatform::Handle FilePlatform::OpenFile(const fs::path& path, int flags, mode_t mode)
{
    return {*this, Call("open", [&] { return ::open(path.c_str(), flags | kOpenFlags, mode); })};
}

bool FilePlatform::Stat(const Handle& file, struct stat& found)
{
    return Call("fstat", [&] { return ::fstat(file.Get(), &found); }) == 0;
}

ssize_t FilePlatform::Read(const Handle& file, std::span<char> block)
{
    return Call("read", [&] { return ::read(file.Get(), block.data(), block.size()); });
}

}  // namespace malvone
