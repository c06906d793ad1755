// The journal of a run: every event and every answer as lines of the scenario language, ready to be played again.
#pragma once

#include <string>
#include <vector>

#include "core/platform.hpp"

namespace kolvar {

class Journal {
public:
    // What an event needs before it (answers, the clipboard, the clock), the event itself, and the boxes that it
    // showed.
    void before(std::string line) { before_.push_back(std::move(line)); }
    void after(std::string line) { after_.push_back(std::move(line)); }
    // Closes the event that runs: moves its lines to the list.
    void event(const std::string& line);
    // Notes the clock when it differs from what was noted last.
    void clock(const DateTime& when);

    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
    [[nodiscard]] std::string text() const;

private:
    std::vector<std::string> lines_, before_, after_;
    std::string clock_;
};

}  // namespace kolvar
