// Fuzzer: see fuzz/entry_start_path.hpp.
#include "entry_start_path.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::start_path({data, size});
    return 0;
}
