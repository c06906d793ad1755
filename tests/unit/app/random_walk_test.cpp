// A user without a plan: random events on each road. The journal of the walk, played through the real windows, must end
// in the same run state, files and clipboard.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <tuple>

#include "app/scenario_runner.hpp"
#include "core/inspector.hpp"
#include "core/numbers.hpp"
#include "qt/desktop.hpp"
#include "support/random_user.hpp"
#include "support/test_support.hpp"

namespace kolvar::scenario {
namespace {

namespace fs = std::filesystem;

using test::Dice;
using test::RandomPlatform;

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

// What a walk has acted on, by window and control.
using Touched = std::map<std::string, std::set<std::string>>;

// One step of the walk: an event on the window on top. The ways on are taken more often than their share of buttons. In
// a window beside the steps what was not yet acted on comes first, and the ways out are rare.
void step(Program& program, Dice& dice, const std::vector<std::string>& folders, Touched& touched, bool aside) {
    Form* const form = program.shell().active();
    ASSERT_NE(form, nullptr);
    const bool beside = test::beside_the_steps(*form);
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
    if (!test::random_event(control, dice, folders, event)) return;
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
    int clicks = aside ? 3000 : 800;
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
            if (window != "frmHelp1" && test::random_event(*control, dice, {}, event)) {
                EXPECT_TRUE(touched[window].contains(control->address())) << window << "." << control->address();
            }
        }
    }
}

void click(Program& program, const std::string& window, const std::string& control, int index = -1) {
    Event event;
    event.window = window;
    event.control = control;
    event.index = index;
    program.dispatch(event);
}

// Back to the first window, by the ways that a user has.
void go_back(Program& program) {
    const auto way_back = [](const Form& form) -> std::string {
        if (form.name == "frm2_Time" || form.name == "frm2_UP" || form.name == "frm3_Matrix") return "cmdBack";
        return form.name == "frm4_Output" ? "cmdBackRej" : "";
    };
    for (int windows = 0; windows < 20 && program.shell().active()->name != "frm1_Settings"; ++windows) {
        const Form& form = *program.shell().active();
        if (form.step) {
            click(program, form.name, way_back(form));
        } else {
            Event event;
            event.window = form.name;
            event.kind = EventKind::close;
            program.dispatch(event);
        }
    }
    ASSERT_EQ(program.shell().active()->name, "frm1_Settings");
}

