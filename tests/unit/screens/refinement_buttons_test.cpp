// The buttons of the refinement on the real window: a proposal is taken, overridden, or there is none.
#include <utility>

#include "up_fixture.hpp"

namespace kolvar::test {
namespace {

constexpr int left = 1;
constexpr int right = 2;

// An ablation of 60 slices: blank 2 to 9, rise 12 to 16, fall 45 to 50. Its figures are those of the scenarios, which
// are reckoned elsewhere: 14 to 47 with a band of 3 leads to 16 and 44, 23 to 46 with one of 2 to 44 alone.
class RefinementButtons : public OnUpWindow {
protected:
    void open(int low = 14, int upp = 47, const std::string& file = "ablation") {
        program->start(1);
        choose(std::string(KOLVAR_TEST_DATA) + "/refinement/" + file + ".csv");
        mark_up(left, 1, 2);
        mark_up(right, 1, 9);
        mark_up(left, 0, low);
        mark_up(right, 0, upp);
        ASSERT_TRUE(os.boxes.empty()) << os.boxes[0].text;
    }
    using OnUpWindow::choose;
    void search(const std::string& range = "3") {
        type(form(), "txtZizzRange", range);
        ProgramOnKit::choose(form(), "comboBzz", "data");
        click(form(), "cmdZizeges");
    }
    void accept() { click(form(), "cmdAccept"); }
    void expect_limits(int low, int upp) {
        EXPECT_EQ(rs().SelLow, Limit(low));
        EXPECT_EQ(rs().SelUpp, Limit(upp));
        EXPECT_EQ(rs().SelN, Limit(upp - low + 1));
        EXPECT_EQ(rs().SelNGood, upp - low + 1);
    }
    // Of the limits that are in force and shown, with the results for them.
    void expect_settled(int low, int upp) {
        expect_limits(low, upp);
        EXPECT_EQ(form().lblLow.text, std::to_string(low));
        EXPECT_EQ(form().lblUpp.text, std::to_string(upp));
        EXPECT_EQ(form().lblMeasSel.text, std::to_string(upp - low + 1));
        EXPECT_FALSE(rs().ZizzRunning || rs().AcceptBest || rs().TrialLimits);
        EXPECT_TRUE(form().cmdZizeges.visible && form().cmdReject.enabled);
        EXPECT_FALSE(form().cmdAccept.visible || form().lblExplain.visible);
        EXPECT_FALSE(form().lblBestLow.visible || form().lblBestUpp.visible);
        for (const Label* label :
             {&form().lblBestLow, &form().lblBestUpp, &form().lblBest68, &form().lblBest75, &form().lblImprove,
              &form().lblZizzMin1, &form().lblZizzMin2, &form().lblRMS68, &form().lblRMS75})
            EXPECT_EQ(label->text, "") << label->name;
    }
    // The next file has 4 slices.
    void expect_nothing_of_the_search_in_the_next_file() {
        load_short_file();
        EXPECT_FALSE(form().cmdAccept.visible || form().cmdZizeges.visible || form().lblExplain.visible);
        EXPECT_EQ(form().lblImprove.text + form().lblBestLow.text + form().lblBestUpp.text, "");
        mark_up(left, 1, 1);
        mark_up(right, 1, 2);
        mark_up(left, 0, 2);
        EXPECT_FALSE(rs().SelUpp.is_set());
        mark_up(right, 0, 3);
        mark_up(right, 0, 4);
        EXPECT_EQ(rs().SelLow, Limit(2));
        EXPECT_EQ(rs().SelUpp, Limit(4));
    }
    void expect_no_proposal() {
        EXPECT_EQ(form().lblImprove.text, "no");
        EXPECT_EQ(form().lblExplain.text, "reduction of residual error");
        EXPECT_TRUE(form().lblExplain.visible && form().cmdReject.enabled);
        EXPECT_FALSE(form().cmdAccept.visible || form().cmdZizeges.visible);
        EXPECT_FALSE(form().lblBestLow.visible || form().lblBestUpp.visible);
    }
};

TEST_F(RefinementButtons, ProposalWaitsAndIsAccepted) {
    open();
    const std::string shown = form().lbl6_8.text;
    search();
    EXPECT_EQ(form().lblBestLow.text + " " + form().lblBestUpp.text, "16 44");
    EXPECT_TRUE(form().cmdAccept.visible && form().lblExplain.visible);
    EXPECT_FALSE(form().cmdZizeges.visible || form().cmdReject.enabled);
    EXPECT_TRUE(rs().ZizzRunning);
    expect_limits(17, 50);  // the last pair
    EXPECT_EQ(form().lbl6_8.text, shown);
    EXPECT_EQ(form().lblLow.text, "14");
    accept();
    expect_settled(16, 44);
    EXPECT_NE(form().lbl6_8.text, shown);
    EXPECT_DOUBLE_EQ(rs().SelLowX, form().pict1.width * 16.0 / 60);
    EXPECT_DOUBLE_EQ(rs().SelUppX, form().pict1.width * 44.0 / 60);
}

// The numbers of the proposal stand outside those of the limits, and end and begin at them.
TEST_F(RefinementButtons, CaptionsStandBesideTheLimits) {
    open();
    search();
    const Label &low = form().lblBestLow, &upp = form().lblBestUpp;
    EXPECT_GT(low.width, 0);
    EXPECT_EQ(low.left + low.width, form().lblLow.left);
    EXPECT_EQ(upp.left, form().lblUpp.left + form().lblUpp.width);
    EXPECT_EQ(low.top, form().lblLow.top);
    EXPECT_EQ(upp.top, form().lblUpp.top);
}

TEST_F(RefinementButtons, WaitCursorAndProgressReachTheScreen) {
    open();
    search("1");
    EXPECT_EQ(os.wait_cursors, (std::vector<bool>{true, false}));
    EXPECT_EQ(os.progresses, (std::vector<std::pair<int, int>>{{3, 9}, {6, 9}, {9, 9}, {1, 1}}));
}

TEST_F(RefinementButtons, LimitThatIsNotProposedGoesBackToTheStart) {
    open(23, 46);
    search("2");
    EXPECT_FALSE(form().lblBestLow.visible);
    EXPECT_EQ(form().lblBestLow.text, "22");  // of a pair that was better for a while
    EXPECT_EQ(form().lblBestUpp.text, "44");
    expect_limits(25, 48);
    accept();
    expect_settled(23, 44);
}

TEST_F(RefinementButtons, LoneLowerLimitIsAcceptedToo) {
    open();
    search();
    form().lblBestUpp.visible = false;
    accept();
    expect_settled(16, 47);
}

TEST_F(RefinementButtons, ClickOverridesTheProposalFromTheLimitsOfTheStart) {
    open();
    search();
    mark_up(left, 0, 18);
    expect_settled(18, 47);
    EXPECT_FALSE(rs().BestLow.is_set() || rs().BestUpp.is_set());
}

TEST_F(RefinementButtons, BlankMarkedOverAProposalPutsBackTheLimitsOfTheStart) {
    open();
    search();
    mark_up(right, 1, 8);
    expect_settled(14, 47);
    EXPECT_EQ(rs().BlkUpp, Limit(8));
}

TEST_F(RefinementButtons, WithoutAProposalTheNextClickStartsFromWhatWasMarked) {
    open(18, 43);
    search("1");
    expect_no_proposal();
    expect_limits(19, 44);
    mark_up(right, 0, 40);
    expect_settled(18, 40);
    // Once.
    rs().BestLow = 30, rs().BestUpp = 35;
    mark_up(right, 0, 41);
    expect_settled(18, 41);
}

TEST_F(RefinementButtons, SkewnessIsNamedWhereNoneIsReduced) {
    open(18, 43);
    ProgramOnKit::choose(form(), "Combo8", "Skewness");
    search("0");
    EXPECT_EQ(form().lblImprove.text, "no");
    EXPECT_EQ(form().lblExplain.text, "reduction of skewness");
}

// The limits of the search belong to a file; those of the next one are marked anew.
TEST_F(RefinementButtons, NextFileHasNothingOfAProposalBefore) {
    open();
    search();
    EXPECT_TRUE(form().cmdAccept.visible);
    expect_nothing_of_the_search_in_the_next_file();
}

TEST_F(RefinementButtons, NextFileHasNothingOfAVainSearchBefore) {
    open(18, 43);
    search("1");
    expect_no_proposal();
    expect_nothing_of_the_search_in_the_next_file();
}

TEST_F(RefinementButtons, ReopenedWindowShowsTheResultsOfTheLimitsInForce) {
    open();
    search();
    leave_and_return();
    EXPECT_FALSE(rs().ZizzRunning || form().cmdAccept.visible);
    EXPECT_TRUE(form().cmdZizeges.visible && form().cmdCopy.enabled);
    EXPECT_EQ(form().lblLow.text, "17");
    EXPECT_NE(form().lbl6_8.text, "");
    mark_up(right, 0, 45);
    expect_settled(14, 45);
    EXPECT_DOUBLE_EQ(rs().SelLowX, form().pict1.width * 14.0 / 60);
}

// A resize stands the lines at the limits in force, which are those of the last pair.
TEST_F(RefinementButtons, ResizeUnderAProposalDoesNotMoveTheLineThatIsPutBack) {
    open();
    search();
    resize(form(), 20000, 12000);
    EXPECT_DOUBLE_EQ(rs().SelLowX, form().pict1.width * 17.0 / 60);
    mark_up(right, 0, 45);
    expect_settled(14, 45);
    EXPECT_DOUBLE_EQ(rs().SelLowX, form().pict1.width * 14.0 / 60);
}

TEST_F(RefinementButtons, LineThatIsPutBackStandsWhereItWasClicked) {
    open();
    mark_up(left, 0, 14.3);
    const double clicked = rs().SelLowX;
    search();
    mark_up(right, 0, 45);
    expect_settled(14, 45);
    EXPECT_DOUBLE_EQ(rs().SelLowX, clicked);
}

TEST_F(RefinementButtons, BoxTakesTheProposalAtOnceWithItsResults) {
    open();
    click(form(), "chkBzzPrompt");
    EXPECT_EQ(rs().setBzz_Prompt, Value(1));
    const std::string before = form().lbl6_8.text;
    search();
    expect_settled(16, 44);
    const std::string at_once = form().lbl6_8.text;
    EXPECT_NE(at_once, before);
    // The same as by hand.
    mark_up(left, 0, 14);
    mark_up(right, 0, 47);
    click(form(), "chkBzzPrompt");
    EXPECT_EQ(rs().setBzz_Prompt, Value(0));
    mark_up(left, 0, 14);
    search();
    accept();
    EXPECT_EQ(form().lbl6_8.text, at_once);
}

TEST_F(RefinementButtons, BoxDoesNothingWithoutAProposal) {
    open(18, 43);
    click(form(), "chkBzzPrompt");
    search("1");
    expect_no_proposal();
    expect_limits(19, 44);
}

TEST_F(RefinementButtons, SecondRunIsRefusedByTheBandOfTheFirst) {
    open(20, 29);
    search("4");
    mark_up(left, 0, 20);
    search("1");
    ASSERT_EQ(box_texts(),
              std::vector<std::string>{"The time interval is too short for the selected boundary optimaztion!"});
    expect_no_proposal();
    expect_limits(20, 29);
    EXPECT_EQ(rs().ZizzSteps, 4);
    mark_up(right, 0, 31);
    expect_settled(20, 31);
}

TEST_F(RefinementButtons, RejectionIsUndoneBeforeAndItsLabelsStay) {
    open();
    reject();
    ASSERT_TRUE(rs().RejectOn);
    ASSERT_LT(rs().SelNGood, 34);
    search();
    EXPECT_FALSE(rs().RejectOn);
    EXPECT_EQ(form().cmdReject.text, "Reject outliers");
    EXPECT_EQ(form().lblReject.text, "No. of outliers:");
    EXPECT_FALSE(form().lblReject.fore.has_value() || form().lblOM.fore.has_value());
    EXPECT_TRUE(form().lblReject.visible && form().lblOM.visible);
    for (int t = 14; t <= 47; ++t) EXPECT_EQ(rs().RejFlag(t), 0);
    // As without it.
    EXPECT_EQ(form().lblBestLow.text + " " + form().lblBestUpp.text + " " + form().lblImprove.text, "16 44 -79 %");
    accept();
    expect_settled(16, 44);
    EXPECT_TRUE(form().lblReject.visible);
}

TEST_F(RefinementButtons, PooledPointsAreTakenApart) {
    open();
    scroll(form(), "VScroll2", 3);
    EXPECT_EQ(form().lblFusion.text, "3");
    search("1");
    EXPECT_EQ(form().lblFusion.text, "1");
    EXPECT_EQ(form().VScroll2.value, 1);
    EXPECT_EQ(rs().PlotPool, 1);
}

// SHIFT is kept by a click that was dropped; the blank is not what the button moves.
TEST_F(RefinementButtons, ShiftOfADroppedClickDoesNotReachTheAcceptance) {
    open();
    search();
    rs().ClickShift = 1;
    accept();
    expect_settled(16, 44);
    EXPECT_EQ(rs().BlkLow, Limit(2));
    EXPECT_EQ(rs().BlkUpp, Limit(9));
}

// A search on a very short selection can end with limits that cross. The lower one is taken; the upper one would pass
// it and is dropped like a click, without a count and a drawing. The next click puts back what was marked.
TEST_F(RefinementButtons, OfAProposalWhoseLimitsCrossTheLowerOneAloneIsTaken) {
    open(20, 23);
    rs().BestLow = 20, rs().BestUpp = 23;
    rs().SelLow = 23, rs().SelUpp = 26;  // the last pair tried
    rs().SelN = rs().SelNGood = 4;
    rs().ZizzRunning = true;
    form().lblBestLow.text = "22", form().lblBestUpp.text = "21";
    form().lblBestLow.visible = form().lblBestUpp.visible = form().cmdAccept.visible = true;
    form().cmdZizeges.visible = false;
    const int draws = form().pict1.canvas.draws();
    accept();
    EXPECT_EQ(rs().SelLow, Limit(22));
    EXPECT_EQ(rs().SelUpp, Limit(26));
    EXPECT_EQ(rs().SelN, Limit(4));
    EXPECT_EQ(rs().SelNGood, 4);
    EXPECT_DOUBLE_EQ(rs().SelLowX, form().pict1.width * 22.0 / 60);
    EXPECT_DOUBLE_EQ(rs().SelUppX, form().pict1.width * 23.0 / 60);
    EXPECT_EQ(form().lblLow.text + " " + form().lblUpp.text + " " + form().lblMeasSel.text, "22 23 4");
    EXPECT_TRUE(form().lblBestLow.visible && form().lblBestUpp.visible && form().cmdZizeges.visible);
    EXPECT_FALSE(form().cmdAccept.visible || rs().ZizzRunning || rs().AcceptBest);
    EXPECT_EQ(form().pict1.canvas.draws(), draws);
    EXPECT_TRUE(os.boxes.empty());
    mark_up(right, 0, 30);
    expect_settled(20, 30);
}

// From slice 20 on all ratios are the same: the pairs inside are a fault.
TEST_F(RefinementButtons, FaultLeavesLimitsCursorAndButtonsAsBefore) {
    open(18, 40);
    for (int t = 20; t <= 60; ++t)
        for (int i = 1; i <= rs().nIso; ++i) rs().Sig(i, t) = 100 * i;
    mark_up(left, 0, 18);
    search();
    ASSERT_EQ(box_texts(), std::vector<std::string>{"Run-time error: division by zero, in ZiZi_Test"});
    EXPECT_EQ(os.boxes[0].title, "KOLVAR");
    expect_limits(18, 40);
    EXPECT_EQ(os.wait_cursors, (std::vector<bool>{true, false}));
    EXPECT_FALSE(rs().ZizzRunning || rs().AcceptBest || rs().TrialLimits);
    EXPECT_TRUE(form().cmdZizeges.visible && form().cmdReject.enabled);
    EXPECT_FALSE(form().cmdAccept.visible || form().lblBestLow.visible || form().lblBestUpp.visible);
}

TEST_F(RefinementButtons, ListsAndBoxWriteTheirSettingsAtOnceAndTheBandDoesNot) {
    open();
    rs().setZizzRange = 10, rs().setZizzType = 0;
    ProgramOnKit::choose(form(), "Combo7", "Tera-Wasserburg");
    ProgramOnKit::choose(form(), "Combo8", "Skewness");
    EXPECT_EQ(rs().setBzzPlot, Value(1));
    EXPECT_EQ(rs().setBzzMethod, Value(1));
    ProgramOnKit::choose(form(), "Combo7", "Wetherill");
    ProgramOnKit::choose(form(), "Combo8", "RMS");
    EXPECT_EQ(rs().setBzzPlot, Value(0));
    EXPECT_EQ(rs().setBzzMethod, Value(0));
    search("1");
    EXPECT_EQ(rs().setZizzRange, Value(10));
    EXPECT_EQ(rs().setZizzType, Value(0));
}

// The window of the defaults changes the settings behind the lists; choosing what a list shows already is a choice too.
TEST_F(RefinementButtons, AnEntryThatIsChosenAgainIsWrittenToo) {
    open();
    click(form(), "cmdSett");
    ProgramOnKit::choose(forms().frm_SetUP, "comboBzzPlot", "Tera-Wasserburg");
    ProgramOnKit::choose(forms().frm_SetUP, "comboBzzMethod", "Skewness");
    click(forms().frm_SetUP, "cmdApply");
    ASSERT_EQ(rs().setBzzPlot, Value(1));
    ASSERT_EQ(rs().setBzzMethod, Value(1));
    EXPECT_EQ(form().Combo7.text, "Wetherill");
    ProgramOnKit::choose(form(), "Combo7", "Wetherill");
    ProgramOnKit::choose(form(), "Combo8", "RMS");
    EXPECT_EQ(rs().setBzzPlot, Value(0));
    EXPECT_EQ(rs().setBzzMethod, Value(0));
}

// The one entry is the first, whatever the default file holds: 207/235 in name, 206/238 in fact.
TEST_F(RefinementButtons, WithoutU235TheLoneEntryIsTheFirst) {
    program->start(1);
    rs().setBzzPlot = 1;
    choose(std::string(KOLVAR_TEST_DATA) + "/refinement/no-u235.csv");
    EXPECT_EQ(form().Combo7.items, std::vector<std::string>{"Tera-Wasserburg"});
    EXPECT_EQ(form().Combo7.value, 0);
    EXPECT_EQ(rs().setBzzPlot, Value(0));
}

}  // namespace
}  // namespace kolvar::test
