// Numbers as texts for tables of many cells: the same texts as Format and decimal, without their detours.
#pragma once

#include <string>

#include "core/value.hpp"

namespace kolvar {

// Appends a number with a fixed count of decimals (0..4), rounded as Format does by "0.00".
void append_fixed(std::string& text, double number, int decimals);
// The same for a cell; a marker stands as it is.
void append_fixed(std::string& text, const Cell& cell, int decimals);
// Appends a count of tenths as a number in decimal form: -29 is "-2.9", 30 is "3". Whole numbers only.
void append_tenths(std::string& text, double tenths);

}  // namespace kolvar
