// The U/Pb and FLEX screen: how it comes up, what its controls do, how it is left. What each path and each kind of
// result shows stands in up_paths_test.cpp.
#include "screens/up_window.hpp"
#include "up_fixture.hpp"

namespace kolvar::test {
namespace {

using UpWindow = OnUpWindow;

TEST_F(UpWindow, ComesUpWithItsFileAndNothingMarked) {
    go();
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm2_UP"});
    EXPECT_EQ(form().title, "Kolv-AGE  -  Selection of time slices and results on screen");
    EXPECT_EQ(form().lblmicsoda.text, "  panel.csv  ");
    EXPECT_EQ(form().lblDefa.text, "  KolvAge-default-b01.def  ");
    EXPECT_TRUE(form().lblRizsa(23).visible);
    EXPECT_EQ(form().lblMeasTot.text, "30");
    EXPECT_EQ(form().lblMeasSel.text, "");
    EXPECT_EQ(form().lblIIS(2).text, "Isotope ratios");
    EXPECT_EQ(form().lblXY.text, "Normalized scatter of data points");
    EXPECT_EQ(form().Frame1.text, "Rough concordance");
    EXPECT_FALSE(form().cmdNext.visible || form().lblHgCorrNegative.visible || form().lblRatios.visible);
    EXPECT_FALSE(form().cmdZizeges.visible || form().lblBLKtolig.text != "");
    EXPECT_TRUE(form().pict2.visible && form().pict3.visible && form().VScroll2.visible && form().lblFusion.visible);
    EXPECT_EQ(rs().CurvesShown, 1);
    EXPECT_FALSE(rs().ScaleFresh || rs().ScaleFresh2);
    EXPECT_DOUBLE_EQ(rs().FullMax, 24051);  // U238 of slice 10
    EXPECT_EQ(form().VScroll1.value, 1);
    EXPECT_EQ(form().VScroll1.minimum, 1);
    EXPECT_EQ(form().VScroll1.maximum, 100);
    EXPECT_EQ(form().VScroll2.minimum, 1);
    EXPECT_EQ(form().VScroll2.maximum, 4);
    EXPECT_EQ(form().VScroll3.minimum, 5);
    EXPECT_EQ(form().VScroll3.maximum, 20);
    EXPECT_EQ(form().VScroll3.value, 20);
    EXPECT_EQ(rs().RatioScale, 20);
    EXPECT_GT(lines_of(form().pict1), 8 * 29);
    EXPECT_EQ(lines_of(form().pict2), 0);
}

TEST_F(UpWindow, ClickBeforeAnythingElseCountsSinceTheCurvesStand) {
    go();
    mark_up(1, 0, 12);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs().SelLow, Limit(12));
}

TEST_F(UpWindow, TakesTheFormerLimitsOver) {
    go();
    mark_all();
    leave_and_return();
    EXPECT_EQ(form().lblLow.text, "12");
    EXPECT_EQ(form().lblUpp.text, "21");
    EXPECT_EQ(form().lblBLKtolig.text, "2 - 7");
    EXPECT_EQ(form().lblMeasSel.text, "10");
    EXPECT_DOUBLE_EQ(rs().SelLowX, form().pict1.width * 12 / 30.0);
    EXPECT_TRUE(form().cmdZizeges.visible && form().lblBLKshow.visible);
    EXPECT_GT(lines_of(form().pict2), 0);
    EXPECT_EQ(form().lblFormer2.text, "12 - 21");
}

TEST_F(UpWindow, PlotsOfTheFileBeforeAreGone) {
    go();
    mark_all();
    EXPECT_GT(lines_of(form().pict3), 0);
    load_short_file();
    EXPECT_FALSE(rs().SelLow.is_set());
    EXPECT_EQ(lines_of(form().pict2), 0);
    EXPECT_EQ(lines_of(form().pict3), 0);
    EXPECT_EQ(form().lblLow.text, "");
}

TEST_F(UpWindow, NextFileOfTheSameLengthIsCalculatedWithTheLimitsOfTheFormer) {
    go();
    rs().setFormer_Sel = 1;
    mark_all();
    click(form(), "cmdBack");
    choose(std::string(KOLVAR_TEST_DATA) + "/results/no-u235.csv");
    EXPECT_EQ(rs().SelLow, Limit(12));
    EXPECT_EQ(rs().BlkUpp, Limit(7));
    EXPECT_EQ(rs().ColU235, 0);
    EXPECT_GT(lines_of(form().pict2), 0);
    EXPECT_EQ(form().lblUpp.text, "21");
    rs().setFormer_Sel = 0;
    click(form(), "cmdBack");
    choose(std::string(KOLVAR_TEST_DATA) + "/results/panel.csv");
    EXPECT_FALSE(rs().SelLow.is_set() || rs().BlkUpp.is_set());
}

TEST_F(UpWindow, FormerSelectionStaysAsAGuideWhereTheNextFileIsOfAnotherLength) {
    go();
    mark_all();
    leave_and_return();
    load_short_file();
    EXPECT_TRUE(form().pictFormer.visible && form().lblFormer1.visible);
    EXPECT_EQ(form().lblFormer2.text, "12 - 21");
    EXPECT_EQ(form().pictFormer.left, static_cast<int>(form().pict1.left + form().pict1.width * 12 / 30.0 + 0.5));
}

TEST_F(UpWindow, ActivationDuringAnImportClearsTheSignals) {
    go();
    rs().PlotOn = 1;
    program->shell().activate_again();
    click(form(), "Command1");
    EXPECT_EQ(lines_of(form().pict1), 0);
}

TEST_F(UpWindow, OutlierLimitBelowOneIsRefused) {
    go();
    mark_all();
    const std::vector<std::string> message{
        "The s.d. value at the out lier test is too low, type a numer between 1 and 5."};
    for (const EventKind kind : {EventKind::enter, EventKind::leave}) {
        for (const char* typed : {"0.9", "0", "", "many", "-2"}) {
            type(form(), "txtSD", typed);
            forget_boxes();
            form().focus_wanted = nullptr;
            const int draws = form().pict2.canvas.draws();
            program->dispatch(event_of(kind, form(), "txtSD"));
            EXPECT_EQ(box_texts(), message) << typed;
            EXPECT_EQ(os.boxes[0].title, "");
            EXPECT_EQ(form().focus_wanted, &form().txtSD);
            EXPECT_EQ(form().pict2.canvas.draws(), draws);
        }
    }
}

TEST_F(UpWindow, OutlierLimitAboveFiveIsTakenAndEnterDraws) {
    go();
    mark_all();
    for (const char* typed : {"1", "5.5", "80"}) {
        type(form(), "txtSD", typed);
        const int draws = form().pict2.canvas.draws();
        program->dispatch(event_of(EventKind::leave, form(), "txtSD"));
        EXPECT_EQ(form().pict2.canvas.draws(), draws);
        enter(form(), "txtSD");
        EXPECT_EQ(form().pict2.canvas.draws(), draws + 1);
    }
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(form().lblOM.text, "0 / 10");
}

TEST_F(UpWindow, ZoomBarShowsAPartOfTheFullScale) {
    go();
    scroll(form(), "VScroll1", 51);  // half of 24051
    EXPECT_DOUBLE_EQ(rs().MaxCps, 15000);
    EXPECT_EQ(form().lblMaxCps.visible, rs().LinearView);
    EXPECT_EQ(rs().YMaxEntry, Value(""));
    scroll(form(), "VScroll1", 100);  // 240.51
    EXPECT_DOUBLE_EQ(rs().MaxCps, 300);
    EXPECT_DOUBLE_EQ(rs().FullMax, 24051);
    const int draws = form().pict1.canvas.draws();
    scroll(form(), "VScroll1", 100);
    EXPECT_EQ(form().pict1.canvas.draws(), draws);
    scroll(form(), "VScroll1", 1);
    EXPECT_DOUBLE_EQ(rs().MaxCps, 30000);
}

TEST_F(UpWindow, ReleaseBringsTheZoomBackAndDrawsOnceMore) {
    go();
    scroll(form(), "VScroll1", 51);
    mark_up(1, 0, 12);
    EXPECT_EQ(form().VScroll1.value, 1);
    EXPECT_DOUBLE_EQ(rs().MaxCps, 30000);
}

TEST_F(UpWindow, FlatteningBarNeedsFourLimits) {
    go();
    scroll(form(), "VScroll3", 10);
    EXPECT_EQ(rs().RatioScale, 20);
    mark_all();
    const int signals = form().pict1.canvas.draws();
    scroll(form(), "VScroll3", 8);
    EXPECT_EQ(rs().RatioScale, 8);
    EXPECT_EQ(form().pict1.canvas.draws(), signals);
    leave_and_return();
    EXPECT_EQ(form().VScroll3.value, 20);
    EXPECT_EQ(rs().RatioScale, 20);
}

TEST_F(UpWindow, PoolingTwoSlicesUndoesARejection) {
    go();
    mark_all();
    reject();
    ASSERT_TRUE(rs().RejectOn);
    ASSERT_LT(rs().SelNGood, 10);
    rs().AspectFix = true;
    scroll(form(), "VScroll2", 2);
    EXPECT_EQ(form().lblFusion.text, "2");
    EXPECT_EQ(rs().PlotPool, 2);
    EXPECT_FALSE(rs().RejectOn);
    EXPECT_EQ(rs().SelNGood, 10);
    for (int t = 12; t <= 21; ++t) EXPECT_EQ(rs().RejFlag(t), 0);
    EXPECT_EQ(form().cmdReject.text, "Reject outliers");
    EXPECT_EQ(form().lblReject.text, "No. of outliers:");
    EXPECT_FALSE(form().lblReject.visible || form().lblOM.visible);
    EXPECT_FALSE(rs().AspectFix);
    EXPECT_EQ(lines_of(form().pict3), 2 * 5);  // five points of two slices
}

TEST_F(UpWindow, PoolingBackToSingleSlicesLeavesARejection) {
    go();
    mark_all();
    scroll(form(), "VScroll2", 3);
    EXPECT_EQ(lines_of(form().pict3), 2 * 3);
    form().lblReject.visible = true;
    scroll(form(), "VScroll2", 1);
    EXPECT_TRUE(form().lblReject.visible);
    EXPECT_EQ(lines_of(form().pict3), 2 * 10);
}

TEST_F(UpWindow, RejectingPoolsNoLonger) {
    go();
    mark_all();
    scroll(form(), "VScroll2", 4);
    reject();
    EXPECT_EQ(form().VScroll2.value, 1);
    EXPECT_EQ(form().lblFusion.text, "1");
    EXPECT_EQ(rs().PlotPool, 1);
    EXPECT_TRUE(rs().RejectOn);
}

TEST_F(UpWindow, PoolingWithoutFourLimitsDrawsNothingButForgetsTheAspect) {
    go();
    rs().AspectFix = true;
    scroll(form(), "VScroll2", 2);
    EXPECT_EQ(form().lblFusion.text, "1");
    EXPECT_EQ(form().pict3.canvas.draws(), 1);  // cleared when the window came up
    EXPECT_FALSE(rs().AspectFix);
    mark_all();
    EXPECT_EQ(rs().PlotPool, 1);  // the number that is shown is the one that counts
    EXPECT_EQ(lines_of(form().pict3), 2 * 10);
}

TEST_F(UpWindow, RejectionLabelsStayHiddenAfterAClickUntilShowIsClickedAgain) {
    go();
    mark_all();
    reject();
    mark_up(1, 0, 12);
    EXPECT_FALSE(rs().RejectOn || form().lblReject.visible || form().lblOM.visible);
    click(form(), "chkShowSD");
    EXPECT_FALSE(form().lblReject.visible);
    click(form(), "chkShowSD");
    EXPECT_TRUE(form().lblReject.visible && form().lblOM.visible);
}

TEST_F(UpWindow, LinearScaleDrawsOnlyWhereThereIsASignalTheLogarithmicAlways) {
    go();
    EXPECT_FALSE(rs().LinearView);
    rs().MaxCps = 0;
    int draws = form().pict1.canvas.draws();
    click(form(), "optLi");
    EXPECT_TRUE(rs().LinearView);
    EXPECT_EQ(form().pict1.canvas.draws(), draws);
    click(form(), "optLo");
    EXPECT_FALSE(rs().LinearView || form().lblMaxCps2.visible);
    EXPECT_EQ(form().pict1.canvas.draws(), ++draws);
    click(form(), "optLi");
    EXPECT_EQ(form().pict1.canvas.draws(), ++draws);
    EXPECT_TRUE(form().lblMaxCps2.visible);
    EXPECT_EQ(form().lblMaxCps.text, "30000");
    rs().MaxCps = 0;
    click(form(), "optLo");
    EXPECT_EQ(form().pict1.canvas.draws(), draws + 1);
}

TEST_F(UpWindow, TypedUpperLimitIsTakenOnceAndRefusedBelowZero) {
    go();
    click(form(), "optLi");
    click(form(), "lblMaxCps");
    EXPECT_TRUE(form().lblXNew.visible && form().txtYMaxInp.visible);
    EXPECT_EQ(form().txtYMaxInp.text, "30000");
    for (const char* typed : {"0", "-5", "x"}) {
        type(form(), "txtYMaxInp", typed);
        forget_boxes();
        enter(form(), "txtYMaxInp");
        EXPECT_EQ(box_texts(), std::vector<std::string>{"The entered value is not a positive number!"});
        EXPECT_EQ(form().txtYMaxInp.text, "");
        EXPECT_TRUE(form().txtYMaxInp.visible);
    }
    type(form(), "txtYMaxInp", "900");
    const int draws = form().pict1.canvas.draws();
    enter(form(), "txtYMaxInp");
    EXPECT_FALSE(form().lblXNew.visible || form().txtYMaxInp.visible);
    EXPECT_EQ(form().lblMaxCps.text, "1000");
    EXPECT_EQ(form().pict1.canvas.draws(), draws + 1);
    mark_up(1, 0, 12);
    EXPECT_EQ(form().lblMaxCps.text, "30000");
}

TEST_F(UpWindow, BoxesOfTheRatiosDrawTheRatioPlotAlone) {
    go();
    mark_all();
    const int signals = form().pict1.canvas.draws();
    for (const char* box : {"chk68", "chk75", "chk82", "chkUTh", "chk76", "chkLinReg"}) {
        const int draws = form().pict2.canvas.draws();
        click(form(), box);
        EXPECT_EQ(form().pict2.canvas.draws(), draws + 1) << box;
    }
    EXPECT_EQ(form().pict1.canvas.draws(), signals);
}

TEST_F(UpWindow, ChoiceOfTheDiagramBecomesTheSettingAndDrawsTheScatterPlotAlone) {
    go();
    mark_all();
    const int ratios = form().pict2.canvas.draws();
    const int scatter = form().pict3.canvas.draws();
    click(form(), "optConcord", 1);
    EXPECT_EQ(rs().setConcordia, Value(1));
    EXPECT_EQ(form().lblRizsa(12).text, "Y: 207/206");
    click(form(), "optConcord", 0);
    EXPECT_EQ(rs().setConcordia, Value(0));
    EXPECT_EQ(form().lblRizsa(12).text, "Y: 206/238");
    EXPECT_EQ(form().pict3.canvas.draws(), scatter + 2);
    EXPECT_EQ(form().pict2.canvas.draws(), ratios);
}

TEST_F(UpWindow, AspectRatioIsRememberedAndNothingIsDrawn) {
    go();
    mark_all();
    const auto before = form().pict3.canvas.revision();
    click(form(), "Command1");
    EXPECT_TRUE(rs().AspectFix);
    EXPECT_EQ(form().pict3.canvas.revision(), before);
}

TEST_F(UpWindow, LabelOfTheBeamStartLetsTheNextClickSetIt) {
    go();
    mark_all();
    EXPECT_EQ(rs().BeamStart, 10);
    EXPECT_EQ(form().lblBeam_St.text, " signal ON:  10 ");
    click(form(), "lblBeam_St");
    EXPECT_TRUE(rs().WaitBeamStart);
    mark_up(1, 0, 9);
    EXPECT_EQ(rs().BeamStart, 9);
    EXPECT_EQ(rs().SelLow, Limit(12));
    EXPECT_EQ(form().lblBeam_St.text, " signal ON:  9 ");
}

TEST_F(UpWindow, DoubleClickShowsTheAveragesOfTheSelection) {
    go();
    dblclick(form());
    EXPECT_FALSE(forms().frm_AverConc.shown);
    mark_all();
    rs().BlkMean.fill({});
    dblclick(form(), "pictRightSide");
    EXPECT_TRUE(forms().frm_AverConc.shown);
    EXPECT_TRUE(os.boxes.empty());
    // The blank runs first: Hg202 of slices 2 to 7 is 100 110 100 80 100 100.
    EXPECT_NEAR(rs().BlkMean(1).number(), 590.0 / 6, 1e-9);
    for (int i = 1; i <= rs().nIso; ++i) EXPECT_EQ(rs().nData(i), 10);
}

TEST_F(UpWindow, DoubleClickComputesTheBlankAlsoWhereNoneIsMarked) {
    go();
    mark_up(1, 0, 12);
    mark_up(2, 0, 21);
    dblclick(form());
    ASSERT_FALSE(os.boxes.empty());
    EXPECT_EQ(os.boxes[0].text, "The selected blank interval is too short.");
}

// One limit alone counts -11 slices, which are no selection.
TEST_F(UpWindow, DoubleClickDoesNothingWhileOneLimitIsMissing) {
    go();
    mark_up(1, 0, 12);
    ASSERT_EQ(rs().SelN, Limit(-11));
    dblclick(form());
    dblclick(form(), "pictRightSide");
    EXPECT_FALSE(forms().frm_AverConc.shown);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(UpWindow, BackKeepsTheLimitsAndSettlesNothingElse) {
    go();
    mark_all();
    scroll(form(), "VScroll1", 9);
    click(form(), "cmdBack");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
    EXPECT_EQ(rs().SelLow, Limit(12));
    EXPECT_EQ(rs().SelUpp, Limit(21));
    EXPECT_EQ(rs().BlkLow, Limit(2));
    EXPECT_EQ(rs().BlkUpp, Limit(7));
    EXPECT_FALSE(rs().FormerLow.is_set() || rs().FormerBlkLow.is_set());
    for (const double scale : {rs().FullMax, rs().FullMax2, rs().MaxCps, rs().MaxRatio}) EXPECT_EQ(scale, 0);
    EXPECT_EQ(rs().YMaxEntry, Value(0));
    EXPECT_EQ(rs().YMaxEntry2, Value(0));
    EXPECT_EQ(rs().WindowWasNormal, 1);
    EXPECT_EQ(rs().CameBack, 1);
}

TEST_F(UpWindow, ExitAndCloseBoxEndTheProgram) {
    for (const bool by_button : {true, false}) {
        program = std::make_unique<Program>(os, folder.path());
        go();
        if (by_button)
            click(form(), "cmdExit");
        else
            close(form());
        EXPECT_TRUE(program->ended());
        EXPECT_EQ(program->status(), 0);
    }
}

TEST_F(UpWindow, NarrowerThanElevenThousandIsNotLaidOut) {
    go();
    mark_all();
    EXPECT_EQ(rs().ShowFirst, "masodik");
    const int width = form().pict1.width;
    const double at = rs().SelLowX;
    resize(form(), 10999, 9000);
    EXPECT_EQ(form().pict1.width, width);
    EXPECT_EQ(rs().SelLowX, at);
    scroll(form(), "VScroll1", 7);
    resize(form(), 16000, 9000);
    EXPECT_LT(form().pict1.width, width);
    EXPECT_EQ(form().pict2.width, form().pict1.width);
    EXPECT_EQ(form().VScroll1.value, 1);
    EXPECT_DOUBLE_EQ(rs().SelLowX, form().pict1.width * 12 / 30.0);
    EXPECT_EQ(rs().SelLow, Limit(12));
}

TEST_F(UpWindow, PanelsKeepTheirPlaces) {
    go();
    resize(form(), 20000, 12000);
    EXPECT_EQ(form().pictRightSide.left + form().pictRightSide.width, 20000 - 60);
    EXPECT_EQ(form().pictResults.top, 12000 - 3700);
    EXPECT_EQ(form().picUP_elems.left, 120);
    EXPECT_EQ(form().picUP_elems.top, 1320);
    EXPECT_EQ(form().pict2.left, form().pict1.left);
    EXPECT_EQ(form().lblMaxCps.left + form().lblMaxCps.width + 60, form().pict1.left);
    EXPECT_EQ(form().lblLow.top, form().pict1.top + form().pict1.height + 100);
}

TEST_F(UpWindow, FirstResizeOnlyTurnsTheFlag) {
    go();
    rs().ShowFirst = "elso";
    const int width = form().pict1.width;
    resize(form(), 16000, 9000);
    EXPECT_EQ(rs().ShowFirst, "masodik");
    EXPECT_EQ(form().pict1.width, width);
}

TEST_F(UpWindow, APlotOfAnotherSizeKeepsTheLimitsAtTheirSlices) {
    go();
    mark_all();
    const auto pull = [&](const char* plot, double width, double height) {
        Event event = event_of(EventKind::resize, form(), plot);
        event.x = width;
        event.y = height;
        const int draws = form().pict1.canvas.draws();
        program->dispatch(event);
        EXPECT_EQ(form().pict1.canvas.draws(), draws + 1) << plot;
    };
    pull("pict1", 6000, 2000);
    EXPECT_EQ(form().pict1.width, 6000);
    EXPECT_EQ(form().pict1.height, 2000);
    EXPECT_EQ(form().pict2.width, 6000) << "as wide as the plot above";
    EXPECT_EQ(rs().SelLow, Limit(12));
    EXPECT_EQ(rs().SelLowX, 2400);  // 12 of 30 slices
    EXPECT_EQ(rs().SelUppX, 4200);  // 21
    EXPECT_EQ(rs().BlkLowX, 400);   // 2
    EXPECT_EQ(rs().BlkUppX, 1400);  // 7
    pull("pict2", 5000, 1500);
    EXPECT_EQ(form().pict2.width, 5000);
    EXPECT_EQ(form().pict1.width, 6000);
    EXPECT_EQ(rs().SelLowX, 2400);
    pull("pict3", 3000, 2500);
    EXPECT_EQ(form().pict3.width, 3000);
    EXPECT_EQ(form().pict3.height, 2500);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(UpWindow, WithABlankFromAFileTheResultsOfAFormerSelectionCanBeCopiedAtOnce) {
    go();
    mark_all();
    rs().BlankFromData = 0;
    renew_up_window(program->context());
    for (const Button* button : {&form().cmdCopyHead, &form().cmdCopy, &form().cmdApp})
        EXPECT_TRUE(button->enabled) << button->name;
    EXPECT_FALSE(form().cmdCopySel.enabled);
    EXPECT_FALSE(form().lblBLKshow.visible);
    rs().SelN = 0;
    renew_up_window(program->context());
    for (const Button* button : {&form().cmdCopyHead, &form().cmdCopy, &form().cmdApp})
        EXPECT_FALSE(button->enabled) << button->name;
}

TEST_F(UpWindow, ThereAreFiveRowsOfRatios) {
    EXPECT_EQ(&form().ratio_row(4).mean, &form().lbl7_6);
    for (const int none : {-1, 5}) {
        try {
            (void)form().ratio_row(none);
            ADD_FAILURE() << none;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.kind, FaultKind::index);
        }
    }
}

}  // namespace
}  // namespace kolvar::test
