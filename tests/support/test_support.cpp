#include "support/test_support.hpp"

#include <unistd.h>
#include <atomic>
#include <fstream>
#include <sstream>

namespace kolvar::test {

void ScriptedPlatform::warn(const std::string& text, const std::string& title) {
    boxes.push_back({text, title, "warning"});
}

bool ScriptedPlatform::ask(const std::string& text, const std::string& title) {
    boxes.push_back({text, title, "question"});
    if (yes_or_no.empty()) return false;
    const bool yes = yes_or_no.front();
    yes_or_no.pop_front();
    return yes;
}

Platform::FaultAnswer ScriptedPlatform::fault(const std::string& text) {
    boxes.push_back({text, "KOLVAR", "fault"});
    if (fault_answers.empty()) return FaultAnswer::go_on;
    const FaultAnswer answer = fault_answers.front();
    fault_answers.pop_front();
    return answer;
}

std::string ScriptedPlatform::open_file(const FileDialog& dialog) {
    dialogs.push_back(dialog);
    if (opens.empty()) return {};
    std::string path = opens.front();
    opens.pop_front();
    return path;
}

std::optional<std::string> ScriptedPlatform::save_file(const FileDialog& dialog) {
    dialogs.push_back(dialog);
    if (saves.empty()) return std::nullopt;
    std::optional<std::string> path = saves.front();
    saves.pop_front();
    return path;
}

std::string ScriptedPlatform::choose_folder(const std::string&) { return {}; }

bool ScriptedPlatform::open_document(const std::string& path) {
    opened.push_back(path);
    return true;
}

std::size_t ScriptedPlatform::room_on_disk(std::size_t wanted) {
    if (!refused_rename.empty()) std::filesystem::remove(refused_rename + ".part");
    const std::size_t taken = wanted < disk_room ? wanted : disk_room;
    disk_room -= taken;
    return taken;
}

TempFolder::TempFolder() {
    static std::atomic<int> counter{0};
    folder_ = std::filesystem::temp_directory_path() /
              ("kolvar-test-" + std::to_string(getpid()) + "-" + std::to_string(counter++));
    std::filesystem::create_directories(folder_);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string TempFolder::path(const std::string& name) const {
    return name.empty() ? folder_.string() : (folder_ / name).string();
}

std::string TempFolder::write(const std::string& name, const std::string& bytes) const {
    const std::string where = path(name);
    std::ofstream(where, std::ios::binary) << bytes;
    return where;
}

std::string TempFolder::read(const std::string& name) const { return bytes_of(path(name)); }

std::string bytes_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

}  // namespace kolvar::test
