// Runs the function of a fuzzer over the inputs that are kept for it; a broken promise ends the test program.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "support/test_support.hpp"

namespace kolvar::test {

// Gives the number of inputs.
template <class Entry>
int replay_corpus(const std::string& name, Entry&& entry) {
    int count = 0;
    for (const auto& file : std::filesystem::directory_iterator(KOLVAR_SOURCE_DIR "/fuzz/corpus/" + name)) {
        const std::string bytes = bytes_of(file.path().string());
        const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
        entry(std::span<const std::uint8_t>(input));
        ++count;
    }
    return count;
}

}  // namespace kolvar::test
