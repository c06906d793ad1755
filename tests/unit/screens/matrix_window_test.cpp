// The ways out of the rejection matrix: on to the results, into a file, back, or not at all.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Names = std::vector<std::string>;

class MatrixWindow : public ProgramOnKit {
protected:
    MatrixWindow() { set_key("setTestBlank", "0"); }
    Frm3Matrix& form() { return forms().frm3_Matrix; }
    void go() {
        go_to_marked_selection();
        click(forms().frm2_Time, "cmdNext");
        ASSERT_EQ(shown_windows(), Names{"frm3_Matrix"});
        forget_boxes();
    }
    void go_creating(const std::string& option) {
        program->start(0);
        click(forms().frm1_Settings, option);
        click(forms().frm1_Settings, "cmdOK");
        if (option == "optCreatSTM") {
            mark(1, 1, 5);
            mark(2, 1, 45);
        }
        mark(1, 0, 60);
        mark(2, 0, 120);
        click(forms().frm2_Time, "cmdNext");
        ASSERT_EQ(shown_windows(), Names{"frm3_Matrix"});
        forget_boxes();
    }
    void cell(int row, int col) {
        Event event = event_of(EventKind::cell_click, form(), "FlexGrid1");
        event.row = row;
        event.col = col;
        program->dispatch(event);
    }
    // Rejects by hand all data of a row but the first `left`.
    void leave_in_row(int row, int left) {
        for (int c = left + 1; c <= rs().SelN.val(); ++c) cell(row, c);
    }
};

TEST_F(MatrixWindow, CaptionOfTheWayOnTellsWhatIsMade) {
    go();
    EXPECT_EQ(form().title, "KOLVAR  -  Step 3: Rejection Matrix");
    EXPECT_EQ(form().cmdNext.text, "Next Step");
    EXPECT_TRUE(form().optIIS.enabled);
}

TEST_F(MatrixWindow, OnToTheResultsItKeepsItsCellsForTheWayBack) {
    go();
    cell(3, 2);
    click(form(), "cmdNext");
    EXPECT_EQ(shown_windows(), Names{"frm4_Output"});
    EXPECT_EQ(rs().nRejected, 1);
    EXPECT_EQ(rs().RejManual, 1);
    EXPECT_EQ(rs().Rej(3, 61), 1);
    click(forms().frm4_Output, "cmdBackRej");
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(form().FlexGrid1.cell(3, 2).back, palette(0));
    EXPECT_EQ(rs().Rej(3, 61), 1);  // nothing is reset on this way
}

TEST_F(MatrixWindow, ChosenTestsAreKeptForTheResultTableAndTheFileNames) {
    go();
    click(form(), "cmdNext");
    EXPECT_EQ(rs().RejMinMaxOn, 0);
    EXPECT_TRUE(rs().RejSDLimit == Value(0));
    EXPECT_TRUE(rs().RejGrubbsP == Value(0));
    EXPECT_EQ(rs().RejProcName, " 5");
    click(forms().frm4_Output, "cmdBackRej");
    choose(form(), "comboProc", "2.5");
    click(form(), "chkMinMax");
    click(form(), "chkStDev");
    click(form(), "chkGrubbs");
    click(form(), "cmdNext");
    EXPECT_EQ(rs().RejMinMaxOn, 1);
    EXPECT_TRUE(rs().RejSDLimit == Value("3"));
    EXPECT_TRUE(rs().RejGrubbsP == Value("2.5"));
    EXPECT_EQ(rs().RejProcName, "2.5");
}

TEST_F(MatrixWindow, ARowWithLessThanTwoDataStopsTheWayOn) {
    go();
    leave_in_row(3, 1);
    leave_in_row(5, 0);
    const std::string third = rs().IsoName(3);
    const std::string fifth = rs().IsoName(5);
    click(form(), "cmdNext");
    FrmOmit& omit = forms().frm_Omit;
    EXPECT_EQ(shown_windows(), (Names{"frm3_Matrix", "frm_Omit"}));
    EXPECT_EQ(omit.title, "KOLVER  Warning Message");
    EXPECT_EQ(omit.lblHead.text, "Too few data in some lines, modify the rejection!");
    EXPECT_EQ(omit.lblText.text,
              "The following lines contains less than two data, thus the calculation is not possible:");
    EXPECT_EQ(omit.lblList.text, third + ",    " + fifth + ",    ");
    // Left open, it is filled anew by the next attempt.
    cell(5, 1);
    cell(5, 2);
    click(form(), "cmdNext");
    EXPECT_EQ(omit.lblList.text, third + ",    ");
    EXPECT_EQ(shown_windows(), (Names{"frm3_Matrix", "frm_Omit"}));
    click(omit, "cmdOK");
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(form().FlexGrid1.cell(3, 2).back, palette(0));
    click(form(), "cmdNext");
    cell(3, 2);  // two data are enough, and the list that is still open goes
    click(form(), "cmdNext");
    EXPECT_EQ(shown_windows(), Names{"frm4_Output"});
}

