// The lower plot, and the single curves.
#include <gtest/gtest.h>

#include <cmath>

#include "plot_bench.hpp"
#include "screens/plots.hpp"

namespace kolvar {
namespace {

using test::commands;
using test::lines;
using test::PlotBench;

void expect_line(const DrawCommand& line, double x1, double y1, double x2, double y2) {
    EXPECT_NEAR(line.x1, x1, 1e-6);
    EXPECT_NEAR(line.y1, y1, 1e-6);
    EXPECT_NEAR(line.x2, x2, 1e-6);
    EXPECT_NEAR(line.y2, y2, 1e-6);
}

// 3 columns by 4 slices; slice s stands at 2250 s. Column 1 is the internal standard.
struct LowerPlot : testing::Test {
    PlotBench bench{3, 4};
    RunState& rs = bench.rs;
    Frm2Time& frm = bench.frm;
    LowerPlot() {
        bench.net_signal(1, {10, 10, 10, 10});
        bench.net_signal(2, {10, 25, 30, 45});
        bench.only_curve(2);
        rs.SelLow = 2;
        rs.SelUpp = 3;
    }
};

TEST_F(LowerPlot, RatiosToTheInternalStandardScaledByTheSelection) {
    draw_all(bench.context);
    // Ratios 1, 2.5, 3, 4.5; the greatest of slices 2 and 3 is 3, so the scale ends at 4.
    EXPECT_DOUBLE_EQ(rs.MaxRatio, 4);
    EXPECT_DOUBLE_EQ(rs.ScaleStep2, 4);
    const auto curve = lines(frm.pict2, palette(12));
    ASSERT_EQ(curve.size(), 3U);
    expect_line(curve[0], 2250, 775, 4500, 437.5);
    expect_line(curve[1], 4500, 437.5, 6750, 325);
    expect_line(curve[2], 6750, 325, 9000, -12.5);
}

TEST_F(LowerPlot, StaysLinearUnderALogarithmicSignalPlot) {
    rs.LinearView = false;
    draw_all(bench.context);
    const auto curve = lines(frm.pict2, palette(12));
    ASSERT_EQ(curve.size(), 3U);
    expect_line(curve[0], 2250, 775, 4500, 437.5);
}

TEST_F(LowerPlot, DenominatorOfZeroIsAGapOnBothSides) {
    bench.net_signal(1, {10, 0, 10, 10});
    draw_all(bench.context);
    const auto curve = lines(frm.pict2, palette(12));
    ASSERT_EQ(curve.size(), 1U);
    expect_line(curve[0], 6750, 325, 9000, -12.5);
}

TEST_F(LowerPlot, ColumnWithoutAnInternalStandardHasNoCurve) {
    rs.IsoISidx(2) = 0;
    draw_all(bench.context);
    EXPECT_TRUE(lines(frm.pict2, palette(12)).empty());
}

TEST_F(LowerPlot, ConcentrationsWithTextCellsAsGaps) {
    rs.setRatio_ppmIS = 1;
    rs.ConcT(2, 1) = 100.0;
    rs.ConcT(2, 2) = 200.0;
    rs.ConcT(2, 3) = Mark::xx;
    rs.ConcT(2, 4) = 900.0;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.MaxRatio, 300);  // 200 stands on a step
    const auto curve = lines(frm.pict2, palette(12));
    ASSERT_EQ(curve.size(), 1U);
    expect_line(curve[0], 2250, 700, 4500, 400);
}

TEST_F(LowerPlot, PairsOfColumnsWithTheirBoxesOn) {
    rs.setRatio_ppmIS = 2;
    bench.net_signal(3, {5, 5, 5, 5});
    rs.RatioCol(0) = 2, rs.RatioCol(1) = 1;  // pair 1: 1, 2.5, 3, 4.5
    rs.RatioCol(2) = 2, rs.RatioCol(3) = 3;  // pair 2: 2, 5, 6, 9
    rs.RatioCol(4) = 2;                      // pair 3 has no denominator
    for (int pair = 1; pair <= 6; ++pair) frm.chkR(pair).value = 1;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.MaxRatio, 8);
    auto first = lines(frm.pict2, palette(0));
    ASSERT_EQ(first.size(), 3U);
    expect_line(first[0], 2250, 887.5, 4500, 718.75);
    EXPECT_EQ(lines(frm.pict2, palette(12)).size(), 3U);
    EXPECT_TRUE(lines(frm.pict2, palette(9)).empty());

    frm.chkR2.value = 0;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.MaxRatio, 4);
    EXPECT_TRUE(lines(frm.pict2, palette(12)).empty());
}

