// Opens and closes windows: which are shown, in which order they lie, and what runs when one opens or becomes active.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "ui/form.hpp"

namespace kolvar {

class Shell {
public:
    struct Hooks {
        std::function<void()> opening;     // runs when a window that was closed is shown
        std::function<void()> activation;  // runs when it becomes the program's active window
    };

    void set_hooks(const Form& form, Hooks hooks) { hooks_[&form] = std::move(hooks); }

    // Shows a window on top of the others; its opening runs first unless the window is still loaded (shown or hidden).
    void open(Form& form);
    // Runs the opening without showing the window, for handlers that set its controls before they show it.
    void load(Form& form);
    // Takes a window away and forgets that it was opened: the next open runs its opening again.
    void close(Form& form);
    // Takes a window away but keeps it loaded: the next open runs no opening.
    void hide(Form& form);
    // The window on top, nullptr when none is shown.
    [[nodiscard]] Form* active() const { return shown_.empty() ? nullptr : shown_.back(); }
    [[nodiscard]] const std::vector<Form*>& shown() const { return shown_; }

    // Lets the window on top, if it has changed since the last call, run its activation. The dispatcher calls it when
    // a handler has finished.
    void settle();
    // The activation of the active window runs once more at the next settle().
    void activate_again() { settled_ = nullptr; }

private:
    std::map<const Form*, Hooks> hooks_;
    std::vector<Form*> shown_;
    Form* settled_ = nullptr;
};

}  // namespace kolvar
