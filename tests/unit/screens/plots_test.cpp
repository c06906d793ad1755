#include "screens/plots.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "plot_bench.hpp"

namespace kolvar {
namespace {

using test::commands;
using test::drawn;
using test::lines;
using test::PlotBench;

void expect_line(const DrawCommand& line, double x1, double y1, double x2, double y2) {
    EXPECT_NEAR(line.x1, x1, 1e-6);
    EXPECT_NEAR(line.y1, y1, 1e-6);
    EXPECT_NEAR(line.x2, x2, 1e-6);
    EXPECT_NEAR(line.y2, y2, 1e-6);
}

void expect_end(double v, double steps, double maximum) {
    const NiceEnd end = NiceScale(v);
    EXPECT_DOUBLE_EQ(end.steps, steps) << v;
    EXPECT_DOUBLE_EQ(end.maximum, maximum) << v;
}

TEST(NiceScale, RoundsUpToTheNextStep) {
    expect_end(9, 10, 10);
    expect_end(1500, 2, 2000);
    expect_end(7.9, 8, 8);
    expect_end(5.5, 6, 6);
    expect_end(450, 5, 500);
    expect_end(33, 4, 40);
    expect_end(0.0025, 3, 0.003);
    expect_end(13, 1.5, 15);
    expect_end(110, 1.2, 120);
}

TEST(NiceScale, ValueOnAStepMovesUpToTheNext) {
    expect_end(2000, 3, 3000);
    expect_end(10, 1.2, 12);
    expect_end(1.5, 2, 2);
    expect_end(8, 10, 10);
    expect_end(100, 1.2, 120);
}

TEST(NiceScale, ZeroEndsAtTheSmallestScale) {
    expect_end(0, 1, 1e-11);
    expect_end(-3, 1, 1e-11);
}

TEST(NiceScale, FromTenToTheTenthThereIsNoScale) {
    expect_end(9.5e9, 10, 1e10);
    expect_end(1e10, 0, 0);
    expect_end(3e12, 0, 0);
}

TEST(Log10, IsZeroForZero) {
    EXPECT_DOUBLE_EQ(Log10(0), 0);
    EXPECT_NEAR(Log10(1000), 3, 1e-12);
    EXPECT_NEAR(Log10(2), 0.30102999566, 1e-10);
}

TEST(SignalPlot, LinearCurveEndsATenthBelowTheTop) {
    PlotBench bench(1, 3);
    bench.signal(1, {0, 50, 90});
    draw_all(bench.context);
    // Scale end 100: a signal of 100 would stand at 1000 - 900.
    const auto curve = lines(bench.frm.pict1, palette(0));
    ASSERT_EQ(curve.size(), 2U);
    expect_line(curve[0], 3000, 1000, 6000, 550);
    expect_line(curve[1], 6000, 550, 9000, 190);
    EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 100);
    EXPECT_DOUBLE_EQ(bench.rs.ScaleStep, 10);
    EXPECT_EQ(bench.frm.lblMaxCps.text, "100");
    EXPECT_TRUE(bench.frm.lblMaxCps.visible);
    EXPECT_EQ(bench.frm.lbluppScal.text, "90");
}

TEST(SignalPlot, UnroundedMaximumIsShownInFull) {
    PlotBench bench(1, 2);
    bench.signal(1, {0, 1234.5675});
    draw_all(bench.context);
    EXPECT_EQ(bench.frm.lbluppScal.text, "1234.5675");
    EXPECT_EQ(bench.frm.lblMaxCps.text, "1500");
}

TEST(SignalPlot, LogarithmicCurvePutsZeroBelowTheBaseline) {
    PlotBench bench(1, 4);
    bench.rs.LinearView = false;
    bench.signal(1, {0, 10, 1, -5});
    bench.rs.YMaxEntry = 50;  // scale end 60
    draw_all(bench.context);
    const double per_decade = 900 / std::log10(60.0);
    const auto curve = lines(bench.frm.pict1, palette(0));
    ASSERT_EQ(curve.size(), 3U);
    expect_line(curve[0], 2250, 1000 + 5 * per_decade, 4500, 1000 - per_decade);
    expect_line(curve[1], 4500, 1000 - per_decade, 6750, 1000);
    expect_line(curve[2], 6750, 1000, 9000, 1000 + 5 * per_decade);
}

TEST(SignalPlot, OnALogarithmicScaleMaxCpsBecomesItsLogarithmAfterLabelAndFullScaleWereTaken) {
    PlotBench bench(1, 2);
    bench.rs.LinearView = false;
    bench.rs.ScaleFresh = true;
    bench.signal(1, {1, 90});
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.FullMax, 100);
    EXPECT_EQ(bench.frm.lblMaxCps.text, "100");
    EXPECT_FALSE(bench.frm.lblMaxCps.visible);
    EXPECT_NEAR(bench.rs.MaxCps, 2 * std::numbers::ln10, 1e-12);
}

