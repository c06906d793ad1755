// Standard composition, standard measurement, blank and dwell time files.
#include "settings/reference_files.hpp"

#include <gtest/gtest.h>

#include "core/files.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {
namespace {

std::string records(int count, const std::string& rest) {
    std::string out;
    for (int k = 1; k <= count; ++k) out += "\"E" + std::to_string(k) + "\"," + rest + "\r\n";
    return out;
}

class ReferenceFiles : public ::testing::Test {
protected:
    ReferenceFiles() { set_start_values(rs); }

    void load_stc(const std::string& bytes) {
        rs.STCfilePath = folder.write("a.stc", bytes);
        LoadSTC(rs, os);
    }
    void load_stm(const std::string& bytes) {
        rs.STMfilePath = folder.write("a.stm", bytes);
        LoadSTM(rs, os);
    }
    void load_blk(const std::string& bytes) {
        rs.BLKfilePath = folder.write("a.blk", bytes);
        LoadBLK(rs, os);
    }
    void load_dwe(const std::string& bytes) {
        rs.DWEfilePath = folder.write("a.dwe", bytes);
        LoadDWE(rs, os);
    }
    void expect_message(const std::string& text) {
        ASSERT_EQ(os.boxes.size(), 1U);
        EXPECT_EQ(os.boxes[0].text, text);
        EXPECT_EQ(os.boxes[0].title, "KOLVAR");
        EXPECT_EQ(os.boxes[0].kind, "warning");
        os.boxes.clear();
    }
    void expect_stc_message(const std::string& path) {
        expect_message("Error occurred while trying to load file: " + path +
                       ".\n\nProbably the path or the file name of the Std Composition File in the Settings is not "
                       "correct.\n\nOpen Settings, browse and select an existing STC file and save the settings. At "
                       "the next start Kolv will find it.");
    }
    void expect_dwe_message(const std::string& path) {
        expect_message("Error occurred while trying to load file: " + path +
                       ".\n\nProbably the path or the file name of the Dwell file in the Settings is not correct.\n\n"
                       "Open Settings, browse and select an existing DWE file and save the settings. At the next "
                       "start Kolv will find it.");
    }
    void expect_retry_message(const std::string& path) {
        expect_message("Error occurred while trying to load file: " + path + " , please retry or check the file.");
    }

    TempFolder folder;
    RunState rs;
    ScriptedPlatform os;
};

TEST_F(ReferenceFiles, ACompositionFileHasAHeaderOfThreeFields) {
    load_stc("\"NIST, 610\",\"ppm\",7\r\n\"Li7\",468,24\r\nBe9 , 476 ,31\r\n");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.STCtitle, "NIST, 610");
    ASSERT_EQ(rs.nSTC, 2);
    EXPECT_EQ(rs.STCiso(1), "Li7");
    EXPECT_EQ(rs.STCcc(1), 468);
    EXPECT_EQ(rs.STCerr(1), 24);
    EXPECT_EQ(rs.STCiso(2), "Be9");
    EXPECT_EQ(rs.STCcc(2), 476);
}

TEST_F(ReferenceFiles, ADwellTimeFileHasAHeaderOfTwoFields) {
    load_dwe("\"quadrupole\",\"ms\"\r\n\"Li7\",20\r\n\"U238\",10.5\r\n");
    EXPECT_EQ(rs.DWEtitle, "quadrupole");
    ASSERT_EQ(rs.nDWE, 2);
    EXPECT_EQ(rs.DWEiso(2), "U238");
    EXPECT_EQ(rs.DWEms(2), 10.5);
}

TEST_F(ReferenceFiles, FieldsCountAndNotLines) {
    load_stc("\"title\"\r\n\"\"\r\n0\r\n\"Li7\",468\r\n24,\"Be9\"\r\n476,31\r\n");
    ASSERT_EQ(rs.nSTC, 2);
    EXPECT_EQ(rs.STCerr(1), 24);
    EXPECT_EQ(rs.STCiso(2), "Be9");
    EXPECT_EQ(rs.STCerr(2), 31);
}

TEST_F(ReferenceFiles, TitlesAndNamesThatLookLikeNumbersAreReadAsTheyStand) {
    load_stc("2004.10,a,b\r\n007,468,24\r\n");
    EXPECT_EQ(rs.STCtitle, "2004.10");
    EXPECT_EQ(rs.STCiso(1), "007");
    load_dwe("  1E3  ,ms\r\n29.0,10\r\n");
    EXPECT_EQ(rs.DWEtitle, "1E3");
    EXPECT_EQ(rs.DWEiso(1), "29.0");
    load_stm("+7,5,1\r\n");
    EXPECT_EQ(rs.STMiso(1), "+7");
    load_blk("#TRUE#,5,1\r\n");
    EXPECT_EQ(rs.BLKiso(1), "#TRUE#");
}

