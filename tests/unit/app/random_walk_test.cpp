// A user without a plan: random events on each road. The journal of the walk, played through the real windows, must end
// in the same run state, files and clipboard.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <sstream>

#include "app/scenario_runner.hpp"
#include "core/inspector.hpp"
#include "qt/desktop.hpp"
#include "support/test_support.hpp"

namespace kolvar::scenario {
namespace {

namespace fs = std::filesystem;

// The same numbers on every machine; the distributions of the standard library are not.
class Dice {
public:
    explicit Dice(unsigned seed) : source_(seed) {}
    int below(int n) { return static_cast<int>(source_() % static_cast<unsigned>(n)); }
    bool one_in(int n) { return below(n) == 0; }
    template <class T>
    const T& one_of(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }

private:
    std::mt19937 source_;
};

// Answers as the dice fall.
class RandomPlatform : public test::ScriptedPlatform {
public:
    RandomPlatform(Dice& dice, std::string folder, std::vector<std::string> data)
        : dice_(dice), folder_(std::move(folder)), data_(std::move(data)) {}
    bool ask(const std::string& text, const std::string& title) override {
        test::ScriptedPlatform::ask(text, title);
        return dice_.one_in(3);
    }
    std::string open_file(const FileDialog& dialog) override {
        if (dice_.one_in(4)) return {};
        const auto wants = [&](const char* ending) { return dialog.filter.find(ending) != std::string::npos; };
        const char* name = wants("*.set")   ? "Kolvar-default-h.set"
                           : wants("*.stc") ? "nist-srm-610.stc"
                           : wants("*.stm") ? "nbs-610-2004-12-19-1.stm"
                           : wants("*.blk") ? "2004-12-19-a.blk"
                           : wants("*.dwe") ? "quadrupole.dwe"
                           : wants("*.def") ? "KolvAge-default-b01.def"
                                            : dice_.one_of(data_).c_str();
        return folder_ + "/start-kit/" + name;
    }
    std::optional<std::string> save_file(const FileDialog& dialog) override {
        if (dice_.one_in(3)) return std::nullopt;
        return folder_ + "/" + dialog.name;
    }

private:
    Dice& dice_;
    std::string folder_;
    std::vector<std::string> data_;
};

bool leads_out(const Control& control) {
    if (control.name == "mnuFile") return control.index == 3;
    for (const char* name : {"cmdExit", "cmdCancel", "cmdExitUP", "cmdExitFLEX"})
        if (control.name == name && control.form.step) return true;
    return control.name == "cmdClose" && control.form.name == "frm1_Settings";
}

// Something that a user can do to this control; false when there is nothing.
bool event_of(const Control& control, Dice& dice, Event& event) {
    event.window = control.form.name;
    event.control = control.name;
    event.index = control.index;
    switch (control.kind) {
        case ControlKind::button:
        case ControlKind::check:
        case ControlKind::option:
        case ControlKind::menu_entry:
            event.kind = EventKind::click;
            return !leads_out(control);
        case ControlKind::entry: {
            if (control.locked) return false;
            // These complain when they lose the focus, and a walk has none.
            for (const char* complaining : {"txtSD", "txtMass2", "txtMass3"})
                if (control.name == complaining) return false;
            const std::vector<std::string> texts{"20", "3", "0", "abc", "153319", "2.5", ""};
            // In an entry of several lines Enter begins a new one.
            event.kind = !control.multiline && dice.one_in(3) ? EventKind::enter : EventKind::type;
            event.text = event.kind == EventKind::type ? dice.one_of(texts) : "";
            return true;
        }
        case ControlKind::list:
            if (control.items.empty()) return false;
            event.kind = EventKind::choose;
            event.value = dice.below(static_cast<int>(control.items.size()));
            return true;
        case ControlKind::scroll:
            event.kind = EventKind::scroll;
            event.value = control.minimum + dice.below(control.maximum - control.minimum + 1);
            return true;
        case ControlKind::picture:
            if (control.name == "pict3" || (control.form.name != "frm2_Time" && control.form.name != "frm2_UP"))
                return false;
            event.kind = EventKind::press;
            event.button = 1 + dice.below(2);
            event.shift = dice.one_in(2) ? 1 : 0;
            event.x = dice.below(control.width);
            event.y = dice.below(control.height);
            return true;
        case ControlKind::grid: {
            const auto& grid = static_cast<const Grid&>(control);
            if (grid.rows == 0 || grid.cols == 0) return false;
            event.kind = EventKind::cell_click;
            event.row = dice.below(grid.rows);
            event.col = dice.below(grid.cols);
            return true;
        }
        default:
            return false;
    }
}

// One step of the walk: an event on the window on top. The ways on are taken more often than their share of buttons.
void step(Program& program, Dice& dice) {
    Form* const form = program.shell().active();
    ASSERT_NE(form, nullptr);
    Event event;
    std::vector<const Control*> usable;
    for (const Control* control : form->controls) {
        if (!control->reachable() || !control->usable()) continue;
        usable.push_back(control);
        for (const char* onward : {"cmdNext", "cmdOK", "cmdCont", "pict1"})
            if (control->name == onward) usable.insert(usable.end(), 4, control);
    }
    if (usable.empty() || (!form->step && dice.one_in(8))) {
        event.kind = EventKind::close;
        event.window = form->name;
        if (!form->step) program.dispatch(event);
        return;
    }
    if (!event_of(*dice.one_of(usable), dice, event)) return;
    program.dispatch(event);
    if (event.kind == EventKind::press) {
        event.kind = EventKind::release;
        program.dispatch(event);
    }
}

std::map<std::string, std::string> files_in(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files[entry.path().lexically_relative(folder).string()] = test::bytes_of(entry.path().string());
    return files;
}

void lay_out_kit(const fs::path& work) {
    fs::remove_all(work);
    fs::create_directories(work);
    fs::copy(fs::path(KOLVAR_SOURCE_DIR) / "start-kit", work / "start-kit", fs::copy_options::recursive);
    // The whole path: the walk and its replay have different current folders.
    for (const char* path : {"start_path", "start_path_KolvAGE"})
        std::ofstream(work / "start-kit" / path) << '"' << (work / "start-kit").string() << "\"\r\n";
}

// The first cells that differ, by name.
std::string difference(const RunState& a, const RunState& b) {
    std::string found;
    int count = 0;
    for (const std::string& name : field_names()) {
        const FieldShape shape = field_shape(name);
        const int last1 = shape.dimensions > 0 ? shape.last1 : 0;
        const int last2 = shape.dimensions > 1 ? std::min(shape.last2, 200) : 0;  // no file of the kit is longer
        for (int i = 0; i <= last1; ++i)
            for (int j = 0; j <= last2; ++j) {
                if (field_get(a, name, i, j) == field_get(b, name, i, j)) continue;
                if (++count <= 5)
                    found += name + "(" + std::to_string(i) + "," + std::to_string(j) +
                             "): " + field_get(a, name, i, j).text() + " / " + field_get(b, name, i, j).text() + "; ";
            }
    }
    return found;
}

struct Road {
    std::string mode;  // what the internal-standard path is used for
    unsigned seed;
    int path = 0;
};
std::ostream& operator<<(std::ostream& out, const Road& road) { return out << road.mode << ' ' << road.seed; }

std::vector<std::string> data_of(int path) {
    if (path == 1) return {"001-std-91500.csv", "003-zircon-A-1.csv", "test-01-no-Hg-235-232.csv"};
    if (path == 3) return {"0-FLEX-UT19-50.xl"};
    return {"nist-610-1.csv", "example-1.csv"};
}

class RandomWalk : public ::testing::TestWithParam<Road> {};

TEST_P(RandomWalk, ItsJournalPlaysToTheSameEnd) {
    const test::TempFolder base;
    const fs::path work = base.path("work");
    lay_out_kit(work);
    Dice dice(GetParam().seed);
    const int path = GetParam().path;
    RandomPlatform os(dice, work.string(), data_of(path));
    Program program(os, (work / "start-kit").string());
    program.start(path);
    Event mode;
    mode.window = "frm1_Settings";
    mode.control = path == 0 ? GetParam().mode : path == 1 ? "cmdOK1" : "Command9";
    program.dispatch(mode);
    std::map<std::string, int> visits;
    for (int i = 0; i < 800 && !program.ended(); ++i) {
        step(program, dice);
        if (program.shell().active() != nullptr) ++visits[program.shell().active()->name];
        if (HasFatalFailure()) return;
    }
    EXPECT_FALSE(program.ended());
    // Two slices are too few for the statistics of the ratios; on the other path no click leads to a fault.
    for (const auto& box : os.boxes) EXPECT_TRUE(path != 0 || box.kind != "fault") << box.text;
    EXPECT_GT(visits[path == 0 ? "frm2_Time" : "frm2_UP"], 0);
    const std::map<std::string, std::string> files = files_in(work);

    lay_out_kit(work);
    const std::string journal = base.path("journal.scn");
    program.save_journal(journal);
    const std::string scenario =
        base.write("walk.scn", test::bytes_of(journal) + "expect clipboard " + scenario_quoted(os.clip) + "\n");
    RunOptions options{(work / "start-kit").string(), work.string()};
    const std::string text = test::bytes_of(scenario);
    const auto lines =
        std::count(text.begin() + static_cast<std::ptrdiff_t>(text.find("\nstart") + 1), text.end(), '\n');
    int played = 0;
    options.watch = [&](Program& replay, const Desktop&) {
        if (++played == lines) {
            EXPECT_EQ(difference(program.state(), replay.state()), "");
        }
    };
    std::ostringstream out, err;
    EXPECT_EQ(run_scenario(scenario, options, out, err), 0) << err.str();
    EXPECT_EQ(played, lines);
    EXPECT_EQ(files_in(work), files);
}

INSTANTIATE_TEST_SUITE_P(Roads, RandomWalk,
                         ::testing::Values(Road{"optData", 1}, Road{"optData", 2}, Road{"optCreatSTM", 3},
                                           Road{"optCreatSTM", 4}, Road{"optCreatBLK", 5}, Road{"optCreatBLK", 6},
                                           Road{"uranium_lead", 7, 1}, Road{"uranium_lead", 8, 1},
                                           Road{"solution", 9, 3}, Road{"solution", 10, 3}),
                         [](const auto& walk) { return walk.param.mode + std::to_string(walk.param.seed); });

}  // namespace
}  // namespace kolvar::scenario
