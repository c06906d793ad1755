// Step 1: which panel is shown, what its controls show, and which of them can be used.
#pragma once

#include <string>

#include "ui/context.hpp"

namespace kolvar {

// Two blanks on either side: how a window shows a file name.
std::string shown_name(const std::string& name);

void open_settings_window(Context& context);
void activate_settings_window(Context& context);
// After a load: name of the data file and the lists of isotopes.
void show_data_file(Context& context);

// The lists of isotopes hold the columns and show the internal standards.
void fill_lists(Context& context);

// The frame of internal standards has a row for each that is used.
void follow_number_of_standards(Context& context);
// The controls that follow the chosen mode, source of the blank, and source of the dwell times.
void follow_mode(Context& context);
void follow_blank(Context& context);
void follow_dwell(Context& context);

}  // namespace kolvar
