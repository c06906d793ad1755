// A batch for the drift: lines of a list with measured ratios, and one standard in the table.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "batch/drift.hpp"
#include "batch/drift_plot.hpp"

namespace kolvar::test {

class DriftCase : public ::testing::Test {
protected:
    DriftCase() {
        rs.setNumSTD = 1;
        rs.Std_Name(1) = "Plesovice";
        rs.Std_68(1) = 0.28;
        rs.Std_76(1) = 0.06;
    }

    void add_standard(double r68, double r75, double r76, const std::string& name = "Plesovice") {
        add_sample();
        rs.MasterRecs(rs.SeqCount, 2) = "Std";
        rs.MasterRecs(rs.SeqCount, 3) = name;
        measure(r68, r75, r76);
        rs.SeqStdCount += 1;
    }
    void add_sample() { rs.SeqCount += 1; }
    // The measured ratios of the last line.
    void measure(double r68, double r75, double r76) {
        rs.MasterRecs(rs.SeqCount, 11) = r68;
        rs.MasterRecs(rs.SeqCount, 12) = r75;
        rs.MasterRecs(rs.SeqCount, 13) = r76;
    }
    // Standard, two samples, standard. Factors of 206/238 0.8 and 1.4, measured 207/235 1.4 and 1.1, factors of
    // 207/206 1 and 1.2.
    void four_lines() {
        add_standard(0.35, 1.4, 0.06);
        add_sample();
        add_sample();
        add_standard(0.2, 1.1, 0.05);
    }
    template <class Work>
    void expect_fault(FaultKind kind, Work&& work) {
        try {
            work();
            ADD_FAILURE() << "no fault";
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.kind, kind);
        }
    }

    RunState rs;
    FrmDrift form;
};

}  // namespace kolvar::test
