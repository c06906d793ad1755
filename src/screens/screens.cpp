#include "screens/screens.hpp"

namespace kolvar {

void connect_screens(Program& program) {
    connect_settings_window(program);
    connect_report_windows(program);
    connect_time_window(program);
    connect_matrix_window(program);
    connect_output_windows(program);
}

}  // namespace kolvar
