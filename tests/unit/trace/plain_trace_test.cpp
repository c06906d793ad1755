// The calculations beside their plain reading: every cell of every result table, to the last bit.
#include <cstring>
#include <memory>

#include "../../../bench/plain/simulated_run.hpp"
#include "../../../bench/plain/trace_plain.hpp"
#include "interval_case.hpp"
#include "trace/concentrations.hpp"
#include "trace/statistics.hpp"

namespace kolvar::test {
namespace {

bool same(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }
bool same(int a, int b) { return a == b; }
bool same(const Cell& a, const Cell& b) { return a.mark == b.mark && same(a.held, b.held); }
bool same(const Value& a, const Value& b) { return a == b; }

template <class T>
void expect_same(const char* name, const Table1<T>& a, const Table1<T>& b) {
    for (int i = 0; i <= a.last(); ++i) ASSERT_TRUE(same(a(i), b(i))) << name << " of column " << i;
}
template <class T>
void expect_same(const char* name, const Table2<T>& a, const Table2<T>& b) {
    for (int i = 0; i <= a.last_column(); ++i)
        for (int t = 0; t <= a.last_row(); ++t) ASSERT_TRUE(same(a(i, t), b(i, t))) << name << " at " << i << ", " << t;
}

void expect_same_results(const RunState& a, const RunState& b) {
    EXPECT_TRUE(same(a.BlkSpikes, b.BlkSpikes)) << a.BlkSpikes << " " << b.BlkSpikes;
    EXPECT_EQ(a.nIsoCalc, b.nIsoCalc);
    expect_same("BlkMean", a.BlkMean, b.BlkMean);
    expect_same("BlkSD", a.BlkSD, b.BlkSD);
    expect_same("Sig2", a.Sig2, b.Sig2);
    expect_same("CpsMean", a.CpsMean, b.CpsMean);
    expect_same("CpsSD", a.CpsSD, b.CpsSD);
    expect_same("CpsMinPos", a.CpsMinPos, b.CpsMinPos);
    expect_same("CpsMaxPos", a.CpsMaxPos, b.CpsMaxPos);
    expect_same("Ratio", a.Ratio, b.Ratio);
    expect_same("RatioMean", a.RatioMean, b.RatioMean);
    expect_same("RatioSD", a.RatioSD, b.RatioSD);
    expect_same("RatioMinPos", a.RatioMinPos, b.RatioMinPos);
    expect_same("RatioMaxPos", a.RatioMaxPos, b.RatioMaxPos);
    expect_same("AvCps", a.AvCps, b.AvCps);
    expect_same("AvRawCps", a.AvRawCps, b.AvRawCps);
    expect_same("AccRatio", a.AccRatio, b.AccRatio);
    expect_same("ConcMean", a.ConcMean, b.ConcMean);
    expect_same("ConcMedian", a.ConcMedian, b.ConcMedian);
    expect_same("ConcSD", a.ConcSD, b.ConcSD);
    expect_same("ConcSE", a.ConcSE, b.ConcSE);
    expect_same("RelErr", a.RelErr, b.RelErr);
    expect_same("LoD", a.LoD, b.LoD);
    expect_same("ConcT", a.ConcT, b.ConcT);
    expect_same("ErrT", a.ErrT, b.ErrT);
    expect_same("R2IsoIS", a.R2IsoIS, b.R2IsoIS);
    expect_same("AccCpsSD", a.AccCpsSD, b.AccCpsSD);
    expect_same("AccCpsSE", a.AccCpsSE, b.AccCpsSE);
    for (const auto term :
         {&RunState::e1, &RunState::e2, &RunState::e3, &RunState::e4, &RunState::e5, &RunState::e6, &RunState::e7})
        EXPECT_TRUE(same(a.*term, b.*term));
}

class BesidePlainReading : public ::testing::Test {
public:
    RunState fast, plain;
    ScriptedPlatform os;

    void simulate(int columns, int slices, int blank) {
        for (RunState* rs : {&fast, &plain}) plain::simulate_run(*rs, columns, slices, blank);
    }
    void run_both() {
        ComputeBlank(fast, os);
        plain::compute_blank(plain);
        EXPECT_TRUE(same(fast.BlkSpikes, plain.BlkSpikes));
        after_blank();
        ComputeSelStats(fast, os);
        plain::compute_selection_statistics(plain);
        EXPECT_TRUE(same(fast.BlkSpikes, plain.BlkSpikes));
        ComputeConcentrations(fast, os);
        plain::compute_concentrations(plain);
        ASSERT_TRUE(os.boxes.empty());
        expect_same_results(fast, plain);
    }
    virtual void after_blank() {}
};

class BesidePlainReadingWithGaps : public BesidePlainReading {
public:
    void after_blank() override {
        for (RunState* rs : {&fast, &plain})
            for (const int i : {2, 7, 18}) rs->BlkMean(i) = Mark::empty, rs->IsoOmit(i) = 1;
    }
};

TEST_F(BesidePlainReading, ManyColumns) {
    simulate(23, 400, 90);
    run_both();
}

TEST_F(BesidePlainReading, FewColumns) {
    simulate(3, 150, 40);
    run_both();
}

TEST_F(BesidePlainReading, StandardMeasurement) {
    simulate(10, 150, 40);
    for (RunState* rs : {&fast, &plain}) rs->ModeData = 0, rs->ModeCreateSTM = 1;
    run_both();
}

TEST_F(BesidePlainReadingWithGaps, DataFile) {
    simulate(23, 150, 40);
    run_both();
}

TEST_F(BesidePlainReadingWithGaps, BlankFile) {
    simulate(23, 150, 40);
    for (RunState* rs : {&fast, &plain}) rs->ModeData = 0, rs->ModeCreateBLK = 1;
    run_both();
}

}  // namespace
}  // namespace kolvar::test
