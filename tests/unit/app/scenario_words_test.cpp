// The lines of the scenario language.
#include "app/scenario_words.hpp"

#include <gtest/gtest.h>

namespace kolvar::scenario {
namespace {

std::vector<std::string> texts(std::string_view line) {
    std::vector<std::string> out;
    for (const Word& word : split_words(line)) out.push_back((word.quoted ? "q:" : "") + word.text);
    return out;
}

using Texts = std::vector<std::string>;

TEST(ScenarioWords, BlanksPartWordsAndRemarksAreNone) {
    EXPECT_EQ(texts("  click\tfrm1_Settings.cmdOK  "), (Texts{"click", "frm1_Settings.cmdOK"}));
    EXPECT_EQ(texts("   "), Texts{});
    EXPECT_EQ(texts("  # click nothing"), Texts{});
    EXPECT_EQ(texts("expect #1"), (Texts{"expect", "#1"}));
}

TEST(ScenarioWords, TextsStandInQuotesWithTheirEscapes) {
    EXPECT_EQ(texts(R"(write a "one\r\ntwo\t\"three\"\\ ")"), (Texts{"write", "a", "q:one\r\ntwo\t\"three\"\\ "}));
    EXPECT_EQ(texts(R"(expect SelLow "")"), (Texts{"expect", "SelLow", "q:"}));
    EXPECT_EQ(texts("x \"\xC2\xB1\""), (Texts{"x", "q:\xC2\xB1"}));
    EXPECT_EQ(texts(R"(write a "\x89PNG\xfF")"), (Texts{"write", "a", "q:\x89PNG\xFF"}));
    EXPECT_THROW(split_words(R"(write a "\x8")"), Wrong);
    EXPECT_THROW(split_words(R"(write a "\xg8")"), Wrong);
    EXPECT_THROW(split_words(R"(write a "\x-8")"), Wrong);
    EXPECT_THROW(split_words(R"(write a "one)"), Wrong);
    EXPECT_THROW(split_words(R"(write a "one\)"), Wrong);
    EXPECT_THROW(split_words(R"(write a "one\q")"), Wrong);
    EXPECT_THROW(split_words(R"(write a "one"two)"), Wrong);
}

TEST(ScenarioWords, BlanksWithinAnIndexPartNothing) {
    EXPECT_EQ(texts("print Sig(3, 120) x"), (Texts{"print", "Sig(3,120)", "x"}));
}

TEST(ScenarioWords, AddressesNameAWindowAControlAndAnElement) {
    const Address address = parse_address("frm2_Time.chkIs(4)");
    EXPECT_EQ(address.window, "frm2_Time");
    EXPECT_EQ(address.control, "chkIs");
    EXPECT_EQ(address.index, 4);
    EXPECT_EQ(address.text(), "frm2_Time.chkIs(4)");
    EXPECT_EQ(parse_address("frm2_Time").control, "");
    EXPECT_EQ(parse_address("frm1_Settings.cmdOK").index, -1);
    for (const char* bad : {"frm2_Time.chkIs(4", "frm2_Time.chkIs(x)", "frm2_Time.chkIs()", "frm2_Time.", ".cmdOK",
                            "frm2_Time.chkIs(-1)", "frm2_Time(3)"})
        EXPECT_THROW(parse_address(bad), Wrong) << bad;
    EXPECT_TRUE(is_address("frm2_Time.chkIs(4)"));
    EXPECT_FALSE(is_address("Sig(3..4)"));
}

TEST(ScenarioWords, NamesOfTheRunStateTakeIndicesAndRanges) {
    EXPECT_TRUE(parse_field("nIso").indices.empty());
    const FieldAddress one = parse_field("Sig(3,120)");
    ASSERT_EQ(one.indices.size(), 2U);
    EXPECT_EQ(one.indices[0].first, 3);
    EXPECT_EQ(one.indices[1].last, 120);
    EXPECT_FALSE(one.indices[1].is_range);
    const FieldAddress all = parse_field("Sig(1..2,5..8)");
    ASSERT_EQ(all.indices.size(), 2U);
    EXPECT_EQ(all.name, "Sig");
    EXPECT_EQ(all.indices[0].last, 2);
    EXPECT_TRUE(all.indices[1].is_range);
    EXPECT_EQ(all.indices[1].first, 5);
    EXPECT_EQ(all.indices[1].last, 8);
    for (const char* bad : {"Sig(", "Sig()", "Sig(1,)", "Sig(1..)", "Sig(a)", "Sig(1.5)"})
        EXPECT_THROW(parse_field(bad), Wrong) << bad;
}

TEST(ScenarioWords, ValuesKeepTheirKind) {
    Words words(R"(1E-7 "3" true false unset "" abc)");
    EXPECT_EQ(words.value(), Value(1e-7));
    EXPECT_EQ(words.value(), Value("3"));
    EXPECT_EQ(words.value(), Value(true));
    EXPECT_EQ(words.value(), Value(false));
    EXPECT_TRUE(words.value().is_unset());
    EXPECT_EQ(words.value(), Value(""));
    EXPECT_THROW(words.value(), Wrong);
}

TEST(ScenarioWords, ALineIsReadToItsEnd) {
    Words words("resize frm2_Time 16500.5 10200 \"left over\"");
    EXPECT_EQ(words.word("a command"), "resize");
    EXPECT_EQ(words.rest(), "frm2_Time 16500.5 10200 \"left over\"");
    EXPECT_FALSE(words.take("frm3_Matrix"));
    EXPECT_TRUE(words.take("frm2_Time"));
    EXPECT_TRUE(words.number_follows());
    EXPECT_EQ(words.number("a width"), 16500.5);
    EXPECT_EQ(words.whole("a height"), 10200);
    EXPECT_THROW(words.finish(), Wrong);
    EXPECT_THROW(words.word("a word"), Wrong);
    EXPECT_NO_THROW(words.finish());
    EXPECT_THROW(words.text("a text"), Wrong);
    EXPECT_THROW(Words("1.5").whole("a row"), Wrong);
    EXPECT_THROW(Words("1x").number("a row"), Wrong);
    EXPECT_THROW(Words("bare").text("a text"), Wrong);
}

}  // namespace
}  // namespace kolvar::scenario
