// One run of a scenario: the program, its windows, the system around it, and the commands that act on them.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "app/scenario_platform.hpp"
#include "app/scenario_words.hpp"
#include "qt/desktop.hpp"

namespace kolvar::scenario {

struct Session {
    ScenarioPlatform os;
    std::string app_folder;
    std::ostream& out;
    std::ostream& err;
    std::unique_ptr<Program> program;  // before `start` it has its windows, but none is shown
    std::unique_ptr<Desktop> desktop;  // goes before the program
    bool started = false;
    bool end_told = false;             // the scenario has expected the end
    std::size_t boxes_told = 0;        // so many of the first boxes have been expected

    Session(std::string folder, std::ostream& to_out, std::ostream& to_err);

    // A new program with new windows, not started yet.
    void renew();
    // The program: Wrong after an expected end, Unmet after any other end.
    Program& running();
    // Wrong when there is no such window or control.
    Form& window(const std::string& name);
    Control& control(const std::string& word);
    Control& control(const std::string& word, ControlKind kind, const char* what);
};

// Each carries out a command of its group; false when the command is none of them.
bool act(Session& session, const std::string& command, Words& words);
bool prepare(Session& session, const std::string& command, Words& words);  // answers, clock, files, disk
bool expect(Session& session, const std::string& command, Words& words);
bool print(Session& session, const std::string& command, Words& words);

// A whole file's bytes; Unmet when there is none.
std::string bytes_of_file(const std::string& path);

// A cell of the run state; Wrong for an unknown name or an index beyond its limits.
void check_field(const FieldAddress& field);

// JSON forms of what is printed; `expect` shows them as "got".
std::string json_text(const std::string& text);
std::string json_number(double number);
std::string json_value(const Value& value);
std::string json_colour(const std::optional<Colour>& colour);

}  // namespace kolvar::scenario
