#include "screens/screens.hpp"

namespace kolvar {

void connect_screens(Program& program) {
    connect_settings_window(program);
    connect_report_windows(program);
    connect_time_window(program);
    connect_up_window(program);
    connect_refinement(program);
    connect_uranium_lead_reports(program);
    connect_matrix_window(program);
    connect_output_windows(program);
    connect_set_is_window(program);
    connect_defaults_windows(program);
    connect_period_window(program);
    connect_import_filter_window(program);
    connect_paste(program);
    connect_folder_window(program);
    connect_file_list(program);
    connect_sequence(program);
    connect_drift(program);
    connect_help(program);
}

}  // namespace kolvar
