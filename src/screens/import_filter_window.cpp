#include "screens/screens.hpp"

namespace kolvar {

void connect_import_filter_window(Program&) {}

}  // namespace kolvar
