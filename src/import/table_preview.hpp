// What a profile makes of the first lines of a data file, without loading it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "import/table_reader.hpp"

namespace kolvar {

// The first whole lines of a file, as the reader of tables counts them; no more than `most`, and no more than stand in
// its first MiB. Faults: file_missing, file_unreadable.
std::vector<std::string> first_lines(const std::string& path, int most);

// The fields of a line, one more than it has separators.
std::vector<std::string_view> fields_of(std::string_view line, char separator);

// Lines that the reader takes for the heads and for the first time slice, counted from 1.
struct TableLines {
    int head = 0;   // 0: it reads no heads
    int first = 0;  // behind the last of `lines`: it is none of them
};
TableLines lines_read(const std::vector<std::string>& lines, const TableProfile& profile);

}  // namespace kolvar
