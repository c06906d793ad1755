#include "upb/beam_start.hpp"

#include "uranium_case.hpp"

namespace kolvar::test {
namespace {

// Three columns; only the third counts. A blank of 4 and 6 cps in slices 1 and 2: threshold (4 + 6) / (2 - 1) = 10.
class BeamStart : public UraniumCase {
protected:
    BeamStart() {
        rs.nIso = 3;
        rs.nSlices = 40;
        rs.BeamStart = 0;
        rs.BlkLow = 1;
        rs.BlkUpp = 2;
        for (int t = 1; t <= 45; ++t)
            for (int i = 1; i <= 3; ++i) rs.Sig(i, t) = 0;
        rs.Sig(3, 1) = 4;
        rs.Sig(3, 2) = 6;
    }
    void fire(int from, int to, double cps = 11) {
        for (int t = from; t <= to; ++t) rs.Sig(3, t) = cps;
    }
};

TEST_F(BeamStart, TenSlicesInARowAboveTheBlankAreTheStart) {
    fire(12, 40);
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 12);
}

TEST_F(BeamStart, ASpikeOfNineSlicesIsNoStart) {
    fire(5, 13);
    fire(20, 29);
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 20);
}

TEST_F(BeamStart, TheThresholdDividesByOneSliceLessThanTheBlankHas) {
    fire(12, 40, 10);  // the mean of the blank is 5, but 10 is not above the threshold
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 0);
}

TEST_F(BeamStart, TheFirstTwoColumnsTakeNoPart) {
    for (int t = 5; t <= 40; ++t) rs.Sig(1, t) = rs.Sig(2, t) = 1000;
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 0);
}

TEST_F(BeamStart, TheEndOfTheBlankItselfCanBeTheStart) {
    rs.Sig(3, 1) = rs.Sig(3, 2) = 0;  // a blank of zeros: whatever is counted starts the beam
    fire(3, 40, 1);
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 3);
    rs.BeamStart = 0;
    rs.BlkLow = 1;
    rs.Sig(3, 1) = -5;
    rs.Sig(3, 2) = 1;  // threshold -4
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 2);
}

TEST_F(BeamStart, AStartSetByHandStays) {
    fire(12, 40);
    rs.BeamStart = 30;
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 30);
}

// The last run begins five slices before the end and reaches four cells behind it.
TEST_F(BeamStart, CellsBehindTheDataAreReadAsTheyStand) {
    fire(35, 40);
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 0);
    fire(41, 44);  // left by a longer file
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 35);
}

TEST_F(BeamStart, TheLongestTableIsNoFault) {
    rs.nSlices = MaxSlices;
    fire(5995, 6000);
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 0);
}

TEST_F(BeamStart, ABlankOfOneSliceLeavesTheStartUnset) {
    rs.BlkUpp = 1;
    fire(12, 40);
    Search_BeamStart(rs);
    EXPECT_EQ(rs.BeamStart, 0);
}

}  // namespace
}  // namespace kolvar::test
