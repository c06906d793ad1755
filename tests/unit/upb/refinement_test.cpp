// The measures of the refinement by hand, what makes a proposal, and the scan over small selections.
#include "upb/refinement.hpp"

#include <cmath>

#include "upb/express.hpp"
#include "upb/normal_distribution.hpp"
#include "upb/sorted_slices.hpp"
#include "uranium_case.hpp"

namespace kolvar::test {
namespace {

// The formula is told to be good to 1E-5; near 0.5 s.d. it is a little worse.
constexpr double share_error = 1.2e-5;

// Abramowitz and Stegun (1964), table 26.1.
TEST(NormalShare, IsThatOfThePublishedTable) {
    const struct {
        double z, share;
    } table[] = {{0.5, 0.6914624613}, {1, 0.8413447461}, {1.5, 0.9331927987},
                 {2, 0.9772498681},   {3, 0.9986501020}, {4, 0.9999683288}};
    for (const auto& [z, share] : table) {
        EXPECT_NEAR(normal_share_below(z, true), share, share_error) << z;
        EXPECT_NEAR(normal_share_below(-z, false), 1 - share, share_error) << z;
    }
    EXPECT_NEAR(normal_share_below(0, false), 0.5, share_error);
}

// Which side of the mean a value lies on is told apart from its distance.
TEST(NormalShare, TakesTheTailOfTheDistanceWhereTheValueIsNotAbove) {
    EXPECT_NEAR(normal_share_below(1, false), 1 - 0.8413447461, share_error);
}

// Slices 5 to 8: 206/238 5 1 1 1, mean 2; 207/235 1 5 5 5, mean 4; 207/206 0 2 0 2, mean 1. The first two have an s.d.
// of 2, their cubes sum to 27 - 3 = 24 and -24.
class Measures : public UraniumCase {
protected:
    Measures() {
        ratio(rs.Rat68, {5, 1, 1, 1});
        ratio(rs.Rat75, {1, 5, 5, 5});
        ratio(rs.Rat76, {0, 2, 0, 2});
        rs.Mean68 = 2, rs.SD68 = 2;
        rs.Mean75 = 4, rs.SD75 = 2;
        rs.Mean76 = 1, rs.SD76 = std::sqrt(4.0 / 3);
        rs.setBzzMethod = 0, rs.setBzzPlot = 0;
    }
    static double square(double x) { return x * x; }
    void measure(int method, int plot) {
        rs.setBzzMethod = method;
        rs.setBzzPlot = plot;
        measure_selection(rs);
    }
    // Shares below -.5, .5, 1.5 s.d.
    static constexpr double p_half_below = 0.3085375387, p_half = 0.6914624613, p_one_and_half = 0.9331927987;
};

TEST_F(Measures, SkewnessIsThatOfTheSample) {
    measure(1, 0);
    // 4 x 24 / (3 x 2 x 8)
    EXPECT_DOUBLE_EQ(rs.ZizzVal1, 2);
    EXPECT_DOUBLE_EQ(rs.ZizzVal2, -2);
    measure(1, 1);
    EXPECT_DOUBLE_EQ(rs.ZizzVal1, 2);
    EXPECT_DOUBLE_EQ(rs.ZizzVal2, 0);
}

TEST_F(Measures, SkewnessSumsRejectedSlicesAndDividesByThoseThatCount) {
    rs.RejFlag(5) = 1;
    rs.SelNGood = 3;
    measure(1, 0);
    EXPECT_DOUBLE_EQ(rs.ZizzVal1, 4.5);  // 3 x 24 / (2 x 1 x 8)
}

TEST_F(Measures, ResidualErrorIsTheSquaredDistanceFromTheNormalDistribution) {
    measure(0, 0);
    for (int t = 5; t <= 7; ++t) {
        EXPECT_EQ(rs.Sorted1(t), 1);
        EXPECT_NEAR(rs.NormP1(t), p_half_below, share_error);
        EXPECT_NEAR(rs.NormP2(t + 1), p_half, share_error);
    }
    EXPECT_EQ(rs.Sorted1(8), 5);
    EXPECT_EQ(rs.Sorted2(5), 1);
    EXPECT_EQ(rs.Sorted2(8), 5);
    EXPECT_NEAR(rs.NormP1(8), p_one_and_half, share_error);
    EXPECT_NEAR(rs.NormP2(5), 1 - p_one_and_half, share_error);
    EXPECT_NEAR(rs.ZizzVal1,
                square(0.25 - p_half_below) + square(0.5 - p_half_below) + square(0.75 - p_half_below) +
                    square(1 - p_one_and_half),
                5e-5);
    EXPECT_NEAR(rs.ZizzVal2,
                square(0.25 - (1 - p_one_and_half)) + square(0.5 - p_half) + square(0.75 - p_half) + square(1 - p_half),
                5e-5);
}

TEST_F(Measures, WithoutU235TheDeviationOf68InTheSamePlaceStandsIn) {
    rs.ColU235 = 0;
    rs.SD75 = 0;  // not looked at
    measure(0, 0);
    // -.5 -.5 -.5 1.5 from 206/238; below, above, above, above the mean of 207/235.
    EXPECT_NEAR(rs.NormP2(5), p_half_below, share_error);
    EXPECT_NEAR(rs.NormP2(6), p_half, share_error);
    EXPECT_NEAR(rs.NormP2(7), p_half, share_error);
    EXPECT_NEAR(rs.NormP2(8), p_one_and_half, share_error);
}

TEST_F(Measures, DiagramOfLeadRatiosMakesTheEntryBehindTheSelectionAlone) {
    for (int t = 0; t <= MaxSlices; ++t) rs.NormP2(t) = 0.1 * (t - 4);
    rs.Sorted2(9) = 7;
    rs.Mean76 = 3, rs.SD76 = 4;
    measure(0, 1);
    EXPECT_NEAR(rs.NormP2(9), 0.8413447461, share_error);  // one s.d. above
    for (int t = 0; t <= MaxSlices; ++t) ASSERT_TRUE(t == 9 || rs.NormP2(t) == 0.1 * (t - 4)) << t;
    // .25 .5 .75 1 against the .1 .2 .3 .4 of earlier passes
    EXPECT_NEAR(rs.ZizzVal2, 0.0225 + 0.09 + 0.2025 + 0.36, 1e-12);
    EXPECT_EQ(rs.Sorted2(6), 0);
    EXPECT_EQ(rs.Sorted2(7), 2);
}

TEST_F(Measures, BehindTheLastPlaceOfTheTableNothingIsMade) {
    select(MaxSlices - 3, MaxSlices);
    ratio(rs.Rat68, {5, 1, 1, 1});
    ratio(rs.Rat76, {0, 2, 0, 2});
    measure(0, 1);
    for (int t = MaxSlices - 3; t <= MaxSlices; ++t) EXPECT_EQ(rs.NormP2(t), 0);
    EXPECT_DOUBLE_EQ(rs.ZizzVal2, 0.0625 + 0.25 + 0.5625 + 1);
}

// Trial limits that have crossed: no slice is looked at, and the entry is that of the lower limit.
TEST_F(Measures, AnIntervalOfNothingMakesTheEntryAtItsLowerLimit) {
    rs.SelLow = 4, rs.SelUpp = -3, rs.SelN = -6;
    rs.Sorted2(4) = 7, rs.Mean76 = 3, rs.SD76 = 4;
    measure(0, 1);
    EXPECT_NEAR(rs.NormP2(4), 0.8413447461, share_error);
    EXPECT_EQ(rs.ZizzVal1, 0);
    EXPECT_EQ(rs.ZizzVal2, 0);
}

TEST_F(Measures, OfAnotherDiagramSentinelsAreSortedAndTheProbabilitiesStay) {
    for (int t = 5; t <= 8; ++t) rs.NormP2(t) = 0.1 * (t - 4);
    measure(0, 2);
    for (int t = 5; t <= 8; ++t) EXPECT_EQ(rs.Sorted2(t), sort_sentinel);
    EXPECT_EQ(rs.Sorted1(8), 5);
    EXPECT_NEAR(rs.ZizzVal2, 0.675, 1e-12);
}

TEST_F(Measures, AnotherMethodMeasuresNothing) {
    rs.ZizzVal1 = 3, rs.ZizzVal2 = 4;
    measure(2, 0);
    EXPECT_EQ(rs.ZizzVal1, 3);
    EXPECT_EQ(rs.ZizzVal2, 4);
    EXPECT_EQ(rs.Sorted1(5), 0);
}

TEST_F(Measures, WithoutScatterThereIsNoMeasure) {
    rs.SD68 = 0;
    for (const int method : {0, 1}) {
        try {
            measure(method, 0);
            ADD_FAILURE() << method;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.kind, FaultKind::division_by_zero);
        }
    }
}

// A scan from 5 to 8 whose start has measures of 1 and 200.
class Weighing : public UraniumCase {
protected:
    Weighing() {
        rs.setBzzMethod = 0;
        rs.BestLow = 5, rs.BestUpp = 8;
        rs.ZizzRef1 = 1, rs.ZizzRef2 = 200;
        rs.ZizzRunning = true;
        form.lblZizzMin1.text = form.lblZizzMin2.text = "10000000";
        form.lblLow.move_to(1000, 300);
        form.lblUpp.move_to(5000, 300);
        for (Label* label : {&form.lblLow, &form.lblUpp, &form.lblBestLow, &form.lblBestUpp}) label->width = 600;
    }
    void weigh(int low, int upp, double first, double second) {
        select(low, upp);
        rs.ZizzVal1 = first;
        rs.ZizzVal2 = second;
        weigh_measures(context);
    }
};

TEST_F(Weighing, OutsideAScanTheMeasuresAreTheReference) {
    rs.ZizzRunning = false;
    weigh(5, 8, 0.12345, -2);
    EXPECT_EQ(form.lblRMS68.text, "0.1235");
    EXPECT_EQ(form.lblRMS75.text, "-2.0000");
    EXPECT_EQ(rs.ZizzRef1, 0.12345);
    EXPECT_EQ(rs.ZizzRef2, -2);
    EXPECT_EQ(form.lblZizzMin1.text, "10000000");
}

TEST_F(Weighing, ImprovementIsShownNegative) {
    weigh(6, 7, 0.8, 180);
    EXPECT_EQ(form.lblImprove.text, "-15 %");
    EXPECT_EQ(form.lblBest68.text, "0.8000");
    EXPECT_EQ(form.lblBest75.text, "180.0000");
    EXPECT_EQ(form.lblBestLow.text, "6");
    EXPECT_EQ(form.lblBestUpp.text, "7");
    EXPECT_TRUE(form.lblBestLow.visible && form.lblBestUpp.visible && form.lblExplain.visible);
    EXPECT_EQ(form.lblExplain.text, "reduction of residual error");
    EXPECT_DOUBLE_EQ(rs.ZizzBest, 0.3);
    // Side by side with the limits in force.
    EXPECT_EQ(form.lblBestLow.left, 400);
    EXPECT_EQ(form.lblBestUpp.left, 5600);
    EXPECT_EQ(form.lblBestLow.top, 300);
    EXPECT_EQ(form.lblBestUpp.top, 300);
}

TEST_F(Weighing, SkewnessIsNamedWhereItIsReduced) {
    rs.setBzzMethod = 1;
    weigh(6, 7, -0.8, -180);
    EXPECT_EQ(form.lblImprove.text, "-15 %");
    EXPECT_EQ(form.lblExplain.text, "reduction of skewness");
}

TEST_F(Weighing, CaptionIsWrittenWhereTheLimitDiffersAndAnOldOneStaysHidden) {
    weigh(5, 7, 0.8, 180);
    EXPECT_EQ(form.lblBestLow.text, "");
    EXPECT_FALSE(form.lblBestLow.visible);
    EXPECT_EQ(form.lblBestUpp.text, "7");
    EXPECT_TRUE(form.lblBestUpp.visible);
    weigh(6, 8, 0.5, 100);
    EXPECT_EQ(form.lblBestLow.text, "6");
    EXPECT_TRUE(form.lblBestLow.visible);
    EXPECT_EQ(form.lblBestUpp.text, "7");
    EXPECT_FALSE(form.lblBestUpp.visible);
    EXPECT_EQ(form.lblImprove.text, "-50 %");
}

TEST_F(Weighing, RecordHasToBeBeatenAndTheFirstPairKeepsATie) {
    weigh(6, 8, 0.5, 100);
    weigh(5, 7, 0.25, 150);  // .75 + .25
    EXPECT_EQ(form.lblBestLow.text, "6");
    EXPECT_FALSE(form.lblBestUpp.visible);
    EXPECT_EQ(form.lblBest68.text, "0.5000");
    weigh(5, 7, 0.25, 149);
    EXPECT_EQ(form.lblBest68.text, "0.2500");
    EXPECT_TRUE(form.lblBestUpp.visible);
}

TEST_F(Weighing, BothMeasuresHaveToGain) {
    weigh(6, 7, 0.1, 200);
    weigh(6, 7, 1, 10);
    weigh(6, 7, 0.1, 201);
    EXPECT_EQ(form.lblBestLow.text, "");
    EXPECT_EQ(form.lblImprove.text, "");
    EXPECT_EQ(rs.ZizzBest, 0);
    EXPECT_DOUBLE_EQ(rs.ZizzGain1, 0.9);
    EXPECT_DOUBLE_EQ(rs.ZizzGain2, -0.005);
}

TEST_F(Weighing, GainThatRoundsToNothingIsNoProposal) {
    weigh(6, 7, 0.998, 199);  // .2 and .5 %: .35 %
    EXPECT_EQ(form.lblBestLow.text, "");
    EXPECT_EQ(rs.ZizzBest, 0);
    rs.ZizzRef1 = 200;
    weigh(6, 7, 199, 199);  // .5 % is one
    EXPECT_EQ(form.lblImprove.text, "-1 %");
    EXPECT_EQ(form.lblBestLow.text, "6");
}

TEST_F(Weighing, SmallestMeasuresAreThoseNearestToNothing) {
    weigh(6, 7, -0.5, 300);
    EXPECT_EQ(form.lblZizzMin1.text, "-0.5000");
    EXPECT_EQ(form.lblZizzMin2.text, "300.0000");
    weigh(6, 7, 0.5, 400);
    EXPECT_EQ(form.lblZizzMin1.text, "-0.5000");
    EXPECT_EQ(form.lblZizzMin2.text, "300.0000");
    weigh(6, 7, 0.25, -200);
    EXPECT_EQ(form.lblZizzMin1.text, "0.2500");
    EXPECT_EQ(form.lblZizzMin2.text, "-200.0000");
}

// What a smaller one is held against is the figure that the label shows.
TEST_F(Weighing, SmallestMeasuresAreReadBackFromTheirLabels) {
    weigh(6, 7, 0.00004, 300);
    EXPECT_EQ(form.lblZizzMin1.text, "0.0000");
    weigh(6, 7, 0.00001, 300);
    EXPECT_EQ(form.lblZizzMin1.text, "0.0000");
    weigh(6, 7, 0, 299.99996);
    EXPECT_EQ(form.lblZizzMin2.text, "300.0000");
}

TEST_F(Weighing, ReferenceOfNothingIsAFault) {
    rs.ZizzRef1 = 0;
    try {
        weigh(6, 7, 0.5, 100);
        ADD_FAILURE();
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.kind, FaultKind::division_by_zero);
    }
}

