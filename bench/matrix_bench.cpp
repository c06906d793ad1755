// The rejection matrix at 100 isotopes by 6000 slices: switching each test on and off, and filling the table in each
// view. Wanted: a test under 50 ms.
#include <benchmark/benchmark.h>

#include <memory>

#include "plain/matrix_plain.hpp"
#include "plain/simulated_run.hpp"
#include "support/silent_platform.hpp"
#include "trace/output.hpp"
#include "trace/statistics.hpp"

namespace {

using namespace kolvar;
using test::SilentPlatform;

struct Matrix {
    RunState rs;
    Forms forms;
    SilentPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};
    Frm3Matrix& form = forms.frm3_Matrix;

    explicit Matrix(int slices) {
        plain::simulate_run(rs, 100, slices, slices / 4);
        ComputeBlank(rs, os);
        rs.SelLow = 1;
        rs.SelUpp = slices;
        rs.SelN = slices;
        rs.setISnum = 1;
        rs.setSD_IS = 1.5;  // rejects many data of the standard, so that many slices go with it
        rs.RejProcName = " 5";
        for (int n = 3; n <= 100; ++n) rs.GrubbsP5(n) = 2;
        load_matrix(context);
    }
};

Matrix& whole() {
    static const auto matrix = std::make_unique<Matrix>(6000);
    return *matrix;
}
Matrix& hundred() {
    static const auto matrix = std::make_unique<Matrix>(100);  // Grubbs' test ends there
    return *matrix;
}

void switch_on(benchmark::State& state, Matrix& matrix, CheckBox& box, void (*switched)(Context&)) {
    for (auto _ : state) {
        state.PauseTiming();
        reset_rejection(matrix.context);
        box.set_value_quietly(1);
        state.ResumeTiming();
        switched(matrix.context);
    }
    reset_rejection(matrix.context);
}

void switch_off(benchmark::State& state, Matrix& matrix, CheckBox& box, void (*switched)(Context&)) {
    for (auto _ : state) {
        state.PauseTiming();
        reset_rejection(matrix.context);
        box.set_value_quietly(1);
        switched(matrix.context);
        box.set_value_quietly(0);
        state.ResumeTiming();
        switched(matrix.context);
    }
    reset_rejection(matrix.context);
}

void fill(benchmark::State& state, OptionButton& view) {
    view.set_value_quietly(1);
    FillTable(whole().context);
    for (auto _ : state) FillTable(whole().context);
    whole().form.optCPS.set_value_quietly(1);
    FillTable(whole().context);
}

void min_max_on(benchmark::State& state) { switch_on(state, whole(), whole().form.chkMinMax, switch_reject_min_max); }
void min_max_off(benchmark::State& state) { switch_off(state, whole(), whole().form.chkMinMax, switch_reject_min_max); }
void deviation_on(benchmark::State& state) {
    switch_on(state, whole(), whole().form.chkStDev, switch_reject_deviation);
}
void deviation_off(benchmark::State& state) {
    switch_off(state, whole(), whole().form.chkStDev, switch_reject_deviation);
}
void grubbs_on_100(benchmark::State& state) {
    switch_on(state, hundred(), hundred().form.chkGrubbs, switch_reject_grubbs);
}
void show_min_max_on(benchmark::State& state) {
    switch_on(state, whole(), whole().form.chkShowMinMax, switch_show_min_max);
}
void show_deviation_on(benchmark::State& state) {
    switch_on(state, whole(), whole().form.chkShowStDev, switch_show_deviation);
}
void show_deviation_off(benchmark::State& state) {
    switch_off(state, whole(), whole().form.chkShowStDev, switch_show_deviation);
}
void fill_cps(benchmark::State& state) { fill(state, whole().form.optCPS); }
void fill_ratios(benchmark::State& state) { fill(state, whole().form.optIIS); }
void fill_cps_deviations(benchmark::State& state) { fill(state, whole().form.optCpsSD); }

void plain_deviation_on(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        reset_rejection(whole().context);
        state.ResumeTiming();
        plain::reject_deviations(whole().context);
    }
    reset_rejection(whole().context);
}
void plain_min_max_on(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        reset_rejection(whole().context);
        state.ResumeTiming();
        plain::reject_extremes(whole().context);
    }
    reset_rejection(whole().context);
}
void plain_grubbs_on_100(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        reset_rejection(hundred().context);
        state.ResumeTiming();
        plain::reject_grubbs(hundred().context, 2);
    }
    reset_rejection(hundred().context);
}
void plain_fill_cps_deviations(benchmark::State& state) {
    for (auto _ : state) plain::fill_deviations(whole().context);
    FillTable(whole().context);
}

void read_rejections(benchmark::State& state) {
    for (auto _ : state) ReadRejections(whole().context);
}
void compose_output(benchmark::State& state) {
    RunState& rs = whole().rs;
    for (int i = 1; i <= rs.nIso; ++i)
        for (int t = 1; t <= rs.nSlices; ++t) rs.ConcT(i, t) = rs.Sig(i, t) / 7, rs.ErrT(i, t) = rs.Sig(i, t) / 70;
    for (auto _ : state) Comp_Output(rs, whole().os);
}

BENCHMARK(min_max_on)->Unit(benchmark::kMillisecond);
BENCHMARK(min_max_off)->Unit(benchmark::kMillisecond);
BENCHMARK(deviation_on)->Unit(benchmark::kMillisecond);
BENCHMARK(deviation_off)->Unit(benchmark::kMillisecond);
BENCHMARK(plain_deviation_on)->Unit(benchmark::kMillisecond);
BENCHMARK(plain_min_max_on)->Unit(benchmark::kMillisecond);
BENCHMARK(grubbs_on_100)->Unit(benchmark::kMillisecond);
BENCHMARK(plain_grubbs_on_100)->Unit(benchmark::kMillisecond);
BENCHMARK(show_min_max_on)->Unit(benchmark::kMillisecond);
BENCHMARK(show_deviation_on)->Unit(benchmark::kMillisecond);
BENCHMARK(show_deviation_off)->Unit(benchmark::kMillisecond);
BENCHMARK(fill_cps)->Unit(benchmark::kMillisecond);
BENCHMARK(fill_ratios)->Unit(benchmark::kMillisecond);
BENCHMARK(fill_cps_deviations)->Unit(benchmark::kMillisecond);
BENCHMARK(plain_fill_cps_deviations)->Unit(benchmark::kMillisecond);
BENCHMARK(read_rejections)->Unit(benchmark::kMillisecond);
BENCHMARK(compose_output)->Unit(benchmark::kMillisecond);

}  // namespace
