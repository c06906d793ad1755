// The corpus of the fuzzer of scenarios, replayed.
#include <gtest/gtest.h>

#include "../../../fuzz/entry_scenario.hpp"
#include "support/corpus.hpp"

namespace kolvar::test {
namespace {

TEST(Corpus, Scenarios) { EXPECT_GE(replay_corpus("scenario", fuzz::scenario), 7); }

}  // namespace
}  // namespace kolvar::test
