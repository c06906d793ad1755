// Pixels of painted drawing commands.
#include "qt/canvas_painter.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kolvar {
namespace {

constexpr Colour white = palette(15);
constexpr Colour red = palette(12);
constexpr Colour blue = palette(9);
constexpr int px = 15;  // twips

QImage painted(const Canvas& canvas, int width, int height, int ratio = 1) {
    const double scale = ratio / 15.0;
    return paint_canvas(canvas, {width * ratio, height * ratio}, {scale, scale, static_cast<double>(ratio)}, white);
}

bool is(const QImage& image, int x, int y, Colour colour) { return image.pixelColor(x, y) == qt_colour(colour); }

int count(const QImage& image, Colour colour) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) found += is(image, x, y, colour) ? 1 : 0;
    return found;
}

TEST(CanvasPainter, RectangleFillsWholePixels) {
    Canvas canvas;
    canvas.Clear();
    canvas.FillRect(2 * px, 3 * px, 6 * px, 5 * px, red);
    const QImage image = painted(canvas, 10, 10);
    EXPECT_EQ(count(image, red), 4 * 2);
    EXPECT_TRUE(is(image, 2, 3, red));
    EXPECT_TRUE(is(image, 5, 4, red));
    EXPECT_TRUE(is(image, 6, 4, white));
}

TEST(CanvasPainter, TwiceTheResolutionHasFourTimesThePixels) {
    Canvas canvas;
    canvas.Clear();
    canvas.FillRect(2 * px, 3 * px, 6 * px, 5 * px, red);
    EXPECT_EQ(count(painted(canvas, 10, 10, 2), red), 4 * 2 * 4);
}

TEST(CanvasPainter, UprightLineIsOneSharpColumn) {
    Canvas canvas;
    canvas.Clear();
    canvas.Line(4 * px + 7, 0, 4 * px + 7, 10 * px, red);
    EXPECT_EQ(count(painted(canvas, 10, 10), red), 10);
    EXPECT_TRUE(is(painted(canvas, 10, 10), 4, 9, red));
    EXPECT_EQ(count(painted(canvas, 10, 10, 2), red), 2 * 20);
}

TEST(CanvasPainter, PiecesOfTwoCurvesInTurnsMakeTheSamePictureAsOneCurveAfterTheOther) {
    Canvas in_turns, one_by_one;
    for (Canvas* canvas : {&in_turns, &one_by_one}) canvas->Clear();
    const auto piece = [](Canvas& canvas, int i, int top, Colour colour) {
        canvas.Line(8 * px * i, (top + i % 2) * px, 8 * px * (i + 1), (top + 1 - i % 2) * px, colour);
    };
    for (int i = 0; i < 5; ++i) {
        piece(in_turns, i, 2, red);
        piece(in_turns, i, 9, blue);
    }
    for (int i = 0; i < 5; ++i) piece(one_by_one, i, 2, red);
    for (int i = 0; i < 5; ++i) piece(one_by_one, i, 9, blue);
    const QImage image = painted(in_turns, 40, 14);
    EXPECT_EQ(image, painted(one_by_one, 40, 14));
    EXPECT_LT(count(image, white), 40 * 14 - 60);
}

TEST(CanvasPainter, MoreCurvesThanAreHeldOpenAreAllPainted) {
    Canvas canvas;
    canvas.Clear();
    for (int row = 0; row < 40; ++row) canvas.Line(0, row * px, 10 * px, row * px, red);
    EXPECT_EQ(count(painted(canvas, 10, 40), red), 400);
}

TEST(CanvasPainter, LineAtTheRightEdgeIsSeen) {
    Canvas canvas;
    canvas.Clear();
    canvas.Line(10 * px, 0, 10 * px, 10 * px, red);
    EXPECT_EQ(count(painted(canvas, 10, 10), red), 10);
}

TEST(CanvasPainter, LineWidthIsInPixels) {
    Canvas canvas;
    canvas.Clear();
    canvas.SetLineWidth(3);
    canvas.Line(0, 4 * px, 10 * px, 4 * px, red);
    EXPECT_EQ(count(painted(canvas, 10, 10), red), 3 * 10);
}

TEST(CanvasPainter, ClearErasesWhatWasBefore) {
    Canvas canvas;
    canvas.FillRect(0, 0, 10 * px, 10 * px, red);
    canvas.Clear();
    canvas.FillRect(0, 0, px, px, blue);
    const QImage image = painted(canvas, 10, 10);
    EXPECT_EQ(count(image, red), 0);
    EXPECT_EQ(count(image, blue), 1);
}

