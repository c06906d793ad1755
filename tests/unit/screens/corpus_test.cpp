// The corpora of the fuzzers that need the windows, replayed.
#include <gtest/gtest.h>

#include "../../../fuzz/entry_dispatcher.hpp"
#include "../../../fuzz/entry_start_path.hpp"
#include "support/corpus.hpp"

namespace kolvar::test {
namespace {

TEST(Corpus, Dispatchers) { EXPECT_GE(replay_corpus("dispatcher", fuzz::dispatcher), fuzz::places); }
TEST(Corpus, StartPaths) { EXPECT_GE(replay_corpus("start_path", fuzz::start_path), 10); }

}  // namespace
}  // namespace kolvar::test
