// The whole program without its surface: the bytes are what a user does and answers.
#pragma once

#include <algorithm>

#include "entries.hpp"
#include "screens/program.hpp"
#include "support/random_user.hpp"

namespace kolvar::fuzz {

// One decision a byte; behind the last byte all are the first choice.
class ChoicesOfBytes : public test::Choices {
public:
    explicit ChoicesOfBytes(Bytes bytes) : bytes_(bytes) {}
    int below(int n) override {
        if (n <= 1) return 0;
        unsigned drawn = next();
        if (n > 256) drawn = drawn << 8U | next();
        return static_cast<int>(drawn % static_cast<unsigned>(n));
    }
    [[nodiscard]] bool at_end() const { return bytes_.empty(); }

private:
    unsigned next() {
        if (bytes_.empty()) return 0;
        const unsigned byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }
    Bytes bytes_;
};

// What no sensible user types. A wide band of the refinement alone would only take its time.
inline void make_wild(const Control& control, test::Choices& choices, Event& event) {
    static const std::vector<std::string> texts{
        "-1",   "1E308",  "1e999", "-0.5", "0.0001",     "99999999999",        "6001",
        "a,\"", "#TRUE#", "1,5",   "../x", "\xC3\xA4\n", std::string(400, '9')};
    if (event.kind == EventKind::type && control.name != "txtZizzRange" && choices.one_in(2))
        event.text = choices.one_of(texts);
    if (!choices.one_in(16)) return;
    event.kind = static_cast<EventKind>(choices.below(static_cast<int>(EventKind::close)));
    event.value = choices.below(2000) - 1000;
    event.row = choices.below(300) - 5;
    event.col = choices.below(120) - 5;
    event.button = choices.below(3);
    event.shift = choices.below(8);
    event.x = choices.below(60000) - 15000;
    event.y = choices.below(60000) - 15000;
    event.target = choices.one_of<std::string>({"lblRatio", "chkIs", "", "none"});
    event.target_index = choices.below(120) - 5;
    if (event.kind == EventKind::type && control.name == "txtZizzRange") event.text = "2";
    // A window is never smaller than nothing, nor far larger than a screen.
    if (event.kind == EventKind::resize) event.x = std::abs(event.x), event.y = std::abs(event.y);
}

// Deep in the program: the file chosen, blank and signal marked.
inline void go_to_marked_selection(Program& program, test::RandomPlatform& os, int method) {
    const auto click = [&](const char* control, int index) {
        Event event;
        event.window = "frm1_Settings";
        event.control = control;
        event.index = index;
        program.dispatch(event);
    };
    if (method == 0) {
        click("cmdOK", -1);
        click("cmdNext", -1);
    } else {
        os.opens = {os.kit() + (method == 1 ? "/001-std-91500.csv" : "/0-FLEX-UT19-50.xl")};
        click("mnuFile", 0);
    }
    Event mark;
    mark.window = method == 0 ? "frm2_Time" : "frm2_UP";
    mark.control = "pict1";
    const int width = program.forms().find(mark.window)->find("pict1")->width;
    for (const int slice : {5, 45, 60, 100}) {
        mark.shift = slice < 50 ? 1 : 0;
        mark.button = slice == 5 || slice == 60 ? 1 : 2;
        mark.kind = EventKind::press;
        mark.x = static_cast<double>(width) * slice / std::max(program.state().nSlices, 1);
        program.dispatch(mark);
        mark.kind = EventKind::release;
        program.dispatch(mark);
    }
    require(program.shell().active() == program.forms().find(mark.window));
}

// Whatever is done, the program goes on with a window, or has ended because a window was closed; each fault was told
// and no operation is left running.
inline void dispatcher(Bytes bytes) {
    namespace fs = std::filesystem;
    static const ScratchFolder folder("program");
    const fs::path kit = fs::path(folder.path()) / "start-kit";
    fs::remove_all(folder.path());
    fs::create_directories(folder.path());
    fs::copy(fs::path(KOLVAR_SOURCE_DIR) / "start-kit", kit);
    const std::string named = '"' + kit.string() + "\"\r\n";
    for (const char* name : {"start_path", "start_path_KolvAGE"})
        std::ofstream(kit / name, std::ios::binary | std::ios::trunc) << named;
    std::ofstream(kit / "two.csv") << "Hg202,Pb204,Pb206,Pb207,Pb208,Th232,U238\n1,2,3,4,5,6,7\n2,0,3,-4,5,6,7\n";
    std::ofstream(kit / "zeros.csv") << "Pb206,Pb207,Pb208,U238,Si29\n"
                                     << [] {
                                            std::string rows;
                                            for (int slice = 0; slice < 40; ++slice) rows += "0,0,0,0,0\n";
                                            return rows;
                                        }();

    ChoicesOfBytes choices(bytes);
    constexpr int methods[] = {0, 1, 3, 0};
    const int method = methods[choices.below(4)];
    test::RandomPlatform os(choices, folder.path(),
                            {"example-1.csv", "nist-610-1.csv", "001-std-91500.csv", "test-01-no-Hg-235-232.csv",
                             "0-FLEX-UT19-50.xl", "two.csv", "zeros.csv", "grubbs.dat", "missing.csv"});
    const std::vector<std::string> folders{kit.string(), folder.path(), folder.path() + "/none"};
    Program program(os, kit.string());
    program.start(method);
    if (choices.one_in(2)) go_to_marked_selection(program, os, method);
    constexpr int most_events = 600;
    for (int done = 0; done < most_events && !choices.at_end() && !program.ended(); ++done) {
        const std::vector<Form*>& shown = program.shell().shown();
        require(!shown.empty());
        const Form& form = choices.one_in(8) ? *choices.one_of(shown) : *shown.back();
        std::vector<const Control*> usable;
        for (const Control* control : form.controls)
            if (control->reachable() && control->usable())
                usable.insert(usable.end(), control->kind == ControlKind::button ? 6U : 1U, control);
        Event event;
        event.window = form.name;
        event.kind = EventKind::close;
        if (!usable.empty() && !choices.one_in(32)) {
            const Control& control = *choices.one_of(usable);
            if (test::leads_out(control) && !choices.one_in(16)) continue;
            event.kind = EventKind::click;
            test::random_event(control, choices, folders, event);
            make_wild(control, choices, event);
        } else if (form.step) {
            continue;
        }
        program.dispatch(event);
        require(!program.busy());
        const RunState& rs = program.state();
        require(rs.nIso >= 0 && rs.nIso <= MaxIso && rs.nSlices >= 0 && rs.nSlices <= MaxSlices);
        require(os.wait_cursors.empty() || !os.wait_cursors.back());
        if (event.kind != EventKind::press) continue;
        event.kind = EventKind::release;
        program.dispatch(event);
    }
}

}  // namespace kolvar::fuzz
