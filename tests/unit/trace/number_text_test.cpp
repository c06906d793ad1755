#include "trace/number_text.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

#include "core/fault.hpp"
#include "core/numbers.hpp"

namespace kolvar::test {
namespace {

std::string fixed(double number, int decimals) {
    std::string out;
    append_fixed(out, number, decimals);
    return out;
}

std::string tenths(double number) {
    std::string out;
    append_tenths(out, number);
    return out;
}

TEST(NumberText, FixedDecimalsRoundTheDecimalFormHalfAwayFromZero) {
    EXPECT_EQ(fixed(2.675, 2), "2.68");  // binary 2.67499...
    EXPECT_EQ(fixed(-0.125, 2), "-0.13");
    EXPECT_EQ(fixed(1.005, 2), "1.01");
    EXPECT_EQ(fixed(0.00005, 4), "0.0001");
    EXPECT_EQ(fixed(123456.789, 1), "123456.8");
    EXPECT_EQ(fixed(0.5, 0), "1");
    EXPECT_EQ(fixed(9.9999, 2), "10.00");
    EXPECT_EQ(fixed(1e15, 2), "1000000000000000.00");
}

TEST(NumberText, ZeroHasNoSign) {
    EXPECT_EQ(fixed(-0.004, 2), "0.00");
    EXPECT_EQ(fixed(-0.0, 1), "0.0");
    EXPECT_EQ(tenths(-0.0), "0");
}

TEST(NumberText, MarkersStand) {
    std::string out = "a\t";
    append_fixed(out, Cell(Mark::dashes), 2);
    append_fixed(out, Cell(Mark::xx), 2);
    append_fixed(out, Cell(1.5), 2);
    EXPECT_EQ(out, "a\t---XX1.50");
    append_fixed(out, Cell(Mark::empty), 2);
    append_fixed(out, Cell(), 2);
    EXPECT_EQ(out, "a\t---XX1.50");
}

TEST(NumberText, TenthsAreWrittenWithoutATrailingZero) {
    EXPECT_EQ(tenths(-29), "-2.9");
    EXPECT_EQ(tenths(-30), "-3");
    EXPECT_EQ(tenths(5), "0.5");
    EXPECT_EQ(tenths(0), "0");
    EXPECT_EQ(tenths(123), "12.3");
    EXPECT_EQ(tenths(2e15), "200000000000000");
}

TEST(NumberText, NoInfinityEntersATable) {
    EXPECT_THROW(fixed(INFINITY, 2), Fault);
    EXPECT_THROW(tenths(NAN), Fault);
}

TEST(NumberText, TheFastWayWritesWhatFormatWrites) {
    std::mt19937_64 random(7);
    constexpr std::array<const char*, 5> patterns = {"0", "0.0", "0.00", "0.000", "0.0000"};
    for (int k = 0; k < 200000; ++k) {
        const auto size = static_cast<int>(random() % 14) - 6;
        double number = (static_cast<double>(random() % 2000001) - 1000000) * std::pow(10.0, size - 4);
        if (k % 3 == 0) number += 0.5 * std::pow(10.0, -static_cast<int>(random() % 5));
        const int decimals = static_cast<int>(random() % 5);
        ASSERT_EQ(fixed(number, decimals), Format(number, patterns[static_cast<std::size_t>(decimals)])) << number;
    }
}

}  // namespace
}  // namespace kolvar::test
