#include "trace/output.hpp"

#include <gtest/gtest.h>

#include <vector>

#include "support/test_support.hpp"

namespace kolvar::test {
namespace {

// Two isotopes, three selected slices of ten; the second isotope lacks a reference.
struct OutputCase : ::testing::Test {
    RunState rs;
    ScriptedPlatform os;

    void SetUp() override {
        rs.ModeData = 1;
        rs.DataFileName = "Temora-5.csv";
        rs.SettingsName = "Kolvar-default-h.set";
        rs.STCfileName = "NIST610.stc";
        rs.STMfileName = "nist.stm";
        rs.BLKfileName = "day.blk";
        rs.DwellUniform = 0.02;
        rs.setISnum = 1;
        rs.IS1col = 1;
        rs.IS1conc = 153319;
        rs.IS1err = 1500;
        rs.nIso = 2;
        rs.nIsoCalc = 1;
        rs.nSlices = 10;
        rs.SelLow = 4;
        rs.SelUpp = 6;
        rs.SelN = 3;
        rs.RejSDLimit = 0;
        rs.RejGrubbsP = 0;
        rs.setTableFormat = 0;
        rs.IsoName(1) = "Si29";
        rs.IsoName(2) = "Hg202";
        rs.IsoElem(1) = "Si";
        rs.IsoElem(2) = "Hg";
        rs.ConcMedian(1) = 153000.125;
        rs.ConcMean(1) = 153319.0;
        rs.ConcSD(1) = 1500.0;
        rs.ConcSE(1) = 12.345;
        rs.LoD(1) = "0.50000";
        rs.RelErr(1) = 8.0;
        rs.R2IsoIS(1) = 1;
        rs.AvCps(1) = 1234.56;
        rs.BlkMean(1) = 12.25;
        rs.StdCps(1) = 99999.96;
        rs.Dwell(1) = 0.02;
        rs.nData(1) = 3;
        for (Cell* cell : {&rs.ConcMedian(2), &rs.ConcMean(2), &rs.ConcSD(2), &rs.ConcSE(2), &rs.RelErr(2)})
            *cell = Mark::dashes;
        rs.LoD(2) = "---";
        rs.R2IsoIS(2) = -0.25;
        rs.AvCps(2) = 0.04;
        rs.BlkMean(2) = Mark::empty;
        rs.StdCps(2) = Mark::empty;
        rs.Dwell(2) = 0.0125;
        rs.nData(2) = 2;
        rs.ConcT(1, 4) = 1.005;
        rs.ConcT(1, 5) = Mark::xx;
        rs.ConcT(1, 6) = -2.5;
        for (int t = 4; t <= 6; ++t) rs.ConcT(2, t) = rs.ErrT(2, t) = Mark::dashes;
        rs.ErrT(1, 4) = 0.1;
        rs.ErrT(1, 5) = Mark::xx;
        rs.ErrT(1, 6) = Mark::xx;
    }

