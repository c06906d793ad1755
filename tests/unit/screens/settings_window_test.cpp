// The first window on the internal-standard path: its two states, what each option enables, the order of its messages.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

class SettingsWindow : public ProgramOnKit {
protected:
    Frm1Settings& form() { return forms().frm1_Settings; }
    void start() {
        program->start(0);
        ASSERT_TRUE(os.boxes.empty()) << os.boxes.front().text;
    }
    // What a click shows: the one text, "" when no box came up, all texts when there are more.
    std::string box_after(const std::string& control, int index = -1) {
        forget_boxes();
        click(form(), control, index);
        std::string all;
        for (const auto& box : os.boxes) {
            EXPECT_EQ(box.title, "");
            all += all.empty() ? box.text : "|" + box.text;
        }
        return all;
    }
    static bool all(std::initializer_list<const Control*> controls, bool enabled) {
        for (const Control* control : controls)
            if (control->enabled != enabled) {
                ADD_FAILURE() << control->name << " should be " << (enabled ? "enabled" : "disabled");
                return false;
            }
        return true;
    }
    bool choice_of_files(bool enabled) {
        Frm1Settings& f = form();
        return all(
            {&f.cmdClose, &f.cmdLoadCSV, &f.cmdLoadSTC, &f.cmdLoadSTM, &f.cmdPaste, &f.lblCSV, &f.lblSTC, &f.lblSTM,
             &f.optData, &f.optCreatSTM, &f.optCreatBLK, &f.optBfromData, &f.optBLKfile, &f.optDweUni, &f.optDWEfile},
            enabled);
    }
    bool choice_of_standards(bool enabled) {
        Frm1Settings& f = form();
        return all({&f.cmdNext, &f.cmdBack, &f.comboIso, &f.comboIso2, &f.comboIso3, &f.txtISppm, &f.txtISppm2,
                    &f.txtISppm3, &f.txtISerr, &f.txtISerr2, &f.txtISerr3},
                   enabled);
    }
};

TEST_F(SettingsWindow, OpensInTheChoiceOfFilesWithTheGroupsOfBlankAndDwellTime) {
    start();
    EXPECT_TRUE(choice_of_files(true));
    EXPECT_TRUE(choice_of_standards(false));
    EXPECT_TRUE(form().optData.on());
    EXPECT_TRUE(form().optBfromData.on());
    EXPECT_TRUE(all({&form().cmdLoadBLK, &form().lblBLK, &form().txtDwell}, false));
    EXPECT_TRUE(form().optDWEfile.on());
    EXPECT_TRUE(all({&form().cmdLoadDWE, &form().lblDWE, &form().cmdDWEinfo, &form().cmdSTCinfo}, true));
    EXPECT_FALSE(form().cmdOK1.visible);
    EXPECT_FALSE(form().cmdChooseUP.visible);
    EXPECT_FALSE(form().cmdPaste1.visible);
}

TEST_F(SettingsWindow, OpensWithABlankFileAndAUniformDwellTimeWhenTheSettingsSaySo) {
    set_key("setBLK_IS", "0");
    set_key("setDwellFromFile_IS", "0");
    start();
    EXPECT_TRUE(form().optBLKfile.on());
    EXPECT_FALSE(form().optBfromData.on());
    EXPECT_TRUE(all({&form().cmdLoadBLK, &form().lblBLK, &form().txtDwell}, true));
    EXPECT_TRUE(form().optDweUni.on());
    EXPECT_TRUE(all({&form().cmdLoadDWE, &form().lblDWE, &form().cmdDWEinfo}, false));
}

