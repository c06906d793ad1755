// The choice of a folder on the U/Pb path: a simple sequence from the files of a folder.
#include "unit/screens/walk_fixture.hpp"

namespace kolvar::test {
namespace {

class FolderSequence : public OnWalk {
protected:
    FrmChoseDir& chooser() { return forms().frm_ChoseDir; }
    void open_on_day() {
        for (const char* name : {"01-STD.csv", "02-STD.csv", "03-spot.csv"}) table(name);
        program->start(1);
        rs().setFormer_Sel = 0;
        rs().setSTDabbr = "STD";
        program->shell().open(chooser());
        ProgramOnKit::choose(chooser(), "Dir1", folder.path("day"));
    }
};

TEST_F(FolderSequence, ListsTheFilesOfTheFolder) {
    open_on_day();
    EXPECT_EQ(rs().MasterDir, day(""));
    EXPECT_EQ(chooser().List1.items, (Names{"01-STD.csv", "02-STD.csv", "03-spot.csv"}));
    EXPECT_EQ(rs().FileNames(3), "03-spot.csv");
    EXPECT_EQ(rs().FileNames(4), "");
    EXPECT_FALSE(chooser().cmdSave.visible);
    EXPECT_TRUE(chooser().cmdOK.visible && chooser().cmdProc.visible);
    EXPECT_EQ(chooser().cmdProc.text, "Process");
}

TEST_F(FolderSequence, TheDriveMovesTheFolderToItsRoot) {
    open_on_day();
    EXPECT_TRUE(chooser().Drive1.visible);
    EXPECT_EQ(chooser().Drive1.text, "/");
    ProgramOnKit::choose(chooser(), "Drive1", "/");
    EXPECT_EQ(chooser().Dir1.text, "/");
    EXPECT_EQ(chooser().lblPath.text, "/");
    EXPECT_EQ(rs().MasterDir, "/");
    for (const std::string& name : chooser().List1.items) EXPECT_NE(name, "01-STD.csv");
}

TEST_F(FolderSequence, ADriveWithoutADiskIsPassedOver) {
    open_on_day();
    chooser().Drive1.set_items({"/", "/no/such/drive"});
    ProgramOnKit::choose(chooser(), "Drive1", "/no/such/drive");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(chooser().lblPath.text, folder.path("day"));
    EXPECT_EQ(rs().MasterDir, day(""));
}

TEST_F(FolderSequence, MarksTheStandardsByName) {
    open_on_day();
    click(chooser(), "cmdOK");
    const Grid& grid = chooser().FlexGrid2;
    EXPECT_EQ(grid.rows, 1000);
    EXPECT_EQ(grid.cols, 8);
    EXPECT_EQ(grid.column_widths, (std::vector<int>{400, 2600, 600, 500, 1050}));
    const char* const titles[] = {"File name", "Status", "Done", "Pb206/U238"};
    for (int column = 1; column <= 4; ++column) EXPECT_EQ(grid.cell(0, column).text, titles[column - 1]);
    EXPECT_EQ(grid.cell(2, 0).text, "2");
    EXPECT_EQ(grid.cell(2, 1).text, "02-STD.csv");
    EXPECT_EQ(grid.cell(2, 2).text, "Std");
    EXPECT_NE(grid.cell(2, 1).fore, palette(8));
    EXPECT_EQ(grid.cell(3, 2).text, "");
    EXPECT_EQ(grid.cell(3, 1).fore, palette(8));
    EXPECT_EQ(rs().FileTypes(1), "Std");
    EXPECT_EQ(rs().FileTypes(3), "");
}

TEST_F(FolderSequence, ProcessTakesTheLastStandardToTheOtherTimeSelection) {
    open_on_day();
    click(chooser(), "cmdOK");
    click(chooser(), "cmdProc");
    EXPECT_EQ(rs().SeqPos, 2);
    EXPECT_EQ(file(), "02-STD.csv");
    EXPECT_EQ(rs().DataFilePath, day("02-STD.csv"));
    EXPECT_EQ(rs().nSlices, 30);
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
}

TEST_F(FolderSequence, ProcessWithoutAStandardDoesNothing) {
    open_on_day();
    rs().setSTDabbr = "nothing";
    click(chooser(), "cmdOK");
    const std::string before = file();
    click(chooser(), "cmdProc");
    EXPECT_EQ(file(), before);
    EXPECT_TRUE(chooser().shown);
}

}  // namespace
}  // namespace kolvar::test
