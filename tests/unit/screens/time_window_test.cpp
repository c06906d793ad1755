// The time selection: how the window comes up, what its controls do to the plots, and how it is left behind.
#include <numeric>

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

constexpr int left = 1;
constexpr int right = 2;

class TimeWindow : public ProgramOnKit {
protected:
    Frm2Time& form() { return forms().frm2_Time; }
    void go() {
        program->start(0);
        click(forms().frm1_Settings, "cmdOK");
        click(forms().frm1_Settings, "cmdNext");
        ASSERT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
        ASSERT_EQ(box_texts(), std::vector<std::string>{});
    }
    void go_creating(const std::string& option) {
        program->start(0);
        click(forms().frm1_Settings, option);
        click(forms().frm1_Settings, "cmdOK");
        ASSERT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
    }
    void mark_all() {
        mark(left, 1, 5);
        mark(right, 1, 45);
        mark(left, 0, 60);
        mark(right, 0, 120);
    }
    // A table of so many isotopes M1, M2 ... beside Si29, 3 slices; all in the reference files.
    void write_isotopes(int count) {
        std::string head = "t,Si29";
        std::string zeros;
        std::string composition = "\"title\",\"a\",\"b\"\r\n\"Si29\",100,1\r\n";
        std::string measurement = "\"Si29\",1000,1\r\n";
        std::string dwell = "\"title\",\"ms\"\r\n\"Si29\",10\r\n";
        for (int i = 2; i <= count; ++i) {
            const std::string name = "M" + std::to_string(i);
            head += "," + name;
            zeros += ",0";
            composition += "\"" + name + "\",10,1\r\n";
            measurement += "\"" + name + "\",100,1\r\n";
            dwell += "\"" + name + "\",10\r\n";
        }
        write_kit("example-1.csv", head + "\r\n1,7" + zeros + "\r\n2,8" + zeros + "\r\n3,9" + zeros + "\r\n");
        write_kit("nist-srm-610.stc", composition);
        write_kit("nbs-610-2004-12-19-1.stm", measurement);
        write_kit("quadrupole.dwe", dwell);
    }
    int visible_boxes() {
        return std::accumulate(form().chkIs.begin(), form().chkIs.end(), 0,
                               [](int n, const CheckBox& box) { return n + (box.visible ? 1 : 0); });
    }
    bool results_usable() {
        EXPECT_EQ(form().cmdShowConc.enabled, form().cmdAppQuick.enabled);
        return form().cmdShowConc.enabled;
    }
};

TEST_F(TimeWindow, ComesUpWithItsFileItsAnalytesAndNothingMarked) {
    go();
    EXPECT_EQ(form().title, "KOLVAR  -  Step 2: Selection of time slices");
    EXPECT_EQ(form().lblmicsoda.text, "  example-1.csv  ");
    EXPECT_EQ(form().lblDefa.text, "  Kolvar-default-h.set  ");
    EXPECT_TRUE(form().lblRizsa(0).visible);
    EXPECT_EQ(form().lblMeasTot.text, "150");
    EXPECT_EQ(form().lblMeasSel.text, "");
    EXPECT_EQ(form().lblLow.text, "");
    for (const Control* hidden :
         std::initializer_list<const Control*>{&form().cmdCopy, &form().cmdCopyHead, &form().cmdApp, &form().cmdNewFile,
                                               &form().cmdSett, &form().cmdCopySel, &form().pictRatios,
                                               &form().lblOver50Iso, &form().frameIso2, &form().lblHgCorrNegative})
        EXPECT_FALSE(hidden->visible) << hidden->name;
    for (const Control* shown : std::initializer_list<const Control*>{
             &form().cmdNext, &form().cmdAppQuick, &form().cmdShowConc, &form().pict2, &form().VScroll1,
             &form().VScroll3, &form().pictAllIso, &form().lblMaxIIS})
        EXPECT_TRUE(shown->visible) << shown->name;
    EXPECT_EQ(visible_boxes(), 25);
    EXPECT_EQ(form().chkIs(4).text, "Si29");
    EXPECT_TRUE(form().chkIs(4).on());
    EXPECT_EQ(form().cmdSel.text, "Deselect all");
    EXPECT_EQ(form().cmdHorizLines.text, "Horiz. lines ON");
    EXPECT_EQ(form().lblIIS(2).text, "Isotope / Internal Standard (Si29)");
    EXPECT_TRUE(form().optLo.on());
    EXPECT_FALSE(form().lblMaxCps2.visible);
    EXPECT_FALSE(results_usable());
    EXPECT_EQ(rs().CurvesShown, 1);
}

