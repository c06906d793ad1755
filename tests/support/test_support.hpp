// What unit tests share: a platform that answers from a script, a temporary folder, small files.
#pragma once

#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include "core/platform.hpp"

namespace kolvar::test {

// Boxes are recorded, questions and dialogs answered from the queues; an answer that is missing is No or cancelled.
class ScriptedPlatform : public Platform {
public:
    struct Box {
        std::string text, title, kind;  // kind: warning, question, fault
    };
    std::vector<Box> boxes;
    std::deque<bool> yes_or_no;
    std::deque<std::string> opens;                 // "" cancels
    std::deque<std::optional<std::string>> saves;  // nothing cancels
    std::deque<FaultAnswer> fault_answers;         // go_on when none is left
    std::vector<FileDialog> dialogs;
    std::vector<std::string> opened;
    std::string clip;
    DateTime clock{2009, 1, 7, 14, 3, 22};
    std::size_t disk_room = static_cast<std::size_t>(-1);
    std::string refused_rename;                   // a file whose new bytes vanish before they take its place
    std::vector<bool> wait_cursors;               // shown, then gone
    std::vector<std::pair<int, int>> progresses;  // done of all

    void wait_cursor(bool shown) override { wait_cursors.push_back(shown); }
    void progress(int done, int all) override { progresses.emplace_back(done, all); }

    void warn(const std::string& text, const std::string& title) override;
    bool ask(const std::string& text, const std::string& title) override;
    FaultAnswer fault(const std::string& text) override;
    std::string open_file(const FileDialog& dialog) override;
    std::optional<std::string> save_file(const FileDialog& dialog) override;
    std::string choose_folder(const std::string& start) override;
    std::string clipboard() override { return clip; }
    void set_clipboard(const std::string& text) override { clip = text; }
    bool open_document(const std::string& path) override;
    DateTime now() override { return clock; }
    std::string decimal_sign() override { return "."; }
    std::size_t room_on_disk(std::size_t wanted) override;
};

// A fresh folder that goes with the object.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    [[nodiscard]] std::string path(const std::string& name = {}) const;
    std::string write(const std::string& name, const std::string& bytes) const;  // returns the path
    [[nodiscard]] std::string read(const std::string& name) const;               // "" when missing

private:
    std::filesystem::path folder_;
};

std::string bytes_of(const std::string& path);

}  // namespace kolvar::test