TEST_F(SettingsWindow, OptionsOfTheModeEnableWhatTheModeNeeds) {
    start();
    Frm1Settings& f = form();
    const auto of_data = {static_cast<const Control*>(&f.cmdLoadSTC),    static_cast<const Control*>(&f.cmdLoadSTM),
                          static_cast<const Control*>(&f.cmdSTCinfo),    static_cast<const Control*>(&f.cmdDWEinfo),
                          static_cast<const Control*>(&f.lblSTC),        static_cast<const Control*>(&f.lblSTM),
                          static_cast<const Control*>(&f.lblCaptionSTC), static_cast<const Control*>(&f.lblCaptionSTM),
                          static_cast<const Control*>(&f.Frame2),        static_cast<const Control*>(&f.Frame3)};
    click(f, "optCreatBLK");
    EXPECT_TRUE(all(of_data, false));
    EXPECT_FALSE(f.Frame1.enabled);
    click(f, "optCreatSTM");
    EXPECT_TRUE(all(of_data, false));
    EXPECT_TRUE(f.Frame1.enabled);
    click(f, "optData");
    EXPECT_TRUE(all(of_data, true));
    EXPECT_TRUE(f.Frame1.enabled);
    EXPECT_TRUE(f.optData.on());
    EXPECT_FALSE(f.optCreatSTM.on());
}

TEST_F(SettingsWindow, OptionsOfBlankAndDwellTimeEnableTheirControls) {
    start();
    click(form(), "optBLKfile");
    EXPECT_TRUE(all({&form().cmdLoadBLK, &form().lblBLK}, true));
    click(form(), "optBfromData");
    EXPECT_TRUE(all({&form().cmdLoadBLK, &form().lblBLK}, false));
    click(form(), "optDweUni");
    EXPECT_TRUE(all({&form().cmdLoadDWE, &form().lblDWE, &form().cmdDWEinfo}, false));
    EXPECT_TRUE(form().txtDwell.enabled);
    click(form(), "optDWEfile");
    EXPECT_TRUE(all({&form().cmdLoadDWE, &form().lblDWE, &form().cmdDWEinfo}, true));
    EXPECT_FALSE(form().txtDwell.enabled);
}

TEST_F(SettingsWindow, MessagesOfTheFirstStepComeInTheirOrder) {
    start();
    click(form(), "optBLKfile");
    RunState& state = rs();
    state.DataFileName = state.BLKfileName = state.STCfileName = state.STMfileName = state.DWEfileName = "";
    EXPECT_EQ(box_after("cmdOK"), "Choose a Data File.");
    state.DataFileName = "a.csv";
    EXPECT_EQ(box_after("cmdOK"), "Choose a Blank File.");
    state.BLKfileName = "a.blk";
    EXPECT_EQ(box_after("cmdOK"), "Choose a Standard Composition File.");
    state.STCfileName = "a.stc";
    EXPECT_EQ(box_after("cmdOK"), "Choose a Standard Measurement File.");
    state.STMfileName = "a.stm";
    EXPECT_EQ(box_after("cmdOK"), "Choose a Dwell Time File.");
    EXPECT_TRUE(choice_of_files(true));  // the window stays as it was
    state.DWEfileName = "a.dwe";
    EXPECT_EQ(box_after("cmdOK"), "");
    EXPECT_TRUE(choice_of_files(false));
    EXPECT_EQ(state.ModeData, 1);
    EXPECT_EQ(state.BlankFromData, 0);
    EXPECT_EQ(state.DwellFromFile, 1);
}

TEST_F(SettingsWindow, AUniformDwellTimeMustBePositive) {
    start();
    click(form(), "optDweUni");
    for (const char* refused : {"0", "-3", "", "abc", ".e5"}) {
        type(form(), "txtDwell", refused);
        form().focus_wanted = nullptr;
        EXPECT_EQ(box_after("cmdOK"), "The dwell time must be a positive number.") << refused;
        EXPECT_EQ(form().focus_wanted, &form().txtDwell);
        EXPECT_EQ(rs().DwellUniform, 0.02);
    }
    type(form(), "txtDwell", "12.5 ms");
    EXPECT_EQ(box_after("cmdOK"), "");
    EXPECT_EQ(rs().DwellUniform, 0.0125);
    for (int i = 1; i <= 25; ++i) EXPECT_EQ(rs().Dwell(i), Cell(0.0125)) << i;
    EXPECT_EQ(rs().Dwell(26), Cell(0.02));  // columns without data keep what the start gave them
}

