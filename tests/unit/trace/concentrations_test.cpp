#include "trace/concentrations.hpp"

#include <cmath>

#include "interval_case.hpp"
#include "trace/statistics.hpp"

namespace kolvar::test {
namespace {

const char* const result_fault =
    "Error occurred while calculating the results. Probably there are too much extreme numbers in the selected blank, "
    "or the data set does not contain all internal standards.";

// Two columns whose results can be followed by hand: Si29 is the internal standard with 3000 ppm in the sample.
//   ratios of Y89 to Si29        1/2  1/2  1  1/4      mean 9/16
//   its ppm = ratio x (20 / 40) x (3000 x 500) / 1000 = ratio x 750
class Concentrations : public IntervalCase {
public:
    void SetUp() override {
        column("Si29", {0, 0, 110, 210, 110, 410});
        column("Y89", {0, 0, 54, 104, 104, 104});
        net(1, {0, 0, 100, 200, 100, 400});
        net(2, {0, 0, 50, 100, 100, 100});
        rs.ModeData = 1;
        rs.IS1col = 1, rs.IS1conc = 3000, rs.IS1err = 30;
        reference(1, 1000, 10, 500, 10, 3);
        reference(2, 20, 1, 40, 4, 2);
        select(3, 6);
    }
    void reference(int i, double ppm, double error, double cps, double blank_mean, double blank_sd) {
        rs.IsoISidx(i) = 1, rs.IsoISconc(i) = 3000, rs.IsoISerr(i) = 30;
        rs.StdConc(i) = ppm, rs.StdConcErr(i) = error, rs.StdCps(i) = cps;
        rs.BlkMean(i) = blank_mean, rs.BlkSD(i) = blank_sd;
        rs.Dwell(i) = 0.01;
    }
    void reject(int i, int t) {
        rs.Rej(i, t) = 1;
        rs.nData(i) -= 1;
    }
    void compute() { ComputeConcentrations(rs, os); }
    void expect_box() {
        ASSERT_EQ(os.boxes.size(), 1U);
        EXPECT_EQ(os.boxes[0].text, result_fault);
        EXPECT_EQ(os.boxes[0].title, "KOLVAR");
        EXPECT_EQ(os.boxes[0].kind, "warning");
    }
};

TEST_F(Concentrations, MeansOfTheAcceptedSlices) {
    compute();
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.AvCps(1), 200);
    EXPECT_EQ(rs.AvRawCps(1), 210);
    EXPECT_EQ(rs.AvCps(2), 87.5);
    EXPECT_EQ(rs.AvRawCps(2), 91.5);
    EXPECT_EQ(rs.AccRatio(1), 1);
    EXPECT_EQ(rs.AccRatio(2), 0.5625);
    EXPECT_EQ(rs.nIsoCalc, 2);
}

TEST_F(Concentrations, MeanAndMedian) {
    compute();
    EXPECT_EQ(rs.ConcMean(2), Cell(421.875));
    EXPECT_EQ(rs.ConcMedian(2), Cell(375.0));  // 100 / 200 x 750
    EXPECT_EQ(rs.ConcMean(1), Cell(3000.0));
    EXPECT_EQ(rs.ConcMedian(1), Cell(2250.0));  // (100 + 200) / 2 / 200 x 3000
}

TEST_F(Concentrations, OfEachSlice) {
    compute();
    EXPECT_EQ(rs.ConcT(2, 3), Cell(375.0));
    EXPECT_EQ(rs.ConcT(2, 4), Cell(375.0));
    EXPECT_EQ(rs.ConcT(2, 5), Cell(750.0));
    EXPECT_EQ(rs.ConcT(2, 6), Cell(187.5));
    EXPECT_EQ(rs.ConcT(1, 5), Cell(3000.0));
}

TEST_F(Concentrations, SpreadOfTheSlices) {
    compute();
    // Deviations from 421.875: -46.875 twice, 328.125, -234.375.
    const double variance = (2 * 2197.265625 + 107666.015625 + 54931.640625) / 3;
    EXPECT_DOUBLE_EQ(rs.ConcSD(2).held, std::sqrt(variance));
    EXPECT_DOUBLE_EQ(rs.ConcSE(2).held, std::sqrt(variance) / 2);
    EXPECT_EQ(rs.RelErr(2), Cell(56.0));  // 23593.2.. / 421.875 = 55.92
}

TEST_F(Concentrations, ErrorOfEachSlice) {
    compute();
    // e3 = 1 / (40 x 0.01), e4 = 1 / (500 x 0.01), e5 = (1 / 20)^2, e6 = (10 / 1000)^2, e7 = (30 / 3000)^2
    const double references = 2.5 + 0.2 + 0.0025 + 0.0001 + 0.0001;
    EXPECT_NEAR(rs.ErrT(2, 3).held, 375 * std::sqrt(2 + 1 + references), 1E-9);
    EXPECT_NEAR(rs.ErrT(2, 4).held, 375 * std::sqrt(1 + 0.5 + references), 1E-9);
    EXPECT_NEAR(rs.ErrT(2, 6).held, 187.5 * std::sqrt(1 + 0.25 + references), 1E-9);
}

TEST_F(Concentrations, DetectionLimitAddsTheBlankMeanAndTakesItFromTheStandard) {
    compute();
    EXPECT_EQ(rs.LoD(2), Value("5.55600"));   // 20 x (3 x 2 + 4) / (40 - 4)
    EXPECT_EQ(rs.LoD(1), Value("38.77600"));  // 1000 x (3 x 3 + 10) / (500 - 10) = 38.7755
}

TEST_F(Concentrations, CorrelationWithTheStandardIsSquaredAndRounded) {
    compute();
    EXPECT_EQ(rs.R2IsoIS(2), 0.22);  // r = 20000 / sqrt(7500 x 240000)
    EXPECT_EQ(rs.R2IsoIS(1), 1);
}

TEST_F(Concentrations, ASampleEqualToTheStandardGivesTheStandardsComposition) {
    for (const int i : {1, 2}) rs.IsoISconc(i) = 1000;
    for (int t = 3; t <= 6; ++t) rs.Sig2(1, t) = 500, rs.Sig2(2, t) = 40;
    compute();
    EXPECT_EQ(rs.ConcMean(1), Cell(1000.0));
    EXPECT_DOUBLE_EQ(rs.ConcMean(2).held, 20);
}

TEST_F(Concentrations, TheFirstStandardShowsItsStatedErrorButKeepsItsComputedStandardError) {
    net(1, {0, 0, 100, 200, 100, 400});
    compute();
    EXPECT_EQ(rs.ConcMean(1), Cell(3000.0));
    EXPECT_EQ(rs.ConcSD(1), Cell(30.0));
    EXPECT_EQ(rs.ConcSE(1), Cell(0.0));
    EXPECT_EQ(rs.RelErr(1), Cell(0.0));
}

TEST_F(Concentrations, OtherStandardsKeepTheirComputedDeviation) {
    rs.IS2col = 2, rs.IS2err = 77;
    rs.setISnum = 2;
    compute();
    EXPECT_NE(rs.ConcSD(2), Cell(77.0));
    EXPECT_EQ(rs.RelErr(2), Cell(56.0));
}

TEST_F(Concentrations, RejectionChangesTheMeanAndLeavesTheMedian) {
    reject(2, 5);
    compute();
    EXPECT_NEAR(rs.ConcMean(2).held, (0.5 + 0.5 + 0.25) / 3 * 750, 1E-12);
    EXPECT_EQ(rs.ConcMedian(2), Cell(375.0));
    EXPECT_EQ(rs.ConcT(2, 5), Cell(Mark::xx));
    EXPECT_EQ(rs.ErrT(2, 5), Cell(Mark::xx));
    EXPECT_TRUE(rs.ConcT(2, 6).is_number());
}

TEST_F(Concentrations, TheMedianOfTwoSlicesIsTheirMean) {
    select(5, 6);
    compute();
    EXPECT_EQ(rs.ConcMedian(1), Cell(3000.0));  // 250 / 250 x 3000
    EXPECT_EQ(rs.ConcMedian(2), Cell(300.0));   // 100 / 250 x 750
}

TEST_F(Concentrations, TheMedianOfAnOddSelectionIsTheMiddleSlice) {
    select(3, 5);
    net(1, {0, 0, 100, 200, 300});
    compute();
    EXPECT_EQ(rs.ConcMedian(2), Cell(375.0));   // 100 / 200 x 750
    EXPECT_EQ(rs.ConcMedian(1), Cell(3000.0));  // 200 / 200 x 3000
}

TEST_F(Concentrations, MediansOfHugeCpsAreCutAtAThousandMillions) {
    net(2, {0, 0, 3.0E9, 5.0E9, 4.0E9, 1});
    compute();
    EXPECT_EQ(rs.ConcMedian(2), Cell(3.75E9));  // 1E9 / 200 x 750
}

TEST_F(Concentrations, ASliceWithoutStandardIsXxInBothTablesYetCounted) {
    net(1, {0, 0, 100, -200, 0, 400});
    compute();
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.ConcT(2, 4), Cell(Mark::xx));
    EXPECT_EQ(rs.ErrT(2, 4), Cell(Mark::xx));
    EXPECT_EQ(rs.ConcT(2, 5), Cell(Mark::xx));
    EXPECT_EQ(rs.AccRatio(2), 0.1875);  // (1/2 + 1/4) / 4
    EXPECT_EQ(rs.nData(2), 4);
    // The marks are no positive concentrations: the deviations are those of the two other slices, over 3.
    const double mean = 0.1875 * 750;
    EXPECT_DOUBLE_EQ(rs.ConcSD(2).held, std::sqrt(((375 - mean) * (375 - mean) + (187.5 - mean) * (187.5 - mean)) / 3));
}

