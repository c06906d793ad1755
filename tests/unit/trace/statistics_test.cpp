#include "trace/statistics.hpp"

#include <cmath>

#include "interval_case.hpp"

namespace kolvar::test {
namespace {

const char* const selection_fault =
    "Error occurred while calculating the average concentrations. Probably there are too much extreme numbers in the "
    "selected blank, or the data set does not contain all internal standards.";

class Blank : public IntervalCase {};
class SelectionStatistics : public IntervalCase {};

TEST_F(Blank, TwoSlicesAreEnough) {
    column("Si29", {1, 3, 90});
    blank(1, 2);
    ComputeBlank(rs, os);
    EXPECT_EQ(rs.BlkMean(1), Cell(2.0));
    EXPECT_EQ(rs.BlkSD(1), Cell(std::sqrt(2.0)));  // (1 + 1) / 1
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Blank, OfOneSliceShowsABoxWithoutTitleAndChangesNothing) {
    column("Si29", {1, 3});
    rs.BlkMean(1) = 7.0;
    rs.BlkSD(1) = Mark::empty;
    rs.BlkSpikes = 5;
    blank(2, 2);
    ComputeBlank(rs, os);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "The selected blank interval is too short.");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(os.boxes[0].kind, "warning");
    EXPECT_EQ(rs.BlkMean(1), Cell(7.0));
    EXPECT_EQ(rs.BlkSD(1), Cell(Mark::empty));
    EXPECT_EQ(rs.BlkSpikes, 5);
}

TEST_F(Blank, UnmarkedShowsTheBoxToo) {
    column("Si29", {1, 3});
    ComputeBlank(rs, os);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "The selected blank interval is too short.");
}

TEST_F(Blank, OfZerosDeviatesFromTheMeanThatReplacedZero) {
    column("Si29", {0, 0, 0, 0});
    blank(1, 4);
    ComputeBlank(rs, os);
    EXPECT_EQ(rs.BlkMean(1), Cell(0.0001));
    EXPECT_DOUBLE_EQ(rs.BlkSD(1).held, std::sqrt(4 * 1.0E-8 / 3));
}

TEST_F(Blank, WithoutSpreadHasADeviationAboveZero) {
    column("Si29", {5, 5, 5});
    blank(1, 3);
    ComputeBlank(rs, os);
    EXPECT_EQ(rs.BlkMean(1), Cell(5.0));
    EXPECT_EQ(rs.BlkSD(1), Cell(0.0001));
}

TEST_F(Blank, DividesByTheCountThatTheSelectionSet) {
    column("Si29", {2, 4, 6});
    blank(1, 3);
    rs.BlkN = 4;
    ComputeBlank(rs, os);
    EXPECT_EQ(rs.BlkMean(1), Cell(3.0));                      // 12 / 4
    EXPECT_DOUBLE_EQ(rs.BlkSD(1).held, std::sqrt(11.0 / 3));  // 1 + 1 + 9
}

TEST_F(Blank, ADatumAtThreeDeviationsIsNoSpike) {
    // Squares 9 + 9 over 18 degrees: the s.d. is 1, and the two outer data lie at 3 of it.
    column("Si29", {100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 103, 97});
    blank(1, 19);
    ComputeBlank(rs, os);
    EXPECT_EQ(rs.BlkSD(1), Cell(1.0));
    EXPECT_EQ(rs.BlkSpikes, 0);
}

TEST_F(Blank, SpikesOfAllIsotopesAreCountedTogetherAlsoOfOmittedOnes) {
    // One more quiet slice: the s.d. falls below 1, and both outer data lie beyond 3 of it.
    for (const char* name : {"Si29", "Y89"})
        column(name,
               {100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 103, 97});
    rs.IsoOmit(2) = 1;
    blank(1, 20);
    ComputeBlank(rs, os);
    EXPECT_EQ(rs.BlkSpikes, 4);
}