TEST_F(SettingsWindow, CreatingABlankFileAsksForNoReferenceFile) {
    start();
    click(form(), "optBLKfile");
    click(form(), "optCreatBLK");
    rs().BLKfileName = rs().STCfileName = rs().STMfileName = "";
    EXPECT_EQ(box_after("cmdOK"), "");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
    EXPECT_EQ(rs().ModeCreateBLK, 1);
    EXPECT_EQ(rs().ModeData, 0);
}

TEST_F(SettingsWindow, CreatingAStandardMeasurementAsksForTheBlankAlone) {
    start();
    click(form(), "optBLKfile");
    click(form(), "optCreatSTM");
    rs().BLKfileName = rs().STCfileName = rs().STMfileName = "";
    EXPECT_EQ(box_after("cmdOK"), "Choose a Blank File.");
    click(form(), "optBfromData");
    EXPECT_EQ(box_after("cmdOK"), "");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
}

TEST_F(SettingsWindow, InACreatingModeAGapOfTheStandardStopsNobodyAndSilencesNoLaterMatching) {
    start();
    rs().nSTC = 0;
    click(form(), "optCreatSTM");
    EXPECT_EQ(box_after("cmdOK"),
              "The selected internal standard (Si29) is not present in the Standard Composition File.");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
    EXPECT_FALSE(rs().RefsMatched);
}

TEST_F(SettingsWindow, AcceptedFilesLeadToTheChoiceOfStandardsAndBackAgain) {
    start();
    click(form(), "cmdOK");
    EXPECT_TRUE(choice_of_files(false));
    EXPECT_TRUE(choice_of_standards(true));
    EXPECT_TRUE(all({&form().cmdLoadBLK, &form().cmdLoadDWE, &form().lblBLK, &form().lblDWE}, false));
    EXPECT_TRUE(form().cmdOK.enabled);
    click(form(), "cmdBack");
    EXPECT_TRUE(choice_of_files(true));
    EXPECT_TRUE(choice_of_standards(false));
    EXPECT_TRUE(all({&form().cmdLoadBLK, &form().lblBLK, &form().txtDwell}, false));
    EXPECT_TRUE(all({&form().cmdLoadDWE, &form().lblDWE, &form().cmdDWEinfo}, true));
}

TEST_F(SettingsWindow, BackLeavesStandardsDisabledWhenAFileIsBeingMade) {
    start();
    click(form(), "optCreatSTM");
    click(form(), "optDweUni");
    click(form(), "optBLKfile");
    rs().BlankFromData = 0;
    rs().DwellFromFile = 0;
    click(form(), "cmdBack");
    EXPECT_TRUE(all({&form().cmdLoadSTC, &form().cmdLoadSTM, &form().lblSTC, &form().lblSTM}, false));
    EXPECT_TRUE(all({&form().cmdLoadBLK, &form().lblBLK, &form().txtDwell, &form().cmdLoadCSV}, true));
    EXPECT_TRUE(all({&form().cmdLoadDWE, &form().lblDWE, &form().cmdDWEinfo}, false));
}

