// Colours as numbers of the 16-colour table or red-green-blue values.
#pragma once

#include <cstdint>

namespace kolvar {

struct Colour {
    std::uint32_t rgb = 0;  // 0xRRGGBB
    friend constexpr bool operator==(Colour, Colour) = default;
};

constexpr Colour rgb(int red, int green, int blue) {
    return Colour{(static_cast<std::uint32_t>(red) << 16U) | (static_cast<std::uint32_t>(green) << 8U) |
                  static_cast<std::uint32_t>(blue)};
}

// Entry 0..15 of the classic table.
constexpr Colour palette(int number) {
    constexpr std::uint32_t table[16] = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                         0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                         0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    return Colour{table[number & 15]};
}

// The number of the table entry with this value, -1 when there is none.
constexpr int palette_number(Colour colour) {
    for (int number = 0; number < 16; ++number)
        if (palette(number) == colour) return number;
    return -1;
}

inline constexpr Colour pale_green = rgb(192, 255, 192);   // rows of internal standards
inline constexpr Colour pale_yellow = rgb(255, 255, 225);  // outside the selection
inline constexpr Colour pale_cyan = rgb(192, 255, 255);    // the blank

}  // namespace kolvar
