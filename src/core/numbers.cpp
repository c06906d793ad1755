#include "core/numbers.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "core/fault.hpp"

namespace kolvar {
namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Out of range is both too large and too small: the place of the first digit that counts, with the exponent, tells
// which. `first` stands behind the sign.
bool is_too_large(const char* first, const char* last) {
    std::int64_t before_point = 0;
    std::int64_t zeros_behind_point = 0;
    bool point = false;
    bool counts = false;
    const char* at = first;
    for (; at != last && (is_digit(*at) || *at == '.'); ++at) {
        if (*at == '.') {
            point = true;
        } else if (counts || *at != '0') {
            counts = true;
            if (!point) ++before_point;
        } else if (point) {
            ++zeros_behind_point;
        }
    }
    std::int64_t exponent = 0;
    if (at != last) {
        ++at;
        const bool negative = *at == '-';
        if (*at == '-' || *at == '+') ++at;
        for (; at != last && exponent < 1'000'000'000'000; ++at) exponent = exponent * 10 + (*at - '0');
        if (negative) exponent = -exponent;
    }
    return before_point - zeros_behind_point + exponent > 0;
}

// The digits of the shortest decimal that reads back to the number: 0.d0d1d2... times 10 to the power `point`.
struct Digits {
    std::array<char, 24> digit{};
    int count = 0;
    int point = 0;
    bool negative = false;

    [[nodiscard]] char at(int i) const { return i >= 0 && i < count ? digit[static_cast<std::size_t>(i)] : '0'; }
};

Digits digits_of(double number) {
    if (!std::isfinite(number)) fail(FaultKind::overflow);
    Digits out;
    if (number == 0.0) return out;
    std::array<char, 32> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::scientific);
    const char* at = buffer.data();
    if (*at == '-') {
        out.negative = true;
        ++at;
    }
    for (; *at != 'e'; ++at) {
        if (*at != '.') out.digit[static_cast<std::size_t>(out.count++)] = *at;
    }
    ++at;
    if (*at == '+') ++at;
    int exponent = 0;
    std::from_chars(at, written.ptr, exponent);
    out.point = exponent + 1;
    return out;
}

enum class Half { away, even };

// Cuts the digits behind `decimals` places. Digits that are all gone are the number zero, which has no sign.
void round_digits(Digits& number, int decimals, Half half) {
    const int keep = number.point + decimals;
    if (number.count == 0 || keep >= number.count) return;
    bool up = false;
    if (keep >= 0) {
        const char first_cut = number.at(keep);
        up = first_cut >= '5';
        const bool tie = first_cut == '5' && keep + 1 == number.count;
        if (tie && half == Half::even) up = keep > 0 && (number.at(keep - 1) - '0') % 2 == 1;
    }
    number.count = std::max(keep, 0);
    if (up) {
        int i = number.count - 1;
        while (i >= 0 && number.digit[static_cast<std::size_t>(i)] == '9')
            number.digit[static_cast<std::size_t>(i--)] = '0';
        if (i >= 0) {
            ++number.digit[static_cast<std::size_t>(i)];
        } else {
            number.digit[0] = '1';
            number.count = std::max(number.count, 1);
            ++number.point;
        }
    }
    while (number.count > 0 && number.at(number.count - 1) == '0') --number.count;
    if (number.count == 0) {
        number.point = 0;
        number.negative = false;
    }
}

// A picture of a number: digits that are always shown ("0"), shown if needed ("#"), and whether thousands are grouped.
struct Picture {
    int whole_digits = 0;
    int least_decimals = 0;
    int most_decimals = 0;
    bool grouped = false;
};

Picture picture_of(std::string_view pattern) {
    Picture out;
    bool behind_point = false;
    for (const char c : pattern) {
        if (c == '.') {
            behind_point = true;
        } else if (c == ',') {
            out.grouped = true;
        } else if (behind_point) {
            ++out.most_decimals;
            if (c == '0') out.least_decimals = out.most_decimals;
        } else if (c == '0') {
            ++out.whole_digits;
        }
    }
    return out;
}

