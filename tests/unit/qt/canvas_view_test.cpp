// The view of a picture: when it paints, what the mouse on it means.
#include "qt/canvas_view.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <vector>

#include "ui/forms.hpp"

namespace kolvar {
namespace {

struct Pressed {
    int button, shift;
    double x, y;
};

class CanvasViewTest : public ::testing::Test {
protected:
    CanvasViewTest() {
        form.pict1.width = 3000;
        form.pict1.height = 1500;
        view.resize(200, 100);
        view.on_press = [this](int button, int shift, double x, double y) { presses.push_back({button, shift, x, y}); };
        view.on_release = [this] { ++releases; };
        form.pict1.canvas.Clear();
        form.pict1.canvas.FillRect(0, 0, 1500, 1500, palette(12));
    }

    Frm2Time form;
    CanvasView view{form.pict1, nullptr};
    std::vector<Pressed> presses;
    int releases = 0;
};

TEST_F(CanvasViewTest, PaintsOnceForEachChangeOfTheList) {
    view.grab();
    view.grab();
    EXPECT_EQ(view.replays(), 1);
    form.pict1.canvas.Line(0, 0, 3000, 1500);
    form.pict1.canvas.Line(0, 1500, 3000, 0);
    view.grab();
    view.grab();
    EXPECT_EQ(view.replays(), 2);
    view.resize(300, 100);
    view.grab();
    EXPECT_EQ(view.replays(), 3);
}

TEST_F(CanvasViewTest, HalfOfThePlotIsHalfOfTheWidget) {
    const QImage image = view.grab().toImage();
    const int middle = image.width() / 2;
    EXPECT_EQ(image.pixelColor(middle - 2, 10), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(middle + 2, 10), QColor(255, 255, 255));
}

TEST_F(CanvasViewTest, PressesAndReleasesAreHandedOnInTwips) {
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, {10, 20});
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, {10, 20});
    QTest::mousePress(&view, Qt::RightButton, Qt::ShiftModifier, {40, 50});
    QTest::mousePress(&view, Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier, {0, 0});
    ASSERT_EQ(presses.size(), 3U);
    EXPECT_EQ(presses[0].button, 1);
    EXPECT_EQ(presses[0].shift, 0);
    EXPECT_EQ(presses[0].x, 150);
    EXPECT_EQ(presses[0].y, 300);
    EXPECT_EQ(presses[1].button, 2);
    EXPECT_EQ(presses[1].shift, 1);
    EXPECT_EQ(presses[1].x, 600);
    EXPECT_EQ(presses[2].shift, 2 + 4);
    EXPECT_EQ(releases, 1);
}

TEST_F(CanvasViewTest, ExactTwipsPassUnchanged) {
    view.press(2, 1, 1234.5, 7);
    ASSERT_EQ(presses.size(), 1U);
    EXPECT_EQ(presses[0].x, 1234.5);
}

TEST_F(CanvasViewTest, LineFollowsThePointerOnlyWhileAButtonIsHeld) {
    view.marks_limits = true;
    const QImage bare = view.grab().toImage();
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, {150, 50});
    EXPECT_NE(view.grab().toImage(), bare);
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, {150, 50});
    EXPECT_EQ(view.grab().toImage(), bare);
    EXPECT_EQ(view.replays(), 1) << "the line is the view's own";
}

TEST_F(CanvasViewTest, HoverTellsWhereThePointerIs) {
    std::vector<std::optional<QPointF>> seen;
    view.on_hover = [&](std::optional<QPointF> at) { seen.push_back(at); };
    QMouseEvent move(QEvent::MouseMove, QPointF(30, 40), view.mapToGlobal(QPointF(30, 40)), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&view, &move);
    QEvent left(QEvent::Leave);
    QApplication::sendEvent(&view, &left);
    ASSERT_GE(seen.size(), 2U);
    EXPECT_EQ(seen.front(), QPointF(450, 600));
    EXPECT_EQ(seen.back(), std::nullopt);
    EXPECT_TRUE(presses.empty());
}

}  // namespace
}  // namespace kolvar
