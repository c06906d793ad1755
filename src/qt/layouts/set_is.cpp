// The settings of the internal-standard path in three columns: what is measured, how it is plotted, what comes out.
#include <QGroupBox>

#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"
#include "qt/text.hpp"

namespace kolvar {

namespace {

constexpr int gap = 6;  // between things side by side

// A row within a grid; the grid has two distances, and hands none on.
QHBoxLayout* line_of(FormWindow& window, std::initializer_list<const Control*> controls) {
    auto* line = row_of(window, controls);
    line->setSpacing(gap);
    return line;
}

void lay_out_files(FormWindow& window, const FrmSetIS& f) {
    auto* grid = grid_in(window, f.frameFiles);
    grid->addWidget(window.of(f.lblAbbrSTD), 0, 0, 1, 2);
    grid->addWidget(window.of(f.txtAbbrSTD), 0, 2);
    window.of(f.txtAbbrSTD)->setMaximumWidth(110);
    grid->addWidget(window.of(f.lblSTC), 1, 0, 1, 3);
    grid->addWidget(window.of(f.txtSTCpath), 2, 0, 1, 2);
    grid->addWidget(window.of(f.cmdBrowSTC), 2, 2);
    grid->addWidget(window.of(f.lblSTM), 3, 0, 1, 3);
    grid->addWidget(window.of(f.txtSTMpath), 4, 0, 1, 2);
    grid->addWidget(window.of(f.cmdBrowSTM), 4, 2);
    grid->setColumnStretch(1, 1);
}

void lay_out_measurement(FormWindow& window, const FrmSetIS& f) {
    window.of(f.frameUnits)->setLayout(row_of(window, {&f.optCPSinData(0), &f.optCPSinData(1)}));
    window.of(f.frameBlank)->setLayout(column_of(window, {&f.optBLK_IS(0), &f.optBLK_IS(1)}));
    auto* grid = grid_in(window, f.frameDwell);
    grid->addWidget(window.of(f.optDWE(0)), 0, 0);
    narrow(window, {&f.txtDWEtime}, 70);
    grid->addLayout(line_of(window, {&f.txtDWEtime, &f.lblDWEtime}), 0, 1, 1, 2);
    grid->addWidget(window.of(f.optDWE(1)), 1, 0, 1, 3);
    grid->addWidget(window.of(f.txtDwePath), 2, 0, 1, 2);
    grid->addWidget(window.of(f.cmdBrowDwe), 2, 2);
    grid->setColumnStretch(1, 1);
}

// A line for each standard: isotope, concentration, error, and where its range of masses begins and ends.
void lay_out_standards(FormWindow& window, const FrmSetIS& f) {
    auto* grid = grid_in(window, f.frameStandards);
    grid->addLayout(row_of(window, {&f.opt1IS, &f.opt2IS, &f.opt3IS}), 0, 0, 1, 4);
    auto* assignment = column_of(window, {&f.optPeriod(0), &f.optPeriod(1)});
    assignment->setSpacing(4);
    grid->addLayout(assignment, 1, 0, 1, 4);
    const Control* const cells[4][3] = {{&f.lblHeadIso, &f.lblHeadConc, &f.lblHeadErr},
                                        {&f.comboIso, &f.txtISppm1, &f.txtISerr1},
                                        {&f.comboIso2, &f.txtISppm2, &f.txtISerr2},
                                        {&f.comboIso3, &f.txtISppm3, &f.txtISerr3}};
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 3; ++col) grid->addWidget(window.of(*cells[row][col]), row + 2, col);
    narrow(window, {&f.comboIso, &f.comboIso2, &f.comboIso3}, 90);
    for (const Control* number : {&f.txtISppm1, &f.txtISerr1, &f.txtISppm2, &f.txtISerr2, &f.txtISppm3, &f.txtISerr3})
        window.of(*number)->setMinimumWidth(60);

