// The settings file: its lines, its reader and its writer.
#include "settings/settings_file.hpp"

#include <gtest/gtest.h>

#include "core/files.hpp"
#include "settings/settings_lines.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {
namespace {

// The key texts of lines 1 to 86.
const std::vector<std::string> key_texts = {
    "Method",
    "setCSVisoLINE",
    "setCSVdatLINE",
    "setCSVfirstCOL",
    "setTXTisoLINE",
    "setTXTdatLINE",
    "setTXTfirstCOL",
    "setXLisoLINE",
    "setXLdatLINE",
    "setXLfirstCOL",
    "setXXXXXisoLINE",
    "setXXXXXdatLINE",
    "setXXXXXfirstCOL",
    "setYYYYYisoLINE",
    "setYYYYYdatLINE",
    "setYYYYYfirstCOL",
    "setZZZZZisoLINE",
    "setZZZZZdatLINE",
    "setZZZZZfirstCOL",
    "==== ==== ==== Int. Std. ==== ==== ====",
    "setSTDabbr_IS",
    "setCPS_IS",
    "setBLK_IS",
    "setSTCfile_IS",
    "setSTMfile_IS",
    "setFormer_Sel_IS",
    "setDwellFromFile_IS",
    "setDWEfile_IS",
    "setIS_Dwell",
    "setISnum",
    "setIntSta",
    "setCcIntSta",
    "setErIntSta",
    "setIntSta2",
    "setCcIntSta2",
    "setErIntSta2",
    "setMas2",
    "setIntSta3",
    "setCcIntSta3",
    "setErIntSta3",
    "setMass3",
    "setPeriod",
    "setLinearIS",
    "setLinearRatiosIS",
    "setRatio_ppmIS",
    "setShow_linesIS",
    "setAllCurve---NOT USED",
    "setRatioShow(1)",
    "setRatioShow(2)",
    "setRatioShow(3)",
    "setRatioShow(4)",
    "setRatioShow(5)",
    "setRatioShow(6)",
    "setShowMinMax",
    "setRejMinMax",
    "setShowGrubbs",
    "setRejGrubbs",
    "setShowSD",
    "setRejSD",
    "setSD_IS",
    "setDataTable",
    "setMean_IS",
    "setOneLine_IS",
    "setTableFormat",
    "ratioName(0)",
    "ratioName(1)",
    "ratioName(2)",
    "ratioName(3)",
    "ratioName(4)",
    "ratioName(5)",
    "ratioName(6)",
    "ratioName(7)",
    "ratioName(8)",
    "ratioName(9)",
    "ratioName(10)",
    "ratioName(11)",
    "setTestBlank",
    "setRatBLK(1)",
    "setRatBLK(2)",
    "setRatBLK(3)",
    "setRatBLK(4)",
    "setRatBLK(5)",
    "setRatBLK(6)",
    "reserve",
    "reserve",
    "reserve",
};

const std::string separator = "\"\",\"==== ==== ==== Int. Std. ==== ==== ====\"";

// A settings file whose line n holds the number n, but for the separator and the reserved lines; the pairs of lines 87
// to 182 are "s<k>","p<k>", the comment is "c".
std::vector<std::string> numbered_lines() {
    std::vector<std::string> out;
    for (std::size_t n = 1; n <= key_texts.size(); ++n) {
        if (n == 20) {
            out.push_back(separator);
        } else {
            out.push_back((n >= 84 ? "0" : std::to_string(n)) + ",\"" + key_texts[n - 1] + "\"");
        }
    }
    for (int k = 1; k <= 96; ++k) out.push_back("\"s" + std::to_string(k) + "\",\"p" + std::to_string(k) + "\"");
    out.emplace_back("\"c\",\"setComments_IS\"");
    return out;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string out;
    for (const std::string& line : lines) out += line + "\r\n";
    return out;
}

class Settings : public ::testing::Test {
protected:
    Settings() { set_start_values(rs); }

    void read(const std::string& bytes) { ReadSettings(rs, os, folder.write("in.set", bytes)); }
    std::string written() {
        rs.SetFilePath = folder.path("out.set");
        WriteSettings(rs, os);
        return folder.read("out.set");
    }
    void expect_read_message(const std::string& path) {
        ASSERT_EQ(os.boxes.size(), 1U);
        EXPECT_EQ(os.boxes[0].text, "Error occurred while trying to load file: " + path +
                                        "\n\nSpecify the path using the menu of 'File Selection' window: [Settings] / "
                                        "[Specify the path to the StartKit directory].");
        EXPECT_EQ(os.boxes[0].title, "KOLVAR");
        EXPECT_EQ(os.boxes[0].kind, "warning");
    }
    void expect_write_message() {
        ASSERT_FALSE(os.boxes.empty());
        EXPECT_EQ(os.boxes.back().text, "Error occurred while trying to save file, please retry.");
        EXPECT_EQ(os.boxes.back().title, "");
        EXPECT_EQ(os.boxes.back().kind, "warning");
    }

