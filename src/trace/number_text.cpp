#include "trace/number_text.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "core/numbers.hpp"

namespace kolvar {
namespace {

constexpr std::array<double, 5> powers = {1, 10, 100, 1000, 10000};
constexpr std::array<const char*, 5> patterns = {"0", "0.0", "0.00", "0.000", "0.0000"};

void append_scaled(std::string& text, std::uint64_t scaled, bool negative, int decimals) {
    std::array<char, 32> buffer{};
    char* at = buffer.data() + buffer.size();
    for (int i = 0; i < decimals; ++i, scaled /= 10) *--at = static_cast<char>('0' + scaled % 10);
    if (decimals > 0) *--at = '.';
    do {
        *--at = static_cast<char>('0' + scaled % 10);
        scaled /= 10;
    } while (scaled > 0);
    if (negative) *--at = '-';
    text.append(at, static_cast<std::size_t>(buffer.data() + buffer.size() - at));
}

}  // namespace

void append_fixed(std::string& text, double number, int decimals) {
    const auto place = static_cast<std::size_t>(decimals);
    const double scaled = std::abs(number) * powers[place];
    // Up to here the product is right to better than a hundred-thousandth. What lies closer than that to a half is
    // rounded by its decimal form.
    if (scaled < 1e11) {
        const double whole = std::floor(scaled);
        const double part = scaled - whole;
        if (std::abs(part - 0.5) > 1e-4) {
            const std::uint64_t rounded = static_cast<std::uint64_t>(whole) + (part > 0.5 ? 1U : 0U);
            append_scaled(text, rounded, number < 0 && rounded > 0, decimals);
            return;
        }
    }
    text += Format(number, patterns[place]);
}

void append_fixed(std::string& text, const Cell& cell, int decimals) {
    if (cell.is_number()) {
        append_fixed(text, cell.held, decimals);
    } else {
        text += cell.text();
    }
}

void append_tenths(std::string& text, double tenths) {
    if (!(std::abs(tenths) < 1e15)) {
        text += decimal(tenths / 10);
        return;
    }
    const auto size = static_cast<std::uint64_t>(std::abs(tenths));
    const bool whole = size % 10 == 0;
    append_scaled(text, whole ? size / 10 : size, tenths < 0 && size > 0, whole ? 0 : 1);
}

}  // namespace kolvar
