// Fuzzer: see fuzz/entry_settings.hpp.
#include "entry_settings.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::defaults({data, size});
    return 0;
}
