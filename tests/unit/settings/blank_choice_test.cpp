// The measured blank table, and the buttons that choose reference files.
#include <gtest/gtest.h>

#include <cmath>

#include "settings/blank_statistics.hpp"
#include "settings/reference_files.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {
namespace {

class BlankTable : public ::testing::Test {
protected:
    BlankTable() { set_start_values(rs); }

    void load(const std::string& bytes) { LoadBlankTable(rs, folder.write("blank.xl", bytes)); }
    void expect_fault(const std::string& bytes, FaultKind kind) {
        rs.nBLK = 3;
        rs.nBLKraw = 3;
        try {
            load(bytes);
            FAIL() << "no fault";
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.kind, kind) << fault.what();
        }
        EXPECT_EQ(rs.nBLK, 0);
        EXPECT_EQ(rs.nBLKraw, 0);
        EXPECT_STREQ(rs.procedure, "LoadBlankTable");
    }

    TempFolder folder;
    RunState rs;
    Forms forms;
    ScriptedPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};
};

using Browse = BlankTable;

TEST_F(BlankTable, EverySecondLineIsThrownAwayAndTheProfilePlaysNoPart) {
    rs.setXLisoLINE = 1;
    rs.setXLdatLINE = 9;
    rs.setXLfirstCOL = 3;
    load("Intensity Vs Time\r\nTime,Li7,Si29\r\n0.,1,10\r\n99,99,99\r\n0.1,2,10\r\n\r\n0.2,6,10\r\n\r\n");
    EXPECT_EQ(rs.nBLK, 2);
    EXPECT_EQ(rs.nBLKraw, 3);
    EXPECT_EQ(rs.BLKiso(0), "Time");
    EXPECT_EQ(rs.BLKiso(1), "Li7");
    EXPECT_EQ(rs.BLKiso(2), "Si29");
    EXPECT_EQ(rs.BLKraw(0, 3), 0.2);
    EXPECT_EQ(rs.BLKraw(1, 3), 6);
    // 1, 2, 6: mean 3, squares 4 + 1 + 9 over 2.
    EXPECT_EQ(rs.BLKmean(1), 3);
    EXPECT_DOUBLE_EQ(rs.BLKsd(1), std::sqrt(7.0));
    EXPECT_EQ(rs.BLKmean(2), 10);
}

TEST_F(BlankTable, AConstantBlankHasADeviationOfZero) {
    load("title\nTime,Li7,Si29\n0,0,5\n\n1,0,5\n\n");
    EXPECT_EQ(rs.BLKmean(1), 0);
    EXPECT_EQ(rs.BLKsd(1), 0);
    EXPECT_EQ(rs.BLKsd(2), 0);
}

TEST_F(BlankTable, AnOddNumberOfDataLinesIsAFaultAndTheTableCountsAsEmpty) {
    expect_fault("title\nTime,Li7\n0,1\n\n1,2\n\n2,3\n", FaultKind::end_of_file);
}

TEST_F(BlankTable, OneSliceIsADivisionByZeroAndTheTableCountsAsEmpty) {
    expect_fault("title\nTime,Li7\n0,1\n\n", FaultKind::division_by_zero);
}

TEST_F(BlankTable, HeadsWithoutDataAreADivisionByZero) {
    expect_fault("title\nTime,Li7\n", FaultKind::division_by_zero);
}

TEST_F(BlankTable, BadFilesAreFaultsAndTheTableCountsAsEmpty) {
    expect_fault("", FaultKind::end_of_file);
    expect_fault("title\n", FaultKind::end_of_file);
    // The time has a place of its own: 101 fields are 100 isotopes.
    expect_fault("title\n" + std::string(101, ',') + "\n", FaultKind::too_many);
    expect_fault("title\nTime,Li7\n" + std::string(101, ',') + "\n\n", FaultKind::too_many);
    expect_fault("title\nTime,Li7\n" + std::string(12002, '\n'), FaultKind::too_many);
    expect_fault("title\nTime,Li7\n0,1e999\n\n", FaultKind::overflow);
    expect_fault("title\n" + std::string(10'000'000, ','), FaultKind::too_many);
    rs.nBLK = 3;
    EXPECT_THROW(LoadBlankTable(rs, folder.path("missing.xl")), Fault);
    EXPECT_EQ(rs.nBLK, 0);
    EXPECT_THROW(LoadBlankTable(rs, folder.path()), Fault);
}

