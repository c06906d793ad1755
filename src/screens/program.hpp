// The program without its surface: run state, windows, handlers, and the one dispatcher that every event passes.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "screens/event.hpp"
#include "screens/journal.hpp"
#include "ui/context.hpp"

namespace kolvar {

class Program {
public:
    using Handler = std::function<void(const Event&)>;

    // `app_folder` is the folder of the executable, where the tables of critical values and the start path lie.
    Program(Platform& os, std::string app_folder);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // The start-up with this start value of Method; opens the first window.
    void start(int method);
    // Carries out what the user did. An event that arrives while another runs, or after the end, is refused, as is one
    // for a window that isn't shown. Catches what no procedure reports itself.
    void dispatch(const Event& event);

    [[nodiscard]] bool busy() const { return busy_; }
    [[nodiscard]] bool ended() const { return ended_; }
    [[nodiscard]] int status() const { return status_; }

    [[nodiscard]] RunState& state() { return *state_; }
    [[nodiscard]] Forms& forms() { return *forms_; }
    [[nodiscard]] Shell& shell() { return shell_; }
    [[nodiscard]] Context& context() { return *context_; }
    [[nodiscard]] const Journal& journal() const { return journal_; }
    // Writes the journal as a scenario. Faults pass to the caller.
    void save_journal(const std::string& path);
    [[nodiscard]] const std::string& app_folder() const { return app_folder_; }

    // Runs after every event and before every modal box: the surface copies what has changed.
    std::function<void()> on_change;

    // For the screens: what runs at an event of a control (control "" = the window itself). Elements of an array share
    // one handler; the event tells the index.
    void on(const Form& form, const std::string& control, EventKind kind, Handler handler);

private:
    class Gate;  // the platform as the program sees it: syncs before boxes, keeps the answers in the journal

    void run(const std::string& line, const std::function<void()>& work);
    void apply(const Event& event, Form& form);
    void settle_windows();
    void put_back_to_idle();

    std::string app_folder_;
    std::unique_ptr<Gate> gate_;
    std::unique_ptr<RunState> state_;
    std::unique_ptr<Forms> forms_;
    Shell shell_;
    std::unique_ptr<Context> context_;
    Journal journal_;
    std::map<std::string, Handler> handlers_;
    std::string handling_;  // the control whose event runs: names the procedure in the box of a fault
    bool busy_ = false;
    bool ended_ = false;
    int status_ = 0;
};

}  // namespace kolvar
