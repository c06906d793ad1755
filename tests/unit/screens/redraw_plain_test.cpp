// The redraw of both signal plots against its plain reading: the lists of drawing commands to the last bit, the fields
// of the run state and the controls, over many measurements, views and choices, and through several redraws of each.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <memory>
#include <random>

#include "../../../bench/plain/redraw_plain.hpp"
#include "core/inspector.hpp"
#include "plot_bench.hpp"
#include "screens/plots.hpp"

namespace kolvar::test {
namespace {

struct Screen : PlotBench {
    std::mt19937 random;

    int any(int from, int to) { return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1)); }
    bool one_in(int n) { return any(1, n) == 1; }
    double uniform() { return static_cast<double>(random()) / 4294967296.0; }

    explicit Screen(unsigned seed) : PlotBench(0, 0), random(seed) {
        rs.nIso = one_in(6) ? any(50, 60) : any(1, 9);
        rs.nSlices = one_in(10) ? any(0, 3) : any(4, 120);
        size(frm.pict1, any(900, 2400), 760, any(500, 16000), any(300, 9000));
        size(frm.pict2, frm.pict1.left, 5000, any(500, 16000), any(300, 4500));
        for (Label* label : {&frm.lblMaxCps, &frm.lblMaxIIS, &frm.lblMaxIIS2, &frm.lblLow, &frm.lblUpp, &frm.lbl10,
                             &frm.lbl100, &frm.lbl1000, &frm.lbl10k, &frm.lbl100k, &frm.lbl1m, &frm.lbl10m})
            label->width = any(0, 900), label->height = any(0, 300);
        fill_signals();
        choose();
    }

    // Of all sizes, with zeros and negatives, some far beyond what a scale can show.
    void fill_signals() {
        for (int i = 1; i <= rs.nIso; ++i) {
            const double height = std::pow(10.0, one_in(12) ? any(9, 307) : any(-5, 8));
            for (int t = 0; t <= rs.nSlices; ++t) {
                double cps = height * uniform();
                if (one_in(9)) cps = 0;
                if (one_in(9)) cps = -cps;
                if (one_in(20)) cps = std::round(cps);
                rs.Sig(i, t) = cps;
                rs.Sig2(i, t) = one_in(9) ? 0 : cps - height * 0.2 * uniform();
                rs.ConcT(i, t) = one_in(40) ? Cell(Mark::xx) : one_in(9) ? Cell(Mark::dashes) : Cell(rs.Sig2(i, t));
                if (one_in(30)) rs.ConcT(i, t) = Cell();
            }
            rs.IsoISidx(i) = one_in(5) ? 0 : any(1, rs.nIso);
        }
        for (const int k : {1, 2, 3, 4, 5, 6}) {
            frm.chkR(k).value = any(0, 1);
            rs.RatioCol(2 * k - 2) = any(0, rs.nIso);
            rs.RatioCol(2 * k - 1) = any(0, rs.nIso);
        }
        for (int* curve : {&rs.Curve1, &rs.Curve2, &rs.Curve3, &rs.Curve4, &rs.Curve5, &rs.Curve6})
            *curve = one_in(3) ? 0 : any(1, rs.nIso);
    }

    // What the user sets between two redraws.
    void choose() {
        rs.LinearView = one_in(2);
        rs.PlotOn = one_in(15) ? 1 : 0;
        rs.ModeData = any(0, 3) > 0 ? 1 : 0;
        rs.ModeCreateBLK = one_in(6) ? 1 : 0;
        rs.BlankFromData = any(0, 2) > 0 ? 1 : 0;
        rs.setRatio_ppmIS = any(0, 2);
        if (one_in(12)) rs.setRatio_ppmIS = one_in(2) ? Value(3) : Value();
        frm.cmdHorizLines.text = one_in(2) ? "Horiz. lines OFF" : "Horiz. lines ON";
        // Both stand hidden where no data are reduced.
        frm.pict2.visible = frm.lblMaxIIS.visible = frm.lblMaxIIS2.visible = rs.ModeData == 1;
        const bool none = one_in(12);
        for (int j = 1; j <= MaxCurveFlags; ++j) rs.CurveOn(j) = !none && !one_in(4);
        const auto limit = [&] { return one_in(4) ? Limit() : Limit(any(0, rs.nSlices + 2)); };
        const auto position = [&] { return one_in(4) ? 0.0 : frm.pict1.width * uniform(); };
        for (Limit* at : {&rs.SelLow, &rs.SelUpp, &rs.BlkLow, &rs.BlkUpp, &rs.FormerLow, &rs.FormerUpp,
                          &rs.FormerBlkLow, &rs.FormerBlkUpp})
            *at = limit();
        for (double* x : {&rs.SelLowX, &rs.SelUppX, &rs.BlkLowX, &rs.BlkUppX, &rs.FormerLowX, &rs.FormerUppX})
            *x = position();
        rs.SelN = rs.SelUpp.val() - rs.SelLow.val() + 1;
        for (bool* flag : {&rs.ScaleFresh, &rs.ScaleFresh2, &rs.AutoScale1, &rs.AutoScale2})
            if (one_in(3)) *flag = one_in(2);
        for (Value* entry : {&rs.YMaxEntry, &rs.YMaxEntry2}) {
            if (one_in(4)) *entry = std::pow(10.0, any(-12, 11)) * uniform();
            if (one_in(8)) *entry = std::pow(10.0, any(-4, 1)) * 0.09;  // ends at a power of ten
            if (one_in(20)) *entry = one_in(2) ? "12.5 kcps" : "none";
            if (one_in(20)) *entry = one_in(2) ? Value(1) : Value(-7);
        }
        if (one_in(3)) rs.MaxCps = std::pow(10.0, any(-7, 12)) * uniform();
        if (one_in(3)) rs.MaxRatio = std::pow(10.0, any(-5, 7)) * uniform();
        if (one_in(20)) rs.MaxCps = 0;
    }
};

