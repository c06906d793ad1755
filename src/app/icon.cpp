#include "app/icon.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace kolvar {

namespace {

QPixmap painted(int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    painter.setPen(QPen(QColor(0x20, 0x30, 0x60), 2));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 8, 8);
    painter.setPen(Qt::NoPen);
    painter.fillRect(QRectF(8, 8, 14, 48), QColor(192, 255, 255));
    painter.fillRect(QRectF(30, 8, 24, 48), QColor(255, 255, 225));
    QPainterPath curve(QPointF(6, 50));
    for (const QPointF at : {QPointF(22, 49), QPointF(27, 16), QPointF(31, 20), QPointF(36, 18), QPointF(42, 25),
                             QPointF(48, 24), QPointF(53, 30), QPointF(55, 49), QPointF(58, 50)})
        curve.lineTo(at);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 0, 0), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(curve);
    return picture;
}

}  // namespace

QIcon program_icon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) icon.addPixmap(painted(size));
    return icon;
}

}  // namespace kolvar
