// The ways out of the results: file, clipboard, preview, and the tasks that may follow.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Names = std::vector<std::string>;

class OutputWindows : public ProgramOnKit {
protected:
    OutputWindows() { set_key("setTestBlank", "0"); }
    Frm4Output& form() { return forms().frm4_Output; }
    // With one datum rejected by hand.
    void go() {
        go_to_marked_selection();
        click(forms().frm2_Time, "cmdNext");
        Event event = event_of(EventKind::cell_click, forms().frm3_Matrix, "FlexGrid1");
        event.row = 3;
        event.col = 2;
        program->dispatch(event);
        click(forms().frm3_Matrix, "cmdNext");
        ASSERT_EQ(shown_windows(), Names{"frm4_Output"});
        ASSERT_EQ(rs().nRejected, 1);
        forget_boxes();
    }
    void expect_no_rejection_left() {
        EXPECT_EQ(rs().nRejected, 0);
        EXPECT_EQ(rs().RejManual, 0);
        EXPECT_EQ(rs().Rej(3, 61), 0);
        EXPECT_EQ(rs().nData(3), 61);
    }
};

TEST_F(OutputWindows, ShowsTheFileAndSavesUnderANameFromIt) {
    go();
    EXPECT_EQ(form().title, "KOLVAR  -  Step 4: Output results");
    EXPECT_EQ(form().lblkivagy.text, "  example-1.csv  ");
    os.saves.push_back(folder.path("typed as it is"));
    click(form(), "cmdSave");
    EXPECT_EQ(os.dialogs.back().filter, "All Files (*.*)|*.*|Tab delimited text files (*.txt)|*.txt");
    EXPECT_EQ(os.dialogs.back().index, 2);
    EXPECT_EQ(os.dialogs.back().name, "example-1_M_t60-t120.txt");
    EXPECT_EQ(folder.read("typed as it is").substr(0, 7), "\"* * * ");  // no ending is added
    EXPECT_EQ(rs().SetFilePath, folder.path("typed as it is"));
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(OutputWindows, CancelNoAndAFullDiskLeaveTheFormerFileInSilence) {
    go();
    folder.write("old.txt", "former");
    os.saves.push_back(std::nullopt);
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Names{});
    os.saves.push_back(folder.path("old.txt"));
    os.yes_or_no.push_back(false);
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Names{"Overwrite existing file?"});
    os.saves.push_back(folder.path("old.txt"));
    os.yes_or_no.push_back(true);
    os.disk_room = 100;
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), (Names{"Overwrite existing file?", "Overwrite existing file?"}));
    EXPECT_EQ(folder.read("old.txt"), "former");
    EXPECT_EQ(shown_windows(), Names{"frm4_Output"});
}

TEST_F(OutputWindows, ClipboardGetsTheTableWithoutTheQuotesOfTheFile) {
    go();
    os.clip = "former";
    click(form(), "cmdCopyAll");
    EXPECT_EQ(os.clip, rs().OutText);
    EXPECT_EQ(os.clip.substr(0, 6), "* * * ");
    EXPECT_EQ(os.clip.find('\n'), std::string::npos);
}

TEST_F(OutputWindows, PreviewReturnsToTheResults) {
    go();
    click(form(), "cmdPreview");
    EXPECT_EQ(program->shell().active(), &forms().frm5_Preview);
    EXPECT_EQ(forms().frm5_Preview.lblKiVagy.text, "  example-1.csv  ");
    EXPECT_EQ(forms().frm5_Preview.FlexGrid1.cell(1, 0).fore, palette(12));
    click(forms().frm5_Preview, "cmdOK");
    EXPECT_EQ(shown_windows(), Names{"frm4_Output"});
}

TEST_F(OutputWindows, PreviewThatIsLeftOpenGoesWithTheResults) {
    go();
    click(form(), "cmdPreview");
    click(form(), "cmdClose");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(OutputWindows, AnotherTimeIntervalKeepsTheLimitsAndDropsTheRejection) {
    go();
    rs().SelCount = 4;
    click(form(), "cmdNewSel");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    expect_no_rejection_left();
    EXPECT_EQ(rs().SelCount, 5);
    EXPECT_EQ(rs().SelLow, Limit(60));
    click(forms().frm2_Time, "cmdNext");  // the matrix starts anew
    EXPECT_EQ(forms().frm3_Matrix.FlexGrid1.cell(3, 2).back, palette(15));
}

TEST_F(OutputWindows, AnotherInternalStandardKeepsTheFiles) {
    go();
    rs().SelCount = 4;
    click(form(), "cmdNewIS");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    expect_no_rejection_left();
    EXPECT_TRUE(rs().KeepData);
    EXPECT_EQ(rs().SelCount, 0);
    const Frm1Settings& settings = forms().frm1_Settings;
    EXPECT_TRUE(settings.cmdNext.enabled && settings.comboIso.enabled);
    EXPECT_FALSE(settings.cmdLoadCSV.enabled || settings.cmdLoadDWE.enabled);
    choose(forms().frm1_Settings, "comboIso", "Ca43");
    click(forms().frm1_Settings, "cmdNext");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_EQ(rs().SelLow, Limit(60));
}

TEST_F(OutputWindows, AnotherStandardForgetsCompositionAndMeasurement) {
    go();
    rs().KeepData = true;
    click(form(), "cmdNewST");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    expect_no_rejection_left();
    EXPECT_FALSE(rs().KeepData);
    EXPECT_EQ(rs().SelCount, 0);
    for (const std::string& forgotten : {rs().STCfileName, rs().STCfilePath, rs().STMfileName, rs().STMfilePath})
        EXPECT_EQ(forgotten, "");
    EXPECT_EQ(forms().frm1_Settings.lblSTC.text, "    ");
    EXPECT_EQ(rs().DataFileName, "example-1.csv");
    click(forms().frm1_Settings, "cmdOK");
    EXPECT_EQ(box_texts(), Names{"Choose a Standard Composition File."});
}

TEST_F(OutputWindows, AnotherDataFileForgetsThePresentOne) {
    go();
    rs().KeepData = true;
    click(form(), "cmdClose");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    expect_no_rejection_left();
    EXPECT_FALSE(rs().KeepData);
    EXPECT_EQ(rs().DataFileName, "");
    EXPECT_EQ(rs().DataFilePath, "");
    EXPECT_FALSE(program->ended());
    click(forms().frm1_Settings, "cmdOK");
    EXPECT_EQ(box_texts(), Names{"Choose a Data File."});
}

TEST_F(OutputWindows, HelpEntriesOpenTheirDocumentsAndExitEnds) {
    go();
    click(form(), "hlp4", 0);
    click(form(), "hlp4", 1);
    EXPECT_EQ(os.opened, (Names{folder.path("kol-equ-01.pdf"), folder.path("kol-out.pdf")}));
    click(form(), "cmdExit");
    EXPECT_TRUE(program->ended());
    EXPECT_EQ(program->status(), 0);
}

}  // namespace
}  // namespace kolvar::test
