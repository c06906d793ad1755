// The lines of the settings file in their order: what reader and writer walk.
#pragma once

#include <string>
#include <vector>

#include "core/run_state.hpp"

namespace kolvar {

struct SettingsLine {
    enum class Kind {
        method,     // the path of the program, a whole number
        scalar,     // one key
        element,    // one element of a table
        pair,       // an element of each of two tables and no key text
        separator,  // "" and a text
        reserve,    // always 0
    };

    Kind kind = Kind::scalar;
    std::string key;                                // the text behind the value; never looked at when the file is read
    Value SettingsKeys::*scalar = nullptr;          // of a scalar
    Table1<Value> SettingsKeys::*table = nullptr;   // of an element and the first half of a pair
    Table1<Value> SettingsKeys::*second = nullptr;  // the second half of a pair
    int index = 0;                                  // in the tables
};

inline constexpr int settings_line_count = 183;

std::vector<SettingsLine> settings_lines();

}  // namespace kolvar
