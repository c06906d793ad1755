#include "qt/layouts/pieces.hpp"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>

namespace kolvar {

namespace {

LabelView& label_of(FormWindow& window, const Control& control) { return *static_cast<LabelView*>(window.of(control)); }

class RoomyArea : public QScrollArea {
public:
    using QScrollArea::QScrollArea;
    [[nodiscard]] QSize sizeHint() const override {
        const QSize wanted = widget()->sizeHint() + QSize(2, 2);
        return wanted.boundedTo(QGuiApplication::primaryScreen()->availableSize() - QSize(20, 90));
    }
};

}  // namespace

LabelView& value_field(FormWindow& window, const Control& label) {
    LabelView& field = label_of(window, label);
    field.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    field.setMargin(2);
    field.elide(Qt::ElideMiddle);
    field.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return field;
}

LabelView& wrapping(FormWindow& window, const Control& label) {
    LabelView& text = label_of(window, label);
    text.setWordWrap(true);
    return text;
}

LabelView& bold(FormWindow& window, const Control& label) {
    LabelView& head = label_of(window, label);
    QFont font = head.font();
    font.setBold(true);
    head.setFont(font);
    return head;
}

ButtonView& button(FormWindow& window, const Control& control) { return *static_cast<ButtonView*>(window.of(control)); }

QHBoxLayout* row_of(FormWindow& window, std::initializer_list<const Control*> controls, int stretched) {
    auto* row = new QHBoxLayout;
    int at = 0;
    for (const Control* control : controls) row->addWidget(window.of(*control), at++ == stretched ? 1 : 0);
    if (stretched < 0) row->addStretch(1);
    return row;
}

QVBoxLayout* column_of(FormWindow& window, std::initializer_list<const Control*> controls) {
    auto* column = new QVBoxLayout;
    for (const Control* control : controls) column->addWidget(window.of(*control));
    return column;
}

QLabel* caption(FormWindow& window, const char* text) {
    auto* label = new QLabel(QString::fromLatin1(text), window.body());
    label->setTextFormat(Qt::PlainText);
    return label;
}

QHBoxLayout* button_row(FormWindow& window, std::initializer_list<const Control*> left,
                        std::initializer_list<const Control*> right) {
    auto* row = new QHBoxLayout;
    for (const Control* control : left) row->addWidget(window.of(*control));
    row->addStretch(1);
    for (const Control* control : right) row->addWidget(window.of(*control));
    return row;
}

QGridLayout* grid_in(FormWindow& window, const Control& holder) {
    auto* grid = new QGridLayout(window.of(holder));
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    return grid;
}

void narrow(FormWindow& window, std::initializer_list<const Control*> entries, int width) {
    for (const Control* entry : entries) window.of(*entry)->setFixedWidth(width);
}

QWidget* roomy_area(FormWindow& window, QWidget* contents) {
    auto* area = new RoomyArea(window.body());
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(contents);
    area->setMinimumSize(480, 300);
    return area;
}

}  // namespace kolvar
