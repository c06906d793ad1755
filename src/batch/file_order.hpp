// The order of a folder's data files: which names are data files, the serial number in a name, the order that follows,
// and the marks of the standards. Positions and lengths count characters, from 1.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kolvar {

// Where the serial number stands in a name.
enum class SerialPlace { none = -1, first = 0, middle = 1, end = 2 };

struct SerialRule {
    SerialPlace place = SerialPlace::first;
    int length = 0;  // characters of the number
    int start = 0;   // its first character, for the middle
};

// A serial number of this size or more takes no part in the order.
inline constexpr double SerialLimit = 100000000;

// The name ends in ".txt", ".csv" or ".xl", in small or in capital letters, or in the special ending. "" is the ending
// of every name.
bool is_data_file(std::string_view name, std::string_view special_ending);

// The characters of the name that the rule takes for the serial number; what lies outside the name is left out. At the
// end it counts on an ending of three letters. "" when the piece would begin before the name.
std::string_view serial_piece(std::string_view name, const SerialRule& rule);

// The piece as a number; nothing when it is none as a whole, or too large for a number.
std::optional<double> serial_number(std::string_view name, const SerialRule& rule);

// Indices, from 0, of the names that have a serial number below the limit, by ascending number; equals keep their
// order.
std::vector<std::size_t> order_of_measurement(std::span<const std::optional<double>> serials);

// The abbreviation stands in the name, beginning at a character from 1 to (length of the name - tail). Capital and
// small letters differ. "" stands everywhere.
bool abbreviation_in(std::string_view name, std::string_view abbreviation, std::size_t tail);

// Number of characters of a text in UTF-8.
std::size_t character_count(std::string_view text);

struct NamedStandard {
    std::string name, abbreviation;
};

// What a file name tells about its measurement.
struct Marks {
    bool standard = false;      // it holds the abbreviation that marks any standard
    std::string standard_name;  // of the last standard whose abbreviation it holds; "" for none
};

// Both searches end as many characters before the end of the name as the mark of any standard is long.
Marks marks_of(std::string_view name, std::string_view any_standard, std::span<const NamedStandard> standards);

}  // namespace kolvar
