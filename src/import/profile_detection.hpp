// Finds out where heads, first time slice and first isotope stand in the table of an instrument.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "import/table_reader.hpp"

namespace kolvar {

// How much a head looks like the name of an isotope.
enum class IsotopeLikeness : std::uint8_t {
    none,
    form,     // one or two letters and a number up to 999, either order: "A1", "202p"
    isotope,  // a chemical symbol and a mass that it can have, either order: "Pb206", "206Pb", "U238 -> 254"
};
IsotopeLikeness isotope_likeness(std::string_view head);

// Head line, data line and first column of a table in these lines; nothing where no line of isotope names stands before
// at least two lines of numbers.
std::optional<TableProfile> detect_profile(const std::vector<std::string>& lines, char separator);

}  // namespace kolvar