TEST_F(Blank, FromSliceZeroReadsAZeroInFrontOfTheTable) {
    column("Si29", {3, 6});
    blank(0, 2);
    ComputeBlank(rs, os);
    EXPECT_EQ(rs.BlkMean(1), Cell(3.0));
    EXPECT_EQ(rs.BlkSD(1), Cell(3.0));  // (9 + 0 + 9) / 2 = 9
}

TEST_F(Blank, BeyondTheLastPossibleSliceFaultsAndIsNotReportedHere) {
    column("Si29", {3, 6});
    blank(5999, 6001);
    EXPECT_EQ(fault_of([&] { ComputeBlank(rs, os); }), fault_text(FaultKind::index));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_STREQ(rs.procedure, "ComputeBlank");
}

TEST_F(Blank, TooLargeASumFaultsAndKeepsWhatWasWritten) {
    column("Si29", {2, 4, 6});
    column("Y89", {1.0E308, 1.5E308, 1.0E308});
    column("La139", {1, 1, 1});
    blank(1, 3);
    EXPECT_EQ(fault_of([&] { ComputeBlank(rs, os); }), fault_text(FaultKind::overflow));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.BlkMean(1), Cell(4.0));
    EXPECT_EQ(rs.BlkMean(2), Cell());
    EXPECT_EQ(rs.BlkMean(3), Cell());
    EXPECT_EQ(rs.BlkSpikes, 1.0E308);  // the sum before the cell that was too much
}

TEST_F(SelectionStatistics, SliceOneIsNeverCorrected) {
    column("Si29", {10, 20, 30});
    net(1, {777, 0, 0});
    rs.BlkMean(1) = 5.0;
    rs.ModeData = 1;
    select(1, 3);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.Sig2(1, 1), 777);
    EXPECT_EQ(rs.Sig2(1, 2), 15);
    EXPECT_EQ(rs.Sig2(1, 3), 25);
    EXPECT_DOUBLE_EQ(rs.CpsMean(1), 817.0 / 3);
}

TEST_F(SelectionStatistics, TheWholeTableIsCorrectedNotTheSelectionAlone) {
    column("Si29", {10, 20, 30, 40, 50});
    rs.BlkMean(1) = 5.0;
    rs.ModeData = 1;
    rs.Sig2(1, 6) = 3;
    select(3, 4);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.Sig2(1, 2), 15);
    EXPECT_EQ(rs.Sig2(1, 5), 45);
    EXPECT_EQ(rs.Sig2(1, 6), 3);
    EXPECT_EQ(rs.CpsMean(1), 30);
    EXPECT_EQ(rs.CpsSD(1), Cell(std::sqrt(50.0)));
}

TEST_F(SelectionStatistics, AMissingBlankLeavesTheNetSignalOfADataFileAsItWas) {
    column("Si29", {10, 20, 30});
    column("Y89", {10, 20, 30});
    net(2, {1, 6, 8});
    rs.BlkMean(1) = 0.0001;
    rs.BlkMean(2) = Mark::empty;
    rs.CpsMinPos(2) = 44;
    rs.ModeData = 1;
    select(2, 3);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.Sig2(2, 2), 6);
    EXPECT_EQ(rs.Sig2(2, 3), 8);
    EXPECT_EQ(rs.CpsMean(2), 7);
    EXPECT_EQ(rs.CpsSD(2), Cell(Mark::dashes));
    EXPECT_EQ(rs.CpsMinPos(2), 44);
    EXPECT_EQ(rs.RatioMean(2), 0);  // no slice is taken, the divisor stays
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(SelectionStatistics, AStandardMeasurementTakesAMissingBlankAsZero) {
    column("Si29", {10, 20, 30});
    column("Y89", {10, 20, 30});
    rs.BlkMean(1) = 4.0;
    rs.BlkMean(2) = Mark::empty;
    rs.ModeCreateSTM = 1;
    select(2, 3);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.Sig2(1, 2), 16);
    EXPECT_EQ(rs.Sig2(2, 2), 20);
    EXPECT_EQ(rs.CpsMinPos(2), 2);
    EXPECT_EQ(rs.CpsMaxPos(2), 3);
}

