// The list of a batch: folder, order, marks, changes by hand, saving, and the ways it is opened.
#include <algorithm>
#include <filesystem>

#include "batch/master_file.hpp"
#include "core/files.hpp"
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Names = std::vector<std::string>;

class FileList : public ProgramOnKit {
protected:
    FrmFileList& form() { return forms().frm_FileList; }
    Grid& grid() { return form().FlexGrid2; }
    void open() {
        program->start(1);
        click(forms().frm1_Settings, "cmdSequential");
        ASSERT_EQ(shown_windows().back(), "frm_FileList");
    }
    // A folder "run" with these files, chosen in the list window.
    void choose_run(const Names& names) {
        std::filesystem::create_directories(folder.path("run"));
        for (const std::string& name : names) folder.write("run/" + name, "x");
        choose(form(), "Dir1", folder.path("run"));
    }
    void order(const Names& names, int place, const std::string& length, const std::string& start = "1") {
        open();
        choose_run(names);
        click(form(), "optStringSearch", place);
        choose(form(), "Combo2", length);
        choose(form(), "Combo1", start);
        click(form(), "cmdReOrd");
    }
    void dblclick_cell(int row, int col) {
        Event event = event_of(EventKind::cell_dblclick, form(), "FlexGrid2");
        event.row = row;
        event.col = col;
        program->dispatch(event);
    }
    Names column(int col) {
        Names texts;
        for (int line = 1; line <= rs().SeqCount; ++line) texts.push_back(grid().cell(line, col).text);
        return texts;
    }
};

TEST_F(FileList, OpensWithTheKeysOfTheDefaultFile) {
    open();
    EXPECT_EQ(form().Combo1.items.size(), 25U);
    EXPECT_EQ(form().Combo2.items.size(), 5U);
    EXPECT_TRUE(form().optStringSearch(0).on());
    EXPECT_EQ(form().Combo2.text, "3");
    EXPECT_EQ(form().Combo1.text, "1");
    EXPECT_EQ(form().comboStd.items, (Names{"91500", "GJ-1", "Plesovice", "Temora-2", "Mud Tank", "FC-1"}));
    EXPECT_FALSE(form().comboStd.visible);
    EXPECT_EQ(form().Drive1.items, Names{"/"});
    EXPECT_EQ(grid().rows, 1000);
    EXPECT_EQ(grid().cols, 80);
    EXPECT_EQ(grid().cell(0, 1).text, "No.");
    EXPECT_EQ(grid().cell(0, 63).text, "BLe Hgused");
}

TEST_F(FileList, TheDriveMovesTheFolderToItsRoot) {
    open();
    choose_run({"1.csv"});
    choose(form(), "Drive1", "/");
    EXPECT_EQ(form().Dir1.text, "/");
    EXPECT_EQ(form().lblPath.text, "/");
    EXPECT_EQ(rs().MasterPath, "/0-.msf");
    for (const std::string& name : form().List1.items) EXPECT_NE(name, "1.csv");
    // The root is shown already: a list that was accepted stays.
    rs().FileOrdered(1) = "accepted.csv";
    choose(form(), "Drive1", "/");
    EXPECT_EQ(rs().FileOrdered(1), "accepted.csv");
}

TEST_F(FileList, ADriveWithoutADiskIsPassedOver) {
    open();
    choose_run({"1.csv"});
    form().Drive1.set_items({"/", "/no/such/drive"});
    choose(form(), "Drive1", "/no/such/drive");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(form().lblPath.text, folder.path("run"));
    EXPECT_EQ(rs().FileNames(1), "1.csv");
}

TEST_F(FileList, CaptionsStandOnTheOptionsOfTheirMeaning) {
    EXPECT_EQ(form().optStringSearch(0).text, "First characters of the file names");
    EXPECT_EQ(form().optStringSearch(1).text, "In the middle of the file names, starting at character number of");
    EXPECT_EQ(form().optStringSearch(2).text, "At the end of the file names, before the extension");
    EXPECT_EQ(form().lblHint(3).text, "  Delete a line: double click on file name  ");
}

