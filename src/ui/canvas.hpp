// A plot as the list of drawing commands that make it, in the plot's own units (twips).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ui/colour.hpp"

namespace kolvar {

struct DrawCommand {
    enum class Kind : std::uint8_t { clear, fill_rect, line, circle, line_width, show_label, hide_label };
    Kind kind = Kind::clear;
    Colour colour;
    int number = 0;                         // line width, or the index of the label text in Canvas::labels()
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // circle: centre and, in x2, the radius; label: left, top
};

class Canvas {
public:
    struct LabelText {
        std::string name, text;
    };

    // Erases the plot: the list starts anew, and the plot counts one redraw more.
    void Clear();
    void FillRect(double x1, double y1, double x2, double y2, Colour colour);
    void Line(double x1, double y1, double x2, double y2, Colour colour = palette(0));
    void Circle(double x, double y, double radius, Colour colour);
    void SetLineWidth(int pixels);
    // These two only record; the label itself is a control of the window (see Form::show_label).
    void note_label(const std::string& name, const std::string& text, double left, double top);
    void note_hidden_label(const std::string& name);

    [[nodiscard]] const std::vector<DrawCommand>& commands() const { return commands_; }
    [[nodiscard]] const std::vector<LabelText>& labels() const { return labels_; }
    [[nodiscard]] int draws() const { return draws_; }
    // Grows with every change of the list; the painter renders anew when it differs.
    [[nodiscard]] std::uint64_t revision() const { return revision_; }

private:
    std::vector<DrawCommand> commands_;
    std::vector<LabelText> labels_;
    int draws_ = 0;
    std::uint64_t revision_ = 0;
};

}  // namespace kolvar
