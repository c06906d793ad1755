#include "core/tables.hpp"

#include <gtest/gtest.h>

#include <string>

#include "core/run_state.hpp"

namespace kolvar {
namespace {

template <class Work>
bool index_fault(Work&& work) {
    try {
        work();
    } catch (const Fault& fault) {
        return fault.kind == FaultKind::index;
    }
    return false;
}

TEST(Table1, LimitsAreInclusiveAndIndexZeroIsReadable) {
    Table1<double> table(MaxIso);
    EXPECT_EQ(table(0), 0.0);
    table(1) = 1.5;
    table(100) = 2.5;
    EXPECT_EQ(table(1), 1.5);
    EXPECT_EQ(table(100), 2.5);
    EXPECT_EQ(table.last(), 100);
    EXPECT_TRUE(index_fault([&] { table(101) = 1; }));
    EXPECT_TRUE(index_fault([&] { table(-1) = 1; }));
    const Table1<double>& same = table;
    EXPECT_TRUE(index_fault([&] { (void)same(101); }));
}

TEST(Table1, FillReachesEveryCell) {
    Table1<int> table(3);
    table.fill(7);
    for (int i = 0; i <= 3; ++i) EXPECT_EQ(table(i), 7);
}

TEST(Table1, HoldsFlags) {
    Table1<bool> flags(MaxCurveFlags);
    flags(50) = true;
    EXPECT_TRUE(flags(50));
    EXPECT_FALSE(flags(49));
    EXPECT_TRUE(index_fault([&] { flags(51) = true; }));
}

TEST(Table2, LimitsAreCheckedForColumnAndRow) {
    Table2<double> table(MaxIso, MaxSlices);
    table(100, 6000) = 3;
    table(0, 0) = 4;
    EXPECT_EQ(table(100, 6000), 3.0);
    EXPECT_EQ(table(0, 0), 4.0);
    EXPECT_TRUE(index_fault([&] { table(101, 1) = 1; }));
    EXPECT_TRUE(index_fault([&] { table(1, 6001) = 1; }));
    EXPECT_TRUE(index_fault([&] { table(-1, 1) = 1; }));
    EXPECT_TRUE(index_fault([&] { table(1, -1) = 1; }));
}

TEST(Table2, ARowBeyondItsColumnIsNotTheNextColumn) {
    Table2<int> table(2, 3);
    EXPECT_TRUE(index_fault([&] { table(0, 4) = 1; }));
    EXPECT_EQ(table(1, 0), 0);
}

TEST(Table2, AColumnIsASpanOfItsRows) {
    Table2<double> table(2, 3);
    table(1, 0) = 10;
    table(1, 3) = 13;
    const auto column = table.column(1);
    ASSERT_EQ(column.size(), 4U);
    EXPECT_EQ(column[0], 10.0);
    EXPECT_EQ(column[3], 13.0);
    column[2] = 12;
    EXPECT_EQ(table(1, 2), 12.0);
    EXPECT_TRUE(index_fault([&] { (void)table.column(3); }));
}

TEST(RunState, TwoOfThemShareNothing) {
    RunState one;
    RunState other;
    one.Sig(1, 1) = 5;
    one.nIso = 3;
    EXPECT_EQ(other.Sig(1, 1), 0.0);
    EXPECT_EQ(other.nIso, 0);
}

TEST(Table1, ARangeHoldsBothItsEndsAndIsEmptyWhereItEndsBeforeItBegins) {
    Table1<int> table(5);
    for (int i = 0; i <= 5; ++i) table(i) = 10 * i;
    const Table1<int>& same = table;
    const auto inner = same.range(2, 4);
    ASSERT_EQ(inner.size(), 3U);
    EXPECT_EQ(inner.front(), 20);
    EXPECT_EQ(inner.back(), 40);
    EXPECT_EQ(same.range(0, 5).size(), 6U);
    EXPECT_TRUE(same.range(3, 2).empty());
    EXPECT_TRUE(index_fault([&] { (void)same.range(3, 6); }));
    EXPECT_TRUE(index_fault([&] { (void)same.range(-1, 2); }));
    table.range(4, 5)[1] = 7;
    EXPECT_EQ(same(5), 7);
}

}  // namespace
}  // namespace kolvar
