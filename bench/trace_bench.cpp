// Blank, interval statistics and concentrations of 100 isotopes by 6000 slices, beside streaming the same tables once
// for each pass of the formulas. Wanted: at most 3 times that.
#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/platform.hpp"
#include "plain/simulated_run.hpp"
#include "plain/trace_plain.hpp"
#include "support/silent_platform.hpp"
#include "trace/concentrations.hpp"
#include "trace/selected_median.hpp"
#include "trace/statistics.hpp"

namespace {

using namespace kolvar;
using test::SilentPlatform;

constexpr int columns = 100;
constexpr int slices = 6000;
constexpr int blank = 1500;

RunState& measurement() {
    static const auto rs = [] {
        auto made = std::make_unique<RunState>();
        plain::simulate_run(*made, columns, slices, blank);
        return made;
    }();
    return *rs;
}

void calculate(RunState& rs, Platform& os) {
    ComputeBlank(rs, os);
    ComputeSelStats(rs, os);
    ComputeConcentrations(rs, os);
    benchmark::ClobberMemory();
}

void calculation(benchmark::State& state) {
    RunState& rs = measurement();
    SilentPlatform os;
    for (auto _ : state) calculate(rs, os);
    if (os.boxes > 0) state.SkipWithError("a box was shown");
}
void only_blank(benchmark::State& state) {
    SilentPlatform os;
    for (auto _ : state) ComputeBlank(measurement(), os);
}
void only_statistics(benchmark::State& state) {
    SilentPlatform os;
    for (auto _ : state) ComputeSelStats(measurement(), os);
}
void only_concentrations(benchmark::State& state) {
    SilentPlatform os;
    for (auto _ : state) ComputeConcentrations(measurement(), os);
}
void plain_reading_without_median(benchmark::State& state) {
    RunState& rs = measurement();
    for (auto _ : state) {
        plain::compute_blank(rs);
        plain::compute_selection_statistics(rs);
        plain::means(rs);
        plain::slices_and_spread(rs);
        plain::slice_errors(rs);
        plain::limits_and_correlation(rs);
        benchmark::ClobberMemory();
    }
}

double number_in(double cell) { return cell; }
double number_in(const Cell& cell) { return cell.held; }

// One table read from first to last: added up in order, where each addition waits for the one before, or in four sums
// that don't wait for each other, as fast as memory gives it.
template <bool InOrder, class T>
double read_pass(const Table2<T>& table, int first, int last) {
    double sum = 0;
    for (int i = 1; i <= columns; ++i) {
        const T* const cells = table.column(i).data();
        int t = first;
        if constexpr (!InOrder) {
            double sums[4] = {};
            for (; t + 3 <= last; t += 4)
                for (int lane = 0; lane < 4; ++lane) sums[lane] += number_in(cells[t + lane]);
            sum += sums[0] + sums[1] + sums[2] + sums[3];
        }
        for (; t <= last; ++t) sum += number_in(cells[t]);
    }
    return sum;
}
template <class T>
void write_pass(Table2<T>& table, int first, int last, const T& value) {
    for (int i = 1; i <= columns; ++i) {
        const auto cells = table.column(i);
        for (int t = first; t <= last; ++t) cells[static_cast<std::size_t>(t)] = value;
    }
}

// The tables that each pass of the formulas reads and writes, streamed once a pass; what is computed is left out.
template <bool InOrder>
void stream_once(const RunState& rs, Table2<double>& table, Table2<Cell>& cells) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    double sum = 0;
    for (int pass = 0; pass < 3; ++pass)
        sum += read_pass<InOrder>(rs.Sig, 2, blank);  // mean, deviation, spikes of the blank
    sum += read_pass<InOrder>(rs.Sig, 2, slices);     // correction by the blank
    write_pass(table, 2, slices, sum);
    for (int pass = 0; pass < 4; ++pass)
        sum += read_pass<InOrder>(rs.Sig2, low, upp);  // mean, deviation, extremes, ratio
    write_pass(table, low, upp, sum);
    for (int pass = 0; pass < 2; ++pass)
        sum += read_pass<InOrder>(rs.Ratio, low, upp);  // deviation and extremes of ratios
    sum += read_pass<InOrder>(rs.Sig2, low, upp);       // means of the accepted data
    sum += read_pass<InOrder>(rs.Sig, low, upp);
    for (int pass = 0; pass < 3; ++pass)
        sum += read_pass<InOrder>(rs.Sig2, low, upp);  // median, its divisor, concentrations
    write_pass(cells, low, upp, Cell(sum));
    sum += read_pass<InOrder>(rs.ConcT, low, upp);  // spread
    sum += read_pass<InOrder>(rs.Sig2, low, upp);   // errors
    sum += read_pass<InOrder>(rs.ConcT, low, upp);
    write_pass(cells, low, upp, Cell(sum));
    sum += read_pass<InOrder>(rs.Sig2, low, upp);  // correlation
    benchmark::DoNotOptimize(sum);
    benchmark::ClobberMemory();
}