// Forty slices: blank 1 to 3, from 5 on a signal whose ratios scatter without a pattern.
class Scan : public UraniumCase {
protected:
    Scan() {
        rs.nSlices = 40;
        for (int t = 5; t <= 40; ++t) {
            rs.Sig(u238, t) = 1000 + (t * 37) % 19;
            rs.Sig(u235, t) = 7 + 0.01 * ((t * 53) % 23);
            rs.Sig(th232, t) = 400 + (t * 29) % 17;
            rs.Sig(pb208, t) = 20 + (t * 31) % 7;
            rs.Sig(pb207, t) = 10 + 0.1 * ((t * 41) % 13);
            rs.Sig(pb206, t) = 150 + (t * 43) % 11;
            rs.Sig(pb204, t) = 4;
            rs.Sig(hg202, t) = 2;
        }
        rs.setBzzMethod = 0, rs.setBzzPlot = 0;
        form.comboBzz.set_items({"%", "data"});
        mark(16, 25);
    }
    // As a click on the plot leaves it.
    void mark(int low, int upp) {
        select(low, upp);
        rs.ZizzRunning = false;
        calc_express_UP(context);
    }
    void scan(const std::string& range, int kind) {
        form.txtZizzRange.text = range;
        form.comboBzz.set_value_quietly(kind);
        ziz_Manager_UP(context);
    }
    static constexpr int per_cent = 0, data = 1;
};

