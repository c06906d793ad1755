// The reader of raw tables beside its plain reading: every name and every cell, to the last bit.
#include <cstring>
#include <memory>

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

}  // namespace
}  // namespace kolvar::test
