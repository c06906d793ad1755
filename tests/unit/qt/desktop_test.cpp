// From the model to the widgets, and which windows are on the screen.
#include "qt/desktop.hpp"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <set>

#include "desktop_fixture.hpp"
#include "qt/folder_view.hpp"
#include "qt/grid_view.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

TEST_F(DesktopTest, EveryControlOfEveryWindowHasItsWidgetUnderItsName) {
    for (Form* form : forms.all()) {
        EXPECT_EQ(desktop.window(*form), nullptr) << "made at the first showing: " << form->name;
        show(*form);
        for (const Control* control : form->controls) {
            if (control->kind == ControlKind::menu || control->kind == ControlKind::menu_entry) {
                ASSERT_NE(desktop.action(*control), nullptr) << control->address();
                EXPECT_EQ(desktop.action(*control)->objectName().toStdString(), control->address());
                EXPECT_EQ(desktop.widget(*control), nullptr);
            } else {
                ASSERT_NE(desktop.widget(*control), nullptr) << form->name << " " << control->address();
                EXPECT_EQ(desktop.widget(*control)->objectName().toStdString(), control->address());
            }
        }
    }
}

TEST_F(DesktopTest, ShowsWhatTheControlsHold) {
    Frm3Matrix& f = forms.frm3_Matrix;
    f.title = "Another title";
    f.lblFile.text = "a & b <c>";
    f.chkMinMax.value = 1;
    f.optIIS.set_value_quietly(1);
    f.txtSD.text = "2.5";
    f.comboProc.set_items({" 1", "2.5"});
    f.comboProc.show_item("2.5");
    f.cmdNext.text = "Save && go";
    f.cmdBack.enabled = false;
    f.chkStDev.visible = false;
    f.lblSD.back = rgb(255, 0, 0);
    f.lblSD.fore = palette(15);
    show(f);
    EXPECT_EQ(window(f).windowTitle(), "Another title");
    EXPECT_EQ(widget<QLabel>(f.lblFile).text(), "a & b <c>");
    EXPECT_EQ(widget<QLabel>(f.lblFile).textFormat(), Qt::PlainText);
    EXPECT_TRUE(widget<QCheckBox>(f.chkMinMax).isChecked());
    EXPECT_TRUE(widget<QRadioButton>(f.optIIS).isChecked());
    EXPECT_FALSE(widget<QRadioButton>(f.optCPS).isChecked());
    EXPECT_EQ(widget<QLineEdit>(f.txtSD).text(), "2.5");
    EXPECT_EQ(widget<QComboBox>(f.comboProc).count(), 2);
    EXPECT_EQ(widget<QComboBox>(f.comboProc).currentText(), "2.5");
    EXPECT_EQ(widget<ButtonView>(f.cmdNext).accessibleName(), "Save && go");
    EXPECT_FALSE(widget<QWidget>(f.cmdBack).isEnabled());
    EXPECT_FALSE(widget<QWidget>(f.chkStDev).isVisible());
    EXPECT_EQ(widget<QWidget>(f.lblSD).palette().color(QPalette::Window), QColor(255, 0, 0));
    EXPECT_EQ(widget<QWidget>(f.lblSD).palette().color(QPalette::WindowText), QColor(255, 255, 255));

    f.lblSD.back.reset();
    f.lblSD.fore.reset();
    f.chkStDev.visible = true;
    f.txtSD.locked = true;
    desktop.sync();
    EXPECT_EQ(widget<QWidget>(f.lblSD).palette().color(QPalette::WindowText),
              window(f).palette().color(QPalette::WindowText));
    EXPECT_TRUE(widget<QWidget>(f.chkStDev).isVisible());
    EXPECT_TRUE(widget<QLineEdit>(f.txtSD).isReadOnly());
}

TEST_F(DesktopTest, CaptionsKeepTheirAmpersands) {
    forms.frm3_Matrix.chkMinMax.text = "min & max";
    forms.frm3_Matrix.Frame2.text = "a & b";
    show(forms.frm3_Matrix);
    EXPECT_EQ(widget<QCheckBox>(forms.frm3_Matrix.chkMinMax).text(), "min && max") << "Qt shows one of them";
    EXPECT_TRUE(widget<QCheckBox>(forms.frm3_Matrix.chkMinMax).shortcut().isEmpty());
    EXPECT_EQ(widget<QGroupBox>(forms.frm3_Matrix.Frame2).title(), "a && b");
}

