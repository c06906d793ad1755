// Where the walks of the dispatcher's fuzzer begin: the first windows, and places deep in the program that few random
// walks would reach.
#pragma once

#include <array>
#include <fstream>
#include <string>

#include "screens/program.hpp"
#include "support/random_user.hpp"

namespace kolvar::fuzz {

enum class Place {
    concentrations,         // frm1_Settings
    ages,                   // frm1_Settings
    solutions,              // frm1_Settings
    marked_concentrations,  // frm2_Time, blank and signal marked
    marked_ages,            // frm2_UP, the same
    marked_solutions,       // frm2_UP, the same: the ratios of the FLEX screen stand
    matrix,                 // frm3_Matrix
    output,                 // frm4_Output
    preview,                // frm5_Preview above it
    averages,               // frm_AverConc above frm2_Time
    defaults,               // frm_SetUP above frm2_UP
    flex_defaults,          // frm_Set_FLEX above frm2_UP
    refinement,             // frm2_UP, better limits proposed
    new_list,               // frm_FileList, the kit's files in it and not yet saved
    batch_of_standards,     // frm2_UP, two standards to go, the one in work marked
    batch_before_factors,   // frm2_UP, all standards done; frm_FileList above it, and frm_drift plotted
    batch_of_samples        // frm2_UP, factors written, a sample marked; the table of the list and frm_drift above it
};
constexpr int places = static_cast<int>(Place::batch_of_samples) + 1;

inline int method_of(Place place) {
    switch (place) {
        case Place::ages:
        case Place::marked_ages:
        case Place::defaults:
        case Place::refinement:
        case Place::new_list:
        case Place::batch_of_standards:
        case Place::batch_before_factors:
        case Place::batch_of_samples:
            return 1;
        case Place::solutions:
        case Place::marked_solutions:
        case Place::flex_defaults:
            return 3;
        default:
            return 0;
    }
}

// What a user does with full knowledge of the program.
class Hands {
public:
    Hands(Program& program, test::RandomPlatform& os) : program_(program), os_(os) {}

