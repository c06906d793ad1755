// Step 2 of the internal-standard path, cut by topic: opening, layout, scales, analytes, signal ratios, leaving.
#pragma once

#include "screens/program.hpp"
#include "ui/context.hpp"

namespace kolvar {

// Opening and activation.
void open_time_window(Context& context);
void activate_time_window(Context& context);

// Places the plots and all that stands around them for the window's present size (twips).
void lay_out_time_window(Context& context);
// The window has a new size.
void OnResize(Context& context);

// The signal-ratio panel. Its edit mode is told by the caption of cmdAcceptRatios.
bool ratio_panel_in_edit_mode(const Frm2Time& form);
int column_named(const RunState& rs, const std::string& name);  // the last of that name; 0 = none, and for ""
void find_ratio_columns(RunState& rs);                          // RatioCol from ratioName
void show_ratio_names(Context& context);                        // the labels from both
void connect_ratio_panel(Program& program);

// How many analytes can be chosen: the columns, at most 50.
int choosable_analytes(const RunState& rs);
bool all_limits_set(const RunState& rs);
// Of the signals that the U/Pb and FLEX calculations use, in raw cps.
double highest_signal_by_role(const RunState& rs);
// After a click: preview of the averages and the result buttons become usable as soon as the limits that they need are
// set.
void enable_results(Context& context);

// The field for an upper limit beside a plot: opened at the number shown, and read. False when the number was refused.
void open_scale_entry(TimeScreen& form, const Label& shown, Label& head, Entry& entry);
bool take_scale_entry(Context& context, TimeScreen& form, Label& shown, Label& head, Entry& entry, Value& limit);

// Both zoom bars back to full scale.
void reset_zoom(Frm2Time& form);

// The buttons of the mouse over both plots.
void connect_plot_clicks(Program& program, TimeScreen& form);
// Back to the files; the marks stay.
void leave_for_files(Context& context, TimeScreen& form);

// Statistics and concentrations of the present selection, without rejection, shown in frm_AverConc. ShowAverages takes
// the blank anew where it comes from the data.
void ShowAverages(Context& context);
void preview_selection(Context& context, bool blank_first);

// cmdNext: guards, blank, the question about a noisy blank, and the way on.
void LeaveTimeSelection(Context& context);

}  // namespace kolvar
