#include "upb/export.hpp"

#include <filesystem>

#include "core/fault.hpp"
#include "uranium_case.hpp"

namespace kolvar::test {
namespace {

namespace fs = std::filesystem;

// Column k has a mean of 100 k + 0.5 cps, an s.d. of 20 k, a blank of k + 0.5 and its s.d. of 2 k; five slices count,
// so a standard error divides by 2.
class Export : public UraniumCase {
protected:
    Export() : before(fs::current_path()) {
        fs::create_directories(folder.path("data"));
        fs::current_path(folder.path());
        rs.AppPath2 = folder.path();
        rs.DataFileName = "spot.csv";
        rs.SelNGood = 5;
        for (int k = 1; k <= 8; ++k) {
            rs.CpsMean(k) = 100 * k + 0.5;
            rs.CpsSD(k) = 20.0 * k;
            rs.BlkMean(k) = k + 0.5;
            rs.BlkSD(k) = 2.0 * k;
        }
        rs.Hg2_4 = 2;
        rs.Mean68 = 0.1, rs.Mean75 = 0.8, rs.Mean82 = 0.03, rs.Mean382 = 2.5, rs.Mean76 = 0.06, rs.Mean85 = 137.81849;
        rs.Med68 = 0.11, rs.Med75 = 0.81, rs.Med82 = 0.031, rs.Med382 = 2.51, rs.Med76 = 0.061;
        rs.Tz68 = 0.12, rs.Tz75 = 0.82, rs.Tz82 = 0.032, rs.Tz382 = 2.52, rs.Tz76 = 0.062;
        rs.SD68 = 0.01, rs.SD75 = 0.02, rs.SD82 = 0.03, rs.SD382 = 0.04, rs.SD76 = 0.05, rs.SD85 = 0.06;
        rs.ResSD68 = 0.001, rs.ResSD75 = 0.002, rs.ResSD82 = 0.003, rs.ResSD382 = 0.004, rs.ResSD76 = 0.005;
        rs.Err68 = 0.5, rs.Err75 = 0.25, rs.Err82 = 0.125, rs.Err76 = 0.0625;
        rs.TzErr68 = 0.7, rs.TzErr75 = 0.6, rs.TzErr82 = 0.4, rs.TzErr76 = 0.3;
        rs.setErr_times = 2;
        rs.setOL_SD = 2.5;
        rs.setPbAver = 0;
        rs.setPasteDat = 1;
    }
    ~Export() override { fs::current_path(before); }
    std::string copied(bool no_head) {
        rs.NoHead = no_head;
        copy_to_clpb(context);
        return os.clip;
    }

