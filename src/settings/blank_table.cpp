// The measured blank table: a raw instrument export in place of a Blank File.
#include <string_view>

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "settings/blank_statistics.hpp"
#include "settings/reference_files.hpp"

namespace kolvar {
namespace {

// Hands each field of a line to take(column, field), from column 0; gives the last column.
template <class Take>
int split_at_commas(std::string_view line, const std::string& path, int line_number, Take&& take) {
    for (int column = 0;; ++column) {
        const std::size_t comma = line.find(',');
        if (column > MaxIso) fail(FaultKind::too_many, path, line_number, std::string(line.substr(0, 80)));
        take(column, line.substr(0, comma));
        if (comma == std::string_view::npos) return column;
        line.remove_prefix(comma + 1);
    }
}

std::string_view needed_line(LineReader& lines, const std::string& path) {
    if (lines.at_end()) fail(FaultKind::end_of_file, path, lines.line());
    return lines.next();
}

}  // namespace

void LoadBlankTable(RunState& rs, const std::string& path) {
    Running running(rs, "LoadBlankTable");
    // A table that was read by half counts as none.
    rs.nBLK = 0;
    rs.nBLKraw = 0;
    rs.TokenBuf.clear();
    const std::string text = to_text(read_bytes(path));
    LineReader lines(text);
    needed_line(lines, path);
    const std::string_view heads = needed_line(lines, path);
    // The time column has place 0, so that the isotopes count from 1.
    const int isotopes = split_at_commas(heads, path, lines.line(),
                                         [&](int column, std::string_view head) { rs.BLKiso(column) = head; });

    int slices = 0;
    while (!lines.at_end()) {
        const std::string_view line = lines.next();
        if (++slices > MaxSlices) fail(FaultKind::too_many, path, lines.line());
        split_at_commas(line, path, lines.line(), [&](int column, std::string_view field) {
            const LeadingNumber read = leading_number(field);
            if (read.too_large) fail(FaultKind::overflow, path, lines.line(), std::string(field.substr(0, 80)));
            rs.BLKraw(column, slices) = read.number;
        });
        // These exports write an empty line behind each slice; whatever stands there is thrown away.
        needed_line(lines, path);
    }

    for (int i = 1; i <= isotopes; ++i) {
        const BlankStatistics blank =
            blank_statistics(rs.BLKraw.column(i).subspan(1, static_cast<std::size_t>(slices)));
        rs.BLKmean(i) = blank.mean;
        rs.BLKsd(i) = blank.sd;
    }
    rs.nBLKraw = slices;
    rs.nBLK = isotopes;
}

BlankStatistics blank_statistics(std::span<const double> cps) {
    BlankStatistics out;
    const auto n = static_cast<double>(cps.size());
    double sum = 0;
    for (const double value : cps) sum += value;
    out.mean = quotient(finite(sum), n);
    double squares = 0;
    for (const double value : cps) squares += (value - out.mean) * (value - out.mean);
    out.sd = root(quotient(finite(squares), n - 1));
    return out;
}

}  // namespace kolvar
