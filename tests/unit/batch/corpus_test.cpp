// The corpus of the fuzzer of master files, replayed.
#include <gtest/gtest.h>

#include "../../../fuzz/entry_batch.hpp"
#include "support/corpus.hpp"

namespace kolvar::test {
namespace {

TEST(Corpus, MasterFiles) { EXPECT_GE(replay_corpus("master_file", fuzz::master_file), 14); }

}  // namespace
}  // namespace kolvar::test
