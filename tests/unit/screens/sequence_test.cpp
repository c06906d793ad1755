// The walk through a master list: which files are opened, the questions at its ends, saving, and what stands in the
// way.
#include "screens/sequence.hpp"

#include "unit/screens/walk_fixture.hpp"

namespace kolvar::test {
namespace {

using Walk = OnWalk;

const std::string last_standard = "This is the last standard file. Process the first one?";
const std::string first_standard = "This is the first standard file. Process the last one?";
const std::string last_sample = "This is the last sample file. Process the first one?";
const std::string first_sample = "This is the first sample file. Process the last one?";

const std::map<int, std::string> factors{{5, "1.01"}, {7, "0.99"}};
const std::map<int, std::string> measured_with_factors{{5, "1.01"}, {7, "0.99"}, {11, "0.18"}};

TEST_F(Walk, BeginsAtTheFirstLineAlsoWhenItIsASample) {
    write_day("0005/0000/0002/0000", five());
    program->start(1);
    open_master();
    EXPECT_EQ(os.dialogs.back().filter, "All Files (*.*)|*.*|Master Files (*.msf)|*.msf");
    EXPECT_EQ(os.dialogs.back().index, 2);
    EXPECT_EQ(rs().SeqMode, Value(true));
    EXPECT_EQ(rs().MasterPath, day("0-day.msf"));
    EXPECT_EQ(rs().MasterName, "0-day.msf");
    EXPECT_EQ(rs().MasterDir, day(""));
    EXPECT_EQ(rs().SeqPhase, 1);
    EXPECT_EQ(rs().SeqPos, 1);
    EXPECT_EQ(file(), "a.csv");
    EXPECT_EQ(rs().DataFilePath, day("a.csv"));
    EXPECT_EQ(rs().Method, 1);
    EXPECT_EQ(rs().BlankFromData, 1);
    EXPECT_EQ(rs().PlotOn, 0);
    EXPECT_TRUE(rs().HgChosen);
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Walk, OpensTheStandardsAloneWhileTheyAreProcessed) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    os.yes_or_no = {true};
    EXPECT_EQ(files(3, "cmdOpenNext"), (Names{"b.csv", "d.csv", "b.csv"}));
    EXPECT_EQ(box_texts(), Names{last_standard});
    EXPECT_EQ(os.boxes[0].kind, "question");
    EXPECT_EQ(os.boxes[0].title, "");
    forget_boxes();
    os.yes_or_no = {true, true};
    EXPECT_EQ(files(3, "cmdOpenPrev"), (Names{"d.csv", "b.csv", "d.csv"}));
    EXPECT_EQ(box_texts(), (Names{first_standard, first_standard}));
}

TEST_F(Walk, OpensTheSamplesAloneAfterTheInterpolation) {
    write_day("0005/0002/0002/0002", five(measured_with_factors, factors));
    go_to_day();
    EXPECT_EQ(rs().SeqPhase, 3);
    EXPECT_EQ(file(), "a.csv");
    os.yes_or_no = {true};
    EXPECT_EQ(files(3, "cmdOpenNext"), (Names{"c.csv", "e.csv", "a.csv"}));
    EXPECT_EQ(box_texts(), Names{last_sample});
    forget_boxes();
    os.yes_or_no = {true};
    EXPECT_EQ(files(3, "cmdOpenPrev"), (Names{"e.csv", "c.csv", "a.csv"}));
    EXPECT_EQ(box_texts(), Names{first_sample});
}

TEST_F(Walk, BeginsAtTheFirstSampleAfterTheInterpolation) {
    write_day("0003/0001/0001/0001", {{"a.csv", true, measured_with_factors}, {"b.csv"}, {"c.csv"}});
    go_to_day();
    EXPECT_EQ(rs().SeqPos, 2);
    EXPECT_EQ(file(), "b.csv");
}

TEST_F(Walk, BeginsAtTheFirstLineWhenThereIsNoSampleAfterTheInterpolation) {
    write_day("0002/0002/0002/0002", {{"a.csv", true, measured_with_factors}, {"b.csv", true, measured_with_factors}});
    go_to_day();
    EXPECT_EQ(rs().SeqPos, 1);
    EXPECT_EQ(file(), "a.csv");
    EXPECT_EQ(form().lblPos.text, "1 of 2  (processed)");
}

TEST_F(Walk, AListWithoutAFileOfTheKindIsOfferedRoundByRoundUntilNo) {
    write_day("0002/0002/0002/0002", {{"a.csv", true, measured_with_factors}, {"b.csv", true, measured_with_factors}});
    go_to_day();
    os.yes_or_no = {true, true, false};
    next();
    EXPECT_EQ(box_texts(), Names(3, last_sample));
    EXPECT_EQ(rs().SeqPos, 3);
    forget_boxes();
    os.yes_or_no = {true, false};
    previous();
    EXPECT_EQ(box_texts(), Names(2, first_sample));
    EXPECT_EQ(rs().SeqPos, 0);
    EXPECT_EQ(file(), "a.csv");
    EXPECT_TRUE(cannot_save());
}

TEST_F(Walk, StaysBeyondTheEndAfterNoAndTheWayBackStartsThere) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    next();
    mark_all();
    next();
    ASSERT_EQ(file(), "d.csv");
    ASSERT_TRUE(can_save());
    os.yes_or_no = {false};
    next();
    EXPECT_EQ(rs().SeqPos, 6);
    EXPECT_EQ(file(), "d.csv");
    EXPECT_TRUE(cannot_save());
    mark_up(2, 0, 20);
    EXPECT_TRUE(cannot_save());
    previous();
    EXPECT_EQ(rs().SeqPos, 4);
    EXPECT_EQ(file(), "d.csv");
    EXPECT_TRUE(can_save());
    previous();
    os.yes_or_no = {false};
    previous();
    EXPECT_EQ(rs().SeqPos, 0);
    next();
    EXPECT_EQ(rs().SeqPos, 2);
    EXPECT_EQ(box_texts(), (Names{last_standard, first_standard}));
}

