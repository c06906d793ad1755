// The three readers of raw tables.
#include "import_bench.hpp"

namespace kolvar::test {
namespace {

using Readers = ImportTest;

std::string fields(int count, const std::string& field) {
    std::string out = field;
    for (int k = 2; k <= count; ++k) out += "," + field;
    return out;
}

std::string lines(int count, const std::string& line) {
    std::string out;
    for (int k = 1; k <= count; ++k) out += line + "\n";
    return out;
}

TEST_F(Readers, CsvTakesHeadsAndOneSliceALine) {
    load("a.csv", "Li7,Si29\r\n1,20\r\n2.5,1e3\r\n");
    EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(slice(1), (Cells{1, 20}));
    EXPECT_EQ(slice(2), (Cells{2.5, 1000}));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Readers, TxtSeparatesAtTabsAndCommasAreNoSeparators) {
    load("a.txt", "Li7\tSi29\tU238\n1,5\t\t3\n 4\t  5 \t-6\n");
    EXPECT_EQ(heads(), (Heads{"Li7", "Si29", "U238"}));
    EXPECT_EQ(slice(1), (Cells{1, 0, 3}));
    EXPECT_EQ(slice(2), (Cells{4, 5, -6}));
}

TEST_F(Readers, XlSeparatesAtCommas) {
    profile(2, 3, 2);
    load("a.xl", "Intensity Vs Time\r\nTime,A1,B2\r\n0.,0.5,1.6\r\n\r\n0.,0.1,0.2\r\n\r\n");
    EXPECT_EQ(heads(), (Heads{"A1", "B2"}));
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(slice(1), (Cells{0.5, 1.6}));
    EXPECT_EQ(slice(2), (Cells{0.1, 0.2}));
}

TEST_F(Readers, EndingsCountInLowerAndUpperCase) {
    for (const char* name : {"a.csv", "a.CSV", "a.xl", "a.XL"}) {
        load(name, "Li7,Si29\n5,6\n");
        EXPECT_EQ(slice(1), (Cells{5, 6})) << name;
        os.boxes.clear();
    }
    for (const char* name : {"a.txt", "a.TXT"}) {
        load(name, "Li7\tSi29\n8\t9\n");
        EXPECT_EQ(slice(1), (Cells{8, 9})) << name;
    }
}

TEST_F(Readers, ANumberIsReadAsFarAsItGoesAndTextInItsPlaceIsZeroWithoutAMessage) {
    load("a.csv", "A,B,C,D,E,F,G\n12.5abc,abc,, 3 cps,.5,-1E2x,5.\n");
    EXPECT_EQ(slice(1), (Cells{12.5, 0, 0, 3, 0.5, -100, 5}));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Readers, WordsForInfinityAndNoNumberAreText) {
    load("a.csv", "A,B,C,D\ninf,nan,-inf,0x10\n");
    EXPECT_EQ(slice(1), (Cells{0, 0, 0, 0}));
}

TEST_F(Readers, AFileOfAnotherKindLoadsAsZeros) {
    load("a.csv", "Dear colleague\nplease find\nattached\n");
    EXPECT_EQ(heads(), (Heads{"Dear colleague"}));
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(slice(1), (Cells{0}));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Readers, AllLineEndsGiveTheSameTable) {
    for (const char* end : {"\r\n", "\n", "\r"}) {
        const std::string e = end;
        load("a.csv", "Li7,Si29" + e + "1,2" + e + "3,4" + e);
        EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
        ASSERT_EQ(rs.nSlices, 2);
        EXPECT_EQ(slice(2), (Cells{3, 4}));
    }
}

TEST_F(Readers, ALastLineWithoutALineEndCounts) {
    load("a.csv", "Li7,Si29\n1,2\n3,4");
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(slice(2), (Cells{3, 4}));
}

TEST_F(Readers, AByteOrderMarkIsNoPartOfTheFirstHead) {
    load("a.csv", "\xEF\xBB\xBFLi7,Si29\n1,2\n");
    EXPECT_EQ(rs.IsoName(1), "Li7");
}

TEST_F(Readers, HeadsInWindows1252BecomeUtf8) {
    load("a.csv", "time [\xB5s],Li7\n1,2\n");
    EXPECT_EQ(rs.IsoName(1), "time [\xC2\xB5s]");
    EXPECT_EQ(slice(1), (Cells{1, 2}));
}

TEST_F(Readers, ATrailingSeparatorInTheHeadsIsOneMoreColumnWithoutAName) {
    load("a.csv", "Li7,Si29,\n1,2,3\n4,5\n");
    EXPECT_EQ(heads(), (Heads{"Li7", "Si29", ""}));
    EXPECT_EQ(slice(1), (Cells{1, 2, 3}));
}

TEST_F(Readers, CellsOfATrailingEmptyHeadStayOneWhenNothingStandsThere) {
    former_measurement(3, 1);
    load("a.csv", "Li7,Si29,\n1,2\n");
    EXPECT_EQ(slice(1), (Cells{1, 2, 1}));
}

TEST_F(Readers, ATrailingSeparatorInADataLineFillsACellBeyondTheColumns) {
    load("a.csv", "Li7,Si29\n1,2,\n3,4,99\n");
    EXPECT_EQ(rs.nIso, 2);
    EXPECT_EQ(rs.Sig(3, 1), 0);
    EXPECT_EQ(rs.Sig(3, 2), 99);
}

TEST_F(Readers, AnEmptyLineOfACsvFileIsASliceOfZeroAndWhatStoodThere) {
    former_measurement(2, 4);
    load("a.csv", "Li7,Si29\n1,2\n\n3,4\n\n");
    ASSERT_EQ(rs.nSlices, 4);
    EXPECT_EQ(slice(2), (Cells{0, 1}));
    EXPECT_EQ(slice(3), (Cells{3, 4}));
    EXPECT_EQ(slice(4), (Cells{0, 1}));
}

TEST_F(Readers, EmptyLinesOfTxtAndXlFilesArePassedOver) {
    load("a.txt", "Li7\tSi29\n1\t2\n\n\n3\t4\n\n");
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(slice(2), (Cells{3, 4}));
    load("a.xl", "Li7,Si29\n\n1,2\n\n\n3,4\n5,6\n\n");
    EXPECT_EQ(rs.nSlices, 3);
    EXPECT_EQ(slice(3), (Cells{5, 6}));
}

TEST_F(Readers, AShortLineLeavesTheOtherCellsAsTheyWere) {
    former_measurement(3, 1);
    load("a.csv", "A,B,C\n5\n6\n");
    EXPECT_EQ(slice(1), (Cells{5, 1, 1}));
    // Outside the former measurement nothing was cleared: the cells hold what they held, 0 at first.
    EXPECT_EQ(slice(2), (Cells{6, 0, 0}));
}

TEST_F(Readers, LinesAroundTheHeadsAreIgnored) {
    profile(3, 5, 1);
    load("a.csv", "instrument\nmethod,x,y\nLi7,Si29\nunits,,,\n1,2\n3,4\n");
    EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(slice(1), (Cells{1, 2}));
}

TEST_F(Readers, ADataLineBeforeTheHeadsMeansTheLineBehindThem) {
    profile(2, 1, 1);
    load("a.csv", "title\nLi7,Si29\n1,2\n");
    EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
    EXPECT_EQ(rs.nSlices, 1);
    EXPECT_EQ(slice(1), (Cells{1, 2}));
}

TEST_F(Readers, AHeadLineBelowOneReadsNoHeads) {
    profile(0, 2, 1);
    load("a.csv", "title\n1,2\n3,4\n");
    EXPECT_EQ(heads(), (Heads{""}));
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(rs.Sig(1, 1), 1);
    EXPECT_EQ(rs.Sig(2, 2), 4);
}

TEST_F(Readers, ProfilesThatWereNeverReadTakeTheFileFromItsFirstLine) {
    profile({}, {}, {});
    load("a.csv", "1,2\n3,4\n");
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(rs.Sig(1, 1), 1);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Readers, AProfileMayBeTheTextOfANumber) {
    profile("2", "3", "2");
    load("a.csv", "title\nTime,Li7\n9,1\n");
    EXPECT_EQ(heads(), (Heads{"Li7"}));
    EXPECT_EQ(slice(1), (Cells{1}));
}

TEST_F(Readers, ColumnsBeforeTheFirstIsotopeAreDropped) {
    profile(1, 2, 3);
    load("a.csv", "Scan,Time,Li7,Si29\n1,0.5,10,20\n2,1.0,30,40\n");
    EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
    EXPECT_EQ(slice(1), (Cells{10, 20}));
    EXPECT_EQ(slice(2), (Cells{30, 40}));
    EXPECT_EQ(rs.IsoName(3), "");
}

TEST_F(Readers, TheFirstColumnOneKeepsTheTimeAsAnIsotope) {
    load("a.xl", "Time,Li7\n0.5,10\n");
    EXPECT_EQ(heads(), (Heads{"Time", "Li7"}));
}

TEST_F(Readers, DroppingColumnsLeavesTheLastOnesBehindForALaterShortLineToShow) {
    profile(1, 2, 2);
    load("a.csv", "Time,Li7,Si29\n0.5,10,20\n");
    EXPECT_EQ(rs.nIso, 2);
    EXPECT_EQ(rs.Sig(3, 1), 20);
    // The next file clears two columns; its short line shows in the third raw column what stayed there.
    load("b.csv", "Time,Li7,Si29\n0.7,11\n");
    EXPECT_EQ(slice(1), (Cells{11, 20}));
}

TEST_F(Readers, AFirstColumnBehindTheLastLeavesNoColumn) {
    profile(1, 2, 9);
    load("a.csv", "Time,Li7\n0.5,10\n");
    EXPECT_EQ(rs.nIso, 0);
    EXPECT_EQ(rs.nSlices, 1);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Readers, TheLastHeadNeverRunsIntoTheFirstCell) {
    rs.TokenBuf = "77";
    load("a.csv", "Li7,8\n5,6\n");
    EXPECT_EQ(slice(1), (Cells{5, 6}));
    EXPECT_EQ(rs.IsoName(1), "Li7");
    EXPECT_EQ(rs.TokenBuf, "");
}

TEST_F(Readers, SixThousandSlicesLoad) {
    load("a.csv", "Li7,Si29\n" + lines(MaxSlices, "3,4"));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.nSlices, 6000);
    for (int j = 1; j <= 6000; ++j) ASSERT_EQ(slice(j), (Cells{3, 4})) << j;
}

TEST_F(Readers, SixThousandAndOneSlicesAreTheFaultAndKeepWhatWasRead) {
    for (const char* name : {"a.csv", "a.xl"}) {
        os.boxes.clear();
        load(name, "Li7\n" + lines(MaxSlices + 1, "3"));
        expect_load_message(folder.path(name));
        EXPECT_EQ(rs.nSlices, 6000);
        EXPECT_EQ(rs.Sig(1, 6000), 3);
    }
}

TEST_F(Readers, EmptyLinesBehindSixThousandSlicesOfAnXlFileAreNoSlices) {
    load("a.xl", "Li7\n" + lines(MaxSlices, "3") + "\n\n");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.nSlices, 6000);
}