TEST_F(Scan, FirstRunIsNeverTooWideAndTheNextIsHeldAgainstIt) {
    scan("5", data);  // 3 x 5 is more than the ten slices
    EXPECT_EQ(rs.ZizzSteps, 5);
    EXPECT_EQ(rs.SelLow, Limit(21));
    ASSERT_EQ(os.boxes.size(), 3U);  // of the pairs 20-20, 21-20 and 21-21
    for (const auto& box : os.boxes) EXPECT_TRUE(box.text.starts_with("The selected time interval is too short."));
    os.boxes.clear();
    mark(16, 25);
    form.lblRMS68.text = "former";
    scan("1", data);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "The time interval is too short for the selected boundary optimaztion!");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(os.boxes[0].kind, "warning");
    EXPECT_EQ(rs.ZizzSteps, 5);
    EXPECT_FALSE(rs.ZizzRunning);
    EXPECT_EQ(rs.SelLow, Limit(16));
    EXPECT_EQ(rs.SelUpp, Limit(25));
    EXPECT_EQ(form.lblRMS68.text, "former");
    // Three times the band is long enough.
    mark(16, 30);
    scan("1", data);
    EXPECT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(rs.ZizzSteps, 1);
}

TEST_F(Scan, PerCentAreTheWholePartOfTheSelectionAndAtLeastOneSlice) {
    const struct {
        const char* range;
        int kind, steps;
    } cases[] = {{"29", per_cent, 2},   {"1", per_cent, 1}, {"0", per_cent, 1},   {"-50", per_cent, 1},
                 {"30 %", per_cent, 3}, {"2", data, 2},     {"2.5", data, 2},     {"3.5", data, 4},
                 {"0", data, 0},        {"", data, 0},      {"3 slices", data, 3}};
    for (const auto& [range, kind, steps] : cases) {
        mark(16, 25);
        rs.ZizzSteps = 0;
        scan(range, kind);
        EXPECT_EQ(rs.ZizzSteps, steps) << range;
        EXPECT_EQ(rs.SelLow, Limit(16 + steps)) << range;
    }
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Scan, OnePairAloneGainsNothing) {
    scan("0", data);
    EXPECT_EQ(rs.ZizzGain1, 0);
    EXPECT_EQ(rs.ZizzGain2, 0);
    EXPECT_EQ(form.lblBestLow.text + form.lblBestUpp.text + form.lblImprove.text, "");
    EXPECT_EQ(form.lblZizzMin1.text, form.lblRMS68.text);
    EXPECT_TRUE(rs.ZizzRunning);
    EXPECT_EQ(rs.BestLow, Limit(16));
    EXPECT_EQ(rs.BestUpp, Limit(25));
}

