#include "forms/disk.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <fcntl.h>

#ifdef _WIN32
#include <fstream>
#include <iterator>

#include <io.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <chrono>
#include <memory>
#include <thread>

#include <dirent.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace lumenkit::forms {

namespace fs = std::filesystem;

namespace {

// The number that errno has for the error.
int NumberOf(const std::error_code& error) {
    const std::error_condition condition = error.default_error_condition();
    return condition.category() == std::generic_category() ? condition.value() : 0;
}

}  // namespace

Disk& Disk::System() {
    static Disk disk;
    return disk;
}

bool Disk::Rename(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    errno = NumberOf(error);
    return !error;
}

#ifdef _WIN32

namespace {

int File(Disk::Handle handle) {
    return static_cast<int>(handle);
}

// Tells the last error of Windows in errno.
void TellError() {
    errno = NumberOf(std::error_code(static_cast<int>(GetLastError()), std::system_category()));
}

}  // namespace

bool Disk::Look(const fs::path& path, FileState& state) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    errno = NumberOf(error);
    state = {};
    state.exists = fs::exists(status);
    state.isRegular = fs::is_regular_file(status);
    constexpr int writing = 2;
    state.isReadOnly = state.isRegular && _waccess(path.c_str(), writing) != 0;
    if (state.isRegular) {
        state.size = fs::file_size(path, error);
    }
    return status.type() != fs::file_type::none;
}

bool Disk::Read(const fs::path& path, std::string& bytes) {
    std::error_code unknown;
    std::ifstream stream(path, std::ios::binary);  // tells a failure in errno
    if (!stream || !fs::is_regular_file(path, unknown)) {
        return false;
    }
    bytes.assign(std::istreambuf_iterator<char>(stream), {});
    return !stream.bad();
}

bool Disk::List(const fs::path& folder, std::vector<fs::path>& names) {
    std::error_code error;
    for (fs::directory_iterator files(folder, error); !error && files != fs::directory_iterator();
         files.increment(error)) {
        names.push_back(files->path().filename());
    }
    return !error;
}

Disk::Opened Disk::Create(const fs::path& path, bool /*isPrivate*/) {
    const int handle =
        _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
    if (handle >= 0) {
        return {Outcome::Done, handle};
    }
    return {errno == EEXIST ? Outcome::Taken : Outcome::Failed};
}

