#include "app/scenario_platform.hpp"

#include <algorithm>
#include <ctime>
#include <utility>

#include "core/files.hpp"

namespace kolvar::scenario {
namespace {

const char* answer_word(ScenarioPlatform::AnswerKind kind) {
    using enum ScenarioPlatform::AnswerKind;
    switch (kind) {
        case yes:
            return "yes";
        case no:
            return "no";
        case open:
            return "open";
        case save:
            return "save";
        case folder:
            return "folder";
        case cancel:
            return "cancel";
        case end:
            return "end";
        case go_on:
            return "continue";
    }
    return "";
}

}  // namespace

std::string with_line_feeds(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\r') {
            out += text[at];
        } else {
            out += '\n';
            if (at + 1 < text.size() && text[at + 1] == '\n') ++at;
        }
    }
    return out;
}

std::optional<ScenarioPlatform::Answer> ScenarioPlatform::next(AnswerKind one, AnswerKind other,
                                                               const std::string& asked) {
    const auto fits = [&](const Answer& answer) { return answer.kind == one || answer.kind == other; };
    const auto found = std::find_if(answers.begin(), answers.end(), fits);
    if (found != answers.end()) {
        Answer answer = std::move(*found);
        answers.erase(found);
        return answer;
    }
    if (!unanswered.empty()) return std::nullopt;
    unanswered = asked + " has no answer";
    if (!answers.empty())
        unanswered += std::string(", only \"answer ") + answer_word(answers.front().kind) + "\" is left (" +
                      answers.front().where + ")";
    return std::nullopt;
}

void ScenarioPlatform::warn(const std::string& text, const std::string& title) {
    boxes.push_back({with_line_feeds(text), title, "warning", "", where, std::exchange(document_missing_, false)});
}

bool ScenarioPlatform::ask(const std::string& text, const std::string& title) {
    const auto answer = next(AnswerKind::yes, AnswerKind::no, "the question \"" + text + "\"");
    const bool yes = answer && answer->kind == AnswerKind::yes;
    boxes.push_back({with_line_feeds(text), title, "question", yes ? "yes" : "no", where, true});
    return yes;
}

Platform::FaultAnswer ScenarioPlatform::fault(const std::string& text) {
    const auto answer = next(AnswerKind::end, AnswerKind::go_on, "the box of a fault \"" + text + "\"");
    const bool end = !answer || answer->kind == AnswerKind::end;
    boxes.push_back({with_line_feeds(text), "KOLVAR", "fault", end ? "end" : "continue", where, true});
    return end ? FaultAnswer::end : FaultAnswer::go_on;
}

std::string ScenarioPlatform::open_file(const FileDialog& dialog) {
    last_dialog = dialog;
    const auto answer = next(AnswerKind::open, AnswerKind::cancel, "the dialog that opens a file");
    return answer ? answer->path : std::string();
}

std::optional<std::string> ScenarioPlatform::save_file(const FileDialog& dialog) {
    last_dialog = dialog;
    const auto answer = next(AnswerKind::save, AnswerKind::cancel, "the dialog that saves a file");
    if (!answer || answer->kind == AnswerKind::cancel) return std::nullopt;
    return answer->path;
}

std::string ScenarioPlatform::choose_folder(const std::string&) {
    const auto answer = next(AnswerKind::folder, AnswerKind::cancel, "the dialog that chooses a folder");
    return answer ? answer->path : std::string();
}

bool ScenarioPlatform::open_document(const std::string& path) {
    documents.push_back(path);
    const bool on_web = path.starts_with("http://") || path.starts_with("https://");
    document_missing_ = !on_web && !file_exists(path);
    return !document_missing_;
}

DateTime ScenarioPlatform::now() {
    if (clock) return *clock;
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::size_t ScenarioPlatform::room_on_disk(std::size_t wanted) {
    if (!room) return wanted;
    const std::size_t taken = std::min(wanted, *room);
    *room -= taken;
    return taken;
}

}  // namespace kolvar::scenario
