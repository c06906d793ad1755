#include "core/numbers.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <string>

#include "core/fault.hpp"

namespace kolvar {
namespace {

template <class Work>
FaultKind kind_of(Work&& work) {
    try {
        work();
    } catch (const Fault& fault) {
        return fault.kind;
    }
    ADD_FAILURE() << "no fault";
    return FaultKind::file_missing;
}

TEST(Val, TakesTheLongestNumberAtTheStart) {
    EXPECT_EQ(Val("12.5abc"), 12.5);
    EXPECT_EQ(Val("1 2"), 1.0);
    EXPECT_EQ(Val("1,5"), 1.0);
    EXPECT_EQ(Val("5."), 5.0);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Val("-3"), -3.0);
    EXPECT_EQ(Val("+7"), 7.0);
    EXPECT_EQ(Val("2E3"), 2000.0);
    EXPECT_EQ(Val("2e+3x"), 2000.0);
    EXPECT_EQ(Val("25e-1"), 2.5);
    EXPECT_EQ(Val("1.e2"), 100.0);
}

TEST(Val, AnExponentWithoutDigitsIsLeftAlone) {
    EXPECT_EQ(Val("1e"), 1.0);
    EXPECT_EQ(Val("1e+"), 1.0);
    EXPECT_EQ(Val("4E-x"), 4.0);
    EXPECT_EQ(leading_number("1e+").length, 1U);
}

TEST(Val, BlanksTabsAndLineEndsBeforeTheNumberArePassedOver) {
    EXPECT_EQ(Val(" \t\r\n 42"), 42.0);
    EXPECT_EQ(Val("  -1.5"), -1.5);
    EXPECT_EQ(Val("- 1.5"), 0.0);
}

TEST(Val, ATextWithoutALeadingNumberIsZero) {
    for (const char* text : {"",    " ",   "abc",  "-",        "+",   ".",      "-.", "e5", ".e5", "--5", "+-5",
                             "-+5", "inf", "-inf", "Infinity", "nan", "NaN(1)", "x1", ",5", "\v1", "---", "XX"}) {
        EXPECT_EQ(Val(text), 0.0) << text;
        EXPECT_EQ(leading_number(text).length, 0U) << text;
    }
    EXPECT_EQ(Val("0x10"), 0.0);
    EXPECT_EQ(leading_number("0x10").length, 1U);
    EXPECT_EQ(Val("1d5"), 1.0);
    EXPECT_EQ(Val("&H10"), 0.0);
}

TEST(Val, ANumberTooLargeIsAFaultAndOneTooSmallIsZero) {
    EXPECT_EQ(kind_of([] { Val("1e309"); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([] { Val("-1e309 counts"); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([] { Val("1" + std::string(400, '0')); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([] { Val("0.001e99999999999999999999"); }), FaultKind::overflow);
    EXPECT_EQ(Val("1e-400"), 0.0);
    EXPECT_EQ(Val("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(Val("0." + std::string(500, '0') + "1"), 0.0);
    EXPECT_EQ(Val("0e999"), 0.0);
    EXPECT_EQ(Val("4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(Val("1.7976931348623157e308"), std::numeric_limits<double>::max());
    // Many zeros and a large exponent meet in the middle.
    EXPECT_EQ(Val("0." + std::string(500, '0') + "1e501"), 1.0);
}

TEST(Val, MinusZeroIsZeroWithoutASign) {
    EXPECT_FALSE(std::signbit(Val("-0")));
    EXPECT_FALSE(std::signbit(Val("-0.000")));
}

TEST(IsNumeric, TheWholeTextLessBlanksAtBothEndsIsOneNumber) {
    for (const char* text : {"1", " 1 ", "\t-2.5\r\n", "1e5", ".5", "5.", "+3"}) EXPECT_TRUE(is_numeric(text)) << text;
    for (const char* text : {"", " ", "1e", "1 2", "1,5", "0x10", "inf", "nan", "Si29", "29Si", "---", "1-"}) {
        EXPECT_FALSE(is_numeric(text)) << text;
    }
}

TEST(Decimal, IsTheShortestThatReadsBackWithoutExponent) {
    EXPECT_EQ(decimal(0.02 * 1000), "20");
    EXPECT_EQ(decimal(5.12E-6), "0.00000512");
    EXPECT_EQ(decimal(0.1), "0.1");
    EXPECT_EQ(decimal(-2.5), "-2.5");
    EXPECT_EQ(decimal(153319), "153319");
    EXPECT_EQ(decimal(1e23), "1" + std::string(23, '0'));
    EXPECT_EQ(decimal(123456789012345680.0), "123456789012345680");
    EXPECT_EQ(decimal(1e-10), "0.0000000001");
    EXPECT_EQ(decimal(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(decimal(100), "100");
    EXPECT_EQ(decimal(1e15), "1" + std::string(15, '0'));
}

TEST(Decimal, ZeroNeverHasASign) {
    EXPECT_EQ(decimal(0.0), "0");
    EXPECT_EQ(decimal(-0.0), "0");
}

TEST(Decimal, EveryDoubleReadsBackToItself) {
    std::mt19937_64 random(20090107);
    for (int i = 0; i < 20000; ++i) {
        double number = 0;
        const std::uint64_t bits = random();
        static_assert(sizeof number == sizeof bits);
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number)) continue;
        const std::string text = decimal(number);
        EXPECT_EQ(Val(text), number) << text;
        EXPECT_EQ(text.find_first_of("eE"), std::string::npos) << text;
    }
}

TEST(Decimal, NoNumberAndInfinityNeverBecomeAText) {
    EXPECT_EQ(kind_of([] { decimal(std::numeric_limits<double>::infinity()); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([] { decimal(std::numeric_limits<double>::quiet_NaN()); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([] { Format(std::numeric_limits<double>::infinity(), "0.0"); }), FaultKind::overflow);
}

TEST(Format, RoundsTheDecimalFormHalfAwayFromZero) {
    // 2.675 lies below its decimal form in binary, and the tie still goes up.
    EXPECT_EQ(Format(2.675, "0.00"), "2.68");
    EXPECT_EQ(Format(-0.125, "0.00"), "-0.13");
    EXPECT_EQ(Format(0.125, "0.00"), "0.13");
    EXPECT_EQ(Format(0.5, "0"), "1");
    EXPECT_EQ(Format(1.5, "0"), "2");
    EXPECT_EQ(Format(2.5, "0"), "3");
    EXPECT_EQ(Format(-2.5, "0"), "-3");
    EXPECT_EQ(Format(1.005, "0.00"), "1.01");
    EXPECT_EQ(Format(0.00005, "0.0000"), "0.0001");
    EXPECT_EQ(Format(0.00004999, "0.0000"), "0.0000");
}

TEST(Format, PadsAndCarries) {
    EXPECT_EQ(Format(0, "0.000"), "0.000");
    EXPECT_EQ(Format(20, "0.00"), "20.00");
    EXPECT_EQ(Format(9.995, "0.00"), "10.00");
    EXPECT_EQ(Format(999.96, "0.0"), "1000.0");
    EXPECT_EQ(Format(0.96, "0.0"), "1.0");
    EXPECT_EQ(Format(0.05, "0.0"), "0.1");
    EXPECT_EQ(Format(0.95, "0"), "1");
    EXPECT_EQ(Format(1e-7, "0.00000"), "0.00000");
    EXPECT_EQ(Format(1e20, "0.0"), "1" + std::string(20, '0') + ".0");
    EXPECT_EQ(Format(0.5, "0.00000"), "0.50000");
}

TEST(Format, AResultOfZeroHasNoMinusSign) {
    EXPECT_EQ(Format(-0.001, "0.00"), "0.00");
    EXPECT_EQ(Format(-0.4, "0"), "0");
    EXPECT_EQ(Format(-0.0, "0.0"), "0.0");
    EXPECT_EQ(Format(-0.005, "0.00"), "-0.01");
}

TEST(Format, GroupsThousandsAndShowsNothingForZero) {
    EXPECT_EQ(Format(0, "###,###,###"), "");
    EXPECT_EQ(Format(0.4, "###,###,###"), "");
    EXPECT_EQ(Format(0.5, "###,###,###"), "1");
    EXPECT_EQ(Format(12, "###,###,###"), "12");
    EXPECT_EQ(Format(123, "###,###,###"), "123");
    EXPECT_EQ(Format(1234, "###,###,###"), "1,234");
    EXPECT_EQ(Format(999999.5, "###,###,###"), "1,000,000");
    EXPECT_EQ(Format(-1234567.4, "###,###,###"), "-1,234,567");
    EXPECT_EQ(Format(12345678901.0, "###,###,###"), "12,345,678,901");
}

TEST(RoundHalfEven, WholeNumbers) {
    EXPECT_EQ(round_half_even(0.5), 0.0);
    EXPECT_EQ(round_half_even(1.5), 2.0);
    EXPECT_EQ(round_half_even(2.5), 2.0);
    EXPECT_EQ(round_half_even(-1.5), -2.0);
    EXPECT_EQ(round_half_even(-2.5), -2.0);
    EXPECT_EQ(round_half_even(2.5000001), 3.0);
    EXPECT_FALSE(std::signbit(round_half_even(-0.3)));
}

TEST(RoundHalfEven, DecimalsByTheDecimalForm) {
    EXPECT_EQ(round_half_even(2.675, 2), 2.68);  // 7 is odd
    EXPECT_EQ(round_half_even(2.665, 2), 2.66);  // 6 is even
    EXPECT_EQ(round_half_even(0.000005, 5), 0.0);
    EXPECT_EQ(round_half_even(0.000015, 5), 0.00002);
    EXPECT_EQ(round_half_even(0.0000151, 5), 0.00002);
    EXPECT_EQ(round_half_even(-0.000015, 5), -0.00002);
    EXPECT_EQ(round_half_even(0.99996, 4), 1.0);
    EXPECT_EQ(decimal(round_half_even(0.90, 5)), "0.9");
    EXPECT_EQ(round_half_even(12345.6789, 5), 12345.6789);
    EXPECT_EQ(kind_of([] { round_half_even(std::numeric_limits<double>::infinity()); }), FaultKind::overflow);
}

TEST(PlainRounding, IsBinaryAndHalfUpForNegativesToo) {
    EXPECT_EQ(round_half_up(2.5), 3.0);
    EXPECT_EQ(round_half_up(-2.5), -2.0);
    EXPECT_EQ(round_half_up(-2.6), -3.0);
    EXPECT_EQ(decimal(round_to_thousandths(12.3456)), "12.346");
    EXPECT_EQ(decimal(round_to_thousandths(-0.0005)), "0");
    EXPECT_EQ(round_to_thousandths(0.0004), 0.0);
    // 0.5005 times 1000 is 500.49999999999994 in binary, just short of the half.
    EXPECT_EQ(decimal(round_to_thousandths(0.5005)), "0.5");
}

TEST(CheckedArithmetic, FaultsWhereTheResultWouldBeNoNumber) {
    EXPECT_EQ(quotient(1, 4), 0.25);
    EXPECT_EQ(root(2.25), 1.5);
    EXPECT_EQ(root(0), 0.0);
    EXPECT_EQ(logarithm(1), 0.0);
    EXPECT_EQ(finite(-3), -3.0);
    EXPECT_EQ(kind_of([] { quotient(1, 0); }), FaultKind::division_by_zero);
    EXPECT_EQ(kind_of([] { quotient(0, 0); }), FaultKind::division_by_zero);
    EXPECT_EQ(kind_of([] { quotient(1, -0.0); }), FaultKind::division_by_zero);
    EXPECT_EQ(kind_of([] { quotient(1e300, 1e-300); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([] { root(-1e-300); }), FaultKind::domain);
    EXPECT_EQ(kind_of([] { root(std::numeric_limits<double>::quiet_NaN()); }), FaultKind::domain);
    EXPECT_EQ(kind_of([] { logarithm(0); }), FaultKind::domain);
    EXPECT_EQ(kind_of([] { logarithm(-1); }), FaultKind::domain);
    EXPECT_EQ(kind_of([] { finite(1e308 * 10); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([] { finite(std::numeric_limits<double>::quiet_NaN()); }), FaultKind::overflow);
}

class CommaPoint : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Locale, OfTheProcessPlaysNoPart) {
    const std::locale former = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
    const double read = Val("1234.5");
    const double cut = Val("1,5");
    const std::string plain = decimal(1234.5);
    const std::string pictured = Format(1234.5, "0.00");
    std::locale::global(former);
    EXPECT_EQ(read, 1234.5);
    EXPECT_EQ(cut, 1.0);
    EXPECT_EQ(plain, "1234.5");
    EXPECT_EQ(pictured, "1234.50");
}

TEST(Trimmed, DropsBlanksTabsAndLineEndsAtBothEnds) {
    EXPECT_EQ(trimmed(" \t a b\r\n"), "a b");
    EXPECT_EQ(trimmed(" \t"), "");
    EXPECT_EQ(trimmed(""), "");
}

}  // namespace
}  // namespace kolvar
