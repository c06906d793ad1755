#include <filesystem>

#include "session.hpp"

namespace kolvar::test {
namespace {

namespace fs = std::filesystem;

using MasterFile = Session;

// ---- Creation

TEST_F(MasterFile, ANewListIsWrittenFromTheGridAsTextsOf70Fields) {
    list_four();
    EXPECT_TRUE(SaveMaster(rs, os, grid, path));
    EXPECT_EQ(folder.read("0-run.msf"), golden("1-new.msf"));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_FALSE(fs::exists(path + ".part"));
}

TEST_F(MasterFile, NothingOfANewListIsDoneWhateverTheCountersSay) {
    list_four();
    rs.SeqSamDone = 7;
    rs.SeqStdDone = 2;
    EXPECT_TRUE(SaveMaster(rs, os, grid, path));
    EXPECT_EQ(folder.read("0-run.msf"), golden("1-new.msf"));
}

TEST_F(MasterFile, ANewListNeverOverwrites) {
    list_four();
    folder.write("0-run.msf", "precious");
    EXPECT_FALSE(SaveMaster(rs, os, grid, path));
    EXPECT_EQ(folder.read("0-run.msf"), "precious");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, refused);
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(os.boxes[0].kind, "warning");
}

TEST_F(MasterFile, AListInWorkAlwaysOverwritesWithoutAQuestion) {
    ReadMaster(rs, folder.write("0-run.msf", golden("6-all-done.msf")));
    folder.write("0-run.msf", "former");
    rs.ListMode = 1;
    EXPECT_TRUE(SaveMaster(rs, os, grid, path));
    EXPECT_EQ(folder.read("0-run.msf"), golden("6-all-done.msf"));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(MasterFile, AListThatIsOnlyLookedAtIsNotSaved) {
    list_four();
    rs.ListMode = 2;
    EXPECT_FALSE(SaveMaster(rs, os, grid, path));
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(MasterFile, AListOfNoFilesIsAHeaderAlone) {
    EXPECT_TRUE(SaveMaster(rs, os, grid, path));
    const std::string written = folder.read("0-run.msf");
    EXPECT_EQ(written.substr(0, 30), "\"0000/0000/0000/0000\",\"No.\",\"T");
    EXPECT_EQ(written.find("\r\n"), written.size() - 2);
    ReadMaster(rs, path);
    expect_counters(0, 0, 0, 0, 2);
}

TEST_F(MasterFile, ADoubleQuoteInANameBecomesAnApostrophe) {
    list_four();
    list(1, "a \"b\".csv", "Std", "91500");
    EXPECT_TRUE(SaveMaster(rs, os, grid, path));
    ReadMaster(rs, path);
    EXPECT_EQ(field(1, 0), Value("a 'b'.csv"));
}

// ---- Failures of the writer

TEST_F(MasterFile, FiveHundredFilesAreSavedAndReadBack) {
    for (int r = 1; r <= 500; ++r) list(r, "f" + std::to_string(r) + ".csv", r % 10 == 1 ? "Std" : "", "");
    rs.SeqCount = 500;
    rs.SeqStdCount = 50;
    EXPECT_TRUE(SaveMaster(rs, os, grid, path));
    ReadMaster(rs, path);
    expect_counters(500, 0, 50, 0, 1);
    EXPECT_EQ(field(500, 0), Value("f500.csv"));
    EXPECT_TRUE(is_standard(rs, 491));
}

TEST_F(MasterFile, FiveHundredAndOneFilesBringTheRetryMessageBeforeTheFileIsOpened) {
    rs.SeqCount = 501;
    EXPECT_FALSE(SaveMaster(rs, os, grid, path));
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, retry);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_FALSE(fs::exists(path + ".part"));
}

TEST_F(MasterFile, AFullDiskLeavesTheFormerFileAndWhatWasWrittenBesideIt) {
    folder.write("0-run.msf", golden("5-first-sample.msf"));
    ReadMaster(rs, folder.write("read.msf", golden("6-all-done.msf")));
    rs.ListMode = 1;
    os.disk_room = 1500;
    EXPECT_FALSE(SaveMaster(rs, os, grid, path));
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, retry);
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(folder.read("0-run.msf"), golden("5-first-sample.msf"));
    EXPECT_EQ(folder.read("0-run.msf.part"), golden("6-all-done.msf").substr(0, 1500));
    // The retry, when there is room again.
    os.disk_room = 1000000;
    EXPECT_TRUE(SaveMaster(rs, os, grid, path));
    EXPECT_EQ(folder.read("0-run.msf"), golden("6-all-done.msf"));
    EXPECT_FALSE(fs::exists(path + ".part"));
}

TEST_F(MasterFile, AFolderInTheFilesPlaceBringsTheRetryMessage) {
    fs::create_directories(path);
    lines(2);
    rs.ListMode = 1;
    EXPECT_FALSE(SaveMaster(rs, os, grid, path));
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, retry);
    EXPECT_TRUE(fs::is_directory(path));
}