TEST_F(ReferenceFiles, AZeroOfAStandardMeasurementBecomesSmallAndItsErrorGoesToo) {
    load_stm("\"Li7\",0,55\r\n\"Si29\",-1,0\r\n\"Ca43\",text,3\r\n");
    ASSERT_EQ(rs.nSTM, 3);
    EXPECT_EQ(rs.STMcps(1), 0.0001);
    EXPECT_EQ(rs.STMsd(1), 0.0001);
    EXPECT_EQ(rs.STMcps(2), -1);
    EXPECT_EQ(rs.STMsd(2), 0);
    EXPECT_EQ(rs.STMcps(3), 0.0001);
}

TEST_F(ReferenceFiles, AZeroOfABlankFileStaysZero) {
    load_blk("\"Li7\",0,0\r\n");
    ASSERT_EQ(rs.nBLK, 1);
    EXPECT_EQ(rs.BLKmean(1), 0);
    EXPECT_EQ(rs.BLKsd(1), 0);
}

TEST_F(ReferenceFiles, TrailingEmptyLinesAreAccepted) {
    load_stc("\"t\",0,0\r\n\"Li7\",1,2\r\n\r\n\r\n");
    load_dwe("\"t\",0\r\n\"Li7\",1\r\n\r\n");
    load_stm("\"Li7\",1,2\r\n\r\n");
    load_blk("\"Li7\",1,2\r\n\r\n  \r\n");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.nSTC, 1);
    EXPECT_EQ(rs.nDWE, 1);
    EXPECT_EQ(rs.nSTM, 1);
    EXPECT_EQ(rs.nBLK, 1);
}

TEST_F(ReferenceFiles, FullTablesLoad) {
    load_stc("\"t\",0,0\r\n" + records(MaxSTC, "1,2"));
    load_dwe("\"t\",0\r\n" + records(MaxIso, "1"));
    load_stm(records(MaxIso, "1,2"));
    load_blk(records(MaxIso, "1,2"));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.nSTC, 500);
    EXPECT_EQ(rs.nDWE, 100);
    EXPECT_EQ(rs.nSTM, 100);
    EXPECT_EQ(rs.nBLK, 100);
}

TEST_F(ReferenceFiles, TooManyRecordsKeepTheFormerCountOfMeasurementAndBlankOverTheNewRows) {
    load_stm("\"Li7\",1,2\r\n\"Si29\",3,4\r\n");
    load_stm(records(101, "5,6"));
    expect_retry_message(folder.path("a.stm"));
    EXPECT_EQ(rs.nSTM, 2);
    EXPECT_EQ(rs.STMiso(1), "E1");
    EXPECT_EQ(rs.STMcps(100), 5);
    load_blk("\"Li7\",1,2\r\n");
    load_blk(records(101, "5,6"));
    expect_retry_message(folder.path("a.blk"));
    EXPECT_EQ(rs.nBLK, 1);
    EXPECT_EQ(rs.BLKiso(100), "E100");
    EXPECT_EQ(rs.BLKsd(1), 6);
}

TEST_F(ReferenceFiles, AFailedCompositionOrDwellTimeFileCountsAsEmpty) {
    load_stc("\"t\",0,0\r\n\"Li7\",1,2\r\n");
    load_stc("\"new\",0,0\r\n" + records(501, "5,6"));
    expect_stc_message(folder.path("a.stc"));
    EXPECT_EQ(rs.nSTC, 0);
    EXPECT_EQ(rs.STCtitle, "new");
    load_dwe("\"t\",0\r\n\"Li7\",1\r\n");
    load_dwe("\"new\",0\r\n" + records(101, "5"));
    expect_dwe_message(folder.path("a.dwe"));
    EXPECT_EQ(rs.nDWE, 0);
    load_stc("\"t\",0,0\r\n\"Li7\",1,2\r\n");
    rs.STCfilePath = folder.path("no.stc");
    LoadSTC(rs, os);
    expect_stc_message(folder.path("no.stc"));
    EXPECT_EQ(rs.nSTC, 0);
    EXPECT_EQ(rs.STCtitle, "");
}

TEST_F(ReferenceFiles, TooFewFieldsInTheLastRecordAreAFault) {
    load_stc("\"t\",0,0\r\n\"Li7\",1\r\n");
    expect_stc_message(folder.path("a.stc"));
    load_dwe("\"t\",0\r\n\"Li7\"\r\n");
    expect_dwe_message(folder.path("a.dwe"));
    load_stm("\"Li7\",1,2\r\n\"Si29\",3\r\n");
    expect_retry_message(folder.path("a.stm"));
    load_blk("\"Li7\"");
    expect_retry_message(folder.path("a.blk"));
}