TEST_F(FileList, TheFolderNamesTheMasterFileSoThatItComesFirst) {
    open();
    choose_run({"2.csv", "10.csv", "1.csv", "readme"});
    EXPECT_EQ(form().lblPath.text, folder.path("run"));
    EXPECT_EQ(rs().MasterPath, folder.path("run/0-run.msf"));
    EXPECT_EQ(form().List1.items, (Names{"1.csv", "10.csv", "2.csv", "readme"}));
    EXPECT_EQ(rs().SeqCount, 4);
    EXPECT_EQ(rs().FileNames(2), "10.csv");
    EXPECT_EQ(rs().MasterDir, "");
}

TEST_F(FileList, AcceptKeepsEveryFileAlsoThoseThatAreNoData) {
    open();
    choose_run({"b-std.csv", "a.msf", "notes"});
    click(form(), "cmdAccept");
    EXPECT_EQ(column(0), (Names{"a.msf", "b-std.csv", "notes"}));
    EXPECT_EQ(column(1), (Names{"1", "2", "3"}));
    EXPECT_EQ(column(2), (Names{"", "Std", ""}));
}

TEST_F(FileList, AMasterFileAmongTheFirstHundredNamesIsOnlyWarnedOfOnce) {
    Names names;
    for (int i = 101; i <= 201; ++i) names.push_back(std::to_string(i) + ".csv");
    names.emplace_back("0.msf");
    names.emplace_back("1.msf");
    open();
    choose_run(names);
    EXPECT_EQ(box_texts(),
              Names{"There is a master file already in this directory! Do you want to create another?\n\n"});
    EXPECT_EQ(rs().SeqCount, 103);
}

