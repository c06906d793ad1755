// The small windows: what they say, and the ways on from them.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

// Three isotopes and a blank file; each table can lack some of them.
class ReportWindows : public ProgramOnKit {
protected:
    ReportWindows() {
        set_key("setBLK_IS", "0");
        write_kit("example-1.csv", "t,Si29,Ca43,U238\r\n1,10,20,30\r\n2,11,21,31\r\n3,12,22,32\r\n");
    }
    void composition(const std::string& rows) { write_kit("nist-srm-610.stc", "\"title\",\"a\",\"b\"\r\n" + rows); }
    void measurement(const std::string& rows) { write_kit("nbs-610-2004-12-19-1.stm", rows); }
    void blank(const std::string& rows) { write_kit("2004-12-19-a.blk", rows); }
    void dwell(const std::string& rows) { write_kit("quadrupole.dwe", "\"title\",\"ms\"\r\n" + rows); }
    void go() {
        program->start(0);
        click(forms().frm1_Settings, "cmdOK");
        click(forms().frm1_Settings, "cmdNext");
        EXPECT_EQ(box_texts(), std::vector<std::string>{});
    }
    using Names = std::vector<std::string>;
};

TEST_F(ReportWindows, CompleteFilesLeadStraightToTheTimeSelection) {
    go();
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
}

TEST_F(ReportWindows, MissingIsotopesAreListedByFile) {
    composition("\"Si29\",100,1\r\n\"U238\",5,1\r\n");
    measurement("\"Si29\",1000,1\r\n");
    blank("\"Si29\",1,1\r\n\"Ca43\",2,1\r\n");
    go();
    EXPECT_EQ(shown_windows(), Names{"frm_MissingIso"});
    const FrmMissingIso& form = forms().frm_MissingIso;
    EXPECT_EQ(form.title, "KOLVAR  Warning Message");
    EXPECT_EQ(form.lblHead.text, "Isotopes of the Data File are not present in the standard and/or blank files!");
    EXPECT_EQ(form.lblSTC.text, "Ca43");
    EXPECT_EQ(form.lblSTM.text, "Ca43,  U238");
    EXPECT_EQ(form.lblBLK.text, "U238");
    EXPECT_EQ(form.cmdCont.text, "Continue without calculation of these isotopes");
    EXPECT_EQ(form.cmdBack.text, "Back to file selection");
    // In both lists, and left out of the calculation once.
    EXPECT_EQ(rs().IsoOmit(1), 0);
    EXPECT_EQ(rs().IsoOmit(2), 1);
    EXPECT_EQ(rs().IsoOmit(3), 1);
    click(forms().frm_MissingIso, "cmdCont");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_TRUE(forms().frm2_Time.chkIs(2).visible);  // the plots still show it
}

TEST_F(ReportWindows, WithTheBlankFromTheDataAGapOfTheBlankFileIsNone) {
    set_key("setBLK_IS", "1");
    blank("\"Si29\",1,1\r\n");
    go();
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_EQ(rs().MissBLK, "");
}

TEST_F(ReportWindows, BackFromTheGapsLeadsToTheChoiceOfFiles) {
    measurement("\"Si29\",1000,1\r\n");
    for (const bool by_button : {true, false}) {
        forms().frm1_Settings.optData.set_value(1);
        go();
        ASSERT_EQ(shown_windows(), Names{"frm_MissingIso"});
        // Also when a return from later steps has asked for the choice of standards.
        rs().KeepData = true;
        if (by_button)
            click(forms().frm_MissingIso, "cmdBack");
        else
            close(forms().frm_MissingIso);
        EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
        const Frm1Settings& form = forms().frm1_Settings;
        EXPECT_TRUE(form.cmdLoadSTM.enabled && form.cmdLoadBLK.enabled && form.cmdClose.enabled);
        EXPECT_FALSE(form.cmdNext.enabled || form.comboIso.enabled || form.txtDwell.enabled);
        EXPECT_FALSE(program->ended());
        close(forms().frm1_Settings);
        program = std::make_unique<Program>(os, folder.path());
    }
}

