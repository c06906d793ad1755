// The three formats of data files, told by the ending, and what the settings say about each.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/value.hpp"
#include "import/table_reader.hpp"

namespace kolvar {

enum class FileFormat : std::uint8_t { none, csv, txt, xl };

// By the last three characters in exactly these spellings: csv, CSV, txt, TXT, .xl, .XL.
FileFormat format_of(std::string_view path);

// The profile of a format: comma or TAB by the format, lines and columns by the settings, rounded to whole numbers.
// Only the comma files of ending csv take an empty line for a slice.
TableProfile profile_of(FileFormat format, const Value& head, const Value& data, const Value& first);

}  // namespace kolvar
