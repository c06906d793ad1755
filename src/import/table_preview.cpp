#include "import/table_preview.hpp"

#include <algorithm>

#include "core/files.hpp"

namespace kolvar {

std::vector<std::string> first_lines(const std::string& path, int most) {
    constexpr std::size_t bytes = 1U << 20U;
    std::string head = read_head(path, bytes);
    // The last line may go on behind these bytes. A single line that long is shown as far as it is known.
    if (head.size() == bytes)
        if (const std::size_t end = head.find_last_of("\r\n"); end != std::string::npos) head.resize(end + 1);
    const std::string text = to_text(std::move(head));
    std::vector<std::string> lines;
    for (LineReader reader(text); !reader.at_end() && lines.size() < static_cast<std::size_t>(most);)
        lines.emplace_back(reader.next());
    return lines;
}

std::vector<std::string_view> fields_of(std::string_view line, char separator) {
    std::vector<std::string_view> fields;
    for (;;) {
        const std::size_t end = line.find(separator);
        fields.push_back(line.substr(0, end));
        if (end == std::string_view::npos) return fields;
        line.remove_prefix(end + 1);
    }
}

TableLines lines_read(const std::vector<std::string>& lines, const TableProfile& profile) {
    const int head = std::max(profile.head_line, 0);
    int first = std::max(profile.data_line, head + 1);
    const int count = static_cast<int>(lines.size());
    while (profile.skips_empty_lines && first <= count && lines[static_cast<std::size_t>(first - 1)].empty()) ++first;
    return {head, first};
}

}  // namespace kolvar
