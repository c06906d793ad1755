// Shows a picture: its list of drawing commands, rendered once into a pixmap.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <optional>

#include "ui/control.hpp"

namespace kolvar {

class CanvasView : public QWidget {
public:
    CanvasView(Picture& picture, QWidget* parent);

    // Mouse button down at a position in twips (button 1 left, 2 right; shift the sum of 1 SHIFT, 2 CTRL, 4 ALT), and
    // up.
    void press(int button, int shift, double x_twips, double y_twips);
    void release();

    std::function<void(int button, int shift, double x, double y)> on_press;
    std::function<void()> on_release, on_click, on_dblclick;
    // The pointer moves over the picture (twips), or has left it.
    std::function<void(std::optional<QPointF>)> on_hover;
    // The ground where the picture has none of its own.
    std::optional<Colour> ground;
    // Limits are marked on this picture: a line follows the pointer while a button is held.
    bool marks_limits = false;

    // Repaints when the list of commands has changed.
    void refresh();
    // How often the commands were replayed.
    [[nodiscard]] int replays() const { return replays_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void hold_line(std::optional<int> at);

    Picture& picture_;
    QPixmap pixmap_;
    std::optional<std::uint64_t> rendered_;
    double drawn_width_ = 0, drawn_height_ = 0;  // twips, when the list was last changed
    std::optional<int> line_at_;                 // logical pixels
    int replays_ = 0;
    bool follows_layout_ = false;
};

}  // namespace kolvar