TEST_F(Scan, LimitsOfTheLastPairStayInForceAndEndWithTheFile) {
    mark(16, 38);
    scan("4", data);
    EXPECT_EQ(rs.SelLow, Limit(20));
    EXPECT_EQ(rs.SelUpp, Limit(40));
    EXPECT_EQ(rs.SelN, Limit(21));
    EXPECT_EQ(rs.SelNGood, 21);
    EXPECT_EQ(rs.BestUpp, Limit(38));
    EXPECT_TRUE(rs.TrialLimits);
}

// Slices before the first do not exist; the blank is not spared.
TEST_F(Scan, BandBeginsAtTheFirstSlice) {
    rs.BeamStart = 1;
    for (int i = 1; i <= 8; ++i)
        for (int t = 1; t <= 4; ++t) rs.Sig(i, t) = rs.Sig(i, t + 4) * (1 + 0.5 * t);
    mark(2, 25);
    scan("3", data);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.SelLow, Limit(5));
    EXPECT_NE(rs.NormP1(1), 0);
    EXPECT_EQ(rs.NormP1(0), 0);
}

TEST_F(Scan, NothingOnTheScreenMovesButItsOwnLabels) {
    form.lbl6_8.text = form.lblSkew1.text = form.lbl238.text = "former";
    const int draws = form.pict3.canvas.draws();
    scan("2", data);
    EXPECT_EQ(form.lbl6_8.text + form.lblSkew1.text + form.lbl238.text, "formerformerformer");
    EXPECT_EQ(form.pict3.canvas.draws(), draws);
}