TEST_F(LowerPlot, WithoutASelectionTheScaleEndsAtItsSmallest) {
    rs.SelLow.clear();
    rs.SelUpp.clear();
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.MaxRatio, 0.00012);
    EXPECT_EQ(frm.lblMaxIIS.text, "0.0001");
}

TEST_F(LowerPlot, LowerLimitAloneGivesNoMaximum) {
    rs.SelUpp.clear();
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.MaxRatio, 0.00012);
}

TEST_F(LowerPlot, UpperLimitAloneScalesFromTheStart) {
    rs.SelLow.clear();
    rs.SelUpp = 2;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.MaxRatio, 3);
}

TEST_F(LowerPlot, TypedLimitWorksOnce) {
    rs.YMaxEntry2 = 0.35;
    draw_all(bench.context);
    EXPECT_NEAR(rs.MaxRatio, 0.4, 1e-12);
    EXPECT_EQ(rs.YMaxEntry2, Value(""));
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.MaxRatio, 4);
}

TEST_F(LowerPlot, LabelsTakeTheirDecimalsFromTheSize) {
    const struct {
        double entered;
        const char* text;
    } cases[] = {{1500, "2000"},  {1.7, "2"},        {1.3, "1.5"},      {0.09, "0.1"},
                 {0.07, "0.080"}, {0.0009, "0.001"}, {0.0007, "0.0008"}};
    for (const auto& each : cases) {
        rs.YMaxEntry2 = each.entered;
        draw_all(bench.context);
        EXPECT_EQ(frm.lblMaxIIS2.text, frm.lblMaxIIS.text);
        EXPECT_EQ(frm.lblMaxIIS.text, each.text) << each.entered;
    }
}

TEST_F(LowerPlot, MaximumIsShownOnlyWhenConcentrationsAreCalculated) {
    rs.ModeData = 0;
    rs.ModeCreateSTM = 1;
    frm.lblMaxIIS.visible = frm.lblMaxIIS2.visible = false;
    draw_all(bench.context);
    EXPECT_FALSE(frm.lblMaxIIS.visible || frm.lblMaxIIS2.visible);
}

TEST_F(LowerPlot, FreshScaleFlagStaysSoThatAZoomedScaleBecomesTheFullOne) {
    rs.ScaleFresh2 = true;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.FullMax2, 4);
    EXPECT_TRUE(rs.ScaleFresh2);
    rs.YMaxEntry2 = 1.7;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.FullMax2, 2);
}

TEST_F(LowerPlot, FirstScaleWaitsForASelectionAndIsTakenOnce) {
    rs.AutoScale2 = true;
    rs.SelLow.clear();
    rs.SelUpp.clear();
    draw_all(bench.context);
    EXPECT_TRUE(rs.AutoScale2);
    rs.SelLow = 2;
    rs.SelUpp = 3;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.FullMax2, 4);
    EXPECT_FALSE(rs.AutoScale2);
    rs.YMaxEntry2 = 1.7;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(rs.FullMax2, 4);
}

TEST_F(LowerPlot, MaximumOfTenToTheTenthDrawsNoCurve) {
    bench.net_signal(2, {10, 2e11, 30, 45});
    draw_all(bench.context);
    EXPECT_TRUE(lines(frm.pict2, palette(12)).empty());
}

struct SingleCurves : LowerPlot {
    SingleCurves() {
        rs.setAllCurve = 0;
        bench.signal(1, {0, 50, 100, 0});
        bench.signal(2, {100, 100, 100, 100});
        rs.Curve1 = 1;
        rs.Curve2 = 2;
        rs.MaxCps = 100;
    }
};

TEST_F(SingleCurves, AreScaledByTheCallersMaximum) {
    draw_pict1(bench.context);
    const auto first = lines(frm.pict1, palette(0));
    ASSERT_EQ(first.size(), 3U);
    expect_line(first[0], 2250, 1000, 4500, 550);
    expect_line(first[1], 4500, 550, 6750, 100);
    EXPECT_EQ(lines(frm.pict1, palette(12)).size(), 3U);
    EXPECT_DOUBLE_EQ(rs.FullMax, 100);
    EXPECT_EQ(frm.lblMaxCps.text, "100.0");
    EXPECT_EQ(frm.pict1.canvas.draws(), 1);
}