TEST_F(Walk, AsksAgainEachTimeItIsLedFurtherBeyondTheEnd) {
    write_day("0005/0002/0002/0002", five(measured_with_factors, factors));
    go_to_day();
    os.yes_or_no = {false, false};
    previous();
    previous();
    EXPECT_EQ(rs().SeqPos, -1);
    next();
    EXPECT_EQ(file(), "a.csv");
    EXPECT_EQ(rs().SeqPos, 1);
    EXPECT_EQ(os.boxes.size(), 2U);
}

// More standards done than there are: neither kind is passed over.
TEST_F(Walk, OpensEveryLineWithoutAPhase) {
    write_day("0005/0000/0002/0003", five());
    go_to_day();
    EXPECT_EQ(rs().SeqPhase, 0);
    os.yes_or_no = {true, true};
    EXPECT_EQ(files(5, "cmdOpenNext"), (Names{"b.csv", "c.csv", "d.csv", "e.csv", "a.csv"}));
    previous();
    EXPECT_EQ(box_texts(), (Names{last_standard, first_standard}));
}

TEST_F(Walk, SavesTheLineAndMovesEitherWay) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    next();
    mark_all();
    save(1);
    EXPECT_EQ(file(), "d.csv");
    EXPECT_EQ(rs().SeqStdDone, 1);
    EXPECT_EQ(rs().ListMode, 1);
    EXPECT_EQ(rs().MasterRecs(2, 25).text(), "12 to 21");
    EXPECT_EQ(rs().MasterRecs(2, 23).text(), "7 Jan. 2009");
    EXPECT_EQ(folder.read("day/0-day.msf").substr(0, 21), "\"0005/0000/0002/0001\"");
    save(0);
    EXPECT_EQ(file(), "b.csv");
    EXPECT_EQ(rs().SeqStdDone, 2);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Walk, ASecondSaveDoesNotCountAndReplacesTheResults) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    next();
    mark_all();
    save(1);
    const std::string mean = rs().MasterRecs(2, 11).text();
    previous();
    mark_up(2, 0, 15);
    save(1);
    EXPECT_EQ(rs().SeqStdDone, 1);
    EXPECT_EQ(rs().MasterRecs(2, 25).text(), "12 to 15");
    EXPECT_NE(rs().MasterRecs(2, 11).text(), mean);
    EXPECT_EQ(folder.read("day/0-day.msf").substr(0, 21), "\"0005/0000/0002/0001\"");
}