TEST_F(Concentrations, SlicesThatAreNotPositiveLeaveTheSumButStayInTheDivisor) {
    net(2, {0, 0, 50, -100, 0, 100});  // ppm 375, -375, 0, 187.5; ratios 1/2, -1/2, 0, 1/4
    compute();
    EXPECT_EQ(rs.ConcT(2, 4), Cell(-375.0));
    EXPECT_EQ(rs.ConcT(2, 5), Cell(0.0));
    EXPECT_EQ(rs.ErrT(2, 4), Cell(Mark::xx));
    EXPECT_EQ(rs.ErrT(2, 5), Cell(Mark::xx));
    const double mean = 46.875;  // 1/16 x 750
    EXPECT_DOUBLE_EQ(rs.ConcSD(2).held, std::sqrt(((375 - mean) * (375 - mean) + (187.5 - mean) * (187.5 - mean)) / 3));
}

TEST_F(Concentrations, AMeanOfZeroIsHeldAsATinyNumberSoThatTheRelativeErrorIsHuge) {
    net(1, {0, 0, 100, 100, 100, 100});
    net(2, {0, 0, 50, -50, 50, -50});
    compute();
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.ConcMean(2), Cell(1.0E-05));
    // Two slices of 375 ppm, less 0.00001: s.d. 306.19, in percent of 0.00001.
    EXPECT_NEAR(rs.RelErr(2).held, 100 * std::sqrt(2 * 375.0 * 375.0 / 3) / 1.0E-05, 200);
}