TEST_F(ReferenceFiles, BadFilesGiveTheMessageOfEachReader) {
    const std::string long_line = "\"t\",0,0\r\n\"Li7\",1" + std::string(10'000'000, 'x');
    const std::vector<std::string> paths = {
        folder.path("missing.ref"),
        folder.path(),
        folder.write("open-quote.ref", "\"title\",0,0\r\n\"Li7\",1,2\r\n\"Si29,3,4\r\n"),
        folder.write("long.ref", long_line),
        folder.write("huge.ref", "\"t\",0,0\r\n\"Li7\",1e999,1e999\r\n"),
        "",
    };
    for (const std::string& path : paths) {
        rs.STCfilePath = rs.DWEfilePath = rs.STMfilePath = rs.BLKfilePath = path;
        LoadSTC(rs, os);
        expect_stc_message(path);
        LoadSTM(rs, os);
        expect_retry_message(path);
        LoadBLK(rs, os);
        expect_retry_message(path);
    }
    rs.DWEfilePath = folder.path();
    LoadDWE(rs, os);
    expect_dwe_message(folder.path());
    load_dwe("\"title\",\"ms");
    expect_dwe_message(folder.path("a.dwe"));
}

TEST_F(ReferenceFiles, ABinaryFileIsReadOrGivesTheMessage) {
    std::string bytes;
    for (int k = 0; k < 40000; ++k) bytes += static_cast<char>((k * 7919 + k / 251) % 256);
    load_stc(bytes);
    load_stm(bytes);
    load_blk(bytes);
    load_dwe(bytes);
    EXPECT_LE(os.boxes.size(), 4U);
    EXPECT_LE(rs.nSTC, MaxSTC);
    EXPECT_LE(rs.nSTM, MaxIso);
}

TEST_F(ReferenceFiles, AnEmptyFileIsAnEmptyTableOfMeasurementOrBlankButHasNoHeader) {
    load_stm("");
    load_blk("");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.nSTM, 0);
    load_stc("");
    expect_stc_message(folder.path("a.stc"));
    load_dwe("");
    expect_dwe_message(folder.path("a.dwe"));
}

class CpsWriter : public ReferenceFiles {
protected:
    CpsWriter() {
        rs.nIso = 3;
        rs.IsoName(1) = "Li7";
        rs.AvCps(1) = 1234.5678;
        rs.AccCpsSE(1) = 0.0125;
        rs.IsoName(2) = "Si \"29\"";
        rs.AvCps(2) = 0.0004;
        rs.AccCpsSE(2) = 0;
        rs.IsoName(3) = "Ca43";
        rs.AvCps(3) = -2.25;
        rs.AccCpsSE(3) = 7;
    }
};

TEST_F(CpsWriter, RecordsHaveThreeDecimalsAndNeverAZeroButNegativeValuesPass) {
    EXPECT_TRUE(WriteCpsTable(rs, os, folder.path("out.stm")));
    EXPECT_EQ(folder.read("out.stm"),
              "\"Li7\",1234.568,0.013\r\n"
              "\"Si '29'\",0.001,0.001\r\n"
              "\"Ca43\",-2.25,7\r\n");
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(CpsWriter, TheStandardErrorThatIsWrittenServesAsTheDeviationOfTheBlank) {
    rs.BLKfilePath = folder.path("out.blk");
    WriteCpsTable(rs, os, rs.BLKfilePath);
    LoadBLK(rs, os);
    ASSERT_EQ(rs.nBLK, 3);
    EXPECT_EQ(rs.BLKmean(1), 1234.568);
    EXPECT_EQ(rs.BLKsd(1), 0.013);
    EXPECT_EQ(rs.BLKiso(3), "Ca43");
}

TEST_F(CpsWriter, AnExistingFileIsOverwrittenAfterAYesOnly) {
    folder.write("out.stm", "former");
    EXPECT_FALSE(WriteCpsTable(rs, os, folder.path("out.stm")));
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "Overwrite existing file?");
    EXPECT_EQ(os.boxes[0].kind, "question");
    EXPECT_EQ(folder.read("out.stm"), "former");
    os.yes_or_no = {true};
    EXPECT_TRUE(WriteCpsTable(rs, os, folder.path("out.stm")));
    EXPECT_TRUE(folder.read("out.stm").starts_with("\"Li7\""));
}

TEST_F(CpsWriter, AFullDiskIsAFaultAndLeavesTheFormerFileWhole) {
    folder.write("out.stm", "former");
    os.yes_or_no = {true};
    os.disk_room = 10;
    try {
        WriteCpsTable(rs, os, folder.path("out.stm"));
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.kind, FaultKind::disk_full);
        EXPECT_EQ(fault.file, folder.path("out.stm"));
    }
    EXPECT_EQ(folder.read("out.stm"), "former");
    EXPECT_STREQ(rs.procedure, "WriteCpsTable");
}

TEST_F(CpsWriter, AFolderInPlaceOfTheFileIsAFault) { EXPECT_THROW(WriteCpsTable(rs, os, folder.path()), Fault); }

}  // namespace
}  // namespace kolvar::test
