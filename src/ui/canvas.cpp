#include "ui/canvas.hpp"

namespace kolvar {

void Canvas::Clear() {
    commands_.clear();
    labels_.clear();
    commands_.push_back({});
    ++draws_;
    ++revision_;
}

void Canvas::FillRect(double x1, double y1, double x2, double y2, Colour colour) {
    commands_.push_back({DrawCommand::Kind::fill_rect, colour, 0, x1, y1, x2, y2});
    ++revision_;
}

void Canvas::Line(double x1, double y1, double x2, double y2, Colour colour) {
    commands_.push_back({DrawCommand::Kind::line, colour, 0, x1, y1, x2, y2});
    ++revision_;
}

void Canvas::Circle(double x, double y, double radius, Colour colour) {
    commands_.push_back({DrawCommand::Kind::circle, colour, 0, x, y, radius, 0});
    ++revision_;
}

void Canvas::SetLineWidth(int pixels) {
    commands_.push_back({DrawCommand::Kind::line_width, palette(0), pixels, 0, 0, 0, 0});
    ++revision_;
}

void Canvas::note_label(const std::string& name, const std::string& text, double left, double top) {
    labels_.push_back({name, text});
    commands_.push_back(
        {DrawCommand::Kind::show_label, palette(0), static_cast<int>(labels_.size()) - 1, left, top, 0, 0});
    ++revision_;
}

void Canvas::note_hidden_label(const std::string& name) {
    labels_.push_back({name, {}});
    commands_.push_back({DrawCommand::Kind::hide_label, palette(0), static_cast<int>(labels_.size()) - 1, 0, 0, 0, 0});
    ++revision_;
}

}  // namespace kolvar
