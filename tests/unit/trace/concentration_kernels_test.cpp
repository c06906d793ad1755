#include <array>
#include <cmath>
#include <random>
#include <vector>

#include "../../../bench/plain/median_plain.hpp"
#include "interval_case.hpp"
#include "trace/concentration_stages.hpp"
#include "trace/interval_kernels.hpp"
#include "trace/selected_median.hpp"

namespace kolvar::test {
namespace {

using concentration::ErrorTerms;
using concentration::reported_limit;

double median(const std::vector<double>& cells) {
    std::vector<double> work;
    return selected_median(cells, static_cast<int>(cells.size()), work);
}

bool same_bits(double a, double b) { return a == b && std::signbit(a) == std::signbit(b); }

TEST(ReportedLimit, EndsWithFiveDecimalsButKeepsItsFirstRounding) {
    EXPECT_EQ(reported_limit(1.23456), Value("1.23500"));
    EXPECT_EQ(reported_limit(0.5), Value("0.50000"));
    EXPECT_EQ(reported_limit(0.00042), Value("0.00040"));
    EXPECT_EQ(reported_limit(0.000042), Value("0.00004"));
}

TEST(ReportedLimit, AtAHundredThousandthOrBelowStaysANumber) {
    EXPECT_EQ(reported_limit(0.00001), Value(0.00001));
    EXPECT_EQ(reported_limit(0.000004), Value(0.000004));
    EXPECT_EQ(reported_limit(0.0), Value(0.0));
    EXPECT_EQ(reported_limit(-3.5), Value(-3.5));
}

TEST(ReportedLimit, BordersAreAboveNotAt) {
    EXPECT_EQ(reported_limit(0.001), Value("0.00100"));   // by the second pattern: 0.0010
    EXPECT_EQ(reported_limit(0.0001), Value("0.00010"));  // by the third
}

TEST(SliceErrors, CountingTermsKeepTheirValuesAtASliceWithoutSignal) {
    const std::vector<double> cells = {50, 0};
    const std::vector<double> standard = {100, 100};
    const std::vector<std::uint8_t> rejected = {0, 0};
    const std::vector<Cell> ppm = {10.0, 20.0};
    std::vector<Cell> error(2);
    ErrorTerms terms{.e3 = 1};
    concentration::slice_errors(cells, standard, rejected, ppm, 0.01, terms, error);
    EXPECT_EQ(error[0], Cell(20.0));  // 2 + 1 + 1 = 4
    EXPECT_EQ(error[1], Cell(40.0));
    EXPECT_EQ(terms.e1, 2);
    EXPECT_EQ(terms.e2, 1);
}

TEST(SliceErrors, ANegativeSumGoesUnderTheRootWithoutItsSign) {
    const std::vector<double> cells = {-20};
    const std::vector<double> standard = {100};
    const std::vector<std::uint8_t> rejected = {0};
    const std::vector<Cell> ppm = {3.0};
    std::vector<Cell> error(1);
    ErrorTerms terms;
    concentration::slice_errors(cells, standard, rejected, ppm, 0.01, terms, error);
    EXPECT_EQ(error[0], Cell(6.0));  // |-5 + 1| = 4
}

TEST(SliceErrors, AFaultKeepsTheSlicesBefore) {
    const std::vector<double> cells = {50, 1.0E-300, 50};
    const std::vector<double> standard = {100, 100, 100};
    const std::vector<std::uint8_t> rejected = {0, 0, 0};
    const std::vector<Cell> ppm = {10.0, 10.0, 10.0};
    std::vector<Cell> error(3);
    ErrorTerms terms{.e3 = 1};
    EXPECT_EQ(fault_of([&] { concentration::slice_errors(cells, standard, rejected, ppm, 1.0E-10, terms, error); }),
              fault_text(FaultKind::overflow));
    EXPECT_TRUE(error[0].is_number());
    EXPECT_EQ(error[1], Cell());
    EXPECT_EQ(error[2], Cell());
}

TEST(SliceErrors, AStandardTooWeakForItsCountingTermKeepsTheTermOfTheSliceBefore) {
    const std::vector<double> cells = {50, 25};
    const std::vector<double> standard = {100, 1.0E-300};
    const std::vector<std::uint8_t> rejected = {0, 0};
    const std::vector<Cell> ppm = {10.0, 10.0};
    std::vector<Cell> error(2);
    ErrorTerms terms;
    EXPECT_EQ(fault_of([&] { concentration::slice_errors(cells, standard, rejected, ppm, 1.0E-10, terms, error); }),
              fault_text(FaultKind::overflow));
    EXPECT_DOUBLE_EQ(error[0].number(), 10 * std::sqrt(3.0E8));  // 1 / 5E-9 + 1 / 1E-8
    EXPECT_EQ(error[1], Cell());
    EXPECT_DOUBLE_EQ(terms.e1, 4.0E8);  // that of the second slice
    EXPECT_DOUBLE_EQ(terms.e2, 1.0E8);  // still that of the first
}

TEST(SelectedMedian, OfOneSliceDividesByZero) {
    EXPECT_EQ(fault_of([] { median({5}); }), fault_text(FaultKind::division_by_zero));
    EXPECT_EQ(fault_of([] { median({}); }), fault_text(FaultKind::division_by_zero));
}

TEST(SelectedMedian, SmallCases) {
    EXPECT_EQ(median({5, 1}), 3);
    EXPECT_EQ(median({5, 1, 4}), 4);
    EXPECT_EQ(median({4, 4, 4, 4}), 4);
    EXPECT_EQ(median({-3, 8, 0, 2}), 1);
    EXPECT_EQ(median({2.0E9, 3.0E9, 1}), 1.0E9);
    EXPECT_EQ(median({2.0E9, 3.0E9}), 1.0E9);
    EXPECT_EQ(median({1.0E9, 5}), (1.0E9 + 5) / 2);
}

TEST(SelectedMedian, EqualsRepeatedSelectionToTheLastBit) {
    std::mt19937_64 random(20041219);
    std::uniform_int_distribution<int> length(2, 60);
    std::uniform_int_distribution<int> kind(0, 3);
    std::normal_distribution<double> cps(1000, 400);
    std::uniform_int_distribution<int> few(-2, 2);
    for (int round = 0; round < 3000; ++round) {
        const int shape = kind(random);
        std::vector<double> cells(static_cast<std::size_t>(length(random)));
        for (double& cell : cells) {
            cell = cps(random);
            if (shape == 1) cell = few(random) * 0.1;  // many equal cells, some 0
            if (shape == 2) cell *= 1.0E6;             // on both sides of the clip
            if (shape == 3) cell = few(random) < 0 ? -0.0 : few(random) > 0 ? 0.0 : cell - 1000;  // zeros of both signs
        }
        ASSERT_TRUE(same_bits(median(cells), plain::selected_median(cells))) << "round " << round;
    }
}

TEST(SelectedMedian, ALongerCountThanTheCellsReadsCellsThatWereNeverFilled) {
    const std::vector<double> cells = {5, 6};
    std::vector<double> work;
    EXPECT_EQ(selected_median(cells, 9, work), 0);
    EXPECT_EQ(selected_median(cells, 4, work), 3);  // places 1 and 2: 6 and nothing
}

TEST(SortedCells, PlacesMayBeAskedForInAnyOrder) {
    const std::vector<double> cells = {40, 10, 0, 60, 20, 50, 30};
    std::vector<double> work;
    SortedCells sorted(cells, work);
    for (const int place : {5, 1, 3, 6, 2, 0, 4, 5}) EXPECT_EQ(sorted.at(place), 10 * place) << place;
}

TEST(IntervalKernels, ExtremesTakeTheFirstOfEqualCells) {
    const std::vector<double> cells = {4, 2, 7, 2, 7};
    const Extremes found = extremes_of(cells, -1.0E15);
    EXPECT_EQ(found.low, 1);
    EXPECT_EQ(found.high, 2);
}

TEST(IntervalKernels, ExtremesBeyondTheStartOfTheScanAreNone) {
    const std::vector<double> huge = {1.0E15, 2.0E15};
    EXPECT_EQ(extremes_of(huge, 0).low, -1);
    EXPECT_EQ(extremes_of(huge, 0).high, 1);
    const std::vector<double> low = {-5, 0};
    EXPECT_EQ(extremes_of(low, 0).high, -1);
    EXPECT_EQ(extremes_of({}, 0).low, -1);
}

TEST(IntervalKernels, SumsOfColumnsSideBySideKeepTheOrderOfEachColumn) {
    // 1E16 + 1 - 1E16 is 0 in this order and would be 1 in another.
    const std::array<std::vector<double>, 6> columns = {{{1.0E16, 1, -1.0E16},
                                                         {1, 1.0E16, -1.0E16},
                                                         {1.0E16, -1.0E16, 1},
                                                         {3, 4, 5},
                                                         {0.1, 0.2, 0.3},
                                                         {1.0E16, 1, -1.0E16}}};
    double cell = -1;
    std::vector<double> sums;
    add_up_columns(
        cell, 6, 3,
        [&](int i) {
            return [data = columns[static_cast<std::size_t>(i - 1)].data()](std::size_t t) { return data[t]; };
        },
        [&](int) { sums.push_back(cell); });
    EXPECT_EQ(sums, (std::vector<double>{0, 0, 1, 12, 0.1 + 0.2 + 0.3, 0}));
    EXPECT_EQ(cell, 0);
}

TEST(IntervalKernels, AnEmptyIntervalHasNoCellsWhereverItLies) {
    Table2<double> table(2, 9);
    EXPECT_TRUE(cells_of(table, 1, Interval{50, 40}).empty());
    EXPECT_EQ(interval_of(Limit(7000), Limit(5)).count(), 0);
    EXPECT_EQ(cells_of(table, 1, Interval{0, 9}).size(), 10U);
    EXPECT_EQ(fault_of([] { interval_of(Limit(-1), Limit(5)); }), fault_text(FaultKind::index));
    EXPECT_EQ(fault_of([] { interval_of(Limit(1), Limit(6001)); }), fault_text(FaultKind::index));
    EXPECT_EQ(interval_of(Limit(), Limit(6000)).count(), 6001);
}

TEST(IntervalKernels, ABlankOfTheLargestKindFaultsBeforeItIsWritten) {
    const std::vector<double> raw = {1, -1.5E308, 2};
    std::vector<double> net = {7, 7, 7};
    EXPECT_EQ(fault_of([&] { subtract_blank(raw, 1.0E308, net); }), fault_text(FaultKind::overflow));
    EXPECT_EQ(net[0], -1.0E308);
    EXPECT_EQ(net[1], 7);
    EXPECT_EQ(net[2], 7);
}

TEST(IntervalKernels, ARatioBeyondAllNumbersKeepsTheRatiosBeforeItAndTheirSum) {
    const std::vector<double> cells = {6, 1.0E200, 8};
    const std::vector<double> standard = {2, 1.0E-200, 2};
    std::vector<double> ratio = {7, 7, 7};
    double sum = -1;
    EXPECT_EQ(fault_of([&] { ratios_to_standard(cells, standard, ratio, sum); }), fault_text(FaultKind::overflow));
    EXPECT_EQ(ratio, (std::vector<double>{3, 7, 7}));
    EXPECT_EQ(sum, 3);
}

TEST(IntervalKernels, ASumOfRatiosBeyondAllNumbersKeepsTheRatioThatTookItThere) {
    const std::vector<double> cells = {1.5E308, 1.5E308, 8};
    const std::vector<double> standard = {1, 1, 2};
    std::vector<double> ratio = {7, 7, 7};
    double sum = -1;
    EXPECT_EQ(fault_of([&] { ratios_to_standard(cells, standard, ratio, sum); }), fault_text(FaultKind::overflow));
    EXPECT_EQ(ratio, (std::vector<double>{1.5E308, 1.5E308, 7}));
    EXPECT_EQ(sum, 1.5E308);
}

TEST(IntervalKernels, AColumnWhoseSumIsBeyondAllNumbersEndsAfterTheColumnsBeforeIt) {
    const std::array<std::vector<double>, 4> columns = {{{1, 2, 3}, {1.5E308, 1.5E308, 1}, {4, 5, 6}, {7, 8, 9}}};
    double cell = -1;
    std::vector<double> sums;
    EXPECT_EQ(fault_of([&] {
                  add_up_columns(
                      cell, 4, 3,
                      [&](int i) {
                          return [data = columns[static_cast<std::size_t>(i - 1)].data()](std::size_t t) {
                              return data[t];
                          };
                      },
                      [&](int) { sums.push_back(cell); });
              }),
              fault_text(FaultKind::overflow));
    EXPECT_EQ(sums, std::vector<double>{6});
    EXPECT_EQ(cell, 1.5E308);  // what was added before
}

// Y89: 20 ppm and 10 cps in the standard measurement make 2 ppm per cps; 1E100 ppm x 1E100 cps of Si29 make 1E200, and
// 4 ppm of it in the standard the divisor.
class HugeSlices : public IntervalCase {
public:
    void SetUp() override {
        column("Si29", {0, 0, 0});
        column("Y89", {0, 0, 0});
        net(1, {1, 1, 1});
        net(2, {2, 2, 2});
        select(1, 3);
        rs.IsoISconc(1) = 1, rs.StdConc(1) = 4, rs.StdCps(1) = 1.0E100;
        rs.IsoISconc(2) = 1.0E100, rs.StdConc(2) = 20, rs.StdCps(2) = 10;
    }
    std::string fault() {
        return fault_of([&] { concentration::concentration_of_slices(rs, Interval{1, 3}); });
    }
};

TEST_F(HugeSlices, ANumberThatIsHugeOnTheWayIsAPlainConcentration) {
    EXPECT_EQ(fault(), "no fault");
    for (int t = 1; t <= 3; ++t) EXPECT_DOUBLE_EQ(rs.ConcT(2, t).number(), 1.0E200) << t;  // 2 x 2 x 1E200 / (1 x 4)
}

TEST_F(HugeSlices, AConcentrationBeyondAllNumbersLeavesTheStepBeforeInItsCell) {
    rs.Sig2(2, 2) = 1.0E200;  // 2E200 by the standard measurement, 2E400 with the internal standard
    EXPECT_EQ(fault(), fault_text(FaultKind::overflow));
    EXPECT_DOUBLE_EQ(rs.ConcT(2, 1).number(), 1.0E200);
    EXPECT_DOUBLE_EQ(rs.ConcT(2, 2).number(), 2.0E200);
    EXPECT_EQ(rs.ConcT(2, 3), Cell());
}

TEST_F(HugeSlices, AnInternalStandardBeyondAllNumbersIsAFaultAndNoConcentrationOfZero) {
    rs.Sig2(1, 2) = 1.0E308;  // 4E308 below the line
    rs.IsoISidx(1) = 0;       // the standard itself is not reported here
    EXPECT_EQ(fault(), fault_text(FaultKind::overflow));
    EXPECT_EQ(rs.ConcT(1, 1), Cell(Mark::dashes));
    EXPECT_DOUBLE_EQ(rs.ConcT(2, 1).number(), 1.0E200);
    EXPECT_EQ(rs.ConcT(2, 2), Cell(4.0));  // 2 cps x 2 ppm per cps
    EXPECT_EQ(rs.ConcT(2, 3), Cell());
}

}  // namespace
}  // namespace kolvar::test
