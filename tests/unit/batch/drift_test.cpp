#include "batch/drift.hpp"

#include <vector>

#include "core/numbers.hpp"
#include "drift_case.hpp"

namespace kolvar::test {
namespace {

class Drift : public DriftCase {};

TEST_F(Drift, ThreePointsGiveTheLineReckonedByHand) {
    // Sx 9, Sxx 35, Sy 3.3, Syy 3.65, Sxy 10.1: slope 0.6 / 24, r 0.6 / root of 24 x 0.06
    const std::vector<double> places{1, 3, 5}, values{1, 1.2, 1.1};
    const DriftLine line = fit_drift(places, values, 3);
    EXPECT_NEAR(line.slope, 0.025, 1e-13);
    EXPECT_NEAR(line.intercept, 1.025, 1e-13);
    EXPECT_NEAR(line.r, 0.5, 1e-12);
}

TEST_F(Drift, OnePlaceOrOneValueHasNoLine) {
    const std::vector<double> one{4}, places{1, 2}, equal{0.5, 0.5};
    expect_fault(FaultKind::division_by_zero, [&] { fit_drift(one, one, 1); });
    expect_fault(FaultKind::division_by_zero, [&] { fit_drift({}, {}, 0); });
    expect_fault(FaultKind::division_by_zero, [&] { fit_drift(places, equal, 2); });
}

TEST_F(Drift, FactorIsExpectedOverMeasured) {
    four_lines();
    find_drift(rs);
    EXPECT_NEAR(rs.DriftCF68(1), 0.8, 1e-15);
    EXPECT_NEAR(rs.DriftCF68(4), 1.4, 1e-15);
    EXPECT_NEAR(rs.DriftCF76(1), 1.0, 1e-15);
    EXPECT_NEAR(rs.DriftCF76(4), 1.2, 1e-15);
    EXPECT_NEAR(rs.DriftMin, 0.8, 1e-15);
    EXPECT_NEAR(rs.DriftMax, 1.4, 1e-15);
}

TEST_F(Drift, TheRatio207To235StaysAsMeasured) {
    rs.Std_75(1) = 99;
    four_lines();
    find_drift(rs);
    EXPECT_EQ(rs.DriftCF75(1), 1.4);
    EXPECT_EQ(rs.DriftCF75(4), 1.1);
}

TEST_F(Drift, AStandardThatTheTableDoesNotKnowKeepsItsMeasuredRatios) {
    four_lines();
    rs.MasterRecs(1, 3) = "Mud Tank";
    find_drift(rs);
    EXPECT_EQ(rs.DriftCF68(1), 0.35);
    EXPECT_EQ(rs.DriftCF76(1), 0.06);
    EXPECT_EQ(rs.DriftMin, 0.06);
}

TEST_F(Drift, RowsOfTheTableBeyondThoseInUseAreNotAsked) {
    rs.Std_Name(2) = "Mud Tank";
    rs.Std_68(2) = rs.Std_76(2) = 1;
    four_lines();
    rs.MasterRecs(1, 3) = "Mud Tank";
    find_drift(rs);
    EXPECT_EQ(rs.DriftCF68(1), 0.35);
    rs.setNumSTD = 2;
    find_drift(rs);
    EXPECT_NEAR(rs.DriftCF68(1), 1 / 0.35, 1e-15);
}

TEST_F(Drift, ASampleThatWaitsIsPassedOverAlsoUnderTheNameOfAStandard) {
    four_lines();
    for (const Value& nothing : {Value(), Value(""), Value(0), Value("0")}) {
        rs.MasterRecs(2, 3) = "Plesovice";
        rs.MasterRecs(2, 11) = nothing;
        find_drift(rs);
        EXPECT_EQ(rs.DriftCF68(2), 0) << nothing.text();
        EXPECT_NEAR(rs.DriftMin, 0.8, 1e-15);
    }
}

TEST_F(Drift, ASampleThatIsMeasuredDoesNotStretchTheScale) {
    four_lines();
    rs.MasterRecs(2, 3) = "Plesovice";
    rs.MasterRecs(2, 11) = 0.07;
    rs.MasterRecs(2, 12) = 80;
    rs.MasterRecs(2, 13) = 0.001;
    find_drift(rs);
    EXPECT_NEAR(rs.DriftCF68(2), 4, 1e-14);
    EXPECT_NEAR(rs.DriftCF76(2), 60, 1e-12);
    EXPECT_NEAR(rs.DriftMax, 1.4, 1e-15);
}

TEST_F(Drift, AStandardWithoutAMeasuredRatioIsAFault) {
    four_lines();
    for (const char* name : {"Plesovice", "Mud Tank"}) {
        rs.MasterRecs(4, 3) = name;
        for (const Value& nothing : {Value(), Value(""), Value(0)}) {
            rs.MasterRecs(4, 11) = nothing;
            expect_fault(FaultKind::division_by_zero, [&] { find_drift(rs); });
        }
    }
}

TEST_F(Drift, ARatioOfZeroInAStandardIsAFault) {
    four_lines();
    rs.MasterRecs(4, 13) = 0;
    expect_fault(FaultKind::division_by_zero, [&] { find_drift(rs); });
}

TEST_F(Drift, WithTwoStandardsTheLinePassesThroughBoth) {
    four_lines();
    find_drift(rs);
    Lin_Regr_DRI(rs, form);
    EXPECT_NEAR(rs.DriftB68, 0.2, 1e-14);
    EXPECT_NEAR(rs.DriftA68, 0.6, 1e-14);
    EXPECT_NEAR(rs.DriftR68, 1, 1e-14);
    EXPECT_NEAR(rs.DriftB75, -0.1, 1e-14);
    EXPECT_NEAR(rs.DriftA75, 1.5, 1e-14);
    EXPECT_NEAR(rs.DriftR75, -1, 1e-13);
    EXPECT_NEAR(rs.DriftB76, 0.2 / 3, 1e-14);
    EXPECT_NEAR(rs.DriftA76, 2.8 / 3, 1e-14);
    EXPECT_NEAR(rs.DriftR76, 1, 1e-13);
    EXPECT_EQ(form.lblLR68b.text, "0.2000");
    EXPECT_EQ(form.lblLR68r.text, "1.0000");
    EXPECT_EQ(form.lblLR75b.text, "-0.1000");
    EXPECT_EQ(form.lblLR75r.text, "-1.0000");
    EXPECT_EQ(form.lblLR76b.text, "0.0667");
    EXPECT_EQ(form.lblLR76r.text, "1.0000");
}

TEST_F(Drift, TheLineRunsOverThePositionInTheListAndCountsRejectedStandardsToo) {
    // Factors of 206/238 1, 1.2, 1.1 at the positions 1, 3, 5.
    for (const double measured : {0.28, 0.28 / 1.2, 0.28 / 1.1}) {
        add_standard(measured, measured, measured);
        add_sample();
    }
    find_drift(rs);
    Lin_Regr_DRI(rs, form);
    EXPECT_NEAR(rs.DriftB68, 0.025, 1e-13);
    EXPECT_NEAR(rs.DriftA68, 1.025, 1e-13);
    EXPECT_NEAR(rs.DriftR68, 0.5, 1e-12);
    // Without the second one: Sx 6, Sxx 26, Sy 2.1, Syy 2.21, Sxy 6.5, and n is 3 all the same.
    rs.DriftRej(3) = 1;
    find_drift(rs);
    Lin_Regr_DRI(rs, form);
    EXPECT_NEAR(rs.DriftB68, 6.9 / 42, 1e-13);
    EXPECT_NEAR(rs.DriftA68, (2.1 - 6 * 6.9 / 42) / 3, 1e-13);
    EXPECT_NEAR(rs.DriftR68, 6.9 / root(42 * 2.22), 1e-12);
    EXPECT_NEAR(rs.DriftMin, 0.06 / (0.28 / 1.0), 1e-14);  // 207/206 of the first standard
}

TEST_F(Drift, ARejectedStandardDoesNotStretchTheScale) {
    four_lines();
    add_standard(0.028, 1.2, 0.05);
    find_drift(rs);
    EXPECT_NEAR(rs.DriftMax, 10, 1e-13);
    rs.DriftRej(5) = 1;
    find_drift(rs);
    EXPECT_NEAR(rs.DriftMax, 1.4, 1e-15);
}

TEST_F(Drift, TwoLinesOrFewerLeaveLineAndLabelsAndTheFactorsComeOutZero) {
    add_standard(0.35, 1.4, 0.06);
    add_standard(0.2, 1.1, 0.05);
    form.lblLR68b.text = "as it was";
    find_drift(rs);
    Lin_Regr_DRI(rs, form);
    EXPECT_EQ(rs.DriftB68, 0);
    EXPECT_EQ(form.lblLR68b.text, "as it was");
    write_factors(rs);
    EXPECT_EQ(rs.MasterRecs(1, 5), Value(0));
    EXPECT_EQ(rs.MasterRecs(2, 7), Value(0));
}

TEST_F(Drift, FactorsOfEveryLineAreWrittenFor206To238And207To206Only) {
    four_lines();
    find_drift(rs);
    Lin_Regr_DRI(rs, form);
    write_factors(rs);
    const double factors68[] = {0.8, 1, 1.2, 1.4};
    const double factors76[] = {1, 1.06667, 1.13333, 1.2};
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(rs.MasterRecs(i, 5), Value(factors68[i - 1])) << i;
        EXPECT_EQ(rs.MasterRecs(i, 7), Value(factors76[i - 1])) << i;
        EXPECT_TRUE(rs.MasterRecs(i, 6).is_unset()) << i;
    }
    EXPECT_TRUE(rs.MasterRecs(0, 5).is_unset());
    EXPECT_TRUE(rs.MasterRecs(5, 5).is_unset());
}

TEST_F(Drift, FactorsAreRoundedHalfToEven) {
    add_sample();
    rs.DriftA68 = 1.000005;
    rs.DriftA76 = 1.000015;
    write_factors(rs);
    EXPECT_EQ(rs.MasterRecs(1, 5), Value(1));
    EXPECT_EQ(rs.MasterRecs(1, 7), Value(1.00002));
}

}  // namespace
}  // namespace kolvar::test
