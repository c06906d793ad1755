// From the widgets to the dispatcher: what a user does becomes one event, and the widgets show the model's answer.
#include <gtest/gtest.h>

#include <QtGui/qevent.h>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include "desktop_fixture.hpp"
#include "qt/canvas_view.hpp"
#include "qt/folder_view.hpp"
#include "qt/grid_view.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

class UserEvents : public DesktopTest {
protected:
    static void move_to(QWidget& widget, QPointF at) {
        QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    }
};

TEST_F(UserEvents, ButtonClickIsOneClick) {
    catch_events(forms.frm4_Output, "cmdSave", EventKind::click);
    show(forms.frm4_Output);
    QTest::mouseClick(desktop.widget(forms.frm4_Output.cmdSave), Qt::LeftButton);
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].window, "frm4_Output");
    EXPECT_EQ(caught[0].control, "cmdSave");
    EXPECT_EQ(caught[0].index, -1);
}

TEST_F(UserEvents, MenuEntryIsAClickWithItsNumber) {
    catch_events(forms.frm1_Settings, "mnuSettings", EventKind::click);
    show(forms.frm1_Settings);
    desktop.action(forms.frm1_Settings.mnuSettings3)->trigger();
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].control, "mnuSettings");
    EXPECT_EQ(caught[0].index, 3);
}

TEST_F(UserEvents, OverruledCheckBoxShowsTheModelsStateAgain) {
    Frm3Matrix& f = forms.frm3_Matrix;
    program.on(f, "chkMinMax", EventKind::click, [&](const Event&) { f.chkMinMax.set_value_quietly(0); });
    f.chkMinMax.changed = {};
    show(f);
    QTest::mouseClick(desktop.widget(f.chkMinMax), Qt::LeftButton, Qt::NoModifier, {8, 8});
    EXPECT_FALSE(widget<QCheckBox>(f.chkMinMax).isChecked());
}

TEST_F(UserEvents, RefusedClickLeavesTheOptionsAsTheyAre) {
    Frm3Matrix& f = forms.frm3_Matrix;
    f.optIIS.changed = {};
    show(f);
    // An event that comes while another runs is refused.
    program.on(f, "cmdReset", EventKind::click, [&](const Event&) {
        QTest::mouseClick(desktop.widget(f.optIIS), Qt::LeftButton, Qt::NoModifier, {8, 8});
    });
    f.cmdReset.enabled = true;
    desktop.sync();
    QTest::mouseClick(desktop.widget(f.cmdReset), Qt::LeftButton);
    EXPECT_EQ(f.optCPS.value, 1);
    EXPECT_TRUE(widget<QRadioButton>(f.optCPS).isChecked());
    EXPECT_FALSE(widget<QRadioButton>(f.optIIS).isChecked());
}

TEST_F(UserEvents, OneOptionOfAGroupIsOn) {
    Frm1Settings& f = forms.frm1_Settings;
    f.pict_IS.visible = true;
    for (Control* option : f.controls) option->changed = {};
    catch_events(f, "optCreatSTM", EventKind::click);
    show(f);
    QTest::mouseClick(desktop.widget(f.optCreatSTM), Qt::LeftButton, Qt::NoModifier, {8, 8});
    EXPECT_EQ(f.optCreatSTM.value, 1);
    EXPECT_FALSE(widget<QRadioButton>(f.optData).isChecked());
    // A click on the one that is on leaves it on.
    QTest::mouseClick(desktop.widget(f.optCreatSTM), Qt::LeftButton, Qt::NoModifier, {8, 8});
    EXPECT_TRUE(widget<QRadioButton>(f.optCreatSTM).isChecked());
}

TEST_F(UserEvents, TypingEnterAndLeavingAreThreeEvents) {
    Frm3Matrix& f = forms.frm3_Matrix;
    for (const EventKind kind : {EventKind::type, EventKind::enter, EventKind::leave}) catch_events(f, "txtSD", kind);
    catch_events(f, "cmdNext", EventKind::click);
    show(f);
    auto& field = widget<QLineEdit>(f.txtSD);
    field.setFocus();
    QTest::keyClicks(&field, "25");
    QTest::keyClick(&field, Qt::Key_Return);
    field.clearFocus();
    ASSERT_EQ(caught.size(), 4U);
    EXPECT_EQ(caught[0].kind, EventKind::type);
    EXPECT_EQ(caught[1].text, f.txtSD.text);
    EXPECT_EQ(caught[2].kind, EventKind::enter);
    EXPECT_EQ(caught[3].kind, EventKind::leave);
}

