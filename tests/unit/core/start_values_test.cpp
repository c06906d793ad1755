#include <gtest/gtest.h>

#include "core/run_state.hpp"

namespace kolvar {
namespace {

class StartValues : public ::testing::Test {
protected:
    RunState rs;
    void SetUp() override { set_start_values(rs); }
};

TEST_F(StartValues, TheInternalStandardPathIsChosen) {
    EXPECT_EQ(rs.Method, 0);
    EXPECT_TRUE(rs.setBzzPlot == Value(0));
    EXPECT_TRUE(rs.setBzzMethod == Value(0));
}

TEST_F(StartValues, TheFlexCatalogueHasTwelveAnalytesAndEqualsAnEmptyHeadBehindThem) {
    const char* const names[] = {"ThO248", "UO254", "Zr91",  "Ca43",  "Sm147", "Pt195",
                                 "Pt198",  "U238",  "Th230", "Th232", "U233",  "U235"};
    for (int i = 1; i <= 12; ++i) EXPECT_TRUE(rs.FlexIso(i) == Value(names[i - 1])) << i;
    for (int i = 13; i <= 15; ++i) {
        EXPECT_TRUE(rs.FlexIso(i).is_unset()) << i;
        EXPECT_EQ(rs.FlexIso(i).text(), rs.IsoName(1)) << i;
    }
}

TEST_F(StartValues, TheSixRatioPairsAndAllCurvesAreShownBeforeAnyFileIsRead) {
    for (int k = 1; k <= 6; ++k) EXPECT_TRUE(rs.setRatioShow(k) == Value(1)) << k;
    for (int i = 1; i <= 50; ++i) EXPECT_TRUE(rs.CurveOn(i)) << i;
    EXPECT_FALSE(rs.AutoScale1);
    EXPECT_FALSE(rs.AutoScale2);
}

TEST_F(StartValues, TheScalarsOfANewRun) {
    EXPECT_EQ(rs.PrevSlices, 0);
    EXPECT_EQ(rs.SelCount, 0);
    EXPECT_EQ(rs.CurvesShown, 0);
    EXPECT_EQ(rs.ModeData, 0);
    EXPECT_EQ(rs.ModeCreateBLK, 0);
    EXPECT_EQ(rs.ModeCreateSTM, 0);
    EXPECT_EQ(rs.DwellUniform, 0.02);
    EXPECT_FALSE(rs.KeepData);
    EXPECT_FALSE(rs.RefsMatched);
    EXPECT_TRUE(rs.HgChosen);
    EXPECT_EQ(rs.BeamStart, 0);
    EXPECT_EQ(rs.RatioScale, 20);
    EXPECT_FALSE(rs.RejectOn);
    EXPECT_EQ(rs.ShowFirst, "elso");
    EXPECT_FALSE(rs.WaitBeamStart);
    EXPECT_TRUE(rs.SeqMode == Value(""));
    EXPECT_EQ(rs.SeqPhase, 0);
    EXPECT_TRUE(rs.setPasteDat == Value(1));
    EXPECT_EQ(rs.PlotState, 0);
}

TEST_F(StartValues, TheGrubbsLevelBeginsWithABlank) { EXPECT_EQ(rs.RejProcName, " 5"); }

TEST_F(StartValues, NoLimitIsMarked) {
    for (const Limit& limit : {rs.SelLow, rs.SelUpp, rs.BlkLow, rs.BlkUpp, rs.SelN, rs.IS1col}) {
        EXPECT_FALSE(limit.is_set());
    }
}

TEST_F(StartValues, DecayConstantsOfTheTwoUraniumIsotopes) {
    // Jaffey et al. (1971), per year.
    EXPECT_NEAR(rs.Lambda238, 1.55125e-10, 1e-24);
    EXPECT_NEAR(rs.Lambda235, 9.8485e-10, 1e-24);
}

TEST_F(StartValues, TheFoldersOfTheProgramAreLeftToTheStartUp) {
    RunState other;
    other.AppPath1 = "program";
    other.AppPath2 = "program";
    other.WorkPath = "kit";
    set_start_values(other);
    EXPECT_EQ(other.AppPath1, "program");
    EXPECT_EQ(other.AppPath2, "program");
    EXPECT_EQ(other.WorkPath, "kit");
}

}  // namespace
}  // namespace kolvar
