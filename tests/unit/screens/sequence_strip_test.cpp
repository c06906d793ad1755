// The strip of the ratio screen in a batch: titles, counters, what is shown in which phase; and the ways into a batch.
#include "unit/screens/walk_fixture.hpp"

namespace kolvar::test {
namespace {

using Strip = OnWalk;

const std::map<int, std::string> measured{{11, "0.18"}};
const std::map<int, std::string> factors{{5, "1.01"}, {7, "0.99"}};
const std::map<int, std::string> measured_with_factors{{5, "1.01"}, {7, "0.99"}, {11, "0.18"}};

TEST_F(Strip, StandsWhereTheOtherFilesAreChosenOtherwise) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    EXPECT_TRUE(form().pictSeq.visible);
    EXPECT_EQ(form().pictSeq.left, 3735);
    EXPECT_EQ(form().pictSeq.left + form().pictSeq.width, form().width - 180);
    EXPECT_GE(form().pict1.top, form().pictSeq.top + form().pictSeq.height);
    EXPECT_FALSE(form().cmdNewFile.visible || form().cmdApp.visible);
    EXPECT_TRUE(form().lblRizsa(30).visible && form().lblDir.visible && form().lblRizsa(3).visible);
    EXPECT_EQ(form().lblDir.text, "  0-day.msf");
    EXPECT_EQ(form().lblmicsoda.text, "  a.csv");
    const char* const captions[] = {"<-- Open previous", "Open next -->", "Copy results", "Open", "Table", "Plot"};
    const Button* const buttons[] = {&form().cmdOpenPrev, &form().cmdOpenNext, &form().cmdCopyMas,
                                     &form().cmdOpenSeq,  &form().cmdShowTab,  &form().cmdPlot};
    for (std::size_t k = 0; k < 6; ++k) EXPECT_EQ(buttons[k]->text, captions[k]);
    EXPECT_EQ(form().cmdSaveAnd(0).text, "Save results and open previous");
    EXPECT_EQ(form().cmdSaveAnd(1).text, "Save results and open next");
    EXPECT_EQ(form().cmdInterpolation.text,
              "All standard measurement have been processed, you can perform the interpolation between the standard "
              "measurements now");
    resize(form(), 15000, 11000);
    resize(form(), 15000, 11000);
    EXPECT_EQ(form().pictSeq.left, 3735);
    EXPECT_EQ(form().pictSeq.left + form().pictSeq.width, 15000 - 180);
}

TEST_F(Strip, TellsTheStandardsWhileTheyAreProcessed) {
    write_day("0005/0000/0002/0001", five());
    go_to_day();
    EXPECT_EQ(form().lblRizsa(3).text, "Sequential processing of standard files");
    EXPECT_EQ(form().lblSeqTitle.text, "Sequential processing of standard files");
    EXPECT_EQ(form().lblPos.text, "1 of 5");
    EXPECT_EQ(form().lblStdFiNum.text, "2 / 1 done");
    EXPECT_EQ(form().lblSamFiNum.text, "3");
    EXPECT_FALSE(form().cmdInterpolation.visible);
    EXPECT_FALSE(form().cmdPlot.enabled);
}

TEST_F(Strip, ALineWithAMeasuredRatioIsProcessed) {
    write_day("0003/0000/0002/0001", {{"a.csv", true, {{11, "0.18"}}}, {"b.csv", false, {{11, "0"}}}, {"c.csv", true}});
    go_to_day();
    EXPECT_EQ(form().lblPos.text, "1 of 3  (processed)");
    next();
    EXPECT_EQ(form().lblPos.text, "3 of 3");
    // A measured ratio of exactly 0 is none.
    rs().SeqPhase = 0;
    previous();
    EXPECT_EQ(form().lblPos.text, "2 of 3");
}

TEST_F(Strip, TheInterpolationIsOfferedOnlyWithTheMoveAfterTheLastStandard) {
    write_day("0005/0000/0002/0001", five());
    go_to_day();
    next();
    mark_all();
    EXPECT_EQ(rs().SeqPhase, 1);
    save(1);
    EXPECT_EQ(rs().SeqStdDone, 2);
    EXPECT_EQ(rs().SeqPhase, 2);
    EXPECT_EQ(form().lblStdFiNum.text, "2 / ALL DONE");
    EXPECT_EQ(form().lblSamFiNum.text, "3");
    EXPECT_TRUE(form().cmdInterpolation.visible);
    EXPECT_EQ(form().cmdInterpolation.left, 7215);
    EXPECT_EQ(form().lblSeqTitle.text, "Sequential processing of standard files");
}

TEST_F(Strip, TheLastStandardLeftByNoStillIsOfTheFirstPhase) {
    write_day("0005/0000/0002/0001", five());
    go_to_day();
    next();
    mark_all();
    os.yes_or_no = {false};
    save(0);
    EXPECT_EQ(rs().SeqStdDone, 2);
    EXPECT_EQ(rs().SeqPhase, 1);
    EXPECT_FALSE(form().cmdInterpolation.visible);
    next();
    EXPECT_EQ(rs().SeqPhase, 2);
    EXPECT_TRUE(form().cmdInterpolation.visible);
}

TEST_F(Strip, TheOfferOfTheInterpolationStaysUntilItWasTaken) {
    write_day("0005/0000/0002/0002", five(measured));
    go_to_day();
    ASSERT_TRUE(form().cmdInterpolation.visible);
    rs().SeqPhase = 1;
    rs().SeqStdDone = 1;
    next();
    EXPECT_EQ(rs().SeqPhase, 1);
    EXPECT_TRUE(form().cmdInterpolation.visible);
    rs().SeqPhase = 3;
    next();
    EXPECT_FALSE(form().cmdInterpolation.visible);
}

TEST_F(Strip, CountsTheSamplesFromTheNumberOfTheStandards) {
    write_day("0005/0002/0002/0002", five(measured_with_factors, factors));
    go_to_day();
    EXPECT_EQ(form().lblRizsa(3).text, "Sequential processing of sample files");
    EXPECT_EQ(form().lblSeqTitle.text, "Sequential processing of sample files");
    EXPECT_EQ(form().lblStdFiNum.text, "2 / ALL DONE");
    EXPECT_EQ(form().lblSamFiNum.text, "3 / 0 done");
    EXPECT_FALSE(form().cmdInterpolation.visible);
    EXPECT_TRUE(form().cmdPlot.enabled);
    mark_all();
    save(1);
    EXPECT_EQ(form().lblSamFiNum.text, "3 / 1 done");
    EXPECT_EQ(form().lblPos.text, "3 of 5");
    save(1);
    EXPECT_EQ(form().lblSamFiNum.text, "3 / 2 done");
    os.yes_or_no = {true};
    save(1);
    EXPECT_EQ(form().lblSamFiNum.text, "3 / ALL DONE");
    EXPECT_EQ(form().lblPos.text, "1 of 5  (processed)");
    EXPECT_EQ(rs().SeqSamDone, 5);
}

// Factors mean samples, whatever the counters say.
TEST_F(Strip, StaysWithTheFileInWorkWhenAnotherWindowIsClosedBeyondTheEnd) {
    write_day("0005/0002/0002/0002", five(measured_with_factors, factors));
    go_to_day();
    os.yes_or_no = {false};
    previous();
    ASSERT_EQ(rs().SeqPos, 0);
    EXPECT_EQ(form().lblPos.text, "1 of 5");
    click(form(), "cmdPlot");
    click(forms().frm_drift, "cmdClose");
    EXPECT_EQ(form().lblPos.text, "1 of 5");
    click(form(), "cmdShowTab");
    click(forms().frm_FileList, "cmdClose");
    EXPECT_EQ(form().lblPos.text, "1 of 5");
    EXPECT_EQ(rs().SeqPos, 0);
}

TEST_F(Strip, SamplesWithoutAllStandardsAreOnlyNumbered) {
    write_day("0005/0000/0002/0001", five(factors, factors));
    go_to_day();
    EXPECT_EQ(rs().SeqPhase, 3);
    EXPECT_EQ(form().lblStdFiNum.text, "2 / 1 done");
    EXPECT_EQ(form().lblSamFiNum.text, "3");
}

TEST_F(Strip, IsGoneWhenFilesAreProcessedOneByOne) {
    go();
    EXPECT_FALSE(form().pictSeq.visible || form().lblRizsa(30).visible || form().lblDir.visible);
    EXPECT_FALSE(form().lblRizsa(3).visible || form().cmdInterpolation.visible);
    EXPECT_TRUE(form().cmdNewFile.visible && form().cmdApp.visible);
    mark_all();
    EXPECT_TRUE(cannot_save());
    EXPECT_FALSE(form().cmdCopyMas.enabled);
}

TEST_F(Strip, IsThereAgainAfterTheWayBackAndForth) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    next();
    click(form(), "cmdBack");
    click(forms().frm1_Settings, "cmdOK1");
    EXPECT_TRUE(form().pictSeq.visible);
    EXPECT_EQ(form().lblPos.text, "2 of 5");
    EXPECT_EQ(file(), "b.csv");
}

