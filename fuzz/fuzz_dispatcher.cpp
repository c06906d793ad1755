// Fuzzer: see fuzz/entry_dispatcher.hpp.
#include "entry_dispatcher.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::dispatcher({data, size});
    return 0;
}
