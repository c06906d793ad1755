#include <gtest/gtest.h>

#include "support/test_support.hpp"
#include "trace/output.hpp"

namespace kolvar::test {
namespace {

struct Preview : ::testing::Test {
    RunState rs;
    Forms forms;
    ScriptedPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};
    Grid& grid = forms.frm5_Preview.FlexGrid1;

    void SetUp() override {
        rs.DataFileName = "Temora-5.csv";
        rs.nIso = 2;
        rs.SelN = 3;
        rs.setTableFormat = 0;
    }
    void show(const std::string& text) {
        rs.OutText = text;
        load_preview(context);
    }
};

TEST_F(Preview, FieldsStandFromRow1OnAndRow0StaysEmpty) {
    show("a\tb\rc\r\r\td\r");
    EXPECT_EQ(forms.frm5_Preview.lblKiVagy.text, "  Temora-5.csv  ");
    EXPECT_EQ(grid.cell(0, 0).text, "");
    EXPECT_EQ(grid.cell(1, 0).text, "a");
    EXPECT_EQ(grid.cell(1, 1).text, "b");
    EXPECT_EQ(grid.cell(2, 0).text, "c");
    EXPECT_EQ(grid.cell(3, 0).text, "");
    EXPECT_EQ(grid.cell(4, 1).text, "d");
    EXPECT_EQ(grid.column_widths, (std::vector<int>{3000, 2200, 900}));
}

TEST_F(Preview, SizeFollowsTheTableFormatWithAtLeast15Columns) {
    show("");
    EXPECT_EQ(grid.rows, 33 + 2 + 4);
    EXPECT_EQ(grid.cols, 15);
    rs.SelN = 20;
    show("");
    EXPECT_EQ(grid.cols, 22);
    rs.setTableFormat = 1;
    show("");
    EXPECT_EQ(grid.rows, 33 + 2 + 40);
    EXPECT_EQ(grid.cols, 15);
    rs.nIso = 30;
    show("");
    EXPECT_EQ(grid.cols, 32);
}

TEST_F(Preview, ColoursChangeAtThePartsAndStay) {
    show("Part 1 - x\ta\r\rPart 2 - y\tb\rc\rin Part 3\rPart 3 - z\rd\rPart 4\r");
    EXPECT_EQ(grid.cell(1, 0).fore, palette(12));
    EXPECT_EQ(grid.cell(1, 1).fore, palette(12));
    EXPECT_EQ(grid.cell(3, 0).fore, palette(9));
    EXPECT_EQ(grid.cell(3, 1).fore, palette(9));
    EXPECT_EQ(grid.cell(5, 0).fore, palette(9));
    EXPECT_EQ(grid.cell(6, 0).fore, palette(0));
    EXPECT_EQ(grid.cell(8, 0).fore, palette(0));
    EXPECT_EQ(grid.cell(8, 0).text, "Part 4");
}

TEST_F(Preview, CharactersFrom100000OnAreNotShown) {
    // The TAB is character 99998, the line end behind "x" 100000: that field is cut off.
    const std::string head(99997, 'a');
    show(head + "\tx\ry\r");
    EXPECT_EQ(grid.cell(1, 0).text.size(), 99997U);
    EXPECT_EQ(grid.cell(1, 1).text, "");
    // One character earlier it ends at 99999 and stands.
    show(head.substr(1) + "\tx\ry\r");
    EXPECT_EQ(grid.cell(1, 1).text, "x");
    EXPECT_EQ(grid.cell(2, 0).text, "");
}

TEST_F(Preview, CharactersAreCountedNotBytes) {
    std::string head;
    for (int k = 0; k < 99996; ++k) head += "\xC3\xA9";
    show(head + "\tx\ry\r");
    EXPECT_EQ(grid.cell(1, 1).text, "x");
    EXPECT_EQ(grid.cell(2, 0).text, "");
}

TEST_F(Preview, AllLinesAreShown) {
    rs.setTableFormat = 1;
    std::string text;
    for (int k = 1; k <= 41; ++k) text += "line " + std::to_string(k) + "\r";
    show(text);  // 33 + 2 + 6 rows would hold 40 of them
    EXPECT_EQ(grid.cell(41, 0).text, "line 41");
}

TEST_F(Preview, AFieldWithoutItsEndIsNotShown) {
    show("a\tb");
    EXPECT_EQ(grid.cell(1, 0).text, "a");
    EXPECT_EQ(grid.cell(1, 1).text, "");
}

// Average concentrations --------------------------------------------------------------------------------------------

struct Averages : Preview {
    FrmAverConc& form = forms.frm_AverConc;
    void isotopes(int number) {
        rs.nIso = number;
        for (int i = 1; i <= number; ++i) {
            rs.IsoName(i) = "Sr88";
            rs.ConcMean(i) = 78.45;
            rs.ConcSD(i) = 1.25;
        }
        load_averages(context);
    }
};

TEST_F(Averages, NamesMeansAndDeviationsStandInColumns) {
    isotopes(1);
    EXPECT_TRUE(form.lbl(0).visible);
    EXPECT_FALSE(form.lbl(1).visible);
    // 12 - 4 - 4 blanks before the mean, 4 - 3 before the s.d.
    EXPECT_EQ(form.lbl(0).text, " Sr88    78.5  \xC2\xB1   1.3 ppm");
}

TEST_F(Averages, LongFiguresGetNoPadding) {
    rs.nIso = 2;
    rs.IsoName(1) = "Hg202(LR)";
    rs.ConcMean(1) = 153319.0;
    rs.ConcSD(1) = 1500.0;
    rs.IsoName(2) = "La139";
    rs.ConcMean(2) = Mark::dashes;
    rs.ConcSD(2) = Mark::dashes;
    load_averages(context);
    EXPECT_EQ(form.lbl(0).text, " Hg202(LR)153319.0  \xC2\xB1  1500.0 ppm");
    EXPECT_EQ(form.lbl(1).text, " La139    ---  \xC2\xB1   --- ppm");
}

TEST_F(Averages, TheWindowHasOneToThreeColumns) {
    isotopes(25);
    const int one = form.width;
    isotopes(26);
    EXPECT_EQ(form.width, 2 * one);
    isotopes(50);
    EXPECT_EQ(form.width, 2 * one);
    isotopes(51);
    EXPECT_EQ(form.width, 3 * one);
}

TEST_F(Averages, ThePreviewEndsAtThe75thIsotopeAndUsesUpWhatItShows) {
    isotopes(80);
    EXPECT_TRUE(form.lbl(74).visible);
    EXPECT_EQ(rs.ConcMean(75), Cell(Mark::empty));
    EXPECT_EQ(rs.ConcSD(75), Cell(Mark::empty));
    EXPECT_EQ(rs.ConcMean(76), Cell(78.45));
    rs.nIso = 3;
    load_averages(context);
    EXPECT_FALSE(form.lbl(3).visible);
    EXPECT_EQ(form.lbl(0).text, " Sr88          \xC2\xB1       ppm");  // nothing is left of the means
}

}  // namespace
}  // namespace kolvar::test