TEST_F(Walk, GoesOnFromTheFileWhereItStopped) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    next();
    mark_all();
    save(1);
    program = std::make_unique<Program>(os, folder.path());
    go_to_day();
    EXPECT_EQ(rs().SeqStdDone, 1);
    EXPECT_EQ(rs().SeqPhase, 1);
    EXPECT_EQ(rs().SeqPos, 1);
    next();
    EXPECT_EQ(form().lblPos.text, "2 of 5  (processed)");
    EXPECT_EQ(form().lblStdFiNum.text, "2 / 1 done");
}

TEST_F(Walk, OnlyTheKindOfLineInWorkCanBeSaved) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    mark_all();
    EXPECT_TRUE(cannot_save());  // the sample that the list begins with
    EXPECT_TRUE(form().cmdCopyMas.enabled);
    next();
    EXPECT_TRUE(can_save());
    mark_up(2, 0, 20);
    EXPECT_TRUE(can_save());
    rs().SeqPhase = 3;
    mark_up(2, 0, 21);
    EXPECT_TRUE(cannot_save());
    EXPECT_TRUE(form().cmdCopyMas.enabled);
}

TEST_F(Walk, NothingCanBeSavedBeforeAllLimitsAreMarked) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    next();
    EXPECT_TRUE(cannot_save());
    EXPECT_FALSE(form().cmdCopyMas.enabled);
    mark_up(1, 1, 2);
    mark_up(2, 1, 7);
    mark_up(1, 0, 12);
    EXPECT_TRUE(cannot_save());
    mark_up(2, 0, 21);
    EXPECT_TRUE(can_save());
}

TEST_F(Walk, AFileOpenedBesideTheListIsNotSavedIntoItsLine) {
    write_day("0005/0000/0002/0000", five());
    table("other.csv");
    go_to_day();
    next();
    mark_all();
    click(form(), "cmdBack");
    os.opens = {day("other.csv")};
    click(forms().frm1_Settings, "mnuFile", 0);
    ASSERT_EQ(file(), "other.csv");
    ASSERT_EQ(shown_windows(), Names{"frm2_UP"});
    EXPECT_TRUE(cannot_save());
    mark_up(2, 0, 20);
    EXPECT_TRUE(cannot_save());
    EXPECT_TRUE(form().cmdCopyMas.enabled);
    previous();
    next();
    EXPECT_EQ(file(), "b.csv");
    EXPECT_TRUE(can_save());
}

TEST_F(Walk, ALineWithoutANameIsPassedWithoutLoadingAndNotSaved) {
    Lines lines = five();
    lines[3].name.clear();
    write_day("0005/0000/0002/0000", five());
    std::string bytes = header("0005/0000/0002/0000");
    int number = 0;
    for (const Line& line : lines) bytes += record(line, ++number);
    folder.write("day/0-day.msf", bytes);
    go_to_day();
    next();
    mark_all();
    ASSERT_TRUE(can_save());
    next();
    EXPECT_EQ(rs().SeqPos, 4);
    EXPECT_EQ(file(), "b.csv");
    EXPECT_TRUE(cannot_save());
    mark_up(2, 0, 20);
    EXPECT_TRUE(cannot_save());
}

TEST_F(Walk, LimitsStayWithFilesOfTheSameLengthWhenSoSet) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    next();
    mark_all();
    next();
    EXPECT_EQ(rs().SelLow.val(), 12);
    EXPECT_EQ(rs().BlkUpp.val(), 7);
    EXPECT_EQ(rs().FormerLow.val(), 12);
    EXPECT_EQ(rs().FormerUpp.val(), 21);
    EXPECT_EQ(form().lblMeasSel.text, "10");
    EXPECT_NE(rs().Mean68, 0);
    EXPECT_EQ(form().lblFormer2.text, "12 - 21");
    rs().setFormer_Sel = 0;
    previous();
    EXPECT_FALSE(rs().SelLow.is_set());
    EXPECT_FALSE(rs().BlkUpp.is_set());
    EXPECT_EQ(rs().FormerLow.val(), 12);
    EXPECT_EQ(form().lblMeasSel.text, "");
    EXPECT_EQ(form().lbl6_8.text, "");
    EXPECT_EQ(rs().Mean68, 0);
    EXPECT_TRUE(cannot_save());
}

