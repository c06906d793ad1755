#include "screens/selection.hpp"

#include <gtest/gtest.h>

#include "plot_bench.hpp"
#include "screens/plots.hpp"

namespace kolvar {
namespace {

using test::PlotBench;

constexpr int left = 1;
constexpr int right = 2;

// 1000 slices on 9000 twips: slice s stands at 9 s.
struct Selection : testing::Test {
    PlotBench bench{2, 1000};
    RunState& rs = bench.rs;
    Frm2Time& frm = bench.frm;

    void press(int button, double x, int shift = 0) { OnPlotDown(bench.context, bench.frm, 1, button, shift, x, 300); }
};

TEST_F(Selection, ClickIsRoundedToTheNearestSlice) {
    EXPECT_EQ(slice_at(4504, 9000, 1000), 500);  // 500.44
    EXPECT_EQ(slice_at(4505, 9000, 1000), 501);  // 500.56
    press(left, 4504);
    EXPECT_EQ(rs.SelLow, Limit(500));
    EXPECT_DOUBLE_EQ(rs.SelLowX, 4504);
}

TEST_F(Selection, LastSliceStandsOnTheRightEdgeAndTheFirstNotOnTheLeft) {
    EXPECT_DOUBLE_EQ(position_of(1, 9000, 1000), 9);
    EXPECT_DOUBLE_EQ(position_of(1000, 9000, 1000), 9000);
    EXPECT_EQ(slice_at(9000, 9000, 1000), 1000);
}

TEST_F(Selection, WithoutDataNothingStandsAnywhere) { EXPECT_DOUBLE_EQ(position_of(7, 9000, 0), 0); }

TEST_F(Selection, LeftClickAtTheEdgeMarksSliceOneAtPositionZero) {
    press(left, 0);
    EXPECT_EQ(rs.SelLow, Limit(1));
    EXPECT_DOUBLE_EQ(rs.SelLowX, 0);
    press(right, 90);
    EXPECT_EQ(rs.SelUpp, Limit(10));
    EXPECT_EQ(rs.SelN, Limit(10));
}

TEST_F(Selection, UpperLimitAtTheEdgeStaysZeroAndSwitchesTheOrderTestOff) {
    press(right, 0);
    EXPECT_EQ(rs.SelUpp, Limit(0));
    press(left, 4500);
    EXPECT_EQ(rs.SelLow, Limit(500));
    EXPECT_EQ(rs.SelN, Limit(-499));
}

TEST_F(Selection, LowerLimitAtTheEdgeLetsTheUpperOnePassIt) {
    press(left, 0);
    press(right, 4);  // 0.44 -> slice 0
    EXPECT_EQ(rs.SelLow, Limit(1));
    EXPECT_EQ(rs.SelUpp, Limit(0));
    EXPECT_EQ(rs.SelN, Limit(0));
}

TEST_F(Selection, ShiftClickAtTheEdgeGivesBlankSliceZero) {
    press(left, 0, 1);
    EXPECT_EQ(rs.BlkLow, Limit(0));
    EXPECT_DOUBLE_EQ(rs.BlkLowX, 0);
}

TEST_F(Selection, ClickBeyondTheOtherLimitIsDroppedWithoutRedraw) {
    press(right, 4500);
    const int draws = frm.pict1.canvas.draws();
    press(left, 4501);
    EXPECT_FALSE(rs.SelLow.is_set());
    EXPECT_DOUBLE_EQ(rs.SelLowX, 0);
    EXPECT_EQ(frm.pict1.canvas.draws(), draws);
}

TEST_F(Selection, RightClickBeforeTheLowerLimitIsDropped) {
    press(left, 4500);
    press(right, 4499);
    EXPECT_FALSE(rs.SelUpp.is_set());
}

TEST_F(Selection, DroppedShiftClickLeavesClickShift) {
    press(right, 900, 1);
    EXPECT_EQ(rs.ClickShift, 0);
    press(left, 901, 1);
    EXPECT_FALSE(rs.BlkLow.is_set());
    EXPECT_EQ(rs.ClickShift, 1);
    press(left, 900, 1);
    EXPECT_EQ(rs.BlkLow, Limit(100));
    press(right, 899, 1);
    EXPECT_EQ(rs.BlkUpp, Limit(100));
}

TEST_F(Selection, LimitsMayStandOnTheSameSliceFromBothSides) {
    press(left, 4500);
    press(right, 4500);
    EXPECT_EQ(rs.SelN, Limit(1));
    press(left, 4500);
    EXPECT_EQ(rs.SelLow, Limit(500));
    EXPECT_EQ(rs.SelN, Limit(1));
}

TEST_F(Selection, FirstClickAtSliceTwentyCountsMinusNineteenAndShowsNothing) {
    press(left, 180);
    EXPECT_EQ(rs.SelN, Limit(-19));
    EXPECT_EQ(rs.SelNGood, -19);
    EXPECT_EQ(frm.lblMeasSel.text, "");
    EXPECT_FALSE(frm.lblBLKtolig.visible);
}

TEST_F(Selection, FirstRightClickCountsFromSliceZero) {
    press(right, 180);
    EXPECT_EQ(rs.SelN, Limit(21));
    EXPECT_EQ(frm.lblMeasSel.text, "21");
}

TEST_F(Selection, LimitLabelsStandAtTheirLinesBelowThePlot) {
    press(left, 900);
    press(right, 1800);
    EXPECT_EQ(frm.lblLow.text, "100");
    EXPECT_EQ(frm.lblLow.left, 1000 + 900 - 600);
    EXPECT_EQ(frm.lblLow.top, 500 + 1000 + 100);
    EXPECT_EQ(frm.lblUpp.text, "200");
    EXPECT_EQ(frm.lblUpp.left, 1000 + 1800);
    EXPECT_EQ(frm.lblUpp.top, 500 + 1000 + 100);
    EXPECT_EQ(frm.lblMeasSel.text, "101");
    EXPECT_TRUE(frm.lblBLKshow.visible);
    EXPECT_TRUE(frm.lblBLKtolig.visible);
}

TEST_F(Selection, BlankTitleStaysHiddenWithoutABlankInThisFile) {
    rs.ModeCreateBLK = 1;
    press(right, 1800);
    EXPECT_FALSE(frm.lblBLKshow.visible);
    rs.ModeCreateBLK = 0;
    rs.BlankFromData = 0;
    press(right, 1800);
    EXPECT_FALSE(frm.lblBLKshow.visible);
}

TEST_F(Selection, BlankLabelShowsTheLimitsOnceTheyCountMoreThanNothing) {
    press(left, 90, 1);
    EXPECT_EQ(frm.lblBLKtolig.text, "");  // 0 - 10 + 1
    press(right, 270, 1);
    EXPECT_EQ(frm.lblBLKtolig.text, "10 - 30");
    EXPECT_EQ(rs.BlkN, 21);
}

TEST_F(Selection, UpperBlankLimitAloneIsShownBehindAnEmptyLowerOne) {
    press(right, 270, 1);
    EXPECT_EQ(frm.lblBLKtolig.text, " - 30");
}

TEST_F(Selection, ShiftWithABlankFileChangesNothingButDraws) {
    rs.BlankFromData = 0;
    press(left, 90, 1);
    EXPECT_FALSE(rs.BlkLow.is_set());
    EXPECT_DOUBLE_EQ(rs.BlkLowX, 0);
    EXPECT_FALSE(rs.SelN.is_set());
    EXPECT_EQ(frm.pict1.canvas.draws(), 1);
    EXPECT_EQ(rs.ClickShift, 0);
}

TEST_F(Selection, OtherModifiersLeaveTheLimitsAloneButDraw) {
    press(left, 90, 2);
    EXPECT_FALSE(rs.SelLow.is_set());
    EXPECT_FALSE(rs.BlkLow.is_set());
    EXPECT_EQ(frm.pict1.canvas.draws(), 1);
    EXPECT_EQ(rs.ClickShift, 0);
}

TEST_F(Selection, WithoutCurvesAMessageAndNoLimit) {
    rs.CurvesShown = 0;
    rs.ZizzRunning = true;
    press(left, 900);
    ASSERT_EQ(bench.os.boxes.size(), 1U);
    EXPECT_EQ(bench.os.boxes[0].text, "Select first one ore more isotopes!");
    EXPECT_EQ(bench.os.boxes[0].title, "");
    EXPECT_FALSE(rs.SelLow.is_set());
    EXPECT_FALSE(rs.ZizzRunning);
    EXPECT_TRUE(frm.cmdReject.enabled);
}

TEST_F(Selection, OnceAPlotWasDrawnClicksCountEvenWithoutACurve) {
    rs.CurvesShown = 0;
    bench.only_curve(0);  // none
    draw_all(bench.context);
    EXPECT_EQ(rs.CurvesShown, 1);
    press(left, 900);
    EXPECT_TRUE(bench.os.boxes.empty());
    EXPECT_EQ(rs.SelLow, Limit(100));
}

TEST_F(Selection, EveryPressOnTheUpperPlotEnablesReject) {
    frm.cmdReject.enabled = false;
    OnPlotDown(bench.context, bench.frm, 2, left, 0, 900, 300);
    EXPECT_EQ(rs.SelLow, Limit(100));
    EXPECT_FALSE(frm.cmdReject.enabled);
    press(left, 900);
    EXPECT_TRUE(frm.cmdReject.enabled);
}

TEST_F(Selection, ReleaseBringsBothZoomBarsBack) {
    frm.VScroll1.set_value_quietly(40);
    frm.VScroll3.set_value_quietly(50);
    OnPlotUp(bench.context, bench.frm);
    EXPECT_EQ(frm.VScroll1.value, 1);
    EXPECT_EQ(frm.VScroll3.value, 1);
}

TEST_F(Selection, ReleaseLeavesTheLowerBarOnTheUraniumLeadPath) {
    rs.Method = 1;
    frm.VScroll1.set_value_quietly(40);
    frm.VScroll3.set_value_quietly(50);
    OnPlotUp(bench.context, bench.frm);
    EXPECT_EQ(frm.VScroll1.value, 1);
    EXPECT_EQ(frm.VScroll3.value, 50);
}

TEST_F(Selection, ReleaseRunsABarsChangeOnlyWhenItWasMoved) {
    int upper = 0;
    int lower = 0;
    frm.VScroll1.changed = [&] { ++upper; };
    frm.VScroll3.changed = [&] { ++lower; };
    frm.VScroll3.set_value_quietly(50);
    OnPlotUp(bench.context, bench.frm);
    EXPECT_EQ(upper, 0);
    EXPECT_EQ(lower, 1);
}

TEST_F(Selection, ResizeMovesPositionsAndKeepsSlices) {
    press(left, 903);  // slice 100.33 -> 100
    press(right, 1800);
    rs.BlkLow = 10;
    rs.BlkUpp = 30;
    rs.FormerLow = 50;
    rs.FormerUpp = 60;
    frm.pict1.width = 4500;
    positions_from_slices(bench.rs, bench.frm);
    EXPECT_EQ(rs.SelLow, Limit(100));
    EXPECT_DOUBLE_EQ(rs.SelLowX, 450);
    EXPECT_DOUBLE_EQ(rs.SelUppX, 900);
    EXPECT_DOUBLE_EQ(rs.BlkLowX, 45);
    EXPECT_DOUBLE_EQ(rs.BlkUppX, 135);
    EXPECT_DOUBLE_EQ(rs.FormerLowX, 225);
    EXPECT_DOUBLE_EQ(rs.FormerUppX, 270);
}

TEST_F(Selection, ResizeLeavesUnmarkedLimitsAtZero) {
    rs.SelLow = 100;
    positions_from_slices(bench.rs, bench.frm);
    EXPECT_DOUBLE_EQ(rs.SelLowX, 900);
    EXPECT_DOUBLE_EQ(rs.SelUppX, 0);
}

TEST_F(Selection, ButtonsOfResultsWaitForAllFourLimits) {
    frm.cmdCopy.enabled = frm.cmdCopyHead.enabled = frm.cmdApp.enabled = frm.cmdCopySel.enabled = false;
    press(left, 900);
    press(right, 1800);
    EXPECT_FALSE(frm.cmdShowConc.enabled);
    press(left, 90, 1);
    EXPECT_FALSE(frm.cmdAppQuick.enabled);
    EXPECT_FALSE(frm.cmdCopy.enabled);
    press(right, 270, 1);
    EXPECT_TRUE(frm.cmdShowConc.enabled);
    EXPECT_TRUE(frm.cmdAppQuick.enabled);
    EXPECT_TRUE(frm.cmdCopy.enabled);
    EXPECT_TRUE(frm.cmdCopyHead.enabled);
    EXPECT_TRUE(frm.cmdApp.enabled);
    EXPECT_FALSE(frm.cmdCopySel.enabled);
}

TEST_F(Selection, WithABlankFileTwoLimitsAreEnoughForAPreview) {
    rs.BlankFromData = 0;
    press(left, 900);
    EXPECT_FALSE(frm.cmdShowConc.enabled);
    press(right, 1800);
    EXPECT_TRUE(frm.cmdShowConc.enabled);
    EXPECT_TRUE(frm.cmdAppQuick.enabled);
}

}  // namespace
}  // namespace kolvar
