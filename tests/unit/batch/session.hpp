// A session of four files, two of them standards, with the figures of the master files in tests/data/batch.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "batch/line_results.hpp"
#include "batch/master_file.hpp"
#include "core/fault.hpp"
#include "support/test_support.hpp"
#include "ui/forms/frm2_up.hpp"
#include "ui/forms/frm_file_list.hpp"

namespace kolvar::test {

inline std::string golden(const std::string& name) { return bytes_of(KOLVAR_TEST_DATA "/batch/" + name); }

// Every `from` in the text made `by`.
inline std::string replaced(std::string text, const std::string& from, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += by.size())
        text.replace(at, from.size(), by);
    return text;
}

class Session : public ::testing::Test {
protected:
    static constexpr const char* refused =
        "Due to the high risk of data loss it is not supported to overwrite an existing master file! Use another file "
        "name, please.";
    static constexpr const char* retry = "Error occurred while trying to save the master file, please retry.";

    Session() {
        set_start_values(rs);
        int column = 0;
        for (int* role : {&rs.ColU238, &rs.ColU235, &rs.ColTh232, &rs.ColPb208, &rs.ColPb207, &rs.ColPb206,
                          &rs.ColPb204, &rs.ColHg})
            *role = ++column;
        rs.setAver = 0;
        rs.setMean_UP = 0;
        rs.setPbAver = 0;
        rs.setTzero = 0;
        rs.setDelay = 0;
        rs.setErr_times = 2;
        rs.BlkLow = 5;
        rs.BlkUpp = 40;
        grid.resize(1000, 80);
        for (int c = 0; c < TitledFields; ++c) grid.cell(0, c).text = master_title(c);
    }

    void list(int row, const std::string& name, const std::string& kind, const std::string& standard) {
        grid.cell(row, 0).text = name;
        grid.cell(row, 1).text = std::to_string(row);
        grid.cell(row, 2).text = kind;
        grid.cell(row, 3).text = standard;
    }
    void list_four() {
        list(1, "001_915.csv", "Std", "91500");
        list(2, "002_unknown.csv", "", "");
        list(3, "003, second spot.csv", "", "GJ-1");
        list(4, "004_915.csv", "Std", "91500");
        rs.SeqCount = 4;
        rs.SeqStdCount = 2;
        rs.ListMode = 0;
    }
    // A list in memory as after reading it from a file.
    void lines(int count) {
        rs.SeqCount = count;
        for (int r = 1; r <= count; ++r) {
            rs.MasterRecs(r, 0) = "file" + std::to_string(r) + ".csv";
            rs.MasterRecs(r, 1) = std::to_string(r);
            for (int c = 2; c < MasterFields; ++c) rs.MasterRecs(r, c) = "";
        }
        rs.SeqPos = 1;
    }

    void means(double r68, double r75, double r76) { rs.Mean68 = r68, rs.Mean75 = r75, rs.Mean76 = r76; }
    void medians(double r68, double r75, double r76) { rs.Med68 = r68, rs.Med75 = r75, rs.Med76 = r76; }
    void errors(double e68, double e75, double e76) { rs.Err68 = e68, rs.Err75 = e75, rs.Err76 = e76; }
    void intercepts(double r68, double r75, double r76) { rs.Tz68 = r68, rs.Tz75 = r75, rs.Tz76 = r76; }
    void intercept_errors(double e68, double e75, double e76) { rs.TzErr68 = e68, rs.TzErr75 = e75, rs.TzErr76 = e76; }
    // cps of U238 .. Hg; their errors step * k + 0.5, blanks k + 0.25, errors of the blanks k + 0.75.
    void signals(std::initializer_list<double> cps, int step) {
        int k = 1;
        for (const double mean : cps) {
            rs.CpsMean(k) = mean;
            rs.CpsSD(k) = k * step + 0.5;
            rs.BlkMean(k) = k + 0.25;
            rs.BlkSD(k) = k + 0.75;
            ++k;
        }
    }
    void select(int low, int upp) { rs.SelLow = low, rs.SelUpp = upp; }

    void store(int line) {
        rs.SeqPos = line;
        store_line(rs, form, os);
    }
    // What the save button does with a line, without the move behind it.
    void save(int line) {
        store(line);
        rs.ListMode = 1;
        ASSERT_TRUE(SaveMaster(rs, os, grid, path));
    }
    Value field(int line, int number) { return rs.MasterRecs(line, number); }
    void expect_counters(int files, int samples_done, int standards, int standards_done, int phase) {
        EXPECT_EQ(rs.SeqCount, files);
        EXPECT_EQ(rs.SeqSamDone, samples_done);
        EXPECT_EQ(rs.SeqStdCount, standards);
        EXPECT_EQ(rs.SeqStdDone, standards_done);
        EXPECT_EQ(rs.SeqPhase, phase);
    }
    // The fault of a read, and that counters and list are as before.
    Fault refused_read(const std::string& bytes) {
        const std::string bad = folder.write("bad.msf", bytes);
        ReadMaster(rs, folder.write("good.msf", golden("5-first-sample.msf")));
        Fault out(FaultKind::index);
        bool faulted = false;
        guarded([&] { ReadMaster(rs, bad); },
                [&](const Fault& fault) {
                    out = fault;
                    faulted = true;
                });
        EXPECT_TRUE(faulted);
        EXPECT_EQ(out.file, bad);
        expect_counters(4, 3, 2, 2, 3);
        rs.ListMode = 1;
        EXPECT_TRUE(SaveMaster(rs, os, grid, folder.path("again.msf")));
        EXPECT_EQ(folder.read("again.msf"), golden("5-first-sample.msf"));
        return out;
    }

    RunState rs;
    Frm2UP form;
    FrmFileList window;
    Grid& grid = window.FlexGrid2;
    ScriptedPlatform os;
    TempFolder folder;
    std::string path = folder.path("0-run.msf");
};

}  // namespace kolvar::test