TEST_F(DesktopTest, PanelsHideAndDisableWhatTheyHold) {
    Frm1Settings& f = forms.frm1_Settings;
    f.pict_IS.visible = true;
    f.Frame2.enabled = false;
    show(f);
    EXPECT_TRUE(widget<QWidget>(f.cmdOK).isVisible());
    EXPECT_FALSE(widget<QWidget>(f.cmdOK1).isVisible());
    EXPECT_FALSE(widget<QWidget>(f.cmdLoadSTC).isEnabled());
    f.pict_IS.visible = false;
    f.pict_UT.visible = true;
    desktop.sync();
    EXPECT_FALSE(widget<QWidget>(f.cmdOK).isVisible());
    EXPECT_TRUE(widget<QWidget>(f.cmdOK1).isVisible());
}

TEST_F(DesktopTest, ListShowsATextThatIsNoItem) {
    Frm1Settings& f = forms.frm1_Settings;
    f.comboIso.set_items({"Li7", "Si29"});
    f.comboIso.show_item("Xx1");
    show(f);
    auto& list = widget<QComboBox>(f.comboIso);
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.placeholderText(), "Xx1");
    f.comboIso.set_items({"Na23"});
    desktop.sync();
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.itemText(0), "Na23");
    EXPECT_EQ(list.currentIndex(), -1) << "nothing is chosen in a new list";
}

TEST_F(DesktopTest, BarsHaveTheirMaximumAtTheTop) {
    show(forms.frm2_Time);
    auto& bar = widget<QScrollBar>(forms.frm2_Time.VScroll1);
    EXPECT_EQ(bar.minimum(), 1);
    EXPECT_EQ(bar.maximum(), 100);
    EXPECT_EQ(bar.value(), 1);
    EXPECT_TRUE(bar.invertedAppearance());
}

TEST_F(DesktopTest, PlacedControlsStandWhereTheModelSays) {
    Frm2Time& f = forms.frm2_Time;
    f.pict1.place(1500, 900);
    f.pict1.width = 9000;
    f.pict1.height = 3000;
    show(f);
    EXPECT_EQ(widget<QWidget>(f.pict1).geometry(), QRect(100, 60, 600, 200));
    f.pict1.width = 7500;
    desktop.sync();
    EXPECT_EQ(widget<QWidget>(f.pict1).width(), 500);
    // A control leaves its panel's layout once the model places it.
    f.optLi.place(300, 450);
    f.optLi.width = 1500;
    f.optLi.height = 300;
    desktop.sync();
    EXPECT_EQ(widget<QWidget>(f.optLi).geometry(), QRect(20, 30, 100, 20));
}

TEST_F(DesktopTest, WindowTakesItsSizeFromTheFormOrTellsIt) {
    show(forms.frm2_Time);
    // The menu bar comes on top of it.
    const QMainWindow& time = *qobject_cast<QMainWindow*>(desktop.window(forms.frm2_Time));
    EXPECT_EQ(time.centralWidget()->size(), QSize(1100, 680));
    EXPECT_EQ(time.height(), 680 + time.menuBar()->height());
    EXPECT_EQ(forms.frm2_Time.height, 10200);
    EXPECT_EQ(forms.frm2_Time.width, 16500);
    show(forms.frm_Omit);
    EXPECT_EQ(forms.frm_Omit.width, window(forms.frm_Omit).width() * 15);
    EXPECT_GT(forms.frm_Omit.height, 0);
    forms.frm2_Time.width = 15000;
    desktop.sync();
    EXPECT_EQ(window(forms.frm2_Time).width(), 1000);
    for (const std::string& line : program.journal().lines()) EXPECT_EQ(line.find("resize"), std::string::npos) << line;
}

TEST_F(DesktopTest, WindowsComeAndGoWithTheShell) {
    show(forms.frm1_Settings);
    show(forms.frm_Dwell);
    EXPECT_TRUE(window(forms.frm1_Settings).isVisible());
    EXPECT_TRUE(window(forms.frm_Dwell).isVisible());
    program.shell().close(forms.frm1_Settings);
    desktop.sync();
    EXPECT_FALSE(window(forms.frm1_Settings).isVisible());
    EXPECT_TRUE(window(forms.frm_Dwell).isVisible());
    QWidget* const former = desktop.window(forms.frm1_Settings);
    show(forms.frm1_Settings);
    EXPECT_EQ(desktop.window(forms.frm1_Settings), former) << "one window a form";
    EXPECT_TRUE(ends.empty());
}

TEST_F(DesktopTest, FocusGoesWhereAHandlerWantsIt) {
    Frm3Matrix& f = forms.frm3_Matrix;
    show(f);
    f.set_focus(f.txtSD);
    desktop.sync();
    EXPECT_EQ(window(f).focusWidget(), desktop.widget(f.txtSD));
    EXPECT_EQ(f.focus_wanted, nullptr);
}