std::string written(const Digits& number, const Picture& picture) {
    const int whole = std::max(number.point, picture.whole_digits);
    const int decimals = std::clamp(number.count - number.point, picture.least_decimals,
                                    std::max(picture.most_decimals, picture.least_decimals));
    std::string out;
    out.reserve(static_cast<std::size_t>(std::max(whole, 0)) * 4 / 3 + static_cast<std::size_t>(decimals) + 3);
    if (number.negative) out += '-';
    for (int left = whole; left > 0; --left) {
        out += number.at(number.point - left);
        if (picture.grouped && left > 1 && left % 3 == 1) out += ',';
    }
    if (decimals > 0) {
        out += '.';
        for (int i = 0; i < decimals; ++i) out += number.at(number.point + i);
    }
    return out;
}

}  // namespace

LeadingNumber leading_number(std::string_view text) {
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    const char* at = begin;
    while (at != end && is_blank(*at)) ++at;
    if (at == end) return {};
    const bool negative = *at == '-';
    if (negative || *at == '+') ++at;
    // from_chars would also take a second sign and the words for infinity and no number.
    if (at == end || !(is_digit(*at) || (*at == '.' && at + 1 != end && is_digit(at[1])))) return {};
    double number = 0.0;
    const auto read = std::from_chars(at, end, number);
    LeadingNumber out;
    out.length = static_cast<std::size_t>(read.ptr - begin);
    if (read.ec != std::errc() || !std::isfinite(number)) {
        out.too_large = is_too_large(at, read.ptr);
        return out;
    }
    out.number = negative ? 0.0 - number : number;
    return out;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
    return text;
}

double Val(std::string_view text) {
    const LeadingNumber read = leading_number(text);
    if (read.too_large) fail(FaultKind::overflow, {}, 0, std::string(text.substr(0, 80)));
    return read.number;
}

bool is_numeric(std::string_view text) {
    const std::string_view core = trimmed(text);
    return !core.empty() && leading_number(core).length == core.size();
}

std::string decimal(double number) {
    // Whole numbers of up to 15 digits are written as such: the shortest decimal has all of their digits.
    if (std::abs(number) < 1e15) {
        const auto whole = static_cast<std::int64_t>(number);
        if (static_cast<double>(whole) == number) {
            std::array<char, 24> buffer{};
            const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), whole);
            return {buffer.data(), end.ptr};
        }
    }
    const Digits digits = digits_of(number);
    return written(digits, {.whole_digits = 1, .most_decimals = std::max(digits.count - digits.point, 0)});
}

std::string Format(double number, std::string_view pattern) {
    const Picture picture = picture_of(pattern);
    Digits digits = digits_of(number);
    round_digits(digits, picture.most_decimals, Half::away);
    return written(digits, picture);
}

double round_half_even(double number, int decimals) {
    // A whole number and a half is exact in binary too, so the decimal form rounds alike.
    if (decimals == 0) return std::nearbyint(finite(number)) + 0.0;
    Digits digits = digits_of(number);
    round_digits(digits, decimals, Half::even);
    return Val(written(digits, {.whole_digits = 1, .most_decimals = decimals}));
}

double round_half_up(double number) { return std::floor(number + 0.5); }

double round_to_thousandths(double number) { return std::floor(number * 1000 + 0.5) / 1000; }

double quotient(double numerator, double denominator) {
    if (denominator == 0.0) fail(FaultKind::division_by_zero);
    return finite(numerator / denominator);
}

double root(double number) {
    if (!(number >= 0.0)) fail(FaultKind::domain);
    return finite(std::sqrt(number));
}

double logarithm(double number) {
    if (!(number > 0.0)) fail(FaultKind::domain);
    return finite(std::log(number));
}

double finite(double number) {
    if (!std::isfinite(number)) fail(FaultKind::overflow);
    return number;
}

}  // namespace kolvar
