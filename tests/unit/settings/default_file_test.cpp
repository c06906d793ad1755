#include "settings/default_file.hpp"

#include <gtest/gtest.h>

#include "support/test_support.hpp"

namespace kolvar::test {
namespace {

// A default file made by hand: the keys in their order, each with another value, two standards.
std::string two_standards() {
    return bytes_of(std::string(KOLVAR_SOURCE_DIR) + "/tests/data/defaults/two-standards.def");
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), by);
}

class DefaultFile : public ::testing::Test {
protected:
    void read(const std::string& bytes) { ReadDefaults(rs, os, folder.write("a.def", bytes)); }
    std::string written() {
        rs.SetFilePath = folder.path("b.def");
        WriteDefaults(rs, os);
        return folder.read("b.def");
    }
    void expect_refused(const std::string& bytes) {
        os.boxes.clear();
        read(bytes);
        ASSERT_EQ(os.boxes.size(), 1U);
        EXPECT_EQ(os.boxes[0].text, "Error occurred while trying to load file: " + folder.path("a.def") +
                                        " , please retry or check the file.");
        EXPECT_EQ(os.boxes[0].title, "KOLVAR");
        EXPECT_EQ(os.boxes[0].kind, "warning");
    }

    TempFolder folder;
    RunState rs;
    ScriptedPlatform os;
};

TEST_F(DefaultFile, EveryLineGoesToItsKey) {
    read(two_standards());
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.Method, 1);
    EXPECT_EQ(rs.setCSVisoLINE, Value(1));
    EXPECT_EQ(rs.setZZZZZfirstCOL, Value(18));
    EXPECT_EQ(rs.setSerialNo1, Value(19));
    EXPECT_EQ(rs.setSerialNo3, Value(21));
    EXPECT_EQ(rs.setMineral(0), Value("text 22"));
    EXPECT_EQ(rs.setMineral(7), Value("text 29"));
    EXPECT_EQ(rs.setSTDabbr, Value("text 30"));
    EXPECT_EQ(rs.Hg8_4, Value(31.5));
    EXPECT_EQ(rs.Hg2_4, Value(35.5));
    EXPECT_EQ(rs.Pb8_4, Value(38.5));
    EXPECT_EQ(rs.UU8_5, Value(39.5));
    EXPECT_EQ(rs.dweU238, Value(40.5));
    EXPECT_EQ(rs.dwePb204, Value(46.5));
    EXPECT_EQ(rs.setLinear, Value(47));
    EXPECT_EQ(rs.set_68, Value(49));
    EXPECT_EQ(rs.set_76, Value(53));
    EXPECT_EQ(rs.setLinReg, Value(54));
    EXPECT_EQ(rs.setZizzRange, Value(58.5));
    EXPECT_EQ(rs.setBzzMethod, Value(61));
    EXPECT_EQ(rs.setOL_SD, Value(69.5));
    EXPECT_EQ(rs.set235_Calc, Value(72));
    EXPECT_EQ(rs.setNumSTD, Value(2));
    EXPECT_EQ(rs.setPrefSTD, Value(73));
    EXPECT_EQ(rs.Std_Name(1), Value("Std 1"));
    EXPECT_EQ(rs.Std_Abbr(2), Value("abbr2"));
    EXPECT_EQ(rs.Std_U(1), Value(11.25));
    EXPECT_EQ(rs.Std_Age(2), Value(28.25));
    EXPECT_EQ(rs.Std_Er(1, 1), Value(0.11));
    EXPECT_EQ(rs.Std_Er(8, 2), Value(0.28));
    EXPECT_EQ(rs.setAver, Value(74));
    EXPECT_EQ(rs.setDelay, Value(77.5));
    EXPECT_EQ(rs.setErr, Value(80));
    EXPECT_EQ(rs.setComments, Value("text 82"));
    EXPECT_EQ(rs.LineBuf, "Tis file must be in the directory that is specified in file: 'start_path_KolvAGE'.");
}

TEST_F(DefaultFile, IsWrittenAsItWasRead) {
    read(two_standards());
    EXPECT_EQ(written(), two_standards());
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(DefaultFile, TheTextsOfTheKeysPlayNoPart) {
    std::string bytes = replaced(two_standards(), "\"setErr \"", "\"setTzero\"");
    bytes = replaced(bytes, "\"setNumSTD\"", "\"\"");
    bytes = replaced(bytes, "\"Method\"", "\"setErr \"");
    read(bytes);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(written(), two_standards());
}

TEST_F(DefaultFile, WithoutStandardsTheLinesBehindThemMoveUp) {
    std::string bytes = replaced(two_standards(), "2,\"setNumSTD\"", "0,\"setNumSTD\"");
    const std::size_t first = bytes.find("\"Std 1\"");
    bytes.erase(first, bytes.find("74,\"setAver\"") - first);
    EXPECT_NE(bytes.find("73,\"setPrefSTD\"\r\n74,\"setAver\"\r\n"), std::string::npos);
    read(bytes);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.setAver, Value(74));
    EXPECT_EQ(written(), bytes);
}

std::string with_standards(int count) {
    std::string bytes = replaced(two_standards(), "2,\"setNumSTD\"", std::to_string(count) + ",\"setNumSTD\"");
    const std::size_t first = bytes.find("\"Std 1\"");
    bytes.erase(first, bytes.find("74,\"setAver\"") - first);
    std::string rows;
    for (int row = 1; row <= count; ++row) rows += "\"S\",\"a\",1,2,3,4,5,6,7,8\r\n";
    for (int row = 1; row <= count; ++row) rows += "1,2,3,4,5,6,7," + std::to_string(row) + "\r\n";
    return bytes.insert(first, rows);
}

