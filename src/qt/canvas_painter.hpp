// Paints a list of drawing commands into an image.
#pragma once

#include <QColor>
#include <QImage>

#include "ui/canvas.hpp"

namespace kolvar {

struct CanvasScale {
    double x = 1.0 / 15, y = 1.0 / 15;  // device pixels per twip
    double device_ratio = 1;            // device pixels per logical pixel: width of lines, size of texts
};

inline QColor qt_colour(Colour colour) { return QColor::fromRgb(0xFF000000U | colour.rgb); }

// Lines of one colour that follow each other end to start are one curve. A curve with several points to a pixel column
// is painted column by column from its lowest to its highest point there, which gives the pixels of the whole curve.
QImage paint_canvas(const Canvas& canvas, QSize device_size, CanvasScale scale, Colour ground);

}  // namespace kolvar