TEST_F(UserEvents, MovingTheFocusFromCodeIsNoLeaving) {
    Frm3Matrix& f = forms.frm3_Matrix;
    catch_events(f, "txtSD", EventKind::leave);
    show(f);
    f.set_focus(f.txtSD);
    desktop.sync();
    f.set_focus(f.cmdBack);
    desktop.sync();
    EXPECT_TRUE(caught.empty());
}

TEST_F(UserEvents, ChoiceInAListIsAnIndex) {
    Frm1Settings& f = forms.frm1_Settings;
    show(f);
    program.shell().settle();  // its activation, which fills the lists, has run
    f.pict_IS.visible = f.comboIso.enabled = true;
    f.comboIso.changed = {};
    f.comboIso.set_items({"Li7", "Si29", "Ca43"});
    catch_events(f, "comboIso", EventKind::choose);
    desktop.sync();
    auto& list = widget<QComboBox>(f.comboIso);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    ASSERT_EQ(caught.size(), 2U);
    EXPECT_EQ(caught[1].value, 1);
    EXPECT_EQ(f.comboIso.text, "Si29");
    EXPECT_EQ(list.currentText(), "Si29");
}

TEST_F(UserEvents, TypingIntoAListCanBeUndoneByTheHandler) {
    Frm3Matrix& f = forms.frm3_Matrix;
    f.comboProc.set_items({"2.5", " 5"});
    f.comboProc.show_item(" 5");
    f.comboProc.changed = {};
    program.on(f, "comboProc", EventKind::type, [&](const Event& event) {
        caught.push_back(event);
        f.comboProc.show_item(" 5");
    });
    show(f);
    auto& list = widget<QComboBox>(f.comboProc);
    QTest::keyClicks(list.lineEdit(), "9");
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].text, " 59");
    EXPECT_EQ(list.currentText(), " 5");
}

TEST_F(UserEvents, BarTellsItsNewValueAndFollowsTheModelSilently) {
    Frm2Time& f = forms.frm2_Time;
    f.VScroll1.changed = {};
    catch_events(f, "VScroll1", EventKind::scroll);
    show(f);
    auto& bar = widget<QScrollBar>(f.VScroll1);
    bar.triggerAction(QAbstractSlider::SliderToMaximum);
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].value, 100);
    f.VScroll1.set_value_quietly(7);
    desktop.sync();
    EXPECT_EQ(bar.value(), 7);
    EXPECT_EQ(caught.size(), 1U);
}

TEST_F(UserEvents, CloseBoxOfAStepEndsTheProgram) {
    show(forms.frm4_Output);
    window(forms.frm4_Output).close();
    EXPECT_TRUE(program.ended());
    EXPECT_EQ(ends, std::vector<int>{0});
}

TEST_F(UserEvents, CloseBoxOfAnotherWindowClosesItAlone) {
    show(forms.frm4_Output);
    show(forms.frm_AverConc);
    window(forms.frm_AverConc).close();
    EXPECT_FALSE(forms.frm_AverConc.shown);
    EXPECT_FALSE(window(forms.frm_AverConc).isVisible());
    EXPECT_TRUE(ends.empty());
}

TEST_F(UserEvents, HandlerDecidesWhatTheCloseBoxDoes) {
    catch_events(forms.frm_Dwell, "", EventKind::close);
    show(forms.frm_Dwell);
    window(forms.frm_Dwell).close();
    EXPECT_EQ(caught.size(), 1U);
    EXPECT_TRUE(window(forms.frm_Dwell).isVisible());
}

TEST_F(UserEvents, NoProgramStaysWithoutAWindow) {
    show(forms.frm_AverConc);
    window(forms.frm_AverConc).close();
    EXPECT_EQ(ends, std::vector<int>{0});
}

TEST_F(UserEvents, UsersNewSizeIsToldInTwips) {
    catch_events(forms.frm2_Time, "", EventKind::resize);
    show(forms.frm2_Time);
    const int menu = qobject_cast<QMainWindow*>(desktop.window(forms.frm2_Time))->menuBar()->height();
    window(forms.frm2_Time).resize(1200, 700 + menu);
    QApplication::processEvents();
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].x, 18000);
    EXPECT_EQ(caught[0].y, 10500);
    EXPECT_EQ(forms.frm2_Time.width, 18000);
    window(forms.frm2_Time).resize(1200, 700 + menu);
    QApplication::processEvents();
    EXPECT_EQ(caught.size(), 1U);
}

