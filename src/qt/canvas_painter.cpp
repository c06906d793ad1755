#include "qt/canvas_painter.hpp"

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <vector>

#include "qt/text.hpp"
#include "qt/wide_registers.hpp"

namespace kolvar {

namespace {

// Farther out the raster of Qt would overflow; nothing of it is seen.
constexpr double far_out = 1.0e6;
constexpr std::ptrdiff_t most_smooth_lines = 12000;
constexpr std::size_t most_open_curves = 16;

double inside(double at) { return std::clamp(at, -far_out, far_out); }

class Replay {
public:
    Replay(QImage& image, CanvasScale scale, Colour ground)
        : image_(image),
          scale_(scale),
          ground_(qt_colour(ground)),
          width_(image.width()),
          height_(image.height()),
          pixels_(reinterpret_cast<QRgb*>(image.bits())),
          stride_(image.bytesPerLine() / 4),
          painter_(&image) {}

    void run(const Canvas& canvas) {
        lines_ = std::count_if(canvas.commands().begin(), canvas.commands().end(),
                               [](const DrawCommand& command) { return command.kind == DrawCommand::Kind::line; });
        for (const DrawCommand& command : canvas.commands()) {
            if (command.kind == DrawCommand::Kind::line) {
                line(command);
                continue;
            }
            finish_curves();
            other(command, canvas);
        }
        finish_curves();
    }

private:
    [[nodiscard]] QPointF point(double x, double y) const { return {inside(x * scale_.x), inside(y * scale_.y)}; }

    struct Curve {
        Colour colour;
        std::vector<QPointF> points;
    };

    // A line that goes on where one of its colour ended belongs to the same curve, also where the pieces of several
    // curves come in turns.
    void line(const DrawCommand& command) {
        const QPointF from = point(command.x1, command.y1), to = point(command.x2, command.y2);
        const auto before = std::find_if(open_.rbegin(), open_.rend(), [&](const Curve& curve) {
            return curve.points.back() == from && curve.colour == command.colour;
        });
        if (before != open_.rend()) {
            before->points.push_back(to);
            return;
        }
        if (open_.size() == most_open_curves) finish_curves();
        open_.push_back({command.colour, {from, to}});
    }

    void finish_curves() {
        for (Curve& open : open_) {
            colour_ = open.colour;
            curve_ = std::move(open.points);
            finish_curve();
        }
        open_.clear();
    }

    void other(const DrawCommand& command, const Canvas& canvas) {
        using Kind = DrawCommand::Kind;
        switch (command.kind) {
            case Kind::clear:
                image_.fill(ground_);
                thick_ = 1;
                break;
            case Kind::fill_rect: {
                const QPointF a = point(command.x1, command.y1), b = point(command.x2, command.y2);
                fill(std::min(a.x(), b.x()), std::min(a.y(), b.y()), std::max(a.x(), b.x()), std::max(a.y(), b.y()),
                     command.colour);
                break;
            }
            case Kind::circle: {
                painter_.setRenderHint(QPainter::Antialiasing);
                painter_.setPen(QPen(qt_colour(command.colour), pen_width()));
                painter_.setBrush(Qt::NoBrush);
                painter_.drawEllipse(point(command.x1, command.y1), command.x2 * scale_.x, command.x2 * scale_.y);
                break;
            }
            case Kind::line_width:
                thick_ = std::max(1, command.number);
                break;
            case Kind::show_label: {
                const Canvas::LabelText& label = canvas.labels()[static_cast<std::size_t>(command.number)];
                if (label.name.rfind("legend", 0) == 0) text(label.text, point(command.x1, command.y1));
                break;
            }
            case Kind::hide_label:
            case Kind::line:
                break;
        }
    }

    [[nodiscard]] double pen_width() const { return thick_ * scale_.device_ratio; }

    void fill(double x1, double y1, double x2, double y2, Colour colour) {
        const int left = static_cast<int>(std::lround(x1)), top = static_cast<int>(std::lround(y1));
        painter_.fillRect(left, top, static_cast<int>(std::lround(x2)) - left, static_cast<int>(std::lround(y2)) - top,
                          qt_colour(colour));
    }