    void click(const char* window, const char* control, int index = -1) {
        dispatch(EventKind::click, window, control, index);
    }
    void dispatch(EventKind kind, const char* window, const char* control, int index = -1,
                  const std::string& text = {}) {
        Event event;
        event.kind = kind;
        event.window = window;
        event.control = control;
        event.index = index;
        event.text = text;
        program_.dispatch(event);
    }
    void open(const std::string& name, const char* menu = "mnuFile", int entry = 0) {
        os_.opens = {os_.kit() + "/" + name};
        click("frm1_Settings", menu, entry);
    }
    // Blank from slice 5 to 45, signal from 60 to 100.
    void mark(const char* window) {
        const int width = program_.forms().find(window)->find("pict1")->width;
        for (const int slice : {5, 45, 60, 100}) {
            Event event;
            event.window = window;
            event.control = "pict1";
            event.shift = slice < 50 ? 1 : 0;
            event.button = slice == 5 || slice == 60 ? 1 : 2;
            event.x = static_cast<double>(width) * slice / std::max(program_.state().nSlices, 1);
            for (const EventKind kind : {EventKind::press, EventKind::release}) {
                event.kind = kind;
                program_.dispatch(event);
            }
        }
    }

private:
    Program& program_;
    test::RandomPlatform& os_;
};

// The kit's spots as a list in work, as far as the standards (001, 002, 005, 008, 011 and 012) are measured. The ratios
// are those of the zircons 91500 and GJ-1, measured a little too low and the more so the later.
inline std::string list_of_spots(int standards_done, bool factors) {
    constexpr std::array names{"001-std-91500.csv",  "002-std-GJ-1.csv",   "003-zircon-A-1.csv", "004-zircon-B-1.csv",
                               "005-std-91500.csv",  "006-zircon-A-2.csv", "007-zircon-B-2.csv", "008-std-91500.csv",
                               "009-zircon-A-3.csv", "010-zircon-B-3.csv", "011-std-GJ-1.csv",   "012-std-91500.csv"};
    constexpr int last_field = 69;
    const auto record = [](const std::array<std::string, last_field + 1>& fields) {
        std::string line;
        for (const std::string& field : fields) line += (line.empty() ? "" : ",") + field;
        return line + "\r\n";
    };
    std::array<std::string, last_field + 1> fields;
    fields.fill("\"\"");
    const std::string done = "000" + std::to_string(standards_done);
    fields[0] = "\"0012/" + (factors ? "0006" : std::string("0000")) + "/0006/" + done + "\"";
    std::string all = record(fields);
    int position = 0, standards = 0;
    for (const std::string name : names) {
        fields.fill("\"\"");
        ++position;
        const bool standard = name.find("std") != std::string::npos;
        const bool jackson = name.find("GJ") != std::string::npos;
        fields[0] = '"' + name + '"';
        fields[1] = std::to_string(position);
        if (factors) fields[5] = fields[7] = "1.0" + std::to_string(20 + position);
        if (standard) {
            fields[2] = "\"Std\"";
            fields[3] = jackson ? "\"GJ-1\"" : "\"91500\"";
            if (standards++ < standards_done) {
                const int late = 60 - position;
                fields[11] = (jackson ? "0.095" : "0.174") + std::to_string(late);
                fields[12] = (jackson ? "0.78" : "1.79") + std::to_string(late);
                fields[13] = (jackson ? "0.058" : "0.073") + std::to_string(late);
                fields[17] = fields[19] = "0.001";
                fields[18] = "0.02";
            }
        }
        all += record(fields);
    }
    return all;
}

inline void open_batch(Hands& hands, test::RandomPlatform& os, int standards_done, bool factors) {
    std::ofstream(os.kit() + "/spots.msf", std::ios::binary | std::ios::trunc)
        << list_of_spots(standards_done, factors);
    hands.click("frm1_Settings", "cmdSequential");
    hands.open("spots.msf", "cmdOpenMaster", -1);
    hands.mark("frm2_UP");
}

// Brings a program that has just been started with the place's method there. Questions on the way are answered with No.
inline void go_to(Place place, Program& program, test::RandomPlatform& os) {
    Hands hands(program, os);
    os.yes_or_no.assign(20, false);
    switch (method_of(place)) {
        case 0:
            if (place == Place::concentrations) break;
            hands.click("frm1_Settings", "cmdOK");
            hands.click("frm1_Settings", "cmdNext");
            hands.mark("frm2_Time");
            break;
        case 1:
            if (place != Place::marked_ages && place != Place::defaults && place != Place::refinement) break;
            hands.open("001-std-91500.csv");
            hands.mark("frm2_UP");
            break;
        default:
            if (place == Place::solutions) break;
            hands.open("0-FLEX-UT19-50.xl");
            hands.mark("frm2_UP");
    }
    switch (place) {
        case Place::averages:
            hands.click("frm2_Time", "cmdShowConc");
            break;
        case Place::matrix:
        case Place::output:
        case Place::preview:
            hands.click("frm2_Time", "cmdNext");
            if (place == Place::matrix) break;
            hands.click("frm3_Matrix", "cmdNext");
            if (place == Place::preview) hands.click("frm4_Output", "cmdPreview");
            break;
        case Place::defaults:
        case Place::flex_defaults:
            hands.click("frm2_UP", "cmdSett");
            break;
        case Place::refinement:
            // A wide band would only take its time.
            hands.dispatch(EventKind::type, "frm2_UP", "txtZizzRange", -1, "2");
            hands.click("frm2_UP", "cmdZizeges");
            break;
        case Place::new_list:
            hands.click("frm1_Settings", "cmdSequential");
            hands.click("frm1_Settings", "cmdCreate");
            hands.dispatch(EventKind::choose, "frm_FileList", "Dir1", -1, os.kit());
            hands.click("frm_FileList", "cmdAccept");
            break;
        case Place::batch_of_standards:
            open_batch(hands, os, 4, false);
            for (int moves = 0; moves < 4; ++moves) hands.click("frm2_UP", "cmdOpenNext");
            hands.mark("frm2_UP");
            break;
        case Place::batch_before_factors:
            open_batch(hands, os, 6, false);
            hands.click("frm2_UP", "cmdOpenSeq");
            hands.click("frm2_UP", "cmdInterpolation");
            hands.click("frm_drift", "Command1");
            break;
        case Place::batch_of_samples:
            open_batch(hands, os, 6, true);
            hands.click("frm2_UP", "cmdShowTab");
            hands.click("frm2_UP", "cmdPlot");
            hands.click("frm_drift", "Command1");
            break;
        default:
            break;
    }
    os.yes_or_no.clear();
}

}  // namespace kolvar::fuzz
