// The part of files.hpp that talks to the operating system.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "core/fault.hpp"
#include "core/files.hpp"

namespace kolvar {
namespace {

// An open file that closes itself.
class Handle {
public:
    Handle(const std::string& path, int flags, mode_t mode = 0666) {
        do {
            fd_ = ::open(path.c_str(), flags | O_CLOEXEC, mode);
        } while (fd_ < 0 && errno == EINTR);
    }
    ~Handle() {
        if (fd_ >= 0) ::close(fd_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    [[nodiscard]] int fd() const { return fd_; }
    [[nodiscard]] bool is_open() const { return fd_ >= 0; }
    // A full disk may be told only now.
    bool close() {
        const int fd = fd_;
        fd_ = -1;
        return ::close(fd) == 0;
    }

private:
    int fd_ = -1;
};

// A name that holds a zero byte is no name; the system would silently cut it there.
bool is_name(const std::string& path) { return !path.empty() && path.find('\0') == std::string::npos; }

FaultKind write_fault() {
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? FaultKind::disk_full : FaultKind::file_unwritable;
}

bool write_all(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t done = ::write(fd, bytes.data(), bytes.size());
        if (done < 0 && errno == EINTR) continue;
        if (done < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(done));
    }
    return true;
}

// Spreadsheet programs hold what they have open by a record lock, of which flock knows nothing. It is only asked for:
// on a network drive both kinds are one, and a record lock of our own would stand against our own flock.
bool held_by_another(int fd) {
    struct flock asked {};
    asked.l_type = F_WRLCK;
    asked.l_whence = SEEK_SET;
    return ::fcntl(fd, F_GETLK, &asked) == 0 && asked.l_type != F_UNLCK;
}

// Waits a moment for another program that writes the same file.
bool locked(int fd) {
    constexpr int attempts = 200;
    constexpr useconds_t pause = 10000;
    for (int k = 0; k < attempts; ++k) {
        if (!held_by_another(fd)) {
            if (::flock(fd, LOCK_EX | LOCK_NB) == 0) return true;
            if (errno != EWOULDBLOCK && errno != EINTR) return errno == ENOLCK || errno == EOPNOTSUPP;  // no locks here
        }
        ::usleep(pause);
    }
    errno = EACCES;
    return false;
}

// A link is followed, so that the file behind it is replaced and not the link.
std::string behind_links(const std::string& path) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    return error ? path : real.string();
}

}  // namespace

bool file_exists(const std::string& path) {
    const std::string name = native_path(path);
    struct stat info {};
    return is_name(name) && ::stat(name.c_str(), &info) == 0 && !S_ISDIR(info.st_mode);
}

bool folder_exists(const std::string& path) {
    const std::string name = native_path(path);
    struct stat info {};
    return is_name(name) && ::stat(name.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

std::string read_head(const std::string& path, std::size_t most) {
    const std::string name = native_path(path);
    if (!is_name(name)) fail(FaultKind::file_missing, path);
    // A pipe would keep the reader waiting for its other end; it is no table of a measurement.
    const Handle file(name, O_RDONLY | O_NONBLOCK);
    if (!file.is_open()) {
        fail(errno == ENOENT || errno == ENOTDIR ? FaultKind::file_missing : FaultKind::file_unreadable, path);
    }
    struct stat info {};
    if (::fstat(file.fd(), &info) != 0 || !S_ISREG(info.st_mode)) fail(FaultKind::file_unreadable, path);
    std::string out;
    out.resize(std::min(most, static_cast<std::size_t>(info.st_size)));
    std::size_t held = 0;
    while (held < most) {
        if (held == out.size()) out.resize(std::min(most, out.size() + 4096));
        const ssize_t done = ::read(file.fd(), out.data() + held, out.size() - held);
        if (done < 0 && errno == EINTR) continue;
        if (done < 0) fail(FaultKind::file_unreadable, path);
        if (done == 0) break;
        held += static_cast<std::size_t>(done);
    }
    out.resize(held);
    return out;
}

std::string read_bytes(const std::string& path) { return read_head(path, std::string::npos); }

void replace_file(Platform& os, const std::string& path, std::string_view bytes) {
    const std::string shown = native_path(path);
    if (!is_name(shown) || folder_exists(shown)) fail(FaultKind::file_unwritable, path);
    const std::string name = behind_links(shown);
    struct stat former {};
    const bool exists = ::stat(name.c_str(), &former) == 0;
    // A rename would go through although the user has made the file read-only.
    if (exists && ::access(name.c_str(), W_OK) != 0) fail(FaultKind::file_unwritable, path);

    const std::string part = name + ".part";
    std::optional<Handle> opened;
    struct stat mine {
    }, named{};
    // Two programs that save at once take turns; the one that waited must not write into what the other has renamed.
    do {
        opened.emplace(part, O_WRONLY | O_CREAT);
        if (!opened->is_open() || !locked(opened->fd()) || ::fstat(opened->fd(), &mine) != 0) fail(write_fault(), path);
    } while (::stat(part.c_str(), &named) != 0 || named.st_ino != mine.st_ino);
    Handle& file = *opened;
    if (::ftruncate(file.fd(), 0) != 0) fail(write_fault(), path);
    const std::size_t room = os.room_on_disk(bytes.size());
    if (!write_all(file.fd(), bytes.substr(0, room))) fail(write_fault(), path);
    if (room < bytes.size()) fail(FaultKind::disk_full, path);
    if (exists && ::fchmod(file.fd(), former.st_mode & 07777U) != 0) fail(FaultKind::file_unwritable, path);
    if (::fsync(file.fd()) != 0) fail(write_fault(), path);
    if (std::rename(part.c_str(), name.c_str()) != 0) fail(write_fault(), path);
}

void append_file(Platform& os, const std::string& path, std::string_view bytes) {
    const std::string name = native_path(path);
    if (!is_name(name) || folder_exists(name)) fail(FaultKind::file_unwritable, path);
    for (;;) {
        const bool existed = file_exists(name);
        Handle file(name, O_WRONLY | O_CREAT | O_APPEND);
        struct stat former {};
        // One program at a time: a write that has to be taken back takes no other program's with it.
        if (!file.is_open() || !locked(file.fd()) || ::fstat(file.fd(), &former) != 0) fail(write_fault(), path);
        if (former.st_nlink == 0) continue;  // taken away while this program waited
        const std::size_t room = os.room_on_disk(bytes.size());
        const bool done = write_all(file.fd(), bytes.substr(0, room));
        if (done && room == bytes.size()) {
            if (!file.close()) fail(write_fault(), path);
            return;
        }
        // The file keeps whole lines: half a record at its end would spoil the next one too.
        const FaultKind kind = done ? FaultKind::disk_full : write_fault();
        const bool cut = ::ftruncate(file.fd(), former.st_size) == 0;
        if (!existed && former.st_size == 0 && cut) ::unlink(name.c_str());
        fail(kind, path);
    }
}

}  // namespace kolvar
