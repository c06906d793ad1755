#include "upb/express.hpp"

#include <cmath>
#include <functional>

#include "core/fault.hpp"
#include "upb/regression.hpp"
#include "uranium_case.hpp"

namespace kolvar::test {
namespace {

class Express : public UraniumCase {
protected:
    void calculate() { calc_express_UP(context); }
};

// 206/238 0.1 0.2 0.2 0.25; 207/235 1 2 2 3; 208/232 0.1 0.2 0.3 0.4; 238/232 2 2 4 4; 207/206 0.1 0.1 0.1 0.12.
TEST_F(Express, MeansDeviationsAndTheLabelsOfTheRatios) {
    calculate();
    EXPECT_NEAR(rs.Mean68, 0.1875, 1e-15);
    EXPECT_DOUBLE_EQ(rs.Mean75, 2);
    EXPECT_NEAR(rs.Mean82, 0.25, 1e-15);
    EXPECT_DOUBLE_EQ(rs.Mean382, 3);
    EXPECT_NEAR(rs.Mean76, 0.105, 1e-15);
    EXPECT_DOUBLE_EQ(rs.Mean85, 100);
    EXPECT_NEAR(rs.SD68, 0.062915287, 1e-9);
    EXPECT_NEAR(rs.SD75, 0.816496581, 1e-9);
    EXPECT_NEAR(rs.SD82, 0.129099445, 1e-9);
    EXPECT_NEAR(rs.SD382, 1.154700538, 1e-9);
    EXPECT_NEAR(rs.SD76, 0.01, 1e-12);
    EXPECT_DOUBLE_EQ(rs.SD85, 0);
    EXPECT_EQ(form.lbl6_8.text, "0.188  \xC2\xB1 0.063");
    EXPECT_EQ(form.lbl7_5.text, "2.000  \xC2\xB1 0.816");
    EXPECT_EQ(form.lbl8_2.text, "0.250  \xC2\xB1 0.129");
    EXPECT_EQ(form.lbl38_2.text, "3.000  \xC2\xB1 1.155");
    EXPECT_EQ(form.lbl7_6.text, "0.105  \xC2\xB1 0.010");
    EXPECT_EQ(form.lbl8_5.text, "100.000  \xC2\xB1 0.000");
    EXPECT_EQ(form.lblMed6_8.text, "0.200");
    EXPECT_EQ(form.lblMed7_5.text, "2.000");
    EXPECT_EQ(form.lblMed8_2.text, "0.250");
    EXPECT_EQ(form.lblMed38_2.text, "3.000");
    EXPECT_EQ(form.lblMed7_6.text, "0.100");
}

TEST_F(Express, SkewnessScatterAgesAndConcordance) {
    calculate();
    EXPECT_EQ(form.lblSkew1.text, "-1.1");  // 4 x -0.000421875 / (6 x 0.0629153^3)
    EXPECT_EQ(form.lblSkew2.text, "0.0");
    EXPECT_EQ(form.lblSkew4.text, "0.0");
    EXPECT_EQ(form.lblSkew5.text, "2.0");  // 4 x 3E-6 / (6 x 1E-6)
    // 57.735 / 150 and 18.257 / 30 over the root of 1 / 1.5 + 1 / 0.3.
    EXPECT_EQ(form.lblExPo68.text, "0.4 x");
    EXPECT_EQ(form.lblAge06_38.text, "1108");  // ln 1.1875 / 1.55125E-10
    EXPECT_EQ(form.lblAge07_35.text, "1116");  // ln 3 / 9.8485E-10
    EXPECT_EQ(form.lblConcord1.text, "0.99");
    EXPECT_EQ(form.lblConcord1.back, rgb(255, 255, 255));
}

TEST_F(Express, MeanSignalsAndTheirMargins) {
    rs.BlkSD(u238) = 0.5;  // 150 / 1.5
    rs.BlkSD(u235) = 0.2;  // 1.5 / 0.6 = 2.5, to the even number
    rs.BlkSD(th232) = 1.0;
    rs.BlkSD(pb208) = 0.04;    // 12.5 / 0.12 = 104
    rs.BlkSD(pb206) = 0.0995;  // 30 / 0.2985 = 100.503
    calculate();
    EXPECT_EQ(form.lbl238.text, "150");
    EXPECT_EQ(form.lbl235.text, "2");
    EXPECT_EQ(form.lbl232.text, "50");
    EXPECT_EQ(form.lbl208.text, "13");
    EXPECT_EQ(form.lbl207.text, "3");
    EXPECT_EQ(form.lbl206.text, "30");
    EXPECT_EQ(form.lbl204.text, "4");
    EXPECT_EQ(form.lblAver(8).text, "2");
    EXPECT_EQ(form.lbl238LoD.text, "100");
    EXPECT_EQ(form.lbl235LoD.text, "2");
    EXPECT_EQ(form.lbl232LoD.text, "17");
    EXPECT_EQ(form.lbl208LoD.text, ">100");
    EXPECT_EQ(form.lbl206LoD.text, ">100");  // 101 after rounding
    rs.BlkSD(pb206) = 0.09955;               // 100.4: rounded it is 100
    calculate();
    EXPECT_EQ(form.lbl206LoD.text, "100");
}

TEST_F(Express, ANetSignalOfNothingOrLessIsAHundredth) {
    rs.BlkMean(pb206) = 20.0;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(pb206, 5), 0.01);
    EXPECT_DOUBLE_EQ(rs.Sig2(pb206, 6), 0.01);
    EXPECT_DOUBLE_EQ(rs.Sig2(pb206, 7), 20);
    EXPECT_DOUBLE_EQ(rs.Sig2(pb206, 1), 0.01);  // the whole table, the blank too
    EXPECT_DOUBLE_EQ(rs.Rat76(5), 100);
}

// Slice 8 is rejected: 150 cps become 400 / 4, the s.d. is that of all four slices about this lower mean.
TEST_F(Express, RejectedSlicesLowerTheMeanSignalButNotTheRatios) {
    rs.RejFlag(8) = 1;
    rs.SelNGood = 3;
    calculate();
    EXPECT_DOUBLE_EQ(rs.CpsMean(u238), 100);
    EXPECT_NEAR(rs.CpsSD(u238).number(), 81.6496581, 1e-7);  // sqrt((0 + 0 + 10000 + 10000) / 3)
    EXPECT_NEAR(rs.Mean68, 0.5 / 3, 1e-15);
    EXPECT_NEAR(rs.SD68, 0.057735027, 1e-9);
    EXPECT_DOUBLE_EQ(rs.Max68.number(), 0.25);  // extremes count it
    EXPECT_DOUBLE_EQ(rs.Max75.number(), 3);
    EXPECT_DOUBLE_EQ(rs.Min75.number(), 1);
}

TEST_F(Express, AConstantSignalHasADeviationOfATenThousandth) {
    calculate();
    EXPECT_DOUBLE_EQ(rs.CpsSD(th232).number(), 0.0001);
}

TEST_F(Express, ErrorsByTheirSetting) {
    rs.setErr_times = 2;
    rs.setErr = 1;
    calculate();
    EXPECT_NEAR(rs.Err75, 2 * 0.816496581 / 2 * 100, 1e-6);
    rs.setErr = 2;
    calculate();
    EXPECT_NEAR(rs.Err75, 2 * 0.816496581 / 1.7320508, 1e-7);  // the root of n - 1, not of n
    rs.setErr = 3;
    calculate();
    EXPECT_NEAR(rs.Err75, 2 * 0.816496581 / 2 * 100 / 1.7320508, 1e-5);
    rs.setErr = 4;
    rs.Err75 = 0.5;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Err75, 0.5);
    EXPECT_EQ(form.lbl7_5.text, "2.000  \xC2\xB1 0.500");
}