TEST_F(SelectionStatistics, TheDashesOfAMissingBlankComeAfterTheNumber) {
    column("Y89", {10, 20, 30});
    rs.BlkMean(1) = Mark::empty;
    rs.ModeCreateSTM = 1;
    select(2, 3);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.CpsSD(1), Cell(Mark::dashes));
    EXPECT_EQ(rs.BlkSpikes, 50);  // 25 + 25: the squares were added although the result is not shown
}

TEST_F(SelectionStatistics, ABlankFileIsMadeOfUncorrectedSignalAndHasNoRatios) {
    column("Si29", {10, 20, 30});
    rs.BlkMean(1) = 4.0;
    rs.RatioMean(1) = 9;
    rs.Ratio(1, 2) = 3;
    rs.ModeCreateBLK = 1;
    select(2, 3);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.Sig2(1, 2), 20);
    EXPECT_EQ(rs.Sig2(1, 3), 30);
    EXPECT_EQ(rs.RatioMean(1), 9);
    EXPECT_EQ(rs.Ratio(1, 2), 3);
}

TEST_F(SelectionStatistics, TheThreeModesAreTestedOneAfterTheOther) {
    column("Si29", {10, 20, 30});
    rs.BlkMean(1) = 4.0;
    rs.ModeData = rs.ModeCreateBLK = 1;
    select(2, 3);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.Sig2(1, 2), 20);  // 16, then 20
}

TEST_F(SelectionStatistics, AConstantSignalHasADeviationAboveZero) {
    column("Si29", {8, 9, 9, 9});
    rs.BlkMean(1) = 4.0;
    rs.ModeData = 1;
    select(2, 4);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.CpsMean(1), 5);
    EXPECT_EQ(rs.CpsSD(1), Cell(0.0001));
    EXPECT_EQ(rs.RatioMean(1), 1);
    EXPECT_EQ(rs.RatioSD(1), 0.0001);
}

TEST_F(SelectionStatistics, AMeanOfZeroIsNotReplaced) {
    column("Si29", {0, 3, 5});
    rs.BlkMean(1) = 4.0;
    rs.ModeData = 1;
    select(2, 3);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.CpsMean(1), 0);
}

TEST_F(SelectionStatistics, TheFirstOfEqualExtremesWins) {
    column("Si29", {0, 7, 3, 9, 3, 9, 7});
    rs.BlkMean(1) = 1.0;
    rs.ModeData = 1;
    select(2, 7);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.CpsMinPos(1), 3);
    EXPECT_EQ(rs.CpsMaxPos(1), 4);
}

TEST_F(SelectionStatistics, NegativeCpsHaveAMaximumButNegativeRatiosNone) {
    column("Si29", {0, 12, 12, 12});
    column("Y89", {0, 3, 1, 2});
    rs.BlkMean(1) = 10.0;
    rs.BlkMean(2) = 5.0;
    rs.RatioMaxPos(2) = 77;
    rs.ModeData = 1;
    select(2, 4);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.CpsMaxPos(2), 2);
    EXPECT_EQ(rs.CpsMinPos(2), 3);
    EXPECT_EQ(rs.RatioMinPos(2), 3);   // -2
    EXPECT_EQ(rs.RatioMaxPos(2), 77);  // keeps its former value
}

TEST_F(SelectionStatistics, ASliceWithoutStandardKeepsItsFormerRatioAndStaysInTheDivisor) {
    column("Si29", {0, 12, 8, 14});
    column("Y89", {0, 11, 99, 17});
    rs.BlkMean(1) = 10.0;  // net 2, -2, 4
    rs.BlkMean(2) = 5.0;   // net 6, 94, 12
    rs.Ratio(2, 3) = 6;
    rs.ModeData = 1;
    select(2, 4);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.Ratio(2, 2), 3);
    EXPECT_EQ(rs.Ratio(2, 3), 6);
    EXPECT_EQ(rs.Ratio(2, 4), 3);
    EXPECT_EQ(rs.RatioMean(2), 2);    // (3 + 3) / 3
    EXPECT_EQ(rs.RatioSD(2), 3);      // (1 + 16 + 1) / 2 = 9
    EXPECT_EQ(rs.RatioMaxPos(2), 3);  // the old 6
}

