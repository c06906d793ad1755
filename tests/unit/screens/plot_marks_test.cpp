// The marks of the intervals behind the curves, and the guides of the file before.
#include <gtest/gtest.h>

#include "plot_bench.hpp"
#include "screens/plots.hpp"

namespace kolvar {
namespace {

using test::commands;
using test::drawn;
using test::lines;
using test::PlotBench;

// No curves: the lists hold the marks alone.
struct PlotMarks : testing::Test {
    PlotBench bench{1, 1000};
    RunState& rs = bench.rs;
    Frm2Time& frm = bench.frm;
    PlotMarks() { bench.only_curve(0); }
};

TEST_F(PlotMarks, LineOfTheLowerLimitIsAlwaysThereAndOfTheUpperOnlyAboveZero) {
    draw_all(bench.context);
    const std::vector<std::string> expected{"fill 255,255,225 0 0 0 1000", "line 128,128,0 0 0 0 1000"};
    EXPECT_EQ(drawn(frm.pict1), expected);
    EXPECT_EQ(drawn(frm.pict2), expected);
}

TEST_F(PlotMarks, TintsAndLinesOfBothIntervals) {
    rs.SelLowX = 900;
    rs.SelUppX = 1800;
    rs.BlkLowX = 90;
    rs.BlkUppX = 270;
    frm.pict2.height = 700;
    draw_all(bench.context);
    const std::vector<std::string> expected{"fill 255,255,225 0 0 900 1000",     "line 128,128,0 900 0 900 1000",
                                            "fill 255,255,225 1800 0 9000 1000", "line 128,128,0 1800 0 1800 1000",
                                            "fill 192,255,255 90 0 270 1000",    "line 0,128,128 90 0 90 1000",
                                            "line 0,128,128 270 0 270 1000"};
    EXPECT_EQ(drawn(frm.pict1), expected);
    ASSERT_EQ(drawn(frm.pict2).size(), 7U);
    EXPECT_EQ(drawn(frm.pict2)[4], "fill 192,255,255 90 0 270 700");
    const auto widths = commands(frm.pict1, DrawCommand::Kind::line_width);
    ASSERT_EQ(widths.size(), 1U);
    EXPECT_EQ(widths[0].number, 1);
}

TEST_F(PlotMarks, LowerPlotTakesTheUpperOnesWidth) {
    rs.SelUppX = 1800;
    frm.pict2.width = 5000;
    draw_all(bench.context);
    EXPECT_EQ(drawn(frm.pict2)[2], "fill 255,255,225 1800 0 9000 1000");
}

TEST_F(PlotMarks, OneBlankLimitHasALineButNoTint) {
    rs.BlkLowX = 90;
    draw_all(bench.context);
    EXPECT_EQ(commands(frm.pict1, DrawCommand::Kind::fill_rect).size(), 1U);
    EXPECT_EQ(lines(frm.pict1, palette(3)).size(), 1U);
    rs.BlkLowX = 0;
    rs.BlkUppX = 270;
    draw_all(bench.context);
    EXPECT_EQ(commands(frm.pict1, DrawCommand::Kind::fill_rect).size(), 1U);
    EXPECT_EQ(lines(frm.pict1, palette(3)).size(), 1U);
}

TEST_F(PlotMarks, BlankIsNotTintedWhenABlankFileIsMade) {
    rs.BlkLowX = 90;
    rs.BlkUppX = 270;
    rs.ModeCreateBLK = 1;
    draw_all(bench.context);
    EXPECT_EQ(commands(frm.pict1, DrawCommand::Kind::fill_rect).size(), 1U);
    rs.ModeCreateBLK = 0;
    rs.BlankFromData = 0;
    draw_all(bench.context);
    EXPECT_EQ(commands(frm.pict1, DrawCommand::Kind::fill_rect).size(), 1U);
}

TEST_F(PlotMarks, CountOfTheSelectionIsShownOnlyAboveZero) {
    rs.SelN = 11;
    draw_all(bench.context);
    EXPECT_EQ(frm.lblMeasSel.text, "11");
    rs.SelN = -19;
    draw_all(bench.context);
    EXPECT_EQ(frm.lblMeasSel.text, "");
    rs.SelN.clear();
    draw_all(bench.context);
    EXPECT_EQ(frm.lblMeasSel.text, "");
}

TEST_F(PlotMarks, EachDrawCountsTheBlank) {
    rs.BlkLow = 10;
    rs.BlkUpp = 30;
    draw_all(bench.context);
    EXPECT_EQ(rs.BlkN, 21);
}

TEST_F(PlotMarks, LabelsOfTheLimitsAreInTheListOfTheUpperPlot) {
    rs.SelLow = 100;
    rs.SelLowX = 900;
    draw_all(bench.context);
    const auto shown = commands(frm.pict1, DrawCommand::Kind::show_label);
    ASSERT_EQ(shown.size(), 3U);  // lblLow, lblUpp, lblMaxCps
    const auto& low = frm.pict1.canvas.labels()[static_cast<std::size_t>(shown[0].number)];
    EXPECT_EQ(low.name, "lblLow");
    EXPECT_EQ(low.text, "100");
    EXPECT_DOUBLE_EQ(shown[0].x1, 1300);
    EXPECT_DOUBLE_EQ(shown[0].y1, 1600);
    EXPECT_EQ(frm.lblUpp.text, "");
}

TEST_F(PlotMarks, FormerSelectionLiesAsAStripUnderThePlot) {
    rs.FormerLow = 100;
    rs.FormerUpp = 200;
    rs.FormerLowX = 900;
    rs.FormerUppX = 1800;
    rs.FormerBlkLow = 10;
    rs.FormerBlkUpp = 30;
    draw_all(bench.context);
    EXPECT_TRUE(frm.pictFormer.visible && frm.lblFormer1.visible && frm.lblFormer2.visible);
    EXPECT_TRUE(frm.lblFormerBL1.visible && frm.lblFormerBL2.visible);
    EXPECT_EQ(frm.pictFormer.left, 1900);
    EXPECT_EQ(frm.pictFormer.width, 900);
    EXPECT_EQ(frm.pictFormer.top, 1500);
    EXPECT_EQ(frm.lblFormer2.text, "100 - 200");
    EXPECT_EQ(frm.lblFormerBL2.text, "10 - 30");
}

TEST_F(PlotMarks, FormerSelectionWithoutPositionsShowsNothing) {
    rs.FormerLow = 100;
    rs.FormerUpp = 200;
    rs.FormerLowX = 900;
    rs.FormerUppX = 1800;
    draw_all(bench.context);
    rs.FormerLowX = rs.FormerUppX = 0;
    draw_all(bench.context);
    EXPECT_FALSE(frm.pictFormer.visible || frm.lblFormer1.visible || frm.lblFormer2.visible);
    EXPECT_FALSE(frm.lblFormerBL1.visible || frm.lblFormerBL2.visible);
}

TEST_F(PlotMarks, FormerBlankIsNotShownWithABlankFile) {
    rs.FormerUppX = 1800;
    rs.BlankFromData = 0;
    draw_all(bench.context);
    EXPECT_TRUE(frm.lblFormer2.visible);
    EXPECT_FALSE(frm.lblFormerBL1.visible || frm.lblFormerBL2.visible);
}

}  // namespace
}  // namespace kolvar
