// What can go wrong at run time: one exception type for every fault of a calculation or a file.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace kolvar {

enum class FaultKind {
    division_by_zero,
    overflow,
    domain,  // root or logarithm of a number that has none
    type,    // a text where a number is needed
    index,   // a cell beyond the limits of a table
    file_missing,
    file_unreadable,  // a folder, a locked file, a failed read
    end_of_file,      // fewer lines or fields than needed
    too_many,         // more columns, slices or records than a table holds
    disk_full,
    file_unwritable,
};

// The words that a fault box shows for a kind ("division by zero").
const char* fault_text(FaultKind kind);

// Thrown by fail() at the very statement that can't be carried out. What was written before stays.
struct Fault : std::exception {
    FaultKind kind;
    std::string file;       // path, "" when no file is concerned
    int line = 0;           // line of that file from 1, 0 when not known
    std::string offending;  // the text that could not be used, "" when there is none

    explicit Fault(FaultKind k) : kind(k) {}
    Fault(FaultKind k, std::string path, int at_line = 0, std::string text = {})
        : kind(k), file(std::move(path)), line(at_line), offending(std::move(text)) {}
    [[nodiscard]] const char* what() const noexcept override { return fault_text(kind); }
};

// The user (or the fault box) ended the program. It is no fault: nothing below main and the runner catches it.
struct ProgramEnd {
    int status = 0;  // exit status of the process
};

[[noreturn]] void fail(FaultKind kind);
[[noreturn]] void fail(FaultKind kind, std::string path, int line = 0, std::string text = {});

// Runs `work`; a fault in it runs `report` with the fault, anything else passes through. It is for procedures that
// report their own faults; all other faults go to the dispatcher.
template <class Work, class Report>
void guarded(Work&& work, Report&& report) {
    try {
        std::forward<Work>(work)();
    } catch (const Fault& fault) {
        std::forward<Report>(report)(fault);
    }
}

}  // namespace kolvar
