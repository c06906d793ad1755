// How the cost of each long operation grows with isotopes, slices, the selection and the pairs of limits; and the
// result text, composed and saved. Wanted of the text of 100 isotopes by 6000 slices: composed in under 100 ms, saved
// in under 200 ms.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "import/data_file.hpp"
#include "plain/import_plain.hpp"
#include "plain/simulated_run.hpp"
#include "support/silent_platform.hpp"
#include "trace/concentrations.hpp"
#include "trace/output.hpp"
#include "trace/statistics.hpp"
#include "ui/context.hpp"
#include "upb/beam_start.hpp"
#include "upb/express.hpp"
#include "upb/outliers.hpp"
#include "upb/refinement.hpp"
#include "upb/regression.hpp"

namespace {

using namespace kolvar;

struct Measurement {
    RunState rs;
    Forms forms;
    test::SilentPlatform os{true};
    Shell shell;
    Context context{rs, forms, os, shell};

    Measurement() { set_start_values(rs); }
};

// A file of the bench, gone with it.
struct File {
    explicit File(const std::string& ending)
        : path((std::filesystem::temp_directory_path() / ("kolvar-growth-" + std::to_string(getpid()) + ending))
                   .string()) {}
    ~File() {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    std::string path;
};

int columns_of(const benchmark::State& state) { return static_cast<int>(state.range(0)); }
int slices_of(const benchmark::State& state) { return static_cast<int>(state.range(1)); }

void load(benchmark::State& state) {
    const File file(".csv");
    std::ofstream(file.path, std::ios::binary) << plain::table_text(columns_of(state), slices_of(state), ',');
    const auto run = std::make_unique<Measurement>();
    run->rs.DataFilePath = file.path;
    run->rs.setCSVisoLINE = 1, run->rs.setCSVdatLINE = 2, run->rs.setCSVfirstCOL = 2, run->rs.setCPS_IS = 0;
    for (int i = 1; i <= MaxIso; ++i) run->rs.Dwell(i) = 0.02;
    for (auto _ : state) {
        run->rs.nSlices = 0;  // no file before, so that no blank is asked for
        LoadCSV(run->context, file.path);
    }
}

void calculation(benchmark::State& state) {
    const auto run = std::make_unique<Measurement>();
    plain::simulate_run(run->rs, columns_of(state), slices_of(state), slices_of(state) / 4);
    for (auto _ : state) {
        ComputeBlank(run->rs, run->os);
        ComputeSelStats(run->rs, run->os);
        ComputeConcentrations(run->rs, run->os);
    }
}

std::unique_ptr<Measurement> calculated(const benchmark::State& state) {
    auto run = std::make_unique<Measurement>();
    const int slices = slices_of(state);
    plain::simulate_run(run->rs, columns_of(state), slices, 3);
    run->rs.SelLow = 1, run->rs.SelUpp = slices, run->rs.SelN = slices;
    ComputeBlank(run->rs, run->os);
    ComputeSelStats(run->rs, run->os);
    ComputeConcentrations(run->rs, run->os);
    return run;
}
void compose_text(benchmark::State& state) {
    const auto run = calculated(state);
    for (auto _ : state) Comp_Output(run->rs, run->os);
    state.counters["MB"] = static_cast<double>(run->rs.OutText.size()) / 1.0E6;
}
void save_text(benchmark::State& state) {
    const File file(".txt");
    const auto run = calculated(state);
    Comp_Output(run->rs, run->os);
    for (auto _ : state) WriteResultFile(run->rs, run->os, file.path);  // flushed to the disk
}

void select(RunState& rs, int first, int count) {
    rs.SelLow = first, rs.SelUpp = first + count - 1, rs.SelN = count, rs.SelNGood = count;
}

void ratio_click(benchmark::State& state) {
    const auto run = std::make_unique<Measurement>();
    RunState& rs = run->rs;
    Frm2UP& form = run->forms.frm2_UP;
    const auto selected = static_cast<int>(state.range(0));
    plain::simulate_uranium_run(rs, slices_of(state), 300);
    rs.setOL_68 = rs.setOL_76 = 1;
    form.chkHgCorr.value = form.chkShowSD.value = form.chk68.value = form.chk76.value = 1;
    form.txtSD.text = "3";
    form.pict3.width = form.pict3.height = 4500;
    select(rs, 310, selected);
    for (auto _ : state) {
        rs.BeamStart = 0;
        Search_BeamStart(rs);
        calc_express_UP(run->context);
        Lin_Regr_UP(run->context);
        Out_Liers(rs, form);
    }
}

void refinement(benchmark::State& state) {
    const auto run = std::make_unique<Measurement>();
    RunState& rs = run->rs;
    Frm2UP& form = run->forms.frm2_UP;
    const auto selected = static_cast<int>(state.range(0));
    plain::simulate_uranium_run(rs, 6000, 300);
    rs.setBzzMethod = 0, rs.setBzzPlot = 0;
    form.comboBzz.set_items({"%", "data"});
    form.comboBzz.set_value_quietly(1);
    form.txtZizzRange.text = std::to_string(state.range(1));
    for (auto _ : state) {
        state.PauseTiming();
        select(rs, 1000, selected);
        rs.ZizzRunning = false;
        rs.ZizzSteps = 0;
        calc_express_UP(run->context);
        state.ResumeTiming();
        ziz_Manager_UP(run->context);
    }
}

void by_table(benchmark::internal::Benchmark* bench) {
    bench->ArgNames({"isotopes", "slices"})->Unit(benchmark::kMillisecond);
    for (const int slices : {1500, 3000, 6000}) bench->Args({100, slices});
    for (const int columns : {25, 50}) bench->Args({columns, 6000});
}

BENCHMARK(load)->Apply(by_table);
BENCHMARK(calculation)->Apply(by_table);
BENCHMARK(compose_text)->Apply(by_table);
BENCHMARK(save_text)->Apply(by_table);
BENCHMARK(ratio_click)
    ->ArgNames({"selected", "slices"})
    ->Args({500, 6000})
    ->Args({1000, 6000})
    ->Args({2000, 6000})
    ->Args({4000, 6000})
    ->Args({1000, 1500})
    ->Args({1000, 3000})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(refinement)
    ->ArgNames({"selected", "steps"})
    ->Args({500, 15})
    ->Args({1000, 15})
    ->Args({2000, 15})
    ->Args({4000, 15})
    ->Args({1500, 5})
    ->Args({1500, 15})
    ->Args({1500, 30})
    ->Unit(benchmark::kMillisecond);

}  // namespace
