// Fuzzer: see fuzz/entry_clipboard.hpp.
#include "entry_clipboard.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::clipboard({data, size});
    return 0;
}
