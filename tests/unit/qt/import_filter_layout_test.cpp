#include "desktop_fixture.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

class ImportFilterLayout : public DesktopTest {
protected:
    ImportFilterLayout() : form(forms.frm_InputForm) {}
    FrmInputForm& form;
};

TEST_F(ImportFilterLayout, FitsASmallScreenAndEveryTextStandsWhole) {
    show(form);
    EXPECT_LE(window(form).width(), 1240);
    EXPECT_LE(window(form).height(), 740);
    for (const Label* label : {&form.lblPurpose, &form.lblFormats, &form.lblIso, &form.lblDat, &form.lblFirst,
                               &form.lblOther, &form.lblReserved, &form.lblWarning, &form.lblCSVby, &form.lblXLby}) {
        const auto& text = widget<LabelView>(*label);
        ASSERT_TRUE(text.isVisible()) << label->name;
        const int height = text.wordWrap() ? text.heightForWidth(text.width()) : text.sizeHint().height();
        EXPECT_GE(text.height(), height) << label->name;
        if (!text.wordWrap()) {
            EXPECT_GE(text.width(), text.sizeHint().width()) << label->name;
        }
    }
}

TEST_F(ImportFilterLayout, ThePreviewTakesTheRoomOfALargerWindow) {
    show(form);
    const QSize before = widget<QWidget>(form.FlexGrid1).size();
    window(form).resize(window(form).width(), window(form).height() + 150);
    QTest::qWait(1);
    EXPECT_EQ(widget<QWidget>(form.FlexGrid1).height(), before.height() + 150);
    window(form).resize(window(form).width() + 200, window(form).height());
    QTest::qWait(1);
    EXPECT_EQ(widget<QWidget>(form.FlexGrid1).width(), before.width() + 200);
}

TEST_F(ImportFilterLayout, RedAndBlueNumbers) {
    show(form);
    for (const Entry* box : {&form.txtCSViso, &form.txtTXTiso, &form.txtXLiso})
        EXPECT_EQ(widget<EntryView>(*box).palette().color(QPalette::Text), QColor(192, 0, 0)) << box->name;
    for (const Entry* box : {&form.txtCSVdat, &form.txtTXTdat, &form.txtXLdat})
        EXPECT_EQ(widget<EntryView>(*box).palette().color(QPalette::Text), QColor(0, 0, 192)) << box->name;
}

TEST_F(ImportFilterLayout, EnterSavesAndEscCancels) {
    show(form);
    catch_events(form, "cmdSave", EventKind::click);
    catch_events(form, "cmdCancel", EventKind::click);
    QTest::keyClick(&window(form), Qt::Key_Return);
    QTest::keyClick(&window(form), Qt::Key_Escape);
    QTest::keyClick(&widget<EntryView>(form.txtTXTdat), Qt::Key_Escape);
    ASSERT_EQ(caught.size(), 3U);
    EXPECT_EQ(caught[0].control, "cmdSave");
    EXPECT_EQ(caught[1].control, "cmdCancel");
    EXPECT_EQ(caught[2].control, "cmdCancel");
}

TEST_F(ImportFilterLayout, EnterWithinABoxSaves) {
    program.state().Method = 3;  // saves no file
    show(form);
    int number = 0;
    for (Entry* box : {&form.txtCSViso, &form.txtCSVdat, &form.txtCSVfirst, &form.txtTXTiso, &form.txtTXTdat,
                       &form.txtTXTfirst, &form.txtXLiso, &form.txtXLdat, &form.txtXLfirst})
        box->text = std::to_string(++number);
    QTest::keyClick(&widget<EntryView>(form.txtTXTdat), Qt::Key_Return);
    EXPECT_FALSE(form.shown);
    EXPECT_EQ(program.state().setXLfirstCOL, Value(9));
}

}  // namespace
}  // namespace kolvar::test
