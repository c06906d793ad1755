// Every field of the run state by its name: what the scenario runner prints, expects and puts.
#pragma once

#include <string>
#include <vector>

#include "core/run_state.hpp"

namespace kolvar {

struct FieldShape {
    bool known = false;
    int dimensions = 0;        // 0 scalar, 1 table by one index, 2 by column and row
    int last1 = 0, last2 = 0;  // highest indices
};

FieldShape field_shape(const std::string& name);
// Fault(index) beyond the limits; the name must be known.
Value field_get(const RunState& rs, const std::string& name, int i = 0, int j = 0);
// Fault(type) when the value does not fit the field (a text into a counter).
void field_put(RunState& rs, const std::string& name, const Value& value, int i = 0, int j = 0);
std::vector<std::string> field_names();

}  // namespace kolvar