TEST_F(Readers, AHundredColumnsLoadWhateverTheFirstIsotopeColumnIs) {
    for (const int first : {1, 2, 7}) {
        rs.nSlices = 0;  // no file before, so that no blank is asked for
        profile(1, 2, first);
        load("a.csv", fields(MaxIso, "U238") + "\n" + fields(MaxIso, "9") + "\n");
        EXPECT_TRUE(os.boxes.empty());
        EXPECT_EQ(rs.nIso, MaxIso - first + 1);
        EXPECT_EQ(rs.Sig(rs.nIso, 1), 9);
    }
}

TEST_F(Readers, TheHundredAndFirstHeadIsTheFault) {
    load("a.csv", fields(MaxIso + 1, "U238") + "\n1,2\n");
    expect_load_message(folder.path("a.csv"));
    EXPECT_EQ(rs.nIso, 100);
    EXPECT_EQ(rs.nSlices, 1);
    EXPECT_EQ(rs.IsoName(100), "U238");
    EXPECT_EQ(rs.IsoElem(1), "");
}

TEST_F(Readers, TheHundredAndFirstFieldOfADataLineIsTheFault) {
    load("a.txt", "Li7\n1\n" + fields(MaxIso, "5") + "\n");
    EXPECT_TRUE(os.boxes.empty());
    std::string tabs(MaxIso, '\t');
    load("b.txt", "Li7\n1\n2" + tabs + "\n3\n");
    expect_load_message(folder.path("b.txt"));
    EXPECT_EQ(rs.nIso, 1);
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(rs.Sig(1, 1), 1);
    EXPECT_EQ(rs.Sig(1, 2), 2);
}