    TempFolder folder;
    RunState rs;
    ScriptedPlatform os;
};

TEST_F(Settings, TheFileHasItsLinesInTheirOrder) {
    const auto lines = settings_lines();
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(settings_line_count));
    for (std::size_t n = 0; n < key_texts.size(); ++n) EXPECT_EQ(lines[n].key, key_texts[n]) << n + 1;
    EXPECT_EQ(lines[182].key, "setComments_IS");
}

TEST_F(Settings, EveryLineGoesToItsKey) {
    read(joined(numbered_lines()));
    ASSERT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.Method, 1);
    EXPECT_EQ(rs.setCSVisoLINE, Value(2));
    EXPECT_EQ(rs.setXLfirstCOL, Value(10));
    EXPECT_EQ(rs.setZZZZZfirstCOL, Value(19));
    EXPECT_EQ(rs.setSTDabbr_IS, Value(21));
    EXPECT_EQ(rs.setIS_Dwell, Value(29));
    EXPECT_EQ(rs.setISnum, Value(30));
    EXPECT_EQ(rs.setMas2, Value(37));
    EXPECT_EQ(rs.setMass3, Value(41));
    EXPECT_EQ(rs.setAllCurve, Value(47));
    EXPECT_EQ(rs.setRatioShow(1), Value(48));
    EXPECT_EQ(rs.setRatioShow(6), Value(53));
    EXPECT_EQ(rs.setSD_IS, Value(60));
    EXPECT_EQ(rs.ratioName(0), Value(65));
    EXPECT_EQ(rs.ratioName(11), Value(76));
    EXPECT_EQ(rs.setTestBlank, Value(77));
    EXPECT_EQ(rs.setRatBLK(6), Value(83));
    EXPECT_EQ(rs.PeriodSym(1), Value("s1"));
    EXPECT_EQ(rs.PeriodIS(96), Value("p96"));
    EXPECT_EQ(rs.setComments_IS, Value("c"));
}

TEST_F(Settings, WhatWasReadIsWrittenAgainByteForByte) {
    const std::string bytes = joined(numbered_lines());
    read(bytes);
    EXPECT_EQ(written(), bytes);
}

TEST_F(Settings, TheStartKitComesBackByteForByte) {
    for (const char* name : {"Kolvar-default-h.set", "Kolv-AGE-example.set", "Kolv-FLEX-example.set"}) {
        const std::string path = std::string(KOLVAR_SOURCE_DIR "/start-kit/") + name;
        ReadSettings(rs, os, path);
        ASSERT_TRUE(os.boxes.empty()) << name;
        std::filesystem::remove(folder.path("out.set"));
        EXPECT_EQ(written(), bytes_of(path)) << name;
    }
}

TEST_F(Settings, KeysThatWereNeverReadAreWrittenAsNothing) {
    const std::string bytes = written();
    EXPECT_TRUE(bytes.starts_with("0,\"Method\"\r\n,\"setCSVisoLINE\"\r\n"));
    EXPECT_NE(bytes.find("\r\n,\r\n,\"setComments_IS\"\r\n"), std::string::npos);
    read(bytes);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_TRUE(rs.setCSVisoLINE.is_unset());
    EXPECT_TRUE(rs.PeriodIS(96).is_unset());
}

TEST_F(Settings, ATypedDwellTimeIsWrittenInQuotes) {
    rs.setIS_Dwell = "20";
    EXPECT_NE(written().find("\r\n\"20\",\"setIS_Dwell\"\r\n"), std::string::npos);
}

TEST_F(Settings, ReservedLinesAreAlwaysZeroAndTheSeparatorEmpty) {
    auto lines = numbered_lines();
    lines[19] = "\"text\",\"anything\"";
    lines[83] = "17,\"mine\"";
    read(joined(lines));
    EXPECT_EQ(written(), joined(numbered_lines()));
}

TEST_F(Settings, KeyTextsAreNeverLookedAt) {
    auto lines = numbered_lines();
    lines[1] = "2,\"setXLfirstCOL\"";
    lines[2] = "3,no such key";
    lines[46] = "47,\"setAllCurve\"";
    read(joined(lines));
    EXPECT_EQ(rs.setCSVisoLINE, Value(2));
    EXPECT_EQ(rs.setCSVdatLINE, Value(3));
    EXPECT_EQ(rs.setXLfirstCOL, Value(10));
    EXPECT_EQ(rs.setAllCurve, Value(47));
    // The writer puts its own texts there, also the one that says that the key is not used.
    EXPECT_NE(written().find("47,\"setAllCurve---NOT USED\"\r\n"), std::string::npos);
}