TEST_F(TimeWindow, CaptionOfTheLowerPlotTellsWhatItShows) {
    set_key("setISnum", "3");
    go();
    EXPECT_EQ(form().lblIIS(2).text, "Isotope / Internal Standard (Si29, Ca43, Al27)");
    for (const auto& [number, text] :
         {std::pair<int, const char*>{1, "Concentration [ppm]"}, {2, "Ratio of signals (cps/cps)"}}) {
        rs().setRatio_ppmIS = number;
        click(form(), "cmdBack");
        click(forms().frm1_Settings, "cmdOK");
        click(forms().frm1_Settings, "cmdNext");
        EXPECT_EQ(form().lblIIS(2).text, text);
        EXPECT_TRUE(form().lblIIS(2).visible);
    }
}

TEST_F(TimeWindow, WhenAFileIsMadeTheLowerPlotAndTheResultsAreHidden) {
    go_creating("optCreatSTM");
    for (const Control* hidden : std::initializer_list<const Control*>{
             &form().pict2, &form().lblMaxIIS, &form().lblRatios, &form().VScroll3, &form().cmdShowConc,
             &form().cmdAppQuick, &form().lblMaxIIS2, &form().lblIIS(2), &form().pictRatios})
        EXPECT_FALSE(hidden->visible) << hidden->name;
    // The upper plot takes the height of both and of the gap between them.
    EXPECT_GT(form().pict1.height, 2 * (form().height - 2000) / 2);
    EXPECT_TRUE(form().cmdNext.visible);
}

TEST_F(TimeWindow, OfMoreThanFiftyIsotopesTheFirstFiftyCanBeChosen) {
    write_isotopes(51);
    go();
    EXPECT_TRUE(form().lblOver50Iso.visible);
    EXPECT_EQ(form().lblOver50Iso.text, "n>50!");
    EXPECT_EQ(visible_boxes(), 50);
    EXPECT_EQ(form().chkIs(50).text, "M50");
    EXPECT_TRUE(form().frameIso2.visible);
    click(form(), "cmdSel");
    for (int i = 1; i <= 50; ++i) EXPECT_FALSE(rs().CurveOn(i)) << i;
}

TEST_F(TimeWindow, FiftyIsotopesExactlyAreNotTooMany) {
    write_isotopes(50);
    go();
    EXPECT_FALSE(form().lblOver50Iso.visible);
    EXPECT_EQ(visible_boxes(), 50);
}

TEST_F(TimeWindow, TheSecondListBeginsWithTheTwentySixthIsotope) {
    write_isotopes(26);
    go();
    EXPECT_TRUE(form().frameIso2.visible);
    EXPECT_EQ(visible_boxes(), 26);
}

TEST_F(TimeWindow, ResultButtonsBecomeUsableAsSoonAsTheLimitsTheyNeedStand) {
    go();
    mark(left, 0, 60);
    mark(right, 0, 120);
    EXPECT_FALSE(results_usable());
    mark(left, 1, 5);
    EXPECT_FALSE(results_usable());
    mark(right, 1, 45);
    EXPECT_TRUE(results_usable());
    EXPECT_TRUE(form().cmdCopyRatios.enabled);
    click(form(), "cmdBack");
    click(forms().frm1_Settings, "cmdOK");
    click(forms().frm1_Settings, "cmdNext");
    EXPECT_TRUE(results_usable());  // the selection of before still counts 61 slices
}

TEST_F(TimeWindow, WithABlankFileTheSelectionAloneMakesTheResultButtonsUsable) {
    set_key("setBLK_IS", "0");
    go();
    mark(left, 0, 60);
    EXPECT_FALSE(results_usable());
    mark(right, 0, 120);
    EXPECT_TRUE(results_usable());
    EXPECT_FALSE(form().lblBLKshow.visible);
}

TEST_F(TimeWindow, ADroppedSelectionDisablesTheResultButtonsAtTheNextOpening) {
    go();
    mark_all();
    click(form(), "cmdBack");
    write_kit("short.csv", "t,Si29,Ca43\r\n1,5,6\r\n2,7,8\r\n3,9,1\r\n");
    os.opens.push_back(kit("short.csv"));
    click(forms().frm1_Settings, "cmdLoadCSV");
    click(forms().frm1_Settings, "cmdOK");
    click(forms().frm1_Settings, "cmdNext");
    ASSERT_TRUE(form().shown);
    EXPECT_FALSE(results_usable());
    EXPECT_EQ(visible_boxes(), 2);
    EXPECT_EQ(form().lblMeasTot.text, "3");
}

