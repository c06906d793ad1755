#include "program_fixture.hpp"

namespace kolvar::test {
namespace {

class PeriodWindow : public ProgramOnKit {
protected:
    void open(const std::string& one, const std::string& two, const std::string& three) {
        program->start(0);
        rs().IS1name = one;
        rs().IS2name = two;
        rs().IS3name = three;
        program->shell().open(form());
    }
    FrmPeriod& form() { return forms().frm_Period; }
    // The number of the colour that an element has, -1 for a colour of none.
    int colour_of(int element) {
        for (int number = 0; number < 4; ++number)
            if (form().lblEle(element).back == FrmPeriod::colours[number]) return number;
        return -1;
    }
    std::string corner(int element) { return form().lblNumber(element).text; }
    std::vector<int> wide_margins() {
        std::vector<int> numbers;
        int number = 0;
        for (const Panel* frame : {&form().frame1, &form().frame2, &form().frame3}) {
            ++number;
            if (frame->back == FrmPeriod::margin) numbers.push_back(number);
        }
        return numbers;
    }
};

using Numbers = std::vector<int>;

TEST_F(PeriodWindow, ShowsTheStandardsAndTheAssignmentOfTheSettings) {
    open("Si29", "Ca43", "Al27");
    EXPECT_EQ(form().Label1.text, "Si29");
    EXPECT_EQ(form().Label2.text, "Ca43");
    EXPECT_EQ(form().Label3.text, "Al27");
    EXPECT_EQ(wide_margins(), Numbers{1});
    // The start kit relates hydrogen to Si29, beryllium to Ca43 and boron to Al27.
    EXPECT_EQ(form().lblEle(1).text, "H");
    EXPECT_EQ(colour_of(1), 1);
    EXPECT_EQ(corner(1), "1");
    EXPECT_EQ(colour_of(4), 2);
    EXPECT_EQ(corner(4), "2");
    EXPECT_EQ(colour_of(5), 3);
    EXPECT_EQ(corner(5), "3");
    EXPECT_EQ(form().lblEle(96).text, "Cm");
    EXPECT_EQ(colour_of(96), 2);
}

TEST_F(PeriodWindow, TextsOfTheWindow) {
    EXPECT_EQ(form().title, "Kolvar - Assignment of Internal Standards to elements");
    EXPECT_EQ(form().lblHint1.text, "Select one IS by mouse click (gets wide margin) and click an element to assign.");
    EXPECT_EQ(form().lblHint2.text, "to save this assignment into a setting file, press [Save As] in the next window");
    EXPECT_EQ(form().cmdOK.text, "Accept");
    EXPECT_EQ(form().cmsClose.text, "Close");
}

TEST_F(PeriodWindow, AnElementOfAnotherStandardIsNeutral) {
    open("Si29", "", "");
    EXPECT_EQ(colour_of(1), 1);
    EXPECT_EQ(colour_of(4), 0);
    EXPECT_EQ(corner(4), "");
}

TEST_F(PeriodWindow, OfEqualNamesTheFirstCounts) {
    open("Ca43", "Si29", "Si29");
    EXPECT_EQ(colour_of(1), 2);
    EXPECT_EQ(colour_of(4), 1);
    EXPECT_EQ(colour_of(5), 0);
}

TEST_F(PeriodWindow, AnElementWithoutAStandardIsNeutralAlsoWhereAStandardHasNoName) {
    program->start(0);
    rs().IS2name = rs().IS3name = "";
    rs().PeriodIS(8) = Value();
    rs().PeriodIS(9) = "";
    program->shell().open(form());
    EXPECT_EQ(colour_of(8), 0);
    EXPECT_EQ(colour_of(9), 0);
}

TEST_F(PeriodWindow, SymbolsThatTheSettingsDoNotHoldAreTheChemicalOnes) {
    program->start(0);
    rs().PeriodSym(26) = Value();
    rs().PeriodSym(27) = "";
    rs().PeriodSym(28) = "Xx";
    program->shell().open(form());
    EXPECT_EQ(form().lblEle(26).text, "Fe");
    EXPECT_EQ(form().lblEle(27).text, "Co");
    EXPECT_EQ(form().lblEle(28).text, "Xx");
    click(form(), "cmdOK");
    EXPECT_EQ(rs().PeriodSym(26).text(), "Fe");
    EXPECT_EQ(rs().PeriodSym(27).text(), "Co");
    EXPECT_EQ(rs().PeriodSym(28).text(), "Xx");
}

TEST_F(PeriodWindow, AClickOnALabelGivesItsFrameAloneTheWideMargin) {
    open("Si29", "Ca43", "Al27");
    click(form(), "Label3");
    EXPECT_EQ(wide_margins(), Numbers{3});
    click(form(), "Label2");
    EXPECT_EQ(wide_margins(), Numbers{2});
    EXPECT_FALSE(form().frame1.back.has_value());
}

TEST_F(PeriodWindow, AClickedElementTakesTheCurrentColourAndItsNumber) {
    open("Si29", "Ca43", "Al27");
    click(form(), "lblEle", 5);
    EXPECT_EQ(colour_of(5), 1);
    EXPECT_EQ(corner(5), "1");
    click(form(), "Label2");
    click(form(), "lblEle", 5);
    click(form(), "lblEle", 92);
    EXPECT_EQ(colour_of(5), 2);
    EXPECT_EQ(corner(5), "2");
    EXPECT_EQ(colour_of(6), 1);
    // Nothing is taken yet.
    EXPECT_EQ(rs().PeriodIS(5).text(), "Al27");
}

TEST_F(PeriodWindow, AcceptTakesTheColours) {
    open("Si29", "Ca43", "Al27");
    click(form(), "Label3");
    click(form(), "lblEle", 1);
    click(form(), "lblEle", 96);
    click(form(), "cmdOK");
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(rs().PeriodIS(1).text(), "Al27");
    EXPECT_EQ(rs().PeriodIS(96).text(), "Al27");
    EXPECT_EQ(rs().PeriodIS(2).text(), "Si29");
    EXPECT_EQ(rs().PeriodIS(4).text(), "Ca43");
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(PeriodWindow, AnElementLeftNeutralKeepsItsFormerStandard) {
    open("P31", "Sr88", "");
    EXPECT_EQ(colour_of(14), 0);
    click(form(), "Label2");
    click(form(), "lblEle", 13);
    click(form(), "cmdOK");
    EXPECT_EQ(rs().PeriodIS(14).text(), "Si29");
    EXPECT_EQ(rs().PeriodIS(20).text(), "Ca43");
    EXPECT_EQ(rs().PeriodIS(13).text(), "Sr88");
}

TEST_F(PeriodWindow, AStandardWithoutANameClearsTheAssignment) {
    open("Si29", "", "");
    click(form(), "Label2");
    click(form(), "lblEle", 4);
    click(form(), "cmdOK");
    EXPECT_EQ(rs().PeriodIS(4).text(), "");
    EXPECT_EQ(rs().PeriodIS(5).text(), "Al27");
}

TEST_F(PeriodWindow, CloseAndTheCloseBoxTakeNothing) {
    open("Si29", "Ca43", "Al27");
    click(form(), "lblEle", 4);
    click(form(), "cmsClose");
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(rs().PeriodIS(4).text(), "Ca43");
    program->shell().open(form());
    EXPECT_EQ(colour_of(4), 2) << "each opening shows the assignment anew";
    click(form(), "lblEle", 4);
    close(form());
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(rs().PeriodIS(4).text(), "Ca43");
}

TEST_F(PeriodWindow, EachOpeningBeginsAtTheFirstStandardWithTheNamesOfTheDay) {
    open("Si29", "Ca43", "Al27");
    click(form(), "Label3");
    click(form(), "cmsClose");
    rs().IS1name = "Al27";
    rs().IS3name = "";
    program->shell().open(form());
    EXPECT_EQ(wide_margins(), Numbers{1});
    EXPECT_EQ(colour_of(5), 1);
    EXPECT_EQ(colour_of(1), 0);
    click(form(), "lblEle", 1);
    EXPECT_EQ(colour_of(1), 1);
}

}  // namespace
}  // namespace kolvar::test