TEST_F(MasterFile, AFolderThatIsGoneBringsTheRetryMessage) {
    list_four();
    EXPECT_FALSE(SaveMaster(rs, os, grid, folder.path("gone/0-run.msf")));
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, retry);
}

TEST_F(MasterFile, NoNameBringsTheRetryMessage) {
    list_four();
    EXPECT_FALSE(SaveMaster(rs, os, grid, ""));
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, retry);
}

// ---- Reading

TEST_F(MasterFile, EachStepOfTheSessionReadsBackWithItsCountersAndPhase) {
    const auto read = [&](const char* name) { ReadMaster(rs, folder.write(name, golden(name))); };
    read("1-new.msf");
    expect_counters(4, 0, 2, 0, 1);
    read("2-first-standard.msf");
    expect_counters(4, 0, 2, 1, 1);
    read("3-standards-done.msf");
    expect_counters(4, 0, 2, 2, 2);
    read("4-factors.msf");
    expect_counters(4, 2, 2, 2, 3);
    read("5-first-sample.msf");
    expect_counters(4, 3, 2, 2, 3);
    read("6-all-done.msf");
    expect_counters(4, 4, 2, 2, 3);
}

TEST_F(MasterFile, AFileInProgressShowsWhichLinesAreProcessed) {
    ReadMaster(rs, folder.write("m.msf", golden("5-first-sample.msf")));
    EXPECT_TRUE(is_processed(rs, 1));
    EXPECT_TRUE(is_processed(rs, 2));
    EXPECT_FALSE(is_processed(rs, 3));
    EXPECT_TRUE(is_processed(rs, 4));
    EXPECT_TRUE(is_standard(rs, 1));
    EXPECT_FALSE(is_standard(rs, 3));
}

TEST_F(MasterFile, WhatWasReadIsWrittenAsItStoodTitlesAndSpareFieldsIncluded) {
    std::string bytes = replaced(golden("5-first-sample.msf"), "\"Hgused cps\"", "\"own title\"");
    bytes = replaced(bytes, "9,\"\",\"\",\"\",\"\",\"\",\"\"\r\n", "9,1.5,,\"a, b\",,\"\",\r\n");
    ReadMaster(rs, folder.write("0-run.msf", bytes));
    EXPECT_EQ(field(1, 64), Value(1.5));
    EXPECT_EQ(field(1, 65), Value());
    EXPECT_EQ(field(1, 66), Value("a, b"));
    EXPECT_EQ(field(1, 68), Value(""));
    EXPECT_EQ(field(1, 69), Value());
    EXPECT_EQ(field(0, 39), Value("own title"));
    EXPECT_EQ(field(0, 0), Value(""));
    rs.ListMode = 1;
    EXPECT_TRUE(SaveMaster(rs, os, grid, path));
    EXPECT_EQ(folder.read("0-run.msf"), bytes);
}

TEST_F(MasterFile, LineEndsMayBeOfAnyKindAndEmptyLinesMayTrail) {
    const std::string bytes = golden("5-first-sample.msf");
    for (const std::string& variant :
         {replaced(bytes, "\r\n", "\n"), replaced(bytes, "\r\n", "\r"), bytes + "\r\n\n  \r\n",
          bytes.substr(0, bytes.size() - 2), "\xEF\xBB\xBF" + bytes}) {
        rs.SeqCount = 0;
        ReadMaster(rs, folder.write("variant.msf", variant));
        expect_counters(4, 3, 2, 2, 3);
        rs.ListMode = 1;
        EXPECT_TRUE(SaveMaster(rs, os, grid, path));
        EXPECT_EQ(folder.read("0-run.msf"), bytes);
    }
}

TEST_F(MasterFile, LinesBehindThoseThatTheHeaderCountsAreNotRead) {
    ReadMaster(rs, folder.write("m.msf", golden("1-new.msf") + "1,2,3\r\n"));
    EXPECT_EQ(rs.SeqCount, 4);
    EXPECT_EQ(field(5, 0), Value());
}