// Piece by piece from slice to slice: the line of the lower limit, then six pieces for each of the slices 2 to 4.
TEST_F(SingleCurves, AreDrawnSliceBySliceInColoursOfAnOrderOfTheirOwn) {
    rs.Curve3 = rs.Curve4 = rs.Curve5 = rs.Curve6 = 3;
    rs.MaxRatio = 4;
    for (int t = 1; t <= 4; ++t) rs.Sig2(1, t) = rs.Sig2(2, t) = rs.Sig2(3, t) = 10;
    draw_pict1(bench.context);
    std::vector<Colour> expected{palette(6)};
    for (int t = 2; t <= 4; ++t)
        for (const int colour : {0, 12, 10, 9, 13, 11}) expected.push_back(palette(colour));
    for (const Picture* plot : {&frm.pict1, &frm.pict2}) {
        std::vector<Colour> colours;
        for (const DrawCommand& line : commands(*plot, DrawCommand::Kind::line)) colours.push_back(line.colour);
        EXPECT_EQ(colours, expected) << plot->name;
    }
}

TEST_F(SingleCurves, CurveThatIsNotSetIsNotDrawn) {
    rs.Curve1 = 0;
    draw_pict1(bench.context);
    EXPECT_TRUE(lines(frm.pict1, palette(0)).empty());
}

TEST_F(SingleCurves, TypedLimitOverridesAfterTheFullScaleWasTaken) {
    rs.YMaxEntry = 50;
    draw_pict1(bench.context);
    EXPECT_DOUBLE_EQ(rs.FullMax, 100);
    EXPECT_DOUBLE_EQ(rs.MaxCps, 50);
    EXPECT_EQ(rs.YMaxEntry, Value(""));
    EXPECT_EQ(frm.lblMaxCps.text, "50.0");
}

TEST_F(SingleCurves, LogarithmicViewEndsWithTheLogarithmOfTheLogarithm) {
    rs.LinearView = false;
    draw_pict1(bench.context);
    const double top = std::log(100.0);
    EXPECT_NEAR(rs.FullMax, top, 1e-12);
    EXPECT_NEAR(rs.MaxCps, std::log(top), 1e-12);
    EXPECT_FALSE(frm.lblMaxCps.visible);
    EXPECT_TRUE(lines(frm.pict1, palette(8)).empty());  // 1.527 has one digit: no decade
    const auto second = lines(frm.pict1, palette(12));
    ASSERT_EQ(second.size(), 3U);
    expect_line(second[0], 2250, 100, 4500, 100);
}

TEST_F(SingleCurves, TypedLimitOnALogarithmicViewMarksADecadeOfItsLogarithm) {
    rs.LinearView = false;
    rs.YMaxEntry = 1e6;
    draw_pict1(bench.context);
    // ln(10^6) = 13.8155 has two digits: one decade, at 1000 - 900 / log10(13.8155) = 1000 - 900 / 1.1403667
    const auto ticks = lines(frm.pict1, palette(8));
    ASSERT_EQ(ticks.size(), 1U);
    EXPECT_NEAR(ticks[0].y1, 1000 - 900 / 1.1403667, 1e-3);
    EXPECT_TRUE(frm.lbl10.visible);
}

TEST_F(SingleCurves, MaximumOfZeroDrawsIntervalsOnly) {
    rs.MaxCps = 0;
    for (const bool linear : {true, false}) {
        rs.LinearView = linear;
        draw_pict1(bench.context);
        EXPECT_EQ(commands(frm.pict1, DrawCommand::Kind::line).size(), 1U);
        EXPECT_DOUBLE_EQ(rs.MaxCps, 0);
    }
}

TEST_F(SingleCurves, LowerPlotFollowsWhenConcentrationsAreWanted) {
    rs.MaxRatio = 4;
    rs.SelLowX = 900;
    rs.BlkLowX = 90;
    draw_pict1(bench.context);
    EXPECT_TRUE(commands(frm.pict2, DrawCommand::Kind::fill_rect).empty());
    EXPECT_EQ(lines(frm.pict2, palette(6)).size(), 1U);
    EXPECT_EQ(lines(frm.pict2, palette(3)).size(), 1U);
    EXPECT_EQ(frm.lblMaxIIS.text, "4.000");
    const auto second = lines(frm.pict2, palette(12));
    ASSERT_EQ(second.size(), 3U);
    expect_line(second[0], 2250, 775, 4500, 437.5);

    rs.ModeData = 0;
    draw_pict1(bench.context);
    EXPECT_EQ(frm.pict2.canvas.draws(), 1);
}

TEST_F(SingleCurves, LowerPlotShowsConcentrationsWhenTheyAreChosen) {
    rs.setRatio_ppmIS = 1;
    rs.MaxRatio = 400;
    for (int t = 1; t <= 4; ++t) rs.ConcT(2, t) = 200.0;
    draw_pict2(bench.context);
    const auto second = lines(frm.pict2, palette(12));
    ASSERT_EQ(second.size(), 3U);
    expect_line(second[2], 6750, 550, 9000, 550);
    EXPECT_TRUE(lines(frm.pict2, palette(0)).empty());
}

}  // namespace
}  // namespace kolvar
