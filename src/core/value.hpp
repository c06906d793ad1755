// The kinds of cells of the run state: free values, cells that hold a number or a marker, limits that may be unmarked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace kolvar {

// A scalar that can hold anything: unset, number, text or boolean.
class Value {
public:
    Value() = default;
    Value(double number) : held_(number) {}
    Value(int number) : held_(static_cast<double>(number)) {}
    Value(bool truth) : held_(truth) {}
    Value(std::string text) : held_(std::move(text)) {}
    Value(const char* text) : held_(std::string(text)) {}

    [[nodiscard]] bool is_unset() const { return held_.index() == 0; }
    [[nodiscard]] bool is_number() const { return held_.index() == 1; }
    [[nodiscard]] bool is_text() const { return held_.index() == 2; }
    [[nodiscard]] bool is_bool() const { return held_.index() == 3; }

    // As arithmetic reads it: unset and "" are 0, true is -1, a text must be numeric as a whole or Fault(type).
    [[nodiscard]] double number() const;
    // By the leading-number rule; never a type fault.
    [[nodiscard]] double val() const;
    // As a text: unset is "", a number its decimal form, a boolean "True" or "False".
    [[nodiscard]] std::string text() const;
    // Rounded half to even, for settings that are used as an option number.
    [[nodiscard]] int whole() const;

    // Same kind and same content; unset, "" and 0 are told apart.
    friend bool operator==(const Value&, const Value&) = default;

private:
    std::variant<std::monostate, double, std::string, bool> held_;
};

// Value formatted by a pattern; a text passes through unchanged, unset gives "".
std::string Format(const Value& value, std::string_view pattern);

// What a numeric cell holds when it holds no number.
enum class Mark : std::uint8_t { unset, number, empty, dashes, xx };

// A cell of a result or reference table: a number or one of the markers "", "---", "XX".
struct Cell {
    double held = 0.0;
    Mark mark = Mark::unset;

    Cell() = default;
    Cell(double number) : held(number), mark(Mark::number) {}
    Cell(Mark marker) : mark(marker) {}

    [[nodiscard]] bool is_number() const { return mark == Mark::number; }
    // "" as a test of the text: true for "" and for a cell never set.
    [[nodiscard]] bool is_empty() const { return mark == Mark::empty || mark == Mark::unset; }
    [[nodiscard]] bool is_dashes() const { return mark == Mark::dashes; }
    // As arithmetic reads it: unset and "" are 0, "---" and "XX" are Fault(type).
    [[nodiscard]] double number() const;
    // By the leading-number rule: every marker is 0.
    [[nodiscard]] double val() const { return is_number() ? held : 0.0; }
    // A marker is never above, below or equal to a number.
    [[nodiscard]] bool above(double limit) const { return is_number() && held > limit; }
    [[nodiscard]] std::string text() const;
    [[nodiscard]] Value value() const;
    friend bool operator==(const Cell&, const Cell&) = default;
};
static_assert(sizeof(Cell) == 16);

std::string Format(const Cell& cell, std::string_view pattern);

// A slice limit or count that may be unmarked ("" to the user).
class Limit {
public:
    Limit() = default;
    Limit(int number) : held_(number) {}
    [[nodiscard]] bool is_set() const { return held_.has_value(); }
    [[nodiscard]] int val() const { return held_.value_or(0); }  // unmarked reads as 0
    [[nodiscard]] std::string text() const { return held_ ? std::to_string(*held_) : std::string(); }
    void clear() { held_.reset(); }
    friend bool operator==(const Limit&, const Limit&) = default;

private:
    std::optional<int> held_;
};

}  // namespace kolvar
