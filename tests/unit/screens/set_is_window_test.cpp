// The settings window of the internal-standard path: what it shows, refuses and enables.
#include "unit/screens/set_is_fixture.hpp"

namespace kolvar::test {
namespace {

TEST_F(SetIsWindow, ShowsTheSettingsOfTheKit) {
    open();
    EXPECT_EQ(form().title,
              "Settings for LA-ICP-MS calculations using internal standard.   FILE: Kolvar-default-h.set");
    EXPECT_EQ(form().txtAbbrSTD.text, "nist");
    EXPECT_TRUE(form().optCPSinData(1).on());
    EXPECT_TRUE(form().optBLK_IS(0).on());
    EXPECT_EQ(form().txtSTCpath.text, "nist-srm-610.stc");
    EXPECT_EQ(form().txtSTMpath.text, "nbs-610-2004-12-19-1.stm");
    EXPECT_EQ(form().txtDwePath.text, "quadrupole.dwe");
    EXPECT_EQ(form().txtDWEtime.text, "20");
    EXPECT_TRUE(form().optDWE(1).on());
    EXPECT_TRUE(form().opt1IS.on());
    EXPECT_EQ(form().comboIso.text, "Si29");
    EXPECT_EQ(form().comboIso.value, 4);
    EXPECT_EQ(form().comboIso2.text, "Ca43");
    EXPECT_EQ(form().comboIso3.text, "Al27");
    EXPECT_EQ(form().txtISppm1.text, "235000");
    EXPECT_EQ(form().txtISerr1.text, "2350");
    EXPECT_EQ(form().txtISppm3.text, "76000");
    EXPECT_EQ(form().txtMass2.text, "90");
    EXPECT_EQ(form().txtMass3.text, "200");
    EXPECT_TRUE(form().optPeriod(0).on());
    EXPECT_TRUE(form().chkFormerSel.on());
    EXPECT_TRUE(form().optLin(1).on());
    EXPECT_TRUE(form().optResultPlot(0).on());
    EXPECT_FALSE(form().chkHorizLines.on());
    EXPECT_EQ(form().comboRatio(0).text, "Rb85");
    EXPECT_EQ(form().comboRatio(11).text, "U238");
    EXPECT_TRUE(form().chkRatio6.on());
    EXPECT_FALSE(form().chkBLK1(1).on());
    EXPECT_TRUE(form().chkTestBlank.on());
    EXPECT_TRUE(form().optTable(0).on());
    EXPECT_FALSE(form().optStDev.on());
    EXPECT_EQ(form().txtSD.text, "3");
    EXPECT_TRUE(form().optMean(1).on());
    EXPECT_TRUE(form().optOneLine(0).on());
    EXPECT_TRUE(form().optLinesTables(0).on());
    EXPECT_EQ(form().txtComments.text, "Example of the start kit: quadrupole, data in cps, one internal standard");
}

TEST_F(SetIsWindow, ListsBeginWithABlankEntry) {
    open();
    for (const ListBox* list :
         {&form().comboIso, &form().comboIso2, &form().comboIso3, &form().comboRatio(0), &form().comboRatio(11)}) {
        ASSERT_EQ(list->items.size(), 26U);
        EXPECT_EQ(list->items[0], "");
        EXPECT_EQ(list->items[1], "Li7");
        EXPECT_EQ(list->items[25], "U238");
    }
}

TEST_F(SetIsWindow, AStandardThatIsNoColumnIsShownAndApplyChangesNothingOfIt) {
    set_key("setIntSta2", "\"Xe131\"");
    open();
    rs().IS2col = 9;
    EXPECT_EQ(form().comboIso2.text, "Xe131");
    EXPECT_EQ(form().comboIso2.value, -1);
    click(form(), "cmdApply");
    EXPECT_EQ(rs().setIntSta2, Value("Xe131"));
    EXPECT_EQ(rs().IS2name, "Xe131");
    EXPECT_EQ(rs().IS2col, Limit(9));
}

TEST_F(SetIsWindow, AnAnalyteOfARatioThatIsNoColumnIsShownAsNoneAndLostByApply) {
    set_key("ratioName(3)", "\"Xe131\"");
    open();
    EXPECT_EQ(form().comboRatio(2).text, "Zr90");
    EXPECT_EQ(form().comboRatio(3).text, "");
    click(form(), "cmdApply");
    EXPECT_EQ(rs().ratioName(3), Value(""));
}

TEST_F(SetIsWindow, EachOpeningShowsTheSettingsOfThen) {
    open();
    type(form(), "txtAbbrSTD", "typed and cancelled");
    click(form(), "opt3IS");
    click(form(), "optTable", 2);
    click(form(), "cmdCancel");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    EXPECT_EQ(rs().ReturnTo, "");
    EXPECT_EQ(rs().setSTDabbr_IS, Value("nist"));
    EXPECT_EQ(rs().setISnum, Value(1));
    rs().setDataTable = 1;
    open();
    EXPECT_EQ(form().txtAbbrSTD.text, "nist");
    EXPECT_TRUE(form().opt1IS.on());
    EXPECT_FALSE(form().opt3IS.on());
    EXPECT_FALSE(form().comboIso3.enabled);
    EXPECT_TRUE(form().optTable(1).on());
    EXPECT_FALSE(form().optTable(0).on());
}

TEST_F(SetIsWindow, SettingsThatWereNeverReadLeaveWhatHasNoOptionUnchosen) {
    remove_from_kit("Kolvar-default-h.set");
    open();
    EXPECT_FALSE(form().opt1IS.on() || form().opt2IS.on() || form().opt3IS.on());
    EXPECT_FALSE(form().comboIso2.enabled);
    EXPECT_TRUE(form().optTable(0).on());  // what was never set reads as 0
    EXPECT_TRUE(form().optMean(0).on());
    click(form(), "cmdApply");
    EXPECT_TRUE(rs().setISnum.is_unset());
    EXPECT_EQ(rs().setDataTable, Value(0));
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(SetIsWindow, ANumberThatNoOptionHasShowsTheOtherwiseOption) {
    set_key("setCPS_IS", "7");
    set_key("setBLK_IS", "7");
    set_key("setMean_IS", "7");
    set_key("setDataTable", "7");
    set_key("setRatio_ppmIS", "7");
    open();
    EXPECT_TRUE(form().optCPSinData(0).on());
    EXPECT_TRUE(form().optBLK_IS(1).on());
    EXPECT_TRUE(form().optMean(1).on());
    EXPECT_TRUE(form().optResultPlot(0).on());
    for (const OptionButton& option : form().optTable) EXPECT_FALSE(option.on());
    click(form(), "cmdApply");
    EXPECT_EQ(rs().setCPS_IS, Value(0));
    EXPECT_EQ(rs().setBLK_IS, Value(0));
    EXPECT_EQ(rs().setMean_IS, Value(1));
    EXPECT_EQ(rs().setRatio_ppmIS, Value(0));
    EXPECT_EQ(rs().setDataTable, Value(7));  // none was chosen
}

TEST_F(SetIsWindow, OnlyABoundaryAboveThreeHundredIsRefusedThoughTheBoxSaysLess) {
    open();
    type(form(), "txtAbbrSTD", "taken");
    for (const char* refused : {"300.5", "3001", "1e3", "301 amu"}) {
        forget_boxes();
        type(form(), "txtMass2", refused);
        click(form(), "cmdApply");
        EXPECT_EQ(only_box(), second_too_large);
        EXPECT_EQ(os.boxes[0].title, "");
        EXPECT_EQ(os.boxes[0].kind, "warning");
        EXPECT_EQ(rs().setSTDabbr_IS, Value("nist"));  // nothing is taken
        EXPECT_EQ(rs().setMas2, Value(90));
        EXPECT_EQ(shown_windows().back(), "frm_SetIS");
    }
    type(form(), "txtMass3", "300.5");
    forget_boxes();
    click(form(), "cmdApply");
    EXPECT_EQ(only_box(), second_too_large);  // the second comes first
    type(form(), "txtMass2", "300");
    forget_boxes();
    click(form(), "cmdApply");
    EXPECT_EQ(only_box(), third_too_large);
    EXPECT_EQ(rs().setMas2, Value(90));
    type(form(), "txtMass3", "300");
    forget_boxes();
    click(form(), "cmdApply");
    EXPECT_EQ(box_texts(), Names{});
    EXPECT_EQ(rs().setMas2, Value(300));
    EXPECT_EQ(rs().setMass3, Value(300));
    EXPECT_EQ(rs().setSTDabbr_IS, Value("taken"));
}

TEST_F(SetIsWindow, LeavingTheSecondBoundaryWantsAtLeastSix) {
    open();
    for (const char* refused : {"5", "5.999", "", "amu", "-7"}) {
        forget_boxes();
        form().focus_wanted = nullptr;
        type(form(), "txtMass2", refused);
        leave("txtMass2");
        EXPECT_EQ(only_box(), "Give bigger value than 6 amu.") << refused;
        EXPECT_EQ(os.boxes[0].title, "");
        EXPECT_EQ(form().focus_wanted, &form().txtMass2);
    }
    for (const char* passing : {"6", "6.1", "400"}) {
        forget_boxes();
        form().focus_wanted = nullptr;
        type(form(), "txtMass2", passing);
        leave("txtMass2");
        EXPECT_EQ(box_texts(), Names{}) << passing;
        EXPECT_EQ(form().focus_wanted, nullptr);
    }
}

TEST_F(SetIsWindow, LeavingTheThirdBoundaryComparesItWithTheSecondAloneAndEqualOnesPass) {
    open();
    type(form(), "txtMass2", "90.5 amu");
    type(form(), "txtMass3", "90");
    leave("txtMass3");
    EXPECT_EQ(only_box(), "Give bigger value than 90.5 amu amu.");
    EXPECT_EQ(form().focus_wanted, &form().txtMass3);
    forget_boxes();
    type(form(), "txtMass3", "90.5");
    leave("txtMass3");
    EXPECT_EQ(box_texts(), Names{});
    // Below six is no matter here.
    type(form(), "txtMass2", "1");
    type(form(), "txtMass3", "2");
    leave("txtMass3");
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(SetIsWindow, UpperEndsOfTheRangesFollowTheNumberOfStandardsAndTheBoundaries) {
    open();
    EXPECT_EQ(ranges(), "300");
    EXPECT_EQ(form().lblMass2.text, "300");  // hidden with one standard
    EXPECT_FALSE(form().lblMass2.visible);
    EXPECT_FALSE(form().lblMass3.visible);
    for (const Control* control :
         std::initializer_list<Control*>{&form().comboIso2, &form().txtISppm2, &form().txtISerr2, &form().txtMass2,
                                         &form().comboIso3, &form().txtISppm3, &form().txtISerr3, &form().txtMass3})
        EXPECT_FALSE(control->enabled) << control->name;
    EXPECT_TRUE(form().comboIso.enabled && form().txtISppm1.enabled && form().txtISerr1.enabled);

    click(form(), "opt2IS");
    EXPECT_EQ(ranges(), "89 300");
    for (const Control* control :
         std::initializer_list<Control*>{&form().comboIso2, &form().txtISppm2, &form().txtISerr2, &form().txtMass2})
        EXPECT_TRUE(control->enabled) << control->name;
    for (const Control* control :
         std::initializer_list<Control*>{&form().comboIso3, &form().txtISppm3, &form().txtISerr3, &form().txtMass3})
        EXPECT_FALSE(control->enabled) << control->name;
    type(form(), "txtMass2", "100.25 amu");
    EXPECT_EQ(ranges(), "99.25 300");
    type(form(), "txtMass2", "");
    EXPECT_EQ(ranges(), "-1 300");
    type(form(), "txtMass2", "90");

    click(form(), "opt3IS");
    EXPECT_EQ(ranges(), "89 199 300");
    EXPECT_TRUE(form().comboIso3.enabled && form().txtISppm3.enabled && form().txtISerr3.enabled);
    EXPECT_TRUE(form().txtMass3.enabled && form().comboIso2.enabled);
    type(form(), "txtMass3", "151");
    EXPECT_EQ(ranges(), "89 150 300");
    click(form(), "opt1IS");
    EXPECT_EQ(ranges(), "300");
    EXPECT_EQ(form().lblMass2.text, "300");
    EXPECT_FALSE(form().txtMass2.enabled);
}

TEST_F(SetIsWindow, TheWayToThePeriodicSystemTakesThePlaceOfTheRanges) {
    open();
    const auto expect_by_mass = [&](bool by_mass) {
        EXPECT_EQ(form().pictMass.visible, by_mass);
        for (const Label& label : form().lblRizsa) EXPECT_EQ(label.visible, by_mass) << label.index;
        EXPECT_EQ(form().cmdShow.visible, !by_mass);
    };
    expect_by_mass(true);
    click(form(), "optPeriod", 1);
    expect_by_mass(false);
    click(form(), "optPeriod", 0);
    expect_by_mass(true);
    click(form(), "optPeriod", 1);
    click(form(), "cmdApply");
    EXPECT_EQ(rs().setPeriod, Value(1));
    open();
    expect_by_mass(false);
    click(form(), "cmdShow");
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_SetIS", "frm_Period"}));
    click(form(), "cmdCancel");
    rs().setPeriod = 0;  // as another settings file may say
    open();
    expect_by_mass(true);
}

TEST_F(SetIsWindow, PreferredRatiosAreThereForTheirPlotAlone) {
    open();
    const auto expect_enabled = [&](bool enabled) {
        EXPECT_EQ(form().Frame6.enabled, enabled);
        for (const ListBox& list : form().comboRatio) EXPECT_EQ(list.enabled, enabled);
        for (int pair = 1; pair <= 6; ++pair) EXPECT_EQ(form().chkRatio(pair).enabled, enabled);
    };
    expect_enabled(false);
    click(form(), "optResultPlot", 2);
    expect_enabled(true);
    click(form(), "optResultPlot", 1);
    expect_enabled(false);
    click(form(), "optResultPlot", 2);
    click(form(), "optResultPlot", 0);
    expect_enabled(false);
    rs().setRatio_ppmIS = 2;
    click(form(), "cmdCancel");
    open();
    expect_enabled(true);
}

TEST_F(SetIsWindow, AClickOnTheUnitsAsksForAReloadAndConvertsNothing) {
    open();
    const double former = rs().Sig(4, 10);
    for (const int option : {0, 0, 1}) {
        forget_boxes();
        click(form(), "optCPSinData", option);
        EXPECT_EQ(only_box(), "If you modify the setting here then re-load the data file, please.");
        EXPECT_EQ(os.boxes[0].title, "");
    }
    forget_boxes();
    click(form(), "optCPSinData", 0);
    forget_boxes();
    click(form(), "cmdApply");
    EXPECT_EQ(box_texts(), Names{});
    EXPECT_EQ(rs().setCPS_IS, Value(0));
    EXPECT_EQ(rs().Sig(4, 10), former);
}

TEST_F(SetIsWindow, TheCaptionOfTheRejectionByGrubbsIsTheSameAtEveryLevel) {
    program->start(0);
    rs().RejProcName = " 1";
    open();
    EXPECT_EQ(form().optGrubbs.text, "Reject if P(g) < 5%");
}

TEST_F(SetIsWindow, MarksAndRejectionsDoNotExcludeEachOther) {
    open();
    for (const char* box : {"optShowMiMa", "optMiMa", "optShowGrubbs", "optGrubbs", "optShowStDev", "optStDev"})
        click(form(), box);
    click(form(), "cmdApply");
    for (const Value& setting :
         {rs().setShowMinMax, rs().setRejMinMax, rs().setShowGrubbs, rs().setRejGrubbs, rs().setShowSD, rs().setRejSD})
        EXPECT_EQ(setting, Value(1));
}

TEST_F(SetIsWindow, CorrectionOfTheBlankIsOpenWhateverIsPlotted) {
    open();
    for (const int plot : {0, 1, 2}) {
        click(form(), "optResultPlot", plot);
        for (int pair = 1; pair <= 6; ++pair)
            EXPECT_TRUE(form().chkBLK1(pair).usable() && form().chkBLK2(pair).usable()) << plot << " " << pair;
    }
}

TEST_F(SetIsWindow, CaptionsOfTheControls) {
    const std::pair<const Control&, const char*> captions[] = {
        {form().lblAbbrSTD, "Abbreviation for all standards in file names: "},
        {form().optCPSinData(0), "Counts"},
        {form().optCPSinData(1), "CPS (counts per second)"},
        {form().optBLK_IS(0), "Will be extracted from the Data File"},
        {form().optBLK_IS(1), "From a Blank File"},
        {form().lblSTC, "Default standard composition file "},
        {form().lblSTM, "Default standard measurement file "},
        {form().lblDWEtime, "[m. sec.]"},
        {form().optDWE(0), "Uniform Dwell Time of "},
        {form().optDWE(1), "From a Dwell Time File:"},
        {form().opt1IS, "One Int. Stand."},
        {form().opt2IS, "Two Int. Stand."},
        {form().opt3IS, "Three Int. Stand."},
        {form().lblHeadConc, "conc. [ppm]:"},
        {form().lblRizsa(53), "for isotopes from"},
        {form().lblRizsa(56), "for isotopes from"},
        {form().optPeriod(0), "IS according to amu  (1, 2 or 3 IS)"},
        {form().optPeriod(1), "Three IS selected on periodic system"},
        {form().chkFormerSel, "Show former selection"},
        {form().optResultPlot(0), "Cps ratios (Sample / Int. Stand.)"},
        {form().optResultPlot(1), "Concentrations (ppm)"},
        {form().optResultPlot(2), "Ratio of selected analytes"},
        {form().chkHorizLines, "Show horizontal lines"},
        {form().Frame6, "Preferred analyte ratios"},
        {form().chkBLK1(1), "Blank corr."},
        {form().chkBLK1(6), "Blank corr."},
        {form().chkBLK2(1), "Blank corr."},
        {form().chkBLK2(6), "Blank corr."},
        {form().chkTestBlank, "Test the noise of blank after Step 2"},
        {form().frameTable, "Data presented in the table of outliers"},
        {form().optShowMiMa, "Show min., max."},
        {form().optMiMa, "Reject all min., max."},
        {form().optShowGrubbs, "Show Grubbs test"},
        {form().optShowStDev, "Show relative std. deviation"},
        {form().optStDev, "Reject if deviation  >"},
        {form().optMean(0), "Median"},
        {form().optMean(1), "Arithmetic mean"},
        {form().optOneLine(0), "Results in one line, only concentrations"},
        {form().optOneLine(1), "Results in two lines, with head"},
        {form().lblComments, "Comments to this setting file:"},
        {form().cmdApply, "Apply"},
        {form().cmdSaveAs, "Save As"},
        {form().cmdCancel, "Cancel"},
        {form().cmdBrowSTC, "Browse"},
        {form().cmdBrowSTM, "Browse"},
        {form().cmdBrowDwe, "Browse"},
        {form().cmdShow, "Show periodic system for assignment"},
    };
    for (const auto& [control, caption] : captions) EXPECT_EQ(control.text, caption) << control.address();
    EXPECT_EQ(form().title, "Settings for LA-ICP-MS calculations using internal standard");
}

}  // namespace
}  // namespace kolvar::test
