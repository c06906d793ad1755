#include "core/files.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kolvar {
namespace {

std::vector<std::string> lines_of(std::string_view text) {
    std::vector<std::string> out;
    LineReader reader(text);
    while (!reader.at_end()) out.emplace_back(reader.next());
    return out;
}

using Lines = std::vector<std::string>;

TEST(LineReader, CrLfAndLfAndALoneCrEndALine) {
    EXPECT_EQ(lines_of("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(lines_of("a\n\rb"), (Lines{"a", "", "b"}));
    EXPECT_EQ(lines_of("a\r\r\nb"), (Lines{"a", "", "b"}));
}

TEST(LineReader, ALastLineWithoutAnEndCounts) { EXPECT_EQ(lines_of("a\nb"), (Lines{"a", "b"})); }

TEST(LineReader, ALineEndAtTheEndMakesNoFurtherEmptyLine) {
    EXPECT_EQ(lines_of("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\r"), (Lines{"a"}));
    EXPECT_EQ(lines_of("\n"), (Lines{""}));
    EXPECT_EQ(lines_of("a\n\n"), (Lines{"a", ""}));
    EXPECT_EQ(lines_of(""), Lines{});
}

TEST(LineReader, CountsTheLinesAndStaysAtTheEnd) {
    LineReader reader("a\r\nb");
    EXPECT_EQ(reader.line(), 0);
    reader.next();
    EXPECT_EQ(reader.line(), 1);
    reader.next();
    EXPECT_EQ(reader.line(), 2);
    EXPECT_TRUE(reader.at_end());
    EXPECT_EQ(reader.next(), "");
    EXPECT_EQ(reader.line(), 2);
}

TEST(LineReader, LongLinesOfAnyLengthAreCutAtTheRightPlace) {
    for (const std::size_t length : {254U, 255U, 256U, 257U, 511U, 512U, 513U, 5000U}) {
        const std::string line(length, 'x');
        EXPECT_EQ(lines_of(line + "\r\n" + line + "\r" + line + "\n" + line), (Lines{line, line, line, line}))
            << length;
    }
}

TEST(LineReader, ManyLinesThatEndInCrAloneAreReadInOneRun) {
    std::string text;
    for (int i = 0; i < 200000; ++i) text += "1,2\r";
    EXPECT_EQ(lines_of(text).size(), 200000U);
}

TEST(ToText, DropsTheByteOrderMarkOnceAndOnlyAtTheBeginning) {
    EXPECT_EQ(to_text("\xEF\xBB\xBFTime,Si29"), "Time,Si29");
    EXPECT_EQ(to_text("\xEF\xBB\xBF\xEF\xBB\xBFx"), "\xEF\xBB\xBFx");
    EXPECT_EQ(to_text("\xEF\xBB\xBF"), "");
    EXPECT_EQ(to_text(""), "");
}

TEST(ToText, Utf8Stays) {
    const std::string text = "\xC2\xB5m \xCE\xB4 \xE2\x82\xAC \xF0\x9F\x94\xAC";
    EXPECT_EQ(to_text(text), text);
}

TEST(ToText, OtherBytesAreWindows1252) {
    EXPECT_EQ(to_text("5 \xB5m"), "5 \xC2\xB5m");
    EXPECT_EQ(to_text("\xE9t\xE9"), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(to_text("\x80 5"), "\xE2\x82\xAC 5");
    EXPECT_EQ(to_text("\x93quoted\x94"), "\xE2\x80\x9Cquoted\xE2\x80\x9D");
    EXPECT_EQ(to_text("\x96 \x8C \x9F \xFF"), "\xE2\x80\x93 \xC5\x92 \xC5\xB8 \xC3\xBF");
}

TEST(ToText, TheFiveBytesThatMeanNothingBecomeTheReplacementCharacter) {
    EXPECT_EQ(to_text("\x81"), "\xEF\xBF\xBD");
    EXPECT_EQ(to_text("\x8D\x8F\x90\x9D"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(ToText, MalformedUtf8IsReadByteByByte) {
    // An overlong slash, a surrogate, a code point above the last one, a character cut short by the end.
    EXPECT_EQ(to_text("\xC0\xAF"), "\xC3\x80\xC2\xAF");
    EXPECT_EQ(to_text("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC");
    EXPECT_EQ(to_text("\xF4\x91\xA0\xA0"), "\xC3\xB4\xE2\x80\x98\xC2\xA0\xC2\xA0");
    EXPECT_EQ(to_text("a\xE2\x82"), "a\xC3\xA2\xE2\x80\x9A");
}

TEST(ToText, AFileThatHoldsBothKeepsItsUtf8) { EXPECT_EQ(to_text("\xC2\xB5 \xB5"), "\xC2\xB5 \xC2\xB5"); }

TEST(Paths, SplitAtTheLastSeparatorOfEitherKind) {
    EXPECT_EQ(file_name("C:\\data\\run 1\\a.csv"), "a.csv");
    EXPECT_EQ(file_name("/data/run/a.csv"), "a.csv");
    EXPECT_EQ(file_name("/data\\run/b\\a.csv"), "a.csv");
    EXPECT_EQ(file_name("a.csv"), "a.csv");
    EXPECT_EQ(file_name("/data/"), "");
    EXPECT_EQ(folder_of("C:\\data\\run 1\\a.csv"), "C:\\data\\run 1");
    EXPECT_EQ(folder_of("/data/run/a.csv"), "/data/run");
    EXPECT_EQ(folder_of("a.csv"), "");
}

TEST(Paths, AreJoinedWithThePlatformsSeparator) {
    const std::string separator = native_path("\\");
    EXPECT_EQ(native_path("/"), separator);
    EXPECT_EQ(join_path("kit", "a.set"), "kit" + separator + "a.set");
    EXPECT_EQ(join_path("kit/", "a.set"), "kit" + separator + "a.set");
    EXPECT_EQ(join_path("top\\kit", "a.set"), "top" + separator + "kit" + separator + "a.set");
    EXPECT_EQ(join_path("", "a.set"), separator + "a.set");
    EXPECT_EQ(native_path("top\\kit/a.set"), "top" + separator + "kit" + separator + "a.set");
}

TEST(Paths, TheEndingIsTheLastThreeCharactersAsTheyAreSpelled) {
    EXPECT_EQ(last_three("run/a.csv"), "csv");
    EXPECT_EQ(last_three("run/a.Csv"), "Csv");
    EXPECT_EQ(last_three("run/a.xl"), ".xl");
    EXPECT_EQ(last_three("ab"), "ab");
    EXPECT_EQ(last_three(""), "");
}

}  // namespace
}  // namespace kolvar
