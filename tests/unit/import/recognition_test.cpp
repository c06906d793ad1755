#include "import/recognition.hpp"

#include "import_bench.hpp"

namespace kolvar::test {
namespace {

class Recognition : public ImportTest {
protected:
    void heads(const std::vector<std::string>& names) {
        rs.nIso = static_cast<int>(names.size());
        for (int i = 1; i <= rs.nIso; ++i) rs.IsoName(i) = names[static_cast<std::size_t>(i) - 1];
    }
};

TEST_F(Recognition, EightFormsOfAnIsotope) {
    for (const char* form : {"U238", "U-238", "U 238", "238U", "238-U", "238 U", "U238(LR)", "U238(HR)"}) {
        heads({"Time", form});
        RecogniseUPb(rs);
        EXPECT_EQ(rs.ColU238, 2) << form;
    }
    for (const char* form : {"u238", "U238 ", " U238", "U238(MR)", "U_238", "238U(LR)", "U--238", ""}) {
        heads({"Time", form});
        RecogniseUPb(rs);
        EXPECT_EQ(rs.ColU238, 0) << form;
    }
}

TEST_F(Recognition, EachOfTheTwelveIsotopesHasItsField) {
    heads({"Hg198", "Hg199", "Hg200", "Hg201", "Hg202", "Pb204", "Pb206", "Pb207", "Pb208", "Th232", "U235", "U238"});
    RecogniseUPb(rs);
    const int columns[] = {rs.ColHg198, rs.ColHg199, rs.ColHg200, rs.ColHg201, rs.ColHg202, rs.ColPb204,
                           rs.ColPb206, rs.ColPb207, rs.ColPb208, rs.ColTh232, rs.ColU235,  rs.ColU238};
    for (int k = 0; k < 12; ++k) EXPECT_EQ(columns[k], k + 1);
    EXPECT_EQ(rs.HgMass, 202);
    EXPECT_EQ(rs.ColHg, 5);
}

TEST_F(Recognition, OfTwoColumnsForAnIsotopeTheLastCounts) {
    heads({"Pb206", "U238", "206Pb"});
    RecogniseUPb(rs);
    EXPECT_EQ(rs.ColPb206, 3);
}

TEST_F(Recognition, TheHeaviestMercuryIsUsed) {
    heads({"Hg202", "Hg200"});
    RecogniseUPb(rs);
    EXPECT_EQ(rs.HgMass, 202);
    EXPECT_EQ(rs.ColHg, 1);
}

TEST_F(Recognition, WithoutMercuryTheColumnOfTheFileBeforeStays) {
    heads({"Hg202", "U238"});
    RecogniseUPb(rs);
    heads({"U238", "Pb206"});
    RecogniseUPb(rs);
    EXPECT_EQ(rs.HgMass, 0);
    EXPECT_EQ(rs.ColHg, 1);
    EXPECT_EQ(rs.ColHg202, 0);
    EXPECT_EQ(rs.ColU238, 1);
}

TEST_F(Recognition, FlexAnalytesShareTheRolesOfTheOtherPath) {
    rs.ColHg = 9;
    rs.HgMass = 202;
    rs.ColHg202 = 9;
    heads({"ThO248", "UO254", "Zr91", "Ca43", "Sm147", "Pt195", "Pt198", "U238", "Th230", "Th232", "U233", "U235"});
    RecogniseFlex(rs);
    EXPECT_EQ(rs.ColU238, 1);
    EXPECT_EQ(rs.ColU235, 2);
    EXPECT_EQ(rs.ColTh232, 3);
    EXPECT_EQ(rs.ColPb208, 4);
    EXPECT_EQ(rs.ColPb207, 5);
    EXPECT_EQ(rs.ColPb206, 6);
    EXPECT_EQ(rs.ColPb204, 7);
    for (int slot = 8; slot <= 12; ++slot) EXPECT_EQ(rs.FlexCol(slot), Value(slot));
    EXPECT_EQ(rs.HgMass, 0);
    EXPECT_EQ(rs.ColHg202, 0);
    EXPECT_EQ(rs.ColHg, 9);
}

TEST_F(Recognition, OnlyTheFirstFiveFlexColumnsAreCleared) {
    for (int slot = 1; slot <= 15; ++slot) rs.FlexCol(slot) = 77;
    heads({"U238"});
    RecogniseFlex(rs);
    for (int slot = 1; slot <= 5; ++slot) EXPECT_EQ(rs.FlexCol(slot), Value(""));
    EXPECT_EQ(rs.FlexCol(6), Value(77));
    EXPECT_EQ(rs.FlexCol(8), Value(1));
    EXPECT_EQ(rs.FlexCol(12), Value(77));
}

TEST_F(Recognition, FlexNamesArePlainAndAnEmptyHeadEqualsAnUnsetSlot) {
    heads({"U-238", "", "Zr91"});
    RecogniseFlex(rs);
    EXPECT_EQ(rs.FlexCol(8), Value());
    EXPECT_EQ(rs.FlexCol(13), Value(2));
    EXPECT_EQ(rs.FlexCol(15), Value(2));
    EXPECT_EQ(rs.ColTh232, 3);
}

TEST_F(Recognition, OnTheOtherPathsNothingIsRecognised) {
    rs.ColU238 = 5;
    load("a.csv", "U238,Pb206\n1,2\n3,4\n");
    EXPECT_EQ(rs.ColU238, 5);
    rs.Method = 1;
    load("a.csv", "U238,Pb206\n1,2\n3,4\n");
    EXPECT_EQ(rs.ColU238, 1);
    EXPECT_EQ(rs.ColPb206, 2);
}

TEST_F(Recognition, ColumnsWithoutARoleAreListed) {
    rs.Method = 1;
    heads({"Time", "U238", "Si29", "Pb 206"});
    EXPECT_EQ(unrecognised_columns(rs), (std::vector<std::string>{"Time", "Si29"}));
    rs.Method = 3;
    EXPECT_EQ(unrecognised_columns(rs), (std::vector<std::string>{"Time", "Si29", "Pb 206"}));
}

}  // namespace
}  // namespace kolvar::test
