// The help window on a desktop: keys, faces and sizes.
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>

#include "desktop_fixture.hpp"
#include "qt/canvas_view.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

class HelpLayout : public DesktopTest {
protected:
    FrmHelp1& form = forms.frmHelp1;
    bool in_view(const Control& control) { return widget<QWidget>(control).isVisibleTo(&window(form)); }
};

TEST_F(HelpLayout, EscAndEnterCloseAlsoFromWithinTheText) {
    form.show_face(FrmHelp1::Face::text);
    form.txt1.text = "some lines\r\nto read";
    show(form);
    catch_events(form, "cmdClose", EventKind::click);
    QWidget* const text = desktop.widget(form.txt1);
    text->setFocus();
    std::size_t closed = 0;
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(text, key);
        ASSERT_EQ(caught.size(), ++closed) << key;
        EXPECT_EQ(caught.back().control, "cmdClose");
    }
}

TEST_F(HelpLayout, EachFaceStandsAloneWithinItsWindow) {
    using Face = FrmHelp1::Face;
    for (const Face face : {Face::text, Face::about, Face::cut_time}) {
        form.show_face(face);
        show(form);
        EXPECT_EQ(in_view(form.txt1), face == Face::text);
        EXPECT_EQ(in_view(form.lblCitation), face == Face::about);
        EXPECT_EQ(in_view(form.pictCutTime), face == Face::cut_time);
        EXPECT_EQ(in_view(form.lblMark(4)), face == Face::cut_time);
        EXPECT_EQ(in_view(form.lblCutText(8)), face == Face::cut_time);
        EXPECT_TRUE(in_view(form.cmdClose));
    }
}

TEST_F(HelpLayout, SketchKeepsItsSizeSoThatTheNumbersStandBelowTheirLines) {
    form.show_face(FrmHelp1::Face::cut_time);
    show(form);
    window(form).resize(1200, 900);
    EXPECT_EQ(desktop.widget(form.pictCutTime)->size(), QSize(640, 300));
    EXPECT_EQ(form.pictCutTime.width, 9600);
}

TEST_F(HelpLayout, VersionStandsBesideTheMenusOfTheFirstWindow) {
    const Frm1Settings& first = forms.frm1_Settings;
    show(forms.frm1_Settings);
    auto* const menus = qobject_cast<QMainWindow*>(desktop.window(first))->menuBar();
    auto* const version = qobject_cast<QLabel*>(menus->cornerWidget());
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version->text().toStdString(), first.lblVersion.text);
    EXPECT_TRUE(version->text().startsWith(QStringLiteral("Version ")));
}

}  // namespace
}  // namespace kolvar::test
