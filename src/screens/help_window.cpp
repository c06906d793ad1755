#include "screens/screens.hpp"

namespace kolvar {

void connect_help(Program&) {}

}  // namespace kolvar
