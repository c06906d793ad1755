// The three plots of the U/Pb and FLEX screen as lists of drawing commands, worked out by hand.
#include <gtest/gtest.h>

#include "screens/plots.hpp"
#include "screens/selection.hpp"
#include "unit/upb/drawn_list.hpp"
#include "unit/upb/uranium_case.hpp"

namespace kolvar::test {
namespace {

void append(Drawn& list, const Drawn& more) { list.insert(list.end(), more.begin(), more.end()); }

// Plots of 1000 by 1000 twips at (1000, 500) and (1000, 2000).
class UpPlots : public UraniumCase {
protected:
    UpPlots() {
        place(form.pict1, 500);
        place(form.pict2, 2000);
        place(form.pict3, 4000);
        form.lblLow.width = form.lblMaxCps.width = form.lbl10.width = 600;
        form.lblBeam_St.height = 240;
        rs.LinearView = true;
        rs.BlankFromData = 1;
        rs.RatioScale = 20;
        rs.PlotPool = 1;
        rs.PlotOn = 0;
    }
    static void place(Picture& plot, int top) {
        plot.place(1000, top);
        plot.width = plot.height = 1000;
    }
};

// Four slices at 250, 500, 750, 1000 and nothing marked; U238 and Pb206 alone are measured.
class UpSignals : public UpPlots {
protected:
    UpSignals() {
        rs.nSlices = 4;
        rs.SelLow.clear(), rs.SelUpp.clear(), rs.BlkLow.clear(), rs.BlkUpp.clear(), rs.SelN.clear();
        rs.ColHg = rs.ColPb204 = rs.ColPb207 = rs.ColPb208 = rs.ColTh232 = rs.ColU235 = 0;
        rs.HgMass = 0;
        for (int i = 1; i <= 8; ++i)
            for (int t = 1; t <= 10; ++t) rs.Sig(i, t) = 0;
        raw(u238, {10, 20, 40, 80});
        raw(pb206, {0, 10, 10, 0});
    }
    void raw(int column, std::initializer_list<double> cps) {
        int t = 0;
        for (const double value : cps) rs.Sig(column, ++t) = value;
    }
    Drawn draw() {
        draw_UP(context);
        return drawn_list(form.pict1);
    }
    // Colours of the lines between slices, in the order in which they were drawn.
    std::vector<std::string> curve_colours() {
        std::vector<std::string> colours;
        for (const DrawCommand& c : form.pict1.canvas.commands())
            if (c.kind == DrawCommand::Kind::line && c.x1 > 0 && c.x1 != c.x2) colours.push_back(colour_name(c.colour));
        return colours;
    }
};

TEST_F(UpSignals, OnALinearScaleBeginWithTheGridAndEndWithTheCurvesSliceBySlice) {
    // The maximum of 80 is rounded up to 100 in 10 divisions: y = 1000 - 9 cps.
    Drawn expected{"clear", "fill yellow 0.0 0.0 0.0 1000.0", "line 6 0.0 0.0 0.0 1000.0", "width 1"};
    for (const char* y : {"910.0", "820.0", "730.0", "640.0", "550.0", "460.0", "370.0", "280.0", "190.0", "100.0"})
        append(expected,
               {std::string("line 7 0.0 ") + y + " 1000.0 " + y, std::string("line 8 0.0 ") + y + " 75.0 " + y});
    append(expected, {"line 6 250.0 1000.0 500.0 910.0", "line 10 250.0 910.0 500.0 820.0",  //
                      "line 6 500.0 910.0 750.0 910.0", "line 10 500.0 820.0 750.0 640.0",   //
                      "line 6 750.0 910.0 1000.0 1000.0", "line 10 750.0 640.0 1000.0 280.0"});
    EXPECT_EQ(draw(), expected);
    EXPECT_DOUBLE_EQ(rs.MaxCps, 100);
    EXPECT_DOUBLE_EQ(rs.ScaleStep, 10);
    EXPECT_EQ(form.lbluppScal.text, "80");
    EXPECT_EQ(form.lblMaxCps.text, "100");
    EXPECT_EQ(form.lblMaxCps2.text, "100");
    EXPECT_TRUE(form.lblMaxCps.visible && form.lblMaxCps2.visible);
    EXPECT_EQ(form.lblMaxCps.left, 1000 - 600);
    EXPECT_FALSE(form.lbl10.visible);
}

TEST_F(UpSignals, OnALogarithmicScaleEndWithTheDecadesWithoutLinesAcross) {
    rs.LinearView = false;
    raw(u238, {1, 10, 900, 0});
    rs.ColPb206 = 0;
    // The scale ends at 1000: y = 1000 - 300 log10(cps); 0 stands at log10(0.00001) = -5.
    EXPECT_EQ(draw(), (Drawn{"clear", "fill yellow 0.0 0.0 0.0 1000.0", "line 6 0.0 0.0 0.0 1000.0", "width 1",
                             "line 10 250.0 1000.0 500.0 700.0", "line 10 500.0 700.0 750.0 113.7",
                             "line 10 750.0 113.7 1000.0 2500.0", "line 8 0.0 700.0 75.0 700.0",
                             "line 8 0.0 400.0 75.0 400.0", "line 8 0.0 100.0 75.0 100.0"}));
    EXPECT_DOUBLE_EQ(rs.MaxCps, 1000);
    EXPECT_FALSE(form.lblMaxCps.visible || form.lblMaxCps2.visible);
    EXPECT_TRUE(form.lbl10.visible && form.lbl100.visible && form.lbl1000.visible);
    EXPECT_FALSE(form.lbl10k.visible);
    EXPECT_EQ(form.lbl10.top, 500 + 700);
    EXPECT_EQ(form.lbl10.left, 1000 - 600);
}

TEST_F(UpSignals, EightCurvesInTheirOrderAndColours) {
    rs.nSlices = 2;
    rs.HgMass = 202;
    rs.ColHg = hg202, rs.ColPb204 = pb204, rs.ColPb207 = pb207, rs.ColPb208 = pb208, rs.ColTh232 = th232;
    rs.ColU235 = u235;
    draw();
    EXPECT_EQ(curve_colours(), (std::vector<std::string>{"0", "5", "6", "12", "13", "9", "2", "10"}));
}

TEST_F(UpSignals, ColumnThatIsNotMeasuredHasNoCurve) {
    draw();
    EXPECT_EQ(curve_colours(), (std::vector<std::string>{"6", "10", "6", "10", "6", "10"}));
}

TEST_F(UpSignals, HgColumnOfAnEarlierFileIsNeitherDrawnNorScaledByForDating) {
    rs.ColHg = hg202;
    raw(hg202, {500, 500, 500, 500});
    draw();
    EXPECT_DOUBLE_EQ(rs.MaxCps, 100);
    EXPECT_EQ(curve_colours().size(), 6U);
    // On the third path the column holds another isotope, of no Hg mass.
    rs.Method = 3;
    draw();
    EXPECT_DOUBLE_EQ(rs.MaxCps, 600);
    EXPECT_EQ(curve_colours().size(), 9U);
    EXPECT_EQ(curve_colours()[0], "0");
}

TEST_F(UpSignals, LogarithmicScaleThatEndsAtOneDrawsNoCurve) {
    rs.LinearView = false;
    raw(u238, {0.5, 0.9, 0.5, 0.9});
    rs.ColPb206 = 0;
    EXPECT_EQ(draw().size(), 4U);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(UpSignals, TypedLimitWorksOnce) {
    rs.YMaxEntry = 50;
    draw();
    EXPECT_DOUBLE_EQ(rs.MaxCps, 60);
    EXPECT_EQ(rs.YMaxEntry, Value(""));
    draw();
    EXPECT_DOUBLE_EQ(rs.MaxCps, 100);
}

TEST_F(UpSignals, FullScaleIsTakenAnewOnlyWhenAskedFor) {
    rs.FullMax = 7;
    rs.ScaleFresh = false;
    draw();
    EXPECT_DOUBLE_EQ(rs.FullMax, 7);
    rs.ScaleFresh = true;
    draw();
    EXPECT_DOUBLE_EQ(rs.FullMax, 100);
    EXPECT_FALSE(rs.ScaleFresh);
}

TEST_F(UpSignals, MarkedIntervalsLieBehindTheCurves) {
    rs.SelLow = 3, rs.SelLowX = 750;
    rs.BlkLow = 1, rs.BlkLowX = 250;
    rs.BlkUpp = 2, rs.BlkUppX = 500;
    const Drawn list = draw();
    EXPECT_EQ(Drawn(list.begin(), list.begin() + 7),
              (Drawn{"clear", "fill yellow 0.0 0.0 750.0 1000.0", "line 6 750.0 0.0 750.0 1000.0",
                     "fill cyan 250.0 0.0 500.0 1000.0", "line 3 250.0 0.0 250.0 1000.0",
                     "line 3 500.0 0.0 500.0 1000.0", "width 1"}));
    EXPECT_EQ(form.lblLow.text, "3");
    EXPECT_EQ(form.lblLow.left, 1000 + 750 - 600);
    EXPECT_EQ(form.lblLow.top, 500 + 1000 + 100);
}

TEST_F(UpSignals, NumberOfSelectedSlicesIsShownAboveZeroOnly) {
    rs.SelN = 3;
    draw();
    EXPECT_EQ(form.lblMeasSel.text, "3");
    rs.SelN = -19;
    draw();
    EXPECT_EQ(form.lblMeasSel.text, "3");
}

TEST_F(UpSignals, FormerSelectionIsAStripUnderThePlot) {
    rs.FormerLow = 1, rs.FormerLowX = 250;
    rs.FormerUpp = 3, rs.FormerUppX = 750;
    rs.FormerBlkLow = 1, rs.FormerBlkUpp = 2;
    draw();
    EXPECT_TRUE(form.pictFormer.visible && form.lblFormer1.visible && form.lblFormerBL1.visible);
    EXPECT_EQ(form.lblFormer2.text, "1 - 3");
    EXPECT_EQ(form.lblFormerBL2.text, "1 - 2");
    EXPECT_EQ(form.pictFormer.left, 1250);
    EXPECT_EQ(form.pictFormer.width, 500);
    rs.FormerUppX = 250;
    draw();
    EXPECT_FALSE(form.pictFormer.visible || form.lblFormer2.visible || form.lblFormerBL2.visible);
}

TEST_F(UpSignals, WhileAFileIsTakenInNothingIsClearedOrDrawn) {
    rs.PlotOn = 1;
    form.pict1.canvas.Line(1, 2, 3, 4);
    form.pict2.canvas.Line(1, 2, 3, 4);
    form.lblBeam_St.visible = true;
    EXPECT_EQ(draw(), (Drawn{"line 0 1.0 2.0 3.0 4.0"}));
    draw_UPratio(context);
    EXPECT_EQ(drawn_list(form.pict2), (Drawn{"line 0 1.0 2.0 3.0 4.0"}));
    EXPECT_FALSE(form.lblBeam_St.visible);
}

// Ten slices at 100, 200, ...; blank 1 to 3, signal 5 to 8 behind a beam that starts at 4. Every ratio but 207/206
// deviates from its mean by -.15 .05 .05 .05, which makes an s.d. of .1, so that at a scale of 20 a deviation d stands
// 500 d above the centre of its band. 207/206 is .37 .082 .082 .082: mean .154, s.d. .144, 1 / 2.88 of the height each.
// Outside the signal all net signals are .01 and all ratios 1.
class UpRatios : public UpPlots {
protected:
    struct Heights {
        const char *colour, *outside, *first, *others;
    };
    const std::vector<Heights> bands{{"0", "-150.0", "325.0", "225.0"},
                                     {"12", "880.0", "455.0", "355.0"},
                                     {"10", "500.0", "575.0", "475.0"},
                                     {"1", "1120.0", "695.0", "595.0"},
                                     {"13", "456.2", "675.0", "775.0"}};

    UpRatios() {
        signal(u238, {100, 100, 100, 100});
        signal(pb206, {5, 25, 25, 25});
        signal(u235, {1, 1, 1, 1});
        signal(pb207, {1.85, 2.05, 2.05, 2.05});
        for (int t = 5; t <= 8; ++t) {
            rs.Sig(th232, t) = 100 / (t == 5 ? 1.85 : 2.05);
            rs.Sig(pb208, t) = rs.Sig(th232, t) * (t == 5 ? 0.85 : 1.05);
        }
        for (CheckBox* box : {&form.chk68, &form.chk75, &form.chk82, &form.chkUTh, &form.chk76}) box->value = 1;
        form.chkLinReg.value = form.chkShowSD.value = 0;
        rs.SelLowX = 500, rs.SelUppX = 800, rs.BlkLowX = 100, rs.BlkUppX = 300;
    }
    Drawn draw() {
        draw_UPratio(context);
        return drawn_list(form.pict2);
    }
    static Drawn intervals() {
        return {"clear",
                "fill yellow 0.0 0.0 500.0 1000.0",
                "line 6 500.0 0.0 500.0 1000.0",
                "fill yellow 800.0 0.0 1000.0 1000.0",
                "line 6 800.0 0.0 800.0 1000.0",
                "fill cyan 100.0 0.0 300.0 1000.0",
                "line 3 100.0 0.0 100.0 1000.0",
                "line 3 300.0 0.0 300.0 1000.0",
                "width 1"};
    }
    static const char* height(const Heights& band, int t) {
        return t == 5 ? band.first : t > 5 && t < 9 ? band.others : band.outside;
    }
    // The pieces between slices that end at `from` .. `to`.
    static Drawn pieces(const std::vector<Heights>& of, int from, int to) {
        Drawn list;
        for (int t = from; t <= to; ++t)
            for (const Heights& band : of)
                list.push_back(std::string("line ") + band.colour + " " + std::to_string(100 * (t - 1)) + ".0 " +
                               height(band, t - 1) + " " + std::to_string(100 * t) + ".0 " + height(band, t));
        return list;
    }
    void only_68() {
        for (CheckBox* box : {&form.chk75, &form.chk82, &form.chkUTh, &form.chk76}) box->value = 0;
    }
    std::vector<Heights> band_68() const { return {bands[0]}; }
    // The blank is too short to calculate anything, so that the plot shows the net signals that stand.
    void net_68(int from, std::initializer_list<double> pb206_cps) {
        rs.BlkUpp = 1;
        for (int t = 1; t <= 10; ++t)
            for (int i = 1; i <= 8; ++i) rs.Sig2(i, t) = 100;
        int t = from;
        for (const double cps : pb206_cps) rs.Sig2(pb206, t++) = cps;
        for (Table1<double>* rat : {&rs.Rat68, &rs.Rat75, &rs.Rat82, &rs.Rat382, &rs.Rat76}) ratio(*rat, {1, 2, 1, 3});
    }
};

TEST_F(UpRatios, StandInFiveBandsSliceBySlice) {
    Drawn expected = intervals();
    append(expected, pieces(bands, 2, 10));
    EXPECT_EQ(draw(), expected);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(UpRatios, LargerScaleFlattensTheCurves) {
    only_68();
    rs.RatioScale = 5;  // four times as high about 250
    Drawn list = draw();
    EXPECT_EQ(list[12], "line 0 400.0 -1350.0 500.0 550.0");
    rs.RatioScale = 10;
    list = draw();
    EXPECT_EQ(list[12], "line 0 400.0 -550.0 500.0 400.0");
}

TEST_F(UpRatios, OnlyTickedRatiosAreDrawn) {
    form.chk68.value = form.chk82.value = form.chkUTh.value = 0;
    Drawn expected = intervals();
    append(expected, pieces({bands[1], bands[4]}, 2, 10));
    EXPECT_EQ(draw(), expected);
}

TEST_F(UpRatios, TickedRatioWithoutItsColumnDrawsNothing) {
    rs.ColU235 = 0;
    rs.ColTh232 = 0;
    form.chkLinReg.value = 1;
    Drawn expected = intervals();
    append(expected, pieces({bands[0], bands[4]}, 2, 10));
    append(expected, {"width 2", "line 0 500.0 295.0 800.0 205.0", "width 1",  //
                      "width 2", "line 13 500.0 705.0 800.0 795.0", "width 1"});
    EXPECT_EQ(draw(), expected);
}

TEST_F(UpRatios, ScaleOptionsBesideThePlotHaveNoEffect) {
    const Drawn plain = draw();
    form.optLiR.value = 1, form.optLoR.value = 0;
    rs.setLinearRatios = 1;
    EXPECT_EQ(draw(), plain);
    form.optLiR.value = 0, form.optLoR.value = 1;
    rs.setLinearRatios = 0;
    EXPECT_EQ(draw(), plain);
}

TEST_F(UpRatios, FewerThanFourSlicesGiveTintsAndMarksOnly) {
    select(5, 7);
    rs.SelUppX = 700;
    form.chkLinReg.value = 1;
    Drawn expected = intervals();
    expected[3] = "fill yellow 700.0 0.0 1000.0 1000.0", expected[4] = "line 6 700.0 0.0 700.0 1000.0";
    EXPECT_EQ(draw(), expected);
    EXPECT_FALSE(form.lblBeam_St.visible);
}

TEST_F(UpRatios, CurvesNeedASelectionThatEndsThreeSlicesBehindTheBeamStart) {
    rs.BeamStart = 6;
    EXPECT_EQ(draw(), intervals());
    rs.BeamStart = 5;
    EXPECT_EQ(draw().size(), intervals().size() + 45);
}

TEST_F(UpRatios, WithoutFourLimitsNothingIsCalculated) {
    rs.BlkUpp.clear();
    rs.BlkUppX = 0;
    rs.Mean68 = 7;
    EXPECT_EQ(draw(), (Drawn{"clear", "fill yellow 0.0 0.0 500.0 1000.0", "line 6 500.0 0.0 500.0 1000.0",
                             "fill yellow 800.0 0.0 1000.0 1000.0", "line 6 800.0 0.0 800.0 1000.0",
                             "line 3 100.0 0.0 100.0 1000.0", "width 1"}));
    EXPECT_DOUBLE_EQ(rs.Mean68, 7);
}

TEST_F(UpRatios, BandsCountRejectedSlicesToo) {
    rs.RejectOn = true;
    rs.RejFlag(5) = 1;
    rs.RejFlag(8) = 3;
    rs.SelNGood = 2;
    rs.RejFlag(9) = 1;  // outside the selection
    rs.setAver = 1;
    // Two slices are enough neither for skewness nor for the plot of ratios; three are.
    rs.RejFlag(8) = 0;
    rs.SelNGood = 3;
    signal(pb206, {5, 25, 26, 24});
    signal(pb207, {1.85, 2.05, 2.06, 2.04});
    signal(pb208, {40, 50, 51, 52});
    signal(th232, {52, 48, 48.1, 48.2});
    only_68();
    const Drawn list = draw();
    Drawn marked = intervals();
    append(marked, {"width 3", "line 7 500.0 0.0 500.0 1000.0", "width 1"});
    EXPECT_EQ(Drawn(list.begin(), list.begin() + 12), marked);
    // The results are of slices 6 to 8, mean .25; the band is of all four: mean .2, squares .0225 + .0025 + .0036 +
    // .0016 = .0302, s.d. .100333, so that the .05 of slice 5 stands at 250 + 150 / 2.006656 = 324.75.
    EXPECT_NEAR(rs.Mean68, 0.25, 1e-12);
    EXPECT_EQ(list[16], "line 0 500.0 324.8 600.0 225.1");
}

TEST_F(UpRatios, SliceWithoutASignalBreaksTheCurve) {
    only_68();
    net_68(5, {0, 20, 60, 60});
    const Drawn list = draw();
    // The pieces that end at 2, 3, 4 and then 7, 8, 9, 10.
    ASSERT_EQ(list.size(), intervals().size() + 7);
    EXPECT_EQ(list[11].substr(0, 12), "line 0 300.0");
    EXPECT_EQ(list[12].substr(0, 12), "line 0 600.0");
}

TEST_F(UpRatios, SpreadDividesByTheSelectionAlsoWhereASliceHasNoSignal) {
    only_68();
    select(5, 9);
    rs.SelUppX = 900;
    net_68(5, {20, 0, 60, 60, 60});
    for (Table1<double>* rat : {&rs.Rat68, &rs.Rat75, &rs.Rat82, &rs.Rat382, &rs.Rat76}) ratio(*rat, {1, 2, 1, 3, 2});
    // .2 .6 .6 .6 make a mean of .5 and squares of .12; over 5 - 1 the spread is .173205, 1000 / 3.464102 = 288.675.
    const Drawn list = draw();
    EXPECT_EQ(list[12], "line 0 400.0 105.7 500.0 336.6");  // 1 and .2
    EXPECT_EQ(list[13], "line 0 700.0 221.1 800.0 221.1");
}

TEST_F(UpRatios, ConstantRatioHasNoCurve) {
    only_68();
    net_68(5, {100, 100, 100, 100});
    EXPECT_EQ(draw(), intervals());
}

TEST_F(UpRatios, PooledPiecesJoinMeansAndReachFromSliceToSlice) {
    only_68();
    rs.PlotPool = 2;
    Drawn expected = intervals();
    append(expected, pieces(band_68(), 2, 5));
    append(expected, {"line 0 500.0 275.0 700.0 225.0"});  // (.05 + .25) / 2 = .15 and .25
    append(expected, pieces(band_68(), 8, 10));
    EXPECT_EQ(draw(), expected);
}

TEST_F(UpRatios, LastPooledPieceReadsBehindTheSelection) {
    only_68();
    rs.PlotPool = 3;
    const Drawn list = draw();
    ASSERT_EQ(list.size(), intervals().size() + 4 + 1 + 3);
    // (.05 + .25 + .25) / 3 = .18333 and (.25 + 1 + 1) / 3 = .75
    EXPECT_EQ(list[13], "line 0 500.0 258.3 800.0 -25.0");
}

TEST_F(UpRatios, PooledPieceAsksOnlyItsLastTwoSlicesForASignal) {
    only_68();
    rs.PlotPool = 2;
    net_68(5, {0, 20, 60, 60});
    // .2 .6 .6: mean .466667, squares .106667; over 3 the spread is .188562: 1000 / 3.771236 = 265.165.
    Drawn list = draw();
    ASSERT_EQ(list.size(), intervals().size() + 3 + 1 + 3);
    EXPECT_EQ(list[12], "line 0 500.0 347.2 700.0 214.6");  // (0 + .2) / 2 = .1 and .6
    rs.Sig2(pb206, 5) = 20;
    rs.Sig2(pb206, 6) = 0;  // one of the two
    list = draw();
    EXPECT_EQ(list.size(), intervals().size() + 4 + 0 + 3);
}

TEST_F(UpRatios, RegressionLinesStartAtTheSelectionTheBeamOrTheDelay) {
    only_68();
    form.chkLinReg.value = 1;
    // 5: .05, 6 to 8: .25 give .06 t - .19: .05 at 4, .08 at 4.5, .11 at 5, .29 at 8.
    const auto line = [&] {
        const Drawn list = draw();
        return Drawn(list.end() - 3, list.end());
    };
    EXPECT_EQ(line(), (Drawn{"width 2", "line 0 500.0 295.0 800.0 205.0", "width 1"}));
    rs.setTzero = 1;
    EXPECT_EQ(line(), (Drawn{"width 2", "line 0 400.0 325.0 800.0 205.0", "width 1"}));
    rs.setTzero = 2;
    rs.setDelay = 0.5;
    EXPECT_EQ(line(), (Drawn{"width 2", "line 0 450.0 310.0 800.0 205.0", "width 1"}));
}

TEST_F(UpRatios, RegressionLinesOfAllRatiosInTheirColours) {
    form.chkLinReg.value = 1;
    const Drawn list = draw();
    EXPECT_EQ(Drawn(list.end() - 15, list.end()), (Drawn{"width 2", "line 0 500.0 295.0 800.0 205.0", "width 1",   //
                                                         "width 2", "line 12 500.0 425.0 800.0 335.0", "width 1",  //
                                                         "width 2", "line 10 500.0 545.0 800.0 455.0", "width 1",  //
                                                         "width 2", "line 1 500.0 665.0 800.0 575.0", "width 1",   //
                                                         "width 2", "line 13 500.0 705.0 800.0 795.0", "width 1"}));
}

TEST_F(UpRatios, RegressionAndBeamNeedASelectionBehindTheBeamStart) {
    form.chkLinReg.value = 1;
    rs.BeamStart = 5;
    EXPECT_EQ(draw().size(), intervals().size() + 45);
    EXPECT_FALSE(form.lblBeam_St.visible);
}

TEST_F(UpRatios, OutliersAreCircledLast) {
    form.chkLinReg.value = form.chkShowSD.value = 1;
    form.txtSD.text = "1.2";
    rs.setOL_68 = rs.setOL_76 = 1;
    rs.setOL_75 = rs.setOL_082 = rs.setOL_382 = 0;
    // .15 > 1.2 x .1 and .216 > 1.2 x .144
    const Drawn list = draw();
    EXPECT_EQ(Drawn(list.end() - 5, list.end()),
              (Drawn{"width 1", "width 3", "circle 0 500.0 325.0 60.0", "circle 13 500.0 675.0 60.0", "width 1"}));
    EXPECT_EQ(form.lblOM.text, "1 / 4");
}

TEST_F(UpRatios, BeamStartIsMarkedOnTheSignals) {
    draw_UP(context);
    EXPECT_EQ(drawn_list(form.pict1).back(), "line 0 400.0 0.0 400.0 1000.0");
    EXPECT_TRUE(form.lblBeam_St.visible);
    EXPECT_EQ(form.lblBeam_St.text, " signal ON:  4 ");
    EXPECT_EQ(form.lblBeam_St.left, 1000 + 400);
    EXPECT_EQ(form.lblBeam_St.top, 500 - 240);
}

TEST_F(UpRatios, BeamStartIsSoughtAtEachDrawingUntilOneIsFound) {
    rs.BeamStart = 0;
    draw_UP(context);
    EXPECT_EQ(rs.BeamStart, 0);  // ten slices in a row would be needed
    EXPECT_EQ(form.lblBeam_St.text, " signal ON:  0 ");
    EXPECT_EQ(drawn_list(form.pict1).back(), "line 0 0.0 0.0 0.0 1000.0");
    for (int t = 5; t <= 20; ++t) rs.Sig(pb206, t) = 30 + t % 3;
    rs.nSlices = 20;
    draw_UP(context);
    EXPECT_EQ(rs.BeamStart, 5);
    rs.BeamStart = 3;
    draw_UP(context);
    EXPECT_EQ(rs.BeamStart, 3);
}

TEST_F(UpRatios, FourLimitsDrawAllThreePlotsAndCalculate) {
    rs.setConcordia = 0;
    draw_UP(context);
    EXPECT_EQ(form.pict1.canvas.draws(), 1);
    EXPECT_EQ(form.pict2.canvas.draws(), 1);
    EXPECT_EQ(form.pict3.canvas.draws(), 1);
    EXPECT_EQ(drawn_list(form.pict3).size(), 9U);
    EXPECT_NEAR(rs.Mean68, 0.2, 1e-12);
    rs.SelUpp.clear();
    draw_UP(context);
    EXPECT_EQ(form.pict1.canvas.draws(), 2);
    EXPECT_EQ(form.pict2.canvas.draws(), 1);
}

}  // namespace
}  // namespace kolvar::test
