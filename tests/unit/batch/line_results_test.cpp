#include "session.hpp"

namespace kolvar::test {
namespace {

using LineResults = Session;

// ---- The session of tests/data/batch, byte for byte

TEST_F(LineResults, TheSessionIsWrittenStepByStep) {
    list_four();
    ASSERT_TRUE(SaveMaster(rs, os, grid, path));
    ReadMaster(rs, path);
    const auto now = [&] { return folder.read("0-run.msf"); };

    means(0.179125, 1.850235, 0.074875);
    errors(0.0005, 0.012345, 0.000004);
    signals({1000.5, 7.5, 0.5, 1.5, 2.5, 12345.678, -0.5, 12}, 1);
    select(60, 160);
    save(1);
    EXPECT_EQ(now(), golden("2-first-standard.msf"));

    rs.setMean_UP = 1;
    rs.RejectOn = true;
    form.lblOM.text = "3 / 101";
    form.txtSD.text = "2.50 ";
    medians(0.18, 1.9, 0.07);
    errors(0.1, 0.2, 0.3);
    signals({8, 7, 6, 5, 4, 3, 2, 1}, 2);
    select(61, 161);
    save(4);
    EXPECT_EQ(now(), golden("3-standards-done.msf"));

    // The factors come from the interpolation.
    constexpr double factors[4][2] = {{1.01234, 1.1}, {1.05, 1.3}, {0.98765, 0.9}, {1, 1.2}};
    for (int r = 1; r <= 4; ++r) {
        rs.MasterRecs(r, 5) = factors[r - 1][0];
        rs.MasterRecs(r, 7) = factors[r - 1][1];
    }
    rs.SeqPhase = 3;
    rs.SeqSamDone = rs.SeqStdDone;
    ASSERT_TRUE(SaveMaster(rs, os, grid, path));
    EXPECT_EQ(now(), golden("4-factors.msf"));

    rs.RejectOn = false;
    rs.setAver = 1;
    rs.setTzero = 2;
    rs.setDelay = 12;
    rs.setPbAver = 1;
    rs.setErr_times = 1;
    intercepts(0.0978049, 0.8, 9);
    intercept_errors(0.001, 0.02, 9);
    means(9, 9, 0.0601149);
    errors(9, 9, 0.0003);
    signals({8, 7, 6, 5, 4, 3, 2, 1}, 3);
    select(62, 162);
    save(2);
    EXPECT_EQ(now(), golden("5-first-sample.msf"));

    rs.setTzero = 0;
    rs.setPbAver = 0;
    rs.setErr_times = 3;
    intercepts(0.054, 0.4, 0.0533);
    intercept_errors(0.004, 0.05, 0.006);
    signals({80, 70, 60, 50, 40, 30, 20, 10}, 4);
    select(63, 163);
    save(3);
    EXPECT_EQ(now(), golden("6-all-done.msf"));

    rs.setAver = 0;
    rs.setMean_UP = 0;
    means(0.055, 0.41, 0.0534);
    errors(0.003, 0.04, 0.005);
    signals({81, 71, 61, 51, 41, 31, 21, 11}, 5);
    select(64, 164);
    save(3);
    EXPECT_EQ(now(), golden("7-saved-again.msf"));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(LineResults, ASessionGoesOnFromItsFileAsIfItHadNotBeenLeft) {
    ReadMaster(rs, folder.write("0-run.msf", golden("6-all-done.msf")));
    rs.setErr_times = 3;
    means(0.055, 0.41, 0.0534);
    errors(0.003, 0.04, 0.005);
    signals({81, 71, 61, 51, 41, 31, 21, 11}, 5);
    select(64, 164);
    save(3);
    EXPECT_EQ(folder.read("0-run.msf"), golden("7-saved-again.msf"));
}

// ---- Counting

TEST_F(LineResults, TheFirstSaveCountsAStandardAsLongAsStandardsAreMissing) {
    lines(3);
    rs.SeqStdCount = 2;
    means(0.1, 1, 0.05);
    store(1);
    store(2);
    EXPECT_EQ(rs.SeqStdDone, 2);
    EXPECT_EQ(rs.SeqSamDone, 0);
    store(3);
    EXPECT_EQ(rs.SeqStdDone, 2);
    EXPECT_EQ(rs.SeqSamDone, 1);
}

TEST_F(LineResults, ASecondSaveDoesNotCountAndOverwrites) {
    lines(2);
    rs.SeqStdCount = 2;
    means(0.1, 1, 0.05);
    store(1);
    means(0.2, 2, 0.06);
    store(1);
    EXPECT_EQ(rs.SeqStdDone, 1);
    EXPECT_EQ(field(1, 11), Value(0.2));
}

TEST_F(LineResults, ASampleSavedWhileStandardsAreMissingCountsForOneOfThem) {
    lines(2);
    rs.SeqStdCount = 1;
    rs.SeqPhase = 3;
    rs.MasterRecs(2, 2) = "Std";
    means(0.1, 1, 0.05);
    store(1);
    EXPECT_EQ(rs.SeqStdDone, 1);
    EXPECT_EQ(rs.SeqSamDone, 0);
}

TEST_F(LineResults, AMeasuredRatioOfZeroStaysUnprocessedAndCountsAgain) {
    lines(2);
    rs.SeqStdCount = 2;
    means(0.000004, 1, 0.05);
    store(1);
    EXPECT_EQ(field(1, 11), Value(0));
    EXPECT_FALSE(is_processed(rs, 1));
    store(1);
    EXPECT_EQ(rs.SeqStdDone, 2);
}

// ---- Measured ratios and how they were taken

class Choice : public Session {
protected:
    Choice() {
        lines(1);
        means(0.1, 1, 0.01);
        medians(0.2, 2, 0.02);
        intercepts(0.3, 3, 0.03);
        errors(0.4, 4, 0.04);
        intercept_errors(0.5, 5, 0.05);
        rs.setDelay = 7.5;
    }
    void choose(int aver, int median, int tzero, int lead_mean) {
        rs.setAver = aver;
        rs.setMean_UP = median;
        rs.setTzero = tzero;
        rs.setPbAver = lead_mean;
        store(1);
    }
    void expect_line(double r68, double r75, double r76, double e68, double e75, double e76, const char* average) {
        EXPECT_EQ(field(1, 11), Value(r68));
        EXPECT_EQ(field(1, 12), Value(r75));
        EXPECT_EQ(field(1, 13), Value(r76));
        EXPECT_EQ(field(1, 17), Value(e68));
        EXPECT_EQ(field(1, 18), Value(e75));
        EXPECT_EQ(field(1, 19), Value(e76));
        EXPECT_EQ(field(1, 26), Value(average));
    }
};

TEST_F(Choice, Means) {
    choose(0, 0, 2, 1);
    expect_line(0.1, 1, 0.01, 0.4, 4, 0.04, "mean");
}

TEST_F(Choice, MediansWithTheErrorsOfTheMeans) {
    choose(0, 1, 2, 1);
    expect_line(0.2, 2, 0.02, 0.4, 4, 0.04, "median");
}

TEST_F(Choice, InterceptsWithTheirErrors) {
    choose(1, 1, 0, 0);
    expect_line(0.3, 3, 0.03, 0.5, 5, 0.05, "Tzero intercept at start selection");
    choose(1, 0, 1, 0);
    expect_line(0.3, 3, 0.03, 0.5, 5, 0.05, "Tzero intercept at start laser");
    choose(1, 0, 2, 0);
    expect_line(0.3, 3, 0.03, 0.5, 5, 0.05, "Tzero intercept at 7.5 steps after start laser");
}

TEST_F(Choice, TheLeadRatioBesideInterceptsIsTheMeanAlsoWhenMediansAreChosen) {
    choose(1, 1, 0, 1);
    expect_line(0.3, 3, 0.01, 0.5, 5, 0.04, "Tzero intercept at start selection, but Pb/Pb = mean");
    choose(1, 0, 1, 1);
    expect_line(0.3, 3, 0.01, 0.5, 5, 0.04, "Tzero intercept at start laser, but Pb/Pb = mean");
    choose(1, 0, 2, 1);
    expect_line(0.3, 3, 0.01, 0.5, 5, 0.04, "Tzero intercept at 7.5 steps after start laser, but Pb/Pb = mean");
}

// ---- Corrected ratios

TEST_F(LineResults, CorrectedRatiosAreProductsOfTheFiguresInTheFile) {
    lines(1);
    rs.SeqPhase = 3;
    rs.MasterRecs(1, 5) = 1.05;
    rs.MasterRecs(1, 7) = "1.3";
    means(0.0978049, 1, 0.0601149);
    store(1);
    EXPECT_EQ(field(1, 14), Value(0.10269));
    EXPECT_EQ(field(1, 16), Value(0.07814));
}

TEST_F(LineResults, WithoutFactorsNothingIsCorrected) {
    lines(1);
    rs.MasterRecs(1, 5) = 1.05;
    rs.MasterRecs(1, 7) = 1.3;
    means(0.1, 1, 0.06);
    for (const int phase : {0, 1, 2}) {
        rs.SeqPhase = phase;
        store(1);
        EXPECT_EQ(field(1, 14), Value(""));
        EXPECT_EQ(field(1, 16), Value(""));
    }
}

TEST_F(LineResults, FieldsThatTheReductionDoesNotKnowAreNeverWritten) {
    lines(1);
    rs.SeqPhase = 3;
    constexpr int unknown[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 15, 20,
                               21, 22, 29, 30, 31, 64, 65, 66, 67, 68, 69, 70, 80};
    for (const int c : unknown) rs.MasterRecs(1, c) = "kept";
    store(1);
    for (const int c : unknown) EXPECT_EQ(field(1, c), Value("kept")) << c;
}

TEST_F(LineResults, AResultLeftFromEarlierStandsForARatioThatIsNotMeasured) {
    lines(1);
    rs.ColU235 = 0;
    means(0.1, 1.23456789, 0.06);
    store(1);
    EXPECT_EQ(field(1, 12), Value(1.23457));
}

// ---- The other fields

TEST_F(LineResults, LimitsThatAreNotMarkedAreEmpty) {
    lines(1);
    rs.BlkLow.clear();
    rs.BlkUpp = 40;
    rs.SelLow.clear();
    rs.SelUpp.clear();
    store(1);
    EXPECT_EQ(field(1, 24), Value(" to 40"));
    EXPECT_EQ(field(1, 25), Value(" to "));
}

TEST_F(LineResults, TheMultipleOfTheErrorIsANumber) {
    lines(1);
    rs.setErr_times = 2;
    store(1);
    EXPECT_EQ(field(1, 27), Value(2));
}

TEST_F(LineResults, TheRejectionTellsTheNumberInTheField) {
    lines(1);
    rs.RejectOn = true;
    form.lblOM.text = "12 / 100";
    form.txtSD.text = "3 sigma";
    store(1);
    EXPECT_EQ(field(1, 28), Value("12 / 100, rejected by 3 s.d."));
    form.txtSD.text = "";
    store(1);
    EXPECT_EQ(field(1, 28), Value("12 / 100, rejected by 0 s.d."));
    rs.RejectOn = false;
    store(1);
    EXPECT_EQ(field(1, 28), Value("no"));
}

TEST_F(LineResults, TheHgIsotopeInUseIsTheLastOfEachGroup) {
    lines(1);
    signals({8, 7, 6, 5, 4, 3, 2, 1}, 10);
    rs.CpsMean(9) = 999.5;
    rs.CpsSD(9) = 99;
    rs.BlkMean(9) = 98;
    rs.BlkSD(9) = 97;
    rs.ColHg = 9;
    store(1);
    EXPECT_EQ(field(1, 38), Value(2));
    EXPECT_EQ(field(1, 39), Value(1000));
    EXPECT_EQ(field(1, 47), Value(99));
    EXPECT_EQ(field(1, 55), Value(98));
    EXPECT_EQ(field(1, 63), Value(97));
}

// ---- A fault

TEST_F(LineResults, AFaultLeavesLineAndCountersAsTheyWere) {
    lines(1);
    rs.SeqStdCount = 1;
    means(0.1, 1, 0.06);
    rs.BlkSD(8) = Mark::dashes;
    FaultKind kind = FaultKind::index;
    guarded([&] { store(1); }, [&](const Fault& fault) { kind = fault.kind; });
    EXPECT_EQ(kind, FaultKind::type);
    EXPECT_EQ(rs.SeqStdDone, 0);
    for (int c = 11; c < 64; ++c) EXPECT_EQ(field(1, c), Value("")) << c;
}

TEST_F(LineResults, AFactorThatTakesTheProductOutOfRangeIsAnOverflow) {
    lines(1);
    rs.SeqPhase = 3;
    rs.MasterRecs(1, 5) = 1e308;
    means(100, 1, 0.06);
    FaultKind kind = FaultKind::index;
    guarded([&] { store(1); }, [&](const Fault& fault) { kind = fault.kind; });
    EXPECT_EQ(kind, FaultKind::overflow);
    EXPECT_EQ(field(1, 11), Value(""));
}

}  // namespace
}  // namespace kolvar::test