TEST_F(TimeWindow, ZoomBarDrawsOnlyWithFourLimitsButKeepsItsLimitForTheNextDraw) {
    go();
    const double full = rs().FullMax;
    ASSERT_GT(full, 0);
    const int draws = form().pict1.canvas.draws();
    scroll(form(), "VScroll1", 51);
    EXPECT_EQ(form().pict1.canvas.draws(), draws);
    EXPECT_TRUE(rs().YMaxEntry == Value(full / 2));  // 100 / (101 - 51) = 2
    rs().FullMax2 = 8;
    scroll(form(), "VScroll3", 76);
    EXPECT_EQ(form().pict2.canvas.draws(), draws);
    EXPECT_TRUE(rs().YMaxEntry2 == Value(2.0));  // 100 / (101 - 76) = 4
}

TEST_F(TimeWindow, ZoomBarAtItsValueDoesNothing) {
    go();
    mark_all();
    const int draws = form().pict1.canvas.draws();
    scroll(form(), "VScroll1", 1);
    EXPECT_EQ(form().pict1.canvas.draws(), draws);
    EXPECT_FALSE(rs().YMaxEntry == Value(rs().FullMax));
}

TEST_F(TimeWindow, ZoomBarAtItsLowerEndShowsTheHundredthPart) {
    set_key("setLinearIS", "1");
    go();
    mark_all();
    rs().FullMax = 500000;
    const int draws = form().pict1.canvas.draws();
    scroll(form(), "VScroll1", 100);
    EXPECT_EQ(form().pict1.canvas.draws(), draws + 1);
    EXPECT_EQ(form().lbluppScal.text, "5000");
    EXPECT_EQ(rs().MaxCps, 6000);  // a value on a step of the scale moves up
    EXPECT_TRUE(rs().YMaxEntry == Value(""));
    EXPECT_EQ(rs().FullMax, 500000);
}

TEST_F(TimeWindow, AClickBringsBothZoomBarsBack) {
    go();
    mark_all();
    scroll(form(), "VScroll1", 40);
    scroll(form(), "VScroll3", 60);
    mark(right, 0, 119);
    EXPECT_EQ(form().VScroll1.value, 1);
    EXPECT_EQ(form().VScroll3.value, 1);
}

TEST_F(TimeWindow, TypedUpperLimitThatIsNotPositiveIsRefused) {
    set_key("setLinearIS", "1");
    go();
    const std::string shown = form().lblMaxCps.text;
    click(form(), "lblMaxCps");
    EXPECT_TRUE(form().lblXNew.visible && form().txtYMaxInp.visible);
    EXPECT_EQ(form().txtYMaxInp.text, shown);
    for (const char* refused : {"0", "-5", "", "x100"}) {
        forget_boxes();
        type(form(), "txtYMaxInp", refused);
        form().focus_wanted = nullptr;
        enter(form(), "txtYMaxInp");
        EXPECT_EQ(box_texts(), std::vector<std::string>{"The entered value is not a positive number!"}) << refused;
        EXPECT_EQ(os.boxes[0].title, "");
        EXPECT_EQ(form().txtYMaxInp.text, "");
        EXPECT_EQ(form().focus_wanted, &form().txtYMaxInp);
        EXPECT_TRUE(form().txtYMaxInp.visible);
    }
}

TEST_F(TimeWindow, TypedUpperLimitDrawsTheSingleCurvesAlsoWhereAllAreShownAndWorksOnce) {
    set_key("setLinearIS", "1");
    go();
    const std::string shown = form().lblMaxCps.text;
    const std::size_t commands = form().pict1.canvas.commands().size();
    click(form(), "lblMaxCps");
    type(form(), "txtYMaxInp", "2500");
    enter(form(), "txtYMaxInp");
    EXPECT_EQ(box_texts(), std::vector<std::string>{});
    EXPECT_FALSE(form().lblXNew.visible || form().txtYMaxInp.visible);
    EXPECT_EQ(form().txtYMaxInp.text, "");
    EXPECT_EQ(rs().MaxCps, 2500);
    EXPECT_EQ(form().lblMaxCps.text, "2500.0");
    EXPECT_TRUE(rs().YMaxEntry == Value(""));
    EXPECT_LT(form().pict1.canvas.commands().size(), commands / 10);  // the curves of all isotopes are gone
    click(form(), "chkIs", 1);
    click(form(), "chkIs", 1);
    EXPECT_EQ(form().lblMaxCps.text, shown);
}

