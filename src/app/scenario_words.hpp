// Lines of a scenario: words, texts in double quotes, numbers, addresses of controls and names of the run state.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.hpp"

namespace kolvar::scenario {

// The scenario itself is wrong (exit status 2).
struct Wrong {
    std::string what;
};

// An expectation did not hold, or a control refused what was done to it (exit status 1).
struct Unmet {
    std::string expected, got;
};

struct Word {
    std::string text;
    bool quoted = false;
    std::size_t from = 0;  // where it begins in its line
};

// The words of a line; none for a blank line or a remark. Wrong for a text without its closing quote.
std::vector<Word> split_words(std::string_view line);

// WINDOW.CONTROL or WINDOW.CONTROL(3), or a window alone (control "").
struct Address {
    std::string window, control;
    int index = -1;
    [[nodiscard]] std::string text() const;
};
bool is_address(std::string_view word);  // has a point in front of any bracket
Address parse_address(std::string_view word);

// NAME, NAME(3), NAME(1..8), NAME(3,1..8), NAME(1..2,1..8).
struct IndexRange {
    int first = 0, last = 0;
    bool is_range = false;
};
struct FieldAddress {
    std::string name;
    std::vector<IndexRange> indices;
};
FieldAddress parse_field(std::string_view word);

// Hands out the words of a line one after the other.
class Words {
public:
    explicit Words(std::string_view line) : line_(line), words_(split_words(line)) {}

    [[nodiscard]] bool empty() const { return words_.empty(); }
    [[nodiscard]] bool at_end() const { return at_ == words_.size(); }
    [[nodiscard]] const Word& peek() const;  // Wrong at the end
    // The line from the next word on, as it was written.
    [[nodiscard]] std::string rest() const;

    std::string word(const char* what);  // not in quotes
    std::string text(const char* what);  // in quotes
    std::string path();                  // either way
    double number(const char* what);
    int whole(const char* what);
    Value value();                        // number, text, true, false, unset
    bool take(std::string_view keyword);  // passes over this word if it comes next
    [[nodiscard]] bool number_follows() const;
    [[nodiscard]] bool text_follows() const;
    void finish() const;  // Wrong when words are left

private:
    const Word& next(const char* what);

    std::string line_;
    std::vector<Word> words_;
    std::size_t at_ = 0;
};

}  // namespace kolvar::scenario