TEST_F(Walk, AFileOfAnotherLengthDropsTheLimits) {
    write_day("0005/0000/0002/0000", five());
    folder.write("day/d.csv", "Pb206,Pb207,Pb208,U238\n1,2,3,4\n1,2,3,4\n");
    go_to_day();
    next();
    mark_all();
    next();
    EXPECT_EQ(rs().nSlices, 2);
    EXPECT_EQ(form().lblMeasTot.text, "2");
    EXPECT_FALSE(rs().SelLow.is_set());
    EXPECT_FALSE(form().chk75.enabled);  // U235 is not measured here
    EXPECT_TRUE(cannot_save());
}

TEST_F(Walk, TheWindowKeepsTicksAndScalesFromFileToFile) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    click(form(), "optLi");
    const bool ticked = form().chk76.on();
    click(form(), "chk76");
    scroll(form(), "VScroll1", 40);
    next();
    EXPECT_TRUE(form().optLi.on());
    EXPECT_TRUE(rs().LinearView);
    EXPECT_EQ(form().chk76.on(), !ticked);
    EXPECT_EQ(form().VScroll1.value, 1);  // the new signals are drawn at their full height
}

TEST_F(Walk, AFileOfAnotherKindKeepsTheOldDataAndTheWalkGoesOn) {
    Lines lines = five();
    lines[3].name = "notes.doc";
    write_day("0005/0000/0002/0000", lines);
    go_to_day();
    next();
    mark_all();
    const double mean = rs().Mean68;
    next();
    EXPECT_EQ(file(), "notes.doc");
    EXPECT_EQ(form().lblmicsoda.text, "  notes.doc");
    EXPECT_EQ(rs().nSlices, 30);
    EXPECT_EQ(rs().SelUpp.val(), 21);
    EXPECT_EQ(rs().Mean68, mean);  // reckoned again from the data at hand
    EXPECT_TRUE(can_save());
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Walk, AFileThatHasDisappearedIsToldAndCanNotBeSaved) {
    write_day("0005/0000/0002/0000", five());
    std::filesystem::remove(day("d.csv"));
    go_to_day();
    next();
    mark_all();
    const std::string master = folder.read("day/0-day.msf");
    next();
    EXPECT_EQ(box_texts(), Names{"Error occurred while trying to load file: " + day("d.csv") +
                                 " , please retry or check the file."});
    EXPECT_EQ(rs().SeqPos, 4);
    EXPECT_EQ(rs().MasterRecs(4, 0).text(), "d.csv");
    EXPECT_EQ(rs().SeqStdDone, 0);
    EXPECT_FALSE(rs().SelLow.is_set());
    EXPECT_TRUE(cannot_save());
    forget_boxes();
    mark_up(1, 1, 2);
    mark_up(2, 1, 7);
    mark_up(1, 0, 12);
    mark_up(2, 0, 21);
    EXPECT_TRUE(cannot_save());
    EXPECT_EQ(folder.read("day/0-day.msf"), master);
    forget_boxes();
    previous();
    EXPECT_EQ(file(), "b.csv");
    mark_all();
    EXPECT_TRUE(can_save());
}