TEST_F(BlankTable, AHundredIsotopesAndSixThousandSlicesLoad) {
    std::string table = "title\nTime" + std::string(100, ',') + "\n";
    for (int j = 1; j <= MaxSlices; ++j) table += "1,2\n\n";
    load(table);
    EXPECT_EQ(rs.nBLK, 100);
    EXPECT_EQ(rs.nBLKraw, 6000);
    EXPECT_EQ(rs.BLKmean(1), 2);
}

TEST_F(BlankTable, ALongLineAndABinaryFileDoNotEndTheProgram) {
    load("title" + std::string(10'000'000, 'x') + "\nTime,Li7\n0,1" + std::string(10'000'000, 'x') + "\n\n0,1\n\n");
    EXPECT_EQ(rs.BLKmean(1), 1);
    std::string bytes;
    for (int k = 0; k < 40000; ++k) bytes += static_cast<char>((k * 7919 + k / 251) % 256);
    EXPECT_THROW(load(bytes), Fault);
}

TEST(BlankKernel, FewerThanTwoSlicesHaveNoDeviation) {
    const std::vector<double> none;
    const std::vector<double> one = {5};
    EXPECT_THROW(blank_statistics(none), Fault);
    EXPECT_THROW(blank_statistics(one), Fault);
}

TEST_F(Browse, EachButtonAsksForItsFilesWithTheSecondEntryPreselected) {
    browse_stc(context);
    browse_stm(context);
    browse_blk(context);
    browse_dwe(context);
    ASSERT_EQ(os.dialogs.size(), 4U);
    EXPECT_EQ(os.dialogs[0].filter, "All Files (*.*)|*.*|Standard Composition Files (*.stc)|*.stc");
    EXPECT_EQ(os.dialogs[1].filter,
              "All Files (*.*)|*.*|Standard Measurement Files (*.stm)|*.stm|Standard Measurements - Interpolated "
              "(*.sti)|*.sti");
    EXPECT_EQ(os.dialogs[2].filter,
              "All Files (*.*)|*.*|Blank Files (*.blk)|*.blk|Perkin-Elmer Export Files (*.xl)|*.xl");
    EXPECT_EQ(os.dialogs[3].filter, "All Files (*.*)|*.*|Dwell Time Files (*.dwe)|*.dwe");
    for (const FileDialog& dialog : os.dialogs) EXPECT_EQ(dialog.index, 2);
}

TEST_F(Browse, AnEmptyAnswerLeavesEverythingButTheSharedPath) {
    rs.STCfileName = rs.STMfileName = rs.BLKfileName = rs.DWEfileName = "former";
    rs.DwellFromFile = 1;
    rs.nIso = 1;
    rs.Dwell(1) = 0.5;
    rs.SetFilePath = "former";
    forms.frm1_Settings.lblSTC.text = "  former  ";
    browse_stc(context);
    EXPECT_EQ(rs.SetFilePath, "");
    browse_stm(context);
    browse_blk(context);
    browse_dwe(context);
    EXPECT_EQ(rs.STCfileName, "former");
    EXPECT_EQ(rs.STMfileName, "former");
    EXPECT_EQ(rs.BLKfileName, "former");
    EXPECT_EQ(rs.DWEfileName, "former");
    EXPECT_EQ(rs.Dwell(1), Cell(0.5));
    EXPECT_EQ(forms.frm1_Settings.lblSTC.text, "  former  ");
}

TEST_F(Browse, AnAnswerGivesPathBareNameTableAndLabel) {
    os.opens = {folder.write("a.stc", "\"t\",0,0\n\"Li7\",1,2\n"), folder.write("b.sti", "\"Li7\",3,4\n"),
                folder.write("c.blk", "\"Li7\",5,6\n"), folder.write("d.dwe", "\"t\",0\n\"Li7\",20\n")};
    browse_stc(context);
    EXPECT_EQ(rs.SetFilePath, folder.path("a.stc"));
    browse_stm(context);
    browse_blk(context);
    browse_dwe(context);
    EXPECT_EQ(rs.STCfilePath, folder.path("a.stc"));
    EXPECT_EQ(rs.STCfileName, "a.stc");
    EXPECT_EQ(rs.STCcc(1), 1);
    EXPECT_EQ(rs.STMfileName, "b.sti");
    EXPECT_EQ(rs.STMcps(1), 3);
    EXPECT_EQ(rs.BLKfilePath, folder.path("c.blk"));
    EXPECT_EQ(rs.BLKmean(1), 5);
    EXPECT_EQ(rs.DWEfileName, "d.dwe");
    EXPECT_EQ(rs.DWEms(1), 20);
    EXPECT_EQ(forms.frm1_Settings.lblSTC.text, "  a.stc  ");
    EXPECT_EQ(forms.frm1_Settings.lblSTM.text, "  b.sti  ");
    EXPECT_EQ(forms.frm1_Settings.lblBLK.text, "  c.blk  ");
    EXPECT_EQ(forms.frm1_Settings.lblDWE.text, "  d.dwe  ");
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Browse, AMeasuredTableIsReducedInPlaceOfABlankFile) {
    for (const char* name : {"c.xl", "c.XL"}) {
        rs.nBLK = 0;
        os.opens = {folder.write(name, "title\nTime,Li7\n0,1\n\n1,3\n\n")};
        browse_blk(context);
        EXPECT_EQ(rs.nBLK, 1);
        EXPECT_EQ(rs.BLKmean(1), 2);
    }
}