    auto* ranges = new QGridLayout(window.of(f.pictMass));
    ranges->setContentsMargins(6, 2, 0, 0);
    ranges->setVerticalSpacing(4);
    bold(window, f.lblRizsa(59));
    ranges->addWidget(window.of(f.lblRizsa(59)), 0, 0, 1, 5);
    const Control* const limits[3][5] = {{&f.lblRizsa(50), nullptr, &f.lblRizsa(51), &f.lblMass1, &f.lblRizsa(52)},
                                         {&f.lblRizsa(53), &f.txtMass2, &f.lblRizsa(54), &f.lblMass2, &f.lblRizsa(55)},
                                         {&f.lblRizsa(56), &f.txtMass3, &f.lblRizsa(57), &f.lblMass3, &f.lblRizsa(58)}};
    narrow(window, {&f.txtMass2, &f.txtMass3}, 56);
    for (int row = 0; row < 3; ++row) {
        ranges->setRowMinimumHeight(row + 1, window.of(f.txtMass2)->sizeHint().height());
        for (int col = 0; col < 5; ++col)
            if (limits[row][col] != nullptr) ranges->addWidget(window.of(*limits[row][col]), row + 1, col);
    }
    for (const Label* upper : {&f.lblMass1, &f.lblMass2, &f.lblMass3}) {
        bold(window, *upper);
        window.of(*upper)->setMinimumWidth(34);
    }
    ranges->setColumnStretch(5, 1);
    // The way to the periodic system takes the place of the ranges.
    auto* place = new QVBoxLayout;
    place->addWidget(window.of(f.pictMass));
    place->addWidget(window.of(f.cmdShow), 0, Qt::AlignLeft | Qt::AlignTop);
    place->addStretch(1);
    grid->addLayout(place, 6, 0, 1, 4);
    grid->setRowMinimumHeight(6, window.of(f.pictMass)->sizeHint().height());
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
}

// A line for each pair: numerator over denominator, each with the box that leaves its blank uncorrected. The lines lie
// upon the frame and not in it, as those boxes can be ticked while the frame is disabled.
QGridLayout* lay_out_pairs(FormWindow& window, FrmSetIS& f) {
    auto* upon = new QGridLayout;
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(4);
    constexpr int padding = 6;
    constexpr int arrow_and_margins = 34;
    const int list_width = window.fontMetrics().horizontalAdvance(QLatin1String("Yb172")) + arrow_and_margins;
    auto* const frame = static_cast<QGroupBox*>(window.of(f.Frame6));
    frame->setTitle(shown(f.Frame6.text));  // its margins make room for the title
    grid->setContentsMargins(frame->contentsMargins() + padding);
    upon->addWidget(frame, 0, 0);
    upon->addLayout(grid, 0, 0);
    frame->lower();
    const QString uncorrected = QStringLiteral("Checked: this signal is taken without blank correction");
    for (int pair = 1; pair <= 6; ++pair) {
        ListBox& above = f.comboRatio(2 * pair - 2);
        ListBox& below = f.comboRatio(2 * pair - 1);
        grid->addWidget(window.of(f.chkRatio(pair)), pair, 0);
        grid->addWidget(window.of(above), pair, 1);
        grid->addWidget(window.of(f.chkBLK1(pair)), pair, 2);
        grid->addWidget(caption(window, "/"), pair, 3, Qt::AlignCenter);
        grid->addWidget(window.of(below), pair, 4);
        grid->addWidget(window.of(f.chkBLK2(pair)), pair, 5);
        for (ListBox* list : {&above, &below}) window.of(*list)->setMinimumWidth(list_width);
        for (CheckBox* box : {&f.chkBLK1(pair), &f.chkBLK2(pair)}) window.of(*box)->setToolTip(uncorrected);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);
    return upon;
}

void lay_out_plots(FormWindow& window, FrmSetIS& f) {
    auto* plots = new QVBoxLayout(window.of(f.framePlots));
    plots->setSpacing(4);
    auto* signals_row = row_of(window, {&f.optLin(0), &f.optLin(1)});
    signals_row->insertWidget(0, caption(window, "Signals:"));
    plots->addLayout(signals_row);
    plots->addLayout(row_of(window, {&f.chkHorizLines, &f.chkFormerSel}));
    plots->addSpacing(4);
    plots->addWidget(caption(window, "Below the signals:"));
    for (int k = 0; k <= 2; ++k) plots->addWidget(window.of(f.optResultPlot(k)));
    plots->addLayout(lay_out_pairs(window, f));
}

void lay_out_tests(FormWindow& window, const FrmSetIS& f) {
    window.of(f.frameTable)
        ->setLayout(column_of(window, {&f.optTable(0), &f.optTable(1), &f.optTable(2), &f.optTable(3)}));
    auto* grid = grid_in(window, f.frameTests);
    grid->addWidget(window.of(f.chkTestBlank), 0, 0, 1, 2);
    grid->addWidget(window.of(f.frameTable), 1, 0, 1, 2);
    int row = 2;
    for (const Control* test : std::initializer_list<const Control*>{&f.optShowMiMa, &f.optMiMa, &f.optShowGrubbs,
                                                                     &f.optGrubbs, &f.optShowStDev})
        grid->addWidget(window.of(*test), row++, 0, 1, 2);
    narrow(window, {&f.txtSD}, 44);
    grid->addLayout(line_of(window, {&f.optStDev, &f.txtSD, &f.lblSD}), row, 0, 1, 2);
    grid->setColumnStretch(1, 1);
}

void lay_out_results(FormWindow& window, const FrmSetIS& f) {
    auto* grid = grid_in(window, f.frameResults);
    const auto pair = [&](int row, const char* what, const ControlArray<OptionButton>& options, bool wide) {
        grid->addWidget(caption(window, what), row, 0, 1, 2);
        grid->addWidget(window.of(options(0)), row + 1, 0, 1, wide ? 2 : 1);
        grid->addWidget(window.of(options(1)), wide ? row + 2 : row + 1, wide ? 0 : 1, 1, wide ? 2 : 1);
    };
    pair(0, "Averages of the quick results:", f.optMean, false);
    pair(2, "Quick results:", f.optOneLine, true);
    pair(5, "Tables of the time slices:", f.optLinesTables, false);
    grid->setColumnStretch(1, 1);
}

// Down the columns, and through a pair of analytes before the next one.
void order_tabs(FormWindow& window, FrmSetIS& f) {
    const Control* former = &f.txtAbbrSTD;
    const auto then = [&](std::initializer_list<const Control*> next) {
        for (const Control* control : next) {
            QWidget::setTabOrder(window.of(*former), window.of(*control));
            former = control;
        }
    };
    then({&f.txtSTCpath, &f.cmdBrowSTC, &f.txtSTMpath, &f.cmdBrowSTM});
    then({&f.optDWE(0), &f.txtDWEtime, &f.optDWE(1), &f.txtDwePath, &f.cmdBrowDwe});
    then({&f.opt1IS, &f.opt2IS, &f.opt3IS, &f.optPeriod(0), &f.optPeriod(1)});
    then({&f.comboIso, &f.txtISppm1, &f.txtISerr1, &f.comboIso2, &f.txtISppm2, &f.txtISerr2});
    then({&f.comboIso3, &f.txtISppm3, &f.txtISerr3, &f.txtMass2, &f.txtMass3, &f.cmdShow});
    then({&f.optLin(0), &f.optLin(1), &f.chkHorizLines, &f.chkFormerSel});
    for (const OptionButton& plot : f.optResultPlot) then({&plot});
    for (int pair = 1; pair <= 6; ++pair)
        then({&f.chkRatio(pair), &f.comboRatio(2 * pair - 2), &f.chkBLK1(pair), &f.comboRatio(2 * pair - 1),
              &f.chkBLK2(pair)});
    for (auto* pair : {&f.optMean, &f.optOneLine, &f.optLinesTables, &f.optCPSinData, &f.optBLK_IS})
        then({&(*pair)(0), &(*pair)(1)});
    then({&f.chkTestBlank, &f.optTable(0), &f.optTable(1), &f.optTable(2), &f.optTable(3)});
    then({&f.optShowMiMa, &f.optMiMa, &f.optShowGrubbs, &f.optGrubbs, &f.optShowStDev, &f.optStDev, &f.txtSD});
    then({&f.txtComments, &f.cmdApply, &f.cmdSaveAs, &f.cmdCancel});
}

}  // namespace