TEST_F(Express, WithoutU235ItsRatioIsLeftOutAndStaleRatiosAreAddedAllTheSame) {
    rs.ColU235 = 0;
    ratio(rs.Rat75, {5, 5, 6, 8});  // of an earlier file
    rs.Err75 = 0.25;
    form.lbl7_5.text = form.lbl8_5.text = form.lblMed7_5.text = form.lblSkew2.text = form.lblExPo75.text = "old";
    form.lbl235LoD.text = form.lblConcord1.text = "old";
    rs.setErr = 1;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Mean75, 6);
    EXPECT_DOUBLE_EQ(rs.Rat75(5), 5);
    EXPECT_DOUBLE_EQ(rs.Err75, 0.25);
    for (const Label* label : {&form.lbl7_5, &form.lbl8_5, &form.lblMed7_5, &form.lblSkew2, &form.lblExPo75,
                               &form.lbl235LoD, &form.lblConcord1})
        EXPECT_EQ(label->text, "old") << label->name;
    EXPECT_EQ(form.lbl235.text, "n. d.");
    // ln 7 / 9.8485E-10 = 1976 Ma against 1108: the colour follows although no number is shown.
    EXPECT_EQ(form.lblConcord1.back, rgb(0, 0, 255));
    EXPECT_EQ(rs.setConcordia.val(), 1);  // there is no 207/235 to plot
}

