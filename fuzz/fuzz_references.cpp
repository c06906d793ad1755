// Fuzzer: see fuzz/entry_references.hpp.
#include "entry_references.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::references({data, size});
    return 0;
}
