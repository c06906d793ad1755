// What each fuzzer runs on its bytes. The ordinary tests run the same functions over the corpus.
#pragma once

#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

#include "core/files.hpp"
#include "core/numbers.hpp"
#include "core/platform.hpp"
#include "core/records.hpp"
#include "core/run_state.hpp"
#include "support/silent_platform.hpp"

namespace kolvar::fuzz {

using Bytes = std::span<const std::uint8_t>;
using test::SilentPlatform;

// The readers take files: one for each name, that goes with the object.
class ScratchFile {
public:
    explicit ScratchFile(const std::string& name)
        : path_((std::filesystem::temp_directory_path() / ("kolvar-fuzz-" + std::to_string(getpid()) + "-" + name))
                    .string()) {}
    ~ScratchFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    const std::string& write(Bytes bytes) {
        std::ofstream file(path_, std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return path_;
    }

private:
    std::string path_;
};

// Files that have a name of their own lie in a folder, which goes with the object.
class ScratchFolder {
public:
    explicit ScratchFolder(const std::string& name)
        : path_((std::filesystem::temp_directory_path() / ("kolvar-fuzz-" + std::to_string(getpid()) + "-" + name))
                    .string()) {
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }
    std::string write(const std::string& name, Bytes bytes) const {
        std::string path = join_path(path_, name);
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return path;
    }

private:
    std::string path_;
};

// A promise of the reader is broken: the fuzzer stops here.
inline void require(bool holds) {
    if (!holds) std::abort();
}

inline std::string text_of(Bytes bytes) { return {reinterpret_cast<const char*>(bytes.data()), bytes.size()}; }

// Whatever can be read can be written, and reads back as the same.
inline void records(Bytes bytes) {
    RecordReader reader(to_text(text_of(bytes)), "records");
    std::vector<Value> fields;
    bool faulted = false;
    guarded(
        [&] {
            while (!reader.at_end()) fields.push_back(reader.field());
        },
        [&](const Fault& fault) {
            faulted = true;
            require(fault.kind == FaultKind::end_of_file || fault.kind == FaultKind::overflow);
        });
    if (faulted || fields.empty()) return;
    RecordWriter writer;
    for (const Value& field : fields) {
        require(!field.is_number() || std::isfinite(field.number()));
        writer.field(field);
    }
    writer.end_record();
    RecordReader again(writer.bytes(), "written");
    for (const Value& field : fields) {
        if (again.at_end()) {
            require(field.is_unset());  // nothing is written for it, and the last of them leaves no trace
            continue;
        }
        Value back = again.field();
        std::string text = field.text();
        for (char& c : text)
            if (c == '"') c = '\'';
        require(field.is_text() ? back == Value(text) : back == field);
    }
}

}  // namespace kolvar::fuzz