TEST_F(DesktopTest, MenusShowTheirEntriesInOrder) {
    forms.frm1_Settings.mnuDef.visible = false;
    show(forms.frm1_Settings);
    auto* const frame = qobject_cast<QMainWindow*>(desktop.window(forms.frm1_Settings));
    QStringList titles, entries;
    for (const QAction* menu : frame->menuBar()->actions())
        if (menu->isVisible()) titles << menu->text();
    EXPECT_EQ(titles, QStringList({"&File", "&Settings", "&Help"}));
    for (const QAction* entry : frame->menuBar()->actions().first()->menu()->actions()) entries << entry->text();
    EXPECT_EQ(entries, QStringList({"Open Data File", "Open Standard Composition File",
                                    "Open Standard Measurement File", "Exit"}));
    entries.clear();  // a line parts what leads out of the program from its documents
    for (const QAction* entry : frame->menuBar()->actions().last()->menu()->actions())
        entries << (entry->isSeparator() ? QStringLiteral("-") : entry->text());
    EXPECT_EQ(entries,
              QStringList({"Most important points ...", "Flow chart", "Introduction (article, MAC)",
                           "Format of the files", "Explanation to the example files", "Equations", "Exported results",
                           "-", "Visit Kolvar homepage for latest version and help", "About"}));
}

TEST_F(DesktopTest, LinesOfAnEntryOfSeveralLinesStandInTheWidgetAndComeBack) {
    Entry& text = forms.frm_SetIS.txtComments;
    text.text = "one\r\ntwo\rthree";
    show(forms.frm_SetIS);
    auto& view = widget<TextView>(text);
    EXPECT_EQ(view.toPlainText(), QStringLiteral("one\ntwo\nthree"));
    EXPECT_FALSE(view.isReadOnly());
    EXPECT_EQ(text.text, "one\r\ntwo\rthree");  // showing is no typing
    view.setPlainText(QStringLiteral("four\nfive"));
    EXPECT_EQ(text.text, "four\nfive");
    text.locked = true;
    desktop.sync();
    EXPECT_TRUE(view.isReadOnly());
}

TEST_F(DesktopTest, GridShowsItsCellsAndHeaders) {
    Grid& grid = forms.frm3_Matrix.FlexGrid1;
    grid.resize(3, 4);
    grid.column_widths = {1550, 800};
    grid.cell(0, 0).text = "CPS / Average";
    grid.cell(0, 1).text = "t60";
    grid.cell(1, 0).text = "Li7";
    grid.cell(1, 0).back = pale_green;
    grid.cell(2, 3).text = "42";
    grid.cell(2, 3).back = palette(0);
    grid.cell(2, 3).fore = palette(15);
    show(forms.frm3_Matrix);
    auto& view = widget<GridView>(grid);
    const QAbstractItemModel& model = *view.model();
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.columnCount(), 3);
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), "t60");
    EXPECT_EQ(model.headerData(0, Qt::Vertical).toString(), "Li7");
    EXPECT_EQ(model.headerData(0, Qt::Vertical, Qt::BackgroundRole).value<QBrush>().color(), QColor(192, 255, 192));
    EXPECT_EQ(model.index(1, 2).data().toString(), "42");
    EXPECT_EQ(model.index(1, 2).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(255, 255, 255));
    EXPECT_GE(view.columnWidth(0), 800 / 15);

    grid.cell(1, 1).text = "7";
    grid.touch();
    desktop.sync();
    EXPECT_EQ(model.index(0, 0).data().toString(), "7");
    grid.resize(2, 2);
    desktop.sync();
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.columnCount(), 1);
}

TEST_F(DesktopTest, FolderListShowsTheFolderOfTheModel) {
    forms.frm_ChoseDir.Dir1.text = folder.path();
    show(forms.frm_ChoseDir);
    auto& folders = widget<FolderView>(forms.frm_ChoseDir.Dir1);
    EXPECT_EQ(folders.folder().toStdString(), folder.path());
    EXPECT_TRUE(QTest::qWaitFor([&] { return folders.visualRect(folders.currentIndex()).isValid(); }));
}

// Buttons have the height that their captions need, at the size in which each window opens.
TEST_F(DesktopTest, NoCaptionIsCut) {
    forms.frm1_Settings.pict_IS.visible = true;
    for (Form* form : forms.all()) {
        if (form == &forms.frm2_Time) continue;  // its buttons stand where the handlers place them
        show(*form);
        for (const Control* control : form->controls) {
            QWidget* const shown = desktop.widget(*control);
            if (shown == nullptr || !shown->isVisible()) continue;
            if (const auto* button = dynamic_cast<ButtonView*>(shown)) {
                EXPECT_GE(button->height(), button->heightForWidth(button->width())) << control->text;
                EXPECT_GE(button->width(), button->minimumSizeHint().width()) << control->text;
            } else if (control->kind == ControlKind::check || control->kind == ControlKind::option) {
                EXPECT_GE(shown->width(), shown->sizeHint().width()) << control->text;
            }
        }
    }
}

}  // namespace
}  // namespace kolvar::test
