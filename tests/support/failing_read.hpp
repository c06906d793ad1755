// A disk that fails while a file is being read: opening and asking for its size went well, the bytes come so far.
#pragma once

#include <cstddef>
#include <string>

namespace kolvar::test {

// As long as this stands, reading the file gives its first `good` bytes, never more than a few thousand at once and
// with an interruption now and then, and after them the error of a damaged disk. Other files are read as ever.
// One at a time.
class FailingRead {
public:
    FailingRead(const std::string& path, std::size_t good);
    ~FailingRead();
    FailingRead(const FailingRead&) = delete;
    FailingRead& operator=(const FailingRead&) = delete;

    [[nodiscard]] int failures() const;  // how often a read has failed so far
};

}  // namespace kolvar::test