TEST_F(Settings, TwoSwappedLinesLandInTheWrongKeysWithoutAComplaint) {
    auto lines = numbered_lines();
    std::swap(lines[1], lines[2]);
    read(joined(lines));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.setCSVisoLINE, Value(3));
    EXPECT_EQ(rs.setCSVdatLINE, Value(2));
}

TEST_F(Settings, ASurplusFieldBecomesTheFirstFieldOfTheNextRecord) {
    auto lines = numbered_lines();
    lines[1] = "2,\"setCSVisoLINE\",99";
    read(joined(lines));
    EXPECT_EQ(rs.setCSVisoLINE, Value(2));
    EXPECT_EQ(rs.setCSVdatLINE, Value(99));
    // From here on the fields are one off: this value is the key text of line 3.
    EXPECT_EQ(rs.setCSVfirstCOL, Value("setCSVdatLINE"));
}

TEST_F(Settings, ALineTooManyShiftsAllThatFollows) {
    auto lines = numbered_lines();
    lines.insert(lines.begin() + 1, "5,\"new\"");
    read(joined(lines));
    EXPECT_EQ(rs.setCSVisoLINE, Value(5));
    EXPECT_EQ(rs.setCSVdatLINE, Value(2));
    EXPECT_EQ(rs.setComments_IS, Value("s96"));
}

TEST_F(Settings, BooleansAreNumbersAndMethodMayStandInQuotes) {
    auto lines = numbered_lines();
    lines[0] = "\"3\",\"Method\"";
    lines[24] = "#TRUE#,\"setSTMfile_IS\"";
    lines[25] = "#FALSE#,\"setFormer_Sel_IS\"";
    read(joined(lines));
    EXPECT_EQ(rs.Method, 3);
    EXPECT_EQ(rs.setSTMfile_IS, Value(-1));
    EXPECT_EQ(rs.setFormer_Sel_IS, Value(0));
}

TEST_F(Settings, TheInternalStandardsAndModesFollowFromARead) {
    auto lines = numbered_lines();
    lines[22] = "1,\"setBLK_IS\"";
    lines[26] = "2,\"setDwellFromFile_IS\"";
    lines[30] = "\"Si29\",\"setIntSta\"";
    lines[33] = "\"Ca43\",\"setIntSta2\"";
    lines[37] = "\"Al27\",\"setIntSta3\"";
    lines[42] = "1,\"setLinearIS\"";
    rs.BlankFromData = 0;
    rs.DwellFromFile = 1;
    read(joined(lines));
    EXPECT_EQ(rs.IS1name, "Si29");
    EXPECT_EQ(rs.IS1conc, Value(32));
    EXPECT_EQ(rs.IS1err, Value(33));
    EXPECT_EQ(rs.IS2name, "Ca43");
    EXPECT_EQ(rs.IS2conc, Value(35));
    EXPECT_EQ(rs.IS2err, Value(36));
    EXPECT_EQ(rs.IS3name, "Al27");
    EXPECT_EQ(rs.IS3conc, Value(39));
    EXPECT_EQ(rs.IS3err, Value(40));
    EXPECT_EQ(rs.BlankFromData, 1);
    EXPECT_EQ(rs.DwellFromFile, 0);
    EXPECT_TRUE(rs.LinearView);
    lines[22] = "0,\"setBLK_IS\"";
    lines[26] = "1,\"setDwellFromFile_IS\"";
    lines[42] = "0,\"setLinearIS\"";
    read(joined(lines));
    EXPECT_EQ(rs.BlankFromData, 0);
    EXPECT_EQ(rs.DwellFromFile, 1);
    EXPECT_FALSE(rs.LinearView);
}

TEST_F(Settings, AReadLoadsNoReferenceFilesAndSetsNoUniformDwellTime) {
    auto lines = numbered_lines();
    folder.write("a.stc", "\"title\",\"\",\"\"\r\n\"Li7\",1,2\r\n");
    lines[23] = "\"" + folder.path("a.stc") + "\",\"setSTCfile_IS\"";
    rs.STCfileName = "former.stc";
    read(joined(lines));
    EXPECT_EQ(rs.nSTC, 0);
    EXPECT_EQ(rs.STCfileName, "former.stc");
    EXPECT_EQ(rs.STCfilePath, "");
    EXPECT_EQ(rs.DwellUniform, 0.02);
}

