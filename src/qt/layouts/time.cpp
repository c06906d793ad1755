// Step 2: the handlers place plots, bars and panels; here stands what lies within the panels and in the strips around.
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPointF>
#include <algorithm>
#include <cmath>
#include <optional>

#include "core/numbers.hpp"
#include "core/run_state.hpp"
#include "qt/canvas_painter.hpp"
#include "qt/canvas_view.hpp"
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"
#include "qt/layouts/time_pieces.hpp"
#include "qt/text.hpp"
#include "screens/plot_parts.hpp"
#include "screens/selection.hpp"

namespace kolvar {

namespace {

constexpr int analytes_in_column = 17;
constexpr int status_height = 22;  // left of the buttons

QIcon swatch(Colour colour) {
    QPixmap picture(12, 12);
    picture.fill(qt_colour(colour));
    QPainter painter(&picture);
    painter.setPen(QColor(120, 120, 120));
    painter.drawRect(0, 0, 11, 11);
    return {picture};
}

void lay_out_analytes(FormWindow& window, const Frm2Time& f) {
    auto* column = new QVBoxLayout(window.of(f.pictAllIso));
    column->setContentsMargins(2, 0, 2, 0);
    column->setSpacing(4);
    column->addWidget(window.of(f.cmdSel));
    column->addWidget(window.of(f.lblOver50Iso));
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    grid->setContentsMargins(2, 2, 2, 2);
    grid->addWidget(window.of(f.frameIso2), 0, 1, analytes_in_column, 2);
    window.of(f.frameIso2)->lower();
    for (int i = f.chkIs.first(); i <= f.chkIs.last(); ++i) {
        auto* const box = static_cast<CheckView*>(window.of(f.chkIs(i)));
        // The colour of its curve.
        box->setIcon(swatch(plot::curve_colour(i)));
        box->setIconSize({10, 10});
        box->draggable = true;
        grid->addWidget(box, (i - 1) % analytes_in_column, std::min((i - 1) / analytes_in_column, 2));
    }
    column->addLayout(grid);
    column->addStretch(1);
}

void lay_out_right_strip(FormWindow& window, const Frm2Time& f) {
    auto* column = new QVBoxLayout(window.of(f.pictRightSide));
    column->setContentsMargins(2, 0, 2, 0);
    column->setSpacing(6);
    for (const Control* option : {&f.optLi, &f.optLo}) column->addWidget(window.of(*option));
    column->addSpacing(8);
    for (const Button* control : {&f.cmdHorizLines, &f.cmdRatios, &f.cmdShowConc, &f.cmdCopyRatios, &f.cmdAppQuick}) {
        button(window, *control).set_line_width(70);
        column->addWidget(window.of(*control));
    }
    column->addStretch(1);
}

void lay_out_ratio_panel(FormWindow& window, const Frm2Time& f) {
    auto* const panel = static_cast<QFrame*>(window.of(f.pictRatios));
    panel->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    panel->setAutoFillBackground(true);
    auto* whole = new QVBoxLayout(panel);
    whole->setContentsMargins(6, 3, 6, 3);
    whole->setSpacing(4);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    const CheckBox* const boxes[] = {&f.chkR1, &f.chkR2, &f.chkR3, &f.chkR4, &f.chkR5, &f.chkR6};
    for (int pair = 0; pair < 6; ++pair) {
        for (int part = 0; part < 2; ++part) {
            const Label& name = f.lblRatio(2 * pair + part);
            auto* const label = static_cast<LabelView*>(window.of(name));
            label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
            label->setAlignment(Qt::AlignCenter);
            label->setMinimumWidth(54);
            label->elide(Qt::ElideRight);
            window.accept_drops(name);
            grid->addWidget(label, part, 2 * pair + 1);
        }
        grid->addWidget(window.of(*boxes[pair]), 0, 2 * pair, 2, 1, Qt::AlignVCenter);
        grid->setColumnStretch(2 * pair + 1, 1);
    }
    auto* row = new QHBoxLayout;
    row->addLayout(grid, 1);
    row->addSpacing(8);
    row->addLayout(column_of(window, {&f.cmdAcceptRatios, &f.cmdClose}));
    whole->addLayout(row);
    wrapping(window, f.lblExplanation);
    whole->addWidget(window.of(f.lblExplanation));
    whole->addStretch(1);
}

}  // namespace

void lay_out_time(FormWindow& window, const Frm2Time& f, const RunState& rs) {
    QWidget* const head = lay_out_time_head(window, f, f.lblRizsa(0));
    lay_out_analytes(window, f);
    lay_out_right_strip(window, f);
    lay_out_ratio_panel(window, f);
    align_time_labels(window, f);

    auto* status = new QLabel(window.body());
    status->setObjectName(QStringLiteral("status"));
    watch_pointer(window, f.pict1, status, rs, true);
    watch_pointer(window, f.pict2, status, rs, false);

    for (const Control* above : std::initializer_list<const Control*>{
             &f.lblIIS(2), &f.lblLow, &f.lblUpp, &f.pictRatios, &f.lblXNew, &f.txtYMaxInp, &f.lblXNew2, &f.txtYMaxInp2})
        window.of(*above)->raise();

    window.setMinimumSize(480, 320);
    window.set_arranger([&window, &f, head, status] {
        const QSize room = window.body()->size();
        head->setGeometry(0, 0, room.width(), time_head_height);
        // Beside the buttons of the way, as far as they reach to the left.
        const int buttons = f.cmsSettings.placed ? pixels(f.cmsSettings.left) : room.width();
        status->setGeometry(8, room.height() - status_height - 10, buttons - 16, status_height);
    });
    window.set_default_buttons({&f.cmdNext});
    window.set_escape_buttons({&f.cmdBack});
    window.add_shortcut(f.cmdNext, "Alt+N");
    window.add_shortcut(f.cmdBack, "Alt+B");
    window.add_shortcut(f.cmsSettings, "Alt+S");
    window.add_shortcut(f.cmdExit, "Alt+X");
}

}  // namespace kolvar
