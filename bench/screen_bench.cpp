// What a user waits for, through the real windows without a display: a click on each of the two screens of the second
// step, the next file of a batch, the start. Each figure is the median of 50. Wanted: 100 ms for a click with 50 curves
// of 6000 slices, 50 ms on the ratio screen, 60 ms for the next file of a list of 500 lines, 500 ms for the start.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "batch/master_file.hpp"
#include "plain/simulated_run.hpp"
#include "qt/desktop.hpp"
#include "screens/program.hpp"
#include "support/silent_platform.hpp"

namespace {

using namespace kolvar;
namespace fs = std::filesystem;

constexpr int slices = 6000;
constexpr int blank = 1500;

// A copy of the start kit, which goes with the bench.
struct Folder {
    Folder() : path(fs::temp_directory_path() / ("kolvar-bench-" + std::to_string(getpid()))) {
        fs::copy(KOLVAR_START_KIT, path, fs::copy_options::recursive);
    }
    ~Folder() { fs::remove_all(path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    fs::path path;
};

const fs::path& kit() {
    static const Folder folder;
    return folder.path;
}

struct Session {
    explicit Session(int method) : program(os, kit().string()), desktop(program) {
        program.start(method);
        QApplication::processEvents();
    }
    void send(Event event, const Form& form, const Control& control) {
        event.window = form.name;
        event.control = control.name;
        event.index = control.index;
        program.dispatch(event);
        QApplication::processEvents();  // the windows paint what is new
    }
    void mark(const TimeScreen& screen, int button, int shift, int slice) {
        Event event;
        event.kind = EventKind::press;
        event.button = button;
        event.shift = shift;
        event.x = static_cast<double>(screen.pict1.width) * slice / program.state().nSlices;
        send(event, screen, screen.pict1);
        event.kind = EventKind::release;
        send(event, screen, screen.pict1);
    }
    void show(Form& form) {
        program.shell().open(form);
        program.shell().settle();
        desktop.sync();
        QApplication::processEvents();
    }

    test::SilentPlatform os;
    Program program;
    Desktop desktop;
};

// Resident memory of this process, MB; 0 where the system doesn't tell.
double resident_mb() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmRSS:") {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes / 1024;
        }
    return 0;
}

// Sessions that serve all repetitions of a row; they end before the application does.
std::vector<std::unique_ptr<Session>>& sessions() {
    static std::vector<std::unique_ptr<Session>> made;
    return made;
}
Session* kept(int method) { return sessions().emplace_back(std::make_unique<Session>(method)).get(); }

void median_of_50(benchmark::internal::Benchmark* bench) {
    bench->Iterations(1)->Repetitions(50)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);
}

void click_on_50_curves(benchmark::State& state) {
    static Session* const session = [] {
        Session* const made = kept(0);
        RunState& rs = made->program.state();
        plain::simulate_run(rs, 50, slices, blank);
        rs.PlotOn = 0;
        for (int i = 1; i <= rs.nIso; ++i) rs.IsoISidx(i) = 1, rs.CurveOn(i) = true;
        made->show(made->program.forms().frm2_Time);
        return made;
    }();
    static int slice = 5000;
    slice = slice == 5000 ? 5100 : 5000;
    const Frm2Time& form = session->program.forms().frm2_Time;
    const int drawn = form.pict1.canvas.draws();
    for (auto _ : state) session->mark(form, 2, 0, slice);
    state.counters["redraws"] = form.pict1.canvas.draws() - drawn;
    state.counters["SelUpp"] = session->program.state().SelUpp.val();
    state.counters["MB"] = resident_mb();
}
BENCHMARK(click_on_50_curves)->Apply(median_of_50);

void click_on_ratios(benchmark::State& state) {
    static Session* const session = [] {
        Session* const made = kept(1);
        RunState& rs = made->program.state();
        plain::simulate_run(rs, 10, slices, blank);
        rs.ColHg = 10, rs.HgMass = 202, rs.ColPb204 = 5;
        rs.ColPb206 = 1, rs.ColPb207 = 2, rs.ColPb208 = 3;
        rs.ColTh232 = 4, rs.ColU235 = 6, rs.ColU238 = 7;
        rs.PlotOn = 0;
        rs.BlkLow = rs.BlkUpp = rs.SelLow = rs.SelUpp = Limit{};
        const Frm2UP& form = made->program.forms().frm2_UP;
        made->show(made->program.forms().frm2_UP);
        for (const auto& [button, shift, slice] : {std::tuple{1, 1, 2}, {2, 1, 1490}, {1, 0, 1510}, {2, 0, 5990}})
            made->mark(form, button, shift, slice);
        return made;
    }();
    static int slice = 5500;
    slice = slice == 5500 ? 5600 : 5500;
    for (auto _ : state) session->mark(session->program.forms().frm2_UP, 2, 0, slice);
    state.counters["SelUpp"] = session->program.state().SelUpp.val();
    state.counters["MB"] = resident_mb();
}
BENCHMARK(click_on_ratios)->Apply(median_of_50);

// A list of 500 standards, the files of the kit's session over and over.
void next_file_of_500(benchmark::State& state) {
    constexpr int lines = 500;
    static Session* const session = [] {
        const fs::path folder = kit() / "batch";
        fs::create_directory(folder);
        Session* const made = kept(1);
        RunState& rs = made->program.state();
        rs.SeqMode = true;
        rs.SeqCount = rs.SeqStdCount = lines;
        rs.SeqPhase = 1;
        rs.ListMode = 1;
        rs.MasterDir = folder.string() + "/";
        rs.MasterPath = rs.MasterDir + "0-batch.msf";
        rs.MasterName = "0-batch.msf";
        for (int k = 1; k <= lines; ++k) {
            const std::string name = std::to_string(1000 + k) + "-std-91500.csv";
            fs::copy_file(kit() / "001-std-91500.csv", folder / name);
            rs.MasterRecs(k, 0) = name;
            rs.MasterRecs(k, 1) = k;
            rs.MasterRecs(k, 2) = "Std";
            rs.MasterRecs(k, 3) = "91500";
            for (int field = 32; field < 64; ++field) rs.MasterRecs(k, field) = 100000 + field * k;
        }
        Frm2UP& form = made->program.forms().frm2_UP;
        rs.SeqPos = 0;
        made->show(form);
        made->send({}, form, form.cmdOpenNext);
        for (const auto& [button, shift, slice] : {std::tuple{1, 1, 5}, {2, 1, 45}, {1, 0, 61}, {2, 0, 120}})
            made->mark(form, button, shift, slice);
        return made;
    }();
    const Frm2UP& form = session->program.forms().frm2_UP;
    for (auto _ : state) session->send({}, form, form.cmdSaveAnd(1));
    state.counters["saved"] = session->program.state().SeqStdDone;
    state.counters["boxes"] = session->os.boxes;
}
BENCHMARK(next_file_of_500)->Apply(median_of_50);

void start_with_the_kit(benchmark::State& state) {
    for (auto _ : state) {
        Session session(static_cast<int>(state.range(0)));
        benchmark::DoNotOptimize(session.program.forms().frm1_Settings.shown);
    }
    state.counters["MB"] = resident_mb();
}
BENCHMARK(start_with_the_kit)->ArgName("method")->Arg(0)->Arg(1)->Arg(3)->Apply(median_of_50);

}  // namespace

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    sessions().clear();
    return 0;
}