TEST_F(Express, WithoutThoriumItsTwoRatiosAreLeftOut) {
    rs.ColTh232 = 0;
    form.lbl8_2.text = form.lbl38_2.text = form.lblSkew3.text = form.lblSkew4.text = "old";
    form.lblExPo82.text = form.lblExPo382.text = form.lbl232LoD.text = "old";
    calculate();
    for (const Label* label : {&form.lbl8_2, &form.lbl38_2, &form.lblSkew3, &form.lblSkew4, &form.lblExPo82,
                               &form.lblExPo382, &form.lbl232LoD})
        EXPECT_EQ(label->text, "old") << label->name;
    EXPECT_EQ(form.lbl232.text, "n. d.");
    EXPECT_DOUBLE_EQ(rs.Mean82, 0);
}

TEST_F(Express, WithoutPb204OrMercuryTheirSignalsAreNotDetermined) {
    rs.ColPb204 = 0;
    rs.HgMass = 0;  // ColHg still holds the column of an earlier file
    calculate();
    EXPECT_EQ(form.lbl204.text, "n. d.");
    EXPECT_EQ(form.lblAver(8).text, "n. d.");
}

TEST_F(Express, OnTheFlexPathAnAnalyteThatWasNotMeasuredShowsNothing) {
    rs.Method = 3;
    rs.ColHg = 0;
    rs.HgMass = 0;
    form.lbl20xLoD.text = "old";
    calculate();
    EXPECT_EQ(form.lblAver(8).text, "");
    EXPECT_EQ(form.lbl20xLoD.text, "");
    EXPECT_EQ(form.lblAge06_38.text, "1108");  // and the rest is calculated
    rs.ColHg = hg202;                          // left by a file of the other path
    calculate();
    EXPECT_EQ(form.lblAver(8).text, "2");
}

// Also of the analytes that a file for dating must have: without the two that share 208/232 the others are calculated.
TEST_F(Express, OnTheFlexPathNoMarginIsSoughtWhereNothingWasMeasured) {
    rs.Method = 3;
    rs.ColPb208 = rs.ColTh232 = 0;
    rs.CpsMean(0) = 7;  // left by a correction of a missing Pb204
    form.lbl208.text = form.lbl208LoD.text = "old";
    calculate();
    EXPECT_EQ(form.lbl208.text, "");
    EXPECT_EQ(form.lbl208LoD.text, "");
    EXPECT_EQ(form.lbl232.text, "n. d.");
    EXPECT_EQ(form.lbl206.text, "30");
    EXPECT_EQ(form.lblAge06_38.text, "1108");
}

TEST_F(Express, CalculatedU235BeginsAtTheEndOfTheBlank) {
    rs.set235_Calc = 1;
    for (int t = 1; t <= 10; ++t) rs.Sig(u238, t) = t < 7 ? 300 : 600;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(u235, 2), 0.01);
    EXPECT_DOUBLE_EQ(rs.Sig2(u235, 3), 3);
    EXPECT_DOUBLE_EQ(rs.Sig2(u235, 8), 6);
    EXPECT_DOUBLE_EQ(rs.CpsMean(u235), 4.5);
    EXPECT_DOUBLE_EQ(rs.Rat75(8), 1);
    rs.Method = 3;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(u235, 8), 2);
}

