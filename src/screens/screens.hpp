// Binds the handlers of every window to the dispatcher.
#pragma once

#include "screens/program.hpp"

namespace kolvar {

void connect_screens(Program& program);

// One for each window or group of windows; connect_screens calls them all.
void connect_settings_window(Program& program);
void connect_report_windows(Program& program);
void connect_time_window(Program& program);
void connect_up_window(Program& program);
void connect_refinement(Program& program);
void connect_uranium_lead_reports(Program& program);
void connect_matrix_window(Program& program);
void connect_output_windows(Program& program);
void connect_set_is_window(Program& program);
void connect_defaults_windows(Program& program);
void connect_period_window(Program& program);
void connect_import_filter_window(Program& program);
void connect_paste(Program& program);
void connect_folder_window(Program& program);
void connect_file_list(Program& program);
void connect_sequence(Program& program);
void connect_drift(Program& program);
void connect_help(Program& program);

}  // namespace kolvar
