// Numbers and their texts: reading, writing, rounding, and arithmetic that faults instead of making nan or infinity.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kolvar {

// What a text begins with, read as a number. It never throws.
struct LeadingNumber {
    double number = 0.0;     // 0 when there is none or it is too large
    std::size_t length = 0;  // characters taken, with the blanks before the number; 0 = no number
    bool too_large = false;  // beyond the range of a double
};
LeadingNumber leading_number(std::string_view text);

// Without the blanks, TAB, CR and LF at both ends.
std::string_view trimmed(std::string_view text);

// The longest number at the start of a text, after blanks, TAB, CR and LF; 0 when there is none. The point is the
// decimal sign. Throws Fault(overflow) for a number beyond the range of a double.
double Val(std::string_view text);

// True when the whole text, less blanks, TAB, CR and LF at both ends, is one number. "" is not.
bool is_numeric(std::string_view text);

// The shortest decimal that reads back to the same double, without exponent, trailing zeros or "-0".
std::string decimal(double number);

// Pictures a number: "0", "0.0", ... (fixed decimals) or "###,###,###" (grouped; "" for 0). Rounds the decimal form
// half away from zero; never "-0".
std::string Format(double number, std::string_view pattern);

// The decimal form rounded half to even at `decimals` places, as a number.
double round_half_even(double number, int decimals = 0);

// floor(x + 0.5) and floor(x * 1000 + 0.5) / 1000 in plain binary arithmetic.
double round_half_up(double number);
double round_to_thousandths(double number);

// Checked arithmetic: division_by_zero, overflow or domain instead of a value that is no number.
double quotient(double numerator, double denominator);
double root(double number);
double logarithm(double number);  // natural
double finite(double number);     // the number itself, or overflow

}  // namespace kolvar