// Raw Pb204 less the Hg of the blank over Hg202/Hg204; the blank of Pb204 itself stays in it.
TEST_F(Express, TheMercuryOfTheBlankComesOffTheRawPb204) {
    form.chkHgCorr.value = 1;
    rs.BlkMean(pb204) = 1.0;
    rs.BlkMean(hg202) = 9.0;
    rs.Hg2_4 = 4.5;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(pb204, 2), 0.01);  // before the end of the blank nothing is corrected
    EXPECT_DOUBLE_EQ(rs.Sig204Net(5), 3);
    EXPECT_DOUBLE_EQ(rs.Sig2(pb204, 5), 2);  // 4 - 9 / 4.5
    EXPECT_DOUBLE_EQ(rs.CpsMean(pb204), 2);
    EXPECT_FALSE(forms.frm2_Time.lblHgCorrNegative.visible);
    form.chkHgCorr.value = 0;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(pb204, 5), 3);
}

TEST_F(Express, ANegativePb204IsToldByTheLabelOfTheOtherScreen) {
    form.chkHgCorr.value = 1;
    rs.BlkMean(hg202) = 90.0;
    rs.Hg2_4 = 4.5;
    form.lblHgCorrNegative.visible = true;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(pb204, 5), -16);
    EXPECT_TRUE(forms.frm2_Time.lblHgCorrNegative.visible);
    EXPECT_FALSE(form.lblHgCorrNegative.visible);
}

TEST_F(Express, OfEachHgIsotopeItsOwnRatioIsUsed) {
    rs.BlkMean(hg202) = 60.0;
    rs.Hg8_4 = 1;
    rs.Hg9_4 = 2;
    rs.Hg0_4 = 3;
    rs.Hg1_4 = 4;
    rs.Hg2_4 = 5;
    const double expected[] = {60, 30, 20, 15, 12};
    for (int k = 0; k < 5; ++k) {
        rs.HgMass = 198 + k;
        EXPECT_DOUBLE_EQ(hg204_of_blank(rs).value_or(-1), expected[k]);
    }
    rs.HgMass = 0;
    EXPECT_FALSE(hg204_of_blank(rs));
    form.chkHgCorr.value = 1;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(pb204, 5), 4);
}

FaultKind fault_of(const std::function<void()>& work) {
    try {
        work();
    } catch (const Fault& fault) {
        return fault.kind;
    }
    ADD_FAILURE() << "no fault";
    return FaultKind::file_missing;
}

TEST_F(Express, AnHgRatioOfZeroIsAFault) {
    form.chkHgCorr.value = 1;
    rs.Hg2_4 = 0;
    rs.Sig204Net(3) = rs.Sig204Net(4) = 9;
    EXPECT_EQ(fault_of([&] { calculate(); }), FaultKind::division_by_zero);
    EXPECT_DOUBLE_EQ(rs.Sig204Net(3), 0.01);  // it strikes at the first slice, at the end of the blank
    EXPECT_DOUBLE_EQ(rs.Sig204Net(4), 9);
}

TEST_F(Express, WithoutHgInTheGasTheBlankOfPb204StaysInIt) {
    form.chkHgCorr.value = 1;
    rs.BlkMean(pb204) = 1.0;
    rs.BlkMean(hg202) = 0.0001;  // what a blank of nothing is taken for
    rs.Hg2_4 = 4;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(pb204, 5), 4 - 0.000025);
    EXPECT_DOUBLE_EQ(rs.Sig204Net(5), 3);
}

// The ratios are shown, then the skewness divides by (n - 1)(n - 2).
TEST_F(Express, ASelectionOfTwoSlicesEndsInAFaultBehindTheRatios) {
    select(5, 6);
    form.lbl238.text = form.lblAge06_38.text = "old";
    EXPECT_EQ(fault_of([&] { calculate(); }), FaultKind::division_by_zero);
    EXPECT_EQ(form.lbl6_8.text, "0.150  \xC2\xB1 0.071");
    EXPECT_EQ(form.lbl238.text, "old");
    EXPECT_EQ(form.lblAge06_38.text, "old");
}

