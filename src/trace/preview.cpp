// What frm5_Preview and frm_AverConc show.
#include <algorithm>
#include <string_view>

#include "core/numbers.hpp"
#include "trace/output.hpp"

namespace kolvar {
namespace {

constexpr int shown_characters =
    99999;  // a longer table is cut: the preview is for a look, not for reading 6000 slices
constexpr int least_columns = 15;
constexpr int most_averages = 75;

// In UTF-8 the bytes that begin no character go with the one before.
bool begins_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

int characters_of(std::string_view text) {
    return static_cast<int>(std::count_if(text.begin(), text.end(), begins_character));
}

std::string_view beginning_of(std::string_view text) {
    int characters = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
        if (begins_character(text[at]) && ++characters > shown_characters) return text.substr(0, at);
    return text;
}

// Calls field(row, col, text) at each TAB and CR. What follows the last of them is no field.
template <class Field>
void walk(std::string_view text, Field&& field) {
    int row = 1;
    int col = 0;
    for (std::size_t end = text.find_first_of("\t\r"); end != text.npos; end = text.find_first_of("\t\r")) {
        field(row, col, text.substr(0, end));
        if (text[end] == '\r') {
            ++row;
            col = 0;
        } else {
            ++col;
        }
        text.remove_prefix(end + 1);
    }
}

std::string padding(int blanks) {
    return blanks > 0 ? std::string(static_cast<std::size_t>(blanks), ' ') : std::string();
}

}  // namespace

void load_preview(Context& context) {
    Running running(context.rs, "frm5_Preview_Load");
    const RunState& rs = context.rs;
    Frm5Preview& form = context.forms.frm5_Preview;
    form.lblKiVagy.text = "  " + rs.DataFileName + "  ";

    const bool by_slice = rs.setTableFormat.val() == 1;
    int rows = 33 + rs.nIso + 2 * (by_slice ? rs.SelN.val() : rs.nIso);
    int cols = std::max(2 + (by_slice ? rs.nIso : rs.SelN.val()), least_columns);
    const std::string_view shown = beginning_of(rs.OutText);
    // With all warnings a table by slices has a line more than that.
    walk(shown, [&](int row, int col, std::string_view) {
        rows = std::max(rows, row + 1);
        cols = std::max(cols, col + 1);
    });
    form.FlexGrid1.resize(rows, cols);
    form.FlexGrid1.column_widths = {3000, 2200, 900};

    Colour colour = palette(12);
    walk(shown, [&](int row, int col, std::string_view text) {
        if (text.starts_with("Part 2")) colour = palette(9);
        if (text.starts_with("Part 3")) colour = palette(0);
        Grid::Cell& cell = form.FlexGrid1.cell(row, col);
        cell.text = text;
        cell.fore = colour;
    });
    form.FlexGrid1.touch();
}

void load_averages(Context& context) {
    Running running(context.rs, "frm_AverConc_Load");
    RunState& rs = context.rs;
    FrmAverConc& form = context.forms.frm_AverConc;
    constexpr int column_width = 4500;
    for (Label& label : form.lbl) label.visible = false;
    const int shown = std::min(rs.nIso, most_averages);
    form.width = column_width * (shown < 26 ? 1 : shown > 50 ? 3 : 2);
    for (int i = 1; i <= shown; ++i) {
        Label& label = form.lbl(i - 1);
        const std::string& name = rs.IsoName(i);
        const std::string mean = Format(rs.ConcMean(i), "0.0");
        const std::string spread = Format(rs.ConcSD(i), "0.0");
        label.text = " " + name;
        label.text += padding(12 - characters_of(mean) - characters_of(name));
        label.text += mean + "  \xC2\xB1  ";
        label.text += padding(4 - characters_of(spread));
        label.text += spread + " ppm";
        label.visible = true;
        // The preview uses them up; the next calculation writes them anew.
        rs.ConcMean(i) = Mark::empty;
        rs.ConcSD(i) = Mark::empty;
    }
}

}  // namespace kolvar
