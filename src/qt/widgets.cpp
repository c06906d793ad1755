#include "qt/widgets.hpp"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

namespace kolvar {

namespace {
constexpr int side_room = 4;  // between the caption of a button and its edge
}  // namespace

const char* const CheckView::drag_format = "application/x-kolvar-control";

LabelView::LabelView(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void LabelView::elide(Qt::TextElideMode mode) {
    elide_ = mode;
    updateGeometry();
}

QSize LabelView::minimumSizeHint() const {
    const QSize hint = QLabel::minimumSizeHint();
    return elide_ == Qt::ElideNone ? hint : QSize(std::min(hint.width(), 40), hint.height());
}

void LabelView::paintEvent(QPaintEvent* event) {
    const QRect room = contentsRect().adjusted(margin(), 0, -margin(), 0);
    const bool cut = elide_ != Qt::ElideNone && fontMetrics().horizontalAdvance(text()) > room.width();
    if (elide_ != Qt::ElideNone) setToolTip(cut ? text().trimmed() : QString());
    if (!cut) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), elide_, room.width()), foregroundRole());
}

void LabelView::mousePressEvent(QMouseEvent* event) { pressed_ = event->button() == Qt::LeftButton; }

void LabelView::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = pressed_ && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    pressed_ = false;
    if (clicked && on_click) on_click();
}

void LabelView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && on_dblclick) on_dblclick();
}

void LabelView::dragEnterEvent(QDragEnterEvent* event) {
    if (on_drop && event->mimeData()->hasFormat(QLatin1String(CheckView::drag_format))) event->acceptProposedAction();
}

void LabelView::dropEvent(QDropEvent* event) {
    if (!on_drop) return;
    const QString source = QString::fromUtf8(event->mimeData()->data(QLatin1String(CheckView::drag_format)));
    event->acceptProposedAction();
    on_drop(source);
}

ButtonView::ButtonView(QWidget* parent) : QPushButton(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::PushButton);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void ButtonView::set_caption(const QString& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    setAccessibleName(caption);
    updateGeometry();
    update();
}

void ButtonView::set_line_width(int width) {
    line_width_ = width;
    updateGeometry();
}

QSize ButtonView::margins() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    const QSize text(100, 20);
    const QSize whole = style()->sizeFromContents(QStyle::CT_PushButton, &option, text, this);
    return {std::max(16, whole.width() - text.width()), std::max(8, whole.height() - text.height())};
}

QSize ButtonView::sizeHint() const {
    const int text = fontMetrics().size(Qt::TextSingleLine, caption_).width();
    if (text <= line_width_) {
        const QSize room = margins();
        const int height = fontMetrics().height() + room.height();
        return {std::max(80, text + room.width() + 8), std::max(26, height)};
    }
    const int width = line_width_ + margins().width();
    return {width, heightForWidth(width)};  // wraps
}

QSize ButtonView::minimumSizeHint() const {
    const int text = fontMetrics().size(Qt::TextSingleLine, caption_).width();
    return {std::min(text, line_width_) + margins().width(), fontMetrics().height() + margins().height()};
}

int ButtonView::heightForWidth(int width) const {
    const QSize room = margins();
    const QRect text = fontMetrics().boundingRect(QRect(0, 0, std::max(20, width - 2 * side_room), 10000),
                                                  Qt::TextWordWrap | Qt::AlignCenter, caption_);
    return std::max(26, text.height() + room.height());
}

bool ButtonView::event(QEvent* event) {
    if (focus_by_keys_ && event->type() == QEvent::Shortcut) setFocus(Qt::ShortcutFocusReason);
    return QPushButton::event(event);
}

void ButtonView::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    QRect room = rect().adjusted(side_room, 2, -side_room, -2);
    if (option.state & QStyle::State_Sunken)
        room.translate(style()->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &option, this),
                       style()->pixelMetric(QStyle::PM_ButtonShiftVertical, &option, this));
    style()->drawItemText(&painter, room, Qt::AlignCenter | Qt::TextWordWrap, palette(), isEnabled(), caption_,
                          QPalette::ButtonText);
}

void CheckView::mousePressEvent(QMouseEvent* event) {
    pressed_at_ = event->position().toPoint();
    QCheckBox::mousePressEvent(event);
}

void CheckView::mouseMoveEvent(QMouseEvent* event) {
    const bool away =
        (event->position().toPoint() - pressed_at_).manhattanLength() >= QApplication::startDragDistance();
    if (!draggable || !(event->buttons() & Qt::LeftButton) || !away) {
        QCheckBox::mouseMoveEvent(event);
        return;
    }
    setDown(false);
    auto* carried = new QMimeData;
    carried->setData(QLatin1String(drag_format), objectName().toUtf8());
    auto* drag = new QDrag(this);
    drag->setMimeData(carried);
    drag->setPixmap(grab());
    drag->exec(Qt::CopyAction);
}

void EntryView::keyPressEvent(QKeyEvent* event) {
    QLineEdit::keyPressEvent(event);
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return;
    event->accept();
    if (on_enter) on_enter();
}

void EntryView::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (left_by_user(*event) && on_leave) on_leave();
}

void TextView::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (left_by_user(*event) && on_leave) on_leave();
}

void PanelView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && on_click) return on_click();
    QFrame::mousePressEvent(event);
}

void PanelView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && on_dblclick) on_dblclick();
}

bool left_by_user(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason &&
           event.reason() != Qt::MenuBarFocusReason;
}

}  // namespace kolvar
