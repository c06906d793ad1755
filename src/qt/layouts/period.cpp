// The periodic system: 18 groups, below them the lanthanides and actinides.
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

namespace {

constexpr int groups = 18;
constexpr int gap_row = 7;  // between the periods and the two rows below

struct Place {
    int row = 0, group = 0;  // from 0
};

// Where an element stands. Lanthanum and actinium begin the rows below; lutetium ends the first of them.
Place place_of(int element) {
    if (element >= 57 && element <= 71) return {gap_row + 1, element - 57 + 2};
    if (element >= 89) return {gap_row + 2, element - 89 + 2};
    constexpr int noble_gases[] = {0, 2, 10, 18, 36, 54, 86, 118};
    int period = 1;
    while (element > noble_gases[period]) ++period;
    const int from_left = element - noble_gases[period - 1];  // 1 = alkali metal
    const int from_right = noble_gases[period] - element;     // 0 = noble gas
    const int s_block = period == 1 ? 1 : 2;
    const int group = from_left <= s_block ? from_left - 1 : groups - 1 - from_right;
    return {period - 1, group};
}

// Where the two rows below belong.
QLabel* series(FormWindow& window, const char* text) {
    QLabel* const label = caption(window, text);
    label->setAlignment(Qt::AlignCenter);
    QFont small = label->font();
    small.setPointSizeF(small.pointSizeF() * 0.8);
    label->setFont(small);
    return label;
}

// The margin of the frame counts as its label for a click.
void lay_out_standard(FormWindow& window, const Panel& frame, const Label& standard) {
    constexpr int margin = 8;
    auto* const panel = static_cast<PanelView*>(window.of(frame));
    auto* const label = static_cast<LabelView*>(window.of(standard));
    auto* inside = new QVBoxLayout(panel);
    inside->setContentsMargins(margin, margin, margin, margin);
    inside->addWidget(label);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Box | QFrame::Plain);
    label->setMinimumSize(label->fontMetrics().horizontalAdvance("MMMMMMM"), 2 * label->fontMetrics().height());
    panel->on_click = [label] { label->on_click(); };
}

}  // namespace

void lay_out_period(FormWindow& window, const FrmPeriod& f) {
    auto* whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(14, 12, 14, 12);
    whole->setSpacing(8);
    wrapping(window, f.lblHint1);
    whole->addWidget(window.of(f.lblHint1));

    auto* frames = new QHBoxLayout;
    frames->setSpacing(10);
    frames->addStretch(1);
    lay_out_standard(window, f.frame1, f.Label1);
    lay_out_standard(window, f.frame2, f.Label2);
    lay_out_standard(window, f.frame3, f.Label3);
    for (const Panel* frame : {&f.frame1, &f.frame2, &f.frame3}) {
        frames->addWidget(caption(window, frame == &f.frame1 ? "1" : frame == &f.frame2 ? "2" : "3"));
        frames->addWidget(window.of(*frame));
        frames->addSpacing(12);
    }
    frames->addStretch(1);
    whole->addLayout(frames);

    auto* system = new QGridLayout;
    system->setSpacing(2);
    const QFontMetrics metrics(window.font());
    const int side = 2 * metrics.height() + 6;
    for (int element = f.lblEle.first(); element <= f.lblEle.last(); ++element) {
        auto* const cell = static_cast<LabelView*>(window.of(f.lblEle(element)));
        cell->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        cell->setMargin(3);
        cell->setFrameStyle(QFrame::Box | QFrame::Plain);
        cell->setMinimumSize(side, side);
        cell->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        cell->setToolTip(QString::number(element));
        QFont font = cell->font();
        font.setBold(true);
        cell->setFont(font);
        auto* const number = static_cast<LabelView*>(window.of(f.lblNumber(element)));
        QFont small = number->font();
        small.setPointSizeF(small.pointSizeF() * 0.8);
        number->setFont(small);
        number->setContentsMargins(0, 3, 5, 0);
        // A click on the number is a click on its element.
        number->setAttribute(Qt::WA_TransparentForMouseEvents);
        const Place at = place_of(element);
        system->addWidget(cell, at.row, at.group);
        system->addWidget(number, at.row, at.group, Qt::AlignRight | Qt::AlignTop);
        number->raise();
    }
    system->addWidget(series(window, "57-71"), 5, 2);
    system->addWidget(series(window, "89-96"), 6, 2);
    system->setRowMinimumHeight(gap_row, metrics.height() / 2);
    for (int row = 0; row <= gap_row + 2; ++row) system->setRowStretch(row, row == gap_row ? 0 : 1);
    for (int group = 0; group < groups; ++group) system->setColumnStretch(group, 1);
    whole->addLayout(system, 1);

    wrapping(window, f.lblHint2);
    whole->addWidget(window.of(f.lblHint2));
    whole->addLayout(button_row(window, {}, {&f.cmdOK, &f.cmsClose}));
    window.set_default_buttons({&f.cmdOK});
    window.set_escape_buttons({&f.cmsClose});
    window.add_shortcut(f.cmdOK, "Alt+A");
    window.add_shortcut(f.cmsClose, "Alt+C");
}

}  // namespace kolvar
