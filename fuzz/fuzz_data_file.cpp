// Fuzzer: see fuzz/entry_data_file.hpp.
#include "entry_data_file.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kolvar::fuzz::data_file({data, size});
    return 0;
}
