#include "core/elements.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kolvar::test {
namespace {

TEST(Elements, SymbolsStandAtTheirAtomicNumbers) {
    EXPECT_EQ(element_symbol(1), "H");
    EXPECT_EQ(element_symbol(14), "Si");
    EXPECT_EQ(element_symbol(26), "Fe");
    EXPECT_EQ(element_symbol(57), "La");
    EXPECT_EQ(element_symbol(71), "Lu");
    EXPECT_EQ(element_symbol(82), "Pb");
    EXPECT_EQ(element_symbol(92), "U");
    EXPECT_EQ(element_symbol(96), "Cm");
    // The noble gases close the periods.
    const int closed[] = {2, 10, 18, 36, 54, 86};
    const char* const gases[] = {"He", "Ne", "Ar", "Kr", "Xe", "Rn"};
    for (int k = 0; k < 6; ++k) EXPECT_EQ(element_symbol(closed[k]), gases[k]);
    EXPECT_EQ(element_symbol(0), "");
    EXPECT_EQ(element_symbol(97), "");
}

TEST(Elements, EverySymbolIsOneOfItsOwnAndLeadsBack) {
    std::set<std::string> seen;
    for (int z = 1; z <= last_element; ++z) {
        EXPECT_TRUE(seen.insert(std::string(element_symbol(z))).second) << z;
        EXPECT_EQ(atomic_number_of(element_symbol(z)), z);
    }
    EXPECT_EQ(atomic_number_of("pb"), 0);
    EXPECT_EQ(atomic_number_of(""), 0);
    EXPECT_EQ(atomic_number_of("Bk"), 0);
}

}  // namespace
}  // namespace kolvar::test