// Of 20..22 with a band of 2 the lower limits are 18..22, the upper 20..24. Too short: 20-20, 21-20, 21-21, 22-20,
// 22-21, 22-22.
TEST_F(Scan, EveryPairThatIsTooShortBringsOneMessage) {
    mark(20, 22);
    scan("2", data);
    ASSERT_EQ(os.boxes.size(), 6U);
    for (const auto& box : os.boxes)
        EXPECT_TRUE(box.text.starts_with("The selected time interval is too short.")) << box.text;
    // What no slice is measured against has no distance at all: the best that can be.
    EXPECT_EQ(form.lblImprove.text, "-100 %");
    EXPECT_EQ(form.lblBestLow.text, "21");
    EXPECT_EQ(form.lblBestUpp.text, "20");
    EXPECT_EQ(form.lblZizzMin1.text, "0.0000");
}

TEST_F(Scan, TooShortABlankBringsOneMessagePerPair) {
    rs.BlkUpp = 1;
    scan("1", data);
    ASSERT_EQ(os.boxes.size(), 9U);
    for (const auto& box : os.boxes)
        EXPECT_TRUE(box.text.starts_with("The selected blank interval is too short.")) << box.text;
}

TEST_F(Scan, ProgressCountsPairsDoneOfAllAndEnds) {
    scan("1", data);
    EXPECT_EQ(os.progresses, (std::vector<std::pair<int, int>>{{3, 9}, {6, 9}, {9, 9}, {1, 1}}));
}

