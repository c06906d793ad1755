#include <charconv>
#include <filesystem>

#include <QWidget>

#include "app/scenario_session.hpp"
#include "core/files.hpp"
#include "core/inspector.hpp"

namespace kolvar::scenario {

std::string json_number(double number) {
    char digits[64];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, number);
    return error == std::errc() ? std::string(digits, end) : "null";
}

std::string json_text(const std::string& text) {
    static constexpr char hex[] = "0123456789abcdef";
    std::string out = "\"";
    if (text.starts_with("\xEF\xBB\xBF")) out += "\\ufeff";
    for (const char c : to_text(text)) {
        const auto byte = static_cast<unsigned char>(c);
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (byte < 0x20 || byte == 0x7F) {
                    out += "\\u00";
                    out += hex[byte >> 4U];
                    out += hex[byte & 15U];
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

std::string json_value(const Value& value) {
    if (value.is_unset()) return "null";
    if (value.is_number()) return json_number(value.number());
    if (value.is_bool()) return value == Value(true) ? "true" : "false";
    return json_text(value.text());
}

std::string json_colour(const std::optional<Colour>& colour) {
    if (!colour) return "null";
    if (const int number = palette_number(*colour); number >= 0) return std::to_string(number);
    const std::uint32_t rgb = colour->rgb;
    return "[" + std::to_string(rgb >> 16U & 255U) + "," + std::to_string(rgb >> 8U & 255U) + "," +
           std::to_string(rgb & 255U) + "]";
}

namespace {

template <class Items, class Form>
std::string json_array(const Items& items, Form&& form) {
    std::string out = "[";
    for (const auto& item : items) {
        if (out.size() > 1) out += ",";
        out += form(item);
    }
    return out + "]";
}

std::string json_bool(bool truth) { return truth ? "true" : "false"; }

bool holds_text(const Control& control) {
    return control.kind == ControlKind::entry || control.kind == ControlKind::list ||
           control.kind == ControlKind::folder_list;
}

// Place and size in twips: from the logic where it has placed the control, else from the layout of the window.
void add_geometry(std::string& out, const Session& session, const Control& control) {
    int left = control.left, top = control.top, width = control.width, height = control.height;
    bool has_place = control.placed, has_size = width > 0 && height > 0;
    if (const QWidget* const widget = session.desktop->widget(control)) {
        if (!has_place) left = widget->x() * 15, top = widget->y() * 15;
        if (width <= 0) width = widget->width() * 15;
        if (height <= 0) height = widget->height() * 15;
        has_place = has_size = true;
    }
    if (has_place) out += ",\"left\":" + std::to_string(left) + ",\"top\":" + std::to_string(top);
    if (has_size) out += ",\"width\":" + std::to_string(width) + ",\"height\":" + std::to_string(height);
}

std::string json_control(const Session& session, const Control& control) {
    std::string out = std::string("{\"") + (holds_text(control) ? "text" : "caption") +
                      "\":" + json_text(control.text) + ",\"visible\":" + json_bool(control.visible) +
                      ",\"enabled\":" + json_bool(control.enabled);
    switch (control.kind) {
        case ControlKind::check:
        case ControlKind::option:
        case ControlKind::scroll:
            out += ",\"value\":" + std::to_string(control.value);
            break;
        case ControlKind::list:
            out += ",\"index\":" + std::to_string(control.value) + ",\"items\":" + json_array(control.items, json_text);
            break;
        default:
            break;
    }
    out += ",\"back\":" + json_colour(control.back) + ",\"fore\":" + json_colour(control.fore);
    add_geometry(out, session, control);
    return out + "}";
}

template <class Part>
std::string json_cells(const Grid& grid, Part&& part) {
    std::string out = "[";
    for (int row = 0; row < grid.rows; ++row) {
        out += row == 0 ? "[" : ",[";
        for (int col = 0; col < grid.cols; ++col) {
            if (col > 0) out += ",";
            out += part(grid.cell(row, col));
        }
        out += "]";
    }
    return out + "]";
}

std::string json_grid(const Grid& grid) {
    return "{\"rows\":" + std::to_string(grid.rows) + ",\"cols\":" + std::to_string(grid.cols) +
           ",\"text\":" + json_cells(grid, [](const Grid::Cell& cell) { return json_text(cell.text); }) +
           ",\"back\":" + json_cells(grid, [](const Grid::Cell& cell) { return json_colour(cell.back); }) +
           ",\"fore\":" + json_cells(grid, [](const Grid::Cell& cell) { return json_colour(cell.fore); }) + "}";
}

std::string json_command(const Canvas& canvas, const DrawCommand& command) {
    const std::string colour = json_colour(command.colour);
    const auto numbers = [](std::initializer_list<double> all) {
        std::string out;
        for (const double number : all) out += json_number(number) + ",";
        return out;
    };
    const auto label = [&]() -> const Canvas::LabelText& {
        return canvas.labels()[static_cast<std::size_t>(command.number)];
    };
    switch (command.kind) {
        case DrawCommand::Kind::clear:
            return "[\"Clear\"]";
        case DrawCommand::Kind::fill_rect:
            return "[\"FillRect\"," + numbers({command.x1, command.y1, command.x2, command.y2}) + colour + "]";
        case DrawCommand::Kind::line:
            return "[\"Line\"," + numbers({command.x1, command.y1, command.x2, command.y2}) + colour + "]";
        case DrawCommand::Kind::circle:
            return "[\"Circle\"," + numbers({command.x1, command.y1, command.x2}) + colour + "]";
        case DrawCommand::Kind::line_width:
            return "[\"SetLineWidth\"," + std::to_string(command.number) + "]";
        case DrawCommand::Kind::show_label:
            return "[\"ShowLabel\"," + json_text(label().name) + "," + json_text(label().text) + "," +
                   json_number(command.x1) + "," + json_number(command.y1) + "]";
        case DrawCommand::Kind::hide_label:
            return "[\"HideLabel\"," + json_text(label().name) + "]";
    }
    return "null";
}

std::string json_canvas(const Canvas& canvas) {
    return json_array(canvas.commands(), [&](const DrawCommand& command) { return json_command(canvas, command); });
}

std::string json_box(const ScenarioPlatform::Box& box) {
    return "{\"text\":" + json_text(box.text) + ",\"title\":" + json_text(box.title) +
           ",\"kind\":" + json_text(box.kind) + ",\"answer\":" + (box.answer.empty() ? "null" : json_text(box.answer)) +
           "}";
}

// One cell, an array for a range, arrays in an array (the first index outside) for two.
std::string json_field(const RunState& rs, const FieldAddress& field, std::size_t level, int i, int j) {
    if (level == field.indices.size()) return json_value(field_get(rs, field.name, i, j));
    const IndexRange& range = field.indices[level];
    const auto at = [&](int index) {
        return json_field(rs, field, level + 1, level == 0 ? index : i, level == 0 ? j : index);
    };
    if (!range.is_range) return at(range.first);
    std::string out = "[";
    for (int index = range.first; index <= range.last; ++index) {
        if (index > range.first) out += ",";
        out += at(index);
    }
    return out + "]";
}

void screenshot(Session& session, Words& words) {
    const std::string name = words.word("a window");
    const std::string path = words.path();
    words.finish();
    const Form& form = session.window(name);
    QWidget* const shown = form.shown ? session.desktop->window(form) : nullptr;
    if (shown == nullptr) throw Unmet{"window " + name + " to be shown", "closed"};
    if (!shown->grab().save(QString::fromStdString(path), "PNG")) throw Wrong{"can't write " + path};
}

std::string value_of(Session& session, Words& words) {
    const std::string what = words.word("what to print");
    const auto picture = [&]() -> const Picture& {
        return static_cast<const Picture&>(session.control(words.word("a picture"), ControlKind::picture, "picture"));
    };
    if (what == "grid")
        return json_grid(static_cast<const Grid&>(session.control(words.word("a grid"), ControlKind::grid, "grid")));
    if (what == "canvas") return json_canvas(picture().canvas);
    if (what == "draws") return std::to_string(picture().canvas.draws());
    if (what == "size") {
        const Picture& plot = picture();
        return "[" + std::to_string(plot.width) + "," + std::to_string(plot.height) + "]";
    }
    if (what == "clipboard") return json_text(session.os.clip);
    if (what == "file") {
        const std::string path = words.path();
        return std::filesystem::is_regular_file(path) ? json_text(bytes_of_file(path)) : "null";
    }
    if (what == "messages") return json_array(session.os.boxes, json_box);
    if (what == "windows")
        return json_array(session.running().shell().shown(), [](const Form* form) { return json_text(form->name); });
    if (is_address(what)) return json_control(session, session.control(what));

    const FieldAddress field = parse_field(what);
    const RunState& rs = session.running().state();
    check_field(field);
    return json_field(rs, field, 0, 0, 0);
}

}  // namespace

bool print(Session& session, const std::string& command, Words& words) {
    if (command == "screenshot") {
        screenshot(session, words);
        return true;
    }
    if (command != "print") return false;
    const std::string what = words.rest();
    const std::string value = value_of(session, words);
    words.finish();
    session.out << "{\"what\": " << json_text(what) << ", \"value\": " << value << "}\n" << std::flush;
    return true;
}

}  // namespace kolvar::scenario
