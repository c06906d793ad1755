// The corpus of the fuzzer of raw tables, replayed.
#include <gtest/gtest.h>

#include "../../../fuzz/entry_data_file.hpp"
#include "support/corpus.hpp"

namespace kolvar::test {
namespace {

TEST(Corpus, DataFiles) { EXPECT_GE(replay_corpus("data_file", fuzz::data_file), 16); }

}  // namespace
}  // namespace kolvar::test
