#include "trace/quick_results.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/test_support.hpp"
#include "trace/output.hpp"

namespace kolvar::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* denied =
    "Error encountered while trying to save the Quick Result file. Maybe there is a 'Permission denided error' because "
    "the file is already opened by an other program. Check, close the other application and retry, please.";

constexpr const char* title = "KOLVAR - Quick Export of average concentrations [ppm]\t\r\n";

// Fields in their order: file, intervals, standards, kind of average; isotopes; their standard errors; their signals,
// the last one without its unit; ratios. An empty field closes each group.
constexpr const char* heads =
    "Data File:\tDate:\tTime slices from:\t...until:\tBlank from:\tBlank until:\tIntern. Std. / conc. [ppm]:\tAverage "
    "calculated as:\tSi29\tCa43\tU238\t\tseSi29\tseCa43\tseU238\t\tSi29 cps\tCa43 cps\tU238\t\tMean ratio of selected "
    "analytes (NBC = no blank correction)\r\n";

// Three isotopes after a calculation with rejections; the third was left out of it. The current folder is a fresh one.
class QuickResults : public ::testing::Test {
protected:
    QuickResults() : before(fs::current_path()) {
        fs::create_directories(folder.path("data"));
        fs::current_path(folder.path());
        rs.AppPath2 = folder.path();
        rs.DataFileName = "spot-1.csv";
        rs.nIso = 3;
        rs.nSlices = 100;
        const char* names[] = {"Si29", "Ca43", "U238"};
        const char* elements[] = {"Si", "Ca", "U"};
        for (int i = 1; i <= 3; ++i) {
            rs.IsoName(i) = names[i - 1];
            rs.IsoElem(i) = elements[i - 1];
        }
        rs.SelLow = 60;
        rs.SelUpp = 99;
        rs.SelN = 40;
        rs.BlkLow = 5;
        rs.BlkUpp = 45;
        rs.setISnum = 1;
        rs.IS1col = 1;
        rs.IS1conc = 153319.5;
        rs.IS2col = 2;
        rs.IS2conc = 78000;
        rs.IS3col = 3;
        rs.IS3conc = 0.25;
        rs.setMean_IS = 1;
        rs.setOneLine_IS = 0;
        rs.ConcMean(1) = 153319.5;
        rs.ConcMean(2) = 12.345;
        rs.ConcMedian(1) = 153000.0;
        rs.ConcMedian(2) = 12.125;
        rs.ConcSE(1) = 20.004;
        rs.ConcSE(2) = 0.055;
        for (Cell* cell : {&rs.ConcMean(3), &rs.ConcMedian(3), &rs.ConcSE(3)}) *cell = Mark::dashes;
        rs.AvCps(1) = 8000;
        rs.AvCps(2) = 500;
        rs.AvCps(3) = 0.004;
        rs.AvRawCps(1) = 9000;
        rs.AvRawCps(2) = 625;
        for (int i = 1; i <= 3; ++i) rs.nData(i) = 30;
    }
    ~QuickResults() override { fs::current_path(before); }

    void append() { AppendQuickResults(rs, os, QuickCall::from_results); }
    [[nodiscard]] std::string quick() const { return folder.read("0_quick-results"); }
    void choose_pair(int pair, int numerator, int denominator, int uncorrected) {
        rs.RatioCol(2 * pair - 2) = numerator;
        rs.RatioCol(2 * pair - 1) = denominator;
        rs.setRatBLK(pair) = uncorrected;
    }

    fs::path before;
    TempFolder folder;
    RunState rs;
    ScriptedPlatform os;
};

constexpr const char* means_line =
    "spot-1.csv\t7 Jan. 2009\t60\t99\t5\t45\tSi / "
    "153319.5\tMean\t153319.50\t12.35\t---\t\t20.00\t0.06\t---\t\t8000.00\t"
    "500.00\t0.00\t\t\r\n";

