// Redraw of both signal plots, 50 curves of 6000 slices each, as after a click: the lists of drawing commands made
// anew, beside their plain reading, and painted, on one thread. Wanted: under 100 ms together.
#include <benchmark/benchmark.h>

#include <QPainter>
#include <memory>
#include <optional>
#include <string>

#include "core/platform.hpp"
#include "plain/redraw_plain.hpp"
#include "plain/simulated_run.hpp"
#include "qt/canvas_painter.hpp"
#include "screens/plots.hpp"
#include "support/silent_platform.hpp"
#include "ui/context.hpp"

namespace {

using namespace kolvar;
using test::SilentPlatform;

constexpr int curves = 50;
constexpr int slices = 6000;
constexpr int blank = 1500;

struct Plots {
    Plots() {
        plain::simulate_run(rs, curves, slices, blank);
        for (int j = 1; j <= curves; ++j) {
            rs.CurveOn(j) = true;
            rs.IsoISidx(j) = 1;
            for (int t = 1; t <= slices; ++t) rs.Sig2(j, t) = rs.Sig(j, t);
        }
        rs.ModeData = 1;
        rs.PlotOn = 0;
        rs.setRatio_ppmIS = 0;
        for (Picture* picture : {&forms.frm2_Time.pict1, &forms.frm2_Time.pict2}) {
            picture->width = 15000;
            picture->height = 4500;
        }
    }

    RunState rs;
    Forms forms;
    Shell shell;
    SilentPlatform os;
    Context context{rs, forms, os, shell};
};

Plots& plots() {
    static const auto made = std::make_unique<Plots>();
    return *made;
}

void paint(double device_ratio) {
    for (const Picture* picture : {&plots().forms.frm2_Time.pict1, &plots().forms.frm2_Time.pict2}) {
        const CanvasScale scale{device_ratio / 15, device_ratio / 15, device_ratio};
        const QSize device(static_cast<int>(picture->width * scale.x), static_cast<int>(picture->height * scale.y));
        benchmark::DoNotOptimize(paint_canvas(picture->canvas, device, scale, palette(15)));
    }
}

void list_commands(benchmark::State& state) {
    plots().rs.LinearView = state.range(0) != 0;
    for (auto _ : state) draw_all(plots().context);
    state.counters["commands"] = static_cast<double>(plots().forms.frm2_Time.pict1.canvas.commands().size() +
                                                     plots().forms.frm2_Time.pict2.canvas.commands().size());
}
BENCHMARK(list_commands)->ArgName("linear")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void plain_commands(benchmark::State& state) {
    plots().rs.LinearView = state.range(0) != 0;
    for (auto _ : state) plain::redraw_all(plots().context);
}
BENCHMARK(plain_commands)->ArgName("linear")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void paint_commands(benchmark::State& state) {
    plots().rs.LinearView = state.range(0) != 0;
    draw_all(plots().context);
    for (auto _ : state) paint(static_cast<double>(state.range(1)));
}
BENCHMARK(paint_commands)->ArgNames({"linear", "ratio"})->ArgsProduct({{0, 1}, {1, 2}})->Unit(benchmark::kMillisecond);

// The same lines one by one as the toolkit draws them: what the painting by columns saves. Its pixels are others.
void paint_line_by_line(benchmark::State& state) {
    plots().rs.LinearView = state.range(0) != 0;
    draw_all(plots().context);
    for (auto _ : state) {
        for (const Picture* picture : {&plots().forms.frm2_Time.pict1, &plots().forms.frm2_Time.pict2}) {
            QImage image(picture->width / 15, picture->height / 15, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            for (const DrawCommand& command : picture->canvas.commands()) {
                if (command.kind != DrawCommand::Kind::line) continue;
                painter.setPen(qt_colour(command.colour));
                painter.drawLine(QPointF(command.x1 / 15, command.y1 / 15), QPointF(command.x2 / 15, command.y2 / 15));
            }
            painter.end();
            benchmark::DoNotOptimize(image);
        }
    }
}
BENCHMARK(paint_line_by_line)->ArgName("linear")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void whole_redraw(benchmark::State& state) {
    plots().rs.LinearView = state.range(0) != 0;
    for (auto _ : state) {
        draw_all(plots().context);
        paint(1);
    }
}
BENCHMARK(whole_redraw)->ArgName("linear")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
