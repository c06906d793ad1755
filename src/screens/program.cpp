#include "screens/program.hpp"

#include <algorithm>
#include <utility>

#include "core/files.hpp"
#include "screens/screens.hpp"
#include "screens/start_up.hpp"

namespace kolvar {

class Program::Gate : public Platform {
public:
    Gate(Platform& os, Program& program) : os_(os), program_(program) {}

    void warn(const std::string& text, const std::string& title) override {
        sync();
        shown(text, title);
        os_.warn(text, title);
    }
    bool ask(const std::string& text, const std::string& title) override {
        sync();
        shown(text, title);
        const bool yes = os_.ask(text, title);
        program_.journal_.before(yes ? "answer yes" : "answer no");
        return yes;
    }
    FaultAnswer fault(const std::string& text) override {
        sync();
        shown(text, "KOLVAR");
        const FaultAnswer answer = os_.fault(text);
        program_.journal_.before(answer == FaultAnswer::end ? "answer end" : "answer continue");
        return answer;
    }
    std::string open_file(const FileDialog& dialog) override {
        sync();
        std::string path = os_.open_file(dialog);
        program_.journal_.before(path.empty() ? "answer cancel" : "answer open " + scenario_quoted(path));
        return path;
    }
    std::optional<std::string> save_file(const FileDialog& dialog) override {
        sync();
        std::optional<std::string> path = os_.save_file(dialog);
        program_.journal_.before(path ? "answer save " + scenario_quoted(*path) : "answer cancel");
        return path;
    }
    std::string choose_folder(const std::string& start) override {
        sync();
        std::string path = os_.choose_folder(start);
        program_.journal_.before(path.empty() ? "answer cancel" : "answer folder " + scenario_quoted(path));
        return path;
    }
    std::string clipboard() override {
        std::string text = os_.clipboard();
        program_.journal_.before("clipboard " + scenario_quoted(text));
        return text;
    }
    void set_clipboard(const std::string& text) override { os_.set_clipboard(text); }
    bool open_document(const std::string& path) override { return os_.open_document(path); }
    DateTime now() override {
        const DateTime when = os_.now();
        program_.journal_.clock(when);
        return when;
    }
    std::string decimal_sign() override {
        std::string sign = os_.decimal_sign();
        if (sign != ".") program_.journal_.before("decimal " + scenario_quoted(sign));
        return sign;
    }
    void wait_cursor(bool shown) override { os_.wait_cursor(shown); }
    void progress(int done, int all) override { os_.progress(done, all); }
    std::size_t room_on_disk(std::size_t wanted) override { return os_.room_on_disk(wanted); }

private:
    void sync() {
        if (program_.on_change) program_.on_change();
    }
    void shown(const std::string& text, const std::string& title) {
        program_.journal_.after("expect message " + scenario_quoted(text) + " title " + scenario_quoted(title));
    }

    Platform& os_;
    Program& program_;
};

namespace {

std::string handler_key(const std::string& window, const std::string& control, EventKind kind) {
    return window + "." + control + ":" + std::to_string(static_cast<int>(kind));
}

std::string fault_box_text(const Fault& fault, const char* procedure) {
    std::string text = std::string("Run-time error: ") + fault_text(fault.kind) + ", in " + procedure;
    if (!fault.file.empty()) {
        text += "\n" + fault.file;
        if (fault.line > 0) text += ", line " + std::to_string(fault.line);
        if (!fault.offending.empty()) text += ": " + fault.offending;
    }
    return text;
}

}  // namespace

Program::Program(Platform& os, std::string app_folder)
    : app_folder_(std::move(app_folder)),
      gate_(std::make_unique<Gate>(os, *this)),
      state_(std::make_unique<RunState>()),
      forms_(std::make_unique<Forms>()),
      context_(std::make_unique<Context>(Context{*state_, *forms_, *gate_, shell_})) {
    connect_screens(*this);
}

Program::~Program() = default;

void Program::on(const Form& form, const std::string& control, EventKind kind, Handler handler) {
    handlers_[handler_key(form.name, control, kind)] = std::move(handler);
}

void Program::start(int method) {
    run(method == 0 ? "start" : "start " + std::to_string(method), [&] { start_up(*context_, method, app_folder_); });
}

void Program::save_journal(const std::string& path) { replace_file(*gate_, path, journal_.text()); }

void Program::dispatch(const Event& event) {
    Form* const form = forms_->find(event.window);
    if (busy_ || ended_ || form == nullptr || !form->shown) return;
    run(scenario_line(event), [&] { apply(event, *form); });
}

void Program::run(const std::string& line, const std::function<void()>& work) {
    busy_ = true;
    try {
        // After a fault the program goes on from the window that is then on top, which becomes active as ever.
        for (std::function<void()> next = work; next;) {
            try {
                std::exchange(next, nullptr)();
                settle_windows();
            } catch (const Fault& fault) {
                if (gate_->fault(fault_box_text(fault, state_->procedure)) == Platform::FaultAnswer::end)
                    throw ProgramEnd{1};
                next = [this] { put_back_to_idle(); };
            }
        }
    } catch (const ProgramEnd& end) {
        ended_ = true;
        status_ = end.status;
    }
    journal_.event(line);
    busy_ = false;
    if (on_change) on_change();
}

void Program::settle_windows() {
    for (Form* top = nullptr; top != shell_.active();) {  // an activation may itself open a window
        top = shell_.active();
        shell_.settle();
    }
}

void Program::put_back_to_idle() {
    state_->procedure = "";
    state_->ZizzRunning = false;
    state_->AcceptBest = false;
    if (shell_.active() == nullptr) shell_.open(forms_->frm1_Settings);
}

void Program::apply(const Event& event, Form& form) {
    const auto handler = handlers_.find(handler_key(event.window, event.control, event.kind));
    Control* const control = event.control.empty() ? nullptr : form.find(event.control, event.index);
    if (!event.control.empty() && control == nullptr) return;
    handling_ = event.control.empty() ? event.window : event.window + "." + event.control;
    const Running running(*state_, handling_.c_str());

    if (control != nullptr) {
        switch (event.kind) {
            case EventKind::click:
                if (control->kind == ControlKind::check) control->set_value(control->on() ? 0 : 1);
                if (control->kind == ControlKind::option) control->set_value(1);
                break;
            case EventKind::type:
                if (control->locked) return;
                control->set_text(event.text);
                break;
            case EventKind::choose:
                if (control->kind == ControlKind::folder_list) {
                    control->set_text(event.text);
                } else if (event.text.empty()) {
                    control->set_value(event.value);
                } else {
                    const auto item = std::find(control->items.begin(), control->items.end(), event.text);
                    if (item == control->items.end()) return;
                    control->set_value(static_cast<int>(item - control->items.begin()));
                }
                break;
            case EventKind::scroll:
                control->set_value(std::clamp(event.value, control->minimum, control->maximum));
                break;
            case EventKind::resize:
                control->width = static_cast<int>(event.x);
                control->height = static_cast<int>(event.y);
                control->sized_by_hand = true;
                break;
            default:
                break;
        }
    } else if (event.kind == EventKind::resize) {
        form.width = static_cast<int>(event.x);
        form.height = static_cast<int>(event.y);
    }
    if (handler != handlers_.end()) {
        handler->second(event);
    } else if (event.kind == EventKind::close) {
        if (form.step) throw ProgramEnd{0};
        shell_.close(form);
    }
}

}  // namespace kolvar