    std::vector<std::string> lines() {
        Comp_Output(rs, os);
        std::vector<std::string> out;
        std::size_t from = 0;
        for (std::size_t at = rs.OutText.find('\r'); at != std::string::npos; at = rs.OutText.find('\r', from)) {
            out.push_back(rs.OutText.substr(from, at - from));
            from = at + 1;
        }
        EXPECT_EQ(from, rs.OutText.size());  // the text ends with a line end
        return out;
    }
    std::string line(int number) { return lines().at(static_cast<std::size_t>(number) - 1); }
    // The first line from `number` on that begins so; "" when there is none.
    std::string line_with(const std::string& beginning) {
        for (const std::string& at : lines())
            if (at.starts_with(beginning)) return at;
        return {};
    }
};

using Output = OutputCase;

TEST_F(Output, WholeTableWithIsotopesAsLines) {
    Comp_Output(rs, os);
    EXPECT_EQ(rs.OutText,
              "* * *  KOLVAR  -  Export of processed Laser-ICP-MS data\r"
              "Part 1 - Files, selection and rejection\r"
              "Date / Time:\t7 Jan. 2009\t14:03:22\r"
              "Data File:\tTemora-5.csv\r"
              "Setting File:\tKolvar-default-h.set\r"
              "Standard Composition File:\tNIST610.stc\r"
              "Standard Measurement File:\tnist.stm\r"
              "Blank File:\tday.blk\r"
              "Dwell time - uniform [msec]:\t20\r"
              "Internal Std. / conc. / error [ppm]:\tSi\t153319\t1500\r"
              "Isotopes measured / calculated:\t2\t1\r"
              "Time slices all / selected:\t10\t3\r"
              "Selected from / until:\t4\t6\r"
              "Rejection:\tAll data considered\r"
              "Rejected data / percentage:\t0\t0.0\r"
              "\r"
              "Part 2 - Mean concentrations\tData File:\tTemora-5.csv\r"
              "Isotope\tElement\tMedian\tMean conc.\tS. D.\tS. E.\tLim. of Det.\tRel. Err.\tR2 iso/IS\tAv. counts\t"
              "BLK counts\tSTD counts\tDwell time\tTime slices\r"
              "\t\t[ppm]\t[ppm]\t[ppm]\t[ppm]\t[ppm]\t[%]\t\t[cps]\t[cps]\t[cps]\t[msec]\r"
              "Si29\tSi\t153000.13\t153319.00\t1500.00\t12.35\t0.50000\t8\t1\t1234.6\t12.3\t100000.0\t20\t3\r"
              "Hg202\tHg\t---\t---\t---\t---\t---\t---\t-0.25\t0.0\t0.0\t\t12.5\t2\r"
              "\r"
              "Part 3 - Conc. in time slices [ppm]\r"
              "Isotope\tElement\tt4\tt5\tt6\r"
              "Si29\tSi\t1.01\tXX\t-2.50\r"
              "Hg202\tHg\t---\t---\t---\r"
              "\r"
              "Part 4 - Errors of conc. [ppm]\r"
              "Isotope\tElement\tt4\tt5\tt6\r"
              "Si29\tSi\t0.10\tXX\tXX\r"
              "Hg202\tHg\t---\t---\t---\r"
              "\r");
}

TEST_F(Output, SlicesAsLinesHaveTwoHeadLinesAndNoFurtherLineEndAtTheEnd) {
    rs.setTableFormat = 1;
    Comp_Output(rs, os);
    const std::string expected =
        "\rPart 3 - Conc. in time slices [ppm]\r"
        "Time slice\tSi29\tHg202\r"
        "\tSi\tHg\r"
        "4\t1.01\t---\r"
        "5\tXX\t---\r"
        "6\t-2.50\t---\r"
        "\rPart 4 - Errors of conc. [ppm]\r"
        "Time slice\tSi29\tHg202\r"
        "\tSi\tHg\r"
        "4\t0.10\t---\r"
        "5\tXX\t---\r"
        "6\tXX\t---\r";
    EXPECT_EQ(rs.OutText.substr(rs.OutText.find("\rPart 3")), expected);
}

TEST_F(Output, AnotherTableFormatWritesTheHeadingsAlone) {
    rs.setTableFormat = 2;
    Comp_Output(rs, os);
    EXPECT_TRUE(rs.OutText.ends_with("2\r\rPart 3 - Conc. in time slices [ppm]\r\rPart 4 - Errors of conc. [ppm]\r"));
}

TEST_F(Output, BlankOfTheDataFileAndDwellFileHaveTheirOwnLines) {
    rs.BlankFromData = 1;
    rs.BlkLow = 1;
    rs.BlkUpp = 3;
    rs.DwellFromFile = 1;
    rs.DWEfileName = "quad.dwe";
    EXPECT_EQ(line(8), "Blank from Data File, time slices from / to:\t1\t3");
    EXPECT_EQ(line(9), "Dwell Time File:\tquad.dwe");
}

TEST_F(Output, TwoStandardsFollowEachOther) {
    rs.setISnum = 2;
    rs.IS2col = 2;
    rs.IS2conc = 7;
    rs.IS2err = 0.5;
    EXPECT_EQ(line(10), "Internal Std. / conc. / error [ppm]:\tSi\t153319\t1500\tHg\t7\t0.5");
}

TEST_F(Output, WithThreeStandardsTheErrorOfTheFirstStandsBehindThatOfTheSecondWithoutTab) {
    rs.setISnum = 3;
    rs.IS2col = 2;
    rs.IS2conc = 7;
    rs.IS2err = 0.5;
    rs.IS3col = 1;
    rs.IS3conc = 9;
    rs.IS3err = 0.25;
    EXPECT_EQ(line(10), "Internal Std. / conc. / error [ppm]:\tSi\t153319\t1500\tHg\t7\t0.51500\tSi\t9\t0.25");
}

TEST_F(Output, AnotherNumberOfStandardsOmitsTheLine) {
    rs.setISnum = 0;
    EXPECT_EQ(line(10), "Isotopes measured / calculated:\t2\t1");
    rs.setISnum = 4;
    EXPECT_EQ(line(10), "Isotopes measured / calculated:\t2\t1");
}

TEST_F(Output, RejectionIsToldInItsOrderWithItsBlanks) {
    rs.RejManual = 1;
    rs.RejMinMaxOn = 1;
    rs.RejGrubbsP = " 5";
    rs.RejSDLimit = "3";
    EXPECT_EQ(line(14), "Rejection:\tManual    Min & Max    P(Grubbs) >  5    S.D. > 3");
    rs.RejMinMaxOn = 0;
    rs.RejGrubbsP = "2.5";
    EXPECT_EQ(line(14), "Rejection:\tManual    P(Grubbs) > 2.5    S.D. > 3");
    rs.RejManual = 0;
    rs.RejGrubbsP = 0;
    EXPECT_EQ(line(14), "Rejection:\tS.D. > 3");
}

TEST_F(Output, EachKindOfRejectionIsToldAlone) {
    rs.RejManual = 1;
    EXPECT_EQ(line(14), "Rejection:\tManual    ");
    rs.RejManual = 0;
    rs.RejMinMaxOn = 1;
    EXPECT_EQ(line(14), "Rejection:\tMin & Max    ");
    rs.RejMinMaxOn = 0;
    rs.RejGrubbsP = " 1";
    EXPECT_EQ(line(14), "Rejection:\tP(Grubbs) >  1    ");
}

TEST_F(Output, RejectedShareIsOfAllCellsOmittedIsotopesIncluded) {
    rs.nRejected = 1;
    // 1 of 2 x 3 = 16.67 %
    EXPECT_EQ(line(15), "Rejected data / percentage:\t1\t16.7");
}

TEST_F(Output, WarningsLoseTheirLastCommaAndBlanks) {
    rs.MissSTC = "Hg202,  Xe131,  ";
    rs.MissBLK = "Hg202,  ";
    rs.MissDWE = "Hg202,  ";
    EXPECT_EQ(line(16), "");
    EXPECT_EQ(line(17), "WARNING - Incomplete data sets");
    EXPECT_EQ(line(18), "Missing in the Standard Composition File:\tHg202,  Xe131");
    EXPECT_EQ(line(19), "Missing in the Blank File:\tHg202");
    EXPECT_EQ(line(20), "Missing in the Dwell Time File - thus these errors are not correct. \tHg202");
    EXPECT_EQ(line(21), "");
    rs.MissSTC = rs.MissBLK = "";
    rs.MissSTM = "U238,  ";
    EXPECT_EQ(line(18), "Missing in the Standard Measurement File:\tU238");
}

TEST_F(Output, MissingDwellTimesAloneBringNoWarning) {
    rs.MissDWE = "Hg202,  ";
    EXPECT_EQ(line_with("WARNING"), "");
    EXPECT_EQ(line(17), "Part 2 - Mean concentrations\tData File:\tTemora-5.csv");
}

TEST_F(Output, UnitLineHasNoFieldForTheTimeSlices) {
    const auto tabs = [](const std::string& text) { return std::count(text.begin(), text.end(), '\t'); };
    EXPECT_EQ(tabs(line_with("Isotope\tElement\tMedian")), 13);
    EXPECT_EQ(tabs(line_with("\t\t[ppm]")), 12);
}

TEST_F(Output, UnroundedLimitsAndTypedStandardsStandAsTheyAre) {
    rs.LoD(1) = 5.12e-6;
    rs.IS1conc = "153319.0";
    EXPECT_EQ(line(10), "Internal Std. / conc. / error [ppm]:\tSi\t153319.0\t1500");
    EXPECT_NE(line_with("Si29").find("\t0.00000512\t8\t"), std::string::npos);
}

// File names --------------------------------------------------------------------------------------------------------

TEST_F(Output, SuffixTellsTheRejectionInItsOwnOrder) {
    rs.SelLow = 20;
    rs.SelUpp = 80;
    EXPECT_EQ(BuildSuffix(rs), "_t20-t80");
    rs.RejManual = 1;
    rs.RejGrubbsP = "2.5";
    rs.RejProcName = "2.5";
    rs.RejSDLimit = "3";
    EXPECT_EQ(BuildSuffix(rs), "_M_G2.5_S3_t20-t80");
    rs.RejMinMaxOn = 1;
    EXPECT_EQ(BuildSuffix(rs), "_M_X_G2.5_S3_t20-t80");
}

TEST_F(Output, SuffixKeepsTheBlankOfALevelAndTakesItFromTheList) {
    rs.RejGrubbsP = "2.5";
    rs.RejProcName = " 5";
    EXPECT_EQ(BuildSuffix(rs), "_G 5_t4-t6");
    EXPECT_EQ(line(14), "Rejection:\tP(Grubbs) > 2.5    ");
}

TEST_F(Output, DefaultNameLosesFourCharactersAndThreeForTheShortSpreadsheetEnding) {
    EXPECT_EQ(default_result_name(rs, ".txt"), "Temora-5_t4-t6.txt");
    rs.DataFileName = "run7.xl";
    EXPECT_EQ(default_result_name(rs, ".stm"), "run7_t4-t6.stm");
    rs.DataFileName = "RUN7.XL";
    EXPECT_EQ(default_result_name(rs, ".blk"), "RUN7_t4-t6.blk");
    rs.DataFileName = "run7.Xl";
    EXPECT_EQ(default_result_name(rs, ".txt"), "run_t4-t6.txt");
    rs.DataFileName = " pasted from clipboard ";
    EXPECT_EQ(default_result_name(rs, ".txt"), " pasted from clipbo_t4-t6.txt");
    rs.DataFileName = "abc";
    EXPECT_EQ(default_result_name(rs, ".txt"), "_t4-t6.txt");
}

TEST_F(Output, EndingsAreCountedInCharacters) {
    rs.DataFileName = "Gr\xC3\xBC\xC3\x9F.e.xt\xC3\xA9";  // Grüß.e.xté
    EXPECT_EQ(default_result_name(rs, ".txt"), "Gr\xC3\xBC\xC3\x9F.e_t4-t6.txt");
}

// The file ----------------------------------------------------------------------------------------------------------

TEST_F(Output, FileIsOneQuotedField) {
    const TempFolder folder;
    rs.OutText = "a\tb\rc, \r";
    WriteResultFile(rs, os, folder.path("r.txt"));
    EXPECT_EQ(folder.read("r.txt"), "\"a\tb\rc, \r\"\r\n");
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Output, InnerQuotesAreNotDoubled) {
    const TempFolder folder;
    rs.OutText = "the \"best\" run\r";
    WriteResultFile(rs, os, folder.path("r.txt"));
    EXPECT_EQ(folder.read("r.txt"), "\"the 'best' run\r\"\r\n");
}

TEST_F(Output, AFileThatExistsIsAskedForAndNoKeepsIt) {
    const TempFolder folder;
    folder.write("r.txt", "former");
    rs.OutText = "new\r";
    os.yes_or_no = {false, true};
    WriteResultFile(rs, os, folder.path("r.txt"));
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "Overwrite existing file?");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(os.boxes[0].kind, "question");
    EXPECT_EQ(folder.read("r.txt"), "former");
    WriteResultFile(rs, os, folder.path("r.txt"));
    EXPECT_EQ(folder.read("r.txt"), "\"new\r\"\r\n");
}

TEST_F(Output, AFullDiskIsAFaultThatKeepsTheFormerFile) {
    const TempFolder folder;
    folder.write("r.txt", "former");
    rs.OutText = std::string(1000, 'x');
    os.yes_or_no = {true};
    os.disk_room = 10;
    EXPECT_THROW(WriteResultFile(rs, os, folder.path("r.txt")), Fault);
    EXPECT_EQ(folder.read("r.txt"), "former");
    ASSERT_EQ(os.boxes.size(), 1U);  // the question alone
}

TEST_F(Output, AFolderInPlaceOfTheFileIsAFault) {
    const TempFolder folder;
    rs.OutText = "x";
    EXPECT_THROW(WriteResultFile(rs, os, folder.path("none/r.txt")), Fault);
}

// Reset -------------------------------------------------------------------------------------------------------------

TEST_F(Output, ResetOfRejectionsClearsTheWholeTable) {
    rs.nRejected = 4;
    rs.RejManual = 1;
    rs.Rej(1, 1) = rs.Rej(2, 10) = rs.Rej(1, 5) = 1;
    reset_rejections(rs);
    EXPECT_EQ(rs.nRejected, 0);
    EXPECT_EQ(rs.RejManual, 0);
    EXPECT_EQ(rs.nData(2), 3);
    EXPECT_EQ(rs.Rej(1, 1) + rs.Rej(2, 10) + rs.Rej(1, 5), 0);
}

}  // namespace
}  // namespace kolvar::test
