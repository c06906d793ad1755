#include "screens/screens.hpp"

namespace kolvar {

void connect_period_window(Program&) {}

}  // namespace kolvar
