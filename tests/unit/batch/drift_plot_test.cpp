#include "batch/drift_plot.hpp"

#include <algorithm>

#include "drift_case.hpp"
#include "unit/upb/drawn_list.hpp"

namespace kolvar::test {
namespace {

// A plot of 1200 by 1000 twips at (700, 400): four lines stand at 30, 410, 790 and 1170, the factors 0.8 to 1.4 at 800
// to 200.
class DriftPlotTest : public DriftCase {
protected:
    DriftPlotTest() {
        form.pictDrift.place(700, 400);
        form.pictDrift.width = 1200;
        form.pictDrift.height = 1000;
    }
    // A standard in the first and in the last line, samples between.
    void list_of(int lines) {
        rs.SeqCount = rs.SeqStdCount = 0;
        rs.MasterRecs = Table2<Value>(MaxMaster, LastMasterField);
        add_standard(0.35, 1.4, 0.06);
        while (rs.SeqCount < lines - 1) add_sample();
        add_standard(0.2, 1.1, 0.05);
    }
    int ticks_of(const Picture& scale, double length) const {
        return static_cast<int>(std::count_if(
            scale.canvas.commands().begin(), scale.canvas.commands().end(), [&](const DrawCommand& command) {
                return command.kind == DrawCommand::Kind::line &&
                       std::max(command.x2 - command.x1, command.y2 - command.y1) == length;
            }));
    }
    std::vector<std::string> shown_places() const {
        std::vector<std::string> texts;
        for (int k = form.lbl.first(); k <= form.lbl.last(); ++k)
            if (form.lbl(k).visible) texts.push_back(form.lbl(k).text);
        return texts;
    }
    using Places = std::vector<std::string>;
};

Drawn mark(const char* colour, const char* upright, const char* level) {
    const std::string line = std::string("line ") + colour + " ";
    return {line + upright, "width 2", line + level, "width 1"};
}

TEST_F(DriftPlotTest, StandardsAreCrossesAndTheLineASquareAtEachSample) {
    four_lines();
    plot_drift(rs, form);
    Drawn wanted{"clear"};
    const auto add = [&](const Drawn& more) { wanted.insert(wanted.end(), more.begin(), more.end()); };
    add(mark("0", "30.0 600.0 30.0 1000.0", "0.0 800.0 60.0 800.0"));
    add(mark("0", "30.0 0.0 30.0 400.0", "0.0 200.0 60.0 200.0"));
    add(mark("13", "30.0 400.0 30.0 800.0", "0.0 600.0 60.0 600.0"));
    add(mark("0", "1170.0 0.0 1170.0 400.0", "1140.0 200.0 1200.0 200.0"));
    add(mark("0", "1170.0 300.0 1170.0 700.0", "1140.0 500.0 1200.0 500.0"));
    add(mark("13", "1170.0 200.0 1170.0 600.0", "1140.0 400.0 1200.0 400.0"));
    // The lines have 1, 1.3, 1.0667 at the second place, 1.2, 1.2, 1.1333 at the third. -1: a colour of no number.
    for (const char* square : {"7 380.0 570.0 440.0 630.0", "12 380.0 270.0 440.0 330.0", "-1 380.0 503.3 440.0 563.3",
                               "7 760.0 370.0 820.0 430.0", "12 760.0 370.0 820.0 430.0", "-1 760.0 436.7 820.0 496.7"})
        add({"width 2", std::string("fill ") + square, "width 1"});
    EXPECT_EQ(drawn_list(form.pictDrift), wanted);
    for (const DrawCommand& command : form.pictDrift.canvas.commands()) {
        if (command.kind == DrawCommand::Kind::fill_rect && palette_number(command.colour) < 0) {
            EXPECT_EQ(command.colour, rgb(255, 192, 255));
        }
    }
}

TEST_F(DriftPlotTest, TicksStandBelowThePlotAtTheLinesButTheLast) {
    four_lines();
    plot_drift(rs, form);
    EXPECT_NEAR(rs.DriftStep, 380, 1e-10);
    EXPECT_EQ(drawn_list(form.pictTicksX), (Drawn{"clear", "line 0 30.0 0.0 30.0 60.0", "line 0 410.0 0.0 410.0 60.0",
                                                  "line 0 790.0 0.0 790.0 60.0"}));
    EXPECT_EQ(shown_places(), Places{});
}

TEST_F(DriftPlotTest, TicksAndNumbersChangeTheirStepsAt100And200And400Lines) {
    struct Case {
        int lines, short_ticks, long_ticks;
        Places places;
    };
    const Case cases[] = {
        {99, 89, 9, {"11", "21", "31", "41", "51", "61", "71", "81", "91"}},
        {100, 90, 9, {"21", "41", "61", "81"}},
        {199, 179, 19, {"21", "41", "61", "81", "101", "121", "141", "161", "181"}},
        {200, 80, 19, {"21", "41", "61", "81", "101", "121", "141", "161", "181"}},
        {201, 80, 20, {"41", "81", "121", "161", "201"}},
        {400, 160, 39, {"41", "81", "121", "161", "201", "241", "281", "321", "361"}},
        {401, 160, 40, {"51", "101", "151", "201", "251", "301", "351", "401"}},
        {500, 200, 49, {"51", "101", "151", "201", "251", "301", "351", "401", "451"}},
    };
    for (const Case& wanted : cases) {
        list_of(wanted.lines);
        form.hide_axes();
        plot_drift(rs, form);
        EXPECT_EQ(ticks_of(form.pictTicksX, 60), wanted.short_ticks) << wanted.lines;
        EXPECT_EQ(ticks_of(form.pictTicksX, 110), wanted.long_ticks) << wanted.lines;
        EXPECT_EQ(shown_places(), wanted.places) << wanted.lines;
    }
}

TEST_F(DriftPlotTest, NumbersAreCentredBelowTheirLines) {
    form.pictDrift.width = 2000;  // 21 lines: 50, 145, ... 1950
    list_of(21);
    plot_drift(rs, form);
    EXPECT_EQ(shown_places(), (Places{"11", "21"}));
    EXPECT_EQ(form.lbl(1).left + form.lbl(1).width / 2, 700 + 1000);
    EXPECT_EQ(form.lbl(2).left + form.lbl(2).width / 2, 700 + 1950);
    EXPECT_GT(form.lbl(1).top, 400 + 1000 + 110);  // below the long ticks
}

TEST_F(DriftPlotTest, PlacesAreNotedBeforeTheStandardsAndFactorsBehindTheLines) {
    form.pictDrift.width = 2000;
    list_of(21);
    plot_drift(rs, form);
    const Canvas& canvas = form.pictDrift.canvas;
    std::vector<std::string> order;  // each label with its text, each row of equal drawings once
    for (const DrawCommand& command : canvas.commands()) {
        std::string step;
        if (command.kind == DrawCommand::Kind::line) step = "crosses";
        if (command.kind == DrawCommand::Kind::fill_rect) step = "squares";
        if (command.kind == DrawCommand::Kind::show_label) {
            const Canvas::LabelText& label = canvas.labels()[static_cast<std::size_t>(command.number)];
            step = label.name + " " + label.text;
        }
        if (!step.empty() && (order.empty() || order.back() != step)) order.push_back(step);
    }
    EXPECT_EQ(order,
              (Places{"lbl(1) 11", "lbl(2) 21", "crosses", "squares", "lbl0_80 0.80", "lbl0_85 0.85", "lbl0_90 0.90",
                      "lbl0_95 0.95", "lbl1_00 1.00", "lbl1_05 1.05", "lbl1_10 1.10", "lbl1_15 1.15", "lbl1_20 1.20"}));
    // The first is centred at 700 + 1000.
    EXPECT_EQ(canvas.commands()[1].x1, 1700 - form.lbl(1).width / 2.0);
}

TEST_F(DriftPlotTest, TheScaleMarksEachHundredthFrom0_8To1_2ThatLiesInside) {
    four_lines();
    plot_drift(rs, form);
    EXPECT_EQ(ticks_of(form.pictTicksY, 60), 40);
    EXPECT_EQ(ticks_of(form.pictTicksY, 110), 1);  // at 1
    for (const auto& [percent, label] : form.scale_labels()) {
        EXPECT_TRUE(label->visible) << percent;
        EXPECT_EQ(label->top + label->height / 2, 400 + 600 - 10 * percent) << percent;
        EXPECT_LT(label->left + label->width, 700) << percent;
    }
}

TEST_F(DriftPlotTest, FactorsOutsideThePlotHaveNoTickAndTheirLabelStaysAsItWas) {
    // Extremes 1.1 and 1.4: 1 stands at 1000 and is outside, 1.01 at 980; 1.2 at 600.
    add_standard(0.2, 1.4, 0.05);
    add_sample();
    add_standard(0.28 / 1.2, 1.1, 0.06 / 1.3);
    form.lbl0_90.visible = true;
    form.lbl0_90.place(11, 22);
    plot_drift(rs, form);
    EXPECT_EQ(ticks_of(form.pictTicksY, 60), 20);
    EXPECT_EQ(ticks_of(form.pictTicksY, 110), 0);
    EXPECT_TRUE(form.lbl0_90.visible);
    EXPECT_EQ(form.lbl0_90.top, 22);
    EXPECT_FALSE(form.lbl0_95.visible || form.lbl1_00.visible);
    EXPECT_TRUE(form.lbl1_05.visible && form.lbl1_20.visible);
    EXPECT_EQ(form.lbl1_20.top + form.lbl1_20.height / 2, 400 + 600);
}

TEST_F(DriftPlotTest, TheWholeWindowIsDrawnAnewByTheNextPlot) {
    four_lines();
    plot_drift(rs, form);
    const Drawn first = drawn_list(form.pictDrift), below = drawn_list(form.pictTicksX);
    plot_drift(rs, form);
    EXPECT_EQ(drawn_list(form.pictDrift), first);
    EXPECT_EQ(drawn_list(form.pictTicksX), below);
    EXPECT_EQ(form.pictDrift.canvas.draws(), 2);
}

TEST_F(DriftPlotTest, TheDrawingAloneLeavesFactorsAndLines) {
    four_lines();
    plot_drift(rs, form);
    rs.DriftCF68(1) = 1.4;
    rs.DriftA68 = 1.1, rs.DriftB68 = 0;
    form.cmdAccept.enabled = false;
    form.pictDrift.width = 2400;
    draw_drift(rs, form);
    EXPECT_EQ(rs.DriftCF68(1), 1.4);
    EXPECT_EQ(rs.DriftA68, 1.1);
    EXPECT_FALSE(form.cmdAccept.enabled);
    const Drawn list = drawn_list(form.pictDrift);
    EXPECT_EQ(list[1], "line 0 60.0 0.0 60.0 400.0");
    EXPECT_EQ(list[26], "fill 7 790.0 470.0 850.0 530.0");
}

TEST_F(DriftPlotTest, APlotMayBeAcceptedUnlessTheFactorsAreWritten) {
    four_lines();
    rs.SeqPhase = 2;
    plot_drift(rs, form);
    EXPECT_TRUE(form.cmdAccept.enabled);
    form.cmdAccept.enabled = false;
    rs.SeqPhase = 3;
    plot_drift(rs, form);
    EXPECT_FALSE(form.cmdAccept.enabled);
}

TEST_F(DriftPlotTest, OneFileOrEqualValuesAreAFaultAndNothingCanBeAccepted) {
    add_standard(0.35, 1.4, 0.06);
    expect_fault(FaultKind::division_by_zero, [&] { plot_drift(rs, form); });
    EXPECT_FALSE(form.cmdAccept.enabled || form.plotted);
    list_of(3);
    rs.Std_68(1) = 0.35, rs.Std_76(1) = 0.06;
    for (const int line : {1, 3}) {
        rs.MasterRecs(line, 11) = 0.35;
        rs.MasterRecs(line, 12) = 1;
        rs.MasterRecs(line, 13) = 0.06;
    }
    expect_fault(FaultKind::division_by_zero, [&] { plot_drift(rs, form); });
    EXPECT_FALSE(form.cmdAccept.enabled || form.plotted);
}

TEST_F(DriftPlotTest, TwoLinesArePlottedAndCanBeAccepted) {
    list_of(2);
    plot_drift(rs, form);
    EXPECT_TRUE(form.cmdAccept.enabled);
    EXPECT_EQ(form.lblLR68b.text, "");
}

TEST_F(DriftPlotTest, LegendsShowTheColoursOfEachRatio) {
    draw_drift_legends(form);
    const std::pair<Picture*, std::pair<Colour, Colour>> legends[] = {
        {&form.pict68, {palette(0), palette(7)}},
        {&form.pict75, {palette(0), palette(12)}},
        {&form.pict76, {palette(13), rgb(255, 192, 255)}}};
    for (const auto& [legend, wanted] : legends) {
        bool cross = false, square = false;
        for (const DrawCommand& command : legend->canvas.commands()) {
            if (command.kind == DrawCommand::Kind::line) cross = command.colour == wanted.first;
            if (command.kind == DrawCommand::Kind::fill_rect) square = command.colour == wanted.second;
        }
        EXPECT_TRUE(cross && square) << legend->name;
    }
}

}  // namespace
}  // namespace kolvar::test
