#include "ui/control.hpp"

#include <algorithm>
#include <cmath>

#include "core/fault.hpp"
#include "ui/form.hpp"

namespace kolvar {

Control::Control(Form& window, ControlKind of_kind, std::string named, std::string captioned, int element)
    : form(window), kind(of_kind), name(std::move(named)), index(element), text(std::move(captioned)) {
    window.controls.push_back(this);
}

void Control::set_value(int new_value) {
    // A list whose field was typed into shows another text than its entry: choosing the entry is a change.
    const bool listed = kind == ControlKind::list && new_value >= 0 && new_value < static_cast<int>(items.size());
    if (value == new_value && (!listed || text == items[static_cast<std::size_t>(new_value)])) return;
    set_value_quietly(new_value);
    if (changed) changed();
}

void Control::set_value_quietly(int new_value) {
    value = new_value;
    if (kind == ControlKind::list) {
        const bool listed = value >= 0 && value < static_cast<int>(items.size());
        text = listed ? items[static_cast<std::size_t>(value)] : std::string();
    }
    if (kind == ControlKind::option && value != 0)
        for (Control* other : form.controls)
            if (other != this && other->kind == ControlKind::option && other->group == group) other->value = 0;
}

void Control::set_text(const std::string& new_text) {
    if (text == new_text) return;
    text = new_text;
    if (changed) changed();
}

void Control::set_items(std::vector<std::string> new_items) {
    items = std::move(new_items);
    value = -1;
    text.clear();
}

void Control::show_item(const std::string& item) {
    const auto found = std::find(items.begin(), items.end(), item);
    value = found == items.end() ? -1 : static_cast<int>(found - items.begin());
    text = item;
}

bool Control::reachable() const {
    for (const Control* at = this; at != nullptr; at = at->parent)
        if (!at->visible) return false;
    return true;
}

bool Control::usable() const {
    for (const Control* at = this; at != nullptr; at = at->parent)
        if (!at->enabled) return false;
    return true;
}

void Control::move_to(double at_left, double at_top) {
    place(static_cast<int>(std::lround(at_left)), static_cast<int>(std::lround(at_top)));
}

std::string Control::address() const { return index < 0 ? name : name + "(" + std::to_string(index) + ")"; }

void Grid::resize(int new_rows, int new_cols) {
    rows = new_rows;
    cols = new_cols;
    cells_.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols), Cell{});
    touch();
}

const Grid::Cell& Grid::cell(int row, int col) const {
    if (row < 0 || row >= rows || col < 0 || col >= cols) fail(FaultKind::index);
    return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) + static_cast<std::size_t>(col)];
}

Grid::Cell& Grid::cell(int row, int col) { return const_cast<Cell&>(std::as_const(*this).cell(row, col)); }

Control* Form::find(const std::string& control, int index) const {
    for (Control* candidate : controls)
        if (candidate->index == index && candidate->name == control) return candidate;
    return nullptr;
}

bool Form::has(const std::string& control) const {
    return std::any_of(controls.begin(), controls.end(), [&](const Control* c) { return c->name == control; });
}

}  // namespace kolvar
