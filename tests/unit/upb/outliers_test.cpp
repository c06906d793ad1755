#include "upb/outliers.hpp"

#include "core/fault.hpp"
#include "upb/express.hpp"
#include "uranium_case.hpp"

namespace kolvar::test {
namespace {

// 206/238 10 10 10 14 about a mean of 11 with an s.d. of 2; 207/235 5 9 5 5 about 6, s.d. 2. Limit 1.2 s.d.: slice 8
// fails in the first, slice 6 in the second.
class Outliers : public UraniumCase {
protected:
    Outliers() {
        ratio(rs.Rat68, {10, 10, 10, 14});
        ratio(rs.Rat75, {5, 9, 5, 5});
        rs.Mean68 = 11;
        rs.SD68 = 2;
        rs.Mean75 = 6;
        rs.SD75 = 2;
        form.chkShowSD.value = 1;
        form.chk68.value = form.chk75.value = 1;
        rs.setOL_68 = rs.setOL_75 = 1;
        form.txtSD.text = "1.2";
    }
    std::vector<Outlier> test() { return Out_Liers(rs, form); }
    [[nodiscard]] std::vector<int> flags() const {
        std::vector<int> out;
        for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) out.push_back(rs.RejFlag(t));
        return out;
    }
};

TEST_F(Outliers, AreCountedAndForgottenWhileNothingIsRejected) {
    const std::vector<Outlier> found = test();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].ratio, 1);
    EXPECT_EQ(found[0].slice, 6);
    EXPECT_EQ(found[1].ratio, 0);
    EXPECT_EQ(found[1].slice, 8);
    EXPECT_EQ(rs.OutlierN, 2);
    EXPECT_EQ(form.lblOM.text, "2 / 4");
    EXPECT_EQ(flags(), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(rs.SelNGood, 4);
}

TEST_F(Outliers, KeepTheirFlagsWhileTheyAreRejected) {
    rs.RejectOn = true;
    test();
    EXPECT_EQ(flags(), (std::vector<int>{0, 1, 0, 1}));
    EXPECT_EQ(rs.SelNGood, 2);
}

TEST_F(Outliers, AreNotTestedAgainWhileSlicesAreRejected) {
    rs.RejectOn = true;
    test();
    form.txtSD.text = "100";
    EXPECT_TRUE(test().empty());
    EXPECT_EQ(rs.SelNGood, 2);
    EXPECT_EQ(rs.OutlierN, 2);
}

TEST_F(Outliers, WithNoneFoundEachRedrawTestsAgain) {
    rs.RejectOn = true;
    form.txtSD.text = "100";
    test();
    EXPECT_EQ(rs.OutlierN, 0);
    EXPECT_EQ(rs.SelNGood, 4);
    form.txtSD.text = "1.2";
    test();
    EXPECT_EQ(rs.SelNGood, 2);
}

TEST_F(Outliers, ASliceThatFailsInTwoRatiosCountsOnce) {
    ratio(rs.Rat75, {5, 5, 5, 9});
    rs.RejectOn = true;
    test();
    EXPECT_EQ(rs.RejFlag(8), 2);
    EXPECT_EQ(rs.OutlierN, 1);
    EXPECT_EQ(rs.SelNGood, 3);
}

TEST_F(Outliers, NeedTheBoxOfTheirRatioAndItsSetting) {
    form.chk75.value = 0;
    EXPECT_EQ(test().size(), 1U);
    form.chk75.value = 1;
    rs.setOL_75 = 0;
    EXPECT_EQ(test().size(), 1U);
}

TEST_F(Outliers, AreSoughtAboutTheRegressionLineForResultsAtTZero) {
    rs.setAver = 1;
    rs.Icpt68 = 5;
    rs.Slope68 = 1;  // 10 11 12 13: off by 0 1 2 1
    rs.ResSD68 = 1;
    rs.setOL_75 = 0;
    const std::vector<Outlier> found = test();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].slice, 7);
    rs.setAver = 2;
    EXPECT_TRUE(test().empty());
    EXPECT_EQ(form.lblOM.text, "0 / 4");
}

TEST_F(Outliers, LieBeyondTheLimitNotAtIt) {
    form.txtSD.text = "1.5";  // 14 is 3 off, 1.5 s.d.; so is 9 in the other ratio
    EXPECT_TRUE(test().empty());
    rs.setAver = 1;
    form.txtSD.text = "2";
    rs.setOL_75 = 0;
    rs.Icpt68 = 5;
    rs.Slope68 = 1;  // 10 11 12 13: off by 0 1 2 1
    rs.ResSD68 = 1;
    EXPECT_TRUE(test().empty());
}

TEST_F(Outliers, ALimitThatIsNoNumberMakesEveryDeviationOne) {
    form.txtSD.text = "x";
    rs.setOL_75 = 0;
    EXPECT_EQ(test().size(), 4U);
}

TEST_F(Outliers, TheLimitIsReadOnlyWhereARatioIsTested) {
    form.txtSD.text = "1e999";
    EXPECT_THROW(test(), Fault);
    form.chk68.value = form.chk75.value = 0;
    EXPECT_TRUE(test().empty());
    EXPECT_EQ(form.lblOM.text, "0 / 4");
}

TEST_F(Outliers, AreNotRejectedByTheBoxNorByTheSettingThatOfferIt) {
    form.chkRejOL.value = 1;
    rs.setRej_Man = 1;
    EXPECT_EQ(test().size(), 2U);
    EXPECT_FALSE(rs.RejectOn);
    EXPECT_EQ(flags(), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(rs.SelNGood, 4);
}

TEST_F(Outliers, AreLeftAloneWhileTheyAreNotShown) {
    form.chkShowSD.value = 0;
    rs.RejFlag(6) = 3;
    rs.SelNGood = 9;
    form.lblOM.text = "old";
    EXPECT_TRUE(test().empty());
    EXPECT_EQ(rs.RejFlag(6), 0);
    EXPECT_EQ(rs.SelNGood, 4);
    EXPECT_EQ(form.lblOM.text, "old");
}

TEST_F(Outliers, RestoringBringsAllSlicesOfTheSelectionBack) {
    rs.RejectOn = true;
    test();
    rs.RejFlag(9) = 1;
    emphasise_rejection(form, true);
    restore_rejected(rs, form);
    EXPECT_FALSE(rs.RejectOn);
    EXPECT_EQ(rs.SelNGood, 4);
    EXPECT_EQ(flags(), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(rs.RejFlag(9), 1);
    EXPECT_EQ(form.cmdReject.text, "Reject outliers");
    EXPECT_EQ(form.lblReject.text, "No. of outliers:");
    EXPECT_FALSE(form.lblOM.fore);
}

// 238/232 is 2 2 4 4. Slice 5 was rejected when the selection began there; a narrower selection leaves its flag, and
// when the slice is taken in again the first figures miss it in their sums, until the test behind them wipes the flag.
TEST_F(Outliers, AFlagThatANarrowerSelectionLeftOutLowersTheFirstFiguresOfTheWiderOne) {
    form.chkShowSD.value = 0;
    rs.RejectOn = true;
    rs.RejFlag(5) = 1;
    select(6, 8);
    restore_rejected(rs, form);
    select(5, 8);
    calc_express_UP(context);
    EXPECT_DOUBLE_EQ(rs.Mean382, 2.5);
    test();
    calc_express_UP(context);
    EXPECT_DOUBLE_EQ(rs.Mean382, 3);
}

}  // namespace
}  // namespace kolvar::test
