// What a click sets off: blank and statistics, redraw, beam start, proposals that have grown stale.
#include <gtest/gtest.h>

#include "plot_bench.hpp"
#include "screens/selection.hpp"

namespace kolvar {
namespace {

using test::PlotBench;

constexpr int left = 1;
constexpr int right = 2;

// 10 slices on 9000 twips: slice s stands at 900 s. Isotope 1: blank 10, 12, 14, then 112, 212, ... Isotope 2: 5 times
// as much.
struct SelectionEffects : testing::Test {
    PlotBench bench{2, 10};
    RunState& rs = bench.rs;
    Frm2Time& frm = bench.frm;

    SelectionEffects() {
        bench.signal(1, {10, 12, 14, 112, 212, 312, 412, 512, 612, 712});
        bench.signal(2, {50, 60, 70, 560, 1060, 1560, 2060, 2560, 3060, 3560});
    }
    void mark(int button, int slice, int shift = 0) {
        OnPlotDown(bench.context, bench.frm, 1, button, shift, 900.0 * slice, 0);
    }
};

TEST_F(SelectionEffects, FourLimitsGiveBlankNetSignalAndStatistics) {
    mark(left, 1, 1);
    mark(right, 3, 1);
    mark(left, 5);
    mark(right, 7);
    EXPECT_TRUE(bench.os.boxes.empty());
    EXPECT_DOUBLE_EQ(rs.BlkMean(1).number(), 12);
    EXPECT_DOUBLE_EQ(rs.BlkMean(2).number(), 60);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 5), 200);
    EXPECT_DOUBLE_EQ(rs.Sig2(2, 7), 2000);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 9), 600);  // the statistics correct the whole table
    EXPECT_DOUBLE_EQ(rs.CpsMean(1), 300);
    EXPECT_DOUBLE_EQ(rs.RatioMean(2), 5);
}

TEST_F(SelectionEffects, BlankIsComputedTwiceByAShiftClickOnceBothIntervalsStand) {
    mark(left, 5);
    mark(right, 7);
    bench.os.boxes.clear();
    mark(left, 2, 1);
    EXPECT_EQ(bench.os.boxes.size(), 1U);  // only one blank limit: the redraw's computation alone
    bench.os.boxes.clear();
    mark(right, 2, 1);
    ASSERT_EQ(bench.os.boxes.size(), 2U);
    EXPECT_EQ(bench.os.boxes[0].text, "The selected blank interval is too short.");
    EXPECT_EQ(bench.os.boxes[1].text, "The selected blank interval is too short.");
}

TEST_F(SelectionEffects, SelectionCompletedBeforeTheBlankIsMarkedBringsTheMessageOfTheBlank) {
    mark(left, 5);
    EXPECT_TRUE(bench.os.boxes.empty());
    mark(right, 7);
    ASSERT_EQ(bench.os.boxes.size(), 1U);
    EXPECT_EQ(bench.os.boxes[0].text, "The selected blank interval is too short.");
}

TEST_F(SelectionEffects, SelectionAloneCorrectsItsOwnSlicesByTheBlankThatStands) {
    rs.BlkMean(1) = 12.0;  // isotope 2 has none
    mark(left, 5);
    mark(right, 6);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 5), 200);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 6), 300);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 4), 0);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 7), 0);
    EXPECT_DOUBLE_EQ(rs.Sig2(2, 5), 0);
}

TEST_F(SelectionEffects, CreatingAFileCorrectsNothingBeforeTheBlankStands) {
    rs.ModeData = 0;
    rs.ModeCreateSTM = 1;
    rs.BlkMean(1) = 12.0;
    mark(left, 5);
    mark(right, 6);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 5), 0);
}

TEST_F(SelectionEffects, WithABlankFileNothingIsCorrectedHere) {
    rs.BlankFromData = 0;
    rs.BlkMean(1) = 12.0;
    mark(left, 5);
    mark(right, 6);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 5), 0);
    EXPECT_TRUE(bench.os.boxes.empty());
    EXPECT_EQ(frm.pict1.canvas.draws(), 2);
}

TEST_F(SelectionEffects, SingleCurvesAreDrawnWithoutCorrection) {
    rs.setAllCurve = 0;
    rs.BlkMean(1) = 12.0;
    rs.CurvesShown = 1;
    rs.MaxCps = 1000;
    mark(left, 5);
    mark(right, 6);
    EXPECT_DOUBLE_EQ(rs.Sig2(1, 5), 0);
    EXPECT_TRUE(bench.os.boxes.empty());
    EXPECT_EQ(frm.pict1.canvas.draws(), 2);
    EXPECT_DOUBLE_EQ(rs.MaxCps, 1000);
}

TEST_F(SelectionEffects, BlankWithoutSelectionIsComputedOnceByTheClick) {
    mark(left, 1, 1);
    mark(right, 3, 1);
    EXPECT_DOUBLE_EQ(rs.BlkMean(1).number(), 12);
    EXPECT_DOUBLE_EQ(rs.BlkSD(1).number(), 2);
    EXPECT_EQ(rs.SelN, Limit(1));  // counted from two limits that aren't there
}

TEST_F(SelectionEffects, EachClickDrawsBothPlotsOnce) {
    mark(left, 5);
    EXPECT_EQ(frm.pict1.canvas.draws(), 1);
    EXPECT_EQ(frm.pict2.canvas.draws(), 1);
}

