// The plain reading of a raw table: line by line, character by character, a text for each field.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "core/files.hpp"
#include "core/numbers.hpp"
#include "core/run_state.hpp"
#include "import/table_reader.hpp"

namespace kolvar::plain {

inline void read_table(RunState& rs, const std::string& path, const TableProfile& profile) {
    rs.PrevSlices = rs.nSlices;
    rs.nIso = 1;
    rs.nSlices = 1;
    const std::string text = to_text(read_bytes(path));
    LineReader lines(text);
    std::string token;
    for (int k = 1; k < profile.head_line; ++k) lines.next();
    for (const char c : lines.next()) {
        if (c == profile.separator) {
            rs.IsoName(rs.nIso++) = token;
            token.clear();
        } else {
            token += c;
        }
    }
    rs.IsoName(rs.nIso) = token;
    token.clear();
    for (int k = profile.head_line + 1; k < profile.data_line; ++k) lines.next();
    while (!lines.at_end()) {
        const std::string line(lines.next());
        if (line.empty() && profile.skips_empty_lines) continue;
        int column = 1;
        for (const char c : line) {
            if (c == profile.separator) {
                rs.Sig(column++, rs.nSlices) = Val(token);
                token.clear();
            } else {
                token += c;
            }
        }
        rs.Sig(column, rs.nSlices++) = Val(token);
        token.clear();
    }
    --rs.nSlices;
    const int first = profile.first_column;
    if (first <= 1) return;
    for (int i = 1; i <= rs.nIso; ++i)
        rs.IsoName(i) = first + i - 1 <= MaxIso ? rs.IsoName(first + i - 1) : std::string();
    for (int j = 1; j <= rs.nSlices; ++j)
        for (int i = 1; i <= rs.nIso - (first - 1); ++i) rs.Sig(i, j) = rs.Sig(first + i - 1, j);
    rs.nIso -= first - 1;
}

// A table as a quadrupole's software writes it: a time and counts of all sizes, half of them with decimals. The numbers
// come from the generator itself and not from a distribution of the library: they are the same everywhere.
inline std::string table_text(int columns, int slices, char separator) {
    std::mt19937 random(20041219);
    const auto below = [&](std::uint32_t limit) { return static_cast<std::uint32_t>(random() % limit); };
    std::string out = "Time";
    for (int i = 2; i <= columns; ++i) out += separator + ("E" + std::to_string(i));
    out += "\r\n";
    for (int j = 1; j <= slices; ++j) {
        out += decimal(j * 0.531);
        for (int i = 2; i <= columns; ++i) {
            const std::uint32_t counts = below(2) == 0 ? below(100) : below(100'000'000);
            out += separator;
            out += decimal(below(2) == 0 ? counts : counts / 100.0);
        }
        out += "\r\n";
    }
    return out;
}

}  // namespace kolvar::plain
