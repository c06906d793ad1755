// The system around the program as a scenario plays it: answers given beforehand, boxes and documents recorded, a
// clipboard, a clock and a disk of its own.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "core/platform.hpp"

namespace kolvar::scenario {

class ScenarioPlatform : public Platform {
public:
    enum class AnswerKind { yes, no, open, save, folder, cancel, end, go_on };
    struct Answer {
        AnswerKind kind;
        std::string path;
        std::string where;  // FILE:LINE that gave it
    };
    struct Box {
        std::string text, title, kind;  // kind: warning, question, fault
        std::string answer;             // yes, no, end, continue; "" for a warning
        std::string where;              // FILE:LINE of what made it appear
        bool optional = false;          // may be passed over: it was answered, or tells of a missing document
        bool expected = false;
    };

    std::deque<Answer> answers;
    std::vector<Box> boxes;
    std::vector<std::string> documents;
    std::optional<FileDialog> last_dialog;
    std::string clip;
    std::optional<DateTime> clock;  // not fixed: the machine's
    std::string sign = ".";
    std::optional<std::size_t> room;  // bytes until the disk is full; none: no limit
    std::string where;                // FILE:LINE that runs
    // The first question or dialog that had no fitting answer; "" = none.
    std::string unanswered;

    void warn(const std::string& text, const std::string& title) override;
    bool ask(const std::string& text, const std::string& title) override;
    FaultAnswer fault(const std::string& text) override;
    std::string open_file(const FileDialog& dialog) override;
    std::optional<std::string> save_file(const FileDialog& dialog) override;
    std::string choose_folder(const std::string& start) override;
    std::string clipboard() override { return clip; }
    void set_clipboard(const std::string& text) override { clip = text; }
    bool open_document(const std::string& path) override;
    DateTime now() override;
    std::string decimal_sign() override { return sign; }
    std::size_t room_on_disk(std::size_t wanted) override;

private:
    // The oldest answer of one of the two kinds; notes that `asked` has none when there is no such answer.
    std::optional<Answer> next(AnswerKind one, AnswerKind other, const std::string& asked);

    bool document_missing_ = false;  // the next box tells so
};

// Line breaks as LF.
std::string with_line_feeds(const std::string& text);

}  // namespace kolvar::scenario
