#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>
#include <system_error>

#include "app/scenario_session.hpp"
#include "core/files.hpp"
#include "core/inspector.hpp"
#include "screens/settings_panels.hpp"

namespace kolvar::scenario {
namespace {

namespace fs = std::filesystem;
using AnswerKind = ScenarioPlatform::AnswerKind;

void give_answer(Session& session, Words& words) {
    static const std::map<std::string, AnswerKind> kinds = {
        {"yes", AnswerKind::yes},   {"no", AnswerKind::no},         {"open", AnswerKind::open},
        {"save", AnswerKind::save}, {"folder", AnswerKind::folder}, {"cancel", AnswerKind::cancel},
        {"end", AnswerKind::end},   {"continue", AnswerKind::go_on}};
    const std::string word = words.word("the kind of answer");
    const auto kind = kinds.find(word);
    if (kind == kinds.end()) throw Wrong{"unknown answer " + word};
    ScenarioPlatform::Answer answer{kind->second, {}, session.os.where};
    if (answer.kind == AnswerKind::open || answer.kind == AnswerKind::save || answer.kind == AnswerKind::folder)
        answer.path = words.path();
    words.finish();
    session.os.answers.push_back(std::move(answer));
}

// Numbers with one separator between each two: "2009-01-07".
template <std::size_t N>
std::array<int, N> parts_of(const std::string& word, char separator) {
    std::array<int, N> parts{};
    const char* at = word.data();
    const char* const end = at + word.size();
    for (std::size_t k = 0; k < N; ++k) {
        if (k > 0 && (at == end || *at++ != separator)) throw Wrong{"no date or time of day: " + word};
        const auto [behind, error] = std::from_chars(at, end, parts[k]);
        if (error != std::errc() || parts[k] < 0) throw Wrong{"no date or time of day: " + word};
        at = behind;
    }
    if (at != end) throw Wrong{"no date or time of day: " + word};
    return parts;
}

void fix_clock(Session& session, Words& words) {
    const auto [year, month, day] = parts_of<3>(words.word("a date"), '-');
    std::array<int, 3> time{};
    if (!words.at_end()) time = parts_of<3>(words.word("a time of day"), ':');
    words.finish();
    if (month < 1 || month > 12 || day < 1 || day > 31 || time[0] > 23 || time[1] > 59 || time[2] > 59)
        throw Wrong{"no date or time of day"};
    session.os.clock = DateTime{year, month, day, time[0], time[1], time[2]};
}

void fill_clipboard(Session& session, Words& words) {
    std::string text;
    if (words.take("from")) {
        const std::string path = words.path();
        if (!fs::is_regular_file(path)) throw Wrong{"no file " + path};
        text = to_text(bytes_of_file(path));
    } else {
        text = words.text("what the clipboard holds");
    }
    words.finish();
    session.os.clip = std::move(text);
}

void put_field(Session& session, Words& words) {
    const FieldAddress field = parse_field(words.word("a name of the run state"));
    const Value value = words.value();
    words.finish();
    Program& program = session.running();
    check_field(field);
    for (const IndexRange& range : field.indices)
        if (range.is_range) throw Wrong{"put writes one cell"};
    const int i = field.indices.empty() ? 0 : field.indices[0].first;
    const int j = field.indices.size() < 2 ? 0 : field.indices[1].first;
    std::string refused;
    guarded([&] { field_put(program.state(), field.name, value, i, j); },
            [&](const Fault& fault) { refused = fault.what(); });
    if (!refused.empty()) throw Wrong{field.name + " can't hold " + json_value(value) + ": " + refused};
    // No event of a window tells of the new value: what always shows it is told here.
    follow_number_of_standards(program.context());
    if (program.on_change) program.on_change();
}

void set_disk(Session& session, Words& words) {
    if (words.take("free")) {
        session.os.room.reset();
    } else if (words.take("full")) {
        session.os.room = 0;
    } else {
        const int bytes = words.whole("a number of bytes, full or free");
        if (bytes < 0) throw Wrong{"a disk has no room below 0"};
        session.os.room = static_cast<std::size_t>(bytes);
    }
    words.finish();
}

void make_folder_above(const std::string& path, std::error_code& error) {
    const fs::path parent = fs::path(path).parent_path();
    if (!parent.empty()) fs::create_directories(parent, error);
}

bool change_files(const std::string& command, Words& words) {
    std::error_code error;
    const auto check = [&](const std::string& path) {
        if (error) throw Wrong{command + " " + path + ": " + error.message()};
    };
    if (command == "copy") {
        const std::string from = words.path(), to = words.path();
        words.finish();
        if (!fs::exists(from)) throw Wrong{"nothing to copy: " + from};
        make_folder_above(to, error);
        check(to);
        fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing, error);
        check(to);
    } else if (command == "remove") {
        const std::string path = words.path();
        words.finish();
        fs::remove_all(path, error);
        check(path);
    } else if (command == "folder") {
        const std::string path = words.path();
        words.finish();
        if (fs::is_regular_file(path)) fs::remove(path, error);  // the folder takes its place
        check(path);
        fs::create_directories(path, error);
        check(path);
    } else if (command == "write") {
        const std::string path = words.path();
        const std::string text = words.text("what the file holds");
        words.finish();
        make_folder_above(path, error);
        check(path);
        std::ofstream file(path, std::ios::binary);
        file << text;
        file.close();
        if (!file) throw Wrong{"can't write " + path};
    } else {
        return false;
    }
    return true;
}

}  // namespace

bool prepare(Session& session, const std::string& command, Words& words) {
    if (command == "answer") {
        give_answer(session, words);
    } else if (command == "today") {
        fix_clock(session, words);
    } else if (command == "clipboard") {
        fill_clipboard(session, words);
    } else if (command == "put") {
        put_field(session, words);
    } else if (command == "decimal") {
        session.os.sign = words.text("the decimal sign");
        words.finish();
    } else if (command == "disk") {
        set_disk(session, words);
    } else {
        return change_files(command, words);
    }
    return true;
}

}  // namespace kolvar::scenario
