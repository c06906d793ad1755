#include "upb/regression.hpp"

#include <array>

#include "core/fault.hpp"
#include "uranium_case.hpp"

namespace kolvar::test {
namespace {

TEST(FitLine, LeastSquaresOfFourPoints) {
    // x 5 6 7 8, y 2 4 5 9: Sx 26, Sxx 174, Sy 20, Syy 126, Sxy 141; slope (4 141 - 26 20) / (4 174 - 26 26) = 44 / 20.
    const std::array<double, 4> y{2, 4, 5, 9};
    const std::array<int, 4> flags{};
    const LineFit line = fit_line(y, flags, 5, 4);
    EXPECT_DOUBLE_EQ(line.slope, 2.2);
    EXPECT_DOUBLE_EQ(line.intercept, (20 - 2.2 * 26) / 4);
    // 44 / sqrt(20 (4 126 - 400)) = 44 / sqrt(2080)
    EXPECT_NEAR(line.correlation(), 0.964763821, 1e-9);
}

TEST(FitLine, FlaggedPointsAreLeftOut) {
    const std::array<double, 4> y{2, 100, 4, 5};
    const std::array<int, 4> flags{0, 1, 0, 0};
    // x 5 7 8, y 2 4 5: on a line.
    const LineFit line = fit_line(y, flags, 5, 3);
    EXPECT_DOUBLE_EQ(line.slope, 1);
    EXPECT_DOUBLE_EQ(line.intercept, -3);
    EXPECT_DOUBLE_EQ(line.correlation(), 1);
}

TEST(FitLine, AConstantRatioHasNoCorrelation) {
    const std::array<double, 3> y{2, 2, 2};
    const std::array<int, 3> flags{};
    const LineFit line = fit_line(y, flags, 1, 3);
    EXPECT_DOUBLE_EQ(line.slope, 0);
    EXPECT_DOUBLE_EQ(line.intercept, 2);
    EXPECT_THROW((void)line.correlation(), Fault);
}

TEST(FitLine, PointsAtOnePlaceHaveNoLine) {
    const std::array<double, 3> y{2, 3, 4};
    const std::array<int, 3> flags{1, 0, 2};
    EXPECT_THROW(fit_line(y, flags, 1, 1), Fault);
}

class Regression : public UraniumCase {
protected:
    // 206/238: 2 4 5 9, the line 2.2 t - 9.3, residuals 0.3 0.1 -1.1 0.7, their s.d. sqrt(1.8 / 3).
    Regression() {
        ratio(rs.Rat68, {2, 4, 5, 9});
        ratio(rs.Rat75, {1, 2, 3, 5});
        ratio(rs.Rat82, {1, 3, 2, 4});
        ratio(rs.Rat382, {4, 3, 2, 0});
        ratio(rs.Rat76, {0, 1, 1, 2});
    }
};

TEST_F(Regression, SlopeInterceptCorrelationAndTheValueAtTheStartOfTheSelection) {
    Lin_Regr_UP(context);
    EXPECT_DOUBLE_EQ(rs.Slope68, 2.2);
    EXPECT_DOUBLE_EQ(rs.Icpt68, -9.3);
    EXPECT_NEAR(rs.Corr68, 0.964763821, 1e-9);
    EXPECT_NEAR(rs.Tz68, 1.7, 1e-12);  // -9.3 + 5 2.2
    EXPECT_NEAR(rs.ResSD68, 0.774596669, 1e-9);
    EXPECT_NEAR(rs.TzErr68, 0.774596669, 1e-9);
    EXPECT_EQ(form.lblLR1b.text, "2.200");
    EXPECT_EQ(form.lblLR1r.text, "0.965");
    EXPECT_EQ(form.lblTz6_8.text, "1.700  \xC2\xB1 0.775");
    // 7/5: Sxy 78, slope (4 78 - 26 11) / 20 = 1.3, intercept (11 - 33.8) / 4 = -5.7.
    EXPECT_EQ(form.lblLR2b.text, "1.300");
    EXPECT_NEAR(rs.Tz75, 0.8, 1e-12);
}

TEST_F(Regression, TheTZeroPositionFollowsTheSetting) {
    rs.setTzero = 1;
    Lin_Regr_UP(context);
    EXPECT_NEAR(rs.Tz68, -9.3 + 4 * 2.2, 1e-12);
    rs.setTzero = 2;
    rs.setDelay = 1.5;
    Lin_Regr_UP(context);
    EXPECT_NEAR(rs.Tz68, -9.3 + 5.5 * 2.2, 1e-12);
    rs.setTzero = 1;
    rs.BeamStart = 0;
    Lin_Regr_UP(context);
    EXPECT_DOUBLE_EQ(rs.Tz68, -9.3);
}

TEST_F(Regression, AnyOtherSettingKeepsTheFormerValueAndStillWritesTheLabels) {
    rs.Tz68 = 7;
    rs.TzErr68 = 0.5;
    rs.setTzero = 3;
    rs.setErr = 4;
    Lin_Regr_UP(context);
    EXPECT_DOUBLE_EQ(rs.Tz68, 7);
    EXPECT_DOUBLE_EQ(rs.TzErr68, 0.5);
    EXPECT_EQ(form.lblTz6_8.text, "7.000  \xC2\xB1 0.500");
}

TEST_F(Regression, ErrorsByTheirSetting) {
    rs.setErr_times = 2;
    const double sd = 0.774596669;
    rs.setErr = 1;
    Lin_Regr_UP(context);
    EXPECT_NEAR(rs.TzErr68, 2 * (sd / 1.7 * 100), 1e-6);
    rs.setErr = 2;
    Lin_Regr_UP(context);
    EXPECT_NEAR(rs.TzErr68, 2 * sd / 1.7320508, 1e-7);  // the root of n - 1
    rs.setErr = 3;
    Lin_Regr_UP(context);
    EXPECT_NEAR(rs.TzErr68, 2 * (sd / 1.7 * 100) / 1.7320508, 1e-6);
}

TEST_F(Regression, WithRejectionTheTZeroPositionStaysTheFirstSelectedSlice) {
    ratio(rs.Rat68, {100, 4, 5, 6});
    rs.RejFlag(5) = 2;
    rs.SelNGood = 3;
    ratio(rs.Rat76, {0, 1, 1, 2});
    Lin_Regr_UP(context);
    EXPECT_DOUBLE_EQ(rs.Slope68, 1);
    EXPECT_DOUBLE_EQ(rs.Tz68, 3);  // on the line at slice 5
    EXPECT_NEAR(rs.ResSD68, 0, 1e-12);
}

// The line of a constant ratio stands, its T-zero value and what follows are those of before.
TEST_F(Regression, AConstantRatioEndsInAFaultAtItsCorrelation) {
    ratio(rs.Rat68, {2, 2, 2, 2});
    rs.Slope68 = rs.Icpt68 = rs.Corr68 = rs.Tz68 = rs.ResSD68 = rs.Slope75 = 9;
    form.lblLR1b.text = form.lblTz6_8.text = "old";
    EXPECT_THROW(Lin_Regr_UP(context), Fault);
    EXPECT_DOUBLE_EQ(rs.Slope68, 0);
    EXPECT_DOUBLE_EQ(rs.Icpt68, 2);
    EXPECT_DOUBLE_EQ(rs.Corr68, 9);
    EXPECT_DOUBLE_EQ(rs.Tz68, 9);
    EXPECT_DOUBLE_EQ(rs.ResSD68, 9);
    EXPECT_DOUBLE_EQ(rs.Slope75, 9);
    EXPECT_EQ(form.lblLR1b.text, "old");
    EXPECT_EQ(form.lblTz6_8.text, "old");
}

TEST_F(Regression, TheMedianOfOneToFourOverSlicesFiveToEight) {
    ratio(rs.Rat68, {3, 1, 4, 2});
    ratio(rs.Rat76, {3, 1, 4, 2});
    median_UP(rs);
    EXPECT_DOUBLE_EQ(rs.Med68, 2.5);
    EXPECT_DOUBLE_EQ(rs.MedianSorted(6), 2);
    EXPECT_DOUBLE_EQ(rs.MedianSorted(7), 3);
}

TEST_F(Regression, BelowThreeSlicesEverythingStays) {
    Lin_Regr_UP(context);
    ratio(rs.Rat68, {1, 2, 4, 9});
    select(5, 6);
    Lin_Regr_UP(context);
    EXPECT_DOUBLE_EQ(rs.Slope68, 2.2);
    EXPECT_EQ(form.lblLR1b.text, "2.200");
}

TEST_F(Regression, ThreeSlicesAreEnough) {
    select(5, 7);
    Lin_Regr_UP(context);
    EXPECT_DOUBLE_EQ(rs.Slope68, 1.5);  // 2 4 5
}

TEST_F(Regression, AMissingRatioKeepsItsLineButGetsResidualsAboutIt) {
    rs.ColU235 = 0;
    rs.Slope75 = 0;
    rs.Icpt75 = 2;
    rs.TzErr75 = 9;
    form.lblLR2b.text = form.lblTz7_5.text = "old";
    Lin_Regr_UP(context);
    EXPECT_EQ(form.lblLR2b.text, "old");
    EXPECT_EQ(form.lblTz7_5.text, "old");
    EXPECT_NEAR(rs.ResSD75, 1.91485422, 1e-8);  // -1 0 1 3 about the line of an earlier file: sqrt(11 / 3)
    EXPECT_DOUBLE_EQ(rs.TzErr75, 9);
}

TEST_F(Regression, MediansOfEvenAndOddSelections) {
    median_UP(rs);
    EXPECT_DOUBLE_EQ(rs.Med68, 4.5);
    EXPECT_DOUBLE_EQ(rs.Med75, 2.5);
    EXPECT_DOUBLE_EQ(rs.Med82, 2.5);
    EXPECT_DOUBLE_EQ(rs.Med382, 2.5);
    EXPECT_DOUBLE_EQ(rs.Med76, 1);
    select(5, 7);
    median_UP(rs);
    EXPECT_DOUBLE_EQ(rs.Med68, 4);
    EXPECT_DOUBLE_EQ(rs.Med382, 3);
}

// Slice 6 is rejected. Its place in the sorted table keeps what stood there, the smallest of all values, the rejected
// one too, fill the other places, and the middle of the full selection is read.
TEST_F(Regression, WhileSlicesAreRejectedTheMedianReadsWhatStoodAtTheirPlaces) {
    for (int t = 5; t <= 8; ++t) rs.MedianSorted(t) = 50;
    rs.RejFlag(6) = 1;
    ratio(rs.Rat68, {9, 1, 7, 3});
    ratio(rs.Rat76, {10, 20, 30, 40});
    median_UP(rs);
    EXPECT_DOUBLE_EQ(rs.Med68, (50 + 3) / 2.0);  // 1, kept 50, 3, 7
    EXPECT_DOUBLE_EQ(rs.Med76, (50 + 20) / 2.0);
    EXPECT_DOUBLE_EQ(rs.MedianSorted(5), 10);
    EXPECT_DOUBLE_EQ(rs.MedianSorted(6), 50);
    EXPECT_DOUBLE_EQ(rs.MedianSorted(8), 30);
}

TEST_F(Regression, ASliceThatFailsInTwoRatiosCountsForTheMedian) {
    rs.RejFlag(6) = 2;
    ratio(rs.Rat68, {9, 1, 7, 3});
    median_UP(rs);
    EXPECT_DOUBLE_EQ(rs.Med68, 5);  // 1 3 7 9
}

}  // namespace
}  // namespace kolvar::test