TEST_F(TimeWindow, TypedLowerLimitDrawsOnlyWhenDataAreReduced) {
    go();
    mark_all();
    click(form(), "lblMaxIIS");
    EXPECT_TRUE(form().lblXNew2.visible && form().txtYMaxInp2.visible);
    type(form(), "txtYMaxInp2", "3");
    enter(form(), "txtYMaxInp2");
    EXPECT_EQ(rs().MaxRatio, 4);  // the step above 3
    EXPECT_EQ(form().lblMaxIIS.text, "4");
    EXPECT_TRUE(rs().YMaxEntry2 == Value(""));
    rs().ModeData = 0;
    const int draws = form().pict2.canvas.draws();
    type(form(), "txtYMaxInp2", "7 or so");
    enter(form(), "txtYMaxInp2");
    EXPECT_EQ(form().lblMaxIIS.text, "7");
    EXPECT_TRUE(rs().YMaxEntry2 == Value(7.0));
    EXPECT_EQ(form().pict2.canvas.draws(), draws);
}

TEST_F(TimeWindow, CaptionOfTheHorizontalLinesTellsWhatThePressWillDo) {
    go();
    scroll(form(), "VScroll1", 20);
    const int draws = form().pict1.canvas.draws();
    click(form(), "cmdHorizLines");
    EXPECT_EQ(form().cmdHorizLines.text, "Horiz. lines OFF");
    EXPECT_TRUE(rs().setShow_linesIS == Value(1));
    EXPECT_EQ(form().VScroll1.value, 1);
    EXPECT_EQ(form().pict1.canvas.draws(), draws + 1);
    click(form(), "cmdHorizLines");
    EXPECT_EQ(form().cmdHorizLines.text, "Horiz. lines ON");
    EXPECT_TRUE(rs().setShow_linesIS == Value(0));
}

TEST_F(TimeWindow, HorizontalLinesOfTheSettingsAreOnAtOpening) {
    set_key("setShow_linesIS", "1");
    go();
    EXPECT_EQ(form().cmdHorizLines.text, "Horiz. lines OFF");
}

TEST_F(TimeWindow, AnAnalyteSwitchedOffIsNotDrawnAndTheScaleIsTakenAnew) {
    go();
    scroll(form(), "VScroll3", 30);
    click(form(), "chkIs", 4);
    EXPECT_FALSE(rs().CurveOn(4));
    EXPECT_TRUE(rs().CurveOn(3) && rs().CurveOn(5));
    EXPECT_EQ(form().VScroll3.value, 1);
    EXPECT_FALSE(rs().ScaleFresh);  // used up by the draw
    EXPECT_TRUE(rs().ScaleFresh2);  // the lower plot's stays
    click(form(), "chkIs", 4);
    EXPECT_TRUE(rs().CurveOn(4));
}

TEST_F(TimeWindow, AllAnalytesAreSwitchedAtOnce) {
    go();
    click(form(), "cmdSel");
    EXPECT_EQ(form().cmdSel.text, "Select all");
    for (int i = 1; i <= 25; ++i) EXPECT_FALSE(rs().CurveOn(i) || form().chkIs(i).on()) << i;
    EXPECT_TRUE(rs().CurveOn(26));  // beyond the isotopes of the file
    click(form(), "cmdSel");
    EXPECT_EQ(form().cmdSel.text, "Deselect all");
    for (int i = 1; i <= 25; ++i) EXPECT_TRUE(rs().CurveOn(i) && form().chkIs(i).on()) << i;
}

TEST_F(TimeWindow, AnalytesThatAreOffStayOffAtTheNextOpening) {
    go();
    click(form(), "chkIs", 2);
    click(form(), "cmdBack");
    click(forms().frm1_Settings, "cmdOK");
    click(forms().frm1_Settings, "cmdNext");
    EXPECT_FALSE(form().chkIs(2).on());
    EXPECT_EQ(form().cmdSel.text, "Select all");
}

TEST_F(TimeWindow, ScaleOfTheSignalPlotIsChosenByTheOptions) {
    go();
    click(form(), "optLi");
    EXPECT_TRUE(rs().LinearView);
    EXPECT_TRUE(form().lblMaxCps.visible);
    click(form(), "optLo");
    EXPECT_FALSE(rs().LinearView);
    EXPECT_FALSE(form().lblMaxCps.visible);
}