TEST(CanvasPainter, CirclesLieAroundTheirCentre) {
    Canvas canvas;
    canvas.Clear();
    canvas.Circle(20 * px, 20 * px, 10 * px, red);
    const QImage image = painted(canvas, 40, 40);
    EXPECT_TRUE(is(image, 20, 20, white));
    EXPECT_FALSE(is(image, 10, 20, white));
    EXPECT_FALSE(is(image, 20, 29, white));
    EXPECT_TRUE(is(image, 5, 5, white));
}

TEST(CanvasPainter, LegendsArePaintedAndOtherLabelsAreNot) {
    Canvas beside;
    beside.Clear();
    beside.note_label("lblMaxCps", "1000", 0, 0);
    EXPECT_EQ(count(painted(beside, 60, 30), white), 60 * 30);
    Canvas legend;
    legend.Clear();
    legend.note_label("legend1", "1000", 0, 0);
    EXPECT_LT(count(painted(legend, 60, 30), white), 60 * 30);
}

// Ten points fall on each pixel column; a tooth of the saw goes from row 2 to row 7.
TEST(CanvasPainter, DenseCurveReachesFromItsLowestToItsHighestPointInEachColumn) {
    Canvas canvas;
    canvas.Clear();
    for (int i = 1; i < 200; ++i)
        canvas.Line(1.5 * (i - 1), i % 2 == 1 ? 2.5 * px : 7.5 * px, 1.5 * i, i % 2 == 0 ? 2.5 * px : 7.5 * px, red);
    const QImage image = painted(canvas, 20, 10);
    for (int x = 0; x < 20; ++x)
        for (int y = 0; y < 10; ++y) EXPECT_EQ(is(image, x, y, red), y >= 2 && y <= 7) << x << ", " << y;
}

// The plain reading: each line by itself, in every pixel column it passes, all rows between its ends there.
QImage plainly(const std::vector<QPointF>& curve, int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(qt_colour(white));
    for (std::size_t i = 1; i < curve.size(); ++i) {
        const QPointF a = curve[i - 1], b = curve[i];
        for (int x = 0; x < width; ++x) {
            if (b.x() < x || a.x() >= x + 1) continue;
            const double slope = b.x() > a.x() ? (b.y() - a.y()) / (b.x() - a.x()) : 0;
            const bool upright = std::floor(a.x()) == std::floor(b.x());
            const double y1 = upright ? a.y() : a.y() + slope * (std::max<double>(x, a.x()) - a.x());
            const double y2 = upright ? b.y() : a.y() + slope * (std::min<double>(x + 1, b.x()) - a.x());
            for (int y = 0; y < height; ++y)
                if (std::floor(std::min(y1, y2)) <= y && y <= std::floor(std::max(y1, y2)))
                    image.setPixelColor(x, y, qt_colour(red));
        }
    }
    return image;
}

TEST(CanvasPainter, ThinnedCurveGivesThePixelsOfTheWholeCurve) {
    constexpr int width = 120, height = 80, points = 900;
    std::vector<QPointF> curve;
    unsigned random = 12345;
    for (int i = 0; i <= points; ++i) {
        random = random * 1664525U + 1013904223U;
        const double noise = static_cast<double>(random >> 16U) / 65536.0;
        curve.emplace_back(static_cast<double>(width) * i / points,
                           height * (0.5 + 0.3 * std::sin(i / 40.0)) + 30 * (noise - 0.5));
    }
    // 16 units to a pixel: no rounding on the way there and back.
    Canvas canvas;
    canvas.Clear();
    for (std::size_t i = 1; i < curve.size(); ++i)
        canvas.Line(curve[i - 1].x() * 16, curve[i - 1].y() * 16, curve[i].x() * 16, curve[i].y() * 16, red);
    const QImage fast = paint_canvas(canvas, {width, height}, {1.0 / 16, 1.0 / 16, 1}, white);
    EXPECT_EQ(fast, plainly(curve, width, height));
    EXPECT_GT(count(fast, red), width);
}

TEST(CanvasPainter, PointsFarOutsideAreCutOff) {
    Canvas canvas;
    canvas.Clear();
    for (int i = 1; i < 400; ++i) canvas.Line(i - 1, i % 2 == 1 ? 5 * px : 1e15, i, i % 2 == 0 ? 5 * px : 1e15, red);
    const QImage image = painted(canvas, 26, 10);
    EXPECT_TRUE(is(image, 3, 9, red));
    EXPECT_TRUE(is(image, 3, 4, white));
}

}  // namespace
}  // namespace kolvar
