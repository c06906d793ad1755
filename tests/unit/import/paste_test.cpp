#include "import/paste.hpp"

#include "import_bench.hpp"

namespace kolvar::test {
namespace {

class Paste : public ImportTest {
protected:
    Paste() {
        rs.DataFileName = "  ";
        shell.open(forms.frm1_Settings);
    }
    void paste(const std::string& text) {
        os.clip = text;
        PasteData(context);
    }
    void expect_refused() {
        EXPECT_TRUE(forms.frmPaste.shown);
        EXPECT_TRUE(os.boxes.empty());
        EXPECT_EQ(rs.DataFileName, "  ");
    }
    void expect_three_slices() {
        EXPECT_FALSE(forms.frmPaste.shown);
        EXPECT_EQ(rs.nIso, 2);
        EXPECT_EQ(rs.nSlices, 3);
        EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
        EXPECT_EQ(slice(1), (Cells{1, 10}));
        EXPECT_EQ(slice(2), (Cells{3, 20}));
        EXPECT_EQ(slice(3), (Cells{5, 30}));
        EXPECT_EQ(rs.DataFileName, " pasted from clipboard ");
    }
};

TEST_F(Paste, LinesOfWindowsSpreadsheets) {
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    expect_three_slices();
    EXPECT_EQ(rs.IsoElem(2), "Si");
    EXPECT_EQ(rs.IsoCanon(2), "Si29");
}

TEST_F(Paste, LinesOfUnixSpreadsheets) {
    paste("Li7\tSi29\n1\t10\n3\t20\n5\t30\n");
    expect_three_slices();
}

// The carriage return behind the last slice doesn't count it.
TEST_F(Paste, LoneCarriageReturnsNeedOneMoreLine) {
    paste("Li7\tSi29\r1\t10\r3\t20\r5\t30\r7\t40\r");
    expect_three_slices();
    EXPECT_EQ(rs.Sig(2, 4), 40);  // stored, not counted
}

TEST_F(Paste, MixedLineEnds) {
    paste("Li7\tSi29\n1\t10\r\n3\t20\n5\t30\n");
    expect_three_slices();
}

TEST_F(Paste, ALastLineWithoutItsEndIsDropped) {
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n5\t30\r\n7\t40");
    expect_three_slices();
    EXPECT_EQ(rs.Sig(1, 4), 0);
    EXPECT_EQ(rs.Sig(2, 4), 0);
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n5\t30");
    EXPECT_TRUE(forms.frmPaste.shown);
    EXPECT_EQ(rs.nSlices, 2);
}

TEST_F(Paste, TheLastLineWithoutItsEndMustHoldNumbersAllTheSame) {
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n5\t30\r\nsum\t60");
    expect_refused();
}

TEST_F(Paste, TwoSlicesAreTooFew) {
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n");
    expect_refused();
    EXPECT_EQ(rs.nIso, 2);
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(rs.IsoName(1), "");
}

TEST_F(Paste, OneColumnIsTooFew) {
    rs.nIso = 9;
    paste("Li7\r\n1\r\n3\r\n5\r\n");
    expect_refused();
    EXPECT_EQ(rs.nIso, 9);
}

TEST_F(Paste, AWordIsNoTable) {
    paste("x");
    expect_refused();
    EXPECT_EQ(rs.nIso, 1);
    EXPECT_EQ(rs.nSlices, 0);
}

TEST_F(Paste, ANumericOrEmptyHeadIsRefused) {
    paste("Li7\t29\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    expect_refused();
    EXPECT_EQ(rs.IsoName(1), "Li7");
    EXPECT_EQ(rs.IsoName(2), "29");
    shell.close(forms.frmPaste);
    paste("Li7\t\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    expect_refused();
    shell.close(forms.frmPaste);
    paste("\tSi29\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    expect_refused();
}

// A file would read the cell as 0.
TEST_F(Paste, AnEmptyCellOrAWordIsRefusedAndWhatWasReadStays) {
    for (const char* cell : {"", "n.a.", "1,5", "12 cps"}) {
        ClearData(rs);
        paste("Li7\tSi29\r\n1\t10\r\n3\t" + std::string(cell) + "\r\n5\t30\r\n");
        expect_refused();
        EXPECT_EQ(slice(1), (Cells{1, 10})) << cell;
        EXPECT_EQ(rs.Sig(1, 2), 3) << cell;
        EXPECT_EQ(rs.nSlices, 3);
        shell.close(forms.frmPaste);
    }
}

TEST_F(Paste, BlanksSignsAndExponentsAreNumbers) {
    paste("Li7\tSi29\r\n +1 \t1e1\r\n3.\t2.0E+1\r\n.5e1\t30\r\n");
    expect_three_slices();
}

TEST_F(Paste, ANumberTooLargeIsRefused) {
    paste("Li7\tSi29\r\n1\t10\r\n3\t1e999\r\n5\t30\r\n");
    expect_refused();
}

TEST_F(Paste, ALongerLineIsReadIntoTheTableAndAShorterLeavesIt) {
    paste("Li7\tSi29\r\n1\t10\t99\r\n3\t20\r\n5\r\n7\t40\r\n");
    EXPECT_FALSE(forms.frmPaste.shown);
    EXPECT_EQ(rs.nIso, 2);
    EXPECT_EQ(rs.Sig(3, 1), 99);
    EXPECT_EQ(rs.Sig(1, 3), 5);
    EXPECT_EQ(rs.Sig(2, 3), 0);
}

TEST_F(Paste, AnEmptyClipboardIsToldByABox) {
    paste("");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "There are no numbers on the clipboard.");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(os.boxes[0].kind, "warning");
    EXPECT_FALSE(forms.frmPaste.shown);
    EXPECT_EQ(rs.DataFileName, "  ");
}

TEST_F(Paste, TheSlicesOfTheFileBeforeAreNotNoted) {
    rs.PrevSlices = 77;
    rs.nSlices = 50;
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    EXPECT_EQ(rs.PrevSlices, 0);  // another length: the intervals are dropped, and with them the note
    rs.PrevSlices = 3;
    rs.SelLow = 1;
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    EXPECT_EQ(rs.PrevSlices, 3);
    EXPECT_EQ(rs.SelLow.val(), 1);
}

TEST_F(Paste, CountsAreDividedByTheDwellTimes) {
    rs.setCPS_IS = 0;
    rs.Dwell(1) = 0.5;
    rs.Dwell(2) = 0.25;
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    EXPECT_EQ(slice(2), (Cells{6, 80}));
}

TEST_F(Paste, AConversionThatFailsIsAFailedPaste) {
    rs.setCPS_IS = 0;
    rs.setIS_Dwell = 0;
    paste("Li7\tSi29\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    EXPECT_TRUE(forms.frmPaste.shown);
    EXPECT_TRUE(os.boxes.empty());
}

std::string table(int columns, int slices) {
    std::string heads;
    std::string cells;
    for (int i = 1; i <= columns; ++i) {
        heads += (i > 1 ? "\tAl27" : "Al27");
        cells += (i > 1 ? "\t5" : "5");
    }
    std::string out = heads + "\r\n";
    for (int t = 1; t <= slices; ++t) out += cells + "\r\n";
    return out;
}

TEST_F(Paste, TablesUpToTheLimits) {
    paste(table(100, 3));
    EXPECT_FALSE(forms.frmPaste.shown);
    EXPECT_EQ(rs.nIso, 100);
    EXPECT_EQ(rs.Sig(100, 3), 5);
    paste(table(2, 6000));
    EXPECT_FALSE(forms.frmPaste.shown);
    EXPECT_EQ(rs.nSlices, 6000);
    EXPECT_EQ(rs.Sig(2, 6000), 5);
}

TEST_F(Paste, BeyondTheLimitsTheCountsStandAtThem) {
    paste(table(101, 3));
    expect_refused();
    EXPECT_EQ(rs.nIso, 100);
    EXPECT_EQ(rs.IsoName(100), "Al27");
    EXPECT_EQ(rs.Sig(1, 1), 0);
    shell.close(forms.frmPaste);
    paste(table(2, 6001));
    expect_refused();
    EXPECT_EQ(rs.nSlices, 6000);
    EXPECT_EQ(rs.Sig(2, 6000), 5);  // what was read so far stays
}

// The line behind the last slice that a table holds may lack its end.
TEST_F(Paste, TheLastLineWithoutItsEndMayStandBehindTheLimit) {
    paste(table(2, 6000) + "7\t8");
    EXPECT_FALSE(forms.frmPaste.shown);
    EXPECT_EQ(rs.nSlices, 6000);
    EXPECT_EQ(rs.Sig(2, 6000), 5);
}

TEST_F(Paste, FiftyMegabytesAreReadToTheLimitOrRefusedAtOnce) {
    const std::size_t bytes = 50'000'000;
    std::string lines = "Li7\tSi29\n";
    while (lines.size() < bytes) lines += "1\t2\n";
    paste(lines);
    expect_refused();
    EXPECT_EQ(rs.nIso, 2);
    EXPECT_EQ(rs.nSlices, 6000);
    EXPECT_EQ(rs.Sig(2, 6000), 2);
    for (const char filling : {'\t', '\r', '\n', 'x'}) {
        shell.close(forms.frmPaste);
        paste(std::string(bytes, filling));
        expect_refused();
    }
}

TEST_F(Paste, OtherPathsTakeTheNameOfTheirOwn) {
    rs.Method = 1;
    paste("U238\tPb206\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    EXPECT_EQ(rs.DataFileName, " pasted from clipboard ");
    EXPECT_EQ(forms.frm1_Settings.lblUP.text, " pasted from clipboard ");
    rs.Method = 2;
    rs.DataFileName = "solution.csv";
    paste("U238\tPb206\r\n1\t10\r\n3\t20\r\n5\t30\r\n");
    EXPECT_EQ(rs.DataFileName, "solution.csv");
}

}  // namespace
}  // namespace kolvar::test
