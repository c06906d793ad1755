// The choice of a data file, and files that can't be loaded.
#include "import_bench.hpp"

namespace kolvar::test {
namespace {

using Choice = ImportTest;
using BadFiles = ImportTest;

TEST_F(Choice, TheDialogPreselectsTheFifthEntryAndTheFourthNamesXlForTxt) {
    EXPECT_FALSE(ChooseDataFile(context));
    ASSERT_EQ(os.dialogs.size(), 1U);
    EXPECT_EQ(os.dialogs[0].filter,
              "All Files (*.*)|*.*|Comma Delimited Files (*.csv)|*.csv|Perkin-Elmer Export Files (*.xl)|*.xl|Element 2 "
              "Export Files (*.txt)|*.xl|All Registered File Typ (*.csv, *.xl, *.txt)|*.csv; *.xl; *.txt");
    EXPECT_EQ(os.dialogs[0].index, 5);
    EXPECT_EQ(os.dialogs[0].name, "");
}

TEST_F(Choice, ACancelledDialogLeavesTheMeasurementAndAnEmptyAnswer) {
    former_measurement(2, 3);
    rs.DataFileName = "old.csv";
    rs.AppPath2 = "/data";
    rs.SetFilePath = "/data/settings.set";
    EXPECT_FALSE(ChooseDataFile(context));
    EXPECT_EQ(rs.SetFilePath, "");
    EXPECT_EQ(rs.DataFileName, "old.csv");
    EXPECT_EQ(rs.AppPath2, "/data");
    EXPECT_EQ(rs.IsoName(2), "Old2");
    EXPECT_EQ(rs.Sig(2, 3), 7);
}

TEST_F(Choice, TheAnswerGivesPathNameAndFolder) {
    load("zircon 5.csv", "Li7\n1\n");
    EXPECT_EQ(rs.SetFilePath, folder.path("zircon 5.csv"));
    EXPECT_EQ(rs.DataFilePath, folder.path("zircon 5.csv"));
    EXPECT_EQ(rs.DataFileName, "zircon 5.csv");
    EXPECT_EQ(rs.AppPath2, folder.path());
}

TEST_F(Choice, ABackslashSeparatesFoldersOnEveryPlatform) {
    folder.write("a.csv", "Li7\n4\n");
    load_path(folder.path() + "\\a.csv");
    EXPECT_EQ(rs.DataFileName, "a.csv");
    EXPECT_EQ(rs.AppPath2, folder.path());
    EXPECT_EQ(slice(1), (Cells{4}));
}

TEST_F(Choice, AnUnknownEndingHasAlreadyEmptiedTheMeasurementAndTakenNameAndFolder) {
    former_measurement(2, 2);
    load("x.Csv", "Li7\n1\n");
    EXPECT_EQ(rs.DataFileName, "x.Csv");
    EXPECT_EQ(rs.AppPath2, folder.path());
    EXPECT_EQ(rs.nIso, 2);
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(heads(), (Heads{"", ""}));
    EXPECT_EQ(slice(2), (Cells{1, 1}));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Choice, ClearedCellsAreOneAndFlagsZero) {
    former_measurement(2, 3);
    rs.IsoElem(2) = "Old";
    rs.IsoCanon(2) = "Old2";
    for (int j = 1; j <= 3; ++j) {
        rs.Sig2(1, j) = 8;
        rs.RejFlag(j) = 2;
        for (auto* ratio : {&rs.Rat68, &rs.Rat75, &rs.Rat82, &rs.Rat382, &rs.Rat76, &rs.Sig204Net}) (*ratio)(j) = 0.5;
        rs.Sorted1(j) = rs.MedianSorted(j) = 0.5;
    }
    rs.RejFlag(4) = 2;
    rs.Sig(3, 1) = 9;
    ClearData(rs);
    EXPECT_EQ(slice(3), (Cells{1, 1}));
    EXPECT_EQ(rs.Sig2(1, 3), 1);
    EXPECT_EQ(rs.Sig(3, 1), 9);
    EXPECT_EQ(rs.RejFlag(3), 0);
    for (const auto* ratio : {&rs.Rat68, &rs.Rat75, &rs.Rat82, &rs.Rat382, &rs.Rat76, &rs.Sig204Net})
        for (int j = 1; j <= 3; ++j) EXPECT_EQ((*ratio)(j), 0) << j;
    // The sorted lists keep the entries of earlier files, and flags behind the last slice stay.
    EXPECT_EQ(rs.Sorted1(2), 0.5);
    EXPECT_EQ(rs.MedianSorted(3), 0.5);
    EXPECT_EQ(rs.RejFlag(4), 2);
    EXPECT_EQ(rs.IsoName(2), "");
    EXPECT_EQ(rs.IsoElem(2), "");
    EXPECT_EQ(rs.IsoCanon(2), "");
    EXPECT_EQ(rs.nIso, 2);
}

TEST_F(Choice, ClearingNeverLooksBeyondTheLimits) {
    rs.nIso = 101;
    rs.nSlices = 6001;
    ClearData(rs);
    EXPECT_EQ(rs.Sig(100, 6000), 1);
    rs.nIso = -1;
    rs.nSlices = -1;
    rs.Sig(1, 1) = 5;
    ClearData(rs);
    EXPECT_EQ(rs.Sig(1, 1), 5);
}

TEST_F(BadFiles, AMissingFileGivesTheMessageOfEachReader) {
    for (const char* name : {"no.csv", "no.txt", "no.xl"}) {
        os.boxes.clear();
        load_path(folder.path(name));
        expect_load_message(folder.path(name));
    }
}

TEST_F(BadFiles, AFailedLoadLeavesOneColumnOneSliceAndTheNewName) {
    former_measurement(2, 5);
    rs.IsoElem(1) = "Old";
    load_path(folder.path("no.csv"));
    EXPECT_EQ(rs.DataFileName, "no.csv");
    EXPECT_EQ(rs.nIso, 1);
    EXPECT_EQ(rs.nSlices, 1);
    EXPECT_EQ(rs.PrevSlices, 5);
    EXPECT_EQ(rs.IsoElem(1), "");
    EXPECT_EQ(rs.IsoCanon(1), "");
    EXPECT_FALSE(rs.IS1col.is_set());
}

TEST_F(BadFiles, AFolderInPlaceOfAFile) {
    for (const char* name : {"d.csv", "d.txt", "d.xl"}) {
        os.boxes.clear();
        std::filesystem::create_directory(folder.path(name));
        load_path(folder.path(name));
        expect_load_message(folder.path(name));
    }
}

TEST_F(BadFiles, AnEmptyFile) {
    load("a.csv", "");
    expect_load_message(folder.path("a.csv"));
}

TEST_F(BadFiles, AFileThatEndsBeforeTheHeads) {
    profile(4, 5, 2);
    load("a.csv", "one\ntwo\nthree\n");
    expect_load_message(folder.path("a.csv"));
    EXPECT_EQ(rs.nIso, 1);
}

TEST_F(BadFiles, HeadsWithoutDataKeepTheHeads) {
    for (const char* name : {"a.csv", "a.xl"}) {
        os.boxes.clear();
        load(name, "Li7,Si29\n");
        expect_load_message(folder.path(name));
        EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
        EXPECT_EQ(rs.nSlices, 1);
        EXPECT_EQ(rs.IsoCanon(1), "");
    }
}

TEST_F(BadFiles, ABinaryFileLoadsAsSomethingOrGivesTheMessage) {
    std::string bytes;
    for (int k = 0; k < 40000; ++k) bytes += static_cast<char>((k * 7919 + k / 251) % 256);
    for (const char* name : {"a.csv", "a.txt", "a.xl"}) {
        os.boxes.clear();
        load(name, bytes);
        EXPECT_LE(os.boxes.size(), 1U);
        EXPECT_GE(rs.nIso, 1);
        EXPECT_LE(rs.nIso, MaxIso);
        EXPECT_LE(rs.nSlices, MaxSlices);
    }
}

TEST_F(BadFiles, ZeroBytesAreTextWithoutANumber) {
    load("a.csv", std::string("Li7,Si29\n1,\0002\n", 15));
    EXPECT_EQ(slice(1), (Cells{1, 0}));
}

TEST_F(BadFiles, ALineOfTenMegabytesWithoutASeparatorIsOneField) {
    load("a.csv", "Li7,Si29\n1,2" + std::string(10'000'000, 'x') + "\n3,4\n");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(slice(1), (Cells{1, 2}));
    EXPECT_EQ(slice(2), (Cells{3, 4}));
    load("b.csv", "Li7,Si29\n1," + std::string(10'000'000, '7') + "\n");
    expect_load_message(folder.path("b.csv"));
    os.boxes.clear();
    rs.nSlices = 0;  // no file before, so that no blank is asked for
    load("c.csv", "Li7,Si29\n1,0." + std::string(10'000'000, '3') + "\n");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_DOUBLE_EQ(rs.Sig(2, 1), 1.0 / 3.0);
}

TEST_F(BadFiles, ALineOfTenMegabytesOfSeparatorsIsTooManyColumns) {
    load("a.csv", "Li7\n" + std::string(10'000'000, ',') + "\n");
    expect_load_message(folder.path("a.csv"));
    os.boxes.clear();
    load("b.txt", std::string(10'000'000, '\t'));
    expect_load_message(folder.path("b.txt"));
}

TEST_F(BadFiles, TenMegabytesOfLineEndsAreTooManySlicesOfACsvAndNoneOfAnXl) {
    load("a.csv", "Li7" + std::string(10'000'000, '\n'));
    expect_load_message(folder.path("a.csv"));
    EXPECT_EQ(rs.nSlices, 6000);
    os.boxes.clear();
    load("b.xl", "Li7" + std::string(10'000'000, '\n'));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.nSlices, 0);
}

TEST_F(BadFiles, AQuoteIsAPlainCharacterAndNeverRunsAcrossLines) {
    load("a.csv", "\"Li7,Si29\n\"1,2\n3,4\n");
    EXPECT_EQ(heads(), (Heads{"\"Li7", "Si29"}));
    EXPECT_EQ(rs.nSlices, 2);
    EXPECT_EQ(slice(1), (Cells{0, 2}));
}

TEST_F(BadFiles, AfterAFailedLoadTheNextFileLoads) {
    std::string wide = "A";
    for (int k = 1; k <= 200; ++k) wide += ",A";
    load("a.csv", wide + "\n");
    os.boxes.clear();
    load("b.csv", "Li7,Si29\n1,2\n3,4\n");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(heads(), (Heads{"Li7", "Si29"}));
    EXPECT_EQ(slice(2), (Cells{3, 4}));
    EXPECT_EQ(rs.IsoName(3), "");
}

}  // namespace
}  // namespace kolvar::test