TEST_F(Readers, ANumberBeyondTheRangeOfADoubleIsTheFault) {
    load("a.csv", "Li7,Si29\n1,2\n3,1e999\n");
    expect_load_message(folder.path("a.csv"));
    EXPECT_EQ(rs.Sig(1, 2), 3);
    EXPECT_EQ(rs.IsoCanon(1), "");
}

TEST_F(Readers, RaggedRowsOfAllLengthsLandInTheirCells) {
    // Row j has (j modulo 7) + 1 fields, field i of it is 1000 j + i.
    std::string table = "A,B,C,D,E,F,G\n";
    for (int j = 1; j <= 100; ++j) {
        for (int i = 1; i <= j % 7 + 1; ++i) table += (i > 1 ? "," : "") + std::to_string(1000 * j + i);
        table += "\n";
    }
    load("a.csv", table);
    ASSERT_EQ(rs.nSlices, 100);
    for (int j = 1; j <= 100; ++j)
        for (int i = 1; i <= 7; ++i) ASSERT_EQ(rs.Sig(i, j), i <= j % 7 + 1 ? 1000 * j + i : 0) << i << " " << j;
}

TEST_F(Readers, KeysOfUserDefinedEndingsAreReadByNobody) {
    rs.setXXXXXisoLINE = rs.setYYYYYisoLINE = rs.setZZZZZisoLINE = 3;
    rs.setXXXXXdatLINE = rs.setYYYYYdatLINE = rs.setZZZZZdatLINE = 4;
    rs.setXXXXXfirstCOL = rs.setYYYYYfirstCOL = rs.setZZZZZfirstCOL = 2;
    load("a.csv", "Li7,Si29\n1,2\n3,4\n5,6\n");
    EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
    EXPECT_EQ(rs.nSlices, 3);
    EXPECT_EQ(rs.setXXXXXisoLINE, Value(3));
}

}  // namespace
}  // namespace kolvar::test