TEST_F(FileList, AMasterFileBehindTheFirstHundredNamesIsNotSeen) {
    Names names;
    for (int i = 101; i <= 200; ++i) names.push_back(std::to_string(i) + ".csv");
    names.emplace_back("z.msf");
    open();
    choose_run(names);
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(FileList, OfMoreThanAThousandFilesTheFirstThousandAreListed) {
    Names names;
    for (int i = 1; i <= 1003; ++i) names.push_back(std::to_string(10000 + i) + "-std.csv");
    order(names, 0, "5");
    EXPECT_EQ(rs().SeqCount, 1000);
    EXPECT_EQ(grid().rows, 1001);
    EXPECT_EQ(grid().cell(1000, 0).text, "11000-std.csv");
    EXPECT_EQ(grid().cell(1000, 2).text, "Std");
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(FileList, FirstCharactersBringTheFilesIntoTheOrderOfTheirNumbers) {
    order({"10 a.csv", "9 b.txt", "1 c.XL", "abc.csv", "2 d.dat"}, 0, "2");
    EXPECT_EQ(column(0), (Names{"1 c.XL", "9 b.txt", "10 a.csv"}));
    EXPECT_EQ(rs().SeqCount, 3);
    EXPECT_EQ(rs().FileNames(4), "abc.csv") << "a data file, without a number";
    EXPECT_EQ(rs().FileSerial(1).number(), 1000000000);
    EXPECT_TRUE(rs().FileSerial(4).is_unset());
}

TEST_F(FileList, EqualNumbersKeepTheOrderOfTheFolder) {
    order({"02-b.csv", "02-a.csv", "01-c.csv"}, 0, "2");
    EXPECT_EQ(column(0), (Names{"01-c.csv", "02-a.csv", "02-b.csv"}));
}

TEST_F(FileList, MiddleAndEnd) {
    order({"r2-9.csv", "r1-8.csv", "r9-7.csv"}, 1, "1", "2");
    EXPECT_EQ(column(0), (Names{"r1-8.csv", "r2-9.csv", "r9-7.csv"}));
    choose(form(), "Dir1", folder.path("run"));
    click(form(), "optStringSearch", 2);
    click(form(), "cmdReOrd");
    EXPECT_EQ(column(0), (Names{"r9-7.csv", "r1-8.csv", "r2-9.csv"}));
}

TEST_F(FileList, AtTheEndAnXlFileIsReadOneCharacterOff) {
    // "a12.xl" has 6 characters: two from 6 - 3 - 2 = 1 on are "a1", no number; of "312.xl", "31".
    order({"a12.xl", "x312.xl", "a50.csv"}, 2, "2");
    EXPECT_EQ(column(0), (Names{"x312.xl", "a50.csv"}));
}

TEST_F(FileList, SpecialEndingCountsUnlessItIsThePrompt) {
    open();
    choose_run({"1.dat", "2.csv", "3kkkkkkkkkkkkkkkk", "4type your special extension here"});
    choose(form(), "Combo2", "1");
    click(form(), "cmdReOrd");
    EXPECT_EQ(column(0), (Names{"2.csv", "3kkkkkkkkkkkkkkkk"}));
    choose(form(), "Dir1", folder.path("run"));
    type(form(), "txtSpecExt", ".dat");
    click(form(), "cmdReOrd");
    EXPECT_EQ(column(0), (Names{"1.dat", "2.csv"}));
    choose(form(), "Dir1", folder.path("run"));
    type(form(), "txtSpecExt", "");
    click(form(), "cmdReOrd");
    EXPECT_EQ(rs().SeqCount, 4);
}

TEST_F(FileList, NumbersFromAHundredMillionOnLeaveTheList) {
    order({"1e8.csv", "2e7.csv", "1e9.csv"}, 0, "3");
    EXPECT_EQ(column(0), Names{"2e7.csv"});
}

TEST_F(FileList, StandardsAreMarkedAndStandOut) {
    order({"001-std-91500.csv", "002-GJ-1.csv", "003-std-x.csv", "004-x.csv"}, 0, "3");
    EXPECT_EQ(column(2), (Names{"Std", "", "Std", ""}));
    EXPECT_EQ(column(3), (Names{"91500", "GJ-1", "", ""}));
    EXPECT_EQ(grid().cell(1, 0).back, FrmFileList::open_standard);
    EXPECT_EQ(grid().cell(2, 0).back, palette(15));
}

TEST_F(FileList, WithoutAMarkOfStandardsEveryNameIsAStandard) {
    open();
    rs().setSTDabbr = "";
    choose_run({"1.csv", "2.csv"});
    click(form(), "cmdAccept");
    EXPECT_EQ(column(2), (Names{"Std", "Std"}));
}

TEST_F(FileList, ADeletedLineGoesWithItsMarksAndTheNumbersAreNew) {
    order({"001-std-91500.csv", "002-x.csv", "003-std-GJ-1.csv", "004-x.csv"}, 0, "3");
    dblclick_cell(1, 2);  // by hand: 1 is no standard, 4 is one
    dblclick_cell(4, 3);
    choose(form(), "comboStd", "FC-1");
    os.yes_or_no = {false, true};
    dblclick_cell(2, 0);
    EXPECT_EQ(rs().SeqCount, 4);
    dblclick_cell(2, 1);
    EXPECT_EQ(box_texts().back(), "Do you want to delete file:\n\nNo. 2\n\n from the list?");
    EXPECT_EQ(column(0), (Names{"001-std-91500.csv", "003-std-GJ-1.csv", "004-x.csv"}));
    EXPECT_EQ(column(1), (Names{"1", "2", "3"}));
    EXPECT_EQ(column(2), (Names{"", "Std", "Std"})) << "the names are not looked at again";
    EXPECT_EQ(column(3), (Names{"", "GJ-1", "FC-1"}));
    EXPECT_EQ(grid().cell(4, 0).text, "");
    EXPECT_EQ(rs().FileNames(2), "003-std-GJ-1.csv");
    EXPECT_EQ(rs().FileNames(4), "");
    EXPECT_EQ(rs().FileSerial(3).number(), 3);
    EXPECT_TRUE(rs().FileSerial(4).is_unset());
}

TEST_F(FileList, ALineBehindTheListIsIgnored) {
    order({"1-std.csv"}, 0, "1");
    for (const int col : {0, 1, 2, 3}) {
        dblclick_cell(2, col);
        dblclick_cell(0, col);
    }
    EXPECT_EQ(box_texts(), Names{});
    EXPECT_FALSE(form().comboStd.visible);
}

TEST_F(FileList, AStandardIsChosenFromTheListThatThenGoes) {
    order({"1-x.csv", "2-std.csv"}, 0, "1");
    dblclick_cell(1, 3);
    EXPECT_TRUE(form().comboStd.visible);
    choose(form(), "comboStd", "Plesovice");
    EXPECT_FALSE(form().comboStd.visible);
    EXPECT_EQ(column(2), (Names{"Std", "Std"}));
    EXPECT_EQ(column(3), (Names{"Plesovice", ""}));
    EXPECT_EQ(grid().cell(1, 0).back, FrmFileList::open_standard);
    dblclick_cell(1, 2);
    EXPECT_EQ(column(2), (Names{"", "Std"}));
    EXPECT_EQ(column(3), (Names{"", ""}));
    dblclick_cell(1, 2);
    EXPECT_EQ(column(2), (Names{"", "Std"}));
}

TEST_F(FileList, FewerThanTwoStandardsAreNotSaved) {
    order({"1-x.csv", "2-std.csv"}, 0, "1");
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Names{" Too few standard file, interpolation for samples is not possible."});
    EXPECT_TRUE(os.dialogs.empty());
    EXPECT_EQ(rs().SeqStdCount, 1);
}

TEST_F(FileList, SavesUnderTheProposedNameInTheFolderOfTheData) {
    order({"1-std.csv", "2-std.csv", "3-x.csv"}, 0, "1");
    rs().AppPath2 = folder.path("start-kit");
    os.saves = {std::nullopt, folder.path("run/0-run.msf")};
    click(form(), "cmdSave");
    EXPECT_FALSE(file_exists(folder.path("run/0-run.msf"))) << "cancelled";
    click(form(), "cmdSave");
    ASSERT_EQ(os.dialogs.size(), 2U);
    EXPECT_EQ(os.dialogs[1].filter, "Master Files (*.msf)|*.msf|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs[1].index, 1);
    EXPECT_EQ(os.dialogs[1].name, folder.path("run/0-run.msf"));
    EXPECT_EQ(os.dialogs[1].folder, folder.path("start-kit"));
    EXPECT_EQ(folder.read("run/0-run.msf").substr(0, 21), "\"0003/0000/0002/0000\"");
    EXPECT_EQ(rs().FileTypes(2), "Std");
    EXPECT_EQ(rs().FileTypes(3), "");
    EXPECT_EQ(shown_windows().back(), "frm_FileList");
}

TEST_F(FileList, SaveOfTheParametersTakesThreeKeysIntoTheDefaultFile) {
    open();
    click(form(), "optStringSearch", 2);
    choose(form(), "Combo2", "4");
    choose(form(), "Combo1", "17");
    os.saves = {folder.path("mine.def")};
    click(form(), "cmdSaveParam");
    EXPECT_EQ(os.dialogs.back().filter, "Default Files (*.def)|*.def|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs.back().name, rs().SettingsPath);
    EXPECT_EQ(os.dialogs.back().folder, rs().AppPath2);
    const std::string saved = folder.read("mine.def");
    for (const char* line : {"\n2,\"setSerialNo1\"\r\n", "\n4,\"setSerialNo2\"\r\n", "\n17,\"setSerialNo3\"\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;
}

TEST_F(FileList, CancelledSaveOfTheParametersGoesOnWithTheProposedFileWhichTheQuestionGuards) {
    open();
    const std::string before = folder.read("start-kit/KolvAge-default-b01.def");
    choose(form(), "Combo2", "4");
    os.yes_or_no = {false};
    click(form(), "cmdSaveParam");
    EXPECT_EQ(os.dialogs.size(), 1U);
    EXPECT_EQ(box_texts(), Names{"Overwrite existing file?"});
    EXPECT_EQ(folder.read("start-kit/KolvAge-default-b01.def"), before);
    os.yes_or_no = {true};
    click(form(), "cmdSaveParam");
    const std::string saved = folder.read("start-kit/KolvAge-default-b01.def");
    EXPECT_NE(saved.find("\n4,\"setSerialNo2\"\r\n"), std::string::npos);
}

TEST_F(FileList, BackTakesTheListAwayForANewChoice) {
    order({"1-std.csv", "2-std.csv"}, 0, "1");
    EXPECT_TRUE(grid().visible);
    click(form(), "cmdBack");
    EXPECT_FALSE(grid().visible);
    EXPECT_TRUE(form().Dir1.visible);
    EXPECT_TRUE(form().cmdReOrd.visible);
    EXPECT_EQ(grid().cell(1, 0).text, "");
    click(form(), "cmdAccept");
    EXPECT_TRUE(grid().visible);
    EXPECT_EQ(column(0), (Names{"1-std.csv", "2-std.csv"}));
}

TEST_F(FileList, AnotherFolderTakesTheFormerListAway) {
    order({"1-std.csv", "2-std.csv"}, 0, "1");
    choose(form(), "Dir1", folder.path("start-kit"));
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Names{" Too few standard file, interpolation for samples is not possible."});
}

class OpenedMaster : public FileList {
protected:
    // Two standards, of which the first is processed, and a sample.
    void write_master() {
        std::filesystem::create_directories(folder.path("run"));
        const auto line = [](std::string first, int commas) {
            first.append(static_cast<std::size_t>(commas), ',');
            return first + "\r\n";
        };
        rs().MasterPath = folder.write(
            "run/0-run.msf", line("\"0003/0000/0002/0001\"", 69) +
                                 line("\"1.csv\",1,\"Std\",\"GJ-1\",\"\",1.5,,,,,,0.17,1.8,0.07,,,,0.001", 52) +
                                 line("\"2.csv\",2,\"Std\",\"GJ-1\"", 66) + line("\"3.csv\",3,\"\",\"\"", 66));
    }
    void open_in(int mode) {
        program->start(1);
        write_master();
        rs().ListMode = mode;
        click(forms().frm1_Settings, "cmdSequential");
    }
};

TEST_F(OpenedMaster, ShowsItsFieldsWithFactorsAndCorrectedRatiosInColour) {
    open_in(1);
    EXPECT_EQ(form().lblTitle.text, " Open selected file by double click on file name ");
    EXPECT_EQ(grid().text, "Open file by double click on file name");
    EXPECT_EQ(column(0), (Names{"1.csv", "2.csv", "3.csv"}));
    EXPECT_EQ(grid().cell(1, 5).text, "1.5");
    EXPECT_EQ(grid().cell(1, 11).text, "0.17");
    for (int line = 1; line <= 3; ++line)
        for (int field = 0; field < 64; ++field) {
            const int expected = field >= 5 && field <= 10 ? 13 : field >= 14 && field <= 19 ? 12 : 0;
            EXPECT_EQ(palette_number(grid().cell(line, field).fore), expected) << field;
        }
    EXPECT_EQ(grid().cell(1, 0).back, FrmFileList::processed_standard);
    EXPECT_EQ(grid().cell(2, 0).back, FrmFileList::open_standard);
    EXPECT_EQ(grid().cell(3, 0).back, palette(15));
    for (const Control* control : std::initializer_list<const Control*>{&form().Dir1, &form().cmdAccept,
                                                                        &form().cmdReOrd, &form().optStringSearch(0)})
        EXPECT_FALSE(control->visible) << control->address();
}

TEST_F(OpenedMaster, TheTableAloneOpensNothing) {
    open_in(2);
    EXPECT_EQ(form().lblTitle.text, " Content of the master file ");
    EXPECT_EQ(grid().text, "");
    for (const int col : {0, 1, 2, 3}) dblclick_cell(1, col);
    EXPECT_EQ(shown_windows().back(), "frm_FileList");
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(OpenedMaster, AMasterFileThatIsGoneLeavesTheListClosed) {
    program->start(1);
    rs().ListMode = 1;
    rs().MasterPath = folder.path("none.msf");
    click(forms().frm1_Settings, "cmdSequential");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].kind, "fault");
    EXPECT_EQ(shown_windows().back(), "frm1_Settings");
}

TEST_F(OpenedMaster, ANewListIsNotCountedByTheMasterFileReadSince) {
    order({"1-std.csv", "2-std.csv", "3-x.csv", "4-x.csv"}, 0, "1");
    click(form(), "cmdClose");
    write_master();
    ReadMaster(rs(), rs().MasterPath);
    ASSERT_EQ(rs().SeqCount, 3);
    click(forms().frm1_Settings, "cmdCreate");
    EXPECT_EQ(column(0), (Names{"1-std.csv", "2-std.csv", "3-x.csv", "4-x.csv"}));
    rs().ListMode = 2;
    ReadMaster(rs(), rs().MasterPath);
    click(form(), "cmdBack");
    click(form(), "cmdAccept");
    EXPECT_EQ(column(0), (Names{"1-std.csv", "2-std.csv", "3-x.csv", "4-x.csv"}));
}

TEST_F(OpenedMaster, ANewListLeavesTheBatchInWorkAsItIs) {
    open_in(1);
    rs().MasterDir = folder.path("run/");
    rs().MasterName = "0-run.msf";
    forms().frm2_UP.loaded = true;
    program->shell().open(forms().frm2_UP);
    click(form(), "cmdBack");
    choose(form(), "Dir1", folder.path("start-kit"));
    click(form(), "cmdReOrd");
    EXPECT_EQ(rs().SeqCount, 12);
    EXPECT_FALSE(forms().frm2_UP.pictSeq.enabled) << "a save would go into the new list";
    click(form(), "cmdClose");
    EXPECT_EQ(rs().MasterPath, folder.path("run/0-run.msf"));
    EXPECT_EQ(rs().SeqCount, 3);
    EXPECT_EQ(rs().SeqStdCount, 2);
    EXPECT_EQ(rs().MasterRecs(3, 0).text(), "3.csv");
    EXPECT_TRUE(forms().frm2_UP.pictSeq.enabled);
}

TEST_F(OpenedMaster, ANewListClosesTheDriftOfTheFormerOneAlsoFromTheStartPanel) {
    open_in(1);
    program->shell().open(forms().frm_drift);
    click(form(), "cmdBack");
    EXPECT_FALSE(forms().frm_drift.shown) << "its factors would go into the new list";
    program->shell().open(forms().frm_drift);
    choose(form(), "Dir1", folder.path("start-kit"));
    EXPECT_FALSE(forms().frm_drift.shown);
}

TEST_F(OpenedMaster, ShowsWhatTheMasterFileHasTakenUpWhenItComesBackToTheFront) {
    open_in(1);
    ASSERT_EQ(column(0), (Names{"1.csv", "2.csv", "3.csv"}));
    EXPECT_EQ(grid().cell(2, 5).text, "");
    std::string bytes = folder.read("run/0-run.msf");
    const std::string open_line = "\"2.csv\",2,\"Std\",\"GJ-1\",,";
    const std::size_t at = bytes.find(open_line);
    ASSERT_NE(at, std::string::npos);
    bytes.replace(at, open_line.size(), "\"2.csv\",2,\"Std\",\"GJ-1\",,2.5");
    folder.write("run/0-run.msf", bytes);
    program->shell().activate_again();
    program->shell().settle();
    EXPECT_EQ(grid().cell(2, 5).text, "2.5");
    EXPECT_TRUE(os.boxes.empty());
}

}  // namespace
}  // namespace kolvar::test
