#include "import/file_format.hpp"

#include <algorithm>
#include <string>

#include "core/files.hpp"
#include "core/numbers.hpp"

namespace kolvar {

namespace {

// A line or column number of a profile; a key that was never read is 0.
int profile_number(const Value& key) {
    constexpr double far = 1e9;  // no file has so many lines, and sums of two such numbers still are whole numbers
    return static_cast<int>(std::clamp(round_half_even(key.val()), -far, far));
}

}  // namespace

FileFormat format_of(std::string_view path) {
    const std::string ending = last_three(path);
    if (ending == "csv" || ending == "CSV") return FileFormat::csv;
    if (ending == "txt" || ending == "TXT") return FileFormat::txt;
    if (ending == ".xl" || ending == ".XL") return FileFormat::xl;
    return FileFormat::none;
}

TableProfile profile_of(FileFormat format, const Value& head, const Value& data, const Value& first) {
    const char separator = format == FileFormat::txt ? '\t' : ',';
    return {separator, profile_number(head), profile_number(data), profile_number(first), format != FileFormat::csv};
}

}  // namespace kolvar
