// The program under test is linked against the read() of this file in place of the system's.
#include "support/failing_read.hpp"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>

namespace {

struct Damage {
    bool stands = false;
    dev_t disk = 0;
    ino_t file = 0;
    std::size_t good = 0;
    int failures = 0;
    bool interrupts = false;
};

Damage& damage() {
    static Damage only;
    return only;
}

bool is_damaged(int fd) {
    struct stat info {};
    return damage().stands && ::fstat(fd, &info) == 0 && info.st_dev == damage().disk && info.st_ino == damage().file;
}

}  // namespace

extern "C" ssize_t read(int fd, void* to, std::size_t most) {
    using Read = ssize_t (*)(int, void*, std::size_t);
    static const auto system_read = reinterpret_cast<Read>(::dlsym(RTLD_NEXT, "read"));
    if (!is_damaged(fd)) return system_read(fd, to, most);
    damage().interrupts = !damage().interrupts;
    if (damage().interrupts) {
        errno = EINTR;
        return -1;
    }
    const off_t place = ::lseek(fd, 0, SEEK_CUR);
    const std::size_t at = place < 0 ? damage().good : static_cast<std::size_t>(place);
    if (at >= damage().good) {
        ++damage().failures;
        errno = EIO;
        return -1;
    }
    constexpr std::size_t at_once = 3000;
    return system_read(fd, to, std::min({most, damage().good - at, at_once}));
}

namespace kolvar::test {

FailingRead::FailingRead(const std::string& path, std::size_t good) {
    struct stat info {};
    if (damage().stands || ::stat(path.c_str(), &info) != 0) throw std::invalid_argument(path);
    damage() = {true, info.st_dev, info.st_ino, good, 0, false};
}

FailingRead::~FailingRead() { damage().stands = false; }

int FailingRead::failures() const { return damage().failures; }

}  // namespace kolvar::test
