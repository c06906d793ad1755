#include "import/profile_detection.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

#include "import/file_format.hpp"
#include "import/table_preview.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {
namespace {

using Lines = std::vector<std::string>;

// "head/data/first", "nothing" when nothing is found.
std::string detected(const Lines& lines, char separator = ',') {
    const auto found = detect_profile(lines, separator);
    if (!found) return "nothing";
    EXPECT_EQ(found->separator, separator);
    return std::to_string(found->head_line) + "/" + std::to_string(found->data_line) + "/" +
           std::to_string(found->first_column);
}

TEST(IsotopeNames, ASymbolAndAMassInEitherOrder) {
    for (const char* name : {"Pb206", "206Pb", "U238", "H1", "H3", "Si29", " Li7 ", "\"Ca43\"", "U238 -> 254", "Ca-43",
                             "43 Ca", "Fe_57", "B11(LR)", "Mn55 (cps)", "Cm244"})
        EXPECT_EQ(isotope_likeness(name), IsotopeLikeness::isotope) << name;
}

TEST(IsotopeNames, NoSymbolOrAMassThatItCannotHaveIsTheFormAlone) {
    for (const char* name : {"A1", "202p", "206a", "B2", "U90", "Li30", "pb206", "PB206"})
        EXPECT_EQ(isotope_likeness(name), IsotopeLikeness::form) << name;
}

TEST(IsotopeNames, OtherHeadsAreNone) {
    for (const char* name : {"", "Time [Sec]", "Scan", "ACF", "Pb", "206", "0.541", "Time1", "15Dec", "U2381", "Pb206x",
                             "206Pb7", "dwell time=0.05", "-", "14/12/2015"})
        EXPECT_EQ(isotope_likeness(name), IsotopeLikeness::none) << name;
}

TEST(ProfileDetection, HeadsRightBeforeTheSlices) {
    EXPECT_EQ(detected({"Time,Si29,Ca43", "0.1,5,6", "0.2,7,8"}), "1/2/2");
    EXPECT_EQ(detected({"a file", "", "Time,Si29,Ca43", "0.1,5,6", "0.2,7,8"}), "3/4/2");
}

TEST(ProfileDetection, IsotopesFromTheFirstColumnOn) {
    EXPECT_EQ(detected({"Si29,Ca43", "5,6", "7,8"}), "1/2/1");
    EXPECT_EQ(detected({"U238", "5", "7"}), "1/2/1");
}

TEST(ProfileDetection, UnitsOrDwellTimesBetweenHeadsAndSlices) {
    EXPECT_EQ(detected({"Time,Si29,Ca43", "s,cps,cps", "0.1,5,6", "0.2,7,8"}), "1/3/2");
    EXPECT_EQ(detected({"Time,29Si,43Ca", "dwell,0.01,0.02", "0.1,5,6", "0.2,7,8", "0.3,7,8"}), "1/3/2");
}

TEST(ProfileDetection, TheFirstFieldMayBeATimeOfDay) {
    EXPECT_EQ(detected({"Clock\tSi29\tCa43", "14:03:22\t5\t6", "14:03:23\t7\t8"}, '\t'), "1/2/2");
}

TEST(ProfileDetection, SeparatorsAtTheEndAndFieldsWithoutAValue) {
    EXPECT_EQ(detected({"Time,Si29,Ca43,", "0.1,5,-,", "0.2,,8,", "0.3, - ,8,"}), "1/2/2");
}

TEST(ProfileDetection, EmptyLinesBetweenTheSlicesAndAFooter) {
    EXPECT_EQ(detected({"T,Si29,Ca43", "", "1,5,6", "", "2,7,8", "", ",,", "Printed: today,,"}), "1/3/2");
}

TEST(ProfileDetection, StatisticsAboveTheSlicesAreNotTheSlices) {
    EXPECT_EQ(detected({"T,Si29,Ca43", "Mean,6,7", "RSD,1,1", "Time,,", "1,5,6", "2,7,8", "3,7,8"}), "1/5/2");
    EXPECT_EQ(detected({"T,Si29,Ca43", "Mean,6,7", "1,5,6", "2,7,8"}), "1/3/2");
}

TEST(ProfileDetection, ASingleNameBeforeTheHeadsDoesNotCount) {
    EXPECT_EQ(detected({"Standard,Si29", "T,Si29,Ca43", "1,5,6", "2,7,8"}), "2/3/2");
    EXPECT_EQ(detected({"T,Si29,Ca43", "Standard,Si29", "1,5,6", "2,7,8"}), "1/3/2");
}

TEST(ProfileDetection, OtherColumnsBeforeTheFirstIsotope) {
    EXPECT_EQ(detected({"Scan,Time,ACF,202Hg", "1,0.1,51,774", "2,0.2,51,580"}), "1/2/4");
    // A name over a column of texts is passed over.
    EXPECT_EQ(detected({"Time,U238,Si29", "1,5,6", "2,7,8"}), "1/2/2");
    EXPECT_EQ(detected({"U238,Si29", "spot,6", "spot,8"}), "1/2/2");
}

TEST(ProfileDetection, NamesOfTheFormAloneServeWhereThereAreNoIsotopes) {
    EXPECT_EQ(detected({"Time,A1,B2", "0,5,6", "1,7,8"}), "1/2/2");
}

TEST(ProfileDetection, NothingWithoutNamesOrSlices) {
    EXPECT_EQ(detected({}), "nothing");
    EXPECT_EQ(detected({"", ""}), "nothing");
    EXPECT_EQ(detected({"Time,silicon,calcium", "1,5,6", "2,7,8"}), "nothing");
    EXPECT_EQ(detected({"1,5,6", "2,7,8"}), "nothing");
    EXPECT_EQ(detected({"Time,Si29,Ca43"}), "nothing");
    EXPECT_EQ(detected({"Time,Si29,Ca43", "1,5,6"}), "nothing");
    EXPECT_EQ(detected({"1,5,6", "2,7,8", "Time,Si29,Ca43"}), "nothing");
    EXPECT_EQ(detected({"Time\tSi29", "1\t5", "2\t6"}, ','), "nothing");
}

// Tables that instruments wrote. They lie outside the project; where they are missing nothing is checked.
TEST(ProfileDetection, EveryMeasuredTable) {
    namespace fs = std::filesystem;
    const fs::path data = fs::path(KOLVAR_SOURCE_DIR) / ".." / "shared" / "data";
    if (!fs::exists(data)) {
        std::printf("not found, nothing checked: %s\n", data.c_str());
        return;
    }
    int files = 0;
    const auto expect_detected = [&](const fs::path& path, const std::string& wanted) {
        const FileFormat format = format_of(path.string());
        ASSERT_NE(format, FileFormat::none) << path;
        EXPECT_EQ(detected(first_lines(path.string(), 20000), profile_of(format, {}, {}, {}).separator), wanted)
            << path;
        ++files;
    };
    for (const char* folder : {"trace-zircon", "upb-run", "upb-mercury"})
        for (const auto& file : fs::directory_iterator(data / folder)) expect_detected(file.path(), "4/5/2");
    EXPECT_GE(files, 80);
    const fs::path odd = data / "odd-exports";
    expect_detected(odd / "perkin-line-scan.xl", "2/3/2");
    expect_detected(odd / "empty-line-after-each.xl", "2/3/2");
    expect_detected(odd / "icap-trailing-commas.csv", "14/16/2");
    expect_detected(odd / "duplicate-heads.csv", "1/2/4");
    // Its names stand in line 31, its slices from line 42 on, behind a table of means; the column below the first name
    // is an empty one.
    expect_detected(odd / "tab-report.txt", "31/42/2");
    EXPECT_EQ(std::distance(fs::directory_iterator(odd), fs::directory_iterator()), 5);
}

}  // namespace
}  // namespace kolvar::test
