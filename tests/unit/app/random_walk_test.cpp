// A user without a plan: random events on each road. The journal of the walk, played through the real windows, must end
// in the same run state, files and clipboard.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <set>
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
        if (dialog.filter.find("*.set") != std::string::npos && !saved_settings_.empty() && dice_.one_in(2))
            return saved_settings_;
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
        const std::string path = folder_ + "/" + fs::path(dialog.name).filename().string();
        if (path.ends_with(".set")) saved_settings_ = path;
        return path;
    }
    std::string clipboard() override {
        return clip = dice_.one_of<std::string>({"", "no table", "Al27\tSi29\r\n1\t2\r\n", copied_table()});
    }

private:
    [[nodiscard]] std::string copied_table() const {
        return test::bytes_of(folder_ + "/start-kit/Example-Copy-Paste.xls");
    }

    Dice& dice_;
    std::string folder_;
    std::vector<std::string> data_;
    std::string saved_settings_;
};

// The windows beside the steps of the internal-standard path, and in those before them what opens them.
const std::set<std::string> side_windows{"frm_SetIS", "frm_Period", "frm_InputForm",
                                         "frmPaste",  "frmHelp1",   "frm_Batch_IS"};

bool opens_side_window(const Control& control) {
    if (control.name == "mnuSettings") return control.index == 1 || control.index == 2;
    if (control.name == "hlp1") return control.index == 1 || control.index == 10;
    if (control.name == "mnuDefault") return control.index == 2;
    for (const char* name : {"cmdModiSet", "cmdSeq", "cmdPaste", "cmdPaste1", "cmdShow"})
        if (control.name == name) return true;
    return false;
}

bool ends_side_window(const Control& control) {
    for (const char* name : {"cmdApply", "cmdSaveAs", "cmdCancel", "cmdSave", "cmdOK", "cmsClose", "cmdClose"})
        if (control.name == name) return true;
    return false;
}

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
            // On the steps these complain when they lose the focus, and a walk has none.
            const bool beside = side_windows.contains(control.form.name);
            for (const char* complaining : {"txtSD", "txtMass2", "txtMass3", "txtStd", "txtStdEr"})
                if (control.name == complaining && !beside) return false;
            if (control.name.starts_with("txtMass")) {
                event.kind = EventKind::type;
                event.text = dice.one_of<std::string>({"5", "20", "87.5", "120", "300", "300.5", "abc", ""});
                return true;
            }
            std::vector<std::string> texts{"20", "3", "0", "abc", "153319", "2.5", ""};
            if (control.form.name == "frm_InputForm") texts = {"1", "2", "3", "4", "7", "0.5", "two"};
            if (control.name == "txtZizzRange") texts = {"0", "1", "2.5", "3", "few"};  // a wide band takes its time
            // In an entry of several lines Enter begins a new one.
            event.kind = !control.multiline && dice.one_in(3) ? EventKind::enter : EventKind::type;
            event.text = event.kind == EventKind::type ? dice.one_of(texts) : "";
            return true;
        }
        case ControlKind::list:
            if (control.items.empty()) return false;
            if (control.editable && dice.one_in(3)) {
                event.kind = EventKind::type;
                event.text = dice.one_of<std::string>({"Al27", "Xx99", ""});
                return true;
            }
            event.kind = EventKind::choose;
            event.value = dice.below(static_cast<int>(control.items.size()));
            return true;
        case ControlKind::label:
            event.kind = EventKind::click;
            return control.form.name == "frm_Period" && control.name != "lblNumber";
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

// What a walk has acted on, by window and control.
using Touched = std::map<std::string, std::set<std::string>>;