TEST_F(MatrixWindow, BackCountsAndTheNextVisitStartsFromCleanCells) {
    go();
    cell(3, 2);
    click(form(), "cmdBack");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_EQ(rs().SelCount, 1);
    click(forms().frm2_Time, "cmdNext");
    EXPECT_EQ(form().FlexGrid1.cell(3, 2).back, palette(15));
}

TEST_F(MatrixWindow, BackAfterTheResultsLeavesTheirRejectionForThePreview) {
    go();
    cell(3, 2);
    click(form(), "cmdNext");
    click(forms().frm4_Output, "cmdBackRej");
    click(form(), "cmdBack");
    EXPECT_EQ(rs().Rej(3, 61), 1);
    click(forms().frm2_Time, "cmdShowConc");
    EXPECT_EQ(rs().nData(3), 61);
}

TEST_F(MatrixWindow, AStandardMeasurementIsSavedUnderANameFromTheData) {
    go_creating("optCreatSTM");
    EXPECT_EQ(form().cmdNext.text, "Save STM file");
    EXPECT_FALSE(form().optCpsSD.enabled || form().optIIS.enabled || form().optIisSD.enabled);
    rs().KeepData = true;
    rs().SelCount = 2;
    os.saves.push_back(folder.path("new.stm"));
    click(form(), "cmdNext");
    EXPECT_EQ(os.dialogs.back().filter, "Standard Measurement File (*.stm)|*.stm|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs.back().index, 1);
    EXPECT_EQ(os.dialogs.back().name, "example-1_t60-t120.stm");
    EXPECT_EQ(folder.read("new.stm").substr(0, 6), "\"Li7\",");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    EXPECT_FALSE(rs().KeepData);
    EXPECT_EQ(rs().SelCount, 0);
    EXPECT_EQ(rs().DataFileName, "");
    EXPECT_EQ(rs().DataFilePath, "");
    EXPECT_EQ(forms().frm1_Settings.lblCSV.text, "    ");
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(MatrixWindow, ACancelledDialogLeavesTheStepAsItIs) {
    go_creating("optCreatBLK");
    cell(3, 2);
    os.saves.push_back(std::nullopt);
    click(form(), "cmdNext");
    EXPECT_EQ(os.dialogs.back().filter, "Blank File (*.blk)|*.blk|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs.back().name, "example-1_M_t60-t120.blk");
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(rs().DataFileName, "example-1.csv");
    EXPECT_EQ(form().FlexGrid1.cell(3, 2).back, palette(0));
}

TEST_F(MatrixWindow, AFileIsOverwrittenOnlyWhenTheUserSaysYes) {
    go_creating("optCreatBLK");
    folder.write("old.blk", "former");
    os.saves.push_back(folder.path("old.blk"));
    os.yes_or_no.push_back(false);
    click(form(), "cmdNext");
    EXPECT_EQ(box_texts(), Names{"Overwrite existing file?"});
    EXPECT_EQ(folder.read("old.blk"), "former");
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(rs().DataFileName, "example-1.csv");
    os.saves.push_back(folder.path("old.blk"));
    os.yes_or_no.push_back(true);
    click(form(), "cmdNext");
    EXPECT_EQ(folder.read("old.blk").substr(0, 6), "\"Li7\",");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(MatrixWindow, AFullDiskEndsTheSaveWithoutAWordAndKeepsTheFormerFile) {
    go_creating("optCreatSTM");
    folder.write("old.stm", "former");
    os.saves.push_back(folder.path("old.stm"));
    os.yes_or_no.push_back(true);
    os.disk_room = 20;
    click(form(), "cmdNext");
    EXPECT_EQ(box_texts(), Names{"Overwrite existing file?"});
    EXPECT_EQ(folder.read("old.stm"), "former");
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(rs().DataFileName, "example-1.csv");
}

TEST_F(MatrixWindow, TypingALevelIsRefused) {
    go();
    type(form(), "comboProc", "3");
    EXPECT_EQ(box_texts(), Names{"You can not type directly the percent of probability here. Select from the roll-down "
                                 "list."});
    EXPECT_EQ(form().comboProc.text, " 5");
}

TEST_F(MatrixWindow, HelpAndExit) {
    go();
    click(form(), "hlp3");
    EXPECT_EQ(os.opened, Names{folder.path("kol-grubbs.pdf")});
    click(form(), "cmdCancel");
    EXPECT_TRUE(program->ended());
    EXPECT_EQ(program->status(), 0);
    EXPECT_EQ(box_texts(), Names{});
}

}  // namespace
}  // namespace kolvar::test
