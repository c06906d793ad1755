#include "qt/canvas_view.hpp"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "qt/canvas_painter.hpp"
#include "qt/text.hpp"

namespace kolvar {

CanvasView::CanvasView(Picture& picture, QWidget* parent) : QWidget(parent), picture_(picture) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    // A picture whose size nobody has set takes the size that the layout gives it.
    follows_layout_ = picture.width <= 0 || picture.height <= 0;
}

QSize CanvasView::sizeHint() const {
    if (picture_.width > 0 && picture_.height > 0) return {pixels(picture_.width), pixels(picture_.height)};
    return {240, 100};
}

void CanvasView::press(int button, int shift, double x_twips, double y_twips) {
    if (on_press) on_press(button, shift, x_twips, y_twips);
}

void CanvasView::release() {
    hold_line(std::nullopt);
    if (on_release) on_release();
}

void CanvasView::refresh() {
    if (rendered_ != picture_.canvas.revision()) update();
}

void CanvasView::resizeEvent(QResizeEvent*) {
    if (!follows_layout_ || picture_.placed || picture_.sized_by_hand) return;
    picture_.width = width() * twips_per_pixel;
    picture_.height = height() * twips_per_pixel;
}

void CanvasView::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    const QSize device(static_cast<int>(std::lround(width() * ratio)), static_cast<int>(std::lround(height() * ratio)));
    if (rendered_ != picture_.canvas.revision()) {
        drawn_width_ = picture_.width > 0 ? picture_.width : width() * twips_per_pixel;
        drawn_height_ = picture_.height > 0 ? picture_.height : height() * twips_per_pixel;
    }
    if (rendered_ != picture_.canvas.revision() || pixmap_.size() != device) {
        const CanvasScale scale{device.width() / drawn_width_, device.height() / drawn_height_, ratio};
        pixmap_ = QPixmap::fromImage(
            paint_canvas(picture_.canvas, device, scale, picture_.back.value_or(ground.value_or(kolvar::palette(15)))));
        pixmap_.setDevicePixelRatio(ratio);
        rendered_ = picture_.canvas.revision();
        ++replays_;
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, pixmap_);
    if (!isEnabled()) painter.fillRect(rect(), QColor(240, 240, 240, 120));
    if (line_at_) {
        painter.setPen(QPen(QColor(90, 90, 90), 1, Qt::DashLine));
        painter.drawLine(*line_at_, 0, *line_at_, height());
    }
}

void CanvasView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
    const int button = event->button() == Qt::LeftButton ? 1 : 2;
    const Qt::KeyboardModifiers keys = event->modifiers();
    const int shift =
        (keys & Qt::ShiftModifier ? 1 : 0) + (keys & Qt::ControlModifier ? 2 : 0) + (keys & Qt::AltModifier ? 4 : 0);
    if (marks_limits) hold_line(static_cast<int>(event->position().x()));
    press(button, shift, event->position().x() * twips_per_pixel, event->position().y() * twips_per_pixel);
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
    if (line_at_)
        hold_line(event->buttons() == Qt::NoButton ? std::nullopt
                                                   : std::optional(static_cast<int>(event->position().x())));
    if (on_hover) on_hover(event->position() * twips_per_pixel);
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
    const bool click = event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    release();
    if (click && on_click) on_click();
}

void CanvasView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second press of two quick clicks marks like any other.
    mousePressEvent(event);
    if (event->button() == Qt::LeftButton && on_dblclick) on_dblclick();
}

void CanvasView::leaveEvent(QEvent*) {
    hold_line(std::nullopt);
    if (on_hover) on_hover(std::nullopt);
}

void CanvasView::hold_line(std::optional<int> at) {
    if (line_at_ == at) return;
    line_at_ = at;
    update();
}

}  // namespace kolvar