TEST_F(Walk, AFullDiskLeavesListAndLineAndTheSameButtonTriesAgain) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    next();
    mark_all();
    const std::string master = folder.read("day/0-day.msf");
    os.disk_room = 100;
    save(1);
    EXPECT_EQ(box_texts(), Names{"Error occurred while trying to save the master file, please retry."});
    EXPECT_EQ(folder.read("day/0-day.msf"), master);
    EXPECT_EQ(rs().SeqStdDone, 0);
    EXPECT_EQ(rs().MasterRecs(2, 11).text(), "");
    EXPECT_EQ(file(), "b.csv");
    forget_boxes();
    os.disk_room = static_cast<std::size_t>(-1);
    save(1);
    EXPECT_EQ(rs().SeqStdDone, 1);
    EXPECT_EQ(file(), "d.csv");
    EXPECT_NE(folder.read("day/0-day.msf"), master);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Walk, ACancelledChoiceOfTheMasterFileOpensNothing) {
    program->start(1);
    const std::string before = file();
    os.opens = {""};
    click(forms().frm1_Settings, "cmdOpenMaster");
    EXPECT_EQ(rs().SeqMode, Value(true));
    EXPECT_EQ(rs().SetFilePath, "");
    EXPECT_EQ(rs().MasterPath, "");
    EXPECT_EQ(file(), before);
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(Walk, AMasterFileThatCannotBeReadLeavesModeAndListAsTheyWere) {
    folder.write("day/short.msf", header("0005/0000/0002/0000") + "\"a.csv\",1\r\n");
    folder.write("day/garbage.msf", "Time,U238\n1,2\n");
    folder.write("day/long.msf", header("0501/0000/0002/0000"));
    write_day("0005/0000/0002/0000", five());
    program->start(1);
    for (const char* bad : {"short.msf", "garbage.msf", "long.msf", "none.msf"}) {
        forget_boxes();
        open_master(day(bad));
        ASSERT_EQ(os.boxes.size(), 1U) << bad;
        EXPECT_EQ(os.boxes[0].kind, "fault") << bad;
        EXPECT_EQ(rs().SeqMode, Value("")) << bad;
        EXPECT_EQ(rs().MasterPath, "") << bad;
        EXPECT_EQ(rs().MasterName, "") << bad;
        EXPECT_EQ(rs().SeqCount, 0) << bad;
    }
    forget_boxes();
    rs().setFormer_Sel = 0;
    open_master();
    next();
    click(form(), "cmdBack");
    open_master(day("short.msf"));
    EXPECT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(rs().SeqMode, Value(true));
    EXPECT_EQ(rs().MasterPath, day("0-day.msf"));
    EXPECT_EQ(rs().MasterName, "0-day.msf");
    EXPECT_EQ(rs().SeqCount, 5);
    EXPECT_EQ(rs().SeqPos, 2);
    EXPECT_EQ(rs().MasterRecs(4, 0).text(), "d.csv");
}

TEST_F(Walk, AFileWithoutTheIsotopesIsReportedAndTheWalkCanGoOnOverIt) {
    write_day("0005/0000/0003/0000", five());
    folder.write("day/b.csv", "Si29,U238\n1,2\n3,4\n");
    go_to_day();
    mark_all();
    next();
    EXPECT_EQ(shown_windows(), (Names{"frm2_UP", "frm_Missing_UPb"}));
    click(forms().frm_Missing_UPb, "cmdSorry");
    EXPECT_EQ(shown_windows(), (Names{"frm2_UP", "frm1_Settings"}));
    EXPECT_FALSE(rs().HgChosen);
    EXPECT_TRUE(forms().frm1_Settings.cmdOpenMaster.enabled);
    // Nothing of such a file can be saved, whatever is marked in it.
    EXPECT_FALSE(form().cmdSaveAnd(1).enabled);
    mark_all();
    EXPECT_FALSE(form().cmdSaveAnd(1).enabled);
    next();
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
    EXPECT_EQ(file(), "d.csv");
    EXPECT_TRUE(rs().HgChosen);
    EXPECT_TRUE(form().pictSeq.visible);
}

TEST_F(Walk, AfterAFileWithoutTheIsotopesTheListCanBeOpenedAgain) {
    write_day("0005/0000/0002/0000", five());
    folder.write("day/b.csv", "Si29,U238\n1,2\n3,4\n");
    go_to_day();
    next();
    click(forms().frm_Missing_UPb, "cmdSorry");
    open_master();
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
    EXPECT_EQ(file(), "a.csv");
    EXPECT_TRUE(rs().HgChosen);
    EXPECT_TRUE(form().pictSeq.visible);
}

TEST_F(Walk, TheChoiceOfTheMercuryIsotopeLeadsIntoTheWalk) {
    write_day("0005/0000/0002/0001", five());
    for (const char* name : {"a.csv", "b.csv", "d.csv"})
        folder.write(std::string("day/") + name, "Hg200,Hg202,Pb206,Pb207,Pb208,U238\n1,1,2,3,4,5\n1,1,2,3,4,5\n");
    program->start(1);
    open_master();
    EXPECT_EQ(shown_windows(), Names{"frm_Hg_isot"});
    EXPECT_FALSE(rs().HgChosen);
    click(forms().frm_Hg_isot, "opt200");
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
    EXPECT_EQ(form().lblPos.text, "1 of 5");
    EXPECT_TRUE(form().pictSeq.visible);
    click(form(), "optLi");
    next();
    EXPECT_EQ(shown_windows(), Names{"frm_Hg_isot"});
    EXPECT_EQ(rs().PlotOn, 0);
    click(forms().frm_Hg_isot, "opt202");
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
    EXPECT_EQ(rs().HgMass, 202);
    EXPECT_TRUE(rs().HgChosen);
    EXPECT_EQ(form().lblPos.text, "2 of 5");
    EXPECT_EQ(form().lblmicsoda.text, "  b.csv");
    EXPECT_EQ(form().lblStdFiNum.text, "2 / 1 done");
    EXPECT_GT(lines_of(form().pict1), 0);
    EXPECT_TRUE(form().optLi.on());  // the window was only out of the way
}

TEST_F(Walk, TheMercuryQuestionLeftWithoutAnAnswerLeavesNoRatioScreenBehind) {
    write_day("0005/0000/0002/0000", five());
    folder.write("day/b.csv", "Hg200,Hg202,Pb206,Pb207,Pb208,U238\n1,1,2,3,4,5\n");
    go_to_day();
    next();
    close(forms().frm_Hg_isot);
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    EXPECT_FALSE(form().loaded);
}

TEST_F(Walk, AnEmptyNameDoesNothing) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    rs().NextFile.clear();
    Sequence_next(program->context());
    EXPECT_EQ(file(), "a.csv");
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
}

