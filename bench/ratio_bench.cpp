// All calculations of a click on the ratio screen: 10 columns of 6000 slices, 4000 of them selected; with the outliers
// rejected too; beside it the plain reading with its quadratic sorts. Wanted: under 5 ms.
#include <benchmark/benchmark.h>

#include <memory>

#include "core/run_state.hpp"
#include "plain/ratio_plain.hpp"
#include "plain/simulated_run.hpp"
#include "support/silent_platform.hpp"
#include "ui/context.hpp"
#include "upb/beam_start.hpp"
#include "upb/express.hpp"
#include "upb/outliers.hpp"
#include "upb/regression.hpp"

namespace {

using namespace kolvar;
using test::SilentPlatform;

struct Click {
    Click() {
        set_start_values(rs);
        plain::simulate_uranium_run(rs, 6000, 1990);
        rs.SelLow = 2000, rs.SelUpp = 5999, rs.SelN = 4000, rs.SelNGood = 4000;
        rs.setAver = 0, rs.setMean_UP = 0, rs.setTzero = 1;
        rs.setOL_68 = rs.setOL_76 = 1;
        Frm2UP& form = forms.frm2_UP;
        form.pict3.width = form.pict3.height = 4500;
        form.chkHgCorr.value = form.chkShowSD.value = form.chk68.value = form.chk76.value = 1;
        form.txtSD.text = "3";
    }

    void calculate() {
        rs.BeamStart = 0;
        Search_BeamStart(rs);
        calc_express_UP(context);
        Lin_Regr_UP(context);
        Out_Liers(rs, forms.frm2_UP);
    }
    void calculate_plainly() {
        rs.BeamStart = 0;
        plain::ratio_click(context);
    }

    RunState rs;
    Forms forms;
    Shell shell;
    SilentPlatform os;
    Context context{rs, forms, os, shell};
};

void run(benchmark::State& state, void (Click::*calculate)()) {
    const auto made = std::make_unique<Click>();
    made->rs.RejectOn = state.range(0) != 0;
    made->calculate();  // finds the outliers that are rejected from now on
    for (auto _ : state) ((*made).*calculate)();
    state.counters["counted"] = made->rs.SelNGood;
}
void click(benchmark::State& state) { run(state, &Click::calculate); }
void plain_click(benchmark::State& state) { run(state, &Click::calculate_plainly); }
BENCHMARK(click)->ArgName("rejected")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(plain_click)->ArgName("rejected")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