TEST_F(Concentrations, ANegativeRelativeErrorIsRoundedUpwards) {
    // Ratios 1/4, -1/2, 0, 0: mean -1/16, -46.875 ppm; one positive slice of 187.5 ppm.
    net(1, {0, 0, 100, 100, 100, 100});
    net(2, {0, 0, 25, -50, 0, 0});
    compute();
    EXPECT_EQ(rs.ConcMean(2), Cell(-46.875));
    // s.d. = 234.375 / sqrt 3 = 135.316.., ratio -288.675..
    EXPECT_EQ(rs.RelErr(2), Cell(-289.0));

    // Ratios 1/64 and -17/64: mean -93.75 ppm, s.d. 11.71875 + 93.75; exactly -112.5 percent.
    net(1, {0, 0, 64, 64});
    net(2, {0, 0, 1, -17});
    select(3, 4);
    compute();
    EXPECT_EQ(rs.ConcSD(2), Cell(105.46875));
    EXPECT_EQ(rs.RelErr(2), Cell(-112.0));
}

TEST_F(Concentrations, AnOmittedColumnShowsDashesAndIsNotCounted) {
    column("La139", {0, 0, 1, 2, 3, 4});
    net(3, {0, 0, 1, 2, 1, 4});
    rs.IsoOmit(3) = 1;
    rs.IsoISidx(3) = 1;
    rs.BlkMean(3) = Mark::empty;
    rs.R2IsoIS(3) = 0.5;
    rs.AvCps(3) = 66;
    rs.nData(3) = 4;
    compute();
    const Cell dashes = Mark::dashes;
    EXPECT_EQ(rs.nIsoCalc, 2);
    EXPECT_EQ(rs.ConcMean(3), dashes);
    EXPECT_EQ(rs.ConcMedian(3), dashes);
    EXPECT_EQ(rs.ConcT(3, 4), dashes);
    EXPECT_EQ(rs.ErrT(3, 4), dashes);
    EXPECT_EQ(rs.ConcSD(3), dashes);
    EXPECT_EQ(rs.ConcSE(3), dashes);
    EXPECT_EQ(rs.RelErr(3), dashes);
    EXPECT_EQ(rs.LoD(3), Value("---"));
    EXPECT_EQ(rs.AvCps(3), 66);   // without a blank the former mean stays
    EXPECT_EQ(rs.R2IsoIS(3), 1);  // omitted columns are correlated: 1 2 1 4 against 100 200 100 400
    EXPECT_TRUE(os.boxes.empty());
}

