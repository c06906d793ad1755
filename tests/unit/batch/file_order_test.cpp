// The order of a folder's files by the number in their names, and the marks of the standards.
#include "batch/file_order.hpp"

#include <gtest/gtest.h>

namespace kolvar::test {
namespace {

using Order = std::vector<std::size_t>;

TEST(DataFile, SixEndingsInTheirSpellings) {
    for (const char* name : {"a.txt", "a.TXT", "a.csv", "a.CSV", "a.xl", "a.XL"})
        EXPECT_TRUE(is_data_file(name, "kkk"));
    for (const char* name : {"a.Txt", "a.Csv", "a.xls", "0-run.msf", "csv", "notes.txt~"})
        EXPECT_FALSE(is_data_file(name, "kkk")) << name;
}

TEST(DataFile, SpecialEndingIsAnyTextAtTheEnd) {
    EXPECT_TRUE(is_data_file("a.dat", ".dat"));
    EXPECT_TRUE(is_data_file("a.dat", "at"));
    EXPECT_FALSE(is_data_file("a.DAT", ".dat"));
    EXPECT_TRUE(is_data_file("anything", ""));
}

TEST(SerialPiece, FirstCharacters) {
    EXPECT_EQ(serial_piece("012-zircon.csv", {SerialPlace::first, 3, 1}), "012");
    EXPECT_EQ(serial_piece("7", {SerialPlace::first, 3, 1}), "7");
    EXPECT_EQ(serial_piece("7", {SerialPlace::first, 0, 1}), "");
    EXPECT_EQ(serial_piece("012", {SerialPlace::none, 3, 1}), "");
}

TEST(SerialPiece, InTheMiddleFromACharacterOn) {
    EXPECT_EQ(serial_piece("run-042-a.csv", {SerialPlace::middle, 3, 5}), "042");
    EXPECT_EQ(serial_piece("run-04", {SerialPlace::middle, 3, 5}), "04");
    EXPECT_EQ(serial_piece("run-", {SerialPlace::middle, 3, 5}), "");
    // Characters count, not bytes: the sharp s and the umlaut have two each.
    EXPECT_EQ(serial_piece("gr\xC3\xB6\xC3\x9F"
                           "e-17.csv",
                           {SerialPlace::middle, 2, 7}),
              "17");
}

TEST(SerialPiece, AtTheEndCountsOnAnEndingOfThreeLettersSoThatXlIsOneOff) {
    // 12 characters: from 12 - 3 - 3 = 6 on.
    EXPECT_EQ(serial_piece("zirc-042.csv", {SerialPlace::end, 3, 1}), "042");
    // 11 characters: from 5 on.
    EXPECT_EQ(serial_piece("zirc-042.xl", {SerialPlace::end, 3, 1}), "-04");
    EXPECT_EQ(serial_piece("z042.csv", {SerialPlace::end, 4, 1}), "z042");
    EXPECT_EQ(serial_piece("042.csv", {SerialPlace::end, 4, 1}), "") << "would begin before the name";
}

TEST(SerialNumber, ThePieceMustBeANumberAsAWhole) {
    const SerialRule five{SerialPlace::first, 5, 1};
    EXPECT_EQ(serial_number("00012.csv", five), 12);
    EXPECT_EQ(serial_number("   12.csv", five), 12);
    EXPECT_EQ(serial_number("-12.5.csv", five), -12.5);
    EXPECT_EQ(serial_number("1e3  .csv", five), 1000);
    EXPECT_EQ(serial_number("12-a.csv", five), std::nullopt);
    EXPECT_EQ(serial_number("", five), std::nullopt);
    EXPECT_EQ(serial_number("1e999.csv", five), std::nullopt) << "no number is so large";
}

TEST(OrderOfMeasurement, AscendingAndTheFirstOfEqualsInFront) {
    const std::vector<std::optional<double>> serials{3, 1, std::nullopt, 3, -2, 1};
    EXPECT_EQ(order_of_measurement(serials), (Order{4, 1, 5, 0, 3}));
}

TEST(OrderOfMeasurement, NumbersFromAHundredMillionOnAreNeverFound) {
    const std::vector<std::optional<double>> serials{100000000, 99999999, 1e9, 0};
    EXPECT_EQ(order_of_measurement(serials), (Order{3, 1}));
}

// The rule as a user would do it by hand: look for the lowest number that is left, take it out, and look again.
TEST(OrderOfMeasurement, IsWhatRepeatedSearchesForTheLowestGive) {
    unsigned seed = 7;
    const auto next = [&seed] { return (seed = seed * 1103515245U + 12345U) / 65536U % 1000U; };
    for (int run = 0; run < 50; ++run) {
        std::vector<std::optional<double>> left;
        for (int i = 0; i < 60; ++i) {
            const unsigned drawn = next();
            left.push_back(drawn % 7 == 0 ? std::nullopt : std::optional<double>(drawn % 20));
        }
        const Order found = order_of_measurement(left);
        Order by_hand;
        for (std::size_t taken = 0; taken < left.size(); ++taken) {
            std::optional<std::size_t> lowest;
            for (std::size_t i = 0; i < left.size(); ++i)
                if (left[i] && (!lowest || *left[i] < *left[*lowest])) lowest = i;
            if (!lowest) break;
            by_hand.push_back(*lowest);
            left[*lowest].reset();
        }
        EXPECT_EQ(found, by_hand);
    }
}

TEST(Abbreviation, TheSearchEndsOneCharacterShortOfTheEnd) {
    // 7 characters, 3 to be left: positions 1 to 4. The abbreviation begins at 4, then at 5.
    EXPECT_TRUE(abbreviation_in("001std1", "std", 3));
    EXPECT_FALSE(abbreviation_in("0001std", "std", 3));
}

TEST(Abbreviation, ANameNoLongerThanTheTailHoldsNone) {
    EXPECT_FALSE(abbreviation_in("std", "std", 3));
    EXPECT_FALSE(abbreviation_in("st", "std", 3));
    EXPECT_TRUE(abbreviation_in("std1", "std", 3));
}

TEST(Abbreviation, CapitalsDifferAndNothingStandsEverywhere) {
    EXPECT_FALSE(abbreviation_in("001-STD.csv", "std", 3));
    EXPECT_TRUE(abbreviation_in("a", "", 0));
    EXPECT_FALSE(abbreviation_in("", "", 0)) << "a name without characters has no position";
}

TEST(MarksOfAName, TheLastStandardWhoseAbbreviationItHoldsStands) {
    const std::vector<NamedStandard> standards{{"91500", "91500"}, {"GJ-1", "GJ-1"}, {"Temora-2", "Temora"}};
    const Marks both = marks_of("003-std-GJ-1-91500.csv", "std", standards);
    EXPECT_TRUE(both.standard);
    EXPECT_EQ(both.standard_name, "GJ-1");
    const Marks sample = marks_of("004-GJ-1.csv", "std", standards);
    EXPECT_FALSE(sample.standard);
    EXPECT_EQ(sample.standard_name, "GJ-1");
    EXPECT_EQ(marks_of("005-std.csv", "std", standards).standard_name, "");
}

TEST(MarksOfAName, TheSearchForAStandardEndsByTheLengthOfTheMarkOfAnyStandard) {
    // 12 characters. The name of the standard begins at 9: found when 3 are left (1 to 9), not when 4 are (1 to 8).
    const std::vector<NamedStandard> standards{{"GJ-1", "GJ-1"}};
    EXPECT_EQ(marks_of("01-std--GJ-1", "std", standards).standard_name, "GJ-1");
    EXPECT_EQ(marks_of("01-std--GJ-1", "-std", standards).standard_name, "");
    EXPECT_TRUE(marks_of("01-std--GJ-1", "-std", standards).standard);
}

}  // namespace
}  // namespace kolvar::test