struct BeamStart : testing::Test {
    PlotBench bench{1, 1000};
    RunState& rs = bench.rs;
    BeamStart() {
        rs.Method = 1;
        OnBeamStartLabel(rs);
    }
    void press(int button, int slice) { OnPlotDown(bench.context, bench.frm, 1, button, 0, 9.0 * slice, 0); }
};

TEST_F(BeamStart, AnyClickSetsItWhileNoSelectionBegins) {
    ASSERT_TRUE(rs.WaitBeamStart);
    press(right, 700);
    EXPECT_EQ(rs.BeamStart, 700);
    EXPECT_FALSE(rs.WaitBeamStart);
    EXPECT_FALSE(rs.SelUpp.is_set());
}

TEST_F(BeamStart, ClickBehindTheLowerLimitIsLostAndTheNextOneStillCounts) {
    rs.SelLow = 100;
    press(left, 101);
    EXPECT_EQ(rs.BeamStart, 0);
    EXPECT_TRUE(rs.WaitBeamStart);
    EXPECT_EQ(rs.SelLow, Limit(100));
    press(left, 100);
    EXPECT_EQ(rs.BeamStart, 100);
    EXPECT_FALSE(rs.WaitBeamStart);
}

TEST_F(BeamStart, AtTheLeftEdgeItIsSliceZero) {
    rs.Method = 3;
    rs.BeamStart = 5;
    press(left, 0);
    EXPECT_EQ(rs.BeamStart, 0);
    EXPECT_FALSE(rs.WaitBeamStart);
}

TEST_F(BeamStart, OnTheInternalStandardPathAWaitingClickMarksTheSelection) {
    rs.Method = 0;
    press(left, 100);
    EXPECT_EQ(rs.BeamStart, 0);
    EXPECT_EQ(rs.SelLow, Limit(100));
}

struct UraniumLeadSelection : BeamStart {
    UraniumLeadSelection() {
        rs.WaitBeamStart = false;
        rs.PlotOn = 1;  // the marks alone: nothing is drawn or calculated
    }
    void all_four() {
        rs.SelLow = 100, rs.SelUpp = 200, rs.BlkLow = 10, rs.BlkUpp = 30;
        rs.SelLowX = 900, rs.SelUppX = 1800, rs.BlkLowX = 90, rs.BlkUppX = 270;
    }
};

TEST_F(UraniumLeadSelection, ProposalThatWasNotAcceptedBecomesTheSelectionBeforeTheClick) {
    rs.BestLow = 120;
    rs.BestUpp = 180;
    Label& proposal = bench.forms.frm2_UP.lblBestLow;
    proposal.text = "125";
    proposal.visible = true;
    rs.ZizzMin68 = 3;
    rs.ZizzMin75 = 4;
    press(left, 110);
    EXPECT_EQ(rs.SelLow, Limit(110));
    EXPECT_EQ(rs.SelUpp, Limit(180));
    EXPECT_EQ(rs.SelN, Limit(71));
    EXPECT_FALSE(rs.BestLow.is_set());
    EXPECT_FALSE(rs.BestUpp.is_set());
    EXPECT_DOUBLE_EQ(rs.ZizzMin68, 0);
    EXPECT_DOUBLE_EQ(rs.ZizzMin75, 0);
    EXPECT_EQ(proposal.text, "");
    EXPECT_FALSE(proposal.visible);
}

// A text that an earlier search left in a hidden label is no proposal.
TEST_F(UraniumLeadSelection, OnlyAShownProposalIsTakenOver) {
    rs.BestLow = 120;
    rs.BestUpp = 180;
    bench.forms.frm2_UP.lblBestLow.text = "125";
    press(left, 110);
    EXPECT_FALSE(rs.SelUpp.is_set());
    EXPECT_TRUE(rs.BestLow.is_set());
}

TEST_F(UraniumLeadSelection, AnyClickWithFourLimitsUndoesTheRejectionOfOutliers) {
    all_four();
    rs.RejectOn = true;
    rs.RejFlag(100) = 2;
    rs.RejFlag(150) = 1;
    rs.RejFlag(201) = 1;
    rs.ZizzMin68 = 3;
    press(left, 100);
    EXPECT_FALSE(rs.RejectOn);
    EXPECT_EQ(rs.RejFlag(100), 0);
    EXPECT_EQ(rs.RejFlag(150), 0);
    EXPECT_EQ(rs.RejFlag(201), 1);
    EXPECT_EQ(rs.SelNGood, 101);
    EXPECT_DOUBLE_EQ(rs.ZizzMin68, 0);
}

TEST_F(UraniumLeadSelection, RejectionStandsWhileALimitIsMissing) {
    all_four();
    rs.BlkUpp.clear();
    rs.RejectOn = true;
    rs.RejFlag(150) = 1;
    press(left, 100);
    EXPECT_TRUE(rs.RejectOn);
    EXPECT_EQ(rs.RejFlag(150), 1);
}

TEST_F(UraniumLeadSelection, SelectionMayBeCopiedOnlyForDating) {
    all_four();
    bench.frm.cmdCopySel.enabled = false;
    rs.Method = 3;
    press(left, 100);
    EXPECT_FALSE(bench.frm.cmdCopySel.enabled);
    rs.Method = 1;
    press(left, 100);
    EXPECT_TRUE(bench.frm.cmdCopySel.enabled);
}

}  // namespace
}  // namespace kolvar
