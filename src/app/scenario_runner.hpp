// Runs scenarios: plain text files that act on the windows as a person would and tell what must then hold.
#pragma once

#include <functional>
#include <ostream>
#include <string>

namespace kolvar {
class Desktop;
class Program;
}  // namespace kolvar

namespace kolvar::scenario {

struct RunOptions {
    std::string app_folder;   // the folder of the executable as the program sees it; "" = that of the running one
    std::string work;         // the current folder of the run; "" = a fresh one that goes with it
    bool keep_going = false;  // go on after an expectation that did not hold
    // For tests: looks at the program and its windows after each line that was carried out since the start.
    std::function<void(Program&, const Desktop&)> watch = {};
};

// Runs one file in a program of its own; there must be a QApplication. What is printed goes to `out`, failures to
// `err`. 0: all expectations held; 1: one did not; 2: the scenario itself is wrong.
int run_scenario(const std::string& path, const RunOptions& options, std::ostream& out, std::ostream& err);

}  // namespace kolvar::scenario
