#include "core/elements.hpp"

#include <algorithm>
#include <array>

namespace kolvar {

namespace {

constexpr std::array<std::string_view, last_element> symbols = {
    "H",  "He", "Li", "Be", "B",  "C",  "N",  "O",  "F",  "Ne", "Na", "Mg", "Al", "Si", "P",  "S",
    "Cl", "Ar", "K",  "Ca", "Sc", "Ti", "V",  "Cr", "Mn", "Fe", "Co", "Ni", "Cu", "Zn", "Ga", "Ge",
    "As", "Se", "Br", "Kr", "Rb", "Sr", "Y",  "Zr", "Nb", "Mo", "Tc", "Ru", "Rh", "Pd", "Ag", "Cd",
    "In", "Sn", "Sb", "Te", "I",  "Xe", "Cs", "Ba", "La", "Ce", "Pr", "Nd", "Pm", "Sm", "Eu", "Gd",
    "Tb", "Dy", "Ho", "Er", "Tm", "Yb", "Lu", "Hf", "Ta", "W",  "Re", "Os", "Ir", "Pt", "Au", "Hg",
    "Tl", "Pb", "Bi", "Po", "At", "Rn", "Fr", "Ra", "Ac", "Th", "Pa", "U",  "Np", "Pu", "Am", "Cm"};

}  // namespace

std::string_view element_symbol(int atomic_number) {
    if (atomic_number < 1 || atomic_number > last_element) return {};
    return symbols[static_cast<std::size_t>(atomic_number - 1)];
}

int atomic_number_of(std::string_view symbol) {
    const auto* const found = std::find(symbols.begin(), symbols.end(), symbol);
    return found == symbols.end() ? 0 : static_cast<int>(found - symbols.begin()) + 1;
}

}  // namespace kolvar
