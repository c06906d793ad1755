// The chemical elements from hydrogen to curium by their atomic numbers.
#pragma once

#include <string_view>

namespace kolvar {

inline constexpr int last_element = 96;  // Cm

// The symbol of an element, 1..96; "" for any other number.
std::string_view element_symbol(int atomic_number);
// The atomic number of a symbol in exactly its spelling; 0 when there is none.
int atomic_number_of(std::string_view symbol);

}  // namespace kolvar
