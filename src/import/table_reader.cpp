#include "import/table_reader.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <span>
#include <string_view>

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"

namespace kolvar {
namespace {

// Rows on their way into the table. A table lies column by column in memory: a few rows at a time are put there
// together, which touches each column once for all of them. Rows that wait reach the table even when a fault ends the
// reading.
class RowBlock {
public:
    explicit RowBlock(Table2<double>& table) : table_(table) {}
    ~RowBlock() { put_down(); }
    RowBlock(const RowBlock&) = delete;
    RowBlock& operator=(const RowBlock&) = delete;

    void begin_row(int slice) {
        if (rows_ == cells_.size()) put_down();
        if (rows_ == 0) first_slice_ = static_cast<std::size_t>(slice);
        lengths_[rows_++] = 0;
    }
    // Cells come from column 1 on without a gap.
    void add(double number) {
        std::size_t& length = lengths_[rows_ - 1];
        cells_[rows_ - 1][length++] = number;
    }

private:
    void put_down() {
        const auto lengths = std::span(lengths_).first(rows_);
        const std::size_t longest = rows_ == 0 ? 0 : *std::max_element(lengths.begin(), lengths.end());
        const std::size_t shortest = rows_ == 0 ? 0 : *std::min_element(lengths.begin(), lengths.end());
        for (std::size_t k = 0; k < longest; ++k) {
            double* const column = table_.column(static_cast<int>(k) + 1).data() + first_slice_;
            if (k < shortest) {
                for (std::size_t row = 0; row < rows_; ++row) column[row] = cells_[row][k];
            } else {
                for (std::size_t row = 0; row < rows_; ++row)
                    if (k < lengths_[row]) column[row] = cells_[row][k];
            }
        }
        rows_ = 0;
    }

    static constexpr std::size_t held = 16;
    Table2<double>& table_;
    std::array<std::array<double, MaxIso>, held> cells_{};
    std::array<std::size_t, held> lengths_{};
    std::size_t rows_ = 0;
    std::size_t first_slice_ = 1;
};

// Where the reader stands, for the box of a fault.
struct Place {
    const std::string& path;
    int line = 0;

    [[noreturn]] void fail_here(FaultKind kind, std::string_view text = {}) const {
        fail(kind, path, line, std::string(text.substr(0, 80)));
    }
};

bool is_ascii(std::string_view bytes) {
    constexpr std::size_t stretch = 4096;
    for (std::size_t from = 0; from < bytes.size(); from += stretch) {
        unsigned char all = 0;
        for (const char c : bytes.substr(from, stretch)) all = static_cast<unsigned char>(all | c);
        if (all >= 0x80) return false;
    }
    return true;
}

const char* field_end(const char* from, const char* end, char separator) {
    const auto* found = static_cast<const char*>(std::memchr(from, separator, static_cast<std::size_t>(end - from)));
    return found != nullptr ? found : end;
}

void skip_lines(LineReader& lines, int count, Place& place) {
    for (int k = 0; k < count; ++k) {
        if (lines.at_end()) place.fail_here(FaultKind::end_of_file);
        lines.next();
        place.line = lines.line();
    }
}

void read_heads(RunState& rs, std::string_view line, char separator, const Place& place) {
    const char* at = line.data();
    const char* const end = at + line.size();
    for (int column = 1;; ++column) {
        const char* const stop = field_end(at, end, separator);
        const std::string_view head(at, static_cast<std::size_t>(stop - at));
        if (column > MaxIso) place.fail_here(FaultKind::too_many, head);
        rs.IsoName(column) = head;
        rs.nIso = column;
        if (stop == end) return;
        at = stop + 1;
    }
}

// One slice. Cells of columns that the line does not reach stay as they are.
void read_row(std::string_view line, char separator, RowBlock& rows, const Place& place) {
    const char* at = line.data();
    const char* const end = at + line.size();
    for (int column = 1;; ++column) {
        if (column > MaxIso) place.fail_here(FaultKind::too_many, line);
        double number = 0;
        const char* stop = at;
        // Nearly every field begins with a digit. It is converted before its end is known, as no number holds a
        // separator; what is not plainly a number up to the separator is read again below by all the rules.
        bool plain = at != end && *at >= '0' && *at <= '9';
        if (plain) {
            const auto read = std::from_chars(at, end, number);
            stop = read.ptr;
            plain = read.ec == std::errc() && (stop == end || *stop == separator);
        }
        if (!plain) {
            stop = field_end(stop, end, separator);
            const std::string_view field(at, static_cast<std::size_t>(stop - at));
            const LeadingNumber read = leading_number(field);
            if (read.too_large) place.fail_here(FaultKind::overflow, field);
            number = read.number;
        }
        rows.add(number);
        if (stop == end) return;
        at = stop + 1;
    }
}

void read_rows(RunState& rs, LineReader& lines, const TableProfile& profile, Place& place) {
    RowBlock rows(rs.Sig);
    int slice = 1;
    while (!lines.at_end()) {
        const std::string_view line = lines.next();
        if (line.empty() && profile.skips_empty_lines) continue;
        place.line = lines.line();
        if (slice > MaxSlices) place.fail_here(FaultKind::too_many, line);
        rs.nSlices = slice;
        rows.begin_row(slice);
        read_row(line, profile.separator, rows, place);
        ++slice;
    }
    rs.nSlices = slice - 1;
}

// The columns left of the first isotope go, and the others take their places. The cells that the last ones leave behind
// keep what they hold.
void drop_columns(RunState& rs, int first) {
    const int dropped = first - 1;
    for (int i = 1; i <= rs.nIso; ++i)
        rs.IsoName(i) = first + i - 1 <= MaxIso ? rs.IsoName(first + i - 1) : std::string();
    for (int i = 1; i <= rs.nIso - dropped; ++i) {
        const auto from = rs.Sig.column(first + i - 1);
        std::copy_n(from.begin() + 1, rs.nSlices, rs.Sig.column(i).begin() + 1);
    }
    rs.nIso = std::max(rs.nIso - dropped, 0);
}

}  // namespace

void read_table(RunState& rs, const std::string& path, const TableProfile& profile) {
    rs.PrevSlices = rs.nSlices;
    rs.nIso = 1;
    rs.nSlices = 1;
    rs.TokenBuf.clear();

    std::string text = read_bytes(path);
    if (!is_ascii(text)) text = to_text(std::move(text));
    LineReader lines(text);
    Place place{path};

    const int head_line = std::max(profile.head_line, 0);
    if (head_line > 0) {
        skip_lines(lines, head_line - 1, place);
        if (lines.at_end()) place.fail_here(FaultKind::end_of_file);
        const std::string_view heads = lines.next();
        place.line = lines.line();
        read_heads(rs, heads, profile.separator, place);
    }
    skip_lines(lines, profile.data_line - head_line - 1, place);
    if (lines.at_end()) place.fail_here(FaultKind::end_of_file);

    read_rows(rs, lines, profile, place);
    if (profile.first_column > 1) drop_columns(rs, profile.first_column);
}

}  // namespace kolvar
