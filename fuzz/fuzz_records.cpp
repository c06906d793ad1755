// Fuzzer: see fuzz/entries.hpp.
#include "entries.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::records({data, size});
    return 0;
}