TEST(SignalPlot, ColoursRepeatBySevenWithThreeMoreAfterEachSecondSeven) {
    PlotBench bench(50, 2);
    draw_all(bench.context);
    const std::vector<Colour> seven{palette(0),  palette(12), palette(9), palette(10),
                                    palette(11), palette(13), palette(14)};
    const std::vector<Colour> three{rgb(192, 192, 192), rgb(255, 128, 0), rgb(128, 128, 0)};
    std::vector<Colour> expected;
    for (int round = 0; round < 3; ++round) {
        expected.insert(expected.end(), seven.begin(), seven.end());
        expected.insert(expected.end(), seven.begin(), seven.end());
        expected.insert(expected.end(), three.begin(), three.end());
    }
    expected.resize(50);
    // The first line is the one of the lower limit.
    const auto all = commands(bench.frm.pict1, DrawCommand::Kind::line);
    ASSERT_EQ(all.size(), 51U);
    for (std::size_t j = 0; j < 50; ++j) EXPECT_EQ(all[j + 1].colour, expected[j]) << "curve " << j + 1;
}

TEST(SignalPlot, CurvesFifteenToSeventeenAndThirtyTwoToThirtyFour) {
    PlotBench bench(34, 2);
    for (int j = 1; j <= 34; ++j) bench.signal(j, {0, static_cast<double>(j)});
    draw_all(bench.context);
    // Scale end 40: cell j stands at 1000 - 22.5 j.
    const auto grey = lines(bench.frm.pict1, rgb(192, 192, 192));
    ASSERT_EQ(grey.size(), 2U);
    expect_line(grey[0], 4500, 1000, 9000, 662.5);
    expect_line(grey[1], 4500, 1000, 9000, 280);
    const auto orange = lines(bench.frm.pict1, rgb(255, 128, 0));
    ASSERT_EQ(orange.size(), 2U);
    expect_line(orange[0], 4500, 1000, 9000, 640);
    expect_line(orange[1], 4500, 1000, 9000, 257.5);
    const auto olive = lines(bench.frm.pict1, rgb(128, 128, 0));  // also the colour of the limit line
    ASSERT_EQ(olive.size(), 3U);
    expect_line(olive[1], 4500, 1000, 9000, 617.5);
    expect_line(olive[2], 4500, 1000, 9000, 235);
}

TEST(SignalPlot, ColumnsBeyondFiftyAreNeitherDrawnNorScaledBy) {
    PlotBench bench(60, 2);
    bench.signal(50, {0, 3});
    bench.signal(51, {0, 1e6});
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 4);
    EXPECT_EQ(commands(bench.frm.pict1, DrawCommand::Kind::line).size(), 51U);
}

TEST(SignalPlot, OnlyChosenCurvesAreDrawnAndScaledBy) {
    PlotBench bench(3, 2);
    bench.signal(1, {0, 700});
    bench.signal(2, {0, 2.5});
    bench.only_curve(2);
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 3);
    EXPECT_TRUE(lines(bench.frm.pict1, palette(0)).empty());
    EXPECT_EQ(lines(bench.frm.pict1, palette(12)).size(), 1U);
}

TEST(SignalPlot, WithoutAnIsotopeOnlyTheIntervalsAreDrawn) {
    for (const bool linear : {true, false}) {
        PlotBench bench(3, 10);
        bench.rs.LinearView = linear;
        bench.frm.cmdHorizLines.text = "Horiz. lines OFF";
        bench.signal(1, {7, 7, 7});
        bench.only_curve(0);
        bench.rs.SelLowX = 4500;
        bench.rs.SelUppX = 6300;
        draw_all(bench.context);
        const std::vector<std::string> expected{"fill 255,255,225 0 0 4500 1000", "line 128,128,0 4500 0 4500 1000",
                                                "fill 255,255,225 6300 0 9000 1000", "line 128,128,0 6300 0 6300 1000"};
        EXPECT_EQ(drawn(bench.frm.pict1), expected);
        EXPECT_EQ(drawn(bench.frm.pict2), expected);
        EXPECT_EQ(bench.frm.lbluppScal.text, "0");
    }
}

