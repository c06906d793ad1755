#include <QGuiApplication>
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

}  // namespace
}  // namespace kolvar::test