// 238/232 is constant. The skewness of the ratios before it is not shown either.
TEST_F(Express, AConstantRatioEndsInAFaultAndLeavesEverySkewnessAsItWas) {
    signal(th232, {50, 50, 100, 100});
    form.lblSkew1.text = form.lblSkew2.text = form.lblSkew4.text = form.lblSkew5.text = form.lbl238.text = "old";
    EXPECT_EQ(fault_of([&] { calculate(); }), FaultKind::division_by_zero);
    EXPECT_EQ(form.lbl38_2.text, "2.000  \xC2\xB1 0.000");
    for (const Label* label : {&form.lblSkew1, &form.lblSkew2, &form.lblSkew4, &form.lblSkew5, &form.lbl238})
        EXPECT_EQ(label->text, "old") << label->name;
}

// Without Th232 8/2 and 38/2 hold nothing, with a spread of 0: no fault, their skewness is not asked for.
TEST_F(Express, TheSkewnessOfAMissingRatioIsNotAskedFor) {
    rs.ColTh232 = rs.ColU235 = 0;
    rs.Mean75 = 0.5;
    ratio(rs.Rat75, {1, 1, 1, 1});
    calculate();
    EXPECT_DOUBLE_EQ(rs.SD75, 0);
    EXPECT_EQ(form.lblSkew5.text, "2.0");
    EXPECT_EQ(form.lblSkew2.text, "");
    EXPECT_EQ(form.lblSkew3.text, "");
}

// Slice 8 rejected: U238 100 with an s.d. of 81.6497, Pb206 70 / 4 = 17.5 with sqrt((7.5^2 + 2.5^2 + 22.5^2 + 32.5^2)
// / 3) = 23.2737; 1.56057 over the root of 1 / (0.01 100) + 1 / (0.01 17.5) = 2.59119. With the mean of the three
// slices that count it would be 0.5.
TEST_F(Express, TheScatterOverCountingStatisticsRestsOnTheLoweredMeans) {
    rs.RejFlag(8) = 1;
    rs.SelNGood = 3;
    calculate();
    EXPECT_EQ(form.lblExPo68.text, "0.6 x");
}

TEST_F(Express, WithoutAU235ColumnTheCalculatedU235ChangesNoRatio) {
    rs.ColU235 = 0;
    rs.set235_Calc = 1;
    calculate();
    EXPECT_NEAR(rs.Mean68, 0.1875, 1e-15);
    EXPECT_DOUBLE_EQ(rs.Mean75, 0);
    EXPECT_DOUBLE_EQ(rs.Sig2(u235, 5), 1);
    EXPECT_EQ(form.lbl235.text, "n. d.");
}

// The four selected slices are -16 together, the rejected one counted; the mean that is kept is that of the other
// three over four.
TEST_F(Express, TheSignOfTheCorrectedPb204CountsRejectedSlicesToo) {
    form.chkHgCorr.value = 1;
    rs.BlkMean(hg202) = 9.0;
    rs.Hg2_4 = 4.5;
    signal(pb204, {4, 4, 4, -20});  // corrected 2 2 2 -22
    rs.RejFlag(8) = 1;
    rs.SelNGood = 3;
    calculate();
    EXPECT_TRUE(forms.frm2_Time.lblHgCorrNegative.visible);
    EXPECT_DOUBLE_EQ(rs.CpsMean(pb204), 6 / 4.0);
}

TEST_F(Express, TheCommonLeadBoxChangesNoNumber) {
    calculate();
    const double pb206_cps = rs.CpsMean(pb206);
    form.chkCommLead.value = 1;
    rs.setComm_Pb = 1;
    calculate();
    EXPECT_NEAR(rs.Mean68, 0.1875, 1e-15);
    EXPECT_DOUBLE_EQ(rs.CpsMean(pb206), pb206_cps);
}

TEST_F(Express, TheAgesRestOnTheMeansWhateverTheResultsAreBasedOn) {
    rs.setMean_UP = 1;
    rs.setAver = 1;
    calculate();
    EXPECT_EQ(form.lblAge06_38.text, "1108");  // of 0.1875; the median 0.2 would give 1175
}

