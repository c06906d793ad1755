#include <algorithm>
#include <set>

#include "desktop_fixture.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

class PeriodLayout : public DesktopTest {
protected:
    PeriodLayout() : form(forms.frm_Period) {
        for (int k = 1; k <= 96; ++k) form.lblEle(k).text = "Mg";
        form.Label1.text = form.Label2.text = form.Label3.text = "Ca43";
        form.lblNumber(26).text = "3";
    }
    QPoint place(const Control& control) { return widget<QWidget>(control).geometry().topLeft(); }
    QPoint cell(int element) { return place(form.lblEle(element)); }

    FrmPeriod& form;
};

TEST_F(PeriodLayout, GroupsStandBelowEachOtherAndPeriodsSideBySide) {
    show(form);
    const std::vector<std::vector<int>> groups = {
        {1, 3, 11, 19, 37, 55, 87}, {4, 12, 20, 38, 56, 88}, {21, 39}, {22, 40, 72}, {29, 47, 79}, {5, 13, 31, 49, 81},
        {9, 17, 35, 53, 85},        {2, 10, 18, 36, 54, 86}};
    for (const auto& group : groups)
        for (std::size_t k = 1; k < group.size(); ++k) {
            EXPECT_EQ(cell(group[k]).x(), cell(group[0]).x()) << group[k];
            EXPECT_GT(cell(group[k]).y(), cell(group[k - 1]).y()) << group[k];
        }
    const std::vector<std::vector<int>> rows = {{1, 2},   {3, 4, 5, 10}, {11, 12, 13, 18},
                                                {19, 36}, {37, 54},      {55, 56, 72, 86},
                                                {87, 88}, {57, 58, 71},  {89, 90, 96}};
    for (const auto& row : rows)
        for (std::size_t k = 1; k < row.size(); ++k) {
            EXPECT_EQ(cell(row[k]).y(), cell(row[0]).y()) << row[k];
            EXPECT_GT(cell(row[k]).x(), cell(row[k - 1]).x()) << row[k];
        }
    EXPECT_GT(cell(57).y(), cell(87).y());
    std::set<int> columns;
    for (int k = 1; k <= 96; ++k) columns.insert(cell(k).x());
    EXPECT_EQ(columns.size(), 18U);
}

TEST_F(PeriodLayout, NoTwoElementsLieOnEachOtherAndAllAreNearlySquare) {
    show(form);
    for (int k = 1; k <= 96; ++k) {
        const QRect one = widget<QWidget>(form.lblEle(k)).geometry();
        EXPECT_LT(std::max(one.width(), one.height()), 1.35 * std::min(one.width(), one.height())) << k;
        for (int other = 1; other < k; ++other)
            EXPECT_FALSE(one.intersects(widget<QWidget>(form.lblEle(other)).geometry())) << k << " " << other;
    }
}

TEST_F(PeriodLayout, ClickOnTheCornerNumberIsAClickOnTheElement) {
    show(form);
    catch_events(form, "lblEle", EventKind::click);
    catch_events(form, "lblNumber", EventKind::click);
    auto& number = widget<QWidget>(form.lblNumber(26));
    ASSERT_TRUE(number.isVisible());
    auto& iron = widget<QWidget>(form.lblEle(26));
    ASSERT_TRUE(iron.geometry().contains(number.geometry().center()));
    QWidget* const hit = window(form).childAt(number.mapTo(&window(form), number.rect().center()));
    ASSERT_EQ(hit, &iron);
    QTest::mouseClick(hit, Qt::LeftButton);
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].control, "lblEle");
    EXPECT_EQ(caught[0].index, 26);
}

TEST_F(PeriodLayout, TheFrameOfAStandardIsAWideMarginThatCountsAsTheStandard) {
    show(form);
    catch_events(form, "Label2", EventKind::click);
    auto& frame = widget<QWidget>(form.frame2);
    const QRect inside = widget<QWidget>(form.Label2).geometry();
    EXPECT_GE(inside.left(), 6);
    EXPECT_GE(frame.height() - 1 - inside.bottom(), 6);
    QTest::mouseClick(&frame, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QTest::mouseClick(&widget<QWidget>(form.Label2), Qt::LeftButton);
    EXPECT_EQ(caught.size(), 2U);
}

TEST_F(PeriodLayout, EnterAcceptsAndEscCloses) {
    show(form);
    catch_events(form, "cmdOK", EventKind::click);
    catch_events(form, "cmsClose", EventKind::click);
    window(form).setFocus();
    QTest::keyClick(&window(form), Qt::Key_Return);
    QTest::keyClick(&window(form), Qt::Key_Escape);
    ASSERT_EQ(caught.size(), 2U);
    EXPECT_EQ(caught[0].control, "cmdOK");
    EXPECT_EQ(caught[1].control, "cmsClose");
}

}  // namespace
}  // namespace kolvar::test
