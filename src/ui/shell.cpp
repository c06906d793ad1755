#include "ui/shell.hpp"

#include <algorithm>

namespace kolvar {

void Shell::load(Form& form) {
    if (form.loaded) return;
    form.loaded = true;
    const auto hooks = hooks_.find(&form);
    if (hooks != hooks_.end() && hooks->second.opening) hooks->second.opening();
}

void Shell::open(Form& form) {
    load(form);
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
    shown_.push_back(&form);
    form.shown = true;
}

void Shell::close(Form& form) {
    hide(form);
    form.loaded = false;
}

void Shell::hide(Form& form) {
    shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
    form.shown = false;
    if (settled_ == &form) settled_ = nullptr;
}

void Shell::settle() {
    Form* const top = active();
    if (top == settled_) return;
    settled_ = top;
    if (top == nullptr) return;
    const auto hooks = hooks_.find(top);
    if (hooks != hooks_.end() && hooks->second.activation) hooks->second.activation();
}

}  // namespace kolvar