TEST_F(Strip, WithoutAMasterFileNoInterpolationIsOfferedAndNothingIsSaved) {
    folder.write("day/0-day.msf", "a day's work");
    program->start(1);
    rs().setFormer_Sel = 0;
    table("a.csv");
    click(forms().frm1_Settings, "cmdCreate");
    ProgramOnKit::choose(forms().frm_FileList, "Dir1", folder.path("day"));
    ASSERT_EQ(rs().MasterPath, day("0-day.msf"));
    forget_boxes();
    click(forms().frm_FileList, "cmdClose");
    rs().HgChosen = true;
    click(forms().frm1_Settings, "cmdOK1");
    ASSERT_TRUE(form().pictSeq.visible);
    EXPECT_FALSE(form().cmdInterpolation.visible);
    EXPECT_EQ(rs().SeqPhase, 0);
    next();
    mark_all();
    EXPECT_TRUE(cannot_save());
    EXPECT_EQ(folder.read("day/0-day.msf"), "a day's work");
}

TEST_F(Strip, TheSequentialChoiceOpensTheListBesideTheStartPanel) {
    program->start(1);
    Frm1Settings& panel = forms().frm1_Settings;
    click(panel, "cmdSequential");
    EXPECT_EQ(rs().SeqMode, Value(true));
    EXPECT_FALSE(panel.cmdIndividual.visible || panel.cmdSequential.visible);
    EXPECT_TRUE(panel.cmdCreate.visible && panel.cmdOpenMaster.visible);
    EXPECT_EQ(rs().ListMode, 0);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_FileList"}));
}

TEST_F(Strip, ANewMasterFileBeginsWithANewList) {
    program->start(1);
    rs().ListMode = 2;
    Frm1Settings& panel = forms().frm1_Settings;
    click(panel, "cmdCreate");
    EXPECT_EQ(rs().SeqMode, Value(true));
    EXPECT_EQ(rs().ListMode, 0);
    EXPECT_FALSE(panel.cmdIndividual.visible || panel.cmdChooseUP.visible || panel.lblUP.visible);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_FileList"}));
}

TEST_F(Strip, TheIndividualChoiceHidesWhatIsOfBatches) {
    program->start(1);
    Frm1Settings& panel = forms().frm1_Settings;
    EXPECT_FALSE(panel.lblCaptionUP.enabled);
    click(panel, "cmdIndividual");
    EXPECT_EQ(rs().SeqMode, Value(false));
    EXPECT_FALSE(panel.cmdCreate.visible || panel.cmdOpenMaster.visible || panel.cmdSequential.visible ||
                 panel.lblCaptionSeq.visible);
    EXPECT_TRUE(panel.lblCaptionUP.enabled && panel.lblCaptionUP.visible);
}

}  // namespace
}  // namespace kolvar::test
