#include "import/profile_detection.hpp"

#include <algorithm>

#include "core/elements.hpp"
#include "core/numbers.hpp"
#include "import/table_preview.hpp"

namespace kolvar {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

using Fields = std::vector<std::string_view>;

// Takes the characters of one kind from the front.
template <class Kind>
std::string_view take(std::string_view& text, Kind&& kind) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), kind);
    const std::string_view taken = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(taken.size());
    return taken;
}

bool is_blank(std::string_view field) { return trimmed(field).empty(); }
// A field without a value; some instruments write a dash.
bool has_no_value(std::string_view field) { return is_blank(field) || trimmed(field) == "-"; }

enum class LineKind : std::uint8_t { blank, text, numbers_behind_text, numbers };

// Numbers in all fields but the first, at least in one. The first may be a time of day or a name.
LineKind kind_of(const Fields& fields) {
    if (std::all_of(fields.begin(), fields.end(), is_blank)) return LineKind::blank;
    const bool behind_number = is_numeric(fields.front());
    if (fields.size() == 1) return behind_number ? LineKind::numbers : LineKind::text;
    bool any = false;
    for (auto field = fields.begin() + 1; field != fields.end(); ++field) {
        const bool number = is_numeric(*field);
        if (!number && !has_no_value(*field)) return LineKind::text;
        any = any || number;
    }
    if (!any) return LineKind::text;
    return behind_number ? LineKind::numbers : LineKind::numbers_behind_text;
}

// Indices of lines from 0; the blank lines between belong to it.
struct Run {
    std::size_t first = 0, last = 0;
    int lines = 0;  // without the blank ones
};

// Statistics may stand above the slices, in a run of their own: the longest run is the measurement.
Run longest_run(const std::vector<Fields>& table) {
    Run longest, run;
    LineKind run_kind = LineKind::text;
    for (std::size_t k = 0; k < table.size(); ++k) {
        const LineKind kind = kind_of(table[k]);
        if (kind == LineKind::blank) continue;
        if (kind != run_kind) run = {k, k, 0};
        run_kind = kind;
        if (kind == LineKind::text) continue;
        run.last = k;
        ++run.lines;
        if (run.lines > longest.lines) longest = run;
    }
    return longest;
}

// Lines between the heads and the slices (units, dwell times) hold no names. A line that happens to hold one is not
// taken for the heads, which hold more.
std::optional<std::size_t> line_of_most_names(const std::vector<Fields>& table, std::size_t before,
                                              IsotopeLikeness likeness) {
    std::optional<std::size_t> found;
    std::ptrdiff_t most = 1;
    for (std::size_t k = 0; k < before; ++k) {
        const auto names = std::count_if(table[k].begin(), table[k].end(),
                                         [&](std::string_view field) { return isotope_likeness(field) >= likeness; });
        if (names < most) continue;
        most = names;
        found = k;
    }
    return found;
}

// Whether the column holds numbers, as far as it holds anything.
bool is_numeric_column(const std::vector<Fields>& table, const Run& run, std::size_t column) {
    return std::all_of(table.begin() + static_cast<std::ptrdiff_t>(run.first),
                       table.begin() + static_cast<std::ptrdiff_t>(run.last) + 1, [&](const Fields& fields) {
                           return column >= fields.size() || has_no_value(fields[column]) || is_numeric(fields[column]);
                       });
}

}  // namespace

IsotopeLikeness isotope_likeness(std::string_view head) {
    const auto quotes = [](char c) { return c == '"' || c == ' ' || c == '\t'; };
    const auto joins = [](char c) { return c == ' ' || c == '-' || c == '_'; };
    take(head, quotes);
    const bool symbol_first = !head.empty() && is_letter(head.front());
    const std::string_view front = symbol_first ? take(head, is_letter) : take(head, is_digit);
    take(head, joins);
    const std::string_view behind = symbol_first ? take(head, is_digit) : take(head, is_letter);
    const std::string_view symbol = symbol_first ? front : behind, mass = symbol_first ? behind : front;
    if (symbol.empty() || symbol.size() > 2 || mass.empty() || mass.size() > 3) return IsotopeLikeness::none;
    if (!head.empty() && (is_letter(head.front()) || is_digit(head.front()))) return IsotopeLikeness::none;
    // A nucleus holds its protons, and those that are measured no more than two neutrons to each.
    const int protons = atomic_number_of(symbol);
    const double nucleons = Val(mass);
    const bool can_be = protons > 0 && nucleons >= protons && nucleons <= 3 * protons;
    return can_be ? IsotopeLikeness::isotope : IsotopeLikeness::form;
}

std::optional<TableProfile> detect_profile(const std::vector<std::string>& lines, char separator) {
    std::vector<Fields> table;
    table.reserve(lines.size());
    for (const std::string& line : lines) table.push_back(fields_of(line, separator));
    const Run run = longest_run(table);
    if (run.lines < 2) return {};
    for (const IsotopeLikeness likeness : {IsotopeLikeness::isotope, IsotopeLikeness::form}) {
        const auto head = line_of_most_names(table, run.first, likeness);
        if (!head) continue;
        for (std::size_t column = 0; column < table[*head].size(); ++column) {
            if (isotope_likeness(table[*head][column]) < likeness || !is_numeric_column(table, run, column)) continue;
            TableProfile profile;
            profile.separator = separator;
            profile.head_line = static_cast<int>(*head) + 1;
            profile.data_line = static_cast<int>(run.first) + 1;
            profile.first_column = static_cast<int>(column) + 1;
            return profile;
        }
    }
    return {};
}

}  // namespace kolvar
