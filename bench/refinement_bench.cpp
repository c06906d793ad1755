// The refinement of the selection: 61 x 61 pairs of limits, 1500 of 6000 slices selected, 10 columns; beside it the
// plain reading with its quadratic sorts. Wanted: 100 times faster than that, and under two seconds. The plain reading
// is run over 5 x 5 pairs, the time of one pair is told for both.
#include <benchmark/benchmark.h>

#include <memory>

#include "plain/refinement_plain.hpp"
#include "plain/simulated_run.hpp"
#include "support/silent_platform.hpp"
#include "upb/refinement.hpp"

namespace {

using namespace kolvar;
using test::SilentPlatform;

struct Screen {
    Screen(int method, int plot, int steps) : range(std::to_string(steps)) {
        set_start_values(rs);
        plain::simulate_uranium_run(rs, 6000, 1990);
        rs.setBzzMethod = method, rs.setBzzPlot = plot;
        Frm2UP& form = forms.frm2_UP;
        form.chkHgCorr.value = 1;
        form.comboBzz.set_items({"%", "data"});
        form.comboBzz.set_value_quietly(1);
        form.txtZizzRange.text = range;
    }

    // As a click on the button finds it.
    void select() {
        rs.SelLow = 3000, rs.SelUpp = 4499, rs.SelN = 1500, rs.SelNGood = 1500;
        rs.ZizzRunning = false;
        rs.ZizzSteps = 0;
        calc_express_UP(context);
    }

    std::string range;
    RunState rs;
    Forms forms;
    Shell shell;
    SilentPlatform os;
    Context context{rs, forms, os, shell};
};

void scan(benchmark::State& state, int steps, void (*run)(Context&)) {
    const auto screen =
        std::make_unique<Screen>(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), steps);
    screen->select();
    for (auto _ : state) {
        state.PauseTiming();
        screen->select();
        state.ResumeTiming();
        run(screen->context);
    }
    const double pairs = (2.0 * steps + 1) * (2.0 * steps + 1);
    state.counters["time_of_a_pair"] =
        benchmark::Counter(pairs, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void quick_61_x_61(benchmark::State& state) { scan(state, 30, ziz_Manager_UP); }
void plain_5_x_5(benchmark::State& state) {
    scan(state, 2, [](Context& context) { plain::scan(context, true); });
}
BENCHMARK(quick_61_x_61)->ArgNames({"skewness", "lead"})->ArgsProduct({{0, 1}, {0, 1}})->Unit(benchmark::kMillisecond);
BENCHMARK(plain_5_x_5)->ArgNames({"skewness", "lead"})->ArgsProduct({{0, 1}, {0, 1}})->Unit(benchmark::kMillisecond);

}  // namespace