TEST_F(SettingsWindow, MessagesOfTheSecondStepComeInTheirOrderForThreeStandards) {
    set_key("setISnum", "3");
    start();
    click(form(), "cmdOK");
    RunState& state = rs();
    state.IS1col = state.IS2col = state.IS3col = 0;
    Frm1Settings& f = form();
    for (const char* box : {"txtISppm", "txtISerr", "txtISppm2", "txtISerr2", "txtISppm3", "txtISerr3"})
        type(f, box, "0");
    struct Step {
        const char* message;
        const char* remedy;  // an entry, or a list
        const Control* focus;
    };
    const Step steps[] = {
        {"Choose an internal standard from the list of isotopes.", "comboIso", nullptr},
        {"Enter the concentration of the internal standard.", "txtISppm", &f.txtISppm},
        {"Enter the error of the concentration of internal standard.", "txtISerr", &f.txtISerr},
        {"Choose a second internal standard from the list of isotopes.", "comboIso2", nullptr},
        {"Enter the concentration of the second internal standard.", "txtISppm2", &f.txtISppm2},
        {"Enter the error of the concentration of the second internal standard.", "txtISerr2", &f.txtISerr2},
        {"Choose a third internal standard from the list of isotopes.", "comboIso3", nullptr},
        {"Enter the concentration of the third internal standard.", "txtISppm3", &f.txtISppm3},
        {"Enter the error of the concentration of the third internal standard.", "txtISerr3", &f.txtISerr3}};
    for (const Step& step : steps) {
        f.focus_wanted = nullptr;
        EXPECT_EQ(box_after("cmdNext"), step.message);
        EXPECT_EQ(f.focus_wanted, step.focus) << step.message;
        EXPECT_TRUE(f.shown);
        if (step.focus == nullptr)
            choose(f, step.remedy, "Sr88");
        else
            type(f, step.remedy, "100");
    }
    EXPECT_EQ(box_after("cmdNext"), "");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
}

TEST_F(SettingsWindow, WithOneStandardTheOthersAreNotAskedForButTheirBoxesAreTaken) {
    start();
    click(form(), "cmdOK");
    type(form(), "txtISppm2", "17.5 ppm");
    type(form(), "txtISerr3", "");
    EXPECT_FALSE(rs().AutoScale1);
    EXPECT_EQ(box_after("cmdNext"), "");
    EXPECT_TRUE(rs().IS1conc == Value(235000.0));
    EXPECT_TRUE(rs().IS1err == Value(2350.0));
    EXPECT_TRUE(rs().IS2conc == Value(17.5));
    EXPECT_TRUE(rs().IS2err == Value(1560.0));
    EXPECT_TRUE(rs().IS3conc == Value(76000.0));
    EXPECT_TRUE(rs().IS3err == Value(0.0));
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
}

TEST_F(SettingsWindow, AChosenStandardIsTheLastColumnOfItsNameAndNotWrittenToTheSettings) {
    write_kit("example-1.csv", "t,Si29,Ca43,Ca43,U238\r\n1,1,1,1,1\r\n2,2,2,2,2\r\n");
    start();
    click(form(), "cmdOK");
    choose(form(), "comboIso", "Ca43");
    EXPECT_EQ(rs().IS1col, Limit(3));
    EXPECT_EQ(rs().IS1name, "Ca43");
    EXPECT_EQ(rs().setIntSta.text(), "Si29");
    choose(form(), "comboIso3", "U238");
    EXPECT_EQ(rs().IS3col, Limit(4));
    EXPECT_EQ(rs().setIntSta3.text(), "Al27");
}

TEST_F(SettingsWindow, AStandardThatTheDataLackShowsAsAnEmptyListAndIsAskedFor) {
    write_kit("example-1.csv", "t,Ca43,U238\r\n1,1,1\r\n2,2,2\r\n");
    start();
    EXPECT_EQ(rs().IS1col, Limit(0));
    EXPECT_EQ(form().comboIso.text, "");
    EXPECT_EQ(form().comboIso2.text, "Ca43");
    EXPECT_EQ(form().comboIso.items, (std::vector<std::string>{"Ca43", "U238"}));
    click(form(), "cmdOK");
    EXPECT_EQ(box_after("cmdNext"), "Choose an internal standard from the list of isotopes.");
}

TEST_F(SettingsWindow, AStandardMissingInAReferenceFileStopsTheWayForward) {
    start();
    click(form(), "cmdOK");
    for (int row = 1; row <= rs().nSTM; ++row)
        if (rs().STMiso(row) == "Si29") rs().STMiso(row) = "Si28";
    EXPECT_EQ(box_after("cmdNext"),
              "The selected internal standard (Si29) is not present in the Standard Measurement File.");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
    EXPECT_FALSE(rs().RefsMatched);
    EXPECT_TRUE(choice_of_standards(true));
    // Another standard opens the way; the former one is now a gap like any other.
    choose(form(), "comboIso", "Ca43");
    EXPECT_EQ(box_after("cmdNext"), "");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm_MissingIso"});
    EXPECT_EQ(forms().frm_MissingIso.lblSTM.text, "Si29");
}

