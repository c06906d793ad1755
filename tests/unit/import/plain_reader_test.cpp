// The reader of raw tables beside its plain reading: every name and every cell, to the last bit.
#include <cstring>
#include <memory>
#include <random>

#include "../../../bench/plain/import_plain.hpp"
#include "import_bench.hpp"

namespace kolvar::test {
namespace {

class PlainReading : public ImportTest {
protected:
    void expect_same(const std::string& bytes, const TableProfile& profile) {
        const std::string path = folder.write("table", bytes);
        RunState beside;
        plain::read_table(beside, path, profile);
        read_table(rs, path, profile);
        ASSERT_EQ(rs.nIso, beside.nIso);
        ASSERT_EQ(rs.nSlices, beside.nSlices);
        for (int i = 1; i <= MaxIso; ++i) {
            EXPECT_EQ(rs.IsoName(i), beside.IsoName(i)) << i;
            const auto a = rs.Sig.column(i);
            const auto b = beside.Sig.column(i);
            EXPECT_EQ(std::memcmp(a.data(), b.data(), a.size_bytes()), 0) << "column " << i;
        }
    }
};

TEST_F(PlainReading, AFullTable) { expect_same(plain::table_text(MaxIso, MaxSlices, ','), {',', 1, 2, 2, false}); }

TEST_F(PlainReading, ATableOfTabsWithTheTimeKept) {
    expect_same(plain::table_text(37, 401, '\t'), {'\t', 1, 2, 1, true});
}

TEST_F(PlainReading, RaggedLinesTextsAndEmptyLines) {
    std::string ragged = "title\nTime,A,B,C,D,\nunits\n";
    const char* const odd[] = {"1,2,3", "", ",,,,,,,", "x,-5.e2y, 7,+,.", "0.1,\t9,1e-400,--3,4 5,6"};
    for (int j = 0; j < 333; ++j) ragged += std::string(odd[j * j % 5]) + (j % 3 == 0 ? "\r\n" : "\n");
    expect_same(ragged, {',', 2, 4, 3, false});
}

TEST_F(PlainReading, RaggedLinesOfAnXlFile) {
    std::string ragged = "A,B,C\n";
    for (int j = 0; j < 100; ++j) ragged += j % 2 == 0 ? "5,6,7,8\n" : "\n";
    expect_same(ragged, {',', 1, 2, 1, true});
}

// Tables of all shapes, one after the other into the same measurement, so that cells left behind count too.
TEST_F(PlainReading, ManySmallTablesInSuccession) {
    const char* const fields[] = {"1", "-2.5", "", " 7 cps", "4e2x", "abc", ".5", "1e-320", "+3", "0x9"};
    const char* const line_ends[] = {"\n", "\r\n", "\r"};
    std::mt19937 random(314159);
    RunState beside;
    const std::string path = folder.path("table");
    for (int k = 0; k < 1000; ++k) {
        const TableProfile profile{random() % 2 == 0 ? ',' : '\t', 1 + static_cast<int>(random() % 3),
                                   static_cast<int>(random() % 6), static_cast<int>(random() % 4), random() % 2 == 0};
        const int lines = std::max(profile.head_line + 1, profile.data_line) + static_cast<int>(random() % 8);
        const std::string line_end = line_ends[random() % 3];
        std::string text;
        for (int line = 1; line <= lines; ++line) {
            const std::size_t from = text.size();
            // Three fields at least in the heads, as none of the profiles drops more columns.
            const auto width = line == profile.head_line ? 3 + random() % 4 : random() % 8;
            for (std::size_t i = 0; i < width; ++i) {
                if (i > 0) text += profile.separator;
                text += fields[random() % std::size(fields)];
            }
            if (line < lines || random() % 2 == 0 || text.size() == from) text += line_end;
        }
        folder.write("table", text);
        plain::read_table(beside, path, profile);
        read_table(rs, path, profile);
        ASSERT_EQ(rs.nIso, beside.nIso) << k;
        ASSERT_EQ(rs.nSlices, beside.nSlices) << k;
        for (int i = 1; i <= 12; ++i) {
            ASSERT_EQ(rs.IsoName(i), beside.IsoName(i)) << k;
            for (int j = 1; j <= 16; ++j) ASSERT_EQ(rs.Sig(i, j), beside.Sig(i, j)) << k << ": " << i << " " << j;
        }
    }
}

}  // namespace
}  // namespace kolvar::test