template <bool InOrder>
void streaming(benchmark::State& state) {
    Table2<double> table(MaxIso, MaxSlices);
    Table2<Cell> cells(MaxIso, MaxSlices);
    for (auto _ : state) stream_once<InOrder>(measurement(), table, cells);
}

// Both in turn, so that a busy machine slows both: the counter is calculation / streaming.
template <bool InOrder>
void calculation_to_streaming(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    RunState& rs = measurement();
    SilentPlatform os;
    Table2<double> table(MaxIso, MaxSlices);
    Table2<Cell> cells(MaxIso, MaxSlices);
    Clock::duration calculated{}, streamed{};
    for (auto _ : state) {
        const auto start = Clock::now();
        calculate(rs, os);
        const auto between = Clock::now();
        stream_once<InOrder>(rs, table, cells);
        calculated += between - start;
        streamed += Clock::now() - between;
    }
    state.counters["ratio"] = static_cast<double>(calculated.count()) / static_cast<double>(streamed.count());
}

void median_fast(benchmark::State& state) {
    RunState& rs = measurement();
    std::vector<double> work;
    const auto cells = std::as_const(rs.Sig2).column(1).subspan(static_cast<std::size_t>(rs.SelLow.val()),
                                                                static_cast<std::size_t>(rs.SelN.val()));
    for (auto _ : state) benchmark::DoNotOptimize(selected_median(cells, rs.SelN.val(), work));
}
void median_plain(benchmark::State& state) {
    RunState& rs = measurement();
    const auto cells = std::as_const(rs.Sig2).column(1).subspan(static_cast<std::size_t>(rs.SelLow.val()),
                                                                static_cast<std::size_t>(rs.SelN.val()));
    for (auto _ : state) benchmark::DoNotOptimize(plain::selected_median(cells));
}

}  // namespace

BENCHMARK(calculation)->Unit(benchmark::kMillisecond);
BENCHMARK(streaming<true>)->Unit(benchmark::kMillisecond);
BENCHMARK(streaming<false>)->Unit(benchmark::kMillisecond);
BENCHMARK(calculation_to_streaming<true>)->Unit(benchmark::kMillisecond);
BENCHMARK(calculation_to_streaming<false>)->Unit(benchmark::kMillisecond);
BENCHMARK(only_blank)->Unit(benchmark::kMillisecond);
BENCHMARK(only_statistics)->Unit(benchmark::kMillisecond);
BENCHMARK(only_concentrations)->Unit(benchmark::kMillisecond);
BENCHMARK(plain_reading_without_median)->Unit(benchmark::kMillisecond);
BENCHMARK(median_fast)->Unit(benchmark::kMicrosecond);
BENCHMARK(median_plain)->Unit(benchmark::kMicrosecond);
