// The first window: its panels change while it is open.
#include "desktop_fixture.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

class SettingsLayout : public DesktopTest {
protected:
    SettingsLayout() : form(forms.frm1_Settings) {}
    void show_panel(const Panel& panel) {
        for (Panel* each : {&form.pict_IS, &form.pict_UT, &form.pict_FLEX}) each->visible = each == &panel;
    }
    // Every text stands whole.
    void expect_room_for_all() {
        for (const Control* control : form.controls) {
            const QWidget* const shown = desktop.widget(*control);
            if (shown == nullptr || !shown->isVisible()) continue;
            EXPECT_GE(shown->height(), shown->fontMetrics().height()) << control->address();
            EXPECT_GE(shown->width(), shown->minimumSizeHint().width()) << control->address();
        }
    }
    Frm1Settings& form;
};

TEST_F(SettingsLayout, GrowsWithThePanelThatAFileHasBroughtIn) {
    show_panel(form.pict_FLEX);
    show(form);
    const QSize small = window(form).size();
    show_panel(form.pict_IS);
    desktop.sync();
    QTest::qWait(1);
    EXPECT_GT(window(form).height(), small.height());
    EXPECT_TRUE(desktop.widget(form.optData)->isVisible());
    expect_room_for_all();
    EXPECT_LE(window(form).height(), window(form).sizeHint().height());  // and no more than that
    // Back to a small one it keeps the size, as a user's window does.
    const QSize large = window(form).size();
    show_panel(form.pict_UT);
    desktop.sync();
    QTest::qWait(1);
    EXPECT_EQ(window(form).size(), large);
    expect_room_for_all();
}

TEST_F(SettingsLayout, IsNeverSmallerThanThePanelShown) {
    show_panel(form.pict_IS);
    show(form);
    window(form).resize(100, 100);
    QTest::qWait(1);
    QTest::qWait(1);
    expect_room_for_all();
}

TEST_F(SettingsLayout, SmallPanelsHaveSomeRoom) {
    show_panel(form.pict_FLEX);
    show(form);
    EXPECT_GE(window(form).width(), 680);
    EXPECT_GE(window(form).height(), 420);
}

}  // namespace
}  // namespace kolvar::test
