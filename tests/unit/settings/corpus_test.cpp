// The corpora of the fuzzers of records, settings, defaults, blank tables and reference files, replayed.
#include <gtest/gtest.h>

#include "../../../fuzz/entry_references.hpp"
#include "../../../fuzz/entry_settings.hpp"
#include "support/corpus.hpp"

namespace kolvar::test {
namespace {

TEST(Corpus, Records) { EXPECT_GE(replay_corpus("records", fuzz::records), 7); }
TEST(Corpus, Settings) { EXPECT_GE(replay_corpus("settings", fuzz::settings), 7); }
TEST(Corpus, Defaults) { EXPECT_GE(replay_corpus("defaults", fuzz::defaults), 5); }
TEST(Corpus, BlankTables) { EXPECT_GE(replay_corpus("blank_table", fuzz::blank_table), 7); }
TEST(Corpus, References) { EXPECT_GE(replay_corpus("references", fuzz::references), 16); }

}  // namespace
}  // namespace kolvar::test
