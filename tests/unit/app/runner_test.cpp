// Whole runs: exit status, reports and prints of small scenarios.
#include "app/scenario_runner.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "support/test_support.hpp"

namespace kolvar::scenario {
namespace {

struct Result {
    int status;
    std::string printed, reported;
};

Result run(const std::string& lines, bool keep_going = false) {
    const test::TempFolder folder;
    const std::string file = folder.write("a.scn", lines);
    std::ostringstream out, err;
    const int status = run_scenario(file, {folder.path(), folder.path("work"), keep_going}, out, err);
    std::string reported = err.str();
    for (std::size_t at; (at = reported.find(file)) != std::string::npos;) reported.replace(at, file.size(), "a.scn");
    return {status, out.str(), reported};
}

TEST(ScenarioRunner, TheFirstFailureEndsTheFile) {
    const Result result = run("clipboard \"a\"\nexpect clipboard \"b\"\nprint clipboard\nclack\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.printed, "");
    EXPECT_EQ(result.reported, "a.scn:2: expected clipboard \"b\" got \"a\"\n");
}

TEST(ScenarioRunner, KeepGoingRunsOnBehindAFailure) {
    const Result result = run("expect clipboard \"b\"\nprint clipboard\nexpect no file a\n", true);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.printed, "{\"what\": \"clipboard\", \"value\": \"\"}\n");
}

TEST(ScenarioRunner, AWrongLineEndsTheFileEvenWhenGoingOn) {
    const Result result = run("expect clipboard \"b\"\nclack\nprint clipboard\n", true);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.printed, "");
}

TEST(ScenarioRunner, AMissingScenarioIsWrong) {
    std::ostringstream out, err;
    EXPECT_EQ(run_scenario("no/such/file.scn", {}, out, err), 2);
    EXPECT_NE(err.str().find("no/such/file.scn"), std::string::npos);
}

TEST(ScenarioRunner, LeftOverAnswersAreWrong) {
    const Result result = run("\nanswer open \"x\"\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.reported, "a.scn:2: an answer that nobody asked for\n");
}

TEST(ScenarioRunner, TheFormerFolderComesBackAndAFreshOneGoes) {
    const std::filesystem::path here = std::filesystem::current_path();
    const test::TempFolder folder;
    std::ostringstream out, err;
    EXPECT_EQ(
        run_scenario(folder.write("a.scn", "write made.txt \"x\"\nexpect file made.txt text \"x\"\n"), {}, out, err), 0)
        << err.str();
    EXPECT_EQ(std::filesystem::current_path(), here);
    EXPECT_FALSE(std::filesystem::exists(here / "made.txt"));
}

TEST(ScenarioRunner, PrintsAreJson) {
    const Result result = run("write a.txt \"\\\"q\\\" \\\\ \\n\\r\\t\"\nprint file a.txt\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.printed, "{\"what\": \"file a.txt\", \"value\": \"\\\"q\\\" \\\\ \\n\\r\\t\"}\n");
}

}  // namespace
}  // namespace kolvar::scenario
