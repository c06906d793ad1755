#include "core/records.hpp"

#include <algorithm>

#include "core/numbers.hpp"

namespace kolvar {
namespace {

bool is_blank(char c) { return c == ' ' || c == '\t'; }
bool is_line_end(char c) { return c == '\r' || c == '\n'; }

}  // namespace

RecordReader::RecordReader(std::string text, std::string path) : text_(std::move(text)), path_(std::move(path)) {
    end_ = text_.size();
    while (end_ > 0 && (is_blank(text_[end_ - 1]) || is_line_end(text_[end_ - 1]))) --end_;
}

void RecordReader::fail_here(FaultKind kind, std::string offending) const {
    fail(kind, path_, line_, std::move(offending));
}

bool RecordReader::at_end() { return at_ >= end_ && !after_comma_; }

void RecordReader::end_line() {
    if (text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n') ++at_;
    ++at_;
    ++line_;
}

std::string RecordReader::line() {
    if (at_ >= text_.size()) fail_here(FaultKind::end_of_file);
    const std::size_t from = at_;
    while (at_ < text_.size() && !is_line_end(text_[at_])) ++at_;
    std::string out = text_.substr(from, at_ - from);
    if (at_ < text_.size()) end_line();
    after_comma_ = false;
    return out;
}

void RecordReader::to_field_end() {
    while (at_ < text_.size() && text_[at_] != ',' && !is_line_end(text_[at_])) ++at_;
}

void RecordReader::end_field() {
    if (at_ >= text_.size()) return;
    if (text_[at_] == ',') {
        ++at_;
        after_comma_ = true;
    } else {
        end_line();
    }
}

// True when the next field is quoted.
bool RecordReader::begin_field() {
    if (at_end()) fail_here(FaultKind::end_of_file);
    after_comma_ = false;
    while (at_ < text_.size() && is_blank(text_[at_])) ++at_;
    return at_ < text_.size() && text_[at_] == '"';
}

Value RecordReader::field() { return begin_field() ? quoted_field() : bare_field(); }

std::string RecordReader::verbatim_field() {
    if (begin_field()) return quoted_field().text();
    std::string out(bare_text());
    end_field();
    return out;
}

Value RecordReader::quoted_field() {
    const std::size_t from = ++at_;
    const std::size_t closing = text_.find('"', from);
    if (closing == std::string::npos) fail_here(FaultKind::end_of_file, text_.substr(from, 80));
    while (at_ < closing) {
        if (is_line_end(text_[at_])) {
            end_line();
        } else {
            ++at_;
        }
    }
    // Whatever stands between the closing quote and the comma belongs to no field.
    at_ = closing + 1;
    to_field_end();
    Value out(text_.substr(from, closing - from));
    end_field();
    return out;
}

std::string_view RecordReader::bare_text() {
    const std::size_t from = at_;
    to_field_end();
    return trimmed(std::string_view(text_).substr(from, at_ - from));
}

Value RecordReader::bare_field() {
    const std::string_view held = bare_text();
    Value out;
    if (held == "#TRUE#") {
        out = -1;
    } else if (held == "#FALSE#") {
        out = 0;
    } else if (!held.empty()) {
        const LeadingNumber read = leading_number(held);
        if (read.length != held.size()) {
            out = std::string(held);
        } else if (read.too_large) {
            fail_here(FaultKind::overflow, std::string(held.substr(0, 80)));
        } else {
            out = read.number;
        }
    }
    end_field();
    return out;
}

std::string RecordReader::text_field() { return field().text(); }

double RecordReader::number_field() {
    const int line = line_;
    const Value held = field();
    if (!held.is_text()) return held.number();
    const std::string text = held.text();
    const LeadingNumber read = leading_number(text);
    if (read.too_large) fail(FaultKind::overflow, path_, line, text.substr(0, 80));
    return read.number;
}

RecordWriter& RecordWriter::field(const Value& value) {
    if (!first_) bytes_ += ',';
    first_ = false;
    if (value.is_text()) {
        // A text longer than all before it, as a whole result table, with its two quotes and the line end.
        if (value.text().size() > bytes_.capacity()) bytes_.reserve(bytes_.size() + value.text().size() + 4);
        bytes_ += '"';
        const std::size_t start = bytes_.size();
        bytes_ += value.text();
        std::replace(bytes_.begin() + static_cast<std::ptrdiff_t>(start), bytes_.end(), '"', '\'');
        bytes_ += '"';
    } else if (value.is_bool()) {
        bytes_ += value.number() != 0 ? "#TRUE#" : "#FALSE#";
    } else if (!value.is_unset()) {
        bytes_ += decimal(value.number());
    }
    return *this;
}

void RecordWriter::end_record() {
    bytes_ += "\r\n";
    first_ = true;
}

}  // namespace kolvar
