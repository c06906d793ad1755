#include "core/fault.hpp"

namespace kolvar {

const char* fault_text(FaultKind kind) {
    switch (kind) {
        case FaultKind::division_by_zero:
            return "division by zero";
        case FaultKind::overflow:
            return "overflow";
        case FaultKind::domain:
            return "root or logarithm of a number that has none";
        case FaultKind::type:
            return "a text in place of a number";
        case FaultKind::index:
            return "an index beyond the limits of a table";
        case FaultKind::file_missing:
            return "file not found";
        case FaultKind::file_unreadable:
            return "file can't be read";
        case FaultKind::end_of_file:
            return "unexpected end of file";
        case FaultKind::too_many:
            return "more entries than a table holds";
        case FaultKind::disk_full:
            return "disk full";
        case FaultKind::file_unwritable:
            return "file can't be written";
    }
    return "unknown fault";
}

void fail(FaultKind kind) { throw Fault(kind); }

void fail(FaultKind kind, std::string path, int line, std::string text) {
    throw Fault(kind, std::move(path), line, std::move(text));
}

}  // namespace kolvar
