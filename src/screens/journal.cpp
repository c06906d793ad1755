#include "screens/journal.hpp"

#include <cstdio>

#include "core/numbers.hpp"
#include "screens/event.hpp"

namespace kolvar {

std::string scenario_quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        switch (c) {
            case '\n':
                quoted += "\\n";
                break;
            case '\r':
                quoted += "\\r";
                break;
            case '\t':
                quoted += "\\t";
                break;
            case '"':
                quoted += "\\\"";
                break;
            case '\\':
                quoted += "\\\\";
                break;
            default:
                quoted += c;
        }
    }
    return quoted + "\"";
}

namespace {

std::string address(const std::string& window, const std::string& control, int index) {
    if (control.empty()) return window;
    return window + "." + control + (index < 0 ? std::string() : "(" + std::to_string(index) + ")");
}

std::string mouse(const Event& event) {
    std::string words = event.button == 2 ? " right" : " left";
    if ((event.shift & 1) != 0) words += " shift";
    if ((event.shift & 2) != 0) words += " ctrl";
    if ((event.shift & 4) != 0) words += " alt";
    return words;
}

}  // namespace

std::string scenario_line(const Event& event) {
    const std::string where = address(event.window, event.control, event.index);
    switch (event.kind) {
        case EventKind::click:
            return "click " + where;
        case EventKind::dblclick:
            return "dblclick " + where;
        case EventKind::type:
            return "type " + where + " " + scenario_quoted(event.text);
        case EventKind::enter:
            return "enter " + where;
        case EventKind::leave:
            return "leave " + where;
        case EventKind::choose:
            return "choose " + where + " " +
                   (event.text.empty() ? std::to_string(event.value) : scenario_quoted(event.text));
        case EventKind::scroll:
            return "scroll " + where + " " + std::to_string(event.value);
        case EventKind::press:
            return "press " + where + mouse(event) + " " + decimal(event.x) + " " + decimal(event.y);
        case EventKind::release:
            return "release " + where;
        case EventKind::drag:
            return "drag " + where + " " + address(event.window, event.target, event.target_index);
        case EventKind::cell_click:
            return "cell " + where + " click " + std::to_string(event.row) + " " + std::to_string(event.col);
        case EventKind::cell_dblclick:
            return "cell " + where + " dblclick " + std::to_string(event.row) + " " + std::to_string(event.col);
        case EventKind::resize:
            return "resize " + where + " " + decimal(event.x) + " " + decimal(event.y);
        case EventKind::close:
            return "close " + where;
    }
    return {};
}

void Journal::event(const std::string& line) {
    for (std::string& needed : before_) lines_.push_back(std::move(needed));
    lines_.push_back(line);
    for (std::string& shown : after_) lines_.push_back(std::move(shown));
    before_.clear();
    after_.clear();
}

void Journal::clock(const DateTime& when) {
    char words[64];
    std::snprintf(words, sizeof words, "today %04d-%02d-%02d %02d:%02d:%02d", when.year, when.month, when.day,
                  when.hour, when.minute, when.second);
    if (clock_ == words) return;
    clock_ = words;
    before(clock_);
}

std::string Journal::text() const {
    std::string all;
    for (const std::string& line : lines_) all += line + "\n";
    return all;
}

}  // namespace kolvar
