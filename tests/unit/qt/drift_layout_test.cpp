// The window of the drift: room for its texts, keys, and numbers of the scale that don't lie on each other.
#include "desktop_fixture.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

class DriftLayout : public DesktopTest {
protected:
    // Opened as a user does, with three standards; `r75` stretches the scale.
    void plot(double r75) {
        RunState& rs = program.state();
        rs.SeqCount = 5;
        rs.SeqStdCount = 3;
        rs.setNumSTD = 0;
        for (const int line : {1, 3, 5}) {
            rs.MasterRecs(line, 2) = "Std";
            rs.MasterRecs(line, 11) = 1 + 0.01 * line;
            rs.MasterRecs(line, 12) = r75 + 0.01 * line;
            rs.MasterRecs(line, 13) = 1 - 0.01 * line;
        }
        program.shell().open(form);
        desktop.sync();
        ASSERT_TRUE(QTest::qWaitForWindowActive(desktop.window(form)));
        QTest::keyClick(&window(form), Qt::Key_Return);
        ASSERT_TRUE(form.plotted);
        desktop.sync();
        QTest::qWait(1);
    }
    FrmDrift& form = forms.frm_drift;
};

TEST_F(DriftLayout, TextsStandWholeInASmallWindow) {
    plot(1.5);
    window(form).resize(720, 430);
    desktop.sync();
    QTest::qWait(1);
    for (const Control* control : form.controls) {
        if (!control->reachable() || control->kind == ControlKind::picture || control->kind == ControlKind::panel)
            continue;
        const QWidget& shown = widget<QWidget>(*control);
        EXPECT_GE(shown.width(), shown.minimumSizeHint().width()) << control->address();
        EXPECT_TRUE(shown.parentWidget()->rect().contains(shown.geometry())) << control->address();
    }
}

TEST_F(DriftLayout, NumbersThatWouldLieOnEachOtherGiveWayToTheRounderOnes) {
    plot(30);  // a hundredth is less than a pixel
    int seen = 0;
    for (const auto& [percent, label] : form.scale_labels()) {
        ASSERT_TRUE(label->visible) << percent;
        if (widget<QWidget>(*label).foregroundRole() == QPalette::WindowText) ++seen;
    }
    EXPECT_LT(seen, 3);
    EXPECT_EQ(widget<QWidget>(form.lbl1_00).foregroundRole(), QPalette::WindowText);
}

TEST_F(DriftLayout, EscClosesAndKeysReachTheButtons) {
    plot(1.5);
    for (const char* button : {"Command1", "cmdAccept", "cmdClose"}) catch_events(form, button, EventKind::click);
    for (const int key : {Qt::Key_P, Qt::Key_A, Qt::Key_C}) {
        QTest::keyClick(&window(form), static_cast<Qt::Key>(key), Qt::AltModifier);
        QTest::qWait(150);  // the button is seen going down
    }
    QTest::keyClick(&window(form), Qt::Key_Escape);
    std::vector<std::string> names;
    for (const Event& event : caught) names.push_back(event.control);
    EXPECT_EQ(names, (std::vector<std::string>{"Command1", "cmdAccept", "cmdClose", "cmdClose"}));
}

}  // namespace
}  // namespace kolvar::test