TEST_F(Express, TooShortIntervalsAreToldAndNothingChanges) {
    calculate();
    rs.SelUpp = 5;
    signal(u238, {1, 1, 1, 1});
    calculate();
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text,
              "The selected time interval is too short. Select longer interval or confirm the former selection by left "
              "and right mouse clicks, please.");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_NEAR(rs.Mean68, 0.1875, 1e-15);
    rs.BlkUpp = 1;
    calculate();
    ASSERT_EQ(os.boxes.size(), 2U);
    EXPECT_EQ(os.boxes[1].text,
              "The selected blank interval is too short. Select longer blank interval or confirm the former selection "
              "by SHIFT + left and right mouse clicks, please.");
}

TEST_F(Express, WhileARefinementScansNoLabelChanges) {
    calculate();
    rs.ZizzRunning = true;
    const int draws = form.pict3.canvas.draws();
    signal(pb206, {20, 40, 80, 100});
    calculate();
    EXPECT_NEAR(rs.Mean68, 0.375, 1e-15);
    EXPECT_EQ(form.lbl6_8.text, "0.188  \xC2\xB1 0.063");
    EXPECT_EQ(form.pict3.canvas.draws(), draws);
    rs.AcceptBest = true;
    calculate();
    EXPECT_EQ(form.pict3.canvas.draws(), draws + 1);
}

TEST_F(Express, TheButtonsOfTheResultsBecomeUsable) {
    form.cmdReject.enabled = form.cmdReject.visible = form.cmdCopySel.enabled = false;
    rs.Method = 3;
    calculate();
    EXPECT_TRUE(form.cmdReject.enabled && form.cmdReject.visible && form.cmdCopyHead.enabled && form.cmdCopy.enabled &&
                form.cmdApp.enabled);
    EXPECT_FALSE(form.cmdCopySel.enabled);
    rs.Method = 1;
    calculate();
    EXPECT_TRUE(form.cmdCopySel.enabled);
}

// Relative scatters: U238 0.385, U235 0.385, Th232 nothing, Pb208 0.516, Pb207 0.682, Pb206 0.609.
TEST_F(Express, EachScatterIsComparedWithTheDwellTimesOfItsTwoIsotopes) {
    rs.dweU238 = 0.01;
    rs.dweU235 = 1.0;
    rs.dweTh232 = 0.04;
    rs.dwePb208 = 0.1;
    rs.dwePb207 = 2.0;
    rs.dwePb206 = 0.5;
    calculate();
    EXPECT_EQ(form.lblExPo68.text, "0.8 x");   // 0.720 / 0.856
    EXPECT_EQ(form.lblExPo75.text, "0.9 x");   // 0.783 / 0.906
    EXPECT_EQ(form.lblExPo82.text, "0.5 x");   // 0.516 / 1.140
    EXPECT_EQ(form.lblExPo382.text, "0.4 x");  // 0.385 / 1.080
    EXPECT_EQ(form.lblExPo76.text, "1.9 x");   // 0.914 / 0.470
}

TEST_F(Express, TheHighestRatioIsNeverBelowZero) {
    rs.ColU235 = 0;
    ratio(rs.Rat75, {-0.5, -0.25, -0.5, -0.75});  // of an earlier file
    calculate();
    EXPECT_DOUBLE_EQ(rs.Max75.number(), 0);
    EXPECT_DOUBLE_EQ(rs.Min75.number(), -0.75);
}

TEST_F(Express, ABlankOfTwoSlicesIsEnough) {
    rs.BlkUpp = 2;
    calculate();
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_NEAR(rs.Mean68, 0.1875, 1e-15);
}

TEST_F(Express, OnTheFlexPathNoMercuryIsTakenOff) {
    rs.Method = 3;
    form.chkHgCorr.value = 1;
    rs.BlkMean(hg202) = 9.0;
    rs.Hg2_4 = 4.5;
    calculate();
    EXPECT_DOUBLE_EQ(rs.Sig2(pb204, 5), 4);
}

// A new file without intervals had hidden them, in a window that stays open.
TEST_F(Express, WithTheButtonComeTheControlsOfTheOutlierTest) {
    for (const int shown : {0, 1}) {
        form.chkShowSD.value = shown;
        for (Control* control : std::initializer_list<Control*>{&form.cmdReject, &form.chkShowSD, &form.txtSD,
                                                                &form.lblReject, &form.lblOM})
            control->visible = false;
        calculate();
        EXPECT_TRUE(form.chkShowSD.visible && form.txtSD.visible);
        EXPECT_EQ(form.lblReject.visible, shown == 1);
        EXPECT_EQ(form.lblOM.visible, shown == 1);
    }
    form.lblReject.visible = form.lblOM.visible = false;  // by a click that undid a rejection
    calculate();
    EXPECT_FALSE(form.lblReject.visible || form.lblOM.visible);
}