TEST_F(ReportWindows, MissingDwellTimesComeBeforeOtherGaps) {
    dwell("\"Si29\",10\r\n\"U238\",25\r\n");
    measurement("\"Si29\",1000,1\r\n\"Ca43\",5,1\r\n");
    go();
    EXPECT_EQ(shown_windows(), Names{"frm_Dwell"});
    const FrmDwell& form = forms().frm_Dwell;
    EXPECT_EQ(form.title, "KOLVAR  Warning Message");
    EXPECT_EQ(form.lblDWE.text, "Ca43");
    EXPECT_EQ(form.lblEffect.text,
              "The lack of the dwell times does not allow to calculate the errors of the concentrations.");
    EXPECT_EQ(rs().IsoOmit(2), 0);  // a missing dwell time alone leaves no isotope out
    EXPECT_EQ(rs().IsoOmit(3), 1);
    click(forms().frm_Dwell, "cmdCont");
    EXPECT_EQ(rs().Dwell(1), Cell(0.01));
    EXPECT_EQ(rs().Dwell(2), Cell(0.01));  // the shortest one of the file
    EXPECT_EQ(rs().Dwell(3), Cell(0.025));
    EXPECT_FALSE(rs().RefsMatched);
    EXPECT_EQ(shown_windows(), Names{"frm_MissingIso"});  // with the lists as they stood
    EXPECT_EQ(forms().frm_MissingIso.lblSTM.text, "U238");
    click(forms().frm_MissingIso, "cmdCont");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
}

TEST_F(ReportWindows, WithoutAnyDwellTimeEveryColumnTakesAHundredThousandSeconds) {
    dwell("\"Xe131\",10\r\n");
    go();
    ASSERT_EQ(shown_windows(), Names{"frm_Dwell"});
    EXPECT_EQ(forms().frm_Dwell.lblDWE.text, "Si29,  Ca43,  U238");
    click(forms().frm_Dwell, "cmdCont");
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(rs().Dwell(i), Cell(100000.0)) << i;
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
}

TEST_F(ReportWindows, MissingDwellTimesOfCountsMakeTheConcentrationsIncorrect) {
    set_key("setCPS_IS", "0");
    dwell("\"Si29\",10\r\n\"U238\",25\r\n");
    program->start(0);
    EXPECT_EQ(box_texts(),
              (Names{"Isotopes of the Data File are not present in the Dwell Time File! \n\nCa43,  \n\nThe "
                     "calculation of cps values and the concentrations from counts are NOT CORRECT!\n\nLoad "
                     "the proper DWELL TIME FILE in the next window."}));
    click(forms().frm1_Settings, "cmdOK");
    click(forms().frm1_Settings, "cmdNext");
    ASSERT_EQ(shown_windows(), Names{"frm_Dwell"});
    EXPECT_EQ(forms().frm_Dwell.lblEffect.text, "CONCENTRATIONS WILL BE INCORRECT!");
}

TEST_F(ReportWindows, BackFromTheDwellTimesFollowsTheirOption) {
    dwell("\"Si29\",10\r\n");
    go();
    ASSERT_EQ(shown_windows(), Names{"frm_Dwell"});
    close(forms().frm_Dwell);
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    const Frm1Settings& form = forms().frm1_Settings;
    EXPECT_TRUE(form.cmdLoadDWE.enabled && form.lblDWE.enabled && form.cmdDWEinfo.enabled);
    EXPECT_FALSE(form.txtDwell.enabled || form.cmdNext.enabled);
    // No dwell time was filled in, and the next attempt tells the gap again.
    EXPECT_TRUE(rs().Dwell(2).is_empty());
    click(forms().frm1_Settings, "cmdOK");
    click(forms().frm1_Settings, "cmdNext");
    EXPECT_EQ(shown_windows(), Names{"frm_Dwell"});
}

