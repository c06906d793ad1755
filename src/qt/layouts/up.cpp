// Step 2 of the U/Pb and FLEX paths: the handlers place plots and panels; here stands what lies within the panels.
#include <QGroupBox>
#include <QLabel>

#include "qt/canvas_painter.hpp"
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"
#include "qt/layouts/time_pieces.hpp"
#include "qt/text.hpp"

namespace kolvar {

namespace {

constexpr int pointer_height = 18;  // slice and value under the pointer

QGridLayout* tight_grid_in(FormWindow& window, const Control& holder) {
    auto* grid = new QGridLayout(window.of(holder));
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(1);
    return grid;
}

// A figure that is read at a glance.
void prominent(FormWindow& window, const Label& label) {
    QFont font = bold(window, label).font();
    font.setPointSizeF(font.pointSizeF() * 1.1);
    window.of(label)->setFont(font);
}

// The colour in which a signal or ratio is drawn.
QPixmap swatch(Colour colour) {
    QPixmap mark(10, 4);
    mark.fill(qt_colour(colour));
    return mark;
}

void right_aligned(FormWindow& window, const Label& label) {
    static_cast<LabelView*>(window.of(label))->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

// Analyte, mean cps, margin over the detection limit. Hands back the mark of the last curve, that of the Hg isotope.
QWidget* lay_out_signals(FormWindow& window, const Frm2UP& f) {
    auto* grid = tight_grid_in(window, f.picUP_elems);
    grid->addWidget(caption(window, "cps"), 0, 2, Qt::AlignRight);
    grid->addWidget(caption(window, "x LoD"), 0, 3, Qt::AlignRight);
    const int colours[] = {10, 2, 9, 13, 12, 6, 5, 0};  // of the curves
    QLabel* mark = nullptr;
    const std::pair<const Label*, const Label*> rows[] = {
        {&f.lbl238, &f.lbl238LoD}, {&f.lbl235, &f.lbl235LoD}, {&f.lbl232, &f.lbl232LoD}, {&f.lbl208, &f.lbl208LoD},
        {&f.lbl207, &f.lbl207LoD}, {&f.lbl206, &f.lbl206LoD}, {&f.lbl204, &f.lbl204LoD}, {&f.lblAver(8), &f.lbl20xLoD}};
    for (int i = 1; i <= 15; ++i) {
        grid->addWidget(window.of(f.lblFLEXiso(i)), i, 1);
        if (i > 8) continue;
        mark = new QLabel(window.body());
        mark->setPixmap(swatch(palette(colours[i - 1])));
        grid->addWidget(mark, i, 0);
        const auto& [mean, margin] = rows[i - 1];
        right_aligned(window, *mean);
        right_aligned(window, *margin);
        bold(window, *mean);
        grid->addWidget(window.of(*mean), i, 2);
        grid->addWidget(window.of(*margin), i, 3);
    }
    grid->addWidget(window.of(f.lbl235C), 2, 4);
    grid->addWidget(window.of(f.lblHgCorrNegative), 7, 4);
    grid->setColumnStretch(2, 1);
    int row = 16;
    grid->addWidget(window.of(f.chkHgCorr), row++, 0, 1, 5);
    grid->addWidget(window.of(f.chkCommLead), row++, 0, 1, 5);
    grid->addWidget(window.of(f.Check1), row++, 0, 1, 5);
    grid->addWidget(window.of(f.txtAgePb), row++, 0, 1, 5);
    grid->setRowStretch(row, 1);
    for (const Control* unused : std::initializer_list<const Control*>{&f.chkCommLead, &f.Check1, &f.txtAgePb})
        window.of(*unused)->setToolTip(QStringLiteral("stored, not used in the calculation"));
    return mark;
}

// A row for each ratio: shown on the plot, result, scatter over counting statistics, skewness, regression.
void lay_out_ratios(FormWindow& window, Frm2UP& f) {
    auto* grid = tight_grid_in(window, f.pictResults);
    for (const Label* head : {&f.lblAv, &f.lblMed, &f.lblTz}) grid->addWidget(window.of(*head), 0, 1, Qt::AlignRight);
    const char* const heads[] = {"E-Poisson", "skewness", "slope b", "r"};
    for (int k = 0; k < 4; ++k) grid->addWidget(caption(window, heads[k]), 0, 2 + k, Qt::AlignRight);
    const int colours[] = {0, 12, 10, 1, 13};  // of the curves
    for (int k = 0; k < 5; ++k) {
        const Frm2UP::RatioRow row = f.ratio_row(k);
        auto* const box = static_cast<QCheckBox*>(window.of(row.box));
        box->setIcon(swatch(palette(colours[k])));
        box->setIconSize(QSize(10, 4));
        grid->addWidget(box, k + 1, 0);
        for (const Label* result : {&row.mean, &row.median, &row.tzero}) {
            right_aligned(window, *result);
            prominent(window, *result);
            grid->addWidget(window.of(*result), k + 1, 1);
        }
        int column = 2;
        for (const Label* figure : {&row.poisson, &row.skewness, &row.slope, &row.correlation}) {
            right_aligned(window, *figure);
            grid->addWidget(window.of(*figure), k + 1, column++);
        }
    }
    grid->addWidget(caption(window, "U238/U235"), 6, 0);
    right_aligned(window, f.lbl8_5);
    grid->addWidget(window.of(f.lbl8_5), 6, 1);
    grid->addWidget(window.of(f.chkLinReg), 6, 2, 1, 4, Qt::AlignRight);
    grid->setColumnMinimumWidth(1, 130);
    grid->setColumnStretch(1, 2);
    for (int column = 2; column < 6; ++column) grid->setColumnStretch(column, 1);
    grid->setRowStretch(7, 1);
}

void lay_out_ages(FormWindow& window, const Frm2UP& f) {
    auto* grid = tight_grid_in(window, f.Frame1);
    const std::pair<const Label*, const Label*> ages[] = {{&f.lblAge06_38Head, &f.lblAge06_38},
                                                          {&f.lblAge07_35Head, &f.lblAge07_35}};
    for (int k = 0; k < 2; ++k) {
        grid->addWidget(window.of(*ages[k].first), k, 0);
        right_aligned(window, *ages[k].second);
        prominent(window, *ages[k].second);
        grid->addWidget(window.of(*ages[k].second), k, 1);
        grid->addWidget(caption(window, "Ma"), k, 2);
    }
    grid->addWidget(window.of(f.Label15), 2, 0);
    grid->addWidget(window.of(f.lblConcordHead), 3, 0);
    auto* const concordance = static_cast<LabelView*>(window.of(f.lblConcord1));
    concordance->setAlignment(Qt::AlignCenter);
    concordance->setFrameStyle(QFrame::Box | QFrame::Plain);
    prominent(window, f.lblConcord1);
    grid->addWidget(concordance, 3, 1, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);
}

void lay_out_outliers(FormWindow& window, const Frm2UP& f) {
    auto* whole = new QVBoxLayout(window.of(f.Frame4));
    whole->setContentsMargins(4, 4, 4, 4);
    whole->setSpacing(1);
    const auto row = [&](std::initializer_list<const Control*> left, std::initializer_list<const Control*> right) {
        auto* const line = row_of(window, left);
        line->addStretch(1);
        for (const Control* control : right) line->addWidget(window.of(*control));
        whole->addLayout(line);
    };
    window.of(f.txtSD)->setFixedWidth(40);
    window.of(f.chkRejOL)->setToolTip(QStringLiteral("stored, not used in the calculation"));
    bold(window, f.lblOM);
    for (int k = 1; k <= 5; ++k) window.of(f.Shape(k))->setFixedSize(12, 12);
    row({&f.chkShowSD}, {&f.lblIfSD, &f.txtSD});
    row({&f.chkRejOL}, {&f.Shape(1), &f.Shape(2), &f.Shape(3), &f.Shape(4), &f.Shape(5)});
    whole->addWidget(window.of(f.cmdReject));
    row({&f.lblReject}, {&f.lblOM});
    whole->addStretch(1);
}

void lay_out_refinement(FormWindow& window, const Frm2UP& f) {
    auto* grid = tight_grid_in(window, f.FrameBzzz);
    window.of(f.txtZizzRange)->setFixedWidth(50);
    grid->addWidget(window.of(f.txtZizzRange), 0, 0);
    grid->addWidget(window.of(f.comboBzz), 0, 1, 1, 2);
    grid->addWidget(window.of(f.Combo7), 1, 0, 1, 3);
    grid->addWidget(window.of(f.Combo8), 2, 0, 1, 2);
    grid->addWidget(window.of(f.cmdZizeges), 2, 2);
    grid->addWidget(window.of(f.cmdAccept), 2, 2);
    grid->addWidget(window.of(f.chkBzzPrompt), 3, 0, 1, 2);
    grid->addWidget(window.of(f.lblImprove), 3, 2);
    const std::pair<const Label*, const Label*> figures[] = {
        {&f.lblRMS68, &f.lblRMS75}, {&f.lblZizzMin1, &f.lblZizzMin2}, {&f.lblBest68, &f.lblBest75}};
    const char* const limits[] = {"of the marked limits", "smallest of all limits tried", "of the proposed limits"};
    for (int k = 0; k < 3; ++k) {
        grid->addWidget(window.of(*figures[k].first), 4, k);
        grid->addWidget(window.of(*figures[k].second), 5, k);
        const QString tip = QString::fromLatin1(limits[k]);
        window.of(*figures[k].first)->setToolTip(QStringLiteral("206/238, ") + tip);
        window.of(*figures[k].second)->setToolTip(QStringLiteral("second ratio, ") + tip);
    }
    grid->addWidget(window.of(f.lblExplain), 6, 0, 1, 3);
    grid->setRowStretch(7, 1);
}

void lay_out_diagram(FormWindow& window, const Frm2UP& f) {
    auto* grid = tight_grid_in(window, f.Frame2);
    grid->addWidget(window.of(f.optConcord(0)), 0, 0, 1, 2);
    grid->addWidget(window.of(f.Command1), 0, 2, Qt::AlignRight);
    grid->addWidget(window.of(f.optConcord(1)), 1, 0, 1, 3);
    grid->addWidget(window.of(f.lblRizsa(6)), 2, 0);
    bold(window, f.lblFusion);
    grid->addWidget(window.of(f.lblFusion), 2, 1, 1, 2);
    window.of(f.Command1)->setToolTip(QStringLiteral("stored, not used in the calculation"));
    grid->setRowStretch(3, 1);
}

void lay_out_strip(FormWindow& window, const Frm2UP& f) {
    auto* whole = new QVBoxLayout(window.of(f.pictRightSide));
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(5);
    whole->addWidget(caption(window, "Signals:"));
    whole->addLayout(row_of(window, {&f.optLi, &f.optLo}));
    whole->addWidget(caption(window, "Ratios:"));
    whole->addLayout(row_of(window, {&f.optLiR, &f.optLoR}));
    whole->addStretch(1);
    for (const Control* copy :
         std::initializer_list<const Control*>{&f.cmdCopyHead, &f.cmdCopy, &f.cmdApp, &f.cmdCopySel})
        whole->addWidget(window.of(*copy));
    whole->addStretch(1);
    whole->addLayout(row_of(window, {&f.cmdNewFile, &f.cmdSett}));
    whole->addLayout(row_of(window, {&f.cmdBack, &f.cmdExit}));
    whole->addWidget(window.of(f.cmdNext));
}

// Where the batch stands, and what moves it on. To the right of the first lines the button of the interpolation has its
// place.
void lay_out_sequence(FormWindow& window, const Frm2UP& f) {
    auto* whole = new QVBoxLayout(window.of(f.pictSeq));
    whole->setContentsMargins(4, 2, 4, 2);
    whole->setSpacing(2);
    bold(window, f.lblPos);
    auto* position = new QHBoxLayout;
    position->addWidget(window.of(f.lblSeqTitle));
    position->addSpacing(12);
    position->addWidget(window.of(f.lblPos));
    position->addStretch(1);
    whole->addLayout(position);
    auto* counters = new QHBoxLayout;
    const std::pair<const char*, const Label*> counts[] = {{"Standard files:", &f.lblStdFiNum},
                                                           {"Sample files:", &f.lblSamFiNum}};
    for (const auto& [head, count] : counts) {
        counters->addWidget(caption(window, head));
        counters->addWidget(&bold(window, *count));
        counters->addSpacing(12);
    }
    counters->addStretch(1);
    whole->addLayout(counters);
    whole->addStretch();
    auto* buttons = row_of(window, {&f.cmdOpenPrev, &f.cmdOpenNext, &f.cmdSaveAnd(0), &f.cmdSaveAnd(1), &f.cmdCopyMas,
                                    &f.cmdOpenSeq, &f.cmdShowTab, &f.cmdPlot});
    buttons->setSpacing(4);
    for (const Button* small : {&f.cmdOpenSeq, &f.cmdShowTab, &f.cmdPlot}) {
        constexpr int around = 26;
        QWidget* const shown = window.of(*small);
        shown->setMaximumWidth(shown->fontMetrics().horizontalAdvance(QString::fromStdString(small->text)) + around);
    }
    buttons->addStretch(1);
    // In a narrow window their captions take two lines.
    for (const Control* button :
         std::initializer_list<const Control*>{&f.cmdOpenPrev, &f.cmdOpenNext, &f.cmdSaveAnd(0), &f.cmdSaveAnd(1),
                                               &f.cmdCopyMas, &f.cmdOpenSeq, &f.cmdShowTab, &f.cmdPlot}) {
        constexpr int two_lines = 40;
        window.of(*button)->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
        window.of(*button)->setMaximumHeight(two_lines);
    }
    whole->addLayout(buttons);
}

// At the right end of the head: that a sequence is running, and its master file.
void lay_out_sequence_head(FormWindow& window, const Frm2UP& f, QWidget& head) {
    auto* const grid = static_cast<QGridLayout*>(head.layout());
    constexpr int column = 9;
    bold(window, f.lblRizsa(3));
    bold(window, f.lblDir);
    grid->addWidget(window.of(f.lblRizsa(3)), 0, column);
    grid->addLayout(row_of(window, {&f.lblRizsa(30), &f.lblDir}, 1), 1, column);
}

}  // namespace

void lay_out_up(FormWindow& window, Frm2UP& f, const RunState& rs) {
    QWidget* const head = lay_out_time_head(window, f, f.lblRizsa(23));
    align_time_labels(window, f);
    QWidget* const hg_mark = lay_out_signals(window, f);
    lay_out_ratios(window, f);
    lay_out_ages(window, f);
    lay_out_outliers(window, f);
    lay_out_refinement(window, f);
    lay_out_diagram(window, f);
    lay_out_strip(window, f);
    lay_out_sequence(window, f);
    lay_out_sequence_head(window, f, *head);
    static_cast<LabelView*>(window.of(f.lblXY))->setAlignment(Qt::AlignCenter);
    static_cast<LabelView*>(window.of(f.lblBestLow))->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    wrapping(window, f.lblStatus).setAlignment(Qt::AlignLeft | Qt::AlignBottom);

    auto* status = new QLabel(window.body());
    status->setObjectName(QStringLiteral("status"));
    watch_pointer(window, f.pict1, status, rs, true);
    for (const Control* above :
         std::initializer_list<const Control*>{&f.lblIIS(2), &f.lblLow, &f.lblUpp, &f.lblXNew, &f.txtYMaxInp,
                                               &f.lblBeam_St, &f.lblBestLow, &f.lblBestUpp})
        window.of(*above)->raise();
    static_cast<LabelView*>(window.of(f.lblBeam_St))->setCursor(Qt::PointingHandCursor);
    window.setMinimumSize(640, 480);
    window.set_arranger([&window, &rs, head, status, hg_mark] {
        const QSize room = window.body()->size();
        head->setGeometry(0, 0, room.width(), time_head_height);
        hg_mark->setVisible(rs.Method == 1);  // a solution has an analyte there that is not drawn
        status->setGeometry(8, time_head_height, 230, pointer_height);
    });
    window.set_escape_buttons({&f.cmdBack});
    window.add_shortcut(f.cmdBack, "Alt+B");
    window.add_shortcut(f.cmdExit, "Alt+X");
    window.add_shortcut(f.cmdReject, "Alt+R");
    window.add_shortcut(f.cmdCopy, "Alt+C");
    window.add_shortcut(f.cmdApp, "Alt+A");
    window.add_shortcut(f.cmdNewFile, "Alt+W");
    window.add_shortcut(f.cmdCopyHead, "Alt+H");
    window.add_shortcut(f.cmdCopySel, "Alt+S");
    window.add_shortcut(f.cmdSett, "Alt+D");
    window.add_shortcut(f.cmdZizeges, "Alt+Z");
}

void lay_out_missing_upb(FormWindow& window, const FrmMissingUPb& f) {
    auto* const whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(14, 14, 14, 14);
    whole->setSpacing(8);
    for (const Label* text : {&f.lblHead, &f.lblLista, &f.lblReason, &f.lblFormat, &f.lblForms, &f.lblDefault}) {
        wrapping(window, *text).setMinimumWidth(460);
        whole->addWidget(window.of(*text));
    }
    bold(window, f.lblHead);
    bold(window, f.lblLista);
    whole->addStretch(1);
    whole->addLayout(button_row(window, {}, {&f.cmdSorry}));
    window.set_default_buttons({&f.cmdSorry});
    window.set_escape_buttons({&f.cmdSorry});
}

void lay_out_hg_isotopes(FormWindow& window, const FrmHgIsot& f) {
    auto* const whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(14, 14, 14, 14);
    whole->setSpacing(8);
    bold(window, f.Label1);
    wrapping(window, f.Label2).setMinimumWidth(380);
    whole->addWidget(window.of(f.Label1));
    whole->addWidget(window.of(f.Label2));
    whole->addLayout(row_of(window, {&f.opt198, &f.opt199, &f.opt200, &f.opt201, &f.opt202}));
    whole->addLayout(row_of(window, {&f.cmd198, &f.cmd199, &f.cmd200, &f.cmd201, &f.cmd202}));
    whole->addWidget(window.of(f.chkHgMoreFix));
    whole->addStretch(1);
}

}  // namespace kolvar