// Y89 was omitted in the run before and lost its composition since: its mean still reads "---", its slices are 0.
TEST_F(Concentrations, AMeanThatWasNeverCalculatedHasADeviationButNoRelativeError) {
    rs.ConcMean(2) = rs.ConcSE(2) = rs.RelErr(2) = Cell(Mark::dashes);
    rs.StdConc(2) = Mark::empty;
    rs.Dwell(2) = 0.0;
    compute();
    EXPECT_EQ(rs.ConcT(2, 3), Cell(0.0));
    EXPECT_EQ(rs.ConcSD(2), Cell(0.0));  // no slice above 0: 0 / 3
    EXPECT_EQ(rs.ConcSE(2), Cell(Mark::dashes));
    EXPECT_EQ(rs.RelErr(2), Cell(Mark::dashes));
    EXPECT_EQ(rs.LoD(2), Value(0.0));  // 0 x (3 x 2 + 4) / (40 - 4)
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Concentrations, AColumnWithoutAssignedStandardIsTreatedAsOmitted) {
    column("La139", {0, 0, 1, 2, 3, 4});
    reference(3, 5, 1, 6, 1, 1);
    rs.IsoISidx(3) = 0;
    rs.nData(3) = 4;
    rs.R2IsoIS(3) = 0.5;
    compute();
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.ConcMean(3), Cell(Mark::dashes));
    EXPECT_EQ(rs.LoD(3), Value("---"));
    EXPECT_EQ(rs.nIsoCalc, 2);
    EXPECT_EQ(rs.R2IsoIS(3), 0.5);
}

TEST_F(Concentrations, SlicesOutsideTheSelectionKeepOlderResults) {
    rs.ConcT(2, 2) = 5.0, rs.ErrT(2, 2) = 6.0;
    compute();
    EXPECT_EQ(rs.ConcT(2, 2), Cell(5.0));
    EXPECT_EQ(rs.ErrT(2, 2), Cell(6.0));
}

TEST_F(Concentrations, ErrorsOfTheStandardMeasurementEnterNoFormula) {
    compute();
    const Cell error = rs.ErrT(2, 3);
    const Cell deviation = rs.ConcSD(2);
    rs.StdCpsErr(1) = 250.0, rs.StdCpsErr(2) = 20.0;
    compute();
    EXPECT_EQ(rs.ErrT(2, 3), error);
    EXPECT_EQ(rs.ConcSD(2), deviation);
}

TEST_F(Concentrations, WithoutDwellTimeTheTermsOfTheColumnBeforeStayInForce) {
    // Only "XX" slices: they need no counting statistics of their own.
    rs.Dwell(2) = Mark::empty;
    net(2, {0, 0, 0, 0, -1, -1});
    rs.e3 = rs.e4 = rs.e5 = 9;
    compute();
    EXPECT_EQ(rs.e3, 1.0 / 5);
    EXPECT_EQ(rs.e4, 1.0 / 5);
    EXPECT_DOUBLE_EQ(rs.e5, 0.0001);
}

