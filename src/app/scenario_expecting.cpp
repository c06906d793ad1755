#include <algorithm>
#include <cmath>
#include <filesystem>

#include <QApplication>
#include <QWidget>

#include "app/scenario_session.hpp"
#include "core/files.hpp"
#include "core/inspector.hpp"
#include "core/numbers.hpp"

namespace kolvar::scenario {
namespace {

using Box = ScenarioPlatform::Box;

std::string box_text(const Box& box) { return box.kind + " " + json_text(box.text) + " title " + json_text(box.title); }

// Warnings come strictly in their order. A question or the box of a fault was answered already and may be passed over.
void expect_message(Session& session, Words& words) {
    const bool part = words.take("has");
    const std::string text = with_line_feeds(words.text("the text of the message"));
    std::optional<std::string> title;
    if (words.take("title")) title = words.text("the title of the message");
    words.finish();
    const Box* oldest = nullptr;
    std::vector<Box>& boxes = session.os.boxes;
    while (session.boxes_told < boxes.size() && boxes[session.boxes_told].expected) ++session.boxes_told;
    for (std::size_t k = session.boxes_told; k < boxes.size(); ++k) {
        Box& box = boxes[k];
        if (box.expected) continue;
        const bool same = part ? box.text.find(text) != std::string::npos : box.text == text;
        if (same && (!title || box.title == *title)) {
            box.expected = true;
            return;
        }
        if (oldest == nullptr || !box.optional) oldest = &box;
        if (!box.optional) break;
    }
    throw Unmet{std::string("a message ") + (part ? "that has " : "") + json_text(text) +
                    (title ? " title " + json_text(*title) : ""),
                oldest == nullptr ? "none" : box_text(*oldest)};
}

void expect_no_message(const Session& session) {
    for (const Box& box : session.os.boxes)
        if (!box.expected && !box.optional) throw Unmet{"no message", box_text(box)};
}

void expect_ended(Session& session, Words& words) {
    const int status = words.at_end() ? 0 : words.whole("an exit status");
    words.finish();
    const std::string expected = "the program to have ended with status " + std::to_string(status);
    if (!session.program->ended()) throw Unmet{expected, "it runs"};
    session.end_told = true;
    if (session.program->status() != status) throw Unmet{expected, std::to_string(session.program->status())};
}

void expect_dialog(Session& session, Words& words) {
    std::optional<std::string> filter, name;
    std::optional<int> index;
    while (!words.at_end()) {
        if (words.take("filter")) {
            filter = words.text("the filter");
        } else if (words.take("index")) {
            index = words.whole("the index of the filter");
        } else if (words.take("name")) {
            name = words.text("the proposed name");
        } else {
            throw Wrong{"unknown part of a dialog: " + words.rest()};
        }
    }
    if (!session.os.last_dialog) throw Unmet{"a file dialog", "none"};
    const FileDialog& dialog = *session.os.last_dialog;
    if (filter && dialog.filter != *filter) throw Unmet{"filter " + json_text(*filter), json_text(dialog.filter)};
    if (index && dialog.index != *index)
        throw Unmet{"filter index " + std::to_string(*index), std::to_string(dialog.index)};
    // A proposed path counts by its last parts too: the scenario can't know the folder of its run.
    const auto ends_with_name = [&] {
        const std::size_t size = dialog.name.size(), part = name->size();
        return size > part && dialog.name.ends_with(*name) &&
               std::string_view("/\\").find(dialog.name[size - part - 1]) != std::string_view::npos;
    };
    if (name && dialog.name != *name && !(!name->empty() && ends_with_name()))
        throw Unmet{"proposed name " + json_text(*name), json_text(dialog.name)};
}

void expect_file(Words& words) {
    const std::string path = words.path();
    const std::string wanted = words.word("same, text or has");
    if (wanted == "same") {
        const std::string other = words.path();
        words.finish();
        const std::string bytes = bytes_of_file(path), expected = bytes_of_file(other);
        if (bytes == expected) return;
        const auto differs = std::mismatch(bytes.begin(), bytes.end(), expected.begin(), expected.end());
        const auto line = 1 + std::count(bytes.begin(), differs.first, '\n');
        throw Unmet{"file " + path + " to be the same as " + other, "a difference in line " + std::to_string(line)};
    }
    const std::string text = words.text("what the file holds");
    words.finish();
    const std::string bytes = bytes_of_file(path);
    if (wanted == "text") {
        if (bytes != text) throw Unmet{"file " + path + " to be " + json_text(text), json_text(bytes)};
    } else if (wanted == "has") {
        if (bytes.find(text) == std::string::npos)
            throw Unmet{"file " + path + " to have " + json_text(text), json_text(bytes)};
    } else {
        throw Wrong{"unknown test of a file: " + wanted};
    }
}

Colour read_colour(Words& words) {
    const int first = words.whole("a colour");
    if (!words.number_follows()) {
        if (first < 0 || first > 15) throw Wrong{"the colours of the table are 0 to 15"};
        return palette(first);
    }
    const int green = words.whole("green"), blue = words.whole("blue");
    for (const int part : {first, green, blue})
        if (part < 0 || part > 255) throw Wrong{"red, green and blue are 0 to 255"};
    return rgb(first, green, blue);
}

void expect_colour(const std::string& what, Words& words, const std::optional<Colour>& got) {
    std::optional<Colour> wanted;
    if (!words.take("none")) wanted = read_colour(words);
    words.finish();
    if (got != wanted) throw Unmet{what + " " + json_colour(wanted), json_colour(got)};
}

void expect_text(const std::string& what, Words& words, const std::string& got) {
    const std::string wanted = words.text("a text");
    words.finish();
    if (got != wanted) throw Unmet{what + " text " + json_text(wanted), json_text(got)};
}

void expect_cell(Session& session, Words& words) {
    const std::string name = words.word("a grid");
    const auto& grid = static_cast<const Grid&>(session.control(name, ControlKind::grid, "grid"));
    const int row = words.whole("a row"), col = words.whole("a column");
    const std::string what = "cell " + name + " " + std::to_string(row) + " " + std::to_string(col);
    if (row < 0 || row >= grid.rows || col < 0 || col >= grid.cols)
        throw Unmet{what,
                    "a grid of " + std::to_string(grid.rows) + " rows and " + std::to_string(grid.cols) + " columns"};
    const Grid::Cell& cell = grid.cell(row, col);
    if (words.take("text")) {
        expect_text(what, words, cell.text);
    } else if (words.take("back")) {
        expect_colour(what + " back", words, cell.back);
    } else if (words.take("fore")) {
        expect_colour(what + " fore", words, cell.fore);
    } else {
        throw Wrong{"unknown test of a cell: " + words.rest()};
    }
}

bool shows(const Form& form, const std::string& text) {
    if (form.title == text) return true;
    return std::any_of(form.controls.begin(), form.controls.end(), [&](const Control* control) {
        const bool by_text = control->kind != ControlKind::picture && control->kind != ControlKind::grid &&
                             control->kind != ControlKind::scroll && control->kind != ControlKind::panel;
        return by_text && control->text == text && control->reachable();
    });
}

void expect_shows(Session& session, const std::string& name, Words& words) {
    const std::string text = words.text("what the window shows");
    words.finish();
    const Form& form = session.window(name);
    if (!form.shown) throw Unmet{"window " + name + " to show " + json_text(text), "a closed window"};
    if (!shows(form, text)) throw Unmet{"window " + name + " to show " + json_text(text), "no such text"};
}

void expect_focus(Session& session, Words& words) {
    const std::string name = words.word("a control");
    words.finish();
    const Control& control = session.control(name);
    const QWidget* const widget = session.desktop->widget(control);
    const QWidget* const window = session.desktop->window(control.form);
    const QWidget* const focused = window == nullptr ? nullptr : window->focusWidget();
    const Form* const active = session.program->shell().active();
    if (active != &control.form)
        throw Unmet{"the focus in " + name, "window " + (active == nullptr ? "none" : active->name)};
    const bool inside = widget != nullptr && focused != nullptr && (widget == focused || widget->isAncestorOf(focused));
    if (!inside) throw Unmet{"the focus in " + name, focused == nullptr ? "none" : focused->objectName().toStdString()};
}

void expect_window(Session& session, Words& words) {
    const std::string name = words.word("a window");
    words.finish();
    const Form& form = session.window(name);
    const Form* const active = session.program->shell().active();
    if (!form.shown || active != &form)
        throw Unmet{"window " + name + " shown and active", active == nullptr ? "no window" : "window " + active->name};
    const QWidget* const widget = session.desktop->window(form);
    if (widget == nullptr || !widget->isVisible()) throw Unmet{"window " + name + " on the screen", "nothing"};
}

void expect_closed(Session& session, Words& words) {
    const std::string name = words.word("a window");
    words.finish();
    if (session.window(name).shown) throw Unmet{"window " + name + " closed", "shown"};
}

void expect_state(const std::string& name, const std::string& wanted, bool holds, const char* got) {
    if (!holds) throw Unmet{name + " " + wanted, got};
}

// "visible" and "enabled" are the control's own state. A control in a panel that is hidden or disabled counts as
// hidden or disabled too: it can't be seen or used.
void expect_control(Session& session, const std::string& name, Words& words) {
    const Control& control = session.control(name);
    const std::string wanted = words.word("what is expected of the control");
    if (wanted == "text") return expect_text(name, words, control.text);
    if (wanted == "back") return expect_colour(name + " back", words, control.back);
    if (wanted == "fore") return expect_colour(name + " fore", words, control.fore);
    if (wanted == "value") {
        const int value = words.whole("a value");
        words.finish();
        if (control.value != value)
            throw Unmet{name + " value " + std::to_string(value), std::to_string(control.value)};
        return;
    }
    if (wanted == "items") {
        if (control.kind != ControlKind::list) throw Wrong{name + " is no list"};
        std::vector<std::string> items;
        while (!words.at_end()) items.push_back(words.text("an entry"));
        if (items == control.items) return;
        const auto shown = [](const std::vector<std::string>& all) {
            std::string out = "items";
            for (const std::string& item : all) out += " " + json_text(item);
            return out;
        };
        throw Unmet{name + " " + shown(items), shown(control.items)};
    }
    words.finish();
    if (wanted == "enabled") return expect_state(name, wanted, control.enabled, "disabled");
    if (wanted == "disabled") return expect_state(name, wanted, !control.usable(), "enabled");
    if (wanted == "visible") return expect_state(name, wanted, control.visible, "hidden");
    if (wanted == "hidden") return expect_state(name, wanted, !control.reachable(), "visible");
    if (wanted == "checked") return expect_state(name, wanted, control.on(), "unchecked");
    if (wanted == "unchecked") return expect_state(name, wanted, !control.on(), "checked");
    throw Wrong{"unknown test of a control: " + wanted};
}

bool holds_nothing(const Value& value) { return value.is_unset() || value == Value(""); }

// The number that a cell stands for: a number, a text that is one as a whole, or a truth value.
std::optional<double> number_in(const Value& value) {
    if (value.is_number() || value.is_bool()) return value.number();
    if (value.is_text() && is_numeric(value.text())) return leading_number(value.text()).number;
    return std::nullopt;
}

// Whether a cell holds a number or the text of that number is the program's affair; two texts must be the same. Nothing
// (unset, "") is no number. True is -1, as in files, or 1, as in flags.
bool matches(const Value& got, const Value& wanted, double tolerance) {
    if (got == wanted) return true;
    if (holds_nothing(got) || holds_nothing(wanted)) return holds_nothing(got) && holds_nothing(wanted);
    if (got.is_text() && wanted.is_text()) return false;
    const std::optional<double> one = number_in(got), other = number_in(wanted);
    if (!one || !other) return false;
    if (got.is_bool() || wanted.is_bool()) return std::abs(*one) == std::abs(*other);
    return std::abs(*one - *other) <= tolerance * std::abs(*other);
}

void expect_field(Session& session, const std::string& name, Words& words) {
    const FieldAddress field = parse_field(name);
    const Value wanted = words.value();
    double tolerance = 0;
    if (words.take("within")) tolerance = words.number("a tolerance");
    words.finish();
    const RunState& rs = session.running().state();
    check_field(field);
    for (const IndexRange& range : field.indices)
        if (range.is_range) throw Wrong{"an expectation is about one cell"};
    const int i = field.indices.empty() ? 0 : field.indices[0].first;
    const int j = field.indices.size() < 2 ? 0 : field.indices[1].first;
    const Value got = field_get(rs, field.name, i, j);
    if (matches(got, wanted, tolerance)) return;
    throw Unmet{name + " " + (wanted.is_unset() ? "unset" : json_value(wanted)) +
                    (tolerance > 0 ? " within " + json_number(tolerance) : ""),
                got.is_unset() ? "unset" : json_value(got)};
}

void expect_opened(Session& session, Words& words) {
    const std::string name = words.text("the name of a document");
    words.finish();
    const std::vector<std::string>& opened = session.os.documents;
    if (opened.empty()) throw Unmet{"document " + json_text(name) + " opened", "none"};
    if (file_name(opened.back()) != name && opened.back() != name)
        throw Unmet{"document " + json_text(name) + " opened", json_text(file_name(opened.back()))};
}

void expect_clipboard(Session& session, Words& words) {
    const std::string text = words.text("what the clipboard holds");
    words.finish();
    if (session.os.clip != text) throw Unmet{"clipboard " + json_text(text), json_text(session.os.clip)};
}

void expect_title(Session& session, Words& words) {
    const std::string name = words.word("a window");
    const std::string text = words.text("a title");
    words.finish();
    const Form& form = session.window(name);
    if (form.title != text) throw Unmet{"title of " + name + " " + json_text(text), json_text(form.title)};
}

void expect_none(Session& session, Words& words) {
    if (words.take("message")) {
        words.finish();
        return expect_no_message(session);
    }
    if (!words.take("file")) throw Wrong{"no message or no file, not " + words.rest()};
    const std::string path = words.path();
    words.finish();
    if (std::filesystem::is_regular_file(path)) throw Unmet{"no file " + path, "one"};
}

}  // namespace

bool expect(Session& session, const std::string& command, Words& words) {
    if (command != "expect") return false;
    const std::string what = words.word("what is expected");
    if (what == "message") {
        expect_message(session, words);
    } else if (what == "no") {
        expect_none(session, words);
    } else if (what == "ended") {
        expect_ended(session, words);
    } else if (what == "focus") {
        expect_focus(session, words);
    } else if (what == "dialog") {
        expect_dialog(session, words);
    } else if (what == "opened") {
        expect_opened(session, words);
    } else if (what == "window") {
        expect_window(session, words);
    } else if (what == "closed") {
        expect_closed(session, words);
    } else if (what == "cell") {
        expect_cell(session, words);
    } else if (what == "title") {
        expect_title(session, words);
    } else if (what == "clipboard") {
        expect_clipboard(session, words);
    } else if (what == "file") {
        expect_file(words);
    } else if (is_address(what)) {
        expect_control(session, what, words);
    } else if (words.take("shows")) {
        expect_shows(session, what, words);
    } else {
        expect_field(session, what, words);
    }
    return true;
}

}  // namespace kolvar::scenario
