#include "batch/file_order.hpp"

#include <algorithm>

#include "core/numbers.hpp"

namespace kolvar {

namespace {

bool begins_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

// `count` characters of a text from character `from` on.
std::string_view characters(std::string_view text, int from, int count) {
    if (from < 1 || count < 1) return {};
    std::size_t first = text.size(), behind = text.size();
    int at = 0;
    for (std::size_t byte = 0; byte < text.size(); ++byte) {
        if (!begins_character(text[byte])) continue;
        ++at;
        if (at == from) first = byte;
        if (at - from == count) {
            behind = byte;
            break;
        }
    }
    return text.substr(first, behind - first);
}

}  // namespace

std::size_t character_count(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_character));
}

bool is_data_file(std::string_view name, std::string_view special_ending) {
    for (const std::string_view ending : {".txt", ".TXT", ".csv", ".CSV", ".xl", ".XL"})
        if (name.ends_with(ending)) return true;
    return name.ends_with(special_ending);
}

std::string_view serial_piece(std::string_view name, const SerialRule& rule) {
    constexpr int point_and_ending = 4;
    switch (rule.place) {
        case SerialPlace::first:
            return characters(name, 1, rule.length);
        case SerialPlace::middle:
            return characters(name, rule.start, rule.length);
        case SerialPlace::end:
            return characters(name, static_cast<int>(character_count(name)) - point_and_ending + 1 - rule.length,
                              rule.length);
        case SerialPlace::none:
            break;
    }
    return {};
}

std::optional<double> serial_number(std::string_view name, const SerialRule& rule) {
    const std::string_view piece = serial_piece(name, rule);
    if (!is_numeric(piece)) return std::nullopt;
    const LeadingNumber found = leading_number(piece);
    if (found.too_large) return std::nullopt;
    return found.number;
}

std::vector<std::size_t> order_of_measurement(std::span<const std::optional<double>> serials) {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < serials.size(); ++i)
        if (serials[i] && *serials[i] < SerialLimit) order.push_back(i);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return *serials[a] < *serials[b]; });
    return order;
}

bool abbreviation_in(std::string_view name, std::string_view abbreviation, std::size_t tail) {
    const std::size_t length = character_count(name);
    std::size_t at = 0;
    for (std::size_t byte = 0; byte < name.size(); ++byte) {
        if (!begins_character(name[byte])) continue;
        if (++at + tail > length) return false;
        if (name.substr(byte).starts_with(abbreviation)) return true;
    }
    return false;
}

Marks marks_of(std::string_view name, std::string_view any_standard, std::span<const NamedStandard> standards) {
    const std::size_t tail = character_count(any_standard);
    Marks marks;
    marks.standard = abbreviation_in(name, any_standard, tail);
    for (const NamedStandard& standard : standards)
        if (abbreviation_in(name, standard.abbreviation, tail)) marks.standard_name = standard.name;
    return marks;
}

}  // namespace kolvar
