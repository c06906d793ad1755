// The whole program without its surface: the bytes are what a user does and answers.
#pragma once

#include <algorithm>

#include "batch/master_file.hpp"
#include "core/inspector.hpp"
#include "entries.hpp"
#include "prologues.hpp"

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

// No table of the run state holds a number that is none, and no text shows one.
inline void require_numbers(const RunState& rs, const std::string& clipboard) {
    // The walks' files have less than 150 slices; it is their first columns that are calculated with.
    constexpr int slices = 150, columns = 8;
    for (const std::string& name : field_names()) {
        const FieldShape shape = field_shape(name);
        const int last1 = std::min(shape.last1, shape.dimensions > 1 ? columns : slices);
        const int last2 = std::min(shape.last2, slices);
        for (int i = 0; i <= last1; ++i)
            for (int j = 0; j <= last2; ++j) {
                const Value value = field_get(rs, name, i, j);
                require(!value.is_number() || std::isfinite(value.number()));
            }
    }
    for (const std::string& text : {rs.OutText, clipboard}) {
        for (std::size_t from = 0; from < text.size();) {
            const std::size_t end = std::min(text.find_first_of("\t\r\n ", from), text.size());
            std::string word = text.substr(from, end - from);
            if (!word.empty() && word.front() == '-') word.erase(0, 1);
            require(word != "nan" && word != "inf");
            from = end + 1;
        }
    }
}

// A batch in work stands in its file: the file reads, line for line.
inline void require_list(const RunState& rs) {
    require(rs.SeqCount >= 0 && rs.SeqCount <= MaxMaster);
    if (rs.MasterPath.empty() || !file_exists(rs.MasterPath)) return;
    RunState read;
    ReadMaster(read, rs.MasterPath);
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
    const auto place = static_cast<Place>(choices.below(places));
    test::RandomPlatform os(choices, folder.path(),
                            {"example-1.csv", "nist-610-1.csv", "001-std-91500.csv", "test-01-no-Hg-235-232.csv",
                             "0-FLEX-UT19-50.xl", "two.csv", "zeros.csv", "grubbs.dat", "missing.csv"});
    const std::vector<std::string> folders{kit.string(), folder.path(), folder.path() + "/none"};
    Program program(os, kit.string());
    program.start(method_of(place));
    go_to(place, program, os);
    constexpr int most_events = 600;
    constexpr auto endless = static_cast<std::size_t>(-1);
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
            os.disk_room = choices.one_in(64) ? static_cast<std::size_t>(choices.below(4000)) : endless;
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
    require_numbers(program.state(), os.clip);
    require_list(program.state());
}

}  // namespace kolvar::fuzz