    fs::path before;
    TempFolder folder;
};

// ---- major data

const std::string major_heads =
    "Kolvar export\t202\t204Hg\t204Pb\t206\t207\t208\t232\t235\t238\t204m\t204cPb\t206cPb\t207cPb\t206\t207\t208\t232\t"
    "235\t238\t207/206\t1s%\t207*/206*\t1s%\t207/235\t1s%\t206/238\t1s%\t208*/232\t1s%\t208/232\t1s%\t\t206/238fra\t"
    "208/232";
// Hg 8.5 cps and 8.5 / 2 on mass 204; blanks 6.5 5.5 4.5 3.5 2.5 1.5 and means 600.5 .. 100.5, to even numbers.
const std::string major_signals =
    "spot.csv\t8\t4\t--204\t6\t6\t4\t4\t2\t2\t700\t204cPb\t\t\t600\t500\t400\t300\t200\t100\t";

TEST_F(Export, MajorDataWithHeads) {
    rs.setPasteDat = 0;
    EXPECT_EQ(copied(false), major_heads + "\r" + major_signals +
                                 "0.06\t0.0625\t---\t-\t0.8\t0.2500\t0.1\t0.5000\t---\t-\t0.03\t0.1250\t\t206/238fra\t"
                                 "208/232");
    EXPECT_EQ(rs.QuickHdr1, "");
}

TEST_F(Export, MajorDataAtTZero) {
    rs.setPasteDat = 0;
    rs.setAver = 1;
    EXPECT_EQ(copied(true), major_signals +
                                "0.062\t0.3000\t---\t-\t0.82\t0.6000\t0.12\t0.7000\t---\t-\t0.032\t0.4000\t\t206/238fra"
                                "\t208/232");
    rs.setPbAver = 1;
    EXPECT_EQ(copied(true), major_signals +
                                "0.06\t0.0625\t---\t-\t0.82\t0.6000\t0.12\t0.7000\t---\t-\t0.032\t0.4000\t\t206/238fra"
                                "\t208/232");
}

TEST_F(Export, MajorDataNeverHoldTheMedianAndNothingForAnotherAverage) {
    rs.setPasteDat = 0;
    rs.setMean_UP = 1;
    EXPECT_NE(copied(true).find("\t0.06\t0.0625\t"), std::string::npos);
    rs.setAver = 2;
    EXPECT_EQ(copied(true), major_signals + "\t\t---\t-\t\t\t\t\t---\t-\t\t\t\t206/238fra\t208/232");
}

TEST_F(Export, WithoutAMercuryIsotopeTheBlankOfItsFormerColumnIsPrinted) {
    rs.setPasteDat = 0;
    rs.HgMass = 0;
    EXPECT_TRUE(copied(true).starts_with("spot.csv\t8\t0\t--204\t"));
}

TEST_F(Export, AMercuryRatioOfZeroIsAFaultOfTheMajorDataAlone) {
    rs.Hg2_4 = 0;
    EXPECT_TRUE(copied(true).starts_with("spot.csv\t7 Jan. 2009\t"));
    rs.setPasteDat = 0;
    EXPECT_THROW(copied(true), Fault);
}

// ---- all data

const std::string full_title =
    "KOLVAR  -  Export of LA-ICP-MS U/Pb data\t\t\t\t\t\t\t[Isotope ratios]\t\t\t\t\t[Std. error of isot. "
    "ratios]\t\t\t\t"
    "\t[Std. deviation of isot. ratios]\t\t\t\t\t[Blank corrected cps]\t\t\t\t\t\t\t\t[Std. error of "
    "cps]\t\t\t\t\t\t\t\t"
    "[Std. deviation of cps]\t\t\t\t\t\t\t\t[Blank cps]\t\t\t\t\t\t\t\t[Std. dev. of blank]";
const std::string full_heads =
    "File:\tDate:\tBlank:\tSelection:\tAverage:\terror x times:\tRejection:\tPb206/U238\tPb207/U235\tPb208/Th232\t"
    "U238/Th232\tPb207/Pb206\tSE 206/238\tSE 207/235\tSE 208/232\tSE 238/232\tSE 207/206\tSD 206/238\tSD 207/235\t"
    "SD 208/232\tSD 238/232\tSD 207/206\tU238\tU235\tTh232\tPb208\tPb207\tPb206\tPb204\tHg20x\tse U238\tse U235\tse "
    "Th232\tse Pb208\tse Pb207\tse Pb206\tse Pb204\tse Hg20x\tsd U238\tsd U235\tsd Th232\tsd Pb208\tsd Pb207\tsd "
    "Pb206\t"
    "sd Pb204\tsd Hg20x\tblk U238\tblk U235\tblk Th232\tblk Pb208\tblk Pb207\tblk Pb206\tblk Pb204\tblk Hg20x\tbSD "
    "U238\t"
    "bSD U235\tbSD Th232\tbSD Pb208\tbSD Pb207\tbSD Pb206\tbSD Pb204\tbSD Hg20x";
const std::string full_signals =
    "100\t200\t300\t400\t500\t600\t700\t800\t10\t20\t30\t40\t50\t60\t70\t80\t20\t40\t60\t80\t100\t120\t140\t160\t2\t2\t"
    "4\t"
    "4\t6\t6\t8\t8\t2\t4\t6\t8\t10\t12\t14\t16\t";
const std::string errors_of_means = "0.0100\t0.0200\t0.0300\t0.0400\t0.0500\t0.0200\t0.0400\t0.0600\t0.0800\t0.1000\t";

TEST_F(Export, AllDataWithTitleAndHeads) {
    EXPECT_EQ(copied(false),
              full_title + "\r" + full_heads + "\r" +
                  "spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\tmean\t2.5\tno\t0.1000\t0.8000\t0.0300\t2.5000\t"
                  "0.0600\t" +
                  errors_of_means + full_signals);
}

// The errors are absolute and doubled, and the fields of the screen keep the last of them.
TEST_F(Export, AllDataLeaveTheDeviationsInTheErrorsOfTheScreen) {
    rs.setErr = 3;
    copied(true);
    EXPECT_DOUBLE_EQ(rs.Err68, 0.02);
    EXPECT_DOUBLE_EQ(rs.Err382, 0.08);
    EXPECT_DOUBLE_EQ(rs.Err76, 0.1);
}

TEST_F(Export, AllDataOfMedians) {
    rs.setMean_UP = 1;
    EXPECT_EQ(copied(true),
              "spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\tmedian\t2.5\tno\t0.1100\t0.8100\t0.0310\t2.5100\t0.0610\t" +
                  errors_of_means + full_signals);
}

TEST_F(Export, AllDataAtTZeroAndItsTexts) {
    rs.setAver = 1;
    const std::string values = "\t2.5\tno\t0.1200\t0.8200\t0.0320\t2.5200\t";
    const std::string residuals = "0.0010\t0.0020\t0.0030\t0.0040\t0.0050\t0.0020\t0.0040\t0.0060\t0.0080\t0.0100\t";
    const std::string with_mean = "0.0010\t0.0020\t0.0030\t0.0040\t0.0500\t0.0020\t0.0040\t0.0060\t0.0080\t0.1000\t";
    const std::string start = "spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\t";
    EXPECT_EQ(copied(true),
              start + "Tzero intercept at start selection" + values + "0.0620\t" + residuals + full_signals);
    rs.setTzero = 1;
    rs.setPbAver = 1;
    EXPECT_EQ(copied(true), start + "Tzero intercept at start laser ,but Pb/Pb = mean" + values + "0.0600\t" +
                                with_mean + full_signals);
    rs.setTzero = 2;
    rs.setDelay = 4.5;
    rs.setMean_UP = 1;
    EXPECT_EQ(copied(true), start + "Tzero intercept at 4.5 steps after start laser, but Pb/Pb = mean" + values +
                                "0.0610\t" + with_mean + full_signals);
}

// A default file written by hand may hold any number. The values are those at T-zero all the same.
TEST_F(Export, ATZeroOfNoKnownKindIsNamedAfterTheAverage) {
    rs.setAver = 1;
    rs.setTzero = 3;
    EXPECT_TRUE(copied(true).starts_with("spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\tmean\t2.5\tno\t0.1200\t0.8200\t"));
    rs.setMean_UP = 1;
    EXPECT_TRUE(copied(true).starts_with("spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\tmedian\t2.5\tno\t0.1200\t0.8200\t"));
}

TEST_F(Export, RejectionIsToldWithItsLimit) {
    rs.RejectOn = true;
    form.lblOM.text = "3 / 8";
    form.txtSD.text = "2.5 times";
    EXPECT_NE(copied(true).find("\t2.5\t3 / 8, rejected by 2.5 s.d.\t0.1000\t"), std::string::npos);
}

TEST_F(Export, ASingleCountedSliceHasNoStandardError) {
    rs.SelNGood = 1;
    EXPECT_THROW(copied(true), Fault);
    EXPECT_FALSE(rs.NoHead);
}

TEST_F(Export, TheCursorWaitsAlsoWhereTheExportEndsInAFault) {
    copied(true);
    EXPECT_EQ(os.wait_cursors, (std::vector<bool>{true, false}));
    rs.SelNGood = 1;
    EXPECT_THROW(copied(true), Fault);
    EXPECT_EQ(os.wait_cursors, (std::vector<bool>{true, false, true, false}));
}

// Without U235 and Th232 column 0 and the ratios of the file before are read, and nobody is told.
TEST_F(Export, ColumnsThatAreMissingPrintColumnZeroAndWhatTheirRatiosHeld) {
    rs.ColU235 = rs.ColTh232 = 0;
    EXPECT_EQ(copied(true),
              "spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\tmean\t2.5\tno\t0.1000\t0.8000\t0.0300\t2.5000\t0.0600\t" +
                  errors_of_means +
                  "100\t0\t0\t400\t500\t600\t700\t800\t10\t0\t0\t40\t50\t60\t70\t80\t20\t0\t0\t80\t100\t120\t140\t160"
                  "\t2\t0\t0\t4\t6\t6\t8\t8\t2\t0\t0\t8\t10\t12\t14\t16\t");
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Export, AnyOtherLayoutCopiesAnEmptyLine) {
    rs.setPasteDat = 2;
    EXPECT_EQ(copied(true), "");
    EXPECT_EQ(copied(false), "\r");
    rs.Method = 0;
    EXPECT_EQ(copied(true), "");
}

// ---- solutions

TEST_F(Export, SolutionsPrintTheSlotsUnderFixedHeads) {
    rs.Method = 3;
    EXPECT_EQ(
        copied(false),
        "KOLVAR  -  Export of Solution-MS U & Th & Sm data\t\t\t\t\t\t[Isotope ratios]\t\t\t\t[Std. error of isot. "
        "ratios]\t\t\t\t[Std. deviation of isot. ratios]\t\t\t\t[Blank corrected cps]\t\t\t\t\t\t\t\t[Std. error of "
        "cps]\t\t\t\t\t\t\t\t[Std. deviation of cps]\t\t\t\t\t\t\t\t[Blank cps]\t\t\t\t\t\t\t\t[Std. dev. of blank]\r"
        "File:\tDate:\tBlank:\tSelection:\tRejection:\terror x times:\tU233/U238\tTh230/Th232\tU238/Th232\t"
        "U238/U235\tSE 233/238\tSE 230/232\tSE 238/232\tSE 238/235\tSD 233/238\tSD 230/232\tSD 238/232\t"
        "SD 238/235\tU238\tU235\tU233\tTh232\tTh230\tSm147\tCa43\tPt195\tse U238\tse U235\tse U233\tse Th232\tse "
        "Th230\tse Sm147\tse Ca43\tse Pt195\tsd U238\tsd U235\tsd U233\tsd Th232\tsd Th230\tsd Sm147\tsd Ca43\tsd "
        "Pt195\tblk U238\tblk U235\tblk U233\tblk Th232\tblk Th230\tblk Sm147\tblk Ca43\tblk Pt195\tbSD U238\tbSD "
        "U235\tbSD U233\tbSD Th232\tbSD Th230\tbSD Sm147\tbSD Ca43\tbSD Pt195\r"
        "spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\tno\t2\t0.1000\t0.0300\t2.5000\t137.8185\t"
        "0.0100\t0.0300\t0.0400\t0.0600\t0.0100\t0.0300\t0.0400\t0.0600\t"
        "100\t200\t600\t300\t400\t500\t700\t800\t10\t20\t60\t30\t40\t50\t70\t80\t20\t40\t120\t60\t80\t100\t140\t160\t"
        "2\t2\t6\t4\t4\t6\t8\t8\t2\t4\t12\t6\t8\t10\t14\t16\t");
}

// ---- the SUMMARY file

TEST_F(Export, TheSummaryFileHasItsHeadsOnce) {
    const std::string line =
        "spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\tmean\t2.5\tno\t0.1000\t0.8000\t0.0300\t2.5000\t0.0600\t" +
        errors_of_means + full_signals + "\r\n";
    os.clip = "old";
    rs.AppendSummary = true;
    copy_to_clpb(context);
    EXPECT_EQ(folder.read("0_summary"), full_title + "\r\n" + full_heads + "\r\n" + line);
    EXPECT_EQ(os.clip, "");  // an append empties the clipboard
    EXPECT_FALSE(rs.AppendSummary);
    rs.AppendSummary = true;
    copy_to_clpb(context);
    EXPECT_EQ(folder.read("0_summary"), full_title + "\r\n" + full_heads + "\r\n" + line + line);
    EXPECT_FALSE(rs.NoHead);
}

TEST_F(Export, OnlyASummaryFileInTheCurrentFolderCountsAsThere) {
    rs.setPasteDat = 0;
    rs.AppPath2 = folder.path("data");
    for (int k = 0; k < 2; ++k) {
        rs.AppendSummary = true;
        copy_to_clpb(context);
    }
    const std::string once =
        major_heads + "\r\n" + major_signals +
        "0.06\t0.0625\t---\t-\t0.8\t0.2500\t0.1\t0.5000\t---\t-\t0.03\t0.1250\t\t206/238fra\t208/232\r\n";
    EXPECT_EQ(folder.read("data/0_summary"), once + once);
}

// Not the root of the disk: a file that was given without a folder lies in the current one.
TEST_F(Export, TheSummaryFileOfADataFileWithoutAFolderLiesInTheCurrentOne) {
    rs.AppPath2 = "";
    rs.AppendSummary = true;
    copy_to_clpb(context);
    EXPECT_TRUE(folder.read("0_summary").starts_with(full_title + "\r\n" + full_heads + "\r\n"));
}

TEST_F(Export, ASummaryFileThatCantBeWrittenIsAFaultThatLeavesNoFlagStanding) {
    fs::create_directory(folder.path("0_summary"));
    rs.AppendSummary = true;
    rs.NoHead = true;
    EXPECT_THROW(copy_to_clpb(context), Fault);
    EXPECT_FALSE(rs.AppendSummary);
    EXPECT_FALSE(rs.NoHead);
}

// ---- selected slices

TEST_F(Export, SelectedSlicesWithoutTheFirstColumn) {
    select(5, 6);
    rs.nIso = 3;
    rs.Sig2(2, 5) = 1.5, rs.Sig2(2, 6) = 20.4;
    rs.Sig2(3, 5) = 0.01, rs.Sig2(3, 6) = 7;
    rs.RejFlag(6) = 2;
    ratio(rs.Rat68, {0.1, 0.25});
    ratio(rs.Rat75, {1, 2});
    ratio(rs.Rat82, {0, 0.33335});
    ratio(rs.Rat382, {3, 4});
    ratio(rs.Rat76, {0.06, 0.061});
    copy_selected_slices(context);
    EXPECT_EQ(
        os.clip,
        "* * * * *  KolvAGE  -  Export of processed Laser-ICP-MS U/Pb data  (table contains only the selected time "
        "slices)\rData are blank corrected cps and uncorrected isotope ratios\rDate:\t7 Jan. 2009\rData File:\t"
        "spot.csv\rBlank time slices:\t1 to 3\r\r\t\tTime slices:\t5\t6\rIsotopes\tBlank [cps]\tOutliers:\t\t"
        "rejected\rU235\t3\t\t2\t20\rTh232\t4\t\t0\t7\rISOTOPE RATIOS\rPb206/U238\t\t\t0.1000\t0.2500\rPb207/U235\t"
        "\t\t1.0000\t2.0000\rPb208/Th232\t\t\t0.0000\t0.3334\rU238/Th232\t\t\t3.0000\t4.0000\rPb207/Pb206\t\t\t"
        "0.0600\t0.0610\r");
}

// ---- a machine with a decimal comma

class CommaPlatform : public ScriptedPlatform {
public:
    std::string decimal_sign() override { return ","; }
};

TEST_F(Export, TheDecimalSignOfTheMachineIsThatOfAllItsNumbers) {
    CommaPlatform comma;
    Context there{rs, forms, comma, shell};
    rs.setPasteDat = 0;
    rs.NoHead = true;
    copy_to_clpb(there);
    EXPECT_EQ(
        comma.clip,
        major_signals + "0,06\t0,0625\t---\t-\t0,8\t0,2500\t0,1\t0,5000\t---\t-\t0,03\t0,1250\t\t206/238fra\t208/232");
    rs.setPasteDat = 1;
    rs.setAver = 1;
    rs.setTzero = 2;
    rs.setDelay = 4.5;
    rs.RejectOn = true;
    form.lblOM.text = "3 / 8";
    form.txtSD.text = "2.5";
    rs.NoHead = true;
    copy_to_clpb(there);
    EXPECT_TRUE(
        comma.clip.starts_with("spot.csv\t7 Jan. 2009\t1 to 3\t5 to 8\tTzero intercept at 4,5 steps after start "
                               "laser\t2,5\t3 / 8, rejected by 2,5 s.d.\t0,1200\t0,8200\t"))
        << comma.clip;
}

}  // namespace
}  // namespace kolvar::test
