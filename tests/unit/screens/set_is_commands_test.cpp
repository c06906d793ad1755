// The settings window of the internal-standard path: what its buttons take, save and give back.
#include "unit/screens/set_is_fixture.hpp"

namespace kolvar::test {
namespace {

TEST_F(SetIsWindow, ABlankFirstStandardIsColumnZeroSoThatTheNextStepAsksForOne) {
    open();
    choose(form(), "comboIso", "");  // entry 0
    EXPECT_EQ(form().comboIso.text, "");
    click(form(), "cmdApply");
    EXPECT_EQ(rs().IS1col, Limit(0));
    EXPECT_EQ(rs().IS1name, "");
    EXPECT_EQ(rs().setIntSta, Value(""));
    click(forms().frm1_Settings, "cmdOK");
    forget_boxes();
    click(forms().frm1_Settings, "cmdNext");
    EXPECT_EQ(only_box(), "Choose an internal standard from the list of isotopes.");
}

TEST_F(SetIsWindow, SourcesOfBlankAndDwellTimesAndTheScaleCountAtOnce) {
    open();
    click(form(), "optBLK_IS", 1);
    click(form(), "optDWE", 0);
    click(form(), "optLin", 0);
    click(form(), "cmdApply");
    EXPECT_EQ(rs().BlankFromData, 0);
    EXPECT_EQ(rs().DwellFromFile, 0);
    EXPECT_TRUE(rs().LinearView);
    open();
    click(form(), "optBLK_IS", 0);
    click(form(), "optDWE", 1);
    click(form(), "optLin", 1);
    click(form(), "cmdApply");
    EXPECT_EQ(rs().BlankFromData, 1);
    EXPECT_EQ(rs().DwellFromFile, 1);
    EXPECT_FALSE(rs().LinearView);
}

TEST_F(SetIsWindow, OfColumnsWithOneNameTheLastIsTheStandard) {
    open();
    rs().IsoName(20) = "Si29";
    click(form(), "cmdApply");
    EXPECT_EQ(rs().IS1col, Limit(20));
}

TEST_F(SetIsWindow, AppliedStandardsAreNotSavedAndWaitForTheNextAssignment) {
    program->start(0);
    click(forms().frm1_Settings, "cmdOK");
    open();
    click(form(), "opt2IS");
    choose(form(), "comboIso", "Al27");
    type(form(), "txtISppm1", "76000");
    type(form(), "txtISerr1", "1140");
    choose(form(), "comboIso2", "Ca43");
    type(form(), "txtMass2", "140");
    const int former = rs().IsoISidx(25);
    const std::string former_file = bytes_of(kit("Kolvar-default-h.set"));
    click(form(), "cmdApply");
    EXPECT_EQ(rs().IS1name, "Al27");
    EXPECT_EQ(rs().IS1col, Limit(3));
    EXPECT_EQ(rs().IS1conc, Value(76000));
    EXPECT_EQ(rs().IS2col, Limit(5));
    EXPECT_EQ(rs().IsoISidx(25), former);
    EXPECT_EQ(bytes_of(kit("Kolvar-default-h.set")), former_file);  // nothing is saved
    EXPECT_TRUE(os.dialogs.empty());
    // The panel behind shows them, and its next step assigns: up to La139 the first, from Ce140 on the second.
    EXPECT_EQ(forms().frm1_Settings.comboIso.text, "Al27");
    EXPECT_EQ(forms().frm1_Settings.txtISppm.text, "76000");
    EXPECT_TRUE(forms().frm1_Settings.comboIso2.visible);
    click(forms().frm1_Settings, "cmdNext");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_EQ(rs().IsoISidx(16), 3);
    EXPECT_EQ(rs().IsoISconc(16), 76000);
    EXPECT_EQ(rs().IsoISidx(17), 5);
    EXPECT_EQ(rs().IsoISconc(17), 78000);
}

TEST_F(SetIsWindow, WithEqualBoundariesTheThirdStandardTakesAllAndTheSecondNone) {
    open();
    click(form(), "opt3IS");
    type(form(), "txtMass2", "140");
    type(form(), "txtMass3", "140");
    click(form(), "cmdApply");
    click(forms().frm1_Settings, "cmdOK");
    click(forms().frm1_Settings, "cmdNext");
    ASSERT_EQ(shown_windows(), Names{"frm2_Time"});
    for (int i = 1; i <= 25; ++i) EXPECT_EQ(rs().IsoISidx(i), i <= 16 ? 4 : 3) << i;  // Si29 and Al27
}

TEST_F(SetIsWindow, ColumnsOfTheRatiosAreFoundAnewByName) {
    open();
    click(form(), "optResultPlot", 2);
    choose_ratio(0, "Ca43");
    choose_ratio(1, "Th232");
    Event typed = event_of(EventKind::type, form(), "comboRatio", 2);
    typed.text = "Xe131";
    program->dispatch(typed);
    rs().RatioCol(5) = 99;
    click(form(), "cmdApply");
    EXPECT_EQ(rs().RatioCol(0), 5);
    EXPECT_EQ(rs().RatioCol(1), 24);
    EXPECT_EQ(rs().RatioCol(2), 0);
    EXPECT_EQ(rs().RatioCol(5), 12);  // Y89
    EXPECT_EQ(rs().ratioName(2), Value("Xe131"));
}

TEST_F(SetIsWindow, AClearedAnalyteOfARatioHasNoColumnAtOnce) {
    open();
    rs().RatioCol(3) = 22;
    rs().RatioCol(4) = 14;
    choose_ratio(3, "Ca43");
    EXPECT_EQ(rs().RatioCol(3), 22);
    choose_ratio(3, "");
    EXPECT_EQ(rs().RatioCol(3), 0);
    EXPECT_EQ(rs().RatioCol(4), 14);
    click(form(), "cmdCancel");
    EXPECT_EQ(rs().RatioCol(3), 0);
    EXPECT_EQ(rs().ratioName(3), Value("Hf178"));
}

TEST_F(SetIsWindow, ShownPairsAreOneTableWithTheBoxesOfTheTimeSelection) {
    go_to_marked_selection();
    click(forms().frm2_Time, "chkR2");
    click(forms().frm2_Time, "cmsSettings");
    EXPECT_EQ(shown_windows(), Names{"frm_SetIS"});
    EXPECT_TRUE(form().chkRatio1.on());
    EXPECT_FALSE(form().chkRatio2.on());
    click(form(), "chkRatio2");
    click(form(), "chkRatio5");
    click(form(), "cmdApply");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_TRUE(forms().frm2_Time.chkR2.on());
    EXPECT_FALSE(forms().frm2_Time.chkR5.on());
}

TEST_F(SetIsWindow, BackInTheTimeSelectionScaleLinesAndRatioPlotAreAsSet) {
    go_to_marked_selection();
    Frm2Time& time = forms().frm2_Time;
    EXPECT_TRUE(time.optLo.on());
    click(time, "cmsSettings");
    EXPECT_EQ(rs().ReturnTo, "back to time");
    click(form(), "optLin", 0);
    click(form(), "chkHorizLines");
    click(form(), "optResultPlot", 2);
    click(form(), "cmdApply");
    EXPECT_EQ(rs().ReturnTo, "");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_TRUE(rs().LinearView);
    EXPECT_TRUE(time.optLi.on());
    EXPECT_FALSE(time.optLo.on());
    EXPECT_EQ(time.cmdHorizLines.text, "Horiz. lines OFF");
    EXPECT_TRUE(time.pictRatios.visible);
    EXPECT_EQ(time.lblIIS(2).text, "Ratio of signals (cps/cps)");
    EXPECT_EQ(time.lblRatio(0).text, "Rb85");
    // The marked intervals are there still.
    EXPECT_EQ(rs().SelLow, Limit(60));
    EXPECT_EQ(rs().BlkUpp, Limit(45));
    EXPECT_EQ(time.lblBLKtolig.text, "5 - 45");

    click(time, "cmsSettings");
    click(form(), "optLin", 1);
    click(form(), "optResultPlot", 1);
    click(form(), "cmdApply");
    EXPECT_TRUE(time.optLo.on());
    EXPECT_FALSE(time.pictRatios.visible);
    EXPECT_EQ(time.lblIIS(2).text, "Concentration [ppm]");
}

TEST_F(SetIsWindow, CloseBoxAndCancelLeadBackWithoutTaking) {
    go_to_marked_selection();
    for (const bool by_close_box : {true, false}) {
        click(forms().frm2_Time, "cmsSettings");
        type(form(), "txtAbbrSTD", "not taken");
        by_close_box ? close(form()) : click(form(), "cmdCancel");
        EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
        EXPECT_EQ(rs().setSTDabbr_IS, Value("nist"));
        EXPECT_EQ(rs().ReturnTo, "");
    }
    EXPECT_FALSE(program->ended());
}

TEST_F(SetIsWindow, ACancelledSaveKeepsTheValuesTakenAndTheWindow) {
    open();
    type(form(), "txtAbbrSTD", "taken");
    rs().SetFilePath = "former";
    os.saves.emplace_back(std::nullopt);
    click(form(), "cmdSaveAs");
    ASSERT_EQ(os.dialogs.size(), 1U);
    EXPECT_EQ(os.dialogs[0].filter, "Setting Files (*.set)|*.set|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs[0].index, 1);
    EXPECT_EQ(os.dialogs[0].name, kit("Kolvar-default-h.set"));
    EXPECT_EQ(os.dialogs[0].folder, folder.path());
    EXPECT_EQ(box_texts(), Names{});  // no question about overwriting
    EXPECT_EQ(rs().setSTDabbr_IS, Value("taken"));
    EXPECT_EQ(rs().SetFilePath, "former");
    EXPECT_EQ(rs().ReturnTo, "back to start");
    EXPECT_EQ(rs().SaveRequest, "");
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_SetIS"}));
    click(form(), "cmdApply");
    EXPECT_EQ(os.dialogs.size(), 1U);  // Apply asks for no file
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(SetIsWindow, ARefusedSaveIsNotTakenUpByTheNextApply) {
    open();
    type(form(), "txtMass2", "301");
    click(form(), "cmdSaveAs");
    EXPECT_EQ(only_box(), second_too_large);
    EXPECT_EQ(rs().SaveRequest, "");
    type(form(), "txtMass2", "90");
    click(form(), "cmdApply");
    EXPECT_TRUE(os.dialogs.empty());
}

TEST_F(SetIsWindow, ANumberBeyondAllRangeStopsThereWithTheFormerOnesTaken) {
    open();
    type(form(), "txtAbbrSTD", "taken");
    type(form(), "txtISppm1", "5");
    type(form(), "txtISppm2", "1e999");
    type(form(), "txtSD", "9");
    click(form(), "cmdSaveAs");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].kind, "fault");
    EXPECT_NE(os.boxes[0].text.find(", in Take_New_Values_IS"), std::string::npos) << os.boxes[0].text;
    EXPECT_EQ(rs().setSTDabbr_IS, Value("taken"));
    EXPECT_EQ(rs().setCcIntSta, Value(5));
    EXPECT_EQ(rs().setCcIntSta2, Value(78000));
    EXPECT_EQ(rs().setSD_IS, Value(3));
    EXPECT_EQ(rs().SaveRequest, "");
    EXPECT_EQ(shown_windows().back(), "frm_SetIS");
}

TEST_F(SetIsWindow, SavingUnderAnotherNameKeepsTheSettingsInUse) {
    open();
    os.saves.emplace_back(folder.path("mine.set"));
    click(form(), "cmdSaveAs");
    EXPECT_EQ(rs().SetFilePath, folder.path("mine.set"));
    EXPECT_EQ(rs().SettingsPath, kit("Kolvar-default-h.set"));
    EXPECT_EQ(rs().SettingsName, "Kolvar-default-h.set");
    EXPECT_TRUE(std::filesystem::exists(folder.path("mine.set")));
}

TEST_F(SetIsWindow, AFileThatCannotBeWrittenIsSaidAndTheWindowGoes) {
    open();
    os.saves.emplace_back(folder.path("no such folder/mine.set"));
    click(form(), "cmdSaveAs");
    EXPECT_EQ(only_box(), "Error occurred while trying to save file, please retry.");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(SetIsWindow, BrowsingPutsThePathIntoItsFieldAndCancelLeavesIt) {
    open();
    const struct {
        const char* button;
        Entry& field;
        const char* filter;
    } rows[] = {
        {"cmdBrowSTC", form().txtSTCpath, "All Files (*.*)|*.*|Standard Composition Files (*.stc)|*.stc"},
        {"cmdBrowSTM", form().txtSTMpath,
         "All Files (*.*)|*.*|Standard Measurement Files (*.stm)|*.stm|"
         "Standard Measurements - Interpolated (*.sti)|*.sti"},
        {"cmdBrowDwe", form().txtDwePath, "All Files (*.*)|*.*|Dwell Time Files (*.dwe)|*.dwe"},
    };
    for (const auto& row : rows) {
        const std::string former = row.field.text;
        os.opens = {"", folder.path("some.file")};
        click(form(), row.button);
        EXPECT_EQ(row.field.text, former);
        EXPECT_EQ(rs().SetFilePath, "");
        EXPECT_EQ(os.dialogs.back().filter, row.filter);
        EXPECT_EQ(os.dialogs.back().index, 2);
        click(form(), row.button);
        EXPECT_EQ(row.field.text, folder.path("some.file"));
    }
    // Nothing is loaded or set before it is taken.
    EXPECT_EQ(rs().setSTCfile_IS, Value("nist-srm-610.stc"));
    EXPECT_EQ(box_texts(), Names{});
    click(form(), "cmdApply");
    EXPECT_EQ(rs().setSTCfile_IS, Value(folder.path("some.file")));
}

TEST_F(SetIsWindow, StandardsChosenInTheFirstWindowAreNoSettings) {
    program->start(0);
    click(forms().frm1_Settings, "cmdOK");
    choose(forms().frm1_Settings, "comboIso", "U238");
    EXPECT_EQ(rs().IS1name, "U238");
    open();
    EXPECT_EQ(form().comboIso.text, "Si29");
    click(form(), "cmdApply");
    EXPECT_EQ(rs().IS1name, "Si29");  // this window writes both
    EXPECT_EQ(rs().IS1col, Limit(4));
}

TEST_F(SetIsWindow, TheMenuOpensItToo) {
    program->start(0);
    click(forms().frm1_Settings, "mnuSettings", 1);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_SetIS"}));
    EXPECT_EQ(rs().ReturnTo, "back to start");
}

}  // namespace
}  // namespace kolvar::test
