// Files that instruments wrote, loaded with the profile of their software. They lie outside the project; where they are
// missing nothing is checked.
#include <cmath>
#include <cstdio>

#include "import_bench.hpp"

namespace kolvar::test {
namespace {

class RealFiles : public ImportTest {
protected:
    const std::string data = KOLVAR_SOURCE_DIR "/../shared/data/";

    // False when the folder is missing.
    bool load_real(const std::string& name) {
        const std::string path = data + name;
        if (!std::filesystem::exists(path)) {
            std::printf("not found, nothing checked: %s\n", path.c_str());
            return false;
        }
        rs.nSlices = 0;
        os.boxes.clear();
        load_path(path);
        for (int i = 1; i <= rs.nIso; ++i)
            for (int j = 1; j <= rs.nSlices; ++j) EXPECT_TRUE(std::isfinite(rs.Sig(i, j))) << i << " " << j;
        return true;
    }
};

TEST_F(RealFiles, QuadrupoleExportsLoadWithTheirFootersAsSlices) {
    profile(4, 5, 2);
    for (const char* name : {"NIST610z-01.csv", "NIST610z-06.csv", "Temora-5.csv", "117.csv"}) {
        if (!load_real(std::string("trace-zircon/") + name)) return;
        EXPECT_TRUE(os.boxes.empty()) << name;
        EXPECT_EQ(rs.nIso, 26) << name;
        EXPECT_EQ(rs.IsoName(1), "Li7");
        EXPECT_EQ(rs.IsoName(4), "Si29");
        EXPECT_EQ(rs.IsoName(26), "U238");
    }
    if (!load_real("trace-zircon/NIST610z-01.csv")) return;
    // 122 slices of the instrument and three lines of its footer.
    EXPECT_EQ(rs.nSlices, 125);
    EXPECT_EQ(rs.Sig(1, 1), 51);
    EXPECT_EQ(rs.Sig(4, 1), 235.14);
    EXPECT_EQ(rs.Sig(26, 2), 2);
}

TEST_F(RealFiles, LineScanOfAPerkinElmerInstrument) {
    profile(2, 3, 2);
    if (!load_real("odd-exports/perkin-line-scan.xl")) return;
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.nIso, 11);
    EXPECT_EQ(rs.IsoName(11), "Ba137");
    EXPECT_EQ(rs.Sig(1, 1), 1200.0432015553);
    EXPECT_EQ(rs.Sig(4, 2), 286847.38186205);
}

TEST_F(RealFiles, AnEmptyLineAfterEachSlice) {
    profile(2, 3, 2);
    if (!load_real("odd-exports/empty-line-after-each.xl")) return;
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(heads(), (Heads{"A1", "B2"}));
    EXPECT_EQ(rs.nSlices, 3);
    EXPECT_EQ(slice(3), (Cells{0.4, 0.2}));
}

TEST_F(RealFiles, TrailingCommasMakeAColumnWithoutAName) {
    profile(14, 16, 2);
    if (!load_real("odd-exports/icap-trailing-commas.csv")) return;
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.nIso, 11);
    EXPECT_EQ(rs.IsoName(1), "11B");
    EXPECT_EQ(rs.IsoCanon(1), "B11");
    EXPECT_EQ(rs.IsoName(11), "");
    EXPECT_EQ(rs.Sig(1, 1), 580.013456312186);
    EXPECT_EQ(rs.Sig(11, 1), 0);
}

TEST_F(RealFiles, DuplicatedAndEmptyHeads) {
    profile(1, 2, 4);
    if (!load_real("odd-exports/duplicate-heads.csv")) return;
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.IsoName(1), "202p");
    EXPECT_EQ(rs.IsoName(4), "202p");
    EXPECT_EQ(rs.IsoName(5), "");
    EXPECT_EQ(rs.Sig(1, 1), 774);
    EXPECT_EQ(rs.Sig(4, 2), 580);
}

TEST_F(RealFiles, AReportWithDashesForNoValue) {
    profile(31, 42, 2);
    if (!load_real("odd-exports/tab-report.txt")) return;
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.IsoName(1), "B11(LR)");
    EXPECT_EQ(rs.IsoCanon(1), "B(LR)11");
    EXPECT_EQ(rs.nSlices, 84);
    EXPECT_EQ(rs.Sig(1, 1), 0);
    EXPECT_EQ(rs.Sig(2, 1), 0);
    EXPECT_EQ(rs.Sig(3, 1), 2722);
}

TEST_F(RealFiles, EveryOddExportLoadsOrGivesItsMessageWhateverTheProfile) {
    for (const int head : {1, 2, 14}) {
        profile(head, head + 1, 2);
        for (const char* name : {"perkin-line-scan.xl", "empty-line-after-each.xl", "icap-trailing-commas.csv",
                                 "tab-report.txt", "duplicate-heads.csv"}) {
            if (!load_real(std::string("odd-exports/") + name)) return;
            if (!os.boxes.empty()) expect_load_message(data + "odd-exports/" + name);
        }
    }
}

}  // namespace
}  // namespace kolvar::test
