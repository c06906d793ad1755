// Inner parts of the rejection matrix: what the colours of its cells mean, and what all its tests share.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "ui/context.hpp"

namespace kolvar::matrix {

using GridCell = Grid::Cell;

inline constexpr Colour white = palette(15);
inline constexpr Colour black = palette(0);
inline constexpr Colour grey = palette(8);

// The colours are the model: the text of a rejected datum is white, whoever rejected it.
inline bool is_black(const GridCell& cell) { return cell.back == black; }
inline bool is_grey(const GridCell& cell) { return cell.back == grey; }
inline bool is_rejected(const GridCell& cell) { return cell.fore == white; }
inline bool is_dashes(const GridCell& cell) { return cell.text == "---"; }
inline void accept(GridCell& cell) { cell.back = white, cell.fore = black; }
inline void reject(GridCell& cell) { cell.back = grey, cell.fore = white; }

enum class View : std::uint8_t { cps, cps_deviation, ratio, ratio_deviation };

View view_of(const Frm3Matrix& form);
inline bool on_ratios(View view) { return view == View::ratio || view == View::ratio_deviation; }

// Columns of the measurement that serve as internal standards; a row of the matrix each.
struct Standards {
    std::array<int, 3> column{};
    int count = 0;
    [[nodiscard]] bool has(int row) const {
        for (int k = 0; k < count; ++k)
            if (column[static_cast<std::size_t>(k)] == row) return true;
        return false;
    }
};
// Those in use by setISnum. None while a standard measurement or a blank is made.
Standards standards_in_use(const RunState& rs);

// One row of the grid, from its header cell on.
std::span<GridCell> row_of(Grid& grid, int row);

// The statistics of a row that the tests of the view measure with.
struct RowStatistics {
    std::span<const double> data;  // by slice
    double mean = 0, sd = 0;
    int min_at = 0, max_at = 0;        // slices of the extremes; the cells that are tested
    int min_value = 0, max_value = 0;  // slices whose data Grubbs' test takes for the extremes
    // d: the deviation in s.d., cut downwards to one decimal, times ten.
    [[nodiscard]] double tenths(int slice) const;
    [[nodiscard]] double deviation(int slice) const { return tenths(slice) / 10; }
};
RowStatistics statistics_of(const RunState& rs, View view, int row);

// Fault(index) unless every column of the grid stands for a slice of the tables: the loops over cells don't check it.
void check_slices(const RunState& rs, const Grid& grid);
// A selected slice; positions left from an earlier selection are not.
bool is_selected(const RunState& rs, int slice);
// The column of the matrix that shows a slice.
inline int column_of(const RunState& rs, int slice) { return slice - rs.SelLow.val() + 1; }

// Whether the extremes of a row are marked and rejected on this basis, and whether its Grubbs test is run.
bool has_extremes(const RunState& rs, View view, int row);
bool has_grubbs(const RunState& rs, View view, int row);
// Whether a deviation can be told for the cells of this row.
bool has_deviation(const RunState& rs, View view, int row);

// g of the row's minimum and maximum, in s.d.
double grubbs_of_minimum(const RowStatistics& row);
double grubbs_of_maximum(const RowStatistics& row);

void paint_standards(Context& context);
// Whatever a "show" box has coloured is white again, or pale green in the row of a standard.
void ClearShowColours(Context& context);
void reject_column(Context& context, int col);
void restore_column(Context& context, int col);
void restore_cell(GridCell& cell);

// The colour of a deviation of so many s.d.; none below 2 and in the gaps between the bands.
std::optional<Colour> deviation_colour(double d);
// The marks of the "show" boxes that are on, put over accepted cells.
void mark_shown(Context& context);
void clear_show_boxes(Context& context);
void draw_legends(Context& context);

// Which boxes can be used, from the number of slices and what is on.
void settle_boxes(Context& context);

}  // namespace kolvar::matrix
