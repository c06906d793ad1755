#include "screens/sequence.hpp"

#include "screens/screens.hpp"

namespace kolvar {

bool in_sequence(const RunState& rs) { return rs.SeqMode.is_bool() && rs.SeqMode.number() != 0; }

void connect_sequence(Program&) {}

}  // namespace kolvar
