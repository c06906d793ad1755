#include "import/paste.hpp"

namespace kolvar {

void PasteData(Context& context) { const Running running(context.rs, "PasteData"); }

}  // namespace kolvar
