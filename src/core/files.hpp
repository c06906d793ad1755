// Whole files as bytes and lines, paths, and writing that replaces a file whole or not at all.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform.hpp"

namespace kolvar {

// Path texts hold "/" or "\"; both separate.
std::string native_path(std::string_view path);  // as this platform writes it
std::string join_path(std::string_view folder, std::string_view name);
// As join_path; "" is the current folder.
std::string path_in(std::string_view folder, std::string_view name);
std::string file_name(std::string_view path);    // behind the last separator
std::string folder_of(std::string_view path);    // before the last separator
std::string last_three(std::string_view path);   // its last three characters
bool is_relative_path(const std::string& path);  // "" is not
bool file_exists(const std::string& path);
bool folder_exists(const std::string& path);

// The bytes of a file. Fault(file_missing / file_unreadable) with the path; a folder is unreadable.
std::string read_bytes(const std::string& path);
// The same of a file's first bytes, as many as `most` at the highest.
std::string read_head(const std::string& path, std::size_t most);

// Bytes to text: drops a UTF-8 byte-order mark; bytes that are no valid UTF-8 are read as Windows-1252.
std::string to_text(std::string bytes);

// Hands out the lines of a text: CR LF, LF or a lone CR end a line; a last line without an end counts.
class LineReader {
public:
    explicit LineReader(std::string_view text) : rest_(text) {}
    [[nodiscard]] bool at_end() const { return rest_.empty(); }
    // The next line; Fault(end_of_file) is the caller's to raise: at the end it returns "".
    std::string_view next();
    [[nodiscard]] int line() const { return line_; }  // number of the line handed out last

private:
    std::string_view rest_;
    int line_ = 0;
};

// Replaces a file: writes NAME.part beside it, flushes it to the disk and renames it over the target. A failure
// throws Fault (disk_full, file_unwritable), leaves the former file untouched and what was written in NAME.part.
void replace_file(Platform& os, const std::string& path, std::string_view bytes);

// Appends in one write, creating the file if need be.
void append_file(Platform& os, const std::string& path, std::string_view bytes);

}  // namespace kolvar