TEST_F(SelectionStatistics, TheCommonCellKeepsTheLastSumWhateverItsMeaning) {
    // It is what the question about a noisy blank reads when the blank comes from a file.
    column("Si29", {0, 12, 14});
    column("Y89", {0, 11, 25});
    rs.BlkMean(1) = 10.0;  // net 2, 4
    rs.BlkMean(2) = 5.0;   // net 6, 20: ratios 3 and 5 about 4
    rs.BlkSpikes = 1000;
    rs.ModeData = 1;
    select(2, 3);
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.BlkSpikes, 2);

    rs.ModeData = 0;
    rs.ModeCreateSTM = 1;
    ComputeSelStats(rs, os);
    EXPECT_EQ(rs.BlkSpikes, 98);  // 6 and 20 about 13
}

TEST_F(SelectionStatistics, ASelectionOfOneSliceEndsInTheBox) {
    column("Si29", {0, 12, 14});
    rs.BlkMean(1) = 10.0;
    rs.ModeData = 1;
    select(2, 2);
    ComputeSelStats(rs, os);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, selection_fault);
    EXPECT_EQ(os.boxes[0].title, "KOLVAR");
    EXPECT_EQ(os.boxes[0].kind, "warning");
    EXPECT_EQ(rs.CpsMean(1), 2);  // written before the fault
    EXPECT_STREQ(rs.procedure, "");
}

TEST_F(SelectionStatistics, WithoutSelectedSlicesTheFirstColumnAloneIsCorrected) {
    column("Si29", {0, 12, 14});
    column("Y89", {0, 12, 14});
    rs.BlkMean(1) = rs.BlkMean(2) = 10.0;
    rs.ModeData = 1;
    ComputeSelStats(rs, os);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(rs.Sig2(1, 3), 4);
    EXPECT_EQ(rs.Sig2(2, 3), 0);
}

TEST_F(SelectionStatistics, ATooLargeRatioEndsInTheBoxAndIsNotWritten) {
    column("Si29", {0, 2, 1.0E-200});
    column("Y89", {0, 8, 1.0E150});
    rs.BlkMean(1) = rs.BlkMean(2) = 0.0;
    rs.ModeData = 1;
    select(2, 3);
    rs.Ratio(2, 3) = 5;
    ComputeSelStats(rs, os);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, selection_fault);
    EXPECT_EQ(rs.Ratio(2, 2), 4);
    EXPECT_EQ(rs.Ratio(2, 3), 5);
    EXPECT_EQ(rs.BlkSpikes, 4);
}

TEST_F(SelectionStatistics, TooLargeSquaresEndInTheBoxAndKeepTheDeviationsBefore) {
    column("Si29", {0, 2, 4});
    column("Y89", {0, 1, 1.0E200});
    rs.BlkMean(1) = rs.BlkMean(2) = 0.0;
    rs.ModeData = 1;
    rs.CpsSD(2) = 5.0;
    select(2, 3);
    ComputeSelStats(rs, os);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(rs.CpsSD(1), Cell(std::sqrt(2.0)));
    EXPECT_EQ(rs.CpsSD(2), Cell(5.0));
}

TEST_F(SelectionStatistics, ASelectionBeyondTheTablesIsNotReportedHere) {
    column("Si29", {0, 12, 14});
    select(2, 6001);
    EXPECT_EQ(fault_of([&] { ComputeSelStats(rs, os); }), fault_text(FaultKind::index));
    EXPECT_TRUE(os.boxes.empty());
}

}  // namespace
}  // namespace kolvar::test