TEST_F(ReportWindows, InACreatingModeNoGapIsReported) {
    dwell("\"Si29\",10\r\n");
    measurement("\"Si29\",1000,1\r\n");
    program->start(0);
    click(forms().frm1_Settings, "optCreatSTM");
    click(forms().frm1_Settings, "cmdOK");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(ReportWindows, AChosenFolderIsWrittenAsOneRecordAndCountsFromTheNextStartOn) {
    program->start(0);
    const std::string before = rs().WorkPath;
    click(forms().frm1_Settings, "mnuSettings", 3);
    FrmChoseDir& form = forms().frm_ChoseDir;
    ASSERT_TRUE(form.shown);
    EXPECT_EQ(
        form.lblAdvice.text,
        "Recommended procedure after installation: (1) create your preferred directory, (2) copy the content of the "
        "entire 'C:\\Kolvar-StartKit' directory to the preferred directory, (3) save the path.");
    EXPECT_EQ(form.cmdSave.text, "Save this path and this starting directory");
    const std::string moved = folder.path("my kit");
    std::filesystem::copy(folder.path("start-kit"), moved);
    choose(form, "Dir1", moved);
    EXPECT_EQ(form.lblPath.text, moved);
    click(form, "cmdSave");
    EXPECT_FALSE(form.shown);
    EXPECT_EQ(folder.read("start_path"), "\"" + moved + "\"\r\n");  // the former file is replaced without a question
    EXPECT_EQ(box_texts(), Names{});
    EXPECT_EQ(rs().WorkPath, before);
    Program again(os, folder.path());
    again.start(0);
    EXPECT_EQ(again.state().WorkPath, moved);
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(ReportWindows, ClosedWithoutSavingTheFolderStaysAsItWas) {
    program->start(0);
    const std::string bytes = folder.read("start_path");
    for (const bool by_button : {true, false}) {
        click(forms().frm1_Settings, "mnuSettings", 3);
        choose(forms().frm_ChoseDir, "Dir1", folder.path());
        if (by_button)
            click(forms().frm_ChoseDir, "cmdCancel");
        else
            close(forms().frm_ChoseDir);
        EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    }
    EXPECT_EQ(folder.read("start_path"), bytes);
}

TEST_F(ReportWindows, AFullDiskLeavesTheFormerStartPathWhole) {
    program->start(0);
    const std::string bytes = folder.read("start_path");
    click(forms().frm1_Settings, "mnuSettings", 3);
    os.disk_room = 0;
    click(forms().frm_ChoseDir, "cmdSave");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].kind, "fault");
    EXPECT_EQ(os.boxes[0].title, "KOLVAR");
    EXPECT_EQ(folder.read("start_path"), bytes);
    EXPECT_TRUE(forms().frm_ChoseDir.shown);
    EXPECT_FALSE(program->ended());
}

TEST_F(ReportWindows, AveragesShowThreeColumnsOfTwentyFiveInAFixedForm) {
    program->start(0);
    RunState& state = rs();
    state.ConcMean(1) = 12.34;
    state.ConcSD(1) = 0.56;
    state.ConcMean(2) = Mark::dashes;
    state.ConcSD(2) = 12345.678;
    Context& context = program->context();
    context.shell.open(forms().frm_AverConc);
    const FrmAverConc& form = forms().frm_AverConc;
    EXPECT_EQ(form.title, "Preview of aver. conc. (\xC2\xB1 1 s.d.)");
    // 12 - 4 - 4 = 4 blanks before 12.3, 4 - 3 = 1 before 0.6; 12 - 3 - 4 = 5 before "---", none before 12345.7.
    EXPECT_EQ(form.lbl(0).text, " Si29    12.3  \xC2\xB1   0.6 ppm");
    EXPECT_EQ(form.lbl(1).text, " Ca43     ---  \xC2\xB1  12345.7 ppm");
    EXPECT_TRUE(form.lbl(2).visible);
    EXPECT_FALSE(form.lbl(3).visible);
    EXPECT_EQ(state.ConcMean(1), Cell(Mark::empty));  // used up
    EXPECT_EQ(state.ConcSD(2), Cell(Mark::empty));
    close(forms().frm_AverConc);
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(ReportWindows, AveragesEndAtTheSeventyFifthIsotope) {
    program->start(0);
    rs().nIso = 80;
    program->context().shell.open(forms().frm_AverConc);
    EXPECT_TRUE(forms().frm_AverConc.lbl(74).visible);
    EXPECT_EQ(rs().ConcMean(75), Cell(Mark::empty));
    EXPECT_EQ(rs().ConcMean(76), Cell());
    const int three_columns = forms().frm_AverConc.width;
    const auto columns = [&](int isotopes) {
        program->context().shell.close(forms().frm_AverConc);
        rs().nIso = isotopes;
        program->context().shell.open(forms().frm_AverConc);
        return forms().frm_AverConc.width * 3 / three_columns;
    };
    EXPECT_EQ(columns(25), 1);
    EXPECT_EQ(columns(26), 2);
    EXPECT_EQ(columns(50), 2);
    EXPECT_EQ(columns(51), 3);
    EXPECT_TRUE(forms().frm_AverConc.lbl(50).visible);
    EXPECT_FALSE(forms().frm_AverConc.lbl(51).visible);
}

}  // namespace
}  // namespace kolvar::test
