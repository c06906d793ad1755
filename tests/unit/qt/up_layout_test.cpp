// The U/Pb screen at the sizes of common displays: every text stands whole, no group covers another.
#include <QAbstractButton>
#include <QApplication>
#include <QFrame>

#include "desktop_fixture.hpp"
#include "qt/widgets.hpp"
#include "screens/up_window.hpp"

namespace kolvar::test {
namespace {

class UpLayout : public DesktopTest {
protected:
    UpLayout() : form(forms.frm2_UP) {
        for (int k = 0; k < 5; ++k) {
            const Frm2UP::RatioRow row = form.ratio_row(k);
            row.mean.text = row.tzero.text = "136.920  \xC2\xB1 10.639";
            row.median.text = "136.920";
            row.median.visible = row.tzero.visible = false;
            row.poisson.text = "123.4 x";
            row.skewness.text = "-12.3";
            row.slope.text = row.correlation.text = "-0.999";
        }
        form.lbl8_5.text = "137.818  \xC2\xB1 10.639";
        form.lblAv.text = "mean. +- 3se(%)";
        form.lblMed.visible = form.lblTz.visible = false;
        for (Label* cps : {&form.lbl238, &form.lbl235, &form.lbl232, &form.lbl208, &form.lbl207, &form.lbl206,
                           &form.lbl204, &form.lblAver(8)})
            cps->text = "123,456,789";
        for (Label* margin : {&form.lbl238LoD, &form.lbl235LoD, &form.lbl232LoD, &form.lbl208LoD, &form.lbl207LoD,
                              &form.lbl206LoD, &form.lbl204LoD, &form.lbl20xLoD})
            margin->text = ">100";
        for (int i = 1; i <= 8; ++i) form.lblFLEXiso(i).text = "ThO248";
        for (int i = 9; i <= 15; ++i) form.lblFLEXiso(i).visible = false;
        form.lblAge06_38.text = form.lblAge07_35.text = "4321";
        form.lblConcord1.text = "1.04";
        form.lblMaxCps2.text = "1200000000";
        form.lblOM.text = "123 / 1500";
        form.lblImprove.text = "-100 %";
        form.lblExplain.text = "reduction of residual error";
        form.lblExplain.visible = true;
        form.comboBzz.set_items({"%", "data"});
        form.Combo7.set_items({"Wetherill", "Tera-Wasserburg"});
        form.Combo8.set_items({"RMS", "Skewness"});
    }

    void size(int width, int height) {
        form.width = width * 15;
        form.height = height * 15;
        show(form);
        lay_out_up_window(program.context());
        desktop.sync();
        QTest::qWait(10);
    }

    void expect_whole_texts() {
        for (Control* control : form.controls) {
            auto* const part = desktop.widget(*control);
            if (part == nullptr || !part->isVisible()) continue;
            if (auto* const label = dynamic_cast<LabelView*>(part)) {
                if (label->wordWrap() || label->text().isEmpty()) continue;
                EXPECT_GE(label->width(), label->sizeHint().width()) << control->address() << " " << control->text;
            }
            if (dynamic_cast<QAbstractButton*>(part) != nullptr && dynamic_cast<ButtonView*>(part) == nullptr) {
                EXPECT_GE(part->width(), part->sizeHint().width()) << control->address() << " " << control->text;
            }
        }
    }

    void expect_apart() {
        const std::vector<const Control*> groups{
            &form.pict1,    &form.pict2,    &form.picUP_elems, &form.pictRightSide, &form.pictResults,
            &form.Frame1,   &form.Frame4,   &form.FrameBzzz,   &form.Frame2,        &form.pict3,
            &form.VScroll1, &form.VScroll2, &form.VScroll3,    &form.lblStatus};
        for (std::size_t a = 0; a < groups.size(); ++a) {
            const QWidget& one = widget<QWidget>(*groups[a]);
            EXPECT_TRUE(one.parentWidget()->rect().contains(one.geometry())) << groups[a]->name;
            EXPECT_GT(one.height(), 10) << groups[a]->name;
            for (std::size_t b = a + 1; b < groups.size(); ++b)
                EXPECT_FALSE(one.geometry().intersects(widget<QWidget>(*groups[b]).geometry()))
                    << groups[a]->name << " over " << groups[b]->name;
        }
    }

    Frm2UP& form;
};

TEST_F(UpLayout, NothingIsCutOrCoveredAtTheLeastWidth) {
    size(1100, 680);
    expect_whole_texts();
    expect_apart();
}

TEST_F(UpLayout, NothingIsCutOrCoveredOnALaptop) {
    size(1280, 750);
    expect_whole_texts();
    expect_apart();
}

TEST_F(UpLayout, NothingIsCutOrCoveredOnALargeScreen) {
    size(1920, 1040);
    expect_whole_texts();
    expect_apart();
}

TEST_F(UpLayout, TZeroResultsStandWholeToo) {
    for (int k = 0; k < 5; ++k) {
        const Frm2UP::RatioRow row = form.ratio_row(k);
        row.mean.visible = false;
        row.tzero.visible = true;
    }
    form.lblAv.visible = false;
    form.lblTz.visible = true;
    form.lblTz.text = "Tzero. +- 3se(%)";
    size(1100, 680);
    expect_whole_texts();
}

TEST_F(UpLayout, ThePlotsTakeTheRoomOfALargerWindow) {
    size(1100, 680);
    const QSize before = widget<QWidget>(form.pict1).size();
    size(1400, 880);
    EXPECT_EQ(widget<QWidget>(form.pict1).width(), before.width() + 300);
    EXPECT_EQ(widget<QWidget>(form.pict1).height(), before.height() + 100);
}

TEST_F(UpLayout, KeysReachTheButtons) {
    size(1280, 750);
    form.cmdCopy.enabled = form.cmdCopyHead.enabled = true;
    desktop.sync();
    for (const char* button : {"cmdBack", "cmdCopy", "cmdCopyHead", "cmdNewFile"})
        catch_events(form, button, EventKind::click);
    for (const int key : {Qt::Key_C, Qt::Key_H, Qt::Key_W}) {
        QTest::keyClick(&window(form), static_cast<Qt::Key>(key), Qt::AltModifier);
        QTest::qWait(150);  // the button is seen going down
    }
    QTest::keyClick(&window(form), Qt::Key_Escape);
    std::vector<std::string> names;
    for (const Event& event : caught) names.push_back(event.control);
    EXPECT_EQ(names, (std::vector<std::string>{"cmdCopy", "cmdCopyHead", "cmdNewFile", "cmdBack"}));
}

TEST_F(UpLayout, AButtonKeepsItsKeysUnderAnotherCaption) {
    size(1280, 750);
    form.cmdReject.text = "Restore rejection";
    desktop.sync();
    EXPECT_EQ(widget<ButtonView>(form.cmdReject).shortcut(), QKeySequence(QStringLiteral("Alt+R")));
}

TEST_F(UpLayout, TheTabulatorGoesThroughTheRatiosAndEndsAtTheButtons) {
    size(1280, 750);
    for (Control* usable : std::initializer_list<Control*>{&form.cmdCopyHead, &form.cmdCopy, &form.cmdApp})
        usable->enabled = true;
    desktop.sync();
    widget<QWidget>(form.chk68).setFocus();
    for (const Control* next :
         std::initializer_list<const Control*>{&form.chk75, &form.chk82, &form.chkUTh, &form.chk76}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &widget<QWidget>(*next)) << next->name;
    }
    widget<QWidget>(form.cmdCopyHead).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &widget<QWidget>(form.cmdCopy));
}

}  // namespace
}  // namespace kolvar::test