bool Disk::Write(Handle file, std::string_view bytes) {
    constexpr std::size_t most = 1 << 30;
    while (!bytes.empty()) {
        const auto count = static_cast<unsigned>(std::min(bytes.size(), most));
        const int written = _write(File(file), bytes.data(), count);
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// A new file inherits its permissions from the folder.
bool Disk::KeepAttributes(Handle /*file*/, const FileState& /*old*/) {
    return true;
}

bool Disk::Flush(Handle file) {
    return _commit(File(file)) == 0;
}

bool Disk::Close(Handle file) {
    return _close(File(file)) == 0;
}

Disk::Outcome Disk::Link(const fs::path& file, const fs::path& name) {
    if (CreateHardLinkW(name.c_str(), file.c_str(), nullptr) != 0) {
        return Outcome::Done;
    }
    return GetLastError() == ERROR_ALREADY_EXISTS ? Outcome::Taken : Outcome::Failed;
}

bool Disk::Remove(const fs::path& path) {
    return DeleteFileW(path.c_str()) != 0;
}

void Disk::FlushFolder(const fs::path& /*folder*/) {}

// No other program can open the file while it is open here. Windows removes it when it is closed,
// even if the program is killed.
Disk::Opened Disk::Lock(const fs::path& path) {
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        return {Outcome::Done, reinterpret_cast<Handle>(handle)};
    }
    const bool isTaken = GetLastError() == ERROR_SHARING_VIOLATION;
    TellError();
    return {isTaken ? Outcome::Taken : Outcome::Failed};
}

void Disk::Unlock(Handle lock, const fs::path& /*path*/) {
    CloseHandle(reinterpret_cast<HANDLE>(lock));
}

void Disk::Pause() {
    Sleep(1);
}

#else

namespace {

int File(Disk::Handle handle) {
    return static_cast<int>(handle);
}

// Repeats a call that a signal interrupts.
template <typename Call>
auto Uninterrupted(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

bool IsPresentFile(int handle, const fs::path& path) {
    struct stat opened = {};
    struct stat present = {};
    return fstat(handle, &opened) == 0 && lstat(path.c_str(), &present) == 0 &&
           opened.st_dev == present.st_dev && opened.st_ino == present.st_ino;
}

// An open file descriptor.
class Descriptor {
 public:
    explicit Descriptor(int handle) : handle_(handle) {}
    ~Descriptor() {
        if (handle_ >= 0) {
            close(handle_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Get() const { return handle_; }

 private:
    int handle_;
};

}  // namespace

bool Disk::Look(const fs::path& path, FileState& state) {
    struct stat found = {};
    state = {};
    if (stat(path.c_str(), &found) != 0) {
        return errno == ENOENT || errno == ENOTDIR;
    }
    // An administrator may write every file, so the permissions count as well.
    constexpr mode_t writing = S_IWUSR | S_IWGRP | S_IWOTH;
    state.exists = true;
    state.isRegular = S_ISREG(found.st_mode);
    state.isReadOnly =
        state.isRegular && ((found.st_mode & writing) == 0 || access(path.c_str(), W_OK) != 0);
    constexpr mode_t permissions = S_ISUID | S_ISGID | S_ISVTX | S_IRWXU | S_IRWXG | S_IRWXO;
    state.mode = found.st_mode & permissions;
    state.owner = found.st_uid;
    state.group = found.st_gid;
    state.size = state.isRegular ? static_cast<std::uint64_t>(found.st_size) : 0;
    return true;
}

// With O_NONBLOCK, opening a pipe does not wait for its other end. The check of the open file
// cannot be deceived by a file that is replaced.
bool Disk::Read(const fs::path& path, std::string& bytes) {
    const Descriptor file(
        Uninterrupted([&] { return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
    struct stat found = {};
    if (file.Get() < 0 || fstat(file.Get(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return false;
    }
    constexpr std::size_t block = 65536;
    bytes.resize(static_cast<std::size_t>(found.st_size) + 1);  // one more, to find the end
    std::size_t count = 0;
    for (;;) {
        if (count == bytes.size()) {
            bytes.resize(count + block);  // the file has grown
        }
        const ssize_t length = Uninterrupted(
            [&] { return read(file.Get(), bytes.data() + count, bytes.size() - count); });
        if (length <= 0) {
            bytes.resize(count);
            return length == 0;
        }
        count += static_cast<std::size_t>(length);
    }
}

// The directory iterators of the library end the program if memory runs out.
bool Disk::List(const fs::path& folder, std::vector<fs::path>& names) {
    const auto closing = [](DIR* stream) { closedir(stream); };
    const std::unique_ptr<DIR, decltype(closing)> stream(opendir(folder.c_str()), closing);
    if (stream == nullptr) {
        return false;
    }
    // NOLINTNEXTLINE(concurrency-mt-unsafe): only this function reads this stream.
    while (const dirent* const entry = readdir(stream.get())) {
        names.emplace_back(entry->d_name);
    }
    return true;
}

Disk::Opened Disk::Create(const fs::path& path, bool isPrivate) {
    constexpr mode_t own = S_IRUSR | S_IWUSR;
    constexpr mode_t everybody = own | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;  // less the umask
    const int handle = Uninterrupted([&] {
        return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                    isPrivate ? own : everybody);
    });
    if (handle >= 0) {
        return {Outcome::Done, handle};
    }
    return {errno == EEXIST ? Outcome::Taken : Outcome::Failed};
}

bool Disk::Write(Handle file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            Uninterrupted([&] { return write(File(file), bytes.data(), bytes.size()); });
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool Disk::KeepAttributes(Handle file, const FileState& old) {
    struct stat present = {};
    if (fstat(File(file), &present) != 0) {
        return false;
    }
    mode_t mode = old.mode;
    constexpr auto unchanged = static_cast<uid_t>(-1);
    if (present.st_uid != old.owner && fchown(File(file), old.owner, unchanged) != 0) {
        mode &= ~static_cast<mode_t>(S_ISUID);
    }
    if (present.st_gid != old.group && fchown(File(file), unchanged, old.group) != 0) {
        mode &= ~static_cast<mode_t>(S_ISGID | S_IRWXG);
    }
    return fchmod(File(file), mode) == 0;
}

bool Disk::Flush(Handle file) {
    return Uninterrupted([&] { return fsync(File(file)); }) == 0;
}

bool Disk::Close(Handle file) {
    return close(File(file)) == 0;
}

Disk::Outcome Disk::Link(const fs::path& file, const fs::path& name) {
    if (link(file.c_str(), name.c_str()) == 0) {
        return Outcome::Done;
    }
    return errno == EEXIST ? Outcome::Taken : Outcome::Failed;
}

bool Disk::Remove(const fs::path& path) {
    return unlink(path.c_str()) == 0;
}

void Disk::FlushFolder(const fs::path& folder) {
    const int handle = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
}

// The lock belongs to the open file. The file can be removed between open and flock, and then
// another program locks a new file of the same name.
Disk::Opened Disk::Lock(const fs::path& path) {
    constexpr mode_t readable = S_IRUSR | S_IRGRP | S_IROTH;
    for (;;) {
        const int handle = Uninterrupted([&] {
            return open(path.c_str(), O_RDONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, readable);
        });
        if (handle < 0) {
            return {Outcome::Failed};
        }
        if (flock(handle, LOCK_EX | LOCK_NB) != 0) {
            const bool isTaken = errno == EWOULDBLOCK;
            close(handle);
            return {isTaken ? Outcome::Taken : Outcome::Failed};
        }
        if (IsPresentFile(handle, path)) {
            return {Outcome::Done, handle};
        }
        close(handle);
    }
}

void Disk::Unlock(Handle lock, const fs::path& path) {
    unlink(path.c_str());
    close(File(lock));
}

void Disk::Pause() {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

#endif

}  // namespace lumenkit::forms