// From slice 30 on 206/238 is the same everywhere.
TEST_F(Scan, FaultPutsBackTheLimitsItBeganWith) {
    for (int t = 30; t <= 40; ++t) rs.Sig(u238, t) = 1000, rs.Sig(pb206, t) = 150;
    mark(28, 40);
    try {
        scan("3", data);
        ADD_FAILURE();
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.kind, FaultKind::division_by_zero);
    }
    EXPECT_STREQ(rs.procedure, "ZiZi_Test");
    EXPECT_EQ(rs.SelLow, Limit(28));
    EXPECT_EQ(rs.SelUpp, Limit(40));
    EXPECT_EQ(rs.SelN, Limit(13));
    EXPECT_EQ(rs.SelNGood, 13);
    EXPECT_FALSE(rs.ZizzRunning || rs.TrialLimits);
    ASSERT_FALSE(os.progresses.empty());
    EXPECT_EQ(os.progresses.back(), std::make_pair(1, 1));
}

// Its pairs could not be counted, and would not end.
TEST_F(Scan, BandBeyondAllSlicesIsAFault) {
    for (const char* range : {"3000000000", "20001", "-20001"}) {
        try {
            scan(range, data);
            ADD_FAILURE() << range;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.kind, FaultKind::overflow);
        }
        EXPECT_EQ(rs.SelLow, Limit(16));
        EXPECT_FALSE(rs.ZizzRunning);
        EXPECT_EQ(rs.ZizzSteps, 0);
    }
}

TEST_F(Scan, BandBelowNothingTriesNoPair) {
    scan("-2", data);
    EXPECT_EQ(rs.ZizzSteps, -2);
    EXPECT_EQ(rs.SelLow, Limit(16));
    EXPECT_EQ(rs.SelUpp, Limit(25));
    EXPECT_EQ(form.lblBestLow.text + form.lblBestUpp.text + form.lblImprove.text, "");
    EXPECT_EQ(os.progresses, (std::vector<std::pair<int, int>>{{1, 1}}));
}

}  // namespace
}  // namespace kolvar::test
