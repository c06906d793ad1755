#include "app/scenario_words.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/numbers.hpp"

namespace kolvar::scenario {
namespace {

bool is_blank(char c) { return c == ' ' || c == '\t'; }

// A byte as two digits of a hexadecimal number: files that are no text.
char byte_at(std::string_view digits) {
    int byte = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
    if (error != std::errc() || digits.size() != 2 || end != digits.data() + 2 || byte < 0)
        throw Wrong{"two hexadecimal digits should stand behind \\x"};
    return static_cast<char>(static_cast<unsigned char>(byte));
}

// Reads a text whose opening quote is at `at`; leaves `at` behind the closing one.
std::string quoted_text(std::string_view line, std::size_t& at) {
    std::string out;
    for (++at; at < line.size(); ++at) {
        char c = line[at];
        if (c == '"') {
            ++at;
            return out;
        }
        if (c == '\\') {
            if (++at == line.size()) break;
            switch (line[at]) {
                case 'n':
                    c = '\n';
                    break;
                case 'r':
                    c = '\r';
                    break;
                case 't':
                    c = '\t';
                    break;
                case '"':
                    c = '"';
                    break;
                case '\\':
                    c = '\\';
                    break;
                case 'x':
                    c = byte_at(line.substr(at + 1, 2));
                    at += 2;
                    break;
                default:
                    throw Wrong{std::string("unknown sign \\") + line[at] + " in a text"};
            }
        }
        out += c;
    }
    throw Wrong{"a text without its closing quote"};
}

int whole_number(std::string_view digits, std::string_view word) {
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || number < 0)
        throw Wrong{"no index in " + std::string(word)};
    return number;
}

// Cuts "NAME(inner)" into its two parts; without brackets the second is empty.
std::pair<std::string_view, std::optional<std::string_view>> cut_brackets(std::string_view word) {
    const std::size_t open = word.find('(');
    if (open == std::string_view::npos) return {word, std::nullopt};
    if (word.back() != ')') throw Wrong{"no closing bracket in " + std::string(word)};
    return {word.substr(0, open), word.substr(open + 1, word.size() - open - 2)};
}

}  // namespace

std::vector<Word> split_words(std::string_view line) {
    std::vector<Word> words;
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && is_blank(line[at])) ++at;
        if (at == line.size() || (words.empty() && line[at] == '#')) return words;
        Word word;
        word.from = at;
        if (line[at] == '"') {
            word.quoted = true;
            word.text = quoted_text(line, at);
            if (at < line.size() && !is_blank(line[at])) throw Wrong{"no blank behind a text"};
        } else {
            int depth = 0;  // blanks within the brackets of an index part no words
            for (; at < line.size() && (depth > 0 || !is_blank(line[at])); ++at) {
                if (line[at] == '(') ++depth;
                if (line[at] == ')') --depth;
                if (!is_blank(line[at])) word.text += line[at];
            }
        }
        words.push_back(std::move(word));
    }
}

std::string Address::text() const {
    if (control.empty()) return window;
    return window + "." + control + (index < 0 ? std::string() : "(" + std::to_string(index) + ")");
}

bool is_address(std::string_view word) { return word.substr(0, word.find('(')).find('.') != std::string_view::npos; }

Address parse_address(std::string_view word) {
    Address address;
    const auto [name, inner] = cut_brackets(word);
    const std::size_t point = name.find('.');
    address.window = name.substr(0, point);
    if (point != std::string_view::npos) address.control = name.substr(point + 1);
    if (inner) address.index = whole_number(*inner, word);
    if (address.window.empty() || (point != std::string_view::npos && address.control.empty()) ||
        (inner && address.control.empty()))
        throw Wrong{"no address of a control: " + std::string(word)};
    return address;
}

FieldAddress parse_field(std::string_view word) {
    FieldAddress field;
    const auto [name, inner] = cut_brackets(word);
    field.name = name;
    if (!inner) return field;
    std::string_view rest = *inner;
    while (true) {
        const std::size_t comma = rest.find(',');
        const std::string_view part = rest.substr(0, comma);
        const std::size_t dots = part.find("..");
        IndexRange range;
        range.first = range.last = whole_number(part.substr(0, dots), word);
        if (dots != std::string_view::npos) {
            range.is_range = true;
            range.last = whole_number(part.substr(dots + 2), word);
        }
        field.indices.push_back(range);
        if (comma == std::string_view::npos) return field;
        rest.remove_prefix(comma + 1);
    }
}

const Word& Words::peek() const {
    if (at_end()) throw Wrong{"the line ends too early"};
    return words_[at_];
}

std::string Words::rest() const {
    if (at_end()) return {};
    std::string_view rest = std::string_view(line_).substr(words_[at_].from);
    while (!rest.empty() && is_blank(rest.back())) rest.remove_suffix(1);
    return std::string(rest);
}

const Word& Words::next(const char* what) {
    if (at_end()) throw Wrong{std::string("the line ends where ") + what + " should stand"};
    return words_[at_++];
}

std::string Words::word(const char* what) {
    const Word& word = next(what);
    if (word.quoted) throw Wrong{std::string("a text in quotes where ") + what + " should stand"};
    return word.text;
}

std::string Words::text(const char* what) {
    const Word& word = next(what);
    if (!word.quoted) throw Wrong{std::string(what) + " should stand in double quotes, not " + word.text};
    return word.text;
}

std::string Words::path() {
    const Word& word = next("a path");
    if (word.text.empty()) throw Wrong{"an empty path"};
    return word.text;
}

double Words::number(const char* what) {
    const std::string digits = word(what);
    const LeadingNumber read = leading_number(digits);
    if (!is_numeric(digits) || read.too_large) throw Wrong{digits + " where " + what + " should stand"};
    return read.number;
}

int Words::whole(const char* what) {
    const double read = number(what);
    if (read != std::floor(read) || std::abs(read) > std::numeric_limits<int>::max())
        throw Wrong{std::string(what) + " should be a whole number"};
    return static_cast<int>(read);
}

Value Words::value() {
    if (text_follows()) return text("a text");
    if (take("true")) return true;
    if (take("false")) return false;
    if (take("unset")) return {};
    return number("a number, a text in quotes, true, false or unset");
}

bool Words::take(std::string_view keyword) {
    if (at_end() || words_[at_].quoted || words_[at_].text != keyword) return false;
    ++at_;
    return true;
}

bool Words::number_follows() const { return !at_end() && !words_[at_].quoted && is_numeric(words_[at_].text); }

bool Words::text_follows() const { return !at_end() && words_[at_].quoted; }

void Words::finish() const {
    if (!at_end()) throw Wrong{"too many words from " + rest()};
}

}  // namespace kolvar::scenario