TEST(SignalPlot, MaximumOfTenToTheTenthDrawsNoCurve) {
    PlotBench bench(1, 3);
    bench.frm.cmdHorizLines.text = "Horiz. lines OFF";
    bench.signal(1, {0, 2e10, 1});
    for (const bool linear : {true, false}) {
        bench.rs.LinearView = linear;
        draw_all(bench.context);
        EXPECT_EQ(drawn(bench.frm.pict1).size(), 2U);  // ground and line of the unmarked lower limit
        EXPECT_EQ(bench.frm.lblMaxCps.text, "0");
    }
}

TEST(SignalPlot, LogarithmicScaleThatEndsAtOneOrBelowDrawsNoCurve) {
    PlotBench bench(1, 3);
    bench.rs.LinearView = false;
    bench.signal(1, {0.5, 0.9, 0.1});  // end 1
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 0);
    EXPECT_EQ(drawn(bench.frm.pict1).size(), 2U);
    bench.signal(1, {0.05, 0.09, 0.01});  // end 0.1
    draw_all(bench.context);
    EXPECT_EQ(drawn(bench.frm.pict1).size(), 2U);
}

TEST(SignalPlot, WithoutDataTheDrawLeavesTheIntervals) {
    PlotBench bench(0, 0);
    draw_all(bench.context);
    EXPECT_EQ(drawn(bench.frm.pict1).size(), 2U);
    EXPECT_EQ(bench.frm.pict1.canvas.draws(), 1);
}

TEST(SignalPlot, WhileAFileIsTakenInNothingIsClearedOrDrawn) {
    PlotBench bench(1, 3);
    bench.signal(1, {0, 50, 90});
    bench.rs.PlotOn = 1;
    bench.rs.YMaxEntry = 5;
    draw_all(bench.context);
    draw_pict1(bench.context);
    draw_pict2(bench.context);
    EXPECT_EQ(bench.frm.pict1.canvas.draws(), 0);
    EXPECT_EQ(bench.frm.pict2.canvas.draws(), 0);
    EXPECT_DOUBLE_EQ(bench.rs.YMaxEntry.val(), 5);
}

TEST(TypedLimit, WorksOnce) {
    PlotBench bench(1, 3);
    bench.signal(1, {0, 50, 90});
    bench.rs.YMaxEntry = 30;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 40);
    EXPECT_EQ(bench.frm.lbluppScal.text, "30");
    EXPECT_EQ(bench.rs.YMaxEntry, Value(""));
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 100);
}

TEST(TypedLimit, OnAStepMovesUpSoThatFullScaleAfterAZoomIsLarger) {
    PlotBench bench(1, 3);
    bench.rs.ScaleFresh = true;
    bench.signal(1, {0, 50, 1500});
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.FullMax, 2000);
    bench.rs.YMaxEntry = bench.rs.FullMax;  // what the bar enters at its start
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 3000);
    EXPECT_DOUBLE_EQ(bench.rs.FullMax, 2000);
}

TEST(TypedLimit, ThatIsNotAboveZeroIsPassedOver) {
    PlotBench bench(1, 3);
    bench.signal(1, {0, 50, 90});
    for (const Value& entry : {Value("abc"), Value(-4), Value(0), Value("")}) {
        bench.rs.YMaxEntry = entry;
        draw_all(bench.context);
        EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 100);
    }
    bench.rs.YMaxEntry = "12.5 kcps";
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.MaxCps, 15);
}

TEST(FullScale, IsTakenAnewOnceAfterEitherFlag) {
    PlotBench bench(1, 3);
    bench.signal(1, {0, 50, 90});
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.FullMax, 0);
    bench.rs.AutoScale1 = true;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.FullMax, 100);
    EXPECT_FALSE(bench.rs.AutoScale1);
    bench.signal(1, {0, 50, 500});
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.FullMax, 100);
    bench.rs.ScaleFresh = true;
    draw_all(bench.context);
    EXPECT_DOUBLE_EQ(bench.rs.FullMax, 600);
    EXPECT_FALSE(bench.rs.ScaleFresh);
}

