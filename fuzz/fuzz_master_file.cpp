// Fuzzer: see fuzz/entry_batch.hpp.
#include "entry_batch.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::master_file({data, size});
    return 0;
}
