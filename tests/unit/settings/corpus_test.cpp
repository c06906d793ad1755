// The corpora of the fuzzers of records, settings, defaults and blank tables, replayed.
#include <gtest/gtest.h>

#include "../../../fuzz/entry_settings.hpp"
#include "support/corpus.hpp"

namespace kolvar::test {
namespace {

TEST(Corpus, Records) { EXPECT_GE(replay_corpus("records", fuzz::records), 7); }
TEST(Corpus, Settings) { EXPECT_GE(replay_corpus("settings", fuzz::settings), 7); }
TEST(Corpus, Defaults) { EXPECT_GE(replay_corpus("defaults", fuzz::defaults), 5); }
TEST(Corpus, BlankTables) { EXPECT_GE(replay_corpus("blank_table", fuzz::blank_table), 7); }

}  // namespace
}  // namespace kolvar::test
