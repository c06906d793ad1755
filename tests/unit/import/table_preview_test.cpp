#include "import/table_preview.hpp"

#include <gtest/gtest.h>

#include "core/fault.hpp"
#include "core/files.hpp"
#include "import/file_format.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {
namespace {

using Lines = std::vector<std::string>;

TEST(FirstLines, EveryLineEndAndEveryEncodingOfTheReader) {
    const TempFolder folder;
    EXPECT_EQ(first_lines(folder.write("a.csv", "a\r\nb\nc\rd"), 30), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(first_lines(folder.write("b.csv", "a\n\n"), 30), (Lines{"a", ""}));
    EXPECT_EQ(first_lines(folder.write("c.csv", ""), 30), Lines{});
    EXPECT_EQ(first_lines(folder.write("d.csv", "\xEF\xBB\xBFx\n\xB5m\n"), 30).back(), "\xC2\xB5m");
    EXPECT_EQ(first_lines(folder.write("e.csv", "1\n2\n3\n"), 2), (Lines{"1", "2"}));
}

TEST(FirstLines, OfALongFileOnlyWholeLinesOfItsHead) {
    const TempFolder folder;
    std::string bytes;
    while (bytes.size() < (3U << 20U)) bytes += "0123456789,abcdefghi\n";  // 21 bytes: a MiB ends within a line
    const Lines lines = first_lines(folder.write("long.csv", bytes), 1000000);
    EXPECT_EQ(lines.size(), (1U << 20U) / 21);
    EXPECT_EQ(lines.back(), "0123456789,abcdefghi");
    // A line without an end.
    EXPECT_EQ(first_lines(folder.write("one.csv", std::string(3U << 20U, 'x')), 30).size(), 1U);
}

TEST(FirstLines, FaultsOfAFileThatIsMissing) {
    const TempFolder folder;
    EXPECT_THROW(first_lines(folder.path("none.csv"), 30), Fault);
    EXPECT_THROW(first_lines(folder.path(), 30), Fault);
}

TEST(ReadHead, NoMoreThanTheFileHasAndNoMoreThanIsWanted) {
    const TempFolder folder;
    const std::string path = folder.write("a", "12345");
    EXPECT_EQ(read_head(path, 3), "123");
    EXPECT_EQ(read_head(path, 5), "12345");
    EXPECT_EQ(read_head(path, 9), "12345");
    EXPECT_EQ(read_head(path, 0), "");
}

TEST(FieldsOfALine, OneMoreThanSeparators) {
    EXPECT_EQ(fields_of("", ',').size(), 1U);
    EXPECT_EQ(fields_of("a,b,", ','), (std::vector<std::string_view>{"a", "b", ""}));
    EXPECT_EQ(fields_of("a,b\tc", '\t'), (std::vector<std::string_view>{"a,b", "c"}));
}

TEST(FileFormats, EndingsInTheirSpellings) {
    EXPECT_EQ(format_of("a.csv"), FileFormat::csv);
    EXPECT_EQ(format_of("a.CSV"), FileFormat::csv);
    EXPECT_EQ(format_of("a.txt"), FileFormat::txt);
    EXPECT_EQ(format_of("a.TXT"), FileFormat::txt);
    EXPECT_EQ(format_of("a.xl"), FileFormat::xl);
    EXPECT_EQ(format_of("a.XL"), FileFormat::xl);
    for (const char* other : {"a.Csv", "a.xls", "a", "", "xl"}) EXPECT_EQ(format_of(other), FileFormat::none) << other;
}

// The lines that the preview marks must be those that a load takes.
TEST(LinesRead, AreThoseOfTheReader) {
    const TempFolder folder;
    const Lines lines = {"L1", "", "L3", "", "", "L6", "L7", "L8"};
    // Each line says its number in its only cell, so that the table tells which were read.
    std::string bytes;
    for (std::size_t k = 0; k < lines.size(); ++k)
        bytes += (lines[k].empty() ? std::string() : std::to_string(k + 1)) + "\n";
    const std::string path = folder.write("numbers.csv", bytes);
    int compared = 0;
    for (const bool skips : {false, true})
        for (int head = -1; head <= 6; ++head)
            for (int data = -1; data <= 8; ++data) {
                const TableProfile profile{',', head, data, 1, skips};
                RunState rs;
                bool loaded = false;
                guarded([&] { read_table(rs, path, profile), loaded = true; }, [](const Fault&) {});
                const TableLines read = lines_read(first_lines(path, 30), profile);
                ASSERT_TRUE(loaded || read.first > 8) << head << " " << data;
                if (!loaded) continue;
                ++compared;
                EXPECT_EQ(rs.nSlices > 0, read.first <= 8);
                if (head > 0) {
                    const auto& wanted = lines[static_cast<std::size_t>(read.head - 1)];
                    EXPECT_EQ(rs.IsoName(1), wanted.empty() ? "" : std::to_string(read.head)) << head;
                } else {
                    EXPECT_EQ(read.head, 0);
                }
                const bool empty = lines[static_cast<std::size_t>(read.first - 1)].empty();
                EXPECT_EQ(rs.Sig(1, 1), empty ? 0 : read.first) << head << " " << data << " " << skips;
            }
    EXPECT_EQ(compared, 2 * 8 * 10);
}

}  // namespace
}  // namespace kolvar::test