TEST(Decades, OfAMaximumOfTwoThousandAreThree) {
    PlotBench bench(1, 2);
    bench.rs.LinearView = false;
    bench.signal(1, {1, 1500});
    draw_all(bench.context);
    Frm2Time& frm = bench.frm;
    const auto ticks = lines(frm.pict1, palette(8));
    ASSERT_EQ(ticks.size(), 3U);
    // log10(2000) = 3.30103; a decade is 900 / 3.30103 = 272.64216 twips.
    EXPECT_NEAR(ticks[0].y1, 727.35784, 1e-3);
    EXPECT_NEAR(ticks[1].y1, 454.71567, 1e-3);
    EXPECT_NEAR(ticks[2].y1, 182.07351, 1e-3);
    EXPECT_TRUE(frm.lbl10.visible && frm.lbl100.visible && frm.lbl1000.visible);
    EXPECT_FALSE(frm.lbl10k.visible || frm.lbl100k.visible || frm.lbl1m.visible || frm.lbl10m.visible);
    EXPECT_EQ(frm.lbl10.top, 500 + 727);
    EXPECT_EQ(frm.lbl1000.top, 500 + 182);
    EXPECT_EQ(frm.lbl10.text, "10");
    EXPECT_TRUE(lines(frm.pict1, palette(7)).empty());
}

TEST(Decades, TopOneStandsAtTheScaleEndAndLinesFollowTheButton) {
    PlotBench bench(1, 2);
    bench.rs.LinearView = false;
    bench.signal(1, {1, 9000});
    bench.frm.cmdHorizLines.text = "Horiz. lines OFF";
    draw_all(bench.context);
    const auto across = lines(bench.frm.pict1, palette(7));
    ASSERT_EQ(across.size(), 4U);  // 10 to 10000
    expect_line(across[0], 0, 775, 9000, 775);
    expect_line(across[3], 0, 100, 9000, 100);
}

TEST(Decades, OnlyTheFirstSevenAreLabelled) {
    PlotBench bench(1, 2);
    bench.rs.LinearView = false;
    bench.signal(1, {1, 9.5e8});  // end 10^9: ten digits, nine decades
    draw_all(bench.context);
    EXPECT_EQ(lines(bench.frm.pict1, palette(8)).size(), 9U);
    EXPECT_EQ(bench.frm.lbl10m.top, 500 + 300);  // 7 of 9 decades
    EXPECT_TRUE(bench.frm.lbl10m.visible);
}

TEST(Decades, LabelsGoWithTheLinearScale) {
    PlotBench bench(1, 2);
    bench.rs.LinearView = false;
    bench.signal(1, {1, 1500});
    draw_all(bench.context);
    bench.rs.LinearView = true;
    draw_all(bench.context);
    EXPECT_FALSE(bench.frm.lbl10.visible || bench.frm.lbl100.visible || bench.frm.lbl1000.visible);
    EXPECT_TRUE(bench.frm.lblMaxCps.visible);
}

TEST(HorizontalLines, AreShownWhileTheButtonOffersToSwitchThemOff) {
    PlotBench bench(1, 2);
    bench.signal(1, {0, 4.5});
    bench.frm.cmdHorizLines.text = "Horiz. lines ON";
    draw_all(bench.context);
    EXPECT_TRUE(lines(bench.frm.pict1, palette(7)).empty());
    EXPECT_TRUE(lines(bench.frm.pict1, palette(8)).empty());
    bench.frm.cmdHorizLines.text = "Horiz. lines OFF";
    draw_all(bench.context);
    const auto across = lines(bench.frm.pict1, palette(7));
    ASSERT_EQ(across.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        const double y = 1000 - 180.0 * static_cast<double>(i + 1);
        expect_line(across[i], 0, y, 9000, y);
    }
    EXPECT_EQ(lines(bench.frm.pict1, palette(8)).size(), 5U);
    EXPECT_TRUE(lines(bench.frm.pict2, palette(7)).empty());
}

TEST(HorizontalLines, OfAFractionalDivisionStandAtTheFractionalHeight) {
    PlotBench bench(1, 2);
    bench.frm.cmdHorizLines.text = "Horiz. lines OFF";
    bench.signal(1, {0, 110});  // 1.2 divisions
    draw_all(bench.context);
    auto across = lines(bench.frm.pict1, palette(7));
    ASSERT_EQ(across.size(), 1U);
    EXPECT_NEAR(across[0].y1, 250, 1e-9);
    bench.signal(1, {0, 130});  // 1.5 divisions
    draw_all(bench.context);
    across = lines(bench.frm.pict1, palette(7));
    ASSERT_EQ(across.size(), 1U);
    EXPECT_NEAR(across[0].y1, 400, 1e-9);
}

}  // namespace
}  // namespace kolvar