TEST_F(UserEvents, CellsAndHeadersTellRowAndColumn) {
    Frm3Matrix& f = forms.frm3_Matrix;
    f.FlexGrid1.resize(4, 5);
    catch_events(f, "FlexGrid1", EventKind::cell_click);
    show(f);
    auto& view = widget<GridView>(f.FlexGrid1);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(view.model()->index(1, 2)).center());
    QHeaderView& columns = *view.horizontalHeader();
    QTest::mouseClick(columns.viewport(), Qt::LeftButton, Qt::NoModifier,
                      {columns.sectionViewportPosition(3) + columns.sectionSize(3) / 2, 8});
    QHeaderView& rows = *view.verticalHeader();
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier, {8, rows.sectionViewportPosition(0) + 8});
    ASSERT_EQ(caught.size(), 3U);
    EXPECT_EQ(caught[0].row, 2);
    EXPECT_EQ(caught[0].col, 3);
    EXPECT_EQ(caught[1].row, 0);
    EXPECT_EQ(caught[1].col, 4);
    EXPECT_EQ(caught[2].row, 1);
    EXPECT_EQ(caught[2].col, 0);
}

TEST_F(UserEvents, PictureTellsPressAndReleaseWithItsKeys) {
    Frm2Time& f = forms.frm2_Time;
    f.pict1.place(3000, 900);
    f.pict1.width = 9000;
    f.pict1.height = 3000;
    catch_events(f, "pict1", EventKind::press);
    catch_events(f, "pict1", EventKind::release);
    show(f);
    QTest::mousePress(desktop.widget(f.pict1), Qt::RightButton, Qt::ShiftModifier, {100, 50});
    QTest::mouseRelease(desktop.widget(f.pict1), Qt::RightButton, Qt::ShiftModifier, {100, 50});
    ASSERT_EQ(caught.size(), 2U);
    EXPECT_EQ(caught[0].kind, EventKind::press);
    EXPECT_EQ(caught[0].button, 2);
    EXPECT_EQ(caught[0].shift, 1);
    EXPECT_EQ(caught[0].x, 1500);
    EXPECT_EQ(caught[1].kind, EventKind::release);
}

TEST_F(UserEvents, HoverShowsSliceAndValueAndWritesNothing) {
    Frm2Time& f = forms.frm2_Time;
    RunState& rs = program.state();
    rs.nSlices = 100;
    rs.MaxCps = 900;
    rs.LinearView = true;
    f.pict1.place(3000, 900);
    f.pict1.width = 9000;
    f.pict1.height = 3000;
    show(f);
    const std::size_t events = program.journal().lines().size();
    // A quarter of the way: slice 25; half of the height: 0.5 x 900 / 0.9.
    move_to(*desktop.widget(f.pict1), {150, 100});
    auto* const status = window(f).findChild<QLabel*>("status");
    ASSERT_NE(status, nullptr);
    EXPECT_EQ(status->text().simplified(), "Slice 25 500 cps");
    EXPECT_EQ(program.journal().lines().size(), events);
    EXPECT_FALSE(rs.SelLow.is_set());
}

TEST_F(UserEvents, LogarithmicScaleIsReadBackUnderThePointer) {
    Frm2Time& f = forms.frm2_Time;
    RunState& rs = program.state();
    rs.nSlices = 100;
    rs.MaxCps = std::log(1e6);  // as the draw leaves it
    rs.LinearView = false;
    f.pict1.place(3000, 900);
    f.pict1.width = 9000;
    f.pict1.height = 3000;
    show(f);
    // A tenth of the height below the top is the end of the scale.
    move_to(*desktop.widget(f.pict1), {300, 20});
    EXPECT_EQ(window(f).findChild<QLabel*>("status")->text().simplified(), "Slice 50 1e+06 cps");
}

TEST_F(UserEvents, LogarithmicScaleOfTheUraniumLeadSignalsIsReadBackUnderThePointer) {
    Frm2UP& f = forms.frm2_UP;
    RunState& rs = program.state();
    rs.Method = 1;
    rs.nSlices = 100;
    rs.MaxCps = 1e6;  // as the draw leaves it
    rs.LinearView = false;
    f.pict1.place(4500, 1200);
    f.pict1.width = 9000;
    f.pict1.height = 3000;
    show(f);
    // 110 of 200 pixels above the lower edge, the scale ends at 180: 10^(6 x 110 / 180) = 4642.
    move_to(*desktop.widget(f.pict1), {300, 90});
    EXPECT_EQ(window(f).findChild<QLabel*>("status")->text().simplified(), "Slice 50 4642 cps");
}