// One step of the walk: an event on the window on top. The ways on are taken more often than their share of buttons. In
// a window beside the steps what was not yet acted on comes first, and the ways out are rare.
void step(Program& program, Dice& dice, Touched& touched, bool aside) {
    Form* const form = program.shell().active();
    ASSERT_NE(form, nullptr);
    const bool beside = side_windows.contains(form->name);
    Event event;
    const auto acted_on = [&](const Control& control) { return touched[form->name].contains(control.address()); };
    std::vector<const Control*> usable, fresh, doors, fresh_doors;
    for (const Control* control : form->controls) {
        if (!control->reachable() || !control->usable()) continue;
        if (beside && form->controls.size() > 30 && ends_side_window(*control) && !dice.one_in(20)) continue;
        usable.push_back(control);
        if (!acted_on(*control)) fresh.push_back(control);
        if (opens_side_window(*control)) (acted_on(*control) ? doors : fresh_doors).push_back(control);
        if (beside) continue;
        for (const char* onward : {"cmdNext", "cmdOK", "cmdCont", "pict1"})
            if (control->name == onward) usable.insert(usable.end(), 4, control);
    }
    if (usable.empty() || (!form->step && dice.one_in(beside ? 40 : 8))) {
        event.kind = EventKind::close;
        event.window = form->name;
        if (!form->step) program.dispatch(event);
        return;
    }
    if (!fresh_doors.empty()) doors = fresh_doors;
    if (aside && !doors.empty() && dice.one_in(beside ? 12 : 2)) usable = doors;
    if (aside && beside && !fresh.empty() && !dice.one_in(4)) usable = fresh;
    const Control& control = *dice.one_of(usable);
    touched[form->name].insert(control.address());
    if (!event_of(control, dice, event)) return;
    program.dispatch(event);
    if (event.kind == EventKind::press) {
        event.kind = EventKind::release;
        program.dispatch(event);
    }
    // A boundary that is refused gets the focus back, so it is put right before anything else.
    if (beside && control.name.starts_with("txtMass")) {
        const std::string right = control.name == "txtMass2" ? "40" : "301";
        event.kind = EventKind::leave;
        event.text.clear();
        form->focus_wanted = nullptr;
        program.dispatch(event);
        if (form->focus_wanted == nullptr) return;
        form->focus_wanted = nullptr;
        event.kind = EventKind::type;
        event.text = right;
        program.dispatch(event);
        event.kind = EventKind::leave;
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
    // Help shows it, as it lies beside the program.
    fs::copy_file(fs::path(KOLVAR_SOURCE_DIR) / "help/kol-read-me.riz", work / "start-kit/kol-read-me.riz");
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
    bool aside = false;  // looks for the windows beside the steps
};
std::ostream& operator<<(std::ostream& out, const Road& road) { return out << road.mode << ' ' << road.seed; }

std::vector<std::string> data_of(int path) {
    if (path == 1) return {"001-std-91500.csv", "003-zircon-A-1.csv", "test-01-no-Hg-235-232.csv"};
    if (path == 3) return {"0-FLEX-UT19-50.xl"};
    return {"nist-610-1.csv", "example-1.csv"};
}

// In each window beside the steps every control that a user can change or press. Help shows one face at a time.
void expect_all_acted_on(Program& program, std::map<std::string, int>& visits, Touched& touched, int path) {
    const std::set<std::string> of_every_path{"frm_InputForm", "frmPaste", "frmHelp1"};
    for (const std::string& window : path == 0 ? side_windows : of_every_path) {
        EXPECT_GT(visits[window], 0) << window;
        for (const Control* control : program.forms().find(window)->controls) {
            Dice dice(1);
            Event event;
            if (window != "frmHelp1" && event_of(*control, dice, event)) {
                EXPECT_TRUE(touched[window].contains(control->address())) << window << "." << control->address();
            }
        }
    }
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
    Touched touched;
    const bool aside = GetParam().aside;
    for (int i = 0; i < (aside ? 3000 : 800) && !program.ended(); ++i) {
        step(program, dice, touched, aside);
        if (program.shell().active() != nullptr) ++visits[program.shell().active()->name];
        if (HasFatalFailure()) return;
    }
    EXPECT_FALSE(program.ended());
    // Two slices are too few for the statistics of the ratios; on the other path no click leads to a fault.
    for (const auto& box : os.boxes) EXPECT_TRUE(path != 0 || box.kind != "fault") << box.text;
    if (aside) {
        expect_all_acted_on(program, visits, touched, path);
    } else {
        EXPECT_GT(visits[path == 0 ? "frm2_Time" : "frm2_UP"], 0);
    }
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
                                           Road{"solution", 9, 3}, Road{"solution", 10, 3},
                                           Road{"optData", 11, 0, true}, Road{"optData", 12, 0, true},
                                           Road{"optData", 13, 0, true}, Road{"optCreatSTM", 14, 0, true},
                                           Road{"optCreatBLK", 15, 0, true}, Road{"uranium_lead", 16, 1, true},
                                           Road{"uranium_lead", 17, 1, true}, Road{"solution", 18, 3, true}),
                         [](const auto& walk) { return walk.param.mode + std::to_string(walk.param.seed); });

}  // namespace
}  // namespace kolvar::scenario