TEST_F(DefaultFile, ThirtyStandardsFitAndOneMoreChangesNothing) {
    read(with_standards(30));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.Std_Er(8, 30), Value(30));
    EXPECT_EQ(written(), with_standards(30));
    rs.setErr = 3;
    expect_refused(with_standards(31));
    EXPECT_EQ(rs.setNumSTD, Value(30));
    EXPECT_EQ(rs.setErr, Value(3));
    expect_refused(with_standards(-1));
}

TEST_F(DefaultFile, AFileThatEndsInsideARowChangesNothing) {
    read(two_standards());
    rs.Method = 3;
    rs.UU8_5 = 137.818;
    const std::string bytes = two_standards();
    const std::size_t in_row = bytes.find("22.25");
    ASSERT_NE(in_row, std::string::npos);
    for (const std::size_t length : {std::size_t{0}, std::size_t{100}, in_row, bytes.find("setComments") - 5}) {
        expect_refused(bytes.substr(0, length));
        EXPECT_EQ(rs.Method, 3);
        EXPECT_EQ(rs.UU8_5, Value(137.818));
        EXPECT_EQ(rs.Std_Name(2), Value("Std 2"));
    }
    ReadDefaults(rs, os, folder.path("none.def"));
    EXPECT_EQ(os.boxes.size(), 2U);
    EXPECT_EQ(rs.Method, 3);
}

// Wherever a file breaks off, all of the former state stays.
TEST_F(DefaultFile, AFileCutBeforeItsLastValueLeavesTheFormerStateWhole) {
    read(with_standards(3));
    rs.set235_Calc = "";
    rs.Method = 3;
    rs.LineBuf = "former";
    rs.Std_Name(2) = "own";
    const std::string former = written();
    const std::string bytes = two_standards();
    const std::size_t last_value = bytes.find("\"text 82\"");
    ASSERT_NE(last_value, std::string::npos);
    for (std::size_t length = 0; length < last_value; length += 7) {
        expect_refused(bytes.substr(0, length));
        ASSERT_EQ(rs.LineBuf, "former") << length;
        ASSERT_EQ(rs.setNumSTD, Value(3)) << length;
    }
    expect_refused(with_standards(31));
    os.boxes.clear();
    os.yes_or_no = {true};
    EXPECT_EQ(written(), former);
}

// They come from keys that are in no default file.
TEST_F(DefaultFile, InternalStandardsBlankAndScaleFollowTheSettings) {
    rs.setIntSta = "Si29";
    rs.setCcIntSta = 153319;
    rs.setErIntSta3 = 7;
    rs.setBLK_IS = 0;
    rs.setLinearIS = 1;
    rs.IS1name = "Ca43";
    rs.BlankFromData = 1;
    rs.LinearView = false;
    rs.DwellFromFile = 0;
    rs.setDwellFromFile_IS = 1;
    read(two_standards());
    EXPECT_EQ(rs.IS1name, "Si29");
    EXPECT_EQ(rs.IS1conc, Value(153319));
    EXPECT_EQ(rs.IS3err, Value(7));
    EXPECT_EQ(rs.BlankFromData, 0);
    EXPECT_TRUE(rs.LinearView);
    EXPECT_EQ(rs.DwellFromFile, 0);  // the source of the dwell times stays
}

TEST_F(DefaultFile, AnExistingFileIsReplacedOnlyAfterAYes) {
    read(two_standards());
    rs.SetFilePath = folder.write("b.def", "former");
    os.yes_or_no = {false};
    WriteDefaults(rs, os);
    EXPECT_EQ(folder.read("b.def"), "former");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "Overwrite existing file?");
    os.yes_or_no = {true};
    WriteDefaults(rs, os);
    EXPECT_EQ(folder.read("b.def"), two_standards());
}

TEST_F(DefaultFile, AFailedWriteIsReportedAndLeavesTheFormerFile) {
    read(two_standards());
    rs.SetFilePath = folder.write("b.def", "former");
    os.yes_or_no = {true};
    os.disk_room = 10;
    WriteDefaults(rs, os);
    ASSERT_EQ(os.boxes.size(), 2U);
    EXPECT_EQ(os.boxes[1].text, "Error occurred while trying to save file, please retry.");
    EXPECT_EQ(os.boxes[1].title, "");
    EXPECT_EQ(folder.read("b.def"), "former");
}

TEST_F(DefaultFile, ACancelledDialogWritesToTheProposedName) {
    read(two_standards());
    rs.SettingsPath = folder.path("own.def");
    rs.AppPath1 = folder.path();
    os.saves = {std::nullopt};
    save_defaults_as(rs, os, rs.AppPath1);
    EXPECT_EQ(folder.read("own.def"), two_standards());
    ASSERT_EQ(os.dialogs.size(), 1U);
    EXPECT_EQ(os.dialogs[0].filter, "Default Files (*.def)|*.def|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs[0].index, 1);
    EXPECT_EQ(os.dialogs[0].name, folder.path("own.def"));
    EXPECT_EQ(os.dialogs[0].folder, folder.path());
}

TEST_F(DefaultFile, AnEmptySettingIsWrittenAsAnEmptyText) {
    read(two_standards());
    rs.set235_Calc = "";
    EXPECT_NE(written().find("\r\n\"\",\"set235_Calc\"\r\n"), std::string::npos);
}

}  // namespace
}  // namespace kolvar::test
