// The drawing commands of a plot as texts, so that a whole drawing can be compared at once.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "ui/control.hpp"

namespace kolvar::test {

inline std::string colour_name(Colour colour) {
    if (colour == pale_yellow) return "yellow";
    if (colour == pale_cyan) return "cyan";
    return std::to_string(palette_number(colour));
}

// "line COLOUR x1 y1 x2 y2", "fill COLOUR x1 y1 x2 y2", "circle COLOUR x y radius", "width n", "clear"; twips to one
// decimal. Labels are left out: they are controls of the window and are looked at there.
inline std::vector<std::string> drawn_list(const Picture& plot) {
    using Kind = DrawCommand::Kind;
    const auto number = [](double value) {
        char text[40];
        std::snprintf(text, sizeof text, " %.1f", value + 0.0);
        const std::string shown = text;
        return shown == " -0.0" ? std::string(" 0.0") : shown;
    };
    std::vector<std::string> list;
    for (const DrawCommand& c : plot.canvas.commands()) {
        const std::string places = number(c.x1) + number(c.y1) + number(c.x2);
        if (c.kind == Kind::clear) list.emplace_back("clear");
        if (c.kind == Kind::line_width) list.push_back("width " + std::to_string(c.number));
        if (c.kind == Kind::circle) list.push_back("circle " + colour_name(c.colour) + places);
        if (c.kind == Kind::line) list.push_back("line " + colour_name(c.colour) + places + number(c.y2));
        if (c.kind == Kind::fill_rect) list.push_back("fill " + colour_name(c.colour) + places + number(c.y2));
    }
    return list;
}

using Drawn = std::vector<std::string>;

}  // namespace kolvar::test
