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
#include "qt/text.hpp"
#include "screens/plot_parts.hpp"
#include "screens/selection.hpp"

namespace kolvar {

namespace {

constexpr int analytes_in_column = 17;
constexpr int strip_height = 48;   // logical pixels above the plots
constexpr int status_height = 22;  // left of the buttons

QWidget* lay_out_head(FormWindow& window, const Frm2Time& f) {
    auto* strip = new QWidget(window.body());
    auto* grid = new QGridLayout(strip);
    grid->setContentsMargins(6, 4, 6, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    const std::pair<const Label*, const Label*> upper[] = {{&f.lblmicsodaHead, &f.lblmicsoda},
                                                           {&f.lblMeasTotHead, &f.lblMeasTot},
                                                           {&f.lblMeasSelHead, &f.lblMeasSel},
                                                           {&f.lblBLKshow, &f.lblBLKtolig}};
    const std::pair<const Label*, const Label*> lower[] = {
        {&f.lblRizsa(0), &f.lblDefa}, {&f.lblFormer1, &f.lblFormer2}, {&f.lblFormerBL1, &f.lblFormerBL2}};
    const auto fill = [&](int row, int pair, const auto& labels) {
        grid->addWidget(window.of(*labels.first), row, 2 * pair, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(window.of(*labels.second), row, 2 * pair + 1);
    };
    for (int pair = 0; pair < 4; ++pair) fill(0, pair, upper[pair]);
    for (int pair = 0; pair < 3; ++pair) fill(1, pair, lower[pair]);
    for (const Label* field : {&f.lblmicsoda, &f.lblDefa}) value_field(window, *field);
    for (const Label* value : {&f.lblMeasTot, &f.lblMeasSel, &f.lblBLKtolig, &f.lblFormer2, &f.lblFormerBL2}) {
        bold(window, *value);
        window.of(*value)->setMinimumWidth(56);
    }
    grid->addWidget(caption(window, "Maximum [cps]:"), 1, 6, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(&bold(window, f.lbluppScal), 1, 7);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(8, 1);
    return strip;
}

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

// Slice and value under the pointer; "" where there is no scale.
QString under_pointer(const RunState& rs, const Picture& picture, QPointF at, bool upper) {
    if (rs.nSlices < 1 || picture.width < 1 || picture.height < 1) return {};
    const int slice = static_cast<int>(std::floor(at.x() / picture.width * rs.nSlices + 0.5));
    QString text = QStringLiteral("Slice %1").arg(slice);
    const double end = upper ? rs.MaxCps : rs.MaxRatio;
    const bool logarithmic = upper && !rs.LinearView;
    if (!(end > 0)) return text;
    const double height = (picture.height - at.y()) / picture.height * (end / 0.9);
    const double value = logarithmic ? std::exp(height) : height;
    if (std::isfinite(value))
        text += QStringLiteral("    %1%2").arg(value, 0, 'g', 4).arg(upper ? QLatin1String(" cps") : QLatin1String());
    return text;
}

void watch_pointer(FormWindow& window, const Picture& picture, QLabel* status, const RunState& rs, bool upper) {
    auto* const view = static_cast<CanvasView*>(window.of(picture));
    view->marks_limits = true;
    view->on_hover = [status, &picture, &rs, upper](std::optional<QPointF> at) {
        status->setText(at ? under_pointer(rs, picture, *at, upper) : QString());
    };
}

void set_alignments(FormWindow& window, const Frm2Time& f) {
    const auto align = [&](const Label& label, Qt::Alignment side) {
        static_cast<LabelView*>(window.of(label))->setAlignment(side);
    };
    // Numbers of the scales end at the plot; the lower limit's number ends at its line, the upper's begins there.
    for (const Label* label : {&f.lblMaxCps, &f.lblMaxCps2, &f.lblMaxIIS, &f.lblMaxIIS2, &f.lbl10, &f.lbl100,
                               &f.lbl1000, &f.lbl10k, &f.lbl100k, &f.lbl1m, &f.lbl10m, &f.lblLow})
        align(*label, Qt::AlignRight | Qt::AlignVCenter);
    align(f.lblUpp, Qt::AlignLeft | Qt::AlignVCenter);
    align(f.lblIIS(2), Qt::AlignCenter);
}

}  // namespace

void lay_out_time(FormWindow& window, const Frm2Time& f, const RunState& rs) {
    QWidget* const head = lay_out_head(window, f);
    lay_out_analytes(window, f);
    lay_out_right_strip(window, f);
    lay_out_ratio_panel(window, f);
    set_alignments(window, f);

    auto* status = new QLabel(window.body());
    status->setObjectName(QStringLiteral("status"));
    watch_pointer(window, f.pict1, status, rs, true);
    watch_pointer(window, f.pict2, status, rs, false);

    QPalette former;
    former.setColor(QPalette::Window, QColor(150, 150, 150));
    window.of(f.pictFormer)->setPalette(former);
    window.of(f.pictFormer)->setAutoFillBackground(true);
    for (const Label* label : {&f.lblXNew, &f.lblXNew2}) window.of(*label)->setAutoFillBackground(true);
    for (const Control* above : std::initializer_list<const Control*>{
             &f.lblIIS(2), &f.lblLow, &f.lblUpp, &f.pictRatios, &f.lblXNew, &f.txtYMaxInp, &f.lblXNew2, &f.txtYMaxInp2})
        window.of(*above)->raise();

    window.setMinimumSize(480, 320);
    window.set_arranger([&window, &f, head, status] {
        const QSize room = window.body()->size();
        head->setGeometry(0, 0, room.width(), strip_height);
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
