// A batch in a folder of its own: five tables, its master file written by hand, and the moves through it.
#pragma once

#include <filesystem>
#include <map>

#include "unit/screens/up_fixture.hpp"

namespace kolvar::test {

class OnWalk : public OnUpWindow {
protected:
    struct Line {
        std::string name;
        bool standard = false;
        std::map<int, std::string> fields = {};  // further fields, as they stand in the file
    };
    using Lines = std::vector<Line>;
    using Names = std::vector<std::string>;

    static std::string quoted(const std::string& text) { return "\"" + text + "\""; }
    static std::string header(const std::string& counters) {
        std::string out = quoted(counters);
        for (int field = 1; field < 70; ++field) out += ",\"\"";
        return out + "\r\n";
    }
    static std::string record(const Line& line, int number) {
        std::string out = quoted(line.name) + "," + quoted(std::to_string(number)) + "," +
                          quoted(line.standard ? "Std" : "") + "," + quoted(line.standard ? "91500" : "");
        for (int field = 4; field < 70; ++field) {
            const auto found = line.fields.find(field);
            out += "," + (found == line.fields.end() ? std::string("\"\"") : found->second);
        }
        return out + "\r\n";
    }

    void SetUp() override { std::filesystem::create_directories(folder.path("day")); }
    std::string day(const std::string& name) const { return folder.path("day/" + name); }
    void table(const std::string& name) const {
        folder.write("day/" + name, bytes_of(std::string(KOLVAR_TEST_DATA) + "/results/panel.csv"));
    }
    // The master file and a table for each line.
    void write_day(const std::string& counters, const Lines& lines) const {
        std::string bytes = header(counters);
        int number = 0;
        for (const Line& line : lines) {
            bytes += record(line, ++number);
            table(line.name);
        }
        folder.write("day/0-day.msf", bytes);
    }
    // Sample, standard, sample, standard, sample: the list begins with a sample.
    static Lines five(const std::map<int, std::string>& standards = {},
                      const std::map<int, std::string>& samples = {}) {
        return {{"a.csv", false, samples},
                {"b.csv", true, standards},
                {"c.csv", false, samples},
                {"d.csv", true, standards},
                {"e.csv", false, samples}};
    }

    void open_master(const std::string& path = {}) {
        os.opens = {path.empty() ? day("0-day.msf") : path};
        click(forms().frm1_Settings, "cmdOpenMaster");
    }
    // The program on the first line of the master file.
    void go_to_day() {
        program->start(1);
        rs().setFormer_Sel = 0;  // a load that takes over limits asks for a blank
        open_master();
        ASSERT_TRUE(os.boxes.empty()) << os.boxes[0].text;
        ASSERT_TRUE(form().shown);
    }
    // The limits of this file are taken over by those after it.
    void mark_all() {
        OnUpWindow::mark_all();
        rs().setFormer_Sel = 1;
    }
    void next() { click(form(), "cmdOpenNext"); }
    void previous() { click(form(), "cmdOpenPrev"); }
    void save(int direction) { click(form(), "cmdSaveAnd", direction); }
    std::string file() { return rs().DataFileName; }
    // The files that so many moves open.
    Names files(int moves, const std::string& button) {
        Names out;
        for (int k = 0; k < moves; ++k) {
            click(form(), button);
            out.push_back(file());
        }
        return out;
    }
    bool can_save() { return form().cmdSaveAnd(0).enabled && form().cmdSaveAnd(1).enabled; }
    bool cannot_save() { return !form().cmdSaveAnd(0).enabled && !form().cmdSaveAnd(1).enabled; }
};

}  // namespace kolvar::test