// x = 207/235 age over 206/238 age, set through the means of a two-valued selection.
TEST_F(Express, TheColourOfTheConcordanceHasStepsAndGaps) {
    struct Step {
        double x;
        std::optional<Colour> colour;
    };
    const Step steps[] = {{0.8499, rgb(255, 0, 0)},   {0.86, rgb(255, 128, 128)}, {0.899995, std::nullopt},
                          {0.91, rgb(255, 192, 192)}, {0.949995, std::nullopt},   {0.96, rgb(255, 255, 255)},
                          {1.04, rgb(255, 255, 255)}, {1.049995, std::nullopt},   {1.06, rgb(192, 192, 255)},
                          {1.1, std::nullopt},        {1.12, rgb(128, 128, 255)}, {1.149995, std::nullopt},
                          {1.16, rgb(0, 0, 255)}};
    const double age = 1e9;
    rs.ColTh232 = 0;  // 238/232 would be constant
    for (const Step& step : steps) {
        form.lblConcord1.back = rgb(1, 2, 3);
        const double r68 = std::exp(rs.Lambda238 * age) - 1;
        const double r75 = std::exp(rs.Lambda235 * age * step.x) - 1;
        // A spread that leaves the mean: two slices above, two below.
        for (int t = 5; t <= 8; ++t) {
            const double off = t % 2 == 0 ? 1.001 : 0.999;
            rs.Sig(u238, t) = 1000;
            rs.Sig(u235, t) = 10;
            rs.Sig(pb206, t) = 1000 * r68 * off;
            rs.Sig(pb207, t) = 10 * r75 * (2 - off);
        }
        calculate();
        EXPECT_EQ(form.lblConcord1.back, step.colour.value_or(rgb(1, 2, 3))) << step.x;
    }
}

// Both means are 0.6487212707001282, whose logarithm of 1 + m is 0.5; with decay constants that stand as x to 1 the
// ages then do, exactly; for 0.9 and 0.95 it takes whole numbers.
TEST_F(Express, TheStepsOfTheConcordanceHoldTheirBounds) {
    struct Step {
        double x;
        std::optional<Colour> colour;
        double lambda238 = 0, lambda235 = 1;
    };
    const Step steps[] = {
        {0.85, rgb(255, 128, 128)},    {0.89999, rgb(255, 128, 128)},        {0.9, rgb(255, 192, 192), 45, 50},
        {0.94999, rgb(255, 192, 192)}, {0.95, rgb(255, 255, 255), 209, 220}, {1.04999, rgb(255, 255, 255)},
        {1.05, rgb(192, 192, 255)},    {1.09999, rgb(192, 192, 255)},        {1.1, std::nullopt},
        {1.10001, rgb(128, 128, 255)}, {1.14999, rgb(128, 128, 255)},        {1.15, std::nullopt}};
    const double mean = 0.6487212707001282;
    ASSERT_EQ(std::log(1 + mean), 0.5);
    rs.ColTh232 = 0;
    signal(u238, {1, 1, 1, 1});
    signal(u235, {1, 1, 1, 1});
    signal(pb206, {mean - 0.125, mean + 0.125, mean - 0.125, mean + 0.125});
    signal(pb207, {mean + 0.125, mean - 0.125, mean + 0.125, mean - 0.125});
    for (const Step& step : steps) {
        rs.Lambda238 = step.lambda238 == 0 ? step.x : step.lambda238;
        rs.Lambda235 = step.lambda235;
        form.lblConcord1.back = rgb(1, 2, 3);
        calculate();
        ASSERT_EQ(rs.Age75 / rs.Age68, step.x);
        EXPECT_EQ(form.lblConcord1.back, step.colour.value_or(rgb(1, 2, 3))) << step.x;
    }
}

}  // namespace
}  // namespace kolvar::test