void lay_out_set_is(FormWindow& window, FrmSetIS& f) {
    lay_out_files(window, f);
    lay_out_measurement(window, f);
    lay_out_standards(window, f);
    lay_out_plots(window, f);
    lay_out_tests(window, f);
    lay_out_results(window, f);

    auto* inner = new QWidget;
    auto* columns = new QHBoxLayout(inner);
    columns->setContentsMargins(6, 6, 6, 4);
    columns->setSpacing(gap);
    auto* measured = column_of(window, {&f.frameFiles});
    measured->addWidget(window.of(f.frameDwell));
    measured->addWidget(window.of(f.frameStandards));
    measured->addStretch(1);
    auto* plotted = column_of(window, {&f.framePlots, &f.frameResults});
    plotted->addStretch(1);
    auto* given = column_of(window, {&f.frameUnits, &f.frameBlank, &f.frameTests, &f.lblComments, &f.txtComments});
    given->addStretch(1);
    window.of(f.txtComments)->setMaximumHeight(window.of(f.txtAbbrSTD)->sizeHint().height() * 4);
    for (QVBoxLayout* column : {measured, plotted, given}) columns->addLayout(column, 1);

    auto* whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(0, 0, 0, 8);
    whole->addWidget(roomy_area(window, inner), 1);
    auto* buttons = button_row(window, {}, {&f.cmdApply, &f.cmdSaveAs, &f.cmdCancel});
    buttons->setContentsMargins(8, 0, 8, 0);
    whole->addLayout(buttons);
    order_tabs(window, f);
    window.set_default_buttons({&f.cmdApply});
    window.set_escape_buttons({&f.cmdCancel});
    window.add_shortcut(f.cmdApply, "Alt+A");
    window.add_shortcut(f.cmdSaveAs, "Alt+S");
    window.add_shortcut(f.cmdCancel, "Alt+C");
    window.add_shortcut(f.cmdShow, "Alt+P");
}

}  // namespace kolvar
