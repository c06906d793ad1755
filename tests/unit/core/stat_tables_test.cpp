#include "core/stat_tables.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/fault.hpp"
#include "support/test_support.hpp"

namespace kolvar {
namespace {

// Tables whose cells tell where they stand: row n, column c holds 10 * n + c.
std::string made_table(int first, int records, int columns, bool wrong_sizes = false) {
    std::string out = "A title, with a comma and a \" quote\r\n";
    for (int n = first; n < first + records; ++n) {
        out += wrong_sizes ? "999" : std::to_string(n);
        for (int c = 1; c <= columns; ++c) {
            out += ',';
            out += std::to_string(10 * n + c);
        }
        out += "\r\n";
    }
    return out;
}

class StatTables : public ::testing::Test {
protected:
    RunState rs;
    test::ScriptedPlatform os;
    test::TempFolder folder;
    void SetUp() override { rs.AppPath1 = folder.path(); }

    void expect_warning(const std::string& name) {
        ASSERT_EQ(os.boxes.size(), 1U);
        EXPECT_EQ(os.boxes[0].text, "Error occurred while trying to load file: '" + name +
                                        "'\nThis statistical table must be in the directory where the EXE file is "
                                        "placed.");
        EXPECT_EQ(os.boxes[0].title, "KOLVAR");
        EXPECT_EQ(os.boxes[0].kind, "warning");
    }
};

TEST_F(StatTables, GrubbsLevelsAreFilledFromThreeToAHundred) {
    folder.write("grubbs.dat", made_table(3, 98, 5));
    LoadGrubbs(rs, os);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.GrubbsP10(3), 31.0);
    EXPECT_EQ(rs.GrubbsP7_5(3), 32.0);
    EXPECT_EQ(rs.GrubbsP5(3), 33.0);
    EXPECT_EQ(rs.GrubbsP2_5(3), 34.0);
    EXPECT_EQ(rs.GrubbsP1(3), 35.0);
    EXPECT_EQ(rs.GrubbsP10(100), 1001.0);
    EXPECT_EQ(rs.GrubbsP1(100), 1005.0);
    EXPECT_EQ(rs.GrubbsP10(2).mark, Mark::unset);
    EXPECT_STREQ(rs.procedure, "");
}

TEST_F(StatTables, TheNumberOfDataComesFromThePlaceOfTheLine) {
    folder.write("grubbs.dat", made_table(3, 98, 5, true));
    folder.write("student.dat", made_table(1, 101, 6, true));
    LoadGrubbs(rs, os);
    LoadStudent(rs, os);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.GrubbsP5(50), 503.0);
    EXPECT_EQ(rs.StudentT6(101), 1016.0);
}

TEST_F(StatTables, LinesBehindTheLastRecordAreIgnored) {
    folder.write("grubbs.dat", made_table(3, 98, 5) + "\"a text that is never closed\r\n");
    LoadGrubbs(rs, os);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.GrubbsP1(100), 1005.0);
}

TEST_F(StatTables, ATableOneRecordShortWarnsAndKeepsWhatWasRead) {
    folder.write("grubbs.dat", made_table(3, 97, 5));
    LoadGrubbs(rs, os);
    expect_warning("grubbs.dat");
    EXPECT_EQ(rs.GrubbsP1(99), 995.0);
    EXPECT_EQ(rs.GrubbsP10(100).mark, Mark::unset);
    EXPECT_EQ(grubbs_critical(rs, " 5", 100), 0.0);
}

TEST_F(StatTables, ATableThatBreaksOffInsideARecordKeepsItsFields) {
    folder.write("grubbs.dat", "title\n3,1.5,1.6");
    LoadGrubbs(rs, os);
    expect_warning("grubbs.dat");
    EXPECT_EQ(rs.GrubbsP10(3), 1.5);
    EXPECT_EQ(rs.GrubbsP7_5(3), 1.6);
    EXPECT_EQ(rs.GrubbsP5(3).mark, Mark::unset);
}

TEST_F(StatTables, AMissingGrubbsTableWarns) {
    LoadGrubbs(rs, os);
    expect_warning("grubbs.dat");
}

TEST_F(StatTables, AFolderInPlaceOfTheTableWarns) {
    std::filesystem::create_directory(folder.path("grubbs.dat"));
    LoadGrubbs(rs, os);
    expect_warning("grubbs.dat");
}

TEST_F(StatTables, AnEmptyTableWarns) {
    folder.write("grubbs.dat", "");
    LoadGrubbs(rs, os);
    expect_warning("grubbs.dat");
}

TEST_F(StatTables, StudentIsReadWholeAlthoughNothingUsesIt) {
    folder.write("student.dat", made_table(1, 101, 6));
    LoadStudent(rs, os);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.StudentT1(1), 11.0);
    EXPECT_EQ(rs.StudentT2(1), 12.0);
    EXPECT_EQ(rs.StudentT3(2), 23.0);
    EXPECT_EQ(rs.StudentT4(2), 24.0);
    EXPECT_EQ(rs.StudentT5(101), 1015.0);
    EXPECT_EQ(rs.StudentT6(101), 1016.0);
}

TEST_F(StatTables, AShortOrMissingStudentTableIsReportedAllTheSame) {
    folder.write("student.dat", made_table(1, 100, 6));
    LoadStudent(rs, os);
    expect_warning("student.dat");
    EXPECT_EQ(rs.StudentT6(100), 1006.0);
    EXPECT_EQ(rs.StudentT1(101).mark, Mark::unset);
    os.boxes.clear();
    std::filesystem::remove(folder.path("student.dat"));
    LoadStudent(rs, os);
    expect_warning("student.dat");
}

TEST_F(StatTables, TheLevelIsChosenByItsTextWithTheLeadingBlank) {
    folder.write("grubbs.dat", made_table(3, 98, 5));
    LoadGrubbs(rs, os);
    EXPECT_EQ(grubbs_critical(rs, "10", 4), 41.0);
    EXPECT_EQ(grubbs_critical(rs, "7.5", 4), 42.0);
    EXPECT_EQ(grubbs_critical(rs, " 5", 4), 43.0);
    EXPECT_EQ(grubbs_critical(rs, "2.5", 4), 44.0);
    EXPECT_EQ(grubbs_critical(rs, " 1", 4), 45.0);
    EXPECT_EQ(grubbs_critical(rs, "5", 4), 0.0);
}

TEST_F(StatTables, FewerThanThreeDataHaveNoCriticalValueAndMoreThanAHundredAreAFault) {
    folder.write("grubbs.dat", made_table(3, 98, 5));
    LoadGrubbs(rs, os);
    EXPECT_EQ(grubbs_critical(rs, " 5", 2), 0.0);
    EXPECT_EQ(grubbs_critical(rs, " 5", -3), 0.0);
    EXPECT_EQ(grubbs_critical(rs, " 5", 100), 1003.0);
    EXPECT_THROW(grubbs_critical(rs, " 5", 101), Fault);
}

}  // namespace
}  // namespace kolvar
