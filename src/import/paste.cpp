#include "import/paste.hpp"

#include <algorithm>
#include <string_view>

#include "core/fault.hpp"
#include "core/numbers.hpp"
#include "import/data_file.hpp"

namespace kolvar {
namespace {

constexpr char tab = '\t';
constexpr char line_end = '\r';

// Spreadsheets of some systems end their lines with a line feed alone.
std::string with_carriage_returns(std::string text) {
    bool lone = false;
    for (std::size_t at = text.find('\n'); at != std::string::npos && !lone; at = text.find('\n', at + 1))
        lone = at == 0 || text[at - 1] != line_end;
    if (!lone) return text;
    std::string out;
    out.reserve(text.size() + text.size() / 16);
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\n' && (at == 0 || text[at - 1] != line_end)) out += line_end;
        out += text[at];
    }
    return out;
}

// The columns are counted in the first line, the slices by the line ends: the very last character of the text ends no
// line, so a lone carriage return behind the last slice does not count it.
// Returns the number of columns, which may be more than a table holds.
std::ptrdiff_t count_cells(RunState& rs, std::string_view text) {
    const std::size_t end = text.find(line_end);
    const auto separators = std::count(text.begin(), end == text.npos ? text.end() : text.begin() + end, tab);
    if (end != text.npos && separators == 0) fail(FaultKind::end_of_file);
    rs.nIso = static_cast<int>(std::min<std::ptrdiff_t>(separators + 1, MaxIso));
    if (separators + 1 < 2) fail(FaultKind::end_of_file);
    const auto lines = std::count(text.begin(), text.end() - 1, line_end);
    rs.nSlices = static_cast<int>(std::clamp<std::ptrdiff_t>(lines - 1, 0, MaxSlices));
    if (lines - 1 < 3) fail(FaultKind::end_of_file);
    return separators + 1;
}

void read_heads(RunState& rs, std::string_view text, std::ptrdiff_t columns) {
    std::string_view line = text.substr(0, text.find(line_end));
    for (int i = 1; i <= rs.nIso; ++i) {
        const std::size_t end = std::min(line.find(tab), line.size());
        rs.IsoName(i) = line.substr(0, end);
        if (rs.IsoName(i).empty() || is_numeric(rs.IsoName(i))) fail(FaultKind::type);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    if (columns > MaxIso) fail(FaultKind::too_many);
}

double number_of(std::string_view cell) {
    if (!is_numeric(cell)) fail(FaultKind::type);
    return Val(cell);
}

// A line feed in front of a line's first cell does no harm to its number. The cells behind the last line end must be
// numbers too, but that line is no slice and is not stored.
void read_slices(RunState& rs, std::string_view text) {
    const std::size_t last_end = text.rfind(line_end);
    int row = 0;
    int column = 1;
    std::size_t from = 0;
    for (std::size_t at = text.find_first_of("\t\r"); at != text.npos; at = text.find_first_of("\t\r", at + 1)) {
        const bool ends_line = text[at] == line_end;
        const bool stored = at <= last_end;
        if (row > MaxSlices && stored) fail(FaultKind::too_many);
        if (row > 0) {
            const double number = number_of(text.substr(from, at - from));
            if (stored) rs.Sig(column, row) = number;
            ++column;
        }
        if (ends_line) {
            column = 1;
            ++row;
        }
        if (row > 0) from = at + 1;
    }
}

}  // namespace

bool PasteData(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "PasteData");
    rs.LineBuf = with_carriage_returns(context.os.clipboard());
    if (rs.LineBuf.empty()) {
        context.os.warn("There are no numbers on the clipboard.");
        return false;
    }
    bool pasted = false;
    guarded(
        [&] {
            const std::ptrdiff_t columns = count_cells(rs, rs.LineBuf);
            read_heads(rs, rs.LineBuf, columns);
            read_slices(rs, rs.LineBuf);
            if (rs.Method == 0 || rs.Method == 1 || rs.Method == 3) rs.DataFileName = " pasted from clipboard ";
            if (rs.Method == 1 || rs.Method == 3) context.forms.frm1_Settings.lblUP.text = rs.DataFileName;
            AfterImport(context);
            pasted = true;
        },
        [&](const Fault&) { context.shell.open(context.forms.frmPaste); });
    return pasted;
}

}  // namespace kolvar