TEST_F(SettingsWindow, RowsOfStandardsFollowTheirNumber) {
    for (const auto& [number, head] : {std::pair<const char*, const char*>{"1", ""},
                                       {"2", "Two Internal Standards"},
                                       {"3", "Three Internal Standards"}}) {
        set_key("setISnum", number);
        Program again(os, folder.path());
        again.start(0);
        const Frm1Settings& f = again.forms().frm1_Settings;
        const bool two = number[0] >= '2';
        const bool three = number[0] == '3';
        EXPECT_TRUE(f.comboIso.visible && f.txtISppm.visible && f.txtISerr.visible);
        EXPECT_EQ(f.lblIntHead.visible, two);
        if (two) {
            EXPECT_EQ(f.lblIntHead.text, head);
        }
        EXPECT_EQ(f.comboIso2.visible && f.txtISppm2.visible && f.txtISerr2.visible, two);
        EXPECT_EQ(f.comboIso3.visible || f.txtISppm3.visible || f.txtISerr3.visible, three);
    }
}

TEST_F(SettingsWindow, ReturnWithKeepDataEntersTheChoiceOfStandardsDirectly) {
    start();
    click(form(), "cmdOK");
    click(form(), "cmdNext");
    rs().KeepData = true;
    click(forms().frm2_Time, "cmdBack");
    ASSERT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
    EXPECT_TRUE(choice_of_files(false));
    EXPECT_TRUE(choice_of_standards(true));
    EXPECT_TRUE(all({&form().cmdLoadDWE, &form().cmdLoadBLK, &form().txtDwell}, false));
    EXPECT_EQ(form().comboIso.text, "Si29");
    // It stays so until another command clears it.
    click(form(), "cmdNext");
    click(forms().frm2_Time, "cmdBack");
    EXPECT_TRUE(choice_of_standards(true));
    rs().KeepData = false;
    click(form(), "cmdNext");
    click(forms().frm2_Time, "cmdBack");
    EXPECT_TRUE(choice_of_files(true));
    EXPECT_TRUE(choice_of_standards(false));
}

TEST_F(SettingsWindow, ReturnRestoresTheControlsAndKeepsTheData) {
    start();
    click(form(), "optDweUni");
    type(form(), "txtDwell", "40");
    click(form(), "optCreatSTM");
    click(form(), "cmdOK");
    ASSERT_TRUE(forms().frm2_Time.shown);
    click(forms().frm2_Time, "cmdBack");
    EXPECT_EQ(form().txtDwell.text, "40");
    EXPECT_TRUE(form().optDweUni.on());
    EXPECT_TRUE(form().optCreatSTM.on());
    EXPECT_TRUE(all({&form().cmdLoadSTC, &form().cmdLoadSTM, &form().cmdDWEinfo, &form().cmdLoadDWE}, false));
    EXPECT_EQ(rs().nIso, 25);
    EXPECT_EQ(rs().DataFileName, "example-1.csv");
}

TEST_F(SettingsWindow, ActivationRunsAfterAnotherWindowClosedAndNotAfterABox) {
    start();
    click(form(), "cmdOK");
    type(form(), "txtISppm", "0");
    click(form(), "cmdNext");  // a box: what was typed stays
    EXPECT_EQ(form().txtISppm.text, "0");
    click(form(), "mnuSettings", 3);
    EXPECT_EQ(form().txtISppm.text, "0");
    close(forms().frm_ChoseDir);
    EXPECT_EQ(form().txtISppm.text, "235000");
}