TEST_F(MasterFile, ThePhaseIsTwoWhenAllStandardsAreDoneAndTheFirstLineHasNoFactor) {
    const std::string bytes = replaced(golden("1-new.msf"), "0004/0000/0002/0000", "0004/0000/0002/0002");
    ReadMaster(rs, folder.write("m.msf", bytes));
    EXPECT_EQ(rs.SeqPhase, 2);
}

TEST_F(MasterFile, FactorsInTheFirstLineMeanPhaseThreeWhateverTheCountersSay) {
    const std::string bytes = replaced(golden("4-factors.msf"), "0004/0002/0002/0002", "0004/0002/0002/0001");
    ReadMaster(rs, folder.write("m.msf", bytes));
    expect_counters(4, 2, 2, 1, 3);
}

TEST_F(MasterFile, AFactorOfZeroIsAFactor) {
    const std::string bytes = replaced(golden("4-factors.msf"), "1.01234", "0");
    ReadMaster(rs, folder.write("m.msf", bytes));
    EXPECT_EQ(rs.SeqPhase, 3);
}

TEST_F(MasterFile, MoreStandardsDoneThanThereAreAndNoFactorIsPhaseZero) {
    const std::string bytes = replaced(golden("1-new.msf"), "0004/0000/0002/0000", "0004/0000/0002/0003");
    rs.SeqPhase = 3;
    ReadMaster(rs, folder.write("m.msf", bytes));
    EXPECT_EQ(rs.SeqPhase, 0);
}

TEST_F(MasterFile, CountersAreReadByTheirPlacesAndByTheirLeadingNumbers) {
    const std::string bytes = replaced(golden("1-new.msf"), "0004/0000/0002/0000", "4   x 3.x 2x     1 more");
    ReadMaster(rs, folder.write("m.msf", bytes));
    // "4   ", "x" left out, " 3.x", " ", "2x  ", " ", "  1 ".
    expect_counters(4, 3, 2, 1, 1);
}

TEST_F(MasterFile, ACounterBehindTheFilesThatIsNoNumberIsZero) {
    for (const char* counters : {"0004", "0004/xxxx/0002/", "0004/    /0002/none"}) {
        rs.SeqSamDone = rs.SeqStdDone = 3;
        ReadMaster(rs, folder.write("m.msf", replaced(golden("1-new.msf"), "0004/0000/0002/0000", counters)));
        EXPECT_EQ(rs.SeqCount, 4) << counters;
        EXPECT_EQ(rs.SeqSamDone, 0) << counters;
        EXPECT_EQ(rs.SeqStdCount, std::string(counters) == "0004" ? 0 : 2) << counters;
        EXPECT_EQ(rs.SeqStdDone, 0) << counters;
    }
}

TEST_F(MasterFile, AShorterListEmptiesTheLinesOfTheOneBefore) {
    ReadMaster(rs, folder.write("m.msf", golden("6-all-done.msf")));
    rs.MasterRecs(4, 80) = "behind the file's fields";
    const std::string bytes = golden("6-all-done.msf");
    ReadMaster(rs, folder.write("m.msf", replaced(bytes, "0004/0004", "0003/0003")));
    EXPECT_EQ(rs.SeqCount, 3);
    for (int c = 0; c <= 80; ++c) EXPECT_TRUE(field(4, c).is_unset()) << c;
    EXPECT_FALSE(is_standard(rs, 4));
    EXPECT_FALSE(is_processed(rs, 4));
}

TEST_F(MasterFile, AShortLineReadsOnIntoTheNext) {
    // Line 1 loses its last two fields: those of line 2 move up, and the name of the second file is no name any more.
    // A header that counts one file less leaves enough fields.
    std::string bytes = replaced(golden("1-new.msf"), "0004/", "0003/");
    const std::size_t first = bytes.find("\"001_915.csv\"");
    const std::size_t end = bytes.find("\r\n", first);
    bytes.erase(end - 6, 6);
    ReadMaster(rs, folder.write("m.msf", bytes));
    EXPECT_EQ(field(1, 67), Value(""));
    EXPECT_EQ(field(1, 68), Value("002_unknown.csv"));
    EXPECT_EQ(field(1, 69), Value("2"));
    EXPECT_EQ(field(2, 0), Value(""));
    EXPECT_EQ(field(2, 68), Value("003, second spot.csv"));
}

// ---- What cannot be read leaves list and counters as they are