TEST_F(Browse, ABlankFileOfAnotherEndingLoadsNothingButItsNameIsShown) {
    rs.nBLK = 2;
    rs.BLKmean(1) = 77;
    for (const char* name : {"c.Blk", "c.Xl", "c.txt"}) {
        os.opens = {folder.write(name, "\"Li7\",5,6\n")};
        browse_blk(context);
        EXPECT_EQ(rs.nBLK, 2);
        EXPECT_EQ(rs.BLKmean(1), 77);
        EXPECT_EQ(rs.BLKfileName, name);
        EXPECT_EQ(forms.frm1_Settings.lblBLK.text, std::string("  ") + name + "  ");
    }
    // The blank of the start kit is read as a Blank File whatever its ending.
    rs.BLKfilePath = folder.path("c.txt");
    LoadBLK(rs, os);
    EXPECT_EQ(rs.nBLK, 1);
    EXPECT_EQ(rs.BLKmean(1), 5);
}

TEST_F(Browse, AFailedLoadShowsTheNameAllTheSame) {
    os.opens = {folder.path("missing.stc")};
    browse_stc(context);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(forms.frm1_Settings.lblSTC.text, "  missing.stc  ");
}

TEST_F(Browse, ADwellTimeFileRenewsTheDwellTimesAndLeavesTheTableAsItWasConverted) {
    rs.DwellFromFile = 1;
    rs.setCPS_IS = 0;
    rs.nIso = 3;
    rs.nSlices = 1;
    rs.IsoName(1) = "Li7";
    rs.IsoName(2) = "198Hg";
    rs.IsoName(3) = "U238";
    for (int i = 1; i <= 3; ++i) {
        rs.Dwell(i) = 0.5;
        rs.Sig(i, 1) = 100;
    }
    os.opens = {folder.write("d.dwe", "\"t\",0\n\"U238\",1\n\"Li7\",20\n\"Hg198\",30\n\"U238\",40\n")};
    browse_dwe(context);
    EXPECT_EQ(rs.Dwell(1), Cell(0.02));
    // Dwell times are found by the name as it stands in the data file alone.
    EXPECT_EQ(rs.Dwell(2), Cell(Mark::empty));
    EXPECT_EQ(rs.Dwell(3), Cell(0.04));
    EXPECT_EQ(rs.Sig(1, 1), 100);
    EXPECT_EQ(rs.Sig(3, 1), 100);
}

TEST_F(Browse, WithAUniformDwellTimeADwellTimeFileChangesNoDwellTime) {
    rs.nIso = 1;
    rs.IsoName(1) = "Li7";
    rs.Dwell(1) = 0.5;
    os.opens = {folder.write("d.dwe", "\"t\",0\n\"Li7\",20\n")};
    browse_dwe(context);
    EXPECT_EQ(rs.nDWE, 1);
    EXPECT_EQ(rs.Dwell(1), Cell(0.5));
}

TEST_F(Browse, TheInfoButtonsShowTheTitles) {
    rs.STCfileName = "a.stc";
    rs.STCtitle = "NIST SRM 610";
    rs.DWEfileName = "b.dwe";
    rs.DWEtitle = "";
    show_stc_info(rs, os);
    show_dwe_info(rs, os);
    ASSERT_EQ(os.boxes.size(), 2U);
    EXPECT_EQ(os.boxes[0].text, "Information to Standard Composition File a.stc:\nNIST SRM 610");
    EXPECT_EQ(os.boxes[0].title, "KOLVAR");
    EXPECT_EQ(os.boxes[1].text, "Information to Dwell Time File b.dwe:\n");
}

}  // namespace
}  // namespace kolvar::test
