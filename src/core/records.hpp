// Record files: comma-separated fields, texts in double quotes, a stream of fields that runs across lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/fault.hpp"
#include "core/value.hpp"

namespace kolvar {

// Reads fields one after the other. A quoted field goes to the closing quote and may hold commas and line ends; a bare
// one goes to the comma or line end and loses its blanks; #TRUE# is -1, #FALSE# 0; a bare numeric field is a number.
class RecordReader {
public:
    // `path` is for the fault texts alone.
    RecordReader(std::string text, std::string path);

    // No field is left: trailing empty lines are passed over.
    [[nodiscard]] bool at_end();
    // The rest of the current line as it stands. Fault(end_of_file) at the end.
    std::string line();
    // The next field. Fault(end_of_file) when none is left or the file ends inside a quoted field.
    Value field();
    std::string text_field();      // the field as a text
    std::string verbatim_field();  // the text as it stands: the name 2024.10 is no number
    double number_field();         // the field by its number (leading-number rule)

private:
    bool begin_field();
    Value quoted_field();
    Value bare_field();
    std::string_view bare_text();
    void to_field_end();
    void end_field();
    void end_line();
    [[noreturn]] void fail_here(FaultKind kind, std::string offending = {}) const;

    std::string text_;
    std::string path_;
    std::size_t at_ = 0;
    std::size_t end_ = 0;  // behind the last character that is neither blank nor line end
    int line_ = 1;
    bool after_comma_ = false;  // a field is owed, even an empty one
};

// Writes fields: texts in double quotes (a double quote inside becomes an apostrophe), numbers in decimal form,
// booleans as #TRUE# and #FALSE#, "" as two quotes, unset as nothing; fields joined by a comma, each record ends in
// CR LF.
class RecordWriter {
public:
    RecordWriter& field(const Value& value);
    void end_record();
    [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
    std::string bytes_;
    bool first_ = true;
};

}  // namespace kolvar