enum class Routine { all, single, lower_single };

// "" or the fault that ended it.
template <class Draw>
std::string outcome(Draw&& draw) {
    try {
        draw();
        return {};
    } catch (const Fault& fault) {
        return fault.what();
    }
}

std::string quick_redraw(Routine routine, Context& context) {
    return outcome([&] {
        if (routine == Routine::all) draw_all(context);
        if (routine == Routine::single) draw_pict1(context);
        if (routine == Routine::lower_single) draw_pict2(context);
    });
}

std::string plain_redraw(Routine routine, Context& context) {
    return outcome([&] {
        if (routine == Routine::all) plain::redraw_all(context);
        if (routine == Routine::single) plain::redraw_single(context);
        if (routine == Routine::lower_single) plain::redraw_lower_single(context);
    });
}

std::uint64_t bits(double number) { return std::bit_cast<std::uint64_t>(number); }

void expect_same_lists(const Picture& quick, const Picture& plain) {
    const auto& a = quick.canvas.commands();
    const auto& b = plain.canvas.commands();
    ASSERT_EQ(a.size(), b.size()) << quick.name;
    ASSERT_EQ(quick.canvas.draws(), plain.canvas.draws()) << quick.name;
    const auto label = [](const Picture& plot, const DrawCommand& command) {
        const Canvas::LabelText& text = plot.canvas.labels().at(static_cast<std::size_t>(command.number));
        return text.name + "=" + text.text;
    };
    for (std::size_t k = 0; k < a.size(); ++k) {
        SCOPED_TRACE(quick.name + ", command " + std::to_string(k));
        ASSERT_EQ(a[k].kind, b[k].kind);
        ASSERT_EQ(a[k].colour, b[k].colour);
        ASSERT_EQ(bits(a[k].x1), bits(b[k].x1)) << a[k].x1 << " " << b[k].x1;
        ASSERT_EQ(bits(a[k].y1), bits(b[k].y1)) << a[k].y1 << " " << b[k].y1;
        ASSERT_EQ(bits(a[k].x2), bits(b[k].x2)) << a[k].x2 << " " << b[k].x2;
        ASSERT_EQ(bits(a[k].y2), bits(b[k].y2)) << a[k].y2 << " " << b[k].y2;
        if (a[k].kind == DrawCommand::Kind::show_label || a[k].kind == DrawCommand::Kind::hide_label)
            ASSERT_EQ(label(quick, a[k]), label(plain, b[k]));
        else
            ASSERT_EQ(a[k].number, b[k].number);
    }
}

// The scalars: a redraw writes no table.
void expect_same_fields(const RunState& quick, const RunState& plain) {
    for (const std::string& name : field_names()) {
        if (field_shape(name).dimensions != 0) continue;
        const Value a = field_get(quick, name);
        const Value b = field_get(plain, name);
        if (a.is_number() && b.is_number())
            ASSERT_EQ(bits(a.number()), bits(b.number())) << name << " " << a.number() << " " << b.number();
        else
            ASSERT_EQ(a, b) << name;
    }
}

void expect_same_controls(const Frm2Time& quick, const Frm2Time& plain) {
    ASSERT_EQ(quick.controls.size(), plain.controls.size());
    for (std::size_t k = 0; k < quick.controls.size(); ++k) {
        const Control& a = *quick.controls[k];
        const Control& b = *plain.controls[k];
        ASSERT_EQ(a.visible, b.visible) << a.address();
        ASSERT_EQ(a.text, b.text) << a.address();
        ASSERT_EQ(a.left, b.left) << a.address();
        ASSERT_EQ(a.top, b.top) << a.address();
        ASSERT_EQ(a.width, b.width) << a.address();
        ASSERT_EQ(a.height, b.height) << a.address();
    }
}