TEST_F(Walk, AListWithoutFilesOpensNothing) {
    folder.write("day/0-day.msf", header("0000/0000/0000/0000"));
    program->start(1);
    const std::string before = file();
    open_master();
    EXPECT_EQ(file(), before);
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Walk, ALineOfTheListWindowBecomesTheOneInWork) {
    write_day("0005/0000/0002/0000", five());
    go_to_day();
    click(form(), "cmdOpenSeq");
    EXPECT_EQ(rs().ListMode, 1);
    EXPECT_EQ(program->shell().active(), &forms().frm_FileList);
    open_listed_file(program->context(), 3);
    EXPECT_EQ(rs().SeqPos, 3);
    EXPECT_EQ(file(), "c.csv");
    EXPECT_EQ(form().lblPos.text, "3 of 5");
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
}

TEST_F(Walk, TheTableAndTheDriftOpenBesideTheScreen) {
    write_day("0005/0002/0002/0002", five(measured_with_factors, factors));
    go_to_day();
    click(form(), "cmdShowTab");
    EXPECT_EQ(rs().ListMode, 2);
    EXPECT_EQ(shown_windows(), (Names{"frm2_UP", "frm_FileList"}));
    click(forms().frm_FileList, "cmdClose");
    click(form(), "cmdPlot");
    EXPECT_EQ(shown_windows(), (Names{"frm2_UP", "frm_drift"}));
}

TEST_F(Walk, AnotherMasterFileClosesTheDriftAndTheListOfTheFormerOne) {
    write_day("0005/0000/0002/0002", five(measured_with_factors));
    go_to_day();
    program->shell().open(forms().frm_drift);
    forms().frm_drift.cmdAccept.enabled = true;  // as after a plot
    click(form(), "cmdShowTab");
    program->shell().open(forms().frm1_Settings);
    // Neither a cancelled dialog nor a file that can't be read is another list.
    os.opens = {""};
    click(forms().frm1_Settings, "cmdOpenMaster");
    open_master(day("none.msf"));
    EXPECT_TRUE(forms().frm_drift.shown && forms().frm_FileList.shown);
    std::filesystem::rename(day("0-day.msf"), day("1-next.msf"));
    form().pictSeq.enabled = false;  // as while a list was made
    open_master(day("1-next.msf"));
    EXPECT_FALSE(forms().frm_drift.shown || forms().frm_FileList.shown);
    EXPECT_TRUE(form().pictSeq.enabled);
    program->shell().open(forms().frm_drift);
    EXPECT_EQ(forms().frm_drift.title, "Drift plot of 1-next.msf");
    EXPECT_FALSE(forms().frm_drift.cmdAccept.enabled);
}

}  // namespace
}  // namespace kolvar::test
