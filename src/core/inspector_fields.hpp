// One entry for each field of the run state: its name, its shape, and how it is read and written as a free value.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <type_traits>

#include "core/inspector.hpp"

namespace kolvar::inspection {

struct FieldEntry {
    const char* name;
    FieldShape shape;
    Value (*get)(const RunState& rs, int i, int j);
    void (*put)(RunState& rs, const Value& value, int i, int j);
};

// What a cell of each kind shows, and what becomes of it when a value is put. Unset empties the cell; Fault(type) for
// a text that is no number in a cell that can't hold it.
Value shown(int cell);
Value shown(double cell);
Value shown(bool cell);
Value shown(std::uint8_t cell);
Value shown(const std::string& cell);
Value shown(const Limit& cell);
Value shown(const Cell& cell);
Value shown(const Value& cell);
void take(int& cell, const Value& value);
void take(double& cell, const Value& value);
void take(bool& cell, const Value& value);
void take(std::uint8_t& cell, const Value& value);
void take(std::string& cell, const Value& value);
void take(Limit& cell, const Value& value);
void take(Cell& cell, const Value& value);
void take(Value& cell, const Value& value);

template <auto Member>
constexpr FieldEntry scalar(const char* name) {
    return {name,
            {true, 0, 0, 0},
            [](const RunState& rs, int, int) { return shown(rs.*Member); },
            [](RunState& rs, const Value& value, int, int) { take(rs.*Member, value); }};
}

template <auto Member>
constexpr FieldEntry list(const char* name, int last) {
    return {name,
            {true, 1, last, 0},
            [](const RunState& rs, int i, int) { return shown((rs.*Member)(i)); },
            [](RunState& rs, const Value& value, int i, int) { take((rs.*Member)(i), value); }};
}

template <auto Member>
constexpr FieldEntry table(const char* name, int last_column, int last_row) {
    return {name,
            {true, 2, last_column, last_row},
            [](const RunState& rs, int i, int j) { return shown((rs.*Member)(i, j)); },
            [](RunState& rs, const Value& value, int i, int j) { take((rs.*Member)(i, j), value); }};
}

std::span<const FieldEntry> measurement_fields();
std::span<const FieldEntry> interval_fields();
std::span<const FieldEntry> reference_fields();
std::span<const FieldEntry> settings_fields();
std::span<const FieldEntry> default_fields();
std::span<const FieldEntry> result_fields();
std::span<const FieldEntry> upb_fields();
std::span<const FieldEntry> sequence_fields();

}  // namespace kolvar::inspection

// A field under its own name; the limits of a table are those of its declaration.
#define KOLVAR_SCALAR(name) ::kolvar::inspection::scalar<&RunState::name>(#name)
#define KOLVAR_LIST(name, last) ::kolvar::inspection::list<&RunState::name>(#name, last)
#define KOLVAR_TABLE(name, columns, rows) ::kolvar::inspection::table<&RunState::name>(#name, columns, rows)
