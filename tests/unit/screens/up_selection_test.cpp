// The marks on the U/Pb and FLEX screen: each click calculates and draws at once.
#include <gtest/gtest.h>

#include "screens/plots.hpp"
#include "screens/selection.hpp"
#include "screens/time_window.hpp"
#include "unit/upb/drawn_list.hpp"
#include "unit/upb/uranium_case.hpp"

namespace kolvar::test {
namespace {

constexpr int left = 1;
constexpr int right = 2;

// Ten slices on 1000 twips: slice s stands at 100 s. Blank of slices 1 to 3, signal of 5 to 8; nothing is marked.
class UpSelection : public UraniumCase {
protected:
    UpSelection() {
        for (Picture* plot : {&form.pict1, &form.pict2, &form.pict3}) plot->width = plot->height = 1000;
        rs.LinearView = true;
        rs.BlankFromData = 1;
        rs.ModeData = 1;
        rs.CurvesShown = 1;
        rs.RatioScale = 20;
        rs.BeamStart = 4;
        for (Limit* limit : {&rs.SelLow, &rs.SelUpp, &rs.SelN, &rs.BlkLow, &rs.BlkUpp}) limit->clear();
        // No ratio is constant.
        signal(u238, {100, 101, 200, 202});
        signal(u235, {1, 1.1, 2, 2});
        signal(th232, {50, 51, 52, 50});
    }
    void mark(int button, double slice, int shift = 0, int plot = 1) {
        OnPlotDown(context, form, plot, button, shift, 100 * slice, 300);
        OnPlotUp(context, form);
    }
    void mark_all() {
        mark(left, 1, 1);
        mark(right, 3, 1);
        mark(left, 5);
        mark(right, 8);
    }
    std::vector<std::string> boxes() const {
        std::vector<std::string> texts;
        for (const auto& box : os.boxes) texts.push_back(box.text);
        return texts;
    }
};

TEST_F(UpSelection, FourClicksGiveResultsAndTheirButtons) {
    form.cmdReject.visible = form.chkShowSD.visible = form.txtSD.visible = false;
    form.lblReject.visible = form.lblOM.visible = false;
    form.chkShowSD.value = 1;
    form.cmdZizeges.visible = false;
    form.cmdAccept.visible = true;
    mark(left, 1, 1);
    mark(right, 3, 1);
    EXPECT_EQ(form.lblBLKtolig.text, "1 - 3");
    mark(left, 5);
    EXPECT_FALSE(form.cmdCopy.enabled || form.cmdCopyHead.enabled || form.cmdApp.enabled || form.cmdCopySel.enabled);
    EXPECT_FALSE(form.cmdReject.visible || form.cmdZizeges.visible);
    EXPECT_EQ(form.lbl6_8.text, "");
    mark(right, 8);
    EXPECT_TRUE(form.cmdCopy.enabled && form.cmdCopyHead.enabled && form.cmdApp.enabled && form.cmdCopySel.enabled);
    EXPECT_TRUE(form.cmdReject.enabled && form.cmdReject.visible && form.chkShowSD.visible && form.txtSD.visible);
    EXPECT_TRUE(form.lblReject.visible && form.lblOM.visible);
    EXPECT_TRUE(form.cmdZizeges.visible);
    EXPECT_FALSE(form.cmdAccept.visible);
    EXPECT_EQ(form.lblMeasSel.text, "4");
    EXPECT_EQ(form.lblLow.text, "5");
    EXPECT_EQ(form.lblUpp.text, "8");
    // 10 / 100, 20 / 101, 40 / 200, 50 / 202 less nothing: the blank is 0, and counts as .0001.
    EXPECT_NEAR(rs.Mean68, (10.0 / 100 + 20.0 / 101 + 40.0 / 200 + 50.0 / 202) / 4, 1e-5);
    EXPECT_TRUE(boxes().empty());
}

// The same ratio in all slices: its correlation divides by zero.
TEST_F(UpSelection, InASequenceTheCopyIsUsableAlsoWhereTheCalculationEndsInAFault) {
    rs.SeqMode = true;
    form.cmdCopyMas.enabled = form.cmdCopy.enabled = false;
    signal(u238, {100, 100, 100, 100});
    signal(pb206, {10, 10, 10, 10});
    mark(left, 1, 1);
    mark(right, 3, 1);
    mark(left, 5);
    EXPECT_FALSE(form.cmdCopyMas.enabled);
    EXPECT_THROW(mark(right, 8), Fault);
    EXPECT_TRUE(form.cmdCopyMas.enabled);
    EXPECT_FALSE(form.cmdCopy.enabled);  // this one waits for the drawing
}

TEST_F(UpSelection, ButtonOfTheRejectionComesBackAlsoWhereNothingCanBeCalculated) {
    form.cmdReject.visible = form.cmdReject.enabled = false;
    mark(left, 1, 1);
    mark(right, 3, 1);
    // Ratios of an earlier selection: the regression still runs on them.
    mark(left, 5);
    mark(right, 5);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_TRUE(boxes()[0].starts_with("The selected time interval is too short.")) << boxes()[0];
    EXPECT_TRUE(form.cmdReject.visible && form.cmdReject.enabled);
    EXPECT_TRUE(form.cmdCopy.enabled);
}

TEST_F(UpSelection, SelectedSlicesCannotBeCopiedOnTheThirdPath) {
    rs.Method = 3;
    mark_all();
    EXPECT_TRUE(form.cmdCopy.enabled);
    EXPECT_FALSE(form.cmdCopySel.enabled);
}

TEST_F(UpSelection, EitherPlotTakesTheClickButOnlyTheUpperOneMakesRejectionUsable) {
    form.cmdReject.enabled = false;
    mark(left, 5, 0, 2);
    EXPECT_EQ(rs.SelLow, Limit(5));
    EXPECT_FALSE(form.cmdReject.enabled);
    mark(left, 5, 0, 1);
    EXPECT_TRUE(form.cmdReject.enabled);
}

TEST_F(UpSelection, PressEndsARunningRefinement) {
    rs.ZizzRunning = true;
    rs.CurvesShown = 0;
    mark(left, 5);
    EXPECT_FALSE(rs.ZizzRunning);
    EXPECT_EQ(boxes(), (std::vector<std::string>{"Select first one ore more isotopes!"}));
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(os.boxes[0].kind, "warning");
    EXPECT_FALSE(rs.SelLow.is_set());
}

TEST_F(UpSelection, ReleaseBringsBackTheZoomOfTheSignalsAlone) {
    form.VScroll1.set_value_quietly(40);
    form.VScroll3.set_value_quietly(12);
    mark(left, 5);
    EXPECT_EQ(form.VScroll1.value, 1);
    EXPECT_EQ(form.VScroll3.value, 12);
}

TEST_F(UpSelection, ClickOfOneLimitCountsFromTheMissingOneAndStaysHidden) {
    mark(left, 5);
    EXPECT_EQ(rs.SelN, Limit(-4));
    EXPECT_EQ(rs.SelNGood, -4);
    EXPECT_EQ(form.lblMeasSel.text, "");
    EXPECT_FALSE(form.lblBLKtolig.visible);
}

TEST_F(UpSelection, BlankIsComputedByTheClickThatCompletesIt) {
    for (int t = 1; t <= 3; ++t) rs.Sig(u238, t) = 10 * t;
    mark(left, 1, 1);
    EXPECT_NE(rs.BlkMean(u238), Cell(20.0));
    mark(right, 3, 1);
    EXPECT_DOUBLE_EQ(rs.BlkMean(u238).number(), 20);
    EXPECT_DOUBLE_EQ(rs.BlkSD(u238).number(), 10);
}

TEST_F(UpSelection, CrossingClickIsDroppedWithoutADrawing) {
    mark(right, 8);
    const int draws = form.pict1.canvas.draws();
    mark(left, 9);
    EXPECT_FALSE(rs.SelLow.is_set());
    EXPECT_EQ(form.pict1.canvas.draws(), draws);
    mark(left, 8);
    EXPECT_EQ(rs.SelLow, Limit(8));
    EXPECT_EQ(form.pict1.canvas.draws(), draws + 1);
}

TEST_F(UpSelection, DroppedBlankClickLeavesShiftAndTheNextClickTellsItsOwn) {
    mark(right, 3, 1);
    mark(left, 4, 1);
    EXPECT_FALSE(rs.BlkLow.is_set());
    EXPECT_EQ(rs.ClickShift, 1);
    mark(left, 5);
    EXPECT_EQ(rs.SelLow, Limit(5));
    EXPECT_EQ(rs.ClickShift, 0);
}

TEST_F(UpSelection, LeftEdgeIsSliceOneForTheSignalAndZeroForBlankAndBeam) {
    mark(left, 0);
    EXPECT_EQ(rs.SelLow, Limit(1));
    EXPECT_DOUBLE_EQ(rs.SelLowX, 0);
    mark(left, 0, 1);
    EXPECT_EQ(rs.BlkLow, Limit(0));
    OnBeamStartLabel(rs);
    mark(left, 0);
    EXPECT_EQ(rs.BeamStart, 0);
}

TEST_F(UpSelection, LimitsTheWrongWayRoundAfterAClickAtTheEdgeMeetTheGuardOfTheCalculation) {
    mark(left, 1, 1);
    mark(right, 3, 1);
    mark(right, 0);
    mark(left, 5);
    EXPECT_EQ(rs.SelUpp, Limit(0));
    EXPECT_EQ(rs.SelN, Limit(-4));
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_TRUE(boxes()[0].starts_with("The selected time interval is too short.")) << boxes()[0];
    EXPECT_EQ(form.lbl6_8.text, "");
}

TEST_F(UpSelection, ShiftWithoutABlankInTheFileChangesNothingButDraws) {
    rs.BlankFromData = 0;
    const int draws = form.pict1.canvas.draws();
    mark(left, 2, 1);
    EXPECT_FALSE(rs.BlkLow.is_set());
    EXPECT_FALSE(rs.SelN.is_set());
    EXPECT_EQ(form.pict1.canvas.draws(), draws + 1);
    EXPECT_EQ(rs.ClickShift, 0);
}

TEST_F(UpSelection, OtherModifierLeavesTheLimitsAndTheRestRuns) {
    mark_all();
    form.cmdCopy.enabled = false;
    mark(left, 6, 2);
    EXPECT_EQ(rs.SelLow, Limit(5));
    EXPECT_EQ(rs.ClickShift, 0);
    EXPECT_TRUE(form.cmdCopy.enabled);
}

TEST_F(UpSelection, BeamStartClickCalculatesAndMarksNothingElse) {
    mark_all();
    EXPECT_EQ(form.lblBeam_St.text, " signal ON:  4 ");
    OnBeamStartLabel(rs);
    mark(right, 6);  // behind the lower limit: lost
    EXPECT_TRUE(rs.WaitBeamStart);
    EXPECT_EQ(rs.BeamStart, 4);
    EXPECT_EQ(rs.SelUpp, Limit(8));
    const int draws = form.pict2.canvas.draws();
    mark(right, 3);
    EXPECT_FALSE(rs.WaitBeamStart);
    EXPECT_EQ(rs.BeamStart, 3);
    EXPECT_EQ(rs.SelUpp, Limit(8));
    EXPECT_EQ(form.lblBeam_St.text, " signal ON:  3 ");
    EXPECT_EQ(form.pict2.canvas.draws(), draws + 1);
    OnBeamStartLabel(rs);
    mark(left, 5);  // on the lower limit: taken, and the mark goes
    EXPECT_EQ(rs.BeamStart, 5);
    EXPECT_FALSE(form.lblBeam_St.visible);
}

TEST_F(UpSelection, AnyClickUndoesARejectionAndHidesItsLabels) {
    mark_all();
    rs.RejectOn = true;
    rs.SelNGood = 3;
    rs.RejFlag(5) = 1;
    rs.RejFlag(9) = 1;
    form.cmdReject.text = "Restore rejection";
    form.lblReject.text = "Rejected:";
    form.lblReject.visible = form.lblOM.visible = true;
    form.chkShowSD.value = 1;
    form.txtSD.text = "2";
    mark(left, 5);
    EXPECT_FALSE(rs.RejectOn);
    EXPECT_EQ(rs.SelNGood, 4);
    EXPECT_EQ(rs.RejFlag(5), 0);
    EXPECT_EQ(rs.RejFlag(9), 1);
    EXPECT_EQ(form.cmdReject.text, "Reject outliers");
    EXPECT_EQ(form.lblReject.text, "No. of outliers:");
    EXPECT_TRUE(form.cmdReject.visible);
    EXPECT_FALSE(form.lblReject.visible || form.lblOM.visible);  // until "Show" is clicked again
}

TEST_F(UpSelection, AnyClickWithFourLimitsForgetsWhatARefinementShowed) {
    mark_all();
    rs.ZizzMin68 = rs.ZizzMin75 = 3;
    form.cmdAccept.visible = form.lblExplain.visible = true;
    form.cmdZizeges.visible = false;
    std::vector<Label*> labels{&form.lblBest68,   &form.lblBest75, &form.lblImprove, &form.lblZizzMin1,
                               &form.lblZizzMin2, &form.lblRMS68,  &form.lblRMS75};
    for (Label* label : labels) label->text = "7";
    mark(right, 8);
    for (Label* label : labels) EXPECT_EQ(label->text, "") << label->name;
    EXPECT_FALSE(form.lblExplain.visible || form.cmdAccept.visible);
    EXPECT_TRUE(form.cmdZizeges.visible);
    EXPECT_DOUBLE_EQ(rs.ZizzMin68, 0);
    EXPECT_DOUBLE_EQ(rs.ZizzMin75, 0);
}

TEST_F(UpSelection, ResizeMovesTheMarksAndKeepsTheSlices) {
    mark_all();
    form.pict1.width = form.pict2.width = 2000;
    positions_from_slices(rs, form);
    draw_UP(context);
    EXPECT_EQ(rs.SelLow, Limit(5));
    EXPECT_DOUBLE_EQ(rs.SelLowX, 1000);
    EXPECT_DOUBLE_EQ(rs.BlkUppX, 600);
    const Drawn list = drawn_list(form.pict2);
    EXPECT_EQ(list[1], "fill yellow 0.0 0.0 1000.0 1000.0");
    EXPECT_EQ(list[5], "fill cyan 200.0 0.0 600.0 1000.0");
}

}  // namespace
}  // namespace kolvar::test
