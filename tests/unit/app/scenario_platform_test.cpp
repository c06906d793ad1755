// Boxes, answers, clock and disk as a scenario plays them.
#include "app/scenario_platform.hpp"

#include <gtest/gtest.h>

namespace kolvar::scenario {
namespace {

using AnswerKind = ScenarioPlatform::AnswerKind;

TEST(ScenarioPlatform, AnswersAreUsedInTheirOrder) {
    ScenarioPlatform os;
    os.answers = {{AnswerKind::yes, "", "a:1"},   {AnswerKind::open, "x.csv", "a:2"}, {AnswerKind::cancel, "", "a:3"},
                  {AnswerKind::go_on, "", "a:4"}, {AnswerKind::save, "y.txt", "a:5"}, {AnswerKind::cancel, "", "a:6"}};
    EXPECT_TRUE(os.ask("Sure?", ""));
    EXPECT_EQ(os.open_file({"All|*.*", 2, "x", ""}), "x.csv");
    EXPECT_EQ(os.last_dialog->index, 2);
    EXPECT_EQ(os.save_file({}), std::nullopt);
    EXPECT_EQ(os.fault("Run-time error"), Platform::FaultAnswer::go_on);
    EXPECT_EQ(os.save_file({}), "y.txt");
    EXPECT_EQ(os.choose_folder(""), "");
    EXPECT_EQ(os.unanswered, "");
    ASSERT_EQ(os.boxes.size(), 2U);
    EXPECT_EQ(os.boxes[0].answer, "yes");
    EXPECT_EQ(os.boxes[1].kind, "fault");
    EXPECT_EQ(os.boxes[1].title, "KOLVAR");
}

TEST(ScenarioPlatform, AQuestionWithoutItsAnswerIsNoted) {
    ScenarioPlatform os;
    EXPECT_FALSE(os.ask("Overwrite?", ""));
    EXPECT_NE(os.unanswered.find("Overwrite?"), std::string::npos);

    ScenarioPlatform other;
    other.answers = {{AnswerKind::yes, "", "a:7"}};
    EXPECT_EQ(other.open_file({}), "");
    EXPECT_NE(other.unanswered.find("a:7"), std::string::npos);
    EXPECT_EQ(other.answers.size(), 1U);
}

TEST(ScenarioPlatform, AnAnswerWaitsForWhatItFits) {
    ScenarioPlatform os;
    os.answers = {{AnswerKind::yes, "", "a:1"}, {AnswerKind::save, "x.txt", "a:2"}, {AnswerKind::no, "", "a:3"}};
    EXPECT_EQ(os.save_file({}), "x.txt");
    EXPECT_TRUE(os.ask("Overwrite?", ""));
    EXPECT_FALSE(os.ask("Again?", ""));
    EXPECT_EQ(os.unanswered, "");
    EXPECT_TRUE(os.answers.empty());
}

TEST(ScenarioPlatform, TheBoxOfAMissingDocumentMayBePassedOver) {
    ScenarioPlatform os;
    EXPECT_FALSE(os.open_document("no/such/document.pdf"));
    os.warn("not found", "KOLVAR");
    os.warn("another box", "KOLVAR");
    EXPECT_TRUE(os.open_document("https://example.org"));
    EXPECT_EQ(os.documents, (std::vector<std::string>{"no/such/document.pdf", "https://example.org"}));
    ASSERT_EQ(os.boxes.size(), 2U);
    EXPECT_TRUE(os.boxes[0].optional);
    EXPECT_FALSE(os.boxes[1].optional);
}

TEST(ScenarioPlatform, WarningsAreRecordedWithLineFeeds) {
    ScenarioPlatform os;
    os.where = "a:9";
    os.warn("one\r\ntwo\rthree", "KOLVAR");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "one\ntwo\nthree");
    EXPECT_EQ(os.boxes[0].kind, "warning");
    EXPECT_EQ(os.boxes[0].answer, "");
    EXPECT_EQ(os.boxes[0].where, "a:9");
}

TEST(ScenarioPlatform, TheDiskTakesSoManyBytesAndNoMore) {
    ScenarioPlatform os;
    EXPECT_EQ(os.room_on_disk(5000), 5000U);
    os.room = 4096;
    EXPECT_EQ(os.room_on_disk(4000), 4000U);
    EXPECT_EQ(os.room_on_disk(100), 96U);
    EXPECT_EQ(os.room_on_disk(1), 0U);
    os.room.reset();
    EXPECT_EQ(os.room_on_disk(1), 1U);
}

TEST(ScenarioPlatform, TheClockStandsStillWhenItIsFixed) {
    ScenarioPlatform os;
    os.clock = DateTime{2009, 1, 7, 14, 3, 22};
    EXPECT_EQ(date_text(os.now()), "7 Jan. 2009");
    EXPECT_EQ(time_text(os.now()), "14:03:22");
}

}  // namespace
}  // namespace kolvar::scenario