TEST_F(MasterFile, AShortLineInAFullListIsAFault) {
    std::string bytes = golden("1-new.msf");
    bytes.erase(bytes.size() - 5, 3);
    const Fault fault = refused_read(bytes);
    EXPECT_EQ(fault.kind, FaultKind::end_of_file);
    EXPECT_EQ(fault.line, 6);
}

TEST_F(MasterFile, AFileThatEndsTooEarlyIsAFault) {
    const std::string bytes = golden("6-all-done.msf");
    EXPECT_EQ(refused_read(bytes.substr(0, bytes.size() / 2)).kind, FaultKind::end_of_file);
    EXPECT_EQ(refused_read(bytes.substr(0, 200)).kind, FaultKind::end_of_file);
    EXPECT_EQ(refused_read("").kind, FaultKind::end_of_file);
}

TEST_F(MasterFile, AHeaderOfGarbageIsAFault) {
    for (const char* garbage :
         {"garbage", "", "-004/0000/0002/0000", "0004/0000/-002/0000", "xxxx/0000/0002/0000", "1e999"}) {
        const Fault fault = refused_read(replaced(golden("1-new.msf"), "0004/0000/0002/0000", garbage));
        EXPECT_EQ(fault.kind, FaultKind::type) << garbage;
        EXPECT_EQ(fault.line, 1);
        EXPECT_EQ(fault.offending, garbage);
    }
    EXPECT_EQ(refused_read(std::string(5000, '\0')).kind, FaultKind::end_of_file);
}

TEST_F(MasterFile, AHeaderThatCounts501FilesIsAFault) {
    const std::string header = replaced(golden("1-new.msf"), "0004/0000", "0501/0000");
    const std::string line = golden("1-new.msf").substr(golden("1-new.msf").find("\"004_"));
    std::string bytes = header;
    for (int r = 5; r <= 501; ++r) bytes += line;
    const Fault fault = refused_read(bytes);
    EXPECT_EQ(fault.kind, FaultKind::too_many);
    EXPECT_EQ(fault.line, 1);
}

TEST_F(MasterFile, ANumberBeyondTheRangeIsAFaultOfItsLine) {
    const Fault fault = refused_read(replaced(golden("6-all-done.msf"), "0.054,", "1e999,"));
    EXPECT_EQ(fault.kind, FaultKind::overflow);
    EXPECT_EQ(fault.line, 4);
}

TEST_F(MasterFile, AMissingFileOrAFolderIsAFaultWithItsPath) {
    lines(3);
    rs.SeqPhase = 1;
    const auto kind_of = [&](const std::string& name) {
        FaultKind out = FaultKind::index;
        guarded([&] { ReadMaster(rs, name); },
                [&](const Fault& fault) {
                    out = fault.kind;
                    EXPECT_EQ(fault.file, name);
                });
        return out;
    };
    EXPECT_EQ(kind_of(folder.path("none.msf")), FaultKind::file_missing);
    EXPECT_EQ(kind_of(folder.path()), FaultKind::file_unreadable);
    EXPECT_STREQ(rs.procedure, "ReadMaster");
    expect_counters(3, 0, 0, 0, 1);
    EXPECT_EQ(field(3, 0), Value("file3.csv"));
}

// ---- What a line is

TEST_F(MasterFile, ALineIsProcessedWhenItsMeasuredRatioIsANumberOtherThanZero) {
    lines(7);
    rs.MasterRecs(2, 11) = Value();
    rs.MasterRecs(3, 11) = 0;
    rs.MasterRecs(4, 11) = "0.0000";
    rs.MasterRecs(5, 11) = 0.00001;
    rs.MasterRecs(6, 11) = "0.1";
    rs.MasterRecs(7, 11) = -0.1;
    for (int r = 1; r <= 4; ++r) EXPECT_FALSE(is_processed(rs, r)) << r;
    for (int r = 5; r <= 7; ++r) EXPECT_TRUE(is_processed(rs, r)) << r;
}

TEST_F(MasterFile, APlaceOutsideTheListIsNeitherProcessedNorStandard) {
    for (const int place : {-1, 0, 501}) {
        EXPECT_FALSE(is_processed(rs, place));
        EXPECT_FALSE(is_standard(rs, place));
    }
}

TEST_F(MasterFile, FieldsWithoutATitleHaveNone) {
    EXPECT_STREQ(master_title(0), "");
    EXPECT_STREQ(master_title(63), "BLe Hgused");
    EXPECT_STREQ(master_title(64), "");
    EXPECT_STREQ(master_title(-1), "");
}

}  // namespace
}  // namespace kolvar::test
