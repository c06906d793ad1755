#include "app/scenario_runner.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

#include <stdlib.h>

#include <QCoreApplication>

#include "app/scenario_session.hpp"

namespace kolvar::scenario {
namespace {

namespace fs = std::filesystem;

// The current folder of a run; the former one comes back with the end, a fresh one is removed.
class WorkFolder {
public:
    explicit WorkFolder(const std::string& wanted) : former_(fs::current_path()) {
        if (wanted.empty()) {
            std::string name = (fs::temp_directory_path() / "kolvar-scenario-XXXXXX").string();
            if (mkdtemp(name.data()) == nullptr) throw Wrong{"can't make a folder for the run"};
            fresh_ = name;
            fs::current_path(fresh_);
            return;
        }
        std::error_code error;
        fs::create_directories(wanted, error);
        fs::current_path(wanted, error);
        if (error) throw Wrong{"can't run in " + wanted + ": " + error.message()};
    }
    ~WorkFolder() {
        std::error_code ignored;
        fs::current_path(former_, ignored);
        if (!fresh_.empty()) fs::remove_all(fresh_, ignored);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

private:
    fs::path former_;
    fs::path fresh_;
};

std::vector<std::string> lines_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file || fs::is_directory(path)) throw Wrong{"can't read the scenario"};
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (lines.empty() && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
        lines.push_back(std::move(line));
    }
    return lines;
}

class Run {
public:
    Run(std::string file, const RunOptions& options, std::ostream& out, std::ostream& err)
        : file_(std::move(file)),
          keep_going_(options.keep_going),
          watch_(options.watch),
          err_(err),
          session_(options.app_folder, out, err) {}

    int play(const std::vector<std::string>& lines) {
        for (std::size_t at = 0; at < lines.size() && status_ != 2; ++at) {
            session_.os.where = file_ + ":" + std::to_string(at + 1);
            attempt([&] { carry_out(lines[at]); });
            if (status_ != 0 && !keep_going_) return status_;
        }
        if (status_ == 0) attempt([&] { check_left(); });
        return status_;
    }

private:
    template <class Work>
    void attempt(Work&& work) {
        try {
            work();
        } catch (const Unmet& unmet) {
            err_ << session_.os.where << ": expected " << unmet.expected << " got " << unmet.got << "\n";
            status_ = std::max(status_, 1);
        } catch (const Wrong& wrong) {
            err_ << session_.os.where << ": " << wrong.what << "\n";
            status_ = 2;
        }
    }

    void carry_out(const std::string& line) {
        Words words(line);
        if (words.empty()) return;
        const std::string command = words.word("a command");
        if (!act(session_, command, words) && !expect(session_, command, words) && !print(session_, command, words) &&
            !prepare(session_, command, words))
            throw Wrong{"unknown command " + command};
        if (!session_.os.unanswered.empty()) throw Wrong{session_.os.unanswered};
        if (watch_) watch_(*session_.program, *session_.desktop);
    }

    // At the end nothing is left over: no answer that nobody asked for, no message that nobody expected.
    void check_left() {
        for (const ScenarioPlatform::Box& box : session_.os.boxes) {
            if (box.expected || box.optional) continue;
            session_.os.where = box.where;
            throw Wrong{"a message that nobody expected: " + json_text(box.text)};
        }
        if (session_.os.answers.empty()) return;
        session_.os.where = session_.os.answers.front().where;
        throw Wrong{"an answer that nobody asked for"};
    }

    std::string file_;
    bool keep_going_;
    std::function<void(Program&, const Desktop&)> watch_;
    std::ostream& err_;
    Session session_;
    int status_ = 0;
};

}  // namespace

int run_scenario(const std::string& path, const RunOptions& options, std::ostream& out, std::ostream& err) {
    try {
        const std::vector<std::string> lines = lines_of(path);
        RunOptions here = options;
        here.app_folder = options.app_folder.empty() ? QCoreApplication::applicationDirPath().toStdString()
                                                     : fs::absolute(options.app_folder).lexically_normal().string();
        const WorkFolder work(options.work);
        return Run(path, here, out, err).play(lines);
    } catch (const Wrong& wrong) {
        err << path << ": " << wrong.what << "\n";
        return 2;
    }
}

}  // namespace kolvar::scenario
