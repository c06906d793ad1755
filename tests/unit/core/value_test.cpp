#include "core/value.hpp"

#include <gtest/gtest.h>

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

TEST(Value, UnsetEmptyTextAndZeroAreToldApart) {
    const Value unset;
    const Value empty("");
    const Value zero(0);
    EXPECT_TRUE(unset.is_unset());
    EXPECT_TRUE(empty.is_text());
    EXPECT_TRUE(zero.is_number());
    EXPECT_FALSE(unset == empty);
    EXPECT_FALSE(empty == zero);
    EXPECT_FALSE(unset == zero);
    EXPECT_FALSE(Value(true) == Value(-1));
    EXPECT_FALSE(Value("1") == Value(1));
    EXPECT_TRUE(Value("a") == Value(std::string("a")));
}

TEST(Value, ReadsInArithmetic) {
    EXPECT_EQ(Value().number(), 0.0);
    EXPECT_EQ(Value("").number(), 0.0);
    EXPECT_EQ(Value(2.5).number(), 2.5);
    EXPECT_EQ(Value(" 12.5 ").number(), 12.5);
    EXPECT_EQ(Value(true).number(), -1.0);
    EXPECT_EQ(Value(false).number(), 0.0);
    EXPECT_EQ(kind_of([] { (void)Value("12 ppm").number(); }), FaultKind::type);
    EXPECT_EQ(kind_of([] { (void)Value(" ").number(); }), FaultKind::type);
    EXPECT_EQ(kind_of([] { (void)Value("1e400").number(); }), FaultKind::overflow);
}

TEST(Value, ATypeFaultNamesTheText) {
    try {
        (void)Value("---").number();
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.offending, "---");
    }
}

TEST(Value, ReadsByItsLeadingNumber) {
    EXPECT_EQ(Value("12 ppm").val(), 12.0);
    EXPECT_EQ(Value("ppm").val(), 0.0);
    EXPECT_EQ(Value().val(), 0.0);
    EXPECT_EQ(Value(7).val(), 7.0);
    EXPECT_EQ(Value(true).val(), -1.0);
}

TEST(Value, AsText) {
    EXPECT_EQ(Value().text(), "");
    EXPECT_EQ(Value(0.02 * 1000).text(), "20");
    EXPECT_EQ(Value(" 5").text(), " 5");
    EXPECT_EQ(Value(true).text(), "True");
    EXPECT_EQ(Value(false).text(), "False");
}

TEST(Value, AsAWholeNumberRoundsHalfToEven) {
    EXPECT_EQ(Value(2.5).whole(), 2);
    EXPECT_EQ(Value(3.5).whole(), 4);
    EXPECT_EQ(Value("1").whole(), 1);
    EXPECT_EQ(Value().whole(), 0);
    EXPECT_EQ(Value(-2147483648.0).whole(), -2147483647 - 1);
    EXPECT_EQ(kind_of([] { (void)Value(2147483648.0).whole(); }), FaultKind::overflow);
    EXPECT_EQ(kind_of([] { (void)Value(-3e9).whole(); }), FaultKind::overflow);
}

TEST(Value, FormatPassesTextsAndPicturesNumbers) {
    EXPECT_EQ(Format(Value("---"), "0.00"), "---");
    EXPECT_EQ(Format(Value("2.5"), "0.00"), "2.5");
    EXPECT_EQ(Format(Value(), "0.00"), "");
    EXPECT_EQ(Format(Value(2.5), "0.00"), "2.50");
    EXPECT_EQ(Format(Value(true), "0.0"), "-1.0");
}

TEST(Cell, NumbersAndMarkersInArithmetic) {
    EXPECT_EQ(Cell(2.5).number(), 2.5);
    EXPECT_EQ(Cell().number(), 0.0);
    EXPECT_EQ(Cell(Mark::empty).number(), 0.0);
    EXPECT_EQ(kind_of([] { (void)Cell(Mark::dashes).number(); }), FaultKind::type);
    EXPECT_EQ(kind_of([] { (void)Cell(Mark::xx).number(); }), FaultKind::type);
    EXPECT_EQ(Cell(Mark::dashes).val(), 0.0);
    EXPECT_EQ(Cell(Mark::xx).val(), 0.0);
    EXPECT_EQ(Cell(3.0).val(), 3.0);
}

TEST(Cell, AMarkerIsNeverAboveANumber) {
    EXPECT_TRUE(Cell(0.1).above(0));
    EXPECT_FALSE(Cell(0.0).above(0));
    for (const Mark marker : {Mark::unset, Mark::empty, Mark::dashes, Mark::xx}) {
        EXPECT_FALSE(Cell(marker).above(0));
        EXPECT_FALSE(Cell(marker).above(-1e300));
    }
}

TEST(Cell, TextsOfMarkers) {
    EXPECT_EQ(Cell(Mark::dashes).text(), "---");
    EXPECT_EQ(Cell(Mark::xx).text(), "XX");
    EXPECT_EQ(Cell(Mark::empty).text(), "");
    EXPECT_EQ(Cell().text(), "");
    EXPECT_EQ(Cell(0.25).text(), "0.25");
    EXPECT_TRUE(Cell().is_empty());
    EXPECT_TRUE(Cell(Mark::empty).is_empty());
    EXPECT_FALSE(Cell(0.0).is_empty());
    EXPECT_TRUE(Cell(Mark::dashes).is_dashes());
}

TEST(Cell, AsAFreeValueKeepsItsKind) {
    EXPECT_TRUE(Cell().value().is_unset());
    EXPECT_TRUE(Cell(Mark::empty).value() == Value(""));
    EXPECT_TRUE(Cell(Mark::xx).value() == Value("XX"));
    EXPECT_TRUE(Cell(4.0).value() == Value(4));
}

TEST(Cell, FormatPassesMarkers) {
    EXPECT_EQ(Format(Cell(Mark::dashes), "0.00"), "---");
    EXPECT_EQ(Format(Cell(Mark::xx), "0.00"), "XX");
    EXPECT_EQ(Format(Cell(Mark::empty), "0.00"), "");
    EXPECT_EQ(Format(Cell(), "0.00"), "");
    EXPECT_EQ(Format(Cell(2.675), "0.00"), "2.68");
}

TEST(Limit, UnmarkedIsNeitherZeroNorItsText) {
    Limit limit;
    EXPECT_FALSE(limit.is_set());
    EXPECT_EQ(limit.text(), "");
    EXPECT_EQ(limit.val(), 0);
    EXPECT_FALSE(limit == Limit(0));
    limit = 0;
    EXPECT_TRUE(limit.is_set());
    EXPECT_EQ(limit.text(), "0");
    limit = -19;
    EXPECT_EQ(limit.text(), "-19");
    limit.clear();
    EXPECT_TRUE(limit == Limit());
}

}  // namespace
}  // namespace kolvar
