// A window's passive state: its name, title, size and controls. One object a window, from the start to the end.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "ui/control.hpp"

namespace kolvar {

struct Form {
    Form(std::string named, std::string titled, bool is_step = false)
        : name(std::move(named)), title(std::move(titled)), step(is_step) {}
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string name;
    std::string title;
    const bool step;                  // a numbered step of the workflow: its close box ends the program
    bool shown = false;               // kept by Shell
    bool loaded = false;              // its opening has run and it was not closed since; kept by Shell
    int width = 0, height = 0;        // twips, kept by the window; 0 until it was first shown
    Control* focus_wanted = nullptr;  // a handler moves the focus; the binder does it and clears this
    std::vector<Control*> controls;   // in tab order

    // nullptr when there is none.
    [[nodiscard]] Control* find(const std::string& control, int index = -1) const;
    [[nodiscard]] bool has(const std::string& control) const;  // as a single control or an array
    void set_focus(Control& control) { focus_wanted = &control; }

protected:
    // Puts controls into a panel, frame or menu.
    static void put_into(Control& holder, std::initializer_list<Control*> held) {
        for (Control* control : held) control->parent = &holder;
    }
    // The tabulator comes to these last, in this order.
    void last_in_tab_order(std::initializer_list<Control*> last) {
        for (Control* control : last) {
            std::erase(controls, control);
            controls.push_back(control);
        }
    }
};

}  // namespace kolvar
