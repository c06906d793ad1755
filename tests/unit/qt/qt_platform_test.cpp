// Boxes and dialogs as the system shows them.
#include "qt/qt_platform.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QKeyEvent>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "support/test_support.hpp"

namespace kolvar::test {
namespace {

// Acts on the modal window once it is there.
template <class Dialog>
void when_shown(std::function<void(Dialog&)> act) {
    QTimer::singleShot(0, [act] {
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

TEST(QtPlatform, FiltersKeepTheirOrder) {
    EXPECT_EQ(name_filters("All Files (*.*)|*.*|Setting Files (*.set)|*.set"),
              QStringList({"All Files (*)", "Setting Files (*.set)"}));
    EXPECT_EQ(name_filters("Spectra|*.csv;*.txt"), QStringList({"Spectra (*.csv *.txt)"}));
    EXPECT_EQ(name_filters("Blank File (*.blk)|*.blk|All Files (*.*)|*.*|"),
              QStringList({"Blank File (*.blk)", "All Files (*)"}));
    EXPECT_TRUE(name_filters("").isEmpty());
}

TEST(QtPlatform, BoxShowsItsTextAsItIs) {
    QString text, title;
    Qt::TextFormat format = Qt::RichText;
    when_shown<QMessageBox>([&](QMessageBox& box) {
        text = box.text();
        title = box.windowTitle();
        format = box.textFormat();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    QtPlatform().warn("<b>5</b> & more\nsecond line", "KOLVAR");
    EXPECT_EQ(text, "<b>5</b> & more\nsecond line");
    EXPECT_EQ(title, "KOLVAR");
    EXPECT_EQ(format, Qt::PlainText);
}

TEST(QtPlatform, EnterAndEscAnswerNo) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        when_shown<QMessageBox>([key](QMessageBox& box) { QTest::keyClick(&box, key); });
        EXPECT_FALSE(QtPlatform().ask("Overwrite existing file?", ""));
    }
    when_shown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(QtPlatform().ask("Overwrite existing file?", ""));
}

TEST(QtPlatform, FaultBoxEndsByDefault) {
    when_shown<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(QtPlatform().fault("Run-time error"), Platform::FaultAnswer::end);
    when_shown<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(QtPlatform().fault("Run-time error"), Platform::FaultAnswer::go_on);
}

TEST(QtPlatform, SaveDialogReturnsWhatWasTypedAndAsksNothing) {
    const TempFolder folder;
    folder.write("there", "old");
    const QString before = QDir::currentPath();
    QString preselected, proposed;
    when_shown<QFileDialog>([&](QFileDialog& dialog) {
        preselected = dialog.selectedNameFilter();
        proposed = dialog.selectedFiles().value(0);
        dialog.selectFile("there");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    FileDialog wanted;
    wanted.filter = "All Files (*.*)|*.*|Tab delimited text files (*.txt)|*.txt";
    wanted.index = 2;
    wanted.name = "example_t5-t80.txt";
    wanted.folder = folder.path();
    const std::optional<std::string> path = QtPlatform().save_file(wanted);
    EXPECT_EQ(preselected, "Tab delimited text files (*.txt)");
    EXPECT_EQ(QFileInfo(proposed).fileName(), "example_t5-t80.txt");
    ASSERT_TRUE(path.has_value());
    EXPECT_EQ(std::filesystem::path(*path).filename(), "there") << "no ending is added";
    EXPECT_EQ(QDir::currentPath(), before);
}

TEST(QtPlatform, CancelledDialogsTellNothing) {
    when_shown<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(QtPlatform().save_file({}).has_value());
    when_shown<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(QtPlatform().open_file({}), "");
}

TEST(QtPlatform, MissingDocumentIsNotOpened) {
    const TempFolder folder;
    EXPECT_FALSE(QtPlatform().open_document(folder.path("kol-grubbs.pdf")));
}

TEST(QtPlatform, ClipboardKeepsTabsAndLineEnds) {
    QtPlatform platform;
    platform.set_clipboard("a\tb\r\nc\r");
    EXPECT_EQ(platform.clipboard(), "a\tb\r\nc\r");
}

TEST(QtPlatform, APictureOnTheClipboardIsNoText) {
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QApplication::clipboard()->setImage(picture);
    EXPECT_EQ(QtPlatform().clipboard(), "");
}

// What a long calculation inside a click shows: the window goes on standing there, painted, and hears nothing.
struct Window : QWidget {
    int bar_painted = 0, keys = 0;
    Window() {
        resize(800, 600);
        show();
        activateWindow();
    }
    QProgressBar* bar() const { return findChild<QProgressBar*>(); }
    void watch_bar() { bar()->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++bar_painted;
        return false;
    }
    void keyPressEvent(QKeyEvent*) override { ++keys; }
};

TEST(QtPlatform, ProgressAppearsCountsAndGoes) {
    Window window;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QtPlatform platform;
    EXPECT_EQ(window.bar(), nullptr);
    platform.progress(1, 61);
    ASSERT_NE(window.bar(), nullptr);
    EXPECT_TRUE(window.bar()->isVisible());
    EXPECT_TRUE(window.rect().contains(window.bar()->geometry()));
    EXPECT_EQ(window.bar()->maximum(), 61);
    EXPECT_EQ(window.bar()->value(), 1);
    window.watch_bar();
    QCoreApplication::postEvent(&window, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier));
    platform.progress(30, 61);
    EXPECT_EQ(window.bar()->value(), 30);
    EXPECT_GT(window.bar_painted, 0) << "painted at once";
    EXPECT_EQ(window.keys, 0) << "no other event is let in";
    EXPECT_EQ(window.findChildren<QProgressBar*>().size(), 1);
    platform.progress(61, 61);
    EXPECT_EQ(window.bar(), nullptr);
    platform.progress(1, 1);  // also where there is none
    EXPECT_EQ(window.bar(), nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.keys, 1);
}

TEST(QtPlatform, ProgressGoesWithItsWindow) {
    QtPlatform platform;
    {
        Window window;
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        platform.progress(1, 3);
        ASSERT_NE(window.bar(), nullptr);
    }
    platform.progress(2, 3);  // without a window nothing is shown
    platform.progress(3, 3);
    Window next;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&next));
    platform.progress(1, 3);
    EXPECT_NE(next.bar(), nullptr);
    platform.progress(1, 1);
}

TEST(QtPlatform, WaitCursorStandsAsLongAsTheWork) {
    QtPlatform platform;
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    {
        const WaitCursor waiting(platform);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// A settings file is proposed in its own folder, wherever the dialog would start without it.
TEST(QtPlatform, AProposedPathLeadsToItsFolder) {
    const TempFolder folder;
    const TempFolder elsewhere;
    FileDialog wanted;
    wanted.name = folder.path("own.set");
    wanted.folder = elsewhere.path();
    QString directory;
    when_shown<QFileDialog>([&directory](QFileDialog& dialog) {
        directory = dialog.directory().absolutePath();
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(QtPlatform().save_file(wanted), folder.path("own.set"));
    EXPECT_EQ(directory.toStdString(), folder.path());
}

}  // namespace
}  // namespace kolvar::test