TEST(RedrawPlain, BothPlotsEqualThePlainReadingCommandByCommand) {
    std::array<int, 3> with_curves{};  // redraws that draw more than the intervals, by routine
    int gaps = 0;                      // lists of the upper plot with curves of missing pieces
    int intervals_alone = 0;
    int decades = 0;
    int faults = 0;
    for (unsigned seed = 1; seed <= 240; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Screen quick(seed);
        Screen plain(seed);
        for (int pass = 0; pass < 5; ++pass) {
            SCOPED_TRACE("pass " + std::to_string(pass));
            if (pass > 1) quick.choose(), plain.choose();  // the first redraw is repeated as it stands
            const int drawn_by = pass < 2 ? static_cast<int>(seed % 3) : quick.any(0, 2);
            if (pass >= 2) plain.any(0, 2);
            const auto routine = static_cast<Routine>(drawn_by);
            const std::string of_quick = quick_redraw(routine, quick.context);
            const std::string of_plain = plain_redraw(routine, plain.context);
            ASSERT_EQ(of_quick, of_plain);
            expect_same_lists(quick.frm.pict1, plain.frm.pict1);
            expect_same_lists(quick.frm.pict2, plain.frm.pict2);
            expect_same_fields(quick.rs, plain.rs);
            expect_same_controls(quick.frm, plain.frm);
            if (HasFatalFailure()) return;
            faults += of_plain.empty() ? 0 : 1;
            const Picture& plot = drawn_by == 2 ? plain.frm.pict2 : plain.frm.pict1;
            const std::size_t lines = commands(plot, DrawCommand::Kind::line).size();
            with_curves[static_cast<std::size_t>(drawn_by)] += plain.rs.PlotOn == 0 && lines > 40 ? 1 : 0;
            intervals_alone += plain.rs.PlotOn == 0 && lines < 5 ? 1 : 0;
            decades += test::lines(plain.frm.pict1, palette(8)).empty() || plain.rs.LinearView ? 0 : 1;
            const std::size_t lower = commands(plain.frm.pict2, DrawCommand::Kind::line).size();
            gaps += drawn_by == 0 && lower > 40 && lower < lines ? 1 : 0;
        }
    }
    // The cases are worth something: curves by each routine, gaps, scales with and without decades; none ends in a
    // fault.
    for (const int count : with_curves) EXPECT_GT(count, 100);
    EXPECT_GT(gaps, 50);
    EXPECT_GT(intervals_alone, 50);
    EXPECT_GT(decades, 50);
    EXPECT_EQ(faults, 0);
}

// ln(0.00001) = -11.5 has two digits before its point, but no decade: nothing is marked, and the lower plot follows.
TEST(SingleCurvePlot, TypedLimitNearZeroOnALogarithmicViewMarksNoDecades) {
    PlotBench bench(1, 4);
    bench.rs.LinearView = false;
    bench.rs.Curve1 = 1;
    bench.signal(1, {1, 50, 100, 2});
    bench.rs.MaxCps = 100;
    bench.rs.YMaxEntry = 0.00001;
    draw_pict1(bench.context);
    EXPECT_EQ(lines(bench.frm.pict1, palette(0)).size(), 3U);
    EXPECT_TRUE(lines(bench.frm.pict1, palette(8)).empty());
    EXPECT_FALSE(bench.frm.lbl10.visible);
    EXPECT_NEAR(bench.rs.MaxCps, -5 * std::log(10.0), 1e-12);
    EXPECT_EQ(bench.frm.pict2.canvas.draws(), 1);
    // The next draw scales by that logarithm: it has no places.
    draw_pict1(bench.context);
    EXPECT_TRUE(lines(bench.frm.pict1, palette(0)).empty());
    EXPECT_TRUE(lines(bench.frm.pict1, palette(8)).empty());
    EXPECT_NEAR(bench.rs.MaxCps, std::log(5 * std::log(10.0)), 1e-12);
}

TEST(SingleCurvePlot, LowerPlotThatIsNotDrawnKeepsItsListAsItIs) {
    PlotBench bench(1, 4);
    bench.rs.ModeData = 0;
    bench.rs.Curve1 = 1;
    bench.rs.MaxCps = 100;
    draw_pict1(bench.context);
    const std::uint64_t revision = bench.frm.pict2.canvas.revision();
    for (int k = 0; k < 5; ++k) draw_pict1(bench.context);
    EXPECT_TRUE(bench.frm.pict2.canvas.commands().empty());
    EXPECT_EQ(bench.frm.pict2.canvas.revision(), revision);
    EXPECT_FALSE(bench.frm.lblRatios.visible);
}

}  // namespace
}  // namespace kolvar::test
