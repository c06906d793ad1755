// A walk through all windows: the widgets show what the program holds, and its journal plays to the same end.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include "app/scenario_runner.hpp"
#include "core/inspector.hpp"
#include "qt/desktop.hpp"
#include "support/test_support.hpp"

namespace kolvar::scenario {
namespace {

namespace fs = std::filesystem;

const fs::path source_folder = KOLVAR_SOURCE_DIR;
const fs::path walk = source_folder / "tests/scenarios/runner/windows.scn";

std::map<std::string, Value> scalars_of(const RunState& rs) {
    std::map<std::string, Value> cells;
    for (const std::string& name : field_names()) {
        const FieldShape shape = field_shape(name);
        if (shape.dimensions == 0) cells[name] = field_get(rs, name);
        if (shape.dimensions == 1)
            for (int i = 0; i <= shape.last1; ++i) cells[name + "(" + std::to_string(i) + ")"] = field_get(rs, name, i);
    }
    return cells;
}

std::map<std::string, std::string> files_in(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().extension() != ".png")
            files[entry.path().lexically_relative(folder).string()] = test::bytes_of(entry.path().string());
    return files;
}

struct Played {
    int status = 2;
    std::string reported, journal;
    std::map<std::string, Value> cells;
    std::map<std::string, std::string> files;
};

// Each run has the same path, so that no text of the run state tells them apart.
Played play(const test::TempFolder& base, const std::string& scenario,
            const std::function<void(Program&, const Desktop&)>& look = {}) {
    const fs::path work = base.path("work");
    fs::remove_all(work);
    fs::create_directories(work);
    fs::copy(source_folder / "start-kit", work / "start-kit", fs::copy_options::recursive);
    Played played;
    RunOptions options{(work / "start-kit").string(), work.string()};
    options.watch = [&](Program& program, const Desktop& desktop) {
        played.journal = program.journal().text();
        if (program.ended()) played.cells = scalars_of(program.state());
        if (look) look(program, desktop);
    };
    std::ostringstream out, err;
    played.status = run_scenario(scenario, options, out, err);
    played.reported = err.str();
    played.files = files_in(work);
    return played;
}

std::string shown_text(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text().toStdString();
    if (const auto* entry = qobject_cast<const QLineEdit*>(&widget)) return entry->text().toStdString();
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget)) return lines->toPlainText().toStdString();
    return {};
}

void compare(const Control& control, const QWidget& widget) {
    const std::string name = control.form.name + "." + control.address();
    EXPECT_EQ(widget.isVisibleTo(widget.window()), control.reachable()) << name;
    EXPECT_EQ(widget.isEnabledTo(widget.window()), control.usable()) << name;
    if (control.kind == ControlKind::label || control.kind == ControlKind::entry) {
        EXPECT_EQ(shown_text(widget), control.text) << name;
    } else if (control.kind == ControlKind::check || control.kind == ControlKind::option) {
        EXPECT_EQ(qobject_cast<const QAbstractButton*>(&widget)->isChecked(), control.on()) << name;
    } else if (const auto* bar = qobject_cast<const QScrollBar*>(&widget)) {
        EXPECT_EQ(bar->value(), control.value) << name;
    } else if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        EXPECT_EQ(list->currentIndex(), control.value) << name;
        EXPECT_EQ(list->count(), static_cast<int>(control.items.size())) << name;
    }
}

// Plays a scenario and compares after each of its lines; the names of the windows that came up.
std::set<std::string> compare_while_playing(const std::string& scenario) {
    const test::TempFolder base;
    std::set<std::string> seen;
    const Played played = play(base, scenario, [&](Program& program, const Desktop& desktop) {
        if (program.ended()) return;
        for (const Form* form : program.forms().all()) {
            const QWidget* const window = desktop.window(*form);
            EXPECT_EQ(window != nullptr && window->isVisible(), form->shown) << form->name;
            if (!form->shown || window == nullptr) continue;
            seen.insert(form->name);
            EXPECT_EQ(window->windowTitle().toStdString(), form->title);
            for (const Control* control : form->controls)
                if (const QWidget* const widget = desktop.widget(*control)) compare(*control, *widget);
        }
    });
    EXPECT_EQ(played.status, 0) << played.reported;
    return seen;
}

TEST(Windows, ShowWhatTheProgramHoldsAfterEveryLine) {
    const std::set<std::string> seen = compare_while_playing(walk.string());
    for (const char* name : {"frm1_Settings", "frm2_Time", "frm3_Matrix", "frm4_Output", "frm5_Preview"})
        EXPECT_TRUE(seen.contains(name)) << name;
}

TEST(Windows, OfTheDefaultsShowWhatTheProgramHoldsAfterEveryLine) {
    const fs::path folder = source_folder / "tests/scenarios/defaults";
    for (const char* scenario : {"standards.scn", "minerals.scn", "results.scn"})
        EXPECT_TRUE(compare_while_playing((folder / scenario).string()).contains("frm_SetUP")) << scenario;
    EXPECT_TRUE(compare_while_playing((folder / "flex.scn").string()).contains("frm_Set_FLEX"));
}

// The journal holds what a user did. A cell that was put, with the ratio panel that needs it, and a full disk are none
// of that, so the walk is played here without them.
bool is_no_event(const std::string& line) {
    const auto has = [&](const char* part) { return line.find(part) != std::string::npos; };
    return line.starts_with("put ") || line.starts_with("disk ") || line.starts_with("expect file") || has("Ratio") ||
           has("atios");
}

TEST(Journal, PlaysToTheSameRunStateAndFiles) {
    const test::TempFolder base;
    std::istringstream lines(test::bytes_of(walk.string()));
    std::string events;
    for (std::string line; std::getline(lines, line);)
        if (!is_no_event(line)) events += line + "\n";
    const Played first = play(base, base.write("walk.scn", events));
    ASSERT_EQ(first.status, 0) << first.reported;
    ASSERT_FALSE(first.journal.empty());

    // Files that the user had beforehand are no event.
    const Played second = play(base, base.write("journal.scn", "write old.txt \"old\"\n" + first.journal));
    ASSERT_EQ(second.status, 0) << second.reported << first.journal;
    EXPECT_EQ(second.journal, first.journal);
    EXPECT_EQ(second.files, first.files);
    ASSERT_FALSE(first.cells.empty());
    for (const auto& [name, value] : first.cells)
        EXPECT_TRUE(second.cells.at(name) == value)
            << name << ": " << second.cells.at(name).text() << ", not " << value.text();
}

}  // namespace
}  // namespace kolvar::scenario
