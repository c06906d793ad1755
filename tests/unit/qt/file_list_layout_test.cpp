#include <QHeaderView>
#include <QScrollBar>

#include "desktop_fixture.hpp"
#include "qt/grid_view.hpp"

namespace kolvar::test {
namespace {

class FileListLayout : public DesktopTest {
protected:
    FileListLayout() : form(forms.frm_FileList), grid(form.FlexGrid2) {}
    // A table as large as the window's, with so many lines.
    void fill(int lines) {
        grid.resize(1000, 80);
        for (int field = 1; field < 64; ++field) grid.cell(0, field).text = "CF " + std::to_string(field);
        for (int line = 1; line <= lines; ++line)
            for (int field = 0; field < 64; ++field)
                grid.cell(line, field).text = field == 0 ? std::to_string(line) + "-zircon.csv" : "0.12345";
        grid.touch();
    }
    GridView& view() { return widget<GridView>(grid); }

    FrmFileList& form;
    Grid& grid;
};

TEST_F(FileListLayout, OnlyLinesInUseAndTitledColumnsAreShown) {
    fill(12);
    show(form);
    EXPECT_EQ(view().model()->rowCount(), 12);
    EXPECT_EQ(view().model()->columnCount(), 63);
}

TEST_F(FileListLayout, AColumnKeepsTheWidthThatTheUserGaveIt) {
    fill(12);
    show(form);
    QHeaderView& head = *view().horizontalHeader();
    head.resizeSection(2, 200);
    const int fitted = head.sectionSize(3);
    grid.cell(1, 4).text = "a much longer text than before";
    grid.touch();
    desktop.sync();
    EXPECT_EQ(head.sectionSize(2), 200);
    EXPECT_GT(head.sectionSize(3), fitted);
}

TEST_F(FileListLayout, EnterInACellIsADoubleClick) {
    fill(3);
    show(form);
    catch_events(form, "FlexGrid2", EventKind::cell_dblclick);
    view().setFocus();
    view().setCurrentIndex(view().model()->index(1, 2));
    QTest::keyClick(&view(), Qt::Key_Return);
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].row, 2);
    EXPECT_EQ(caught[0].col, 3);
}

TEST_F(FileListLayout, ADoubleClickOnTheNameIsOneOnColumnNought) {
    fill(3);
    show(form);
    catch_events(form, "FlexGrid2", EventKind::cell_dblclick);
    QHeaderView& names = *view().verticalHeader();
    const QPoint second(20, names.sectionViewportPosition(1) + names.sectionSize(1) / 2);
    QTest::mouseClick(names.viewport(), Qt::LeftButton, Qt::NoModifier, second);
    QTest::mouseDClick(names.viewport(), Qt::LeftButton, Qt::NoModifier, second);
    ASSERT_EQ(caught.size(), 1U);
    EXPECT_EQ(caught[0].row, 2);
    EXPECT_EQ(caught[0].col, 0);
}

TEST_F(FileListLayout, FitsASmallScreenInEveryWay) {
    fill(12);
    for (Control* control : std::initializer_list<Control*>{&form.comboStd, &form.lblStd}) control->visible = true;
    form.lblStd.text = "Standard of No. 1000:";
    show(form);
    const QSize least = window(form).minimumSizeHint();
    EXPECT_LE(least.width(), 1280);
    EXPECT_LE(least.height(), 740);  // the desktop's own bars take the rest of 800
}

TEST_F(FileListLayout, FiveHundredLinesScrollToTheLast) {
    fill(500);
    show(form);
    EXPECT_EQ(view().model()->rowCount(), 500);
    EXPECT_EQ(view().rowAt(0), 0);
    QScrollBar& bar = *view().verticalScrollBar();
    bar.setValue(bar.maximum());
    EXPECT_EQ(view().rowAt(view().viewport()->height() - 1), 499);
    EXPECT_EQ(view().model()->headerData(499, Qt::Vertical).toString(), "500-zircon.csv");
}

TEST_F(FileListLayout, EscCloses) {
    show(form);
    catch_events(form, "cmdClose", EventKind::click);
    window(form).setFocus();
    QTest::keyClick(&window(form), Qt::Key_Escape);
    EXPECT_EQ(caught.size(), 1U);
}

}  // namespace
}  // namespace kolvar::test
