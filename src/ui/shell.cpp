#include "ui/shell.hpp"

#include <algorithm>
#include <exception>

namespace kolvar {

namespace {

// A window whose opening ends in a fault was not opened: the next attempt runs its opening from the start.
class Loading {
public:
    explicit Loading(Form& form) : form_(form) { form_.loaded = true; }
    ~Loading() {
        if (std::uncaught_exceptions() != faults_) form_.loaded = false;
    }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

private:
    Form& form_;
    int faults_ = std::uncaught_exceptions();
};

}  // namespace

void Shell::load(Form& form) {
    if (form.loaded) return;
    const Loading loading(form);
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
