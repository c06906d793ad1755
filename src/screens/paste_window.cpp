#include "screens/screens.hpp"

namespace kolvar {

void connect_paste(Program&) {}

}  // namespace kolvar