TEST_F(UserEvents, NameOfAnIsotopeCanBeDroppedOnARatio) {
    Frm2Time& f = forms.frm2_Time;
    f.chkIs(4).visible = true;
    f.pictRatios.visible = true;
    catch_events(f, "chkIs", EventKind::drag);
    show(f);
    QMimeData carried;
    carried.setData(CheckView::drag_format, desktop.widget(f.chkIs(4))->objectName().toUtf8());
    QWidget* const target = desktop.widget(f.lblRatio(7));
    QDragEnterEvent over({2, 2}, Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &over);
    EXPECT_TRUE(over.isAccepted());
    QDropEvent drop({2, 2}, Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].index, 4);
    EXPECT_EQ(caught[0].target, "lblRatio");
    EXPECT_EQ(caught[0].target_index, 7);
}

TEST_F(UserEvents, DoubleClicksOfWindowAndPanelAreTold) {
    Frm2Time& f = forms.frm2_Time;
    f.pictRightSide.place(14000, 900);
    f.pictRightSide.width = 1500;
    f.pictRightSide.height = 8000;
    for (const char* place : {"", "pictRightSide"}) catch_events(f, place, EventKind::dblclick);
    show(f);
    QWidget* const panel = desktop.widget(f.pictRightSide);
    QTest::mouseDClick(panel, Qt::LeftButton, Qt::NoModifier, {4, panel->height() - 4});
    auto* const frame = qobject_cast<QMainWindow*>(desktop.window(f));
    QTest::mouseDClick(frame->centralWidget(), Qt::LeftButton, Qt::NoModifier, {500, frame->height() - 60});
    ASSERT_EQ(caught.size(), 2U);
    EXPECT_EQ(caught[0].control, "pictRightSide");
    EXPECT_EQ(caught[1].control, "");
}

TEST_F(UserEvents, EnterPressesThePresetButtonAndEscTheWayBack) {
    catch_events(forms.frm_Dwell, "cmdBack", EventKind::click);
    catch_events(forms.frm3_Matrix, "cmdNext", EventKind::click);
    catch_events(forms.frm3_Matrix, "cmdBack", EventKind::click);
    show(forms.frm_Dwell);
    QTest::keyClick(&window(forms.frm_Dwell), Qt::Key_Escape);
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].window, "frm_Dwell");
    show(forms.frm3_Matrix);
    QTest::keyClick(&window(forms.frm3_Matrix), Qt::Key_Return);
    QTest::keyClick(&window(forms.frm3_Matrix), Qt::Key_Escape);
    ASSERT_EQ(caught.size(), 3U);
    EXPECT_EQ(caught[1].control, "cmdNext");
    EXPECT_EQ(caught[2].control, "cmdBack");
}

TEST_F(UserEvents, TabGoesThroughTheControlsInTheirOrder) {
    Frm1Settings& f = forms.frm1_Settings;
    f.pict_IS.visible = true;
    show(f);
    desktop.widget(f.optData)->setFocus();
    QTest::keyClick(desktop.widget(f.optData), Qt::Key_Tab);
    EXPECT_EQ(window(f).focusWidget(), desktop.widget(f.optCreatSTM));
    desktop.widget(f.cmdLoadCSV)->setFocus();
    QTest::keyClick(desktop.widget(f.cmdLoadCSV), Qt::Key_Tab);
    EXPECT_EQ(window(f).focusWidget(), desktop.widget(f.cmdPaste));
}

TEST_F(UserEvents, FolderChosenInTheListIsToldByItsPath) {
    const std::string inner = folder.path("inner");
    std::filesystem::create_directory(inner);
    forms.frm_ChoseDir.Dir1.text = folder.path();
    catch_events(forms.frm_ChoseDir, "Dir1", EventKind::choose);
    show(forms.frm_ChoseDir);
    auto& view = widget<FolderView>(forms.frm_ChoseDir.Dir1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return view.model()->rowCount(view.currentIndex()) == 1; }));
    emit view.activated(view.model()->index(0, 0, view.currentIndex()));
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].text, inner);
    EXPECT_EQ(view.folder().toStdString(), inner);
}

}  // namespace
}  // namespace kolvar::test