TEST_F(QuickResults, TheFirstUseWritesThreeLines) {
    append();
    EXPECT_EQ(quick(), std::string(title) + heads + means_line);
    EXPECT_FALSE(rs.QuickExists);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(QuickResults, EachLaterUseAddsOneLine) {
    append();
    append();
    append();
    EXPECT_EQ(quick(), std::string(title) + heads + means_line + means_line + means_line);
    EXPECT_TRUE(rs.QuickExists);
}

TEST_F(QuickResults, WithTwoLinesEveryLaterUseRepeatsTheHeads) {
    rs.setOneLine_IS = 1;
    append();
    append();
    EXPECT_EQ(quick(), std::string(title) + heads + means_line + heads + means_line);
}

TEST_F(QuickResults, AnyOtherLayoutWritesNothingMore) {
    rs.setOneLine_IS = 2;
    append();
    append();
    EXPECT_EQ(quick(), std::string(title) + heads + means_line);
}

TEST_F(QuickResults, AnyOtherLayoutStillCreatesTheFileBesideTheData) {
    rs.setOneLine_IS = 2;
    rs.AppPath2 = folder.path("data");
    folder.write("0_quick-results", "of another day\r\n");
    append();
    EXPECT_TRUE(fs::exists(folder.path("data/0_quick-results")));
    EXPECT_EQ(folder.read("data/0_quick-results"), "");
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(QuickResults, MediansKeepTheStandardErrorOfTheMean) {
    rs.setMean_IS = 0;
    append();
    EXPECT_EQ(quick(), std::string(title) + heads +
                           "spot-1.csv\t7 Jan. 2009\t60\t99\t5\t45\tSi / 153319.5\tMedian\t153000.00\t12.13\t---\t\t"
                           "20.00\t0.06\t---\t\t8000.00\t500.00\t0.00\t\t\r\n");
}

TEST_F(QuickResults, AnyOtherAverageIsCalledMeanAndHasNoValues) {
    rs.setMean_IS = 7;
    append();
    EXPECT_EQ(quick(), std::string(title) + heads +
                           "spot-1.csv\t7 Jan. 2009\t60\t99\t5\t45\tSi / 153319.5\tMean\t20.00\t0.06\t---\t\t8000.00\t"
                           "500.00\t0.00\t\t\r\n");
}

TEST_F(QuickResults, TwoAndThreeStandardsStandInOneField) {
    rs.setISnum = 2;
    append();
    EXPECT_NE(quick().find("\tSi / 153319.5, Ca / 78000\tMean\t"), std::string::npos);
    rs.setISnum = 3;
    append();
    EXPECT_NE(quick().find("\tSi / 153319.5, Ca / 78000, U / 0.25\tMean\t"), std::string::npos);
}

TEST_F(QuickResults, RatiosAreTakenWithOrWithoutTheBlank) {
    choose_pair(1, 1, 2, 0);  // 8000 / 500
    choose_pair(2, 1, 2, 1);  // 9000 / 500
    choose_pair(3, 1, 2, 2);  // 8000 / 625
    choose_pair(4, 1, 2, 3);  // 9000 / 625
    append();
    EXPECT_TRUE(quick().ends_with(
        "0.00\t\tSi29/Ca43:\t16\tSi29_NBC/Ca43:\t18\tSi29/Ca43_NBC:\t12.8\tSi29_NBC/Ca43_NBC:\t14.4\t\r\n"))
        << quick();
}

TEST_F(QuickResults, APairWithoutAColumnOrOfAnotherKindIsPassedOver) {
    choose_pair(1, 1, 0, 0);
    choose_pair(2, 0, 2, 0);
    choose_pair(3, 1, 2, 4);
    choose_pair(6, 2, 1, 0);  // 500 / 8000
    append();
    EXPECT_TRUE(quick().ends_with("0.00\t\tCa43/Si29:\t0.0625\t\r\n")) << quick();
}

TEST_F(QuickResults, OnlyAFileInTheCurrentFolderCountsAsThere) {
    rs.AppPath2 = folder.path("data");
    append();
    append();
    const std::string first_use = std::string(title) + heads + means_line;
    EXPECT_EQ(folder.read("data/0_quick-results"), first_use + first_use);
    EXPECT_FALSE(fs::exists(folder.path("0_quick-results")));
    folder.write("0_quick-results", "of another day\r\n");
    append();
    EXPECT_EQ(folder.read("data/0_quick-results"), first_use + first_use + means_line);
    EXPECT_EQ(quick(), "of another day\r\n");
}

TEST_F(QuickResults, AFileThatCantBeWrittenIsReportedAndWaitsForTheNextTry) {
    fs::create_directory(folder.path("0_quick-results"));
    append();
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, denied);
    EXPECT_EQ(os.boxes[0].title, "KOLVAR");
    EXPECT_EQ(os.boxes[0].kind, "warning");
    fs::remove(folder.path("0_quick-results"));
    append();
    EXPECT_EQ(quick(), std::string(title) + heads + means_line);
}

TEST_F(QuickResults, AFullDiskLeavesTheFileAsItWas) {
    append();
    os.disk_room = 20;
    append();
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, denied);
    EXPECT_EQ(quick(), std::string(title) + heads + means_line);
}

