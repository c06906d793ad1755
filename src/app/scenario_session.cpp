#include "app/scenario_session.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/inspector.hpp"

namespace kolvar::scenario {

Session::Session(std::string folder, std::ostream& to_out, std::ostream& to_err)
    : app_folder(std::move(folder)), out(to_out), err(to_err) {
    renew();
}

void Session::renew() {
    desktop.reset();
    program = std::make_unique<Program>(os, app_folder);
    desktop = std::make_unique<Desktop>(*program);
    started = end_told = false;
}

Program& Session::running() {
    if (program->ended()) {
        if (end_told) throw Wrong{"the program has ended: only files, clipboard, messages and documents are left"};
        throw Unmet{"the program to run", "it has ended with status " + std::to_string(program->status())};
    }
    return *program;
}

Form& Session::window(const std::string& name) {
    Form* const form = running().forms().find(name);
    if (form != nullptr) return *form;
    throw Wrong{"unknown window " + name};
}

Control& Session::control(const std::string& word) {
    const Address address = parse_address(word);
    Form& form = window(address.window);
    if (address.control.empty()) throw Wrong{"a window where a control should stand: " + word};
    if (Control* const found = form.find(address.control, address.index)) return *found;
    // A menu with one entry is counted from 0 too; an array of one element needs no index.
    Control* only = nullptr;
    int count = 0;
    for (Control* candidate : form.controls) {
        if (candidate->name != address.control) continue;
        only = candidate;
        ++count;
    }
    if (count == 1 && address.index < 0) return *only;
    if (count == 1 && address.index == 0 && only->index < 0 && only->kind == ControlKind::menu_entry) return *only;
    // The entries without a number are the menu that they hang in.
    if (count > 1 && address.index < 0 && only->kind == ControlKind::menu_entry && only->parent != nullptr)
        return *only->parent;
    throw Wrong{(count == 0 ? "unknown control " : "no such element: ") + word};
}

Control& Session::control(const std::string& word, ControlKind kind, const char* what) {
    Control& found = control(word);
    if (found.kind != kind) throw Wrong{word + " is no " + what};
    return found;
}

std::string bytes_of_file(const std::string& path) {
    if (!std::filesystem::is_regular_file(path)) throw Unmet{"a file " + path, "none"};
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

void check_field(const FieldAddress& field) {
    const FieldShape shape = field_shape(field.name);
    if (!shape.known) throw Wrong{"unknown name " + field.name};
    if (field.indices.size() != static_cast<std::size_t>(shape.dimensions))
        throw Wrong{field.name + " takes " + std::to_string(shape.dimensions) + " indices"};
    for (std::size_t k = 0; k < field.indices.size(); ++k) {
        const int last = k == 0 ? shape.last1 : shape.last2;
        if (field.indices[k].last > last)
            throw Wrong{"index " + std::to_string(field.indices[k].last) + " of " + field.name + " is beyond " +
                        std::to_string(last)};
    }
}

}  // namespace kolvar::scenario
