#include <QApplication>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>

#include "desktop_fixture.hpp"

namespace kolvar::test {
namespace {

TEST_F(DesktopTest, SettingsOpenAsLargeAsTheyNeedOrAsTheScreenHas) {
    show(forms.frm_SetIS);
    QTest::qWait(1);
    const auto* area = window(forms.frm_SetIS).findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    const QSize wanted = area->widget()->sizeHint();
    const QSize room = QGuiApplication::primaryScreen()->availableSize() - QSize(20, 90);
    EXPECT_GE(area->width(), std::min(wanted.width(), room.width()));
    EXPECT_GE(area->height(), std::min(wanted.height(), room.height()));
}

TEST_F(DesktopTest, BoxesOfTheBlankLieInTheFrameOfTheRatiosAndOutliveIt) {
    FrmSetIS& form = forms.frm_SetIS;
    form.Frame6.enabled = form.chkRatio1.enabled = form.comboRatio(0).enabled = false;
    show(form);
    QTest::qWait(1);
    const QWidget& frame = widget<QWidget>(form.Frame6);
    const auto within = [&](const Control& control) {
        const QWidget& part = widget<QWidget>(control);
        const QRect place(part.mapTo(part.window(), QPoint(0, 0)), part.size());
        return QRect(frame.mapTo(frame.window(), QPoint(0, 0)), frame.size()).contains(place);
    };
    for (int pair = 1; pair <= 6; ++pair) {
        for (const Control* control : std::initializer_list<const Control*>{
                 &form.chkRatio(pair), &form.comboRatio(2 * pair - 2), &form.chkBLK1(pair),
                 &form.comboRatio(2 * pair - 1), &form.chkBLK2(pair)})
            EXPECT_TRUE(within(*control)) << control->address();
        EXPECT_TRUE(widget<QWidget>(form.chkBLK1(pair)).isEnabled() && widget<QWidget>(form.chkBLK2(pair)).isEnabled());
    }
    EXPECT_FALSE(frame.isEnabled());
    EXPECT_FALSE(widget<QWidget>(form.chkRatio1).isEnabled());
    EXPECT_FALSE(widget<QWidget>(form.comboRatio(0)).isEnabled());
}

// Where a control begins in its window.
class SetIsLayout : public DesktopTest {
protected:
    QRect place(const Control& control) {
        const QWidget& part = widget<QWidget>(control);
        return {part.mapTo(part.window(), QPoint(0, 0)), part.size()};
    }
    FrmSetIS& form = forms.frm_SetIS;
};

TEST_F(SetIsLayout, UnitsStandOffFromTheirNumbers) {
    show(form);
    QTest::qWait(1);
    EXPECT_GE(place(form.lblDWEtime).left() - place(form.txtDWEtime).right(), 4);
    EXPECT_GE(place(form.lblSD).left() - place(form.txtSD).right(), 4);
}

TEST_F(SetIsLayout, NeedsNoScrollingSidewaysOnAScreenOf1280Pixels) {
    show(form);
    QTest::qWait(1);
    const auto* const area = window(form).findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    EXPECT_LE(area->widget()->minimumSizeHint().width(), 1260);
}

TEST_F(SetIsLayout, ListsOfTheRatiosShowTheLongestIsotopeWhole) {
    ListBox& list = form.comboRatio(3);
    list.set_items({"", "Yb172"});
    list.show_item("Yb172");
    show(form);
    QTest::qWait(1);
    const auto* const field = widget<QComboBox>(list).lineEdit();
    ASSERT_NE(field, nullptr);
    constexpr int margins_of_a_field = 4;
    EXPECT_GE(field->width(), field->fontMetrics().horizontalAdvance(QStringLiteral("Yb172")) + margins_of_a_field);
}

TEST_F(SetIsLayout, TheTabulatorGoesDownTheColumnsAndThroughEachPair) {
    form.optPeriod(0).value = 1;
    show(form);
    const auto follow = [&](std::initializer_list<const Control*> order) {
        widget<QWidget>(**order.begin()).setFocus();
        for (const Control* next : order) {
            EXPECT_EQ(window(form).focusWidget(), &widget<QWidget>(*next)) << next->address();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    };
    follow({&form.cmdBrowSTM, &form.optDWE(0), &form.txtDWEtime, &form.optDWE(1), &form.txtDwePath, &form.cmdBrowDwe,
            &form.opt1IS});
    follow({&form.txtMass3, &form.optLin(0), &form.optLin(1), &form.chkHorizLines, &form.chkFormerSel,
            &form.optResultPlot(0)});
    follow({&form.chkRatio1, &form.comboRatio(0), &form.chkBLK1(1), &form.comboRatio(1), &form.chkBLK2(1),
            &form.chkRatio2});
    follow({&form.optLinesTables(1), &form.optCPSinData(0)});
    follow({&form.optBLK_IS(1), &form.chkTestBlank});
    follow({&form.txtSD, &form.txtComments});
    widget<QWidget>(form.cmdApply).setFocus();
    follow({&form.cmdApply, &form.cmdSaveAs, &form.cmdCancel, &form.txtAbbrSTD});
}

TEST_F(SetIsLayout, EnterAppliesOutsideOfFieldsAndEscCancelsEverywhere) {
    show(form);
    catch_events(form, "cmdApply", EventKind::click);
    catch_events(form, "cmdCancel", EventKind::click);
    QTest::keyClick(&widget<QWidget>(form.txtISppm1), Qt::Key_Return);
    QTest::keyClick(&widget<QWidget>(form.txtComments), Qt::Key_Return);
    EXPECT_TRUE(caught.empty());
    QTest::keyClick(&widget<QWidget>(form.chkTestBlank), Qt::Key_Return);
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].control, "cmdApply");
    for (const Control* focused :
         std::initializer_list<const Control*>{&form.txtISppm1, &form.comboIso, &form.txtComments, &form.cmdSaveAs}) {
        caught.clear();
        QTest::keyClick(&widget<QWidget>(*focused), Qt::Key_Escape);
        ASSERT_EQ(caught.size(), 1U) << focused->name;
        EXPECT_EQ(caught[0].control, "cmdCancel");
    }
}

}  // namespace
}  // namespace kolvar::test