TEST_F(Concentrations, WithoutDwellTimeTheErrorsOfTheStandardsValuesAreTheColumnsOwn) {
    rs.Dwell(2) = Mark::empty;
    net(2, {0, 0, 0, 0, -1, -1});
    rs.IsoISerr(2) = 300;  // 10 % of 3000 ppm, while the column before has 1 %
    rs.e6 = rs.e7 = 9;
    compute();
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_DOUBLE_EQ(rs.e6, 0.0001);
    EXPECT_DOUBLE_EQ(rs.e7, 0.01);
}

TEST_F(Concentrations, TermsSurviveFromOneCalculationToTheNext) {
    compute();
    EXPECT_EQ(rs.e1, 1.0);   // 1 / (100 x 0.01), the last slice of Y89
    EXPECT_EQ(rs.e2, 0.25);  // 1 / (400 x 0.01)
    EXPECT_EQ(rs.e3, 2.5);
    rs.Dwell(1) = rs.Dwell(2) = 0.0;
    net(2, {0, 0, 0, 0, 0, -1});
    for (int t = 3; t <= 6; ++t) rs.Rej(1, t) = 1;
    rs.nData(1) = 4;
    compute();
    EXPECT_EQ(rs.e1, 1.0);
    EXPECT_EQ(rs.e3, 2.5);
}

TEST_F(Concentrations, TheDwellTimeOfTheColumnCountsForItsStandardToo) {
    rs.Dwell(1) = 0.5;
    compute();
    EXPECT_EQ(rs.e4, 1.0 / 5);  // 500 x 0.01
    EXPECT_EQ(rs.e2, 1.0 / 4);  // 400 x 0.01
}

TEST_F(Concentrations, WithoutDwellTimeAPositiveSliceEndsInTheBoxAndTheResultsBeforeStay) {
    rs.Dwell(2) = Mark::empty;
    rs.LoD(1) = "old";
    compute();
    expect_box();
    EXPECT_EQ(rs.ConcMean(2), Cell(421.875));
    EXPECT_TRUE(rs.ErrT(1, 6).is_number());
    EXPECT_EQ(rs.ErrT(2, 3), Cell());
    EXPECT_EQ(rs.LoD(1), Value("old"));
    EXPECT_STREQ(rs.procedure, "");
}

TEST_F(Concentrations, AStandardThatMeasuresItsBlankEndsInTheBox) {
    rs.BlkMean(1) = 500.0;
    rs.R2IsoIS(1) = 0.125;
    compute();
    expect_box();
    EXPECT_TRUE(rs.ErrT(2, 6).is_number());
    EXPECT_EQ(rs.LoD(1), Value());
    EXPECT_EQ(rs.R2IsoIS(1), 0.125);
}

TEST_F(Concentrations, OneAcceptedDatumEndsInTheBox) {
    reject(2, 3), reject(2, 4), reject(2, 5);
    compute();
    expect_box();
    EXPECT_EQ(rs.ConcMean(2), Cell(187.5));
    EXPECT_EQ(rs.ConcSD(2), Cell());
    EXPECT_EQ(rs.ErrT(1, 3), Cell());
}

TEST_F(Concentrations, NoAcceptedDatumKeepsTheFormerMeans) {
    for (int t = 3; t <= 6; ++t) reject(2, t);
    rs.AvCps(2) = 11, rs.AccRatio(2) = 0.25;
    compute();
    EXPECT_EQ(rs.AvCps(2), 11);
    EXPECT_EQ(rs.ConcMean(2), Cell(187.5));
}

TEST_F(Concentrations, AnOmittedSecondStandardEndsInTheBox) {
    column("La139", {0, 0, 1, 2, 3, 4});
    net(3, {0, 0, 1, 2, 3, 4});
    rs.IsoOmit(3) = 1;
    rs.StdConc(3) = rs.StdCps(3) = Cell(Mark::empty);
    rs.IsoISidx(2) = 3;
    compute();
    expect_box();
    EXPECT_EQ(rs.ConcMean(1), Cell(3000.0));
}

TEST_F(Concentrations, NoCorrelationAtAllEndsInTheBox) {
    select(3, 6);
    net(1, {0, 0, 100, 100, 200, 200});
    net(2, {0, 0, 50, 100, 50, 100});
    compute();
    expect_box();
    EXPECT_EQ(rs.R2IsoIS(1), 1);
    EXPECT_EQ(rs.R2IsoIS(2), 0);
    EXPECT_TRUE(rs.LoD(2).is_text());
}