    void text(const std::string& what, QPointF at) {
        QFont font = QApplication::font();
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(12 * scale_.device_ratio))));
        painter_.setFont(font);
        painter_.setPen(Qt::black);
        painter_.drawText(QRectF(at.x(), at.y(), 4000, 4000), Qt::AlignLeft | Qt::AlignTop, shown(what));
    }

    void finish_curve() {
        if (curve_.size() == 2 && (curve_[0].x() == curve_[1].x() || curve_[0].y() == curve_[1].y()))
            straight(curve_[0], curve_[1]);
        else if (curve_.size() > 1)
            curve();
        curve_.clear();
    }

    // A line along an axis lies on whole pixels.
    void straight(QPointF a, QPointF b) {
        const int thick = std::max(1, static_cast<int>(std::lround(pen_width())));
        const double left = std::floor(std::min(a.x(), b.x())), top = std::floor(std::min(a.y(), b.y()));
        const bool upright = a.x() == b.x();
        // The last row and column of the plot belong to it.
        const double x = std::min(left, static_cast<double>(width_ - (upright ? thick : 0)));
        const double y = std::min(top, static_cast<double>(height_ - (upright ? 0 : thick)));
        fill(x, y, upright ? x + thick : std::max(a.x(), b.x()), upright ? std::max(a.y(), b.y()) : y + thick, colour_);
    }

    // Smooth lines are for plots of few lines; many are painted column by column, in a fraction of the time.
    void curve() {
        const double across = std::abs(curve_.back().x() - curve_.front().x());
        const bool sparse = lines_ <= most_smooth_lines && 2 * static_cast<double>(curve_.size()) < across + 16;
        const bool rising = std::is_sorted(curve_.begin(), curve_.end(),
                                           [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
        if (!sparse && rising) {
            columns();
            return;
        }
        painter_.setRenderHint(QPainter::Antialiasing, sparse);
        if (pen_width() <= 1) {
            painter_.setPen(QPen(qt_colour(colour_), 1));
            painter_.drawPolyline(QPolygonF(QList<QPointF>(curve_.begin(), curve_.end())));
            return;
        }
        // Line by line: the outline of a whole wide curve takes Qt a hundred times longer.
        painter_.setPen(QPen(qt_colour(colour_), pen_width(), Qt::SolidLine, Qt::SquareCap));
        for (std::size_t i = 1; i < curve_.size(); ++i) painter_.drawLine(curve_[i - 1], curve_[i]);
    }

    // The curve touches each pixel column from a lowest to a highest row.
    void columns() {
        lowest_.assign(static_cast<std::size_t>(width_), far_out);
        highest_.assign(static_cast<std::size_t>(width_), -far_out);
        for (std::size_t i = 1; i < curve_.size(); ++i) segment(curve_[i - 1], curve_[i]);
        const int thick = std::max(1, static_cast<int>(std::lround(pen_width())));
        const QRgb ink = qt_colour(colour_).rgb();
        for (int column = 0; column < width_; ++column) {
            const auto at = static_cast<std::size_t>(column);
            if (lowest_[at] > highest_[at]) continue;
            const int from = static_cast<int>(std::floor(std::clamp(lowest_[at], 0.0, static_cast<double>(height_))));
            const double below = std::floor(std::clamp(highest_[at], -1.0, static_cast<double>(height_ - 1)));
            const int to = std::min(static_cast<int>(below) + thick, height_);
            const int right = std::min(column + thick, width_);
            QRgb* row = pixels_ + from * stride_;
            for (int y = from; y < to; ++y, row += stride_)
                for (int x = column; x < right; ++x) row[x] = ink;
        }
    }

    void segment(QPointF a, QPointF b) {
        const int first = std::max(0, static_cast<int>(std::floor(a.x())));
        const int last = std::min(width_ - 1, static_cast<int>(std::floor(b.x())));
        if (first == last || a.x() == b.x()) {
            if (first <= last) touch(first, a.y(), b.y());
            return;
        }
        const double slope = (b.y() - a.y()) / (b.x() - a.x());
        for (int column = first; column <= last; ++column) {
            const double x1 = std::max(a.x(), static_cast<double>(column));
            const double x2 = std::min(b.x(), static_cast<double>(column) + 1);
            touch(column, a.y() + slope * (x1 - a.x()), a.y() + slope * (x2 - a.x()));
        }
    }

    void touch(int column, double y1, double y2) {
        const auto at = static_cast<std::size_t>(column);
        lowest_[at] = std::min({lowest_[at], y1, y2});
        highest_[at] = std::max({highest_[at], y1, y2});
    }

    QImage& image_;
    CanvasScale scale_;
    QColor ground_;
    int width_, height_;
    QRgb* pixels_;
    qsizetype stride_;
    QPainter painter_;
    int thick_ = 1;
    std::ptrdiff_t lines_ = 0;
    Colour colour_;
    std::vector<Curve> open_;
    std::vector<QPointF> curve_;  // the one that is painted
    std::vector<double> lowest_, highest_;
};

}  // namespace

QImage paint_canvas(const Canvas& canvas, QSize device_size, CanvasScale scale, Colour ground) {
    QImage image(device_size, QImage::Format_RGB32);
    image.fill(qt_colour(ground));
    if (!image.isNull()) Replay(image, scale, ground).run(canvas);
    release_wide_registers();
    return image;
}

}  // namespace kolvar
