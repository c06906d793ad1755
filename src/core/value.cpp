#include "core/value.hpp"

#include <limits>

#include "core/fault.hpp"
#include "core/numbers.hpp"

namespace kolvar {
namespace {

double number_of_text(const std::string& text) {
    if (text.empty()) return 0.0;
    if (!is_numeric(text)) fail(FaultKind::type, {}, 0, text);
    return Val(text);
}

}  // namespace

double Value::number() const {
    if (const auto* number = std::get_if<double>(&held_)) return *number;
    if (const auto* text = std::get_if<std::string>(&held_)) return number_of_text(*text);
    if (const auto* truth = std::get_if<bool>(&held_)) return *truth ? -1.0 : 0.0;
    return 0.0;
}

double Value::val() const {
    if (const auto* text = std::get_if<std::string>(&held_)) return Val(*text);
    return number();
}

std::string Value::text() const {
    if (const auto* number = std::get_if<double>(&held_)) return decimal(*number);
    if (const auto* text = std::get_if<std::string>(&held_)) return *text;
    if (const auto* truth = std::get_if<bool>(&held_)) return *truth ? "True" : "False";
    return {};
}

int Value::whole() const {
    const double rounded = round_half_even(number());
    if (rounded < std::numeric_limits<int>::min() || rounded > std::numeric_limits<int>::max())
        fail(FaultKind::overflow);
    return static_cast<int>(rounded);
}

std::string Format(const Value& value, std::string_view pattern) {
    if (value.is_text() || value.is_unset()) return value.text();
    return Format(value.number(), pattern);
}

double Cell::number() const {
    if (mark == Mark::dashes || mark == Mark::xx) fail(FaultKind::type, {}, 0, text());
    return val();
}

std::string Cell::text() const {
    switch (mark) {
        case Mark::number:
            return decimal(held);
        case Mark::dashes:
            return "---";
        case Mark::xx:
            return "XX";
        case Mark::unset:
        case Mark::empty:
            break;
    }
    return {};
}

Value Cell::value() const {
    if (is_number()) return held;
    if (mark == Mark::unset) return {};
    return text();
}

std::string Format(const Cell& cell, std::string_view pattern) {
    return cell.is_number() ? Format(cell.held, pattern) : cell.text();
}

}  // namespace kolvar