TEST_F(TimeWindow, InTheSingleCurveModeNoAnalyteIsListed) {
    set_key("setAllCurve---NOT USED", "0");
    go();
    EXPECT_EQ(visible_boxes(), 0);
    EXPECT_TRUE(rs().YMaxEntry == Value(""));
    EXPECT_EQ(rs().CurvesShown, 1);
}

TEST_F(TimeWindow, ANetSignalOfZeroInAStandardIsLiftedWhenTheWindowBecomesActive) {
    write_isotopes(3);
    set_key("setISnum", "2");
    set_key("setIntSta2", "\"M2\"");
    program->start(0);
    click(forms().frm1_Settings, "cmdOK");
    RunState& state = rs();
    state.Sig2(1, 2) = 0;
    state.Sig2(2, 3) = 0;
    state.Sig2(3, 3) = 0;
    click(forms().frm1_Settings, "cmdNext");
    ASSERT_TRUE(form().shown);
    EXPECT_EQ(state.Sig2(1, 2), 1e-7);
    EXPECT_EQ(state.Sig2(2, 3), 1e-7);
    EXPECT_EQ(state.Sig2(3, 3), 0);  // no standard
    EXPECT_EQ(state.Sig(2, 3), 0);   // the raw signal stays
}

TEST_F(TimeWindow, BackKeepsTheLimitsAndEmptiesTheScales) {
    go();
    mark_all();
    scroll(form(), "VScroll1", 9);
    click(form(), "cmdBack");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
    EXPECT_EQ(rs().SelLow, Limit(60));
    EXPECT_EQ(rs().SelUpp, Limit(120));
    EXPECT_EQ(rs().BlkLow, Limit(5));
    EXPECT_EQ(rs().BlkUpp, Limit(45));
    EXPECT_EQ(rs().FormerLow, Limit());  // settles nothing else
    for (const double scale : {rs().FullMax, rs().FullMax2, rs().MaxCps, rs().MaxRatio}) EXPECT_EQ(scale, 0);
    EXPECT_EQ(rs().YMaxEntry.val(), 0);
    EXPECT_EQ(rs().YMaxEntry2.val(), 0);
    EXPECT_EQ(rs().WindowWasNormal, 1);
    EXPECT_EQ(rs().CameBack, 1);
    click(forms().frm1_Settings, "cmdOK");
    click(forms().frm1_Settings, "cmdNext");
    EXPECT_EQ(form().lblLow.text, "60");
    EXPECT_EQ(form().lblUpp.text, "120");
    EXPECT_EQ(form().lblBLKtolig.text, "5 - 45");
    EXPECT_EQ(form().lblMeasSel.text, "61");
    EXPECT_GT(rs().FullMax, 0);
}

TEST_F(TimeWindow, AWindowNarrowerThanElevenThousandIsNotLaidOut) {
    go();
    mark_all();
    const int width = form().pict1.width;
    const double at = rs().SelLowX;
    resize(form(), 10999, 9000);
    EXPECT_EQ(form().pict1.width, width);
    EXPECT_EQ(rs().SelLowX, at);
    resize(form(), 11000, 9000);
    EXPECT_LT(form().pict1.width, width);
    // Positions follow the plot; the slices stay.
    EXPECT_DOUBLE_EQ(rs().SelLowX, form().pict1.width * 60 / 150.0);
    EXPECT_EQ(rs().SelLow, Limit(60));
}

TEST_F(TimeWindow, ResizedWindowKeepsItsButtonsAndPlotsAtTheirDistances) {
    go();
    scroll(form(), "VScroll1", 7);
    resize(form(), 20000, 12000);
    EXPECT_EQ(rs().ShowFirst, "masodik");
    EXPECT_EQ(form().cmdNext.left, 20000 - 1350);
    EXPECT_EQ(form().cmdBack.left, 20000 - 2310);
    EXPECT_EQ(form().cmdExit.left, 20000 - 3030);
    EXPECT_EQ(form().pict1.left + form().pict1.width, 20000 - 1935);
    EXPECT_EQ(form().pict2.width, form().pict1.width);
    EXPECT_EQ(form().pict1.height, 5000);
    EXPECT_EQ(form().pict2.height, 5000);
    EXPECT_EQ(form().pictRightSide.left + form().pictRightSide.width, 20000 - 60);
    EXPECT_EQ(form().VScroll1.value, 1);
}

TEST_F(TimeWindow, ExitAndCloseBoxEndTheProgram) {
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

}  // namespace
}  // namespace kolvar::test