TEST_F(QuickResults, ARatioOverNoSignalIsReportedAndNothingIsWritten) {
    choose_pair(1, 1, 2, 0);
    rs.AvCps(2) = 0;
    append();
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, denied);
    EXPECT_FALSE(fs::exists(folder.path("0_quick-results")));
}

TEST_F(QuickResults, TheCountOfDataBecomesTheFullSelection) {
    append();
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(rs.nData(i), 40);
}

// Blank 2 and 4 cps of four slices, signal 12, 14, 16 and 24, 24, 24 of three; 100 ppm of the standard Si29, 30 ppm of
// Ca43 in the glass with signals 10 and 20, 50 ppm of Si29 there: mean net signals 12 and 20.
class QuickResultsOfASelection : public QuickResults {
protected:
    void SetUp() override {
        rs.nIso = 2;
        rs.nSlices = 8;
        const double si[] = {2, 2, 2, 2, 0, 12, 14, 16};
        const double ca[] = {4, 4, 4, 4, 0, 24, 24, 24};
        for (int t = 1; t <= 8; ++t) {
            rs.Sig(1, t) = si[t - 1];
            rs.Sig(2, t) = ca[t - 1];
        }
        rs.ModeData = 1;
        rs.BlankFromData = 1;
        rs.BlkLow = 1;
        rs.BlkUpp = 4;
        rs.BlkN = 4;
        rs.SelLow = 6;
        rs.SelUpp = 8;
        rs.SelN = 3;
        rs.SelNGood = 3;
        rs.IS1conc = 100;
        rs.IS1err = 1;
        for (int i = 1; i <= 2; ++i) {
            rs.IsoISidx(i) = 1;
            rs.IsoISconc(i) = 100;
            rs.IsoISerr(i) = 1;
            rs.Dwell(i) = 0.02;
            rs.StdCpsErr(i) = 0.5;
            rs.StdConcErr(i) = 0.5;
        }
        rs.StdConc(1) = 50.0;
        rs.StdConc(2) = 30.0;
        rs.StdCps(1) = 10.0;
        rs.StdCps(2) = 20.0;
        choose_pair(1, 2, 1, 0);
    }
};

TEST_F(QuickResultsOfASelection, EverythingIsCalculatedFirst) {
    AppendQuickResults(rs, os, QuickCall::from_time_selection);
    EXPECT_TRUE(os.boxes.empty());
    const std::string written = quick();
    // Mean net signals: (10 + 12 + 14) / 3 and (20 + 20 + 20) / 3.
    EXPECT_NE(written.find("\t12.00\t20.00\t\tCa43/Si29:\t1.6666666666666667\t\r\n"), std::string::npos) << written;
    EXPECT_EQ(rs.nData(1), 3);
}

TEST_F(QuickResultsOfASelection, WithoutAMarkedBlankItsBoxComesAndTheLineIsWrittenWithTheFormerBlank) {
    rs.BlkLow = rs.BlkUpp = Limit();
    rs.BlkMean(1) = 4.0;
    rs.BlkMean(2) = 14.0;
    rs.BlkSD(1) = rs.BlkSD(2) = 1.0;
    AppendQuickResults(rs, os, QuickCall::from_time_selection);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "The selected blank interval is too short.");
    const std::string written = quick();
    EXPECT_NE(written.find("\t6\t8\t\t\tSi / 100\t"), std::string::npos) << written;
    // Mean net signals: (8 + 10 + 12) / 3 and 10.
    EXPECT_NE(written.find("\t10.00\t10.00\t\tCa43/Si29:\t1\t\r\n"), std::string::npos) << written;
}

}  // namespace
}  // namespace kolvar::test