TEST_F(Settings, TheMeasurementFileAndTheLinearRatiosAreKeptForNoReader) {
    auto lines = numbered_lines();
    lines[24] = "\"D:\\ref\\a.stm\",\"setSTMfile_IS\"";
    lines[43] = "7,\"setLinearRatiosIS\"";
    read(joined(lines));
    EXPECT_EQ(rs.STMfilePath, "");
    EXPECT_EQ(written(), joined(lines));
}

TEST_F(Settings, ATruncatedFileKeepsWhatWasReadAndDerivesNothing) {
    rs.IS1name = "Ca43";
    rs.BlankFromData = 1;
    rs.setComments_IS = "former";
    auto lines = numbered_lines();
    lines[22] = "0,\"setBLK_IS\"";
    lines.pop_back();
    read(joined(lines));
    expect_read_message(folder.path("in.set"));
    EXPECT_EQ(rs.setIntSta, Value(31));
    EXPECT_EQ(rs.PeriodIS(96), Value("p96"));
    EXPECT_EQ(rs.setComments_IS, Value("former"));
    EXPECT_EQ(rs.IS1name, "Ca43");
    EXPECT_EQ(rs.BlankFromData, 1);
}

TEST_F(Settings, BadFilesGiveTheMessage) {
    const std::vector<std::string> paths = {
        folder.path("missing.set"),
        folder.path(),
        folder.write("empty.set", ""),
        folder.write("open-quote.set", "0,\"Method\"\r\n1,\"setCSVisoLINE"),
        folder.write("long.set", std::string(10'000'000, 'x')),
        folder.write("huge.set", "1e300,\"Method\"\r\n"),
        "",
    };
    for (const std::string& path : paths) {
        os.boxes.clear();
        ReadSettings(rs, os, path);
        expect_read_message(path);
    }
}

TEST_F(Settings, ABinaryFileIsReadByPositionOrGivesTheMessage) {
    std::string bytes;
    for (int k = 0; k < 60000; ++k) bytes += static_cast<char>((k * 7919 + k / 251) % 256);
    read(bytes);
    EXPECT_LE(os.boxes.size(), 1U);
}

TEST_F(Settings, AnExistingFileIsOverwrittenAfterAYesOnly) {
    folder.write("out.set", "former");
    EXPECT_EQ(written(), "former");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "Overwrite existing file?");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(os.boxes[0].kind, "question");
    os.yes_or_no = {true};
    EXPECT_TRUE(written().starts_with("0,\"Method\"\r\n"));
}

TEST_F(Settings, AFullDiskLeavesTheFormerFileWhole) {
    folder.write("out.set", "former");
    os.yes_or_no = {true};
    os.disk_room = 100;
    EXPECT_EQ(written(), "former");
    expect_write_message();
}

TEST_F(Settings, AFolderOrNothingInPlaceOfTheFileGivesTheMessage) {
    for (const std::string& path : {folder.path(), std::string(), folder.path("no/such/folder.set")}) {
        os.boxes.clear();
        rs.SetFilePath = path;
        WriteSettings(rs, os);
        expect_write_message();
    }
}

TEST_F(Settings, TheSaveDialogProposesTheSettingsPathAndASaveLeavesIt) {
    rs.SettingsPath = folder.path("mine.set");
    rs.SettingsName = "mine.set";
    os.saves = {folder.path("other.set")};
    save_settings_as(rs, os);
    ASSERT_EQ(os.dialogs.size(), 1U);
    EXPECT_EQ(os.dialogs[0].filter, "Setting Files (*.set)|*.set|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs[0].index, 1);
    EXPECT_EQ(os.dialogs[0].name, folder.path("mine.set"));
    EXPECT_TRUE(file_exists(folder.path("other.set")));
    EXPECT_FALSE(file_exists(folder.path("mine.set")));
    EXPECT_EQ(rs.SetFilePath, folder.path("other.set"));
    EXPECT_EQ(rs.SettingsPath, folder.path("mine.set"));
    EXPECT_EQ(rs.SettingsName, "mine.set");
}

TEST_F(Settings, ACancelledDialogWritesToTheProposedNameAndTheQuestionIsTheWayOut) {
    rs.SettingsPath = folder.write("mine.set", "former");
    save_settings_as(rs, os);
    EXPECT_EQ(folder.read("mine.set"), "former");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "Overwrite existing file?");
    os.yes_or_no = {true};
    save_settings_as(rs, os);
    EXPECT_TRUE(folder.read("mine.set").starts_with("0,\"Method\"\r\n"));
}

}  // namespace
}  // namespace kolvar::test
