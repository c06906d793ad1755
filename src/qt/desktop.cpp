#include "qt/desktop.hpp"

#include <QAction>
#include <algorithm>

#include "qt/form_window.hpp"
#include "qt/layouts/layouts.hpp"
#include "qt/wide_registers.hpp"

namespace kolvar {

Desktop::Desktop(Program& program) : program_(program) {
    program_.on_change = [this] { sync(); };
}

Desktop::~Desktop() { program_.on_change = nullptr; }

FormWindow* Desktop::find_window(const Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second.get();
}

QWidget* Desktop::window(const Form& form) const { return find_window(form); }

QWidget* Desktop::widget(const Control& control) const {
    const FormWindow* const window = find_window(control.form);
    return window == nullptr ? nullptr : window->of(control);
}

QAction* Desktop::action(const Control& control) const {
    const FormWindow* const window = find_window(control.form);
    return window == nullptr ? nullptr : window->action(control);
}

FormWindow* Desktop::make_window(Form& form) {
    auto window = std::make_unique<FormWindow>(form, [this](const Event& event) { send(event); });
    lay_out(*window, form, program_);
    FormWindow* const made = window.get();
    windows_[&form] = std::move(window);
    return made;
}

void Desktop::sync() {
    if (syncing_) return;
    syncing_ = true;
    QWidget* former = nullptr;  // the next step opens where the former stood
    for (const auto& [form, window] : windows_)
        if (window->isVisible()) former = window.get();
    for (Form* form : program_.shell().shown()) {
        FormWindow* window = find_window(*form);
        if (window == nullptr) window = make_window(*form);
        const bool hidden = !window->isVisible();
        window->sync();
        if (!hidden) continue;
        if (former != nullptr && form->step) window->move(former->pos());
        window->show_first();
        window->sync();
    }
    for (const auto& [form, window] : windows_)
        if (!form->shown && window->isVisible()) window->hide();
    Form* const top = program_.shell().active();
    if (top != active_) {
        active_ = top;
        if (top != nullptr) {
            FormWindow* const window = find_window(*top);
            window->raise();
            window->activateWindow();
        }
    }
    syncing_ = false;
    tell_end();
}

void Desktop::tell_end() {
    // No process without a window remains.
    const bool left_alone = !program_.busy() && !windows_.empty() && program_.shell().shown().empty();
    if (told_end_ || !(program_.ended() || left_alone)) return;
    told_end_ = true;
    emit ended(program_.status());
}

void Desktop::send(const Event& event) {
    if (syncing_) return;
    release_wide_registers();  // the calculations of a click follow what was painted last
    program_.dispatch(event);
    // A refused event changes nothing: the widgets show the model's state again.
    sync();
}

}  // namespace kolvar
