#include "matrix_case.hpp"

namespace kolvar::test {
namespace {

using MatrixTests = MatrixCase;

// Min and max -------------------------------------------------------------------------------------------------------

TEST_F(MatrixTests, MinMaxOnCpsRejectsTheExtremesAndTheSlicesOfTheStandard) {
    three_isotopes();
    min_max();
    // Si29 has its extremes in the second and third slice, Sr88 in the first and last, La139 in the third and last.
    EXPECT_EQ(picture(), "gxxgg xxx.x .xx.x");
    EXPECT_TRUE(form.cmdReset.enabled);
}

TEST_F(MatrixTests, MinMaxOnRatiosTakesTheExtremesOfTheRatios) {
    three_isotopes();
    view(form.optIIS);
    // The standard against itself is 1 throughout: the first slice is both its minimum and its maximum, one cell tested
    // twice, which takes the slice along. Sr88: first and last. La139: 0.07 0.064 0.1 0.07 0.05, third and last.
    min_max();
    EXPECT_EQ(picture(), "xgggg x...x x.x.x");
}

TEST_F(MatrixTests, MinMaxTakesTheSliceInEveryStandardInUse) {
    rs.setISnum = 2;
    three_isotopes();
    rs.setISnum = 2;
    rs.IS2col = 2;
    rs.IS3col = 3;
    load_matrix(context);
    min_max();
    EXPECT_EQ(picture(), "xxxgx xxxgx xxx.x");
    rs.setISnum = 3;
    load_matrix(context);
    min_max();
    EXPECT_EQ(picture(), "xxxgx xxxgx xxxgx");
}

TEST_F(MatrixTests, NoSliceIsTakenAlongWhileAFileIsMade) {
    rs.ModeCreateSTM = 1;
    rs.IS1col = 1;
    rs.setISnum = 1;
    isotope("Si29", {100, 110, 90, 100, 100});
    isotope("Sr88", {10, 20, 30, 40, 50});
    load_matrix(context);
    min_max();
    EXPECT_EQ(picture(), ".xx.. x...x");
}

TEST_F(MatrixTests, WhileAFileIsMadeRowsWithoutABlankHaveTheirExtremesToo) {
    rs.ModeCreateBLK = 1;
    isotope("Si29", {100, 110, 90, 100, 100});
    isotope("Sr88", {10, 20, 30, 40, 50});
    rs.BlkMean(1) = rs.BlkMean(2) = Mark::empty;
    load_matrix(context);
    ASSERT_TRUE(rs.CpsSD(1).is_dashes());
    show_min_max();
    EXPECT_EQ(picture(), ".mc.. c...m");
    show_min_max();
    min_max();
    EXPECT_EQ(picture(), ".xx.. x...x");
    min_max();
    EXPECT_EQ(picture(), "..... .....");
    // A deviation can't be told for them.
    form.txtSD.text = "0.1";
    deviation();
    EXPECT_EQ(picture(), "..... .....");
}

TEST_F(MatrixTests, OnRatiosCellsWithDashesAreNotRejectedAsExtremes) {
    three_isotopes();
    rs.RatioSD(2) = 0;
    view(form.optIIS);
    ASSERT_EQ(texts(2), "--- --- --- --- ---");
    min_max();
    EXPECT_EQ(row(2), "x....");  // with the first slice of the standard alone
}

TEST_F(MatrixTests, AnotherNumberOfStandardsThanOneToThreeTakesNoSlice) {
    three_isotopes();
    rs.setISnum = 4;
    load_matrix(context);
    min_max();
    EXPECT_EQ(row(1), "gxxgg");
    EXPECT_EQ(row(2), "x...x");
}

TEST_F(MatrixTests, MinMaxPassesOverRowsWithoutStatistics) {
    three_isotopes();
    rs.CpsSD(2) = Mark::dashes;
    min_max();
    EXPECT_EQ(row(2), ".xx..");  // only with the standard's slices
    reset_rejection(context);
    view(form.optIIS);
    rs.RatioMaxPos(3) = 0;
    min_max();
    EXPECT_EQ(row(3), "x....");
}

TEST_F(MatrixTests, ExtremesLeftFromAnotherSelectionArePassedOver) {
    three_isotopes();
    rs.CpsMinPos(2) = 1;
    rs.CpsMaxPos(2) = 7;
    min_max();
    EXPECT_EQ(row(2), ".xx..");
    show_min_max();
    EXPECT_EQ(row(2), ".xx..");
}

// S.d. --------------------------------------------------------------------------------------------------------------

struct DeviationTests : MatrixCase {
    // Sr88 deviates by -2.94, 2.94, 0, 3 and 3.1 s.d.
    void SetUp() override {
        three_isotopes();
        data(rs.Sig2, 2, {70.6, 129.4, 100, 130, 131});
        cps_statistics(2, 100, 10, 2, 6);
        form.txtSD.text = "3";
    }
};

TEST_F(DeviationTests, ADeviationAtTheLimitIsRejectedAndNegativeOnesCountRoundedUp) {
    deviation();
    EXPECT_EQ(row(2), "x..xx");
    EXPECT_EQ(form.txtSD.text, "3");
    EXPECT_TRUE(form.txtSD.locked);
    deviation();
    EXPECT_EQ(row(2), ".....");
    EXPECT_FALSE(form.txtSD.locked);
}

TEST_F(DeviationTests, TheDeviationViewRejectsTheSameCells) {
    view(form.optCpsSD);
    EXPECT_EQ(texts(2), "-3 2.9 0 3 3.1");
    deviation();
    EXPECT_EQ(row(2), "x..xx");
}

TEST_F(DeviationTests, OnRatiosTheDeviationOfTheRatioCounts) {
    view(form.optIIS);
    data(rs.Ratio, 3, {1, 1.75, 0.25, 1.6875, 1.5});
    ratio_statistics(3, 1, 0.25, 4, 3);
    deviation();
    EXPECT_EQ(row(3), ".xx..");
    deviation();
    view(form.optIisSD);
    EXPECT_EQ(texts(3), "0 3 -3 2.7 2");
    deviation();
    EXPECT_EQ(row(3), ".xx..");
}

TEST_F(DeviationTests, RowsWithoutCpsStatisticsAreLeftOutOnRatiosToo) {
    view(form.optIIS);
    data(rs.Ratio, 3, {1, 1.75, 0.25, 1.6875, 1.5});
    ratio_statistics(3, 1, 0.25, 4, 3);
    rs.CpsSD(3) = Mark::dashes;
    deviation();
    EXPECT_EQ(row(3), ".....");
}

TEST_F(DeviationTests, OnlyTheFirstStandardTakesTheSliceOfADeviation) {
    rs.setISnum = 2;
    rs.IS2col = 2;
    matrix::paint_standards(context);
    deviation();
    EXPECT_EQ(picture(), "ggggg xggxx .....");
    // Si29 deviates by 2 s.d. in the second slice.
    form.chkStDev.set_value_quietly(0);
    reset_rejection(context);
    data(rs.Sig2, 1, {100, 120, 100, 100, 100});
    cps_statistics(1, 100, 10, 2, 3);
    form.txtSD.text = "2";
    deviation();
    EXPECT_EQ(picture(), "gxggg xxgxx .x...");
}

TEST_F(DeviationTests, WhileAFileIsMadeTheFirstStandardTakesNoSliceAlong) {
    rs.ModeData = 0;
    rs.IS1col = 2;
    deviation();
    EXPECT_EQ(row(1), "ggggg");
    EXPECT_EQ(row(2), "x..xx");
    EXPECT_EQ(row(3), ".....");
}

TEST_F(DeviationTests, SwitchedOffTheSlicesOfEveryStandardComeBack) {
    rs.setISnum = 2;
    rs.IS2col = 2;
    matrix::paint_standards(context);
    deviation();
    deviation();
    EXPECT_EQ(picture(), "ggggg ggggg .....");
}

TEST_F(DeviationTests, ALimitThatIsNoPositiveNumberIsRefused) {
    rs.setSD_IS = 2.5;
    for (const char* typed : {"0", "-1", "abc", ""}) {
        form.txtSD.text = typed;
        deviation();
        ASSERT_FALSE(os.boxes.empty());
        EXPECT_EQ(os.boxes.back().text, "The entered S. D. valaue is not a positive number!");
        EXPECT_EQ(os.boxes.back().title, "");
        EXPECT_EQ(form.txtSD.text, "2.5");
        EXPECT_FALSE(form.chkStDev.on());
        EXPECT_FALSE(form.txtSD.locked);
        EXPECT_TRUE(form.chkShowMinMax.enabled);
    }
    EXPECT_EQ(os.boxes.size(), 4U);
    EXPECT_EQ(row(2), ".....");
}

TEST_F(DeviationTests, ARefusedLimitLeavesTheOtherTestsAsTheyWere) {
    min_max();
    const std::string before = picture();
    form.txtSD.text = "none";
    deviation();
    EXPECT_TRUE(form.chkMinMax.on());
    EXPECT_EQ(picture(), before);
    EXPECT_FALSE(form.chkShowMinMax.enabled);
}

TEST_F(DeviationTests, TheLimitIsRewrittenAsTheNumberRead) {
    form.txtSD.text = " 3.10 s.d.";
    deviation();
    EXPECT_EQ(form.txtSD.text, "3.1");
    EXPECT_EQ(row(2), "....x");
}

// Grubbs ------------------------------------------------------------------------------------------------------------

struct GrubbsTests : MatrixCase {
    void SetUp() override {
        three_isotopes();
        // Sr88: 2 s.d. above the mean in the last slice, 1 below in the others.
        data(rs.Sig2, 2, {80, 90, 90, 90, 140});
        cps_statistics(2, 100, 20, 2, 6);
        cps_statistics(1, 100, 1000, 4, 3);
        cps_statistics(3, 7, 1000, 6, 4);
        rs.GrubbsP5(5) = 1.999;
        rs.GrubbsP2_5(5) = 2;
        rs.GrubbsP1(5) = 3;
        rs.GrubbsP7_5(5) = 1.5;
        rs.GrubbsP10(5) = 0.99;
        form.comboProc.show_item(" 5");
    }
};

TEST_F(GrubbsTests, OnlyADatumAboveTheCriticalValueIsRejected) {
    grubbs();
    EXPECT_EQ(picture(), "ggggg ....x .....");
    EXPECT_FALSE(form.comboProc.enabled);
    grubbs();
    EXPECT_EQ(picture(), "ggggg ..... .....");
    EXPECT_TRUE(form.comboProc.enabled);
    form.comboProc.show_item("2.5");  // g = 2 is not above 2
    grubbs();
    EXPECT_EQ(picture(), "ggggg ..... .....");
    grubbs();
    form.comboProc.show_item("10");  // the minimum has g = 1
    grubbs();
    EXPECT_EQ(picture(), "ggggg x...x .....");
}

TEST_F(GrubbsTests, AMinimumAtTheCriticalValueIsNotRejected) {
    rs.GrubbsP5(5) = 1;  // g of the minimum is (100 - 80) / 20
    grubbs();
    EXPECT_EQ(row(2), "....x");
    grubbs();
    rs.GrubbsP5(5) = 0.999;
    grubbs();
    EXPECT_EQ(row(2), "x...x");
}

TEST_F(GrubbsTests, ItIsOnePassWithOneCandidateAtEachEnd) {
    data(rs.Sig2, 2, {100, 100, 100, 140, 140});
    cps_statistics(2, 100, 20, 2, 5);
    grubbs();
    EXPECT_EQ(row(2), "...x.");
}

TEST_F(GrubbsTests, OnCpsEveryStandardInUseTakesItsSliceAlong) {
    rs.setISnum = 2;
    rs.IS2col = 2;
    matrix::paint_standards(context);
    grubbs();
    EXPECT_EQ(picture(), "ggggx ggggx ....x");
    grubbs();
    EXPECT_EQ(picture(), "ggggg ggggg .....");
}

TEST_F(GrubbsTests, OnCpsRowsWithoutStatisticsAreLeftOutInEveryMode) {
    rs.ModeData = 0;
    rs.CpsSD(2) = Mark::dashes;
    grubbs();
    EXPECT_EQ(row(2), ".....");
}

TEST_F(GrubbsTests, OnRatiosTheCellOfTheRatioExtremeIsJudgedByTheRatioAtTheCpsExtreme) {
    view(form.optIIS);
    // Sr88: the ratios are smallest in slice 3 and largest in slice 5, the cps in slices 2 and 6.
    data(rs.Ratio, 2, {0.7, 0.2, 1, 1.9, 1.25});
    ratio_statistics(2, 1, 0.25, 3, 5);
    rs.GrubbsP5(5) = 1.1;
    grubbs();
    // g of the minimum is (1 - 0.7) / 0.25 = 1.2, of the maximum (1.25 - 1) / 0.25 = 1: with its own ratio, 1.9, the
    // maximum would be rejected too.
    EXPECT_EQ(row(2), ".x...");
}

TEST_F(GrubbsTests, OnRatiosNoRowIsLeftOutAndNoSliceTakenAlong) {
    rs.setISnum = 3;
    rs.IS2col = 2;
    rs.IS3col = 3;
    matrix::paint_standards(context);
    view(form.optIIS);
    data(rs.Ratio, 2, {1, 1, 1, 1, 2});
    ratio_statistics(2, 1, 0.25, 2, 6);
    grubbs();
    EXPECT_EQ(picture(), "ggggg ggggx ggggg");
}

TEST_F(GrubbsTests, OnRatiosARowWithoutAPositiveRatioIsLeftOutAtBothEnds) {
    view(form.optIIS);
    data(rs.Ratio, 2, {-9, -1, -1, -1, -1});
    ratio_statistics(2, -2.6, 0.25, 2, 0);
    show_grubbs();
    EXPECT_EQ(row(2), ".....");
    show_grubbs();
    grubbs();
    EXPECT_EQ(row(2), ".....");
}

TEST_F(GrubbsTests, TheStandardsOwnRatioIsOneAndNeverRejected) {
    view(form.optIIS);
    ratio_statistics(1, 1, 0.0001, 2, 2);
    grubbs();
    EXPECT_EQ(row(1), "ggggg");
}

TEST_F(GrubbsTests, Above100SlicesTheTableOfCriticalValuesHasNoRow) {
    rs.SelN = 101;
    EXPECT_THROW(grubbs(), Fault);
}

// All of them -------------------------------------------------------------------------------------------------------

TEST_F(MatrixTests, WhileATestIsOnTheMarksAndTheLevelsAreDisabled) {
    three_isotopes();
    min_max();
    for (const Control* control : std::initializer_list<const Control*>{&form.chkShowMinMax, &form.chkShowStDev,
                                                                        &form.chkShowGrubbs, &form.comboProc})
        EXPECT_FALSE(control->enabled) << control->name;
    EXPECT_TRUE(form.chkStDev.enabled);
    EXPECT_TRUE(form.chkGrubbs.enabled);
    min_max();
    for (const Control* control : std::initializer_list<const Control*>{&form.chkShowMinMax, &form.chkShowStDev,
                                                                        &form.chkShowGrubbs, &form.comboProc})
        EXPECT_TRUE(control->enabled) << control->name;
}

TEST_F(MatrixTests, SwitchingOneTestOffSwitchesTheOthersAndTheMarksOff) {
    three_isotopes();
    show_min_max();
    min_max();
    form.txtSD.text = "1";
    deviation();
    rs.GrubbsP5(5) = 0.5;
    grubbs();
    EXPECT_TRUE(form.chkMinMax.on() && form.chkStDev.on() && form.chkGrubbs.on());
    grubbs();
    EXPECT_FALSE(form.chkMinMax.on() || form.chkStDev.on() || form.chkGrubbs.on());
    EXPECT_FALSE(form.chkShowMinMax.on());
    EXPECT_FALSE(form.pictMinMax.visible);
    EXPECT_FALSE(form.txtSD.locked);
    EXPECT_EQ(picture(), "ggggg ..... .....");  // nothing stays rejected by a test that is off
}

TEST_F(MatrixTests, BlackCellsStayBlackThroughEveryTestAndItsEnd) {
    three_isotopes();
    click_matrix(context, 2, 1);  // the minimum of Sr88
    click_matrix(context, 3, 2);  // in a slice that the standard takes along
    min_max();
    EXPECT_EQ(picture(), "gxxgg Mxx.x .Mx.x");
    form.txtSD.text = "1";
    deviation();
    rs.GrubbsP5(5) = 0.5;
    grubbs();
    EXPECT_EQ(grid.cell(2, 1).back, palette(0));
    EXPECT_EQ(grid.cell(3, 2).back, palette(0));
    min_max();
    EXPECT_EQ(picture(), "ggggg M.... .M...");
    ReadRejections(context);
    EXPECT_EQ(rs.RejManual, 1);
    reset_rejection(context);
    EXPECT_EQ(picture(), "ggggg ..... .....");
}

TEST_F(MatrixTests, ATestSwitchedOffInAnotherTablePutsBackWhatItWouldRejectThere) {
    three_isotopes();
    min_max();
    EXPECT_EQ(picture(), "gxxgg xxx.x .xx.x");
    view(form.optIIS);
    min_max();
    // By ratios the extremes are: Si29 none that is grey; Sr88 first and last; La139 third and last.
    EXPECT_EQ(picture(), "gxxgg .xx.. .x...");
}

TEST_F(MatrixTests, ResetClearsCellsBoxesAndTheLock) {
    rs.setISnum = 1;
    three_isotopes();
    form.txtSD.text = "1";
    deviation();
    min_max();
    click_matrix(context, 0, 4);
    reset_rejection(context);
    EXPECT_EQ(picture(), "ggggg ..... .....");
    EXPECT_FALSE(form.chkMinMax.on() || form.chkStDev.on());
    EXPECT_FALSE(form.txtSD.locked);
    EXPECT_TRUE(form.chkShowMinMax.enabled && form.chkGrubbs.enabled && form.comboProc.enabled);
    EXPECT_FALSE(form.cmdReset.enabled);
}

TEST_F(MatrixTests, ResetTakesTheMarksAndTheirLegendOff) {
    three_isotopes();
    show_min_max();
    ASSERT_TRUE(form.pictMinMax.visible);
    click_matrix(context, 2, 3);
    reset_rejection(context);
    EXPECT_EQ(picture(), "ggggg ..... .....");
    EXPECT_FALSE(form.chkShowMinMax.on());
    EXPECT_FALSE(form.pictMinMax.visible);
    EXPECT_TRUE(form.chkShowStDev.enabled && form.chkShowGrubbs.enabled);
}

// By hand -----------------------------------------------------------------------------------------------------------

TEST_F(MatrixTests, AClickRejectsADatumAndASecondTakesItBack) {
    three_isotopes();
    click_matrix(context, 2, 3);
    EXPECT_EQ(picture(), "ggggg ..M.. .....");
    EXPECT_TRUE(form.cmdReset.enabled);
    click_matrix(context, 2, 3);
    EXPECT_EQ(picture(), "ggggg ..... .....");
}

TEST_F(MatrixTests, AClickOnAGreyCellMakesItBlack) {
    three_isotopes();
    min_max();
    click_matrix(context, 2, 1);
    EXPECT_EQ(row(2), "Mxx.x");
}

TEST_F(MatrixTests, AClickInTheFirstStandardTakesTheWholeSliceAndBackItIsWhite) {
    three_isotopes();
    click_matrix(context, 1, 3);
    EXPECT_EQ(picture(), "ggMgg ..M.. ..M..");
    click_matrix(context, 1, 3);
    EXPECT_EQ(picture(), "gg.gg ..... .....");  // no pale green
}

TEST_F(MatrixTests, TheOtherStandardsTakeNoSliceByHand) {
    rs.setISnum = 3;
    three_isotopes();
    rs.setISnum = 3;
    rs.IS2col = 2;
    rs.IS3col = 3;
    load_matrix(context);
    click_matrix(context, 2, 3);
    click_matrix(context, 3, 4);
    EXPECT_EQ(picture(), "ggggg ggMgg gggMg");
}

TEST_F(MatrixTests, AClickOnASlicesHeadTogglesTheSliceByItsFirstDatum) {
    three_isotopes();
    click_matrix(context, 3, 2);
    click_matrix(context, 0, 2);
    EXPECT_EQ(picture(), "gMggg .M... .M...");
    click_matrix(context, 0, 2);
    EXPECT_EQ(picture(), "g.ggg ..... .....");
    EXPECT_EQ(grid.cell(0, 2).back, palette(15));
}

TEST_F(MatrixTests, WhileAFileIsMadeTheStandardsRowTogglesItsCellAlone) {
    rs.ModeCreateSTM = 1;
    rs.IS1col = 1;
    isotope("Si29", {100, 110, 90, 100, 100});
    isotope("Sr88", {10, 20, 30, 40, 50});
    load_matrix(context);
    click_matrix(context, 1, 3);
    EXPECT_EQ(picture(), "..M.. .....");
    click_matrix(context, 0, 1);
    EXPECT_EQ(picture(), "M.M.. M....");
}

TEST_F(MatrixTests, TypingALevelIsRefusedAndTheLevelShownAgain) {
    three_isotopes();
    form.comboProc.text = "3";
    refuse_typed_level(context);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text,
              "You can not type directly the percent of probability here. Select from the roll-down list.");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(form.comboProc.text, " 5");
    form.comboProc.set_value(1);
    form.comboProc.text = "2.55";
    refuse_typed_level(context);
    EXPECT_EQ(form.comboProc.text, "2.5");
    form.comboProc.show_item("6");
    refuse_typed_level(context);
    EXPECT_EQ(form.comboProc.text, " 5");
}

}  // namespace
}  // namespace kolvar::test
