// The corpora of the fuzzers of raw tables and of the clipboard, replayed.
#include <gtest/gtest.h>

#include "../../../fuzz/entry_clipboard.hpp"
#include "../../../fuzz/entry_data_file.hpp"
#include "support/corpus.hpp"

namespace kolvar::test {
namespace {

TEST(Corpus, Clipboards) { EXPECT_GE(replay_corpus("clipboard", fuzz::clipboard), 12); }
TEST(Corpus, DataFiles) { EXPECT_GE(replay_corpus("data_file", fuzz::data_file), 16); }

}  // namespace
}  // namespace kolvar::test
