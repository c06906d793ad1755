// A load of 100 columns by 6000 slices, from the file to the intervals, beside reading the file and converting its
// fields with std::from_chars. Wanted: at most 1.5 times that.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <charconv>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include "core/files.hpp"
#include "import/data_file.hpp"
#include "plain/import_plain.hpp"
#include "support/silent_platform.hpp"

namespace {

using namespace kolvar;
using test::SilentPlatform;

constexpr int columns = 100;
constexpr int slices = 6000;

// A program and the file that it loads, counts with a dwell time for each column.
struct Loading {
    RunState rs;
    Forms forms;
    SilentPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};

    Loading() {
        set_start_values(rs);
        rs.DataFilePath =
            (std::filesystem::temp_directory_path() / ("kolvar-bench-" + std::to_string(getpid()) + ".csv")).string();
        std::ofstream(rs.DataFilePath, std::ios::binary) << plain::table_text(columns, slices, ',');
        rs.setCSVisoLINE = 1;
        rs.setCSVdatLINE = 2;
        rs.setCSVfirstCOL = 2;
        rs.setCPS_IS = 0;
        for (int i = 1; i <= MaxIso; ++i) rs.Dwell(i) = 0.02;
    }
    ~Loading() {
        std::error_code ignored;
        std::filesystem::remove(rs.DataFilePath, ignored);
    }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

    void load() {
        rs.nSlices = 0;  // no file before, so that no blank is asked for
        LoadCSV(context, rs.DataFilePath);
        benchmark::ClobberMemory();
    }
    void only_convert() const {
        const std::string text = read_bytes(rs.DataFilePath);
        const char* at = text.data() + text.find('\n') + 1;
        const char* const end = text.data() + text.size();
        double sum = 0;
        while (at < end) {
            double number = 0;
            at = std::from_chars(at, end, number).ptr;
            sum += number;
            while (at < end && (*at == ',' || *at == '\r' || *at == '\n')) ++at;
        }
        benchmark::DoNotOptimize(sum);
    }
};

Loading& loading() {
    static const auto made = std::make_unique<Loading>();
    return *made;
}

void load(benchmark::State& state) {
    for (auto _ : state) loading().load();
    if (loading().os.boxes > 0) state.SkipWithError("a box was shown");
}
void plain_reading(benchmark::State& state) {
    for (auto _ : state) plain::read_table(loading().rs, loading().rs.DataFilePath, {',', 1, 2, 2, false});
}
void only_converting(benchmark::State& state) {
    for (auto _ : state) loading().only_convert();
}
// Both in turn within one run, so that a busy machine counts for both.
void load_as_ratio(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    Clock::duration loads{};
    Clock::duration conversions{};
    for (auto _ : state) {
        const auto start = Clock::now();
        loading().only_convert();
        const auto middle = Clock::now();
        loading().load();
        conversions += middle - start;
        loads += Clock::now() - middle;
    }
    state.counters["times_converting"] =
        std::chrono::duration<double>(loads).count() / std::chrono::duration<double>(conversions).count();
}

BENCHMARK(load)->Unit(benchmark::kMillisecond);
BENCHMARK(plain_reading)->Unit(benchmark::kMillisecond);
BENCHMARK(only_converting)->Unit(benchmark::kMillisecond);
BENCHMARK(load_as_ratio)->Unit(benchmark::kMillisecond);

}  // namespace