TEST_F(SettingsWindow, ANewDataFileFillsTheListsAndACancelledDialogChangesNothing) {
    start();
    write_kit("other.csv", "t,Ca43,Si29\r\n1,5,6\r\n2,7,8\r\n3,9,1\r\n");
    os.opens.push_back("");
    EXPECT_EQ(box_after("cmdLoadCSV"), "");
    EXPECT_EQ(rs().DataFileName, "example-1.csv");
    EXPECT_EQ(rs().SetFilePath, "");
    os.opens.push_back(kit("other.csv"));
    EXPECT_EQ(box_after("mnuFile", 0), "");
    EXPECT_EQ(form().lblCSV.text, "  other.csv  ");
    EXPECT_EQ(form().comboIso.items, (std::vector<std::string>{"Ca43", "Si29"}));
    EXPECT_EQ(form().comboIso.text, "Si29");
    EXPECT_EQ(rs().AppPath2, folder.path("start-kit"));
    EXPECT_EQ(os.dialogs.back().index, 5);
}

TEST_F(SettingsWindow, MenuEntriesOfTheReferenceFilesDoAsTheirBrowseButtons) {
    start();
    const std::string composition = folder.write("own.stc", "\"Own glass\",\"ppm\",\"ppm\"\r\n\"Si29\",100,1\r\n");
    const std::string measured = folder.write("own.stm", "\"Si29\",1000,1\r\n\"Ca43\",5,1\r\n");
    os.opens = {composition, measured};
    EXPECT_EQ(box_after("mnuFile", 1), "");
    EXPECT_EQ(os.dialogs.back().filter, "All Files (*.*)|*.*|Standard Composition Files (*.stc)|*.stc");
    EXPECT_EQ(rs().nSTC, 1);
    EXPECT_EQ(form().lblSTC.text, "  own.stc  ");
    EXPECT_EQ(box_after("mnuFile", 2), "");
    EXPECT_EQ(os.dialogs.back().filter,
              "All Files (*.*)|*.*|Standard Measurement Files (*.stm)|*.stm|Standard Measurements - Interpolated "
              "(*.sti)|*.sti");
    EXPECT_EQ(rs().nSTM, 2);
    EXPECT_EQ(form().lblSTM.text, "  own.stm  ");
}

TEST_F(SettingsWindow, TheListsShowNoStandardWhileAFileIsBeingTakenIn) {
    start();
    click(form(), "cmdOK");
    rs().PlotOn = 1;
    click(form(), "mnuSettings", 3);
    close(forms().frm_ChoseDir);  // the window becomes the active one again
    EXPECT_EQ(form().comboIso.items.size(), 25U);
    EXPECT_EQ(form().comboIso.text, "");
    rs().PlotOn = 0;
    click(form(), "mnuSettings", 3);
    close(forms().frm_ChoseDir);
    EXPECT_EQ(form().comboIso.text, "Si29");
}

TEST_F(SettingsWindow, LoadedSettingsBringTheirCompositionFileAndNothingElse) {
    start();
    std::filesystem::copy_file(kit("Kolvar-default-h.set"), kit("mine.set"));
    set_key("setSTDabbr_IS", "\"nist\"");
    set_key("setBLK_IS", "0");
    set_key("setSTCfile_IS", "\"" + kit("small.stc") + "\"");
    write_kit("small.stc", "\"Two isotopes\",\"ppm\",\"ppm\"\r\n\"Si29\",100,1\r\n\"Ca43\",200,2\r\n");
    os.opens.push_back(kit("Kolvar-default-h.set"));
    rs().nDWE = 7;
    EXPECT_EQ(box_after("mnuSettings", 0), "");
    EXPECT_EQ(os.dialogs.back().filter, "All Files (*.*)|*.*|Setting Files (*.set)|*.set");
    EXPECT_EQ(os.dialogs.back().index, 2);
    EXPECT_EQ(os.dialogs.back().folder, folder.path());
    EXPECT_EQ(rs().nSTC, 2);
    EXPECT_EQ(rs().nDWE, 7);
    EXPECT_EQ(rs().STCfilePath, kit("small.stc"));
    EXPECT_EQ(form().lblSTC.text, "  " + kit("small.stc") + "  ");
    EXPECT_EQ(form().lblUPset.text, "Kolvar-default-h.set");
    EXPECT_EQ(rs().SettingsPath, kit("Kolvar-default-h.set"));
    // The options wait for the next opening of the window.
    EXPECT_EQ(rs().BlankFromData, 0);
    EXPECT_TRUE(form().optBfromData.on());
}