// What the walk has left behind stops nobody: with the files of the kit the road can be gone to its end. From the third
// path it is that of the second, to which the default file of the kit leads.
void expect_alive(Program& program, RandomPlatform& os, int path) {
    go_back(program);
    os.boxes.clear();
    const RunState& rs = program.state();
    const Frm1Settings& first = program.forms().frm1_Settings;
    const auto start_click = [&](const Control& control) {
        if (control.reachable() && control.usable()) click(program, "frm1_Settings", control.name, control.index);
    };
    const auto open = [&](const std::string& name, const std::string& menu, int entry) {
        // Settings as they came with the program: over those in the kit the walk may have saved others.
        const std::string folder = menu == "mnuFile" ? os.kit() : KOLVAR_SOURCE_DIR "/start-kit";
        os.opens = {folder + "/" + name};
        click(program, "frm1_Settings", menu, entry);
        EXPECT_TRUE(os.opens.empty()) << name;
    };
    const auto type = [&](const Control& control, const std::string& text) {
        Event event;
        event.kind = EventKind::type;
        event.window = "frm1_Settings";
        event.control = control.name;
        event.text = text;
        if (control.reachable() && control.usable()) program.dispatch(event);
    };
    const std::string window = path == 0 ? "frm2_Time" : "frm2_UP";
    if (path == 0) {
        open("Kolvar-default-h.set", "mnuSettings", 0);
        open("example-1.csv", "mnuFile", 0);
        open("nist-srm-610.stc", "mnuFile", 1);
        open("nbs-610-2004-12-19-1.stm", "mnuFile", 2);
        start_click(first.cmdBack);
        for (const Control* control :
             std::initializer_list<const Control*>{&first.optData, &first.optBfromData, &first.optDweUni})
            start_click(*control);
        type(first.txtDwell, "20");
        start_click(first.cmdOK);
        Event standard;
        standard.kind = EventKind::choose;
        standard.window = "frm1_Settings";
        standard.text = "Si29";
        for (const ListBox* list : {&first.comboIso, &first.comboIso2, &first.comboIso3}) {
            standard.control = list->name;
            if (list->reachable()) program.dispatch(standard);
        }
        for (const Entry* entry :
             {&first.txtISppm, &first.txtISppm2, &first.txtISppm3, &first.txtISerr, &first.txtISerr2, &first.txtISerr3})
            type(*entry, "153319");
        start_click(first.cmdNext);
    } else {
        open("KolvAge-default-b01.def", "mnuDefault", 0);
        open(data_of(1).front(), "mnuFile", 0);
    }
    EXPECT_EQ(program.shell().active()->name, window) << rs.MissSTC << rs.MissSTM << rs.MissBLK;
    // Twice: the first press may be wanted for the start of the laser.
    Event mark;
    mark.window = window;
    mark.control = "pict1";
    const double slice = quotient(program.forms().find(window)->find("pict1")->width, rs.nSlices);
    for (const auto& [button, shift, at] : {std::tuple{1, 1, 5}, {2, 1, 20}, {2, 0, 90}, {1, 0, 60}, {2, 0, 90}}) {
        // Between the limits that the walk has left and the new ones there may be nothing to divide by, and the user is
        // told.
        if (at == 60) os.boxes.clear();
        for (int time = 1; time <= 2; ++time) {
            mark.kind = EventKind::press;
            mark.button = button;
            mark.shift = shift;
            mark.x = slice * at;
            program.dispatch(mark);
            mark.kind = EventKind::release;
            program.dispatch(mark);
        }
    }
    EXPECT_EQ(rs.BlkLow, Limit(5));
    EXPECT_EQ(rs.BlkUpp, Limit(20));
    EXPECT_EQ(rs.SelLow, Limit(60));
    EXPECT_EQ(rs.SelUpp, Limit(90));
    if (path == 0) {
        os.yes_or_no = {false};
        click(program, "frm2_Time", "cmdNext");
        click(program, "frm3_Matrix", "cmdNext");
        EXPECT_EQ(program.shell().active()->name, "frm4_Output");
    }
    for (const auto& box : os.boxes) EXPECT_NE(box.kind, "fault") << box.text;
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
    std::vector<std::string> way_in{path == 0 ? GetParam().mode : path == 1 ? "cmdOK1" : "Command9"};
    if (GetParam().mode == "batch") way_in = {"cmdSequential", "cmdCreate"};
    for (const std::string& control : way_in) click(program, "frm1_Settings", control);
    std::map<std::string, int> visits;
    Touched touched;
    const bool aside = GetParam().aside;
    for (int i = 0; i < GetParam().clicks && !program.ended(); ++i) {
        step(program, dice, {os.kit()}, touched, aside);
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
    if (GetParam().mode == "batch") {
        EXPECT_GT(visits["frm_FileList"], 0);
        EXPECT_TRUE(fs::exists(work / "start-kit/0-start-kit.msf"));
    }
    expect_alive(program, os, path);
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
                                           Road{"uranium_lead", 17, 1, true}, Road{"solution", 18, 3, true},
                                           // Ten thousand on each road.
                                           Road{"optData", 21, 0, false, 10000},
                                           Road{"uranium_lead", 22, 1, false, 10000},
                                           Road{"solution", 23, 3, false, 10000}, Road{"batch", 24, 1, false, 10000},
                                           Road{"batch", 25, 1, false, 10000}),
                         [](const auto& walk) { return walk.param.mode + std::to_string(walk.param.seed); });

}  // namespace
}  // namespace kolvar::scenario
