// The drift of a batch: the handlers place plot and panels; here stands what lies within the panels.
#include <algorithm>
#include <vector>

#include "qt/canvas_painter.hpp"
#include "qt/canvas_view.hpp"
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"
#include "qt/text.hpp"

namespace kolvar {

namespace {

// A row for each ratio: how it is drawn, slope and correlation of its line.
void lay_out_ratios(FormWindow& window, QGridLayout& grid, const FrmDrift& f, int row) {
    struct Row {
        const Control& box;
        const Picture* legend;
        const Label *slope, *correlation;
    };
    const Row rows[] = {{f.chk68, &f.pict68, &f.lblLR68b, &f.lblLR68r},
                        {f.chk75, &f.pict75, &f.lblLR75b, &f.lblLR75r},
                        {f.chk76, &f.pict76, &f.lblLR76b, &f.lblLR76r},
                        {f.chk82, nullptr, nullptr, nullptr},
                        {f.chkUTh, nullptr, nullptr, nullptr}};
    grid.addWidget(caption(window, "slope b"), row, 2, Qt::AlignRight);
    grid.addWidget(caption(window, "r"), row, 3, Qt::AlignRight);
    for (const Row& ratio : rows) {
        ++row;
        grid.addWidget(window.of(ratio.box), row, 0);
        if (ratio.legend == nullptr) continue;
        window.of(*ratio.legend)->setFixedSize(pixels(ratio.legend->width), pixels(ratio.legend->height));
        grid.addWidget(window.of(*ratio.legend), row, 1);
        int column = 2;
        for (const Label* figure : {ratio.slope, ratio.correlation}) {
            LabelView& number = bold(window, *figure);
            number.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            number.setMinimumWidth(52);
            grid.addWidget(&number, row, column++);
        }
    }
}

void lay_out_side(FormWindow& window, const FrmDrift& f) {
    auto* grid = new QGridLayout(window.of(f.pictSide));
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(3);
    lay_out_ratios(window, *grid, f, 0);
    int row = 6;
    grid->addWidget(&wrapping(window, f.lblLegend), row++, 0, 1, 4);
    grid->setRowMinimumHeight(row++, 10);
    grid->addLayout(row_of(window, {&f.optLinear, &f.optLog}), row++, 0, 1, 4);
    grid->addWidget(window.of(f.lblResidual), row++, 0, 1, 4);
    auto* const rejecting = row_of(window, {&f.Command3, &f.Command8});
    rejecting->setSpacing(6);
    grid->addLayout(rejecting, row++, 0, 1, 4);
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(0, 1);
    for (const Control* unused :
         std::initializer_list<const Control*>{&f.chk68, &f.chk75, &f.chk82, &f.chk76, &f.chkUTh, &f.optLinear,
                                               &f.optLog, &f.lblResidual, &f.Command3, &f.Command8})
        window.of(*unused)->setToolTip(QStringLiteral(
            "without effect: the line is always straight, all standards count and the three ratios are always drawn"));
}

// Factors that would lie on each other give way to the rounder ones.
void thin_out_scale(FormWindow& window, FrmDrift& f) {
    std::vector<const QWidget*> kept;
    for (const Label* label :
         {&f.lbl1_00, &f.lbl0_80, &f.lbl1_20, &f.lbl0_90, &f.lbl1_10, &f.lbl0_95, &f.lbl1_05, &f.lbl0_85, &f.lbl1_15}) {
        if (!label->visible) continue;
        QWidget* const number = window.of(*label);
        const bool covered = std::any_of(kept.begin(), kept.end(), [number](const QWidget* other) {
            return number->geometry().adjusted(0, 1, 0, -1).intersects(other->geometry());
        });
        // In the colour of the ground it is there and not seen.
        number->setForegroundRole(covered ? QPalette::Window : QPalette::WindowText);
        if (covered)
            number->lower();
        else
            kept.push_back(number);
    }
}

}  // namespace

void lay_out_drift(FormWindow& window, FrmDrift& f) {
    lay_out_side(window, f);
    auto* buttons = new QHBoxLayout(window.of(f.pictButtons));
    buttons->setContentsMargins(0, 0, 0, 0);
    button(window, f.cmdAccept).set_line_width(480);
    buttons->addStretch(1);
    for (const Control* control : std::initializer_list<const Control*>{&f.Command1, &f.cmdAccept, &f.cmdClose})
        buttons->addWidget(window.of(*control));

    const Colour ground{window.palette().color(QPalette::Window).rgb() & 0xFFFFFFU};
    for (const Picture* ticks : {&f.pictTicksX, &f.pictTicksY}) {
        auto* const view = static_cast<CanvasView*>(window.of(*ticks));
        view->ground = ground;
        view->setFocusPolicy(Qt::NoFocus);
    }
    for (const Picture* legend : {&f.pict68, &f.pict75, &f.pict76}) window.of(*legend)->setFocusPolicy(Qt::NoFocus);
    bold(window, f.lblCF);
    static_cast<LabelView*>(window.of(f.lblPosition))->setAlignment(Qt::AlignCenter);
    for (const Label& place : f.lbl) static_cast<LabelView*>(window.of(place))->setAlignment(Qt::AlignCenter);
    for (const auto& [percent, factor] : f.scale_labels())
        static_cast<LabelView*>(window.of(*factor))->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    window.setMinimumSize(720, 430);
    window.set_arranger([&window, &f] { thin_out_scale(window, f); });
    window.set_default_buttons({&f.Command1});
    window.set_escape_buttons({&f.cmdClose});
    window.add_shortcut(f.Command1, "Alt+P");
    window.add_shortcut(f.cmdAccept, "Alt+A");
    window.add_shortcut(f.cmdClose, "Alt+C");
}

}  // namespace kolvar