TEST_F(SettingsWindow, SettingsThatChangeTheMethodChangeThePanelAtOnce) {
    start();
    os.opens.push_back(kit("Kolv-AGE-example.set"));
    EXPECT_EQ(box_after("mnuSettings", 0), "");
    EXPECT_EQ(rs().Method, 1);
    EXPECT_TRUE(form().pict_UT.visible);
    EXPECT_FALSE(form().pict_IS.visible);
    EXPECT_EQ(form().title, "Kolv-AGE  -  Start window");
    os.opens.push_back(kit("Kolv-FLEX-example.set"));
    EXPECT_EQ(box_after("mnuSettings", 0), "");
    EXPECT_TRUE(form().pict_FLEX.visible);
    EXPECT_EQ(form().title, "Kolv-FLEX  -  Start window");
}

TEST_F(SettingsWindow, APanelThatADefaultFileBringsInShowsFilesBlankAndDwellTime) {
    program->start(1);
    ASSERT_EQ(form().txtDwell.text, "");
    os.opens.push_back(KOLVAR_SOURCE_DIR "/tests/data/defaults/internal-standard.def");
    EXPECT_EQ(box_after("cmdChooseSET"), "");
    ASSERT_TRUE(form().pict_IS.visible);
    EXPECT_EQ(form().lblCSV.text, "  test-01-no-Hg-235-232.csv  ");
    EXPECT_EQ(form().txtDwell.text, "20");
    EXPECT_TRUE(form().optDweUni.on() && form().optBLKfile.on());
    EXPECT_TRUE(choice_of_files(true));
    // What the user chooses then stays, whatever window comes and goes.
    type(form(), "txtDwell", "15");
    click(form(), "optBfromData");
    click(form(), "cmdSeq");
    click(forms().frm_Batch_IS, "cmdClose");
    EXPECT_EQ(form().txtDwell.text, "15");
    EXPECT_TRUE(form().optBfromData.on());
}

TEST_F(SettingsWindow, StepsOfThisPanelSetTheMethodBack) {
    start();
    rs().Method = 1;
    click(form(), "cmdOK");
    EXPECT_EQ(rs().Method, 0);
    rs().Method = 3;
    click(form(), "cmdNext");
    EXPECT_EQ(rs().Method, 0);
}

TEST_F(SettingsWindow, SequentialTreatmentOpensAWindowThatHoldsOnlyItsClose) {
    start();
    EXPECT_EQ(box_after("cmdSeq"), "");
    EXPECT_EQ(shown_windows(), (std::vector<std::string>{"frm1_Settings", "frm_Batch_IS"}));
    EXPECT_EQ(forms().frm_Batch_IS.title, "Sequential treatment of files");
    EXPECT_EQ(forms().frm_Batch_IS.controls.size(), 1U);
    click(forms().frm_Batch_IS, "cmdClose");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
}

TEST_F(SettingsWindow, ExitsOfTheWindowAreItsButtonsItsMenuAndItsCloseBox) {
    for (const int way : {0, 1, 2}) {
        Program again(os, folder.path());
        again.start(0);
        Event event;
        event.window = "frm1_Settings";
        event.control = way == 0 ? "cmdClose" : way == 1 ? "mnuFile" : "";
        event.index = way == 1 ? 3 : -1;
        event.kind = way == 2 ? EventKind::close : EventKind::click;
        again.dispatch(event);
        EXPECT_TRUE(again.ended()) << way;
        EXPECT_EQ(again.status(), 0) << way;
    }
    EXPECT_TRUE(os.boxes.empty());
}

}  // namespace
}  // namespace kolvar::test
