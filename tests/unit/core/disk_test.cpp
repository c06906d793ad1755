#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <map>
#include <thread>
#include <vector>

#include "core/fault.hpp"
#include "core/files.hpp"
#include "support/failing_read.hpp"
#include "support/test_support.hpp"

namespace kolvar {
namespace {

namespace fs = std::filesystem;

Fault fault_of(const std::function<void()>& work) {
    try {
        work();
    } catch (const Fault& fault) {
        return fault;
    }
    ADD_FAILURE() << "no fault";
    return Fault(FaultKind::type);
}

class Disk : public ::testing::Test {
protected:
    test::TempFolder folder;
    test::ScriptedPlatform os;
};

TEST_F(Disk, ReadsTheBytesAsTheyAre) {
    const std::string bytes("a\r\nb\0c\xFF", 7);
    EXPECT_EQ(read_bytes(folder.write("a.csv", bytes)), bytes);
    EXPECT_EQ(read_bytes(folder.write("empty", "")), "");
    const std::string large(1'000'000, 'x');
    EXPECT_EQ(read_bytes(folder.write("large", large)), large);
}

TEST_F(Disk, AMissingFileAndAMissingFolderAreTheSame) {
    const Fault missing = fault_of([&] { read_bytes(folder.path("none.csv")); });
    EXPECT_EQ(missing.kind, FaultKind::file_missing);
    EXPECT_EQ(missing.file, folder.path("none.csv"));
    EXPECT_EQ(fault_of([&] { read_bytes(folder.path("none/none.csv")); }).kind, FaultKind::file_missing);
    EXPECT_EQ(fault_of([] { read_bytes(""); }).kind, FaultKind::file_missing);
}

TEST_F(Disk, AFolderInPlaceOfAFileIsUnreadable) {
    fs::create_directory(folder.path("a.csv"));
    const Fault fault = fault_of([&] { read_bytes(folder.path("a.csv")); });
    EXPECT_EQ(fault.kind, FaultKind::file_unreadable);
    EXPECT_EQ(fault.file, folder.path("a.csv"));
}

TEST_F(Disk, APipeIsUnreadableAndNobodyWaits) {
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(fault_of([&] { read_bytes(folder.path("pipe")); }).kind, FaultKind::file_unreadable);
}

TEST_F(Disk, AReadThatFailsInTheMiddleOfAFileGivesNoneOfIt) {
    std::string bytes;
    for (int k = 0; k < 20000; ++k) bytes += static_cast<char>('a' + k % 26);
    const std::string path = folder.write("long.csv", bytes);
    for (const std::size_t good : {0U, 1U, 3000U, 3001U, 10000U, 19999U, 20000U}) {
        const test::FailingRead disk(path, good);
        const Fault fault = fault_of([&] { read_bytes(path); });
        EXPECT_EQ(fault.kind, FaultKind::file_unreadable) << good;
        EXPECT_EQ(fault.file, path);
        EXPECT_EQ(disk.failures(), 1);
    }
    EXPECT_EQ(read_bytes(path), bytes);
}

TEST_F(Disk, BytesThatComeInPiecesAndAfterInterruptionsAreWhole) {
    std::string bytes;
    for (int k = 0; k < 20000; ++k) bytes += static_cast<char>('a' + k % 26);
    const std::string path = folder.write("long.csv", bytes);
    const test::FailingRead disk(path, bytes.size());
    // Nothing is asked for behind the bytes that are wanted.
    for (const std::size_t most : {1U, 2999U, 3000U, 12345U, 20000U})
        EXPECT_EQ(read_head(path, most), bytes.substr(0, most));
    EXPECT_EQ(disk.failures(), 0);
}

TEST_F(Disk, ANameIsNotCutAtAZeroByte) {
    const std::string path = folder.write("a.set", "x");
    EXPECT_EQ(fault_of([&] { read_bytes(path + std::string("\0.csv", 5)); }).kind, FaultKind::file_missing);
    EXPECT_FALSE(file_exists(path + std::string("\0.csv", 5)));
}

TEST_F(Disk, ABackslashSeparatesOnEveryPlatform) {
    fs::create_directory(folder.path("kit"));
    folder.write("kit/a.set", "one");
    EXPECT_EQ(read_bytes(folder.path() + "\\kit\\a.set"), "one");
    EXPECT_TRUE(file_exists(folder.path() + "\\kit\\a.set"));
    EXPECT_TRUE(folder_exists(folder.path() + "\\kit"));
    replace_file(os, folder.path() + "\\kit\\b.set", "two");
    EXPECT_EQ(folder.read("kit/b.set"), "two");
    append_file(os, folder.path() + "\\kit\\b.set", "!");
    EXPECT_EQ(folder.read("kit/b.set"), "two!");
}

TEST_F(Disk, FilesAndFoldersAreToldApart) {
    EXPECT_TRUE(folder_exists(folder.path()));
    EXPECT_FALSE(file_exists(folder.path()));
    const std::string path = folder.write("a", "");
    EXPECT_TRUE(file_exists(path));
    EXPECT_FALSE(folder_exists(path));
    EXPECT_FALSE(file_exists(folder.path("b")));
    EXPECT_FALSE(folder_exists(folder.path("b")));
    EXPECT_FALSE(file_exists(""));
}

TEST_F(Disk, ReplacingWritesTheFileWholeAndLeavesNoPart) {
    replace_file(os, folder.path("a.stm"), "\"Si29\",1,2\r\n");
    EXPECT_EQ(folder.read("a.stm"), "\"Si29\",1,2\r\n");
    replace_file(os, folder.path("a.stm"), "new");
    EXPECT_EQ(folder.read("a.stm"), "new");
    replace_file(os, folder.path("a.stm"), "");
    EXPECT_EQ(folder.read("a.stm"), "");
    EXPECT_FALSE(fs::exists(folder.path("a.stm.part")));
}

TEST_F(Disk, AFullDiskLeavesTheFormerFileAndWhatWasWrittenInThePart) {
    folder.write("a.set", "former");
    os.disk_room = 4;
    const Fault fault = fault_of([&] { replace_file(os, folder.path("a.set"), "0123456789"); });
    EXPECT_EQ(fault.kind, FaultKind::disk_full);
    EXPECT_EQ(fault.file, folder.path("a.set"));
    EXPECT_EQ(folder.read("a.set"), "former");
    EXPECT_EQ(folder.read("a.set.part"), "0123");
}

TEST_F(Disk, ADiskThatTakesExactlyTheFileIsNotFull) {
    os.disk_room = 10;
    replace_file(os, folder.path("a.set"), "0123456789");
    EXPECT_EQ(folder.read("a.set"), "0123456789");
}

TEST_F(Disk, AnOldPartIsWrittenOver) {
    folder.write("a.set.part", "something much longer than the file");
    replace_file(os, folder.path("a.set"), "new");
    EXPECT_EQ(folder.read("a.set"), "new");
    EXPECT_FALSE(fs::exists(folder.path("a.set.part")));
}

TEST_F(Disk, AFolderInPlaceOfTheFileOrAMissingFolderCantBeWritten) {
    fs::create_directory(folder.path("a.set"));
    EXPECT_EQ(fault_of([&] { replace_file(os, folder.path("a.set"), "x"); }).kind, FaultKind::file_unwritable);
    EXPECT_EQ(fault_of([&] { append_file(os, folder.path("a.set"), "x"); }).kind, FaultKind::file_unwritable);
    EXPECT_EQ(fault_of([&] { replace_file(os, folder.path("none/a.set"), "x"); }).kind, FaultKind::file_unwritable);
    EXPECT_EQ(fault_of([&] { append_file(os, folder.path("none/a.set"), "x"); }).kind, FaultKind::file_unwritable);
    fs::create_directory(folder.path("b.set.part"));
    folder.write("b.set", "former");
    EXPECT_EQ(fault_of([&] { replace_file(os, folder.path("b.set"), "x"); }).kind, FaultKind::file_unwritable);
    EXPECT_EQ(folder.read("b.set"), "former");
}

TEST_F(Disk, ReplacingKeepsTheRightsOfTheFileAndFollowsALink) {
    folder.write("real.set", "former");
    fs::permissions(folder.path("real.set"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.set", folder.path("link.set"));
    replace_file(os, folder.path("link.set"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.path("link.set")));
    EXPECT_EQ(folder.read("real.set"), "new");
    EXPECT_EQ(fs::status(folder.path("real.set")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Disk, AppendingCreatesAndContinues) {
    append_file(os, folder.path("0_quick"), "one\r\n");
    append_file(os, folder.path("0_quick"), "two\r\n");
    EXPECT_EQ(folder.read("0_quick"), "one\r\ntwo\r\n");
}

TEST_F(Disk, AFullDiskWhileAppendingKeepsWholeLines) {
    folder.write("0_quick", "one\r\n");
    os.disk_room = 3;
    EXPECT_EQ(fault_of([&] { append_file(os, folder.path("0_quick"), "two\r\n"); }).kind, FaultKind::disk_full);
    EXPECT_EQ(folder.read("0_quick"), "one\r\n");
    os.disk_room = 3;
    EXPECT_EQ(fault_of([&] { append_file(os, folder.path("0_new"), "two\r\n"); }).kind, FaultKind::disk_full);
    EXPECT_FALSE(fs::exists(folder.path("0_new")));
}

// Each of four programs appends records of its own letter; on the way some meet a full disk and are taken back.
TEST_F(Disk, ProgramsThatAppendAtOnceNeverMixOrLoseTheirLines) {
    constexpr int writers = 4;
    constexpr int records = 250;
    std::vector<std::thread> threads;
    for (int k = 0; k < writers; ++k)
        threads.emplace_back([&, k] {
            const std::string record = std::string(3000, static_cast<char>('a' + k)) + "\r\n";
            test::ScriptedPlatform own;
            for (int n = 0; n < records; ++n) {
                own.disk_room = n % 5 == 4 ? 1000 : static_cast<std::size_t>(-1);
                const auto append = [&] { append_file(own, folder.path("0_quick"), record); };
                guarded(append, [](const Fault&) {});
            }
        });
    for (std::thread& thread : threads) thread.join();

    const std::string bytes = folder.read("0_quick");
    LineReader lines(bytes);
    std::map<char, int> found;
    while (!lines.at_end()) {
        const std::string_view line = lines.next();
        ASSERT_EQ(line.size(), 3000U);
        ASSERT_EQ(line.find_first_not_of(line.front()), std::string_view::npos);
        ++found[line.front()];
    }
    ASSERT_EQ(found.size(), static_cast<std::size_t>(writers));
    for (const auto& [letter, count] : found) EXPECT_EQ(count, records * 4 / 5) << letter;
}

TEST_F(Disk, AFileThatAnotherProgramKeepsLockedIsReportedAndLeftAlone) {
    folder.write("0_quick", "one\r\n");
    const int fd = ::open(folder.path("0_quick").c_str(), O_RDONLY);
    ASSERT_EQ(::flock(fd, LOCK_EX), 0);
    EXPECT_EQ(fault_of([&] { append_file(os, folder.path("0_quick"), "two\r\n"); }).kind, FaultKind::file_unwritable);
    EXPECT_EQ(folder.read("0_quick"), "one\r\n");
    ::close(fd);
    append_file(os, folder.path("0_quick"), "two\r\n");
    EXPECT_EQ(folder.read("0_quick"), "one\r\ntwo\r\n");
}

// A spreadsheet that has the table open locks records, not the file; such a lock also stands within one program.
TEST_F(Disk, AFileWhoseRecordsAnotherProgramKeepsLockedIsReportedAndLeftAlone) {
    folder.write("0_quick", "one\r\n");
    const int fd = ::open(folder.path("0_quick").c_str(), O_RDWR);
    struct flock records {};
    records.l_type = F_WRLCK;
    records.l_whence = SEEK_SET;
    ASSERT_EQ(::fcntl(fd, F_OFD_SETLK, &records), 0);
    EXPECT_EQ(fault_of([&] { append_file(os, folder.path("0_quick"), "two\r\n"); }).kind, FaultKind::file_unwritable);
    EXPECT_EQ(folder.read("0_quick"), "one\r\n");
    ::close(fd);
    append_file(os, folder.path("0_quick"), "two\r\n");
    EXPECT_EQ(folder.read("0_quick"), "one\r\ntwo\r\n");
}

// Two programs on one master file: whoever looks finds one of the two files whole, at any moment.
TEST_F(Disk, ProgramsThatReplaceOneFileAtOnceNeverMixTheirBytes) {
    constexpr int writers = 3;
    constexpr int times = 150;
    folder.write("0-a.msf", std::string(200000, 'a'));
    std::vector<std::thread> threads;
    std::atomic<int> running = writers;
    std::atomic<int> refused = 0;
    for (int k = 0; k < writers; ++k)
        threads.emplace_back([&, k] {
            const std::string bytes(static_cast<std::size_t>(200000 + 1000 * k), static_cast<char>('a' + k));
            test::ScriptedPlatform own;
            for (int n = 0; n < times; ++n)
                guarded([&] { replace_file(own, folder.path("0-a.msf"), bytes); }, [&](const Fault&) { ++refused; });
            --running;
        });
    int looks = 0;
    while (running > 0 || looks == 0) {
        const std::string bytes = folder.read("0-a.msf");
        ASSERT_FALSE(bytes.empty());
        ASSERT_EQ(bytes.find_first_not_of(bytes.front()), std::string::npos);
        ASSERT_EQ(bytes.size(), static_cast<std::size_t>(200000 + 1000 * (bytes.front() - 'a')));
        ++looks;
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(refused, 0);
    EXPECT_FALSE(fs::exists(folder.path("0-a.msf.part")));
}

TEST_F(Disk, AFileThatAnotherProgramIsReplacingIsReportedAndLeftAlone) {
    folder.write("0-a.msf", "former");
    folder.write("0-a.msf.part", "half of the oth");
    const int fd = ::open(folder.path("0-a.msf.part").c_str(), O_RDONLY);
    ASSERT_EQ(::flock(fd, LOCK_EX), 0);
    EXPECT_EQ(fault_of([&] { replace_file(os, folder.path("0-a.msf"), "new"); }).kind, FaultKind::file_unwritable);
    EXPECT_EQ(folder.read("0-a.msf"), "former");
    EXPECT_EQ(folder.read("0-a.msf.part"), "half of the oth");
    ::close(fd);
    replace_file(os, folder.path("0-a.msf"), "new");
    EXPECT_EQ(folder.read("0-a.msf"), "new");
}

TEST_F(Disk, ReadingAndWritingNeverChangeTheCurrentFolder) {
    const fs::path before = fs::current_path();
    replace_file(os, folder.path("a"), "x");
    append_file(os, folder.path("a"), "y");
    read_bytes(folder.path("a"));
    EXPECT_EQ(fs::current_path(), before);
}

}  // namespace
}  // namespace kolvar