TEST_F(Concentrations, ANegativeCorrelationKeepsItsSign) {
    net(1, {0, 0, 100, 200, 300, 400});
    net(2, {0, 0, 400, 300, 200, 100});
    compute();
    EXPECT_EQ(rs.R2IsoIS(2), -1);
}

TEST_F(Concentrations, CorrelationCountsTheAcceptedDataNotThePairs) {
    net(1, {0, 0, 100, 200, 300, -1});  // three pairs, four data
    net(2, {0, 0, 10, 20, 30, 40});
    compute();
    // n = 4: Sx 60, Sy 600, Sxx 1400, Syy 140000, Sxy 14000; 20000 / sqrt(2000 x 200000) = 1
    EXPECT_EQ(rs.R2IsoIS(2), 1);
    net(2, {0, 0, 30, 10, 20, 40});
    compute();
    // Sxy 11000: (44000 - 36000) / 20000 = 0.4, squared 0.16; with n = 3 it would be -0.25
    EXPECT_EQ(rs.R2IsoIS(2), 0.16);
}

TEST_F(Concentrations, TwoAcceptedDataGiveNoCorrelationAndTheFormerOneStays) {
    select(5, 6);
    compute();
    EXPECT_EQ(rs.R2IsoIS(1), 0);
    rs.R2IsoIS(2) = 0.75;
    compute();
    EXPECT_EQ(rs.R2IsoIS(2), 0.75);
}

TEST_F(Concentrations, TheCommonCellKeepsTheSumOfTheLastCalculatedColumn) {
    column("La139", {0, 0, 1, 2, 3, 4});
    rs.IsoOmit(3) = 1;
    rs.nData(3) = 4;
    compute();
    EXPECT_EQ(rs.BlkSpikes, 2 * 2197.265625 + 107666.015625 + 54931.640625);
}

TEST_F(Concentrations, CreateModesGiveTheSpreadOfTheAcceptedCpsAlone) {
    rs.ModeData = 0;
    rs.ModeCreateSTM = 1;
    rs.BlkMean(2) = Mark::empty;
    rs.ConcMean(2) = 5.0;
    rs.AccRatio(2) = 7;
    net(2, {0, 0, 2, 4, 90, 6});
    reject(2, 5);
    compute();
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.AvCps(2), 4);
    EXPECT_EQ(rs.AccRatio(2), 0);  // ratios belong to data files
    EXPECT_EQ(rs.AccCpsSD(2), 2);  // (4 + 0 + 4) / 2
    EXPECT_DOUBLE_EQ(rs.AccCpsSE(2), 2 / std::sqrt(3.0));
    EXPECT_EQ(rs.BlkSpikes, 8);
    EXPECT_EQ(rs.ConcMean(2), Cell(5.0));
}

TEST_F(Concentrations, CreateModesDoNotReplaceADeviationOfZero) {
    rs.ModeData = 0;
    rs.ModeCreateBLK = 1;
    net(2, {0, 0, 9, 9, 9, 9});
    compute();
    EXPECT_EQ(rs.AccCpsSD(2), 0);
    EXPECT_EQ(rs.AccCpsSE(2), 0);
}

TEST_F(Concentrations, ASelectionBeyondTheTablesIsNotReportedHere) {
    select(5999, 6001);
    EXPECT_EQ(fault_of([&] { compute(); }), fault_text(FaultKind::index));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Concentrations, FromTheRawTableToTheResult) {
    // Slices 1..4 are blank, 5..8 signal; net signal as above.
    rs.nIso = 0;
    column("Si29", {9, 11, 9, 11, 110, 210, 110, 410});
    column("Y89", {4, 4, 2, 6, 54, 104, 104, 104});
    blank(1, 4);
    select(5, 8);
    ComputeBlank(rs, os);
    ComputeSelStats(rs, os);
    compute();
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.BlkMean(1), Cell(10.0));
    EXPECT_EQ(rs.BlkMean(2), Cell(4.0));
    EXPECT_EQ(rs.CpsMean(1), 200);
    EXPECT_EQ(rs.RatioMean(2), 0.5625);
    EXPECT_EQ(rs.ConcMean(2), Cell(421.875));
    EXPECT_EQ(rs.AvRawCps(2), 91.5);
}

}  // namespace
}  // namespace kolvar::test
