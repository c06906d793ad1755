// Fuzzer: see fuzz/entry_scenario.hpp.
#include "entry_scenario.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::scenario({data, size});
    return 0;
}
