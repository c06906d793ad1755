// The defaults of the U/Pb and FLEX paths in four columns: files and standards, corrections, plots, results.
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

namespace {

constexpr int number_width = 58;

QGridLayout* tight_grid_in(FormWindow& window, const Control& holder) {
    QGridLayout* const grid = grid_in(window, holder);
    grid->setContentsMargins(6, 3, 6, 5);
    return grid;
}

// Captions do not touch the fields beside them.
QHBoxLayout* line_of(FormWindow& window, std::initializer_list<const Control*> controls, int stretched = -1) {
    QHBoxLayout* const line = row_of(window, controls, stretched);
    line->setSpacing(4);
    return line;
}

// What changes no result stands back.
void small(FormWindow& window, const Control& frame) {
    QFont font = window.of(frame)->font();
    font.setPointSizeF(font.pointSizeF() * 0.8);
    window.of(frame)->setFont(font);
}

// Controls in a line of a frame of their own.
void lay_out_line(FormWindow& window, const Control& frame, std::initializer_list<const Control*> controls) {
    tight_grid_in(window, frame)->addLayout(line_of(window, controls), 0, 0);
}

QVBoxLayout* headed_column(FormWindow& window, const char* heading) {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    QLabel* const head = caption(window, heading);
    QFont font = head->font();
    font.setBold(true);
    head->setFont(font);
    column->addWidget(head);
    return column;
}

void add(FormWindow& window, QVBoxLayout* column, std::initializer_list<const Control*> controls) {
    for (const Control* control : controls) column->addWidget(window.of(*control));
}

// Captions and their fields, so many of them in a line.
void lay_out_pairs(FormWindow& window, QGridLayout* grid, const std::vector<std::pair<Control*, Control*>>& pairs,
                   int in_a_line) {
    int at = 0;
    for (const auto& [label, entry] : pairs) {
        grid->addWidget(window.of(*label), at / in_a_line, at % in_a_line * 2);
        grid->addWidget(window.of(*entry), at / in_a_line, at % in_a_line * 2 + 1);
        window.of(*entry)->setMinimumWidth(40);
        ++at;
    }
    for (int k = 0; k < in_a_line; ++k) grid->setColumnStretch(k * 2 + 1, 1);
}

QVBoxLayout* lay_out_files(FormWindow& window, DefaultsForm& f) {
    auto* method = tight_grid_in(window, f.frameMethod);
    method->addLayout(line_of(window, {&f.optMethod(0), &f.optMethod(1)}), 0, 0);
    for (int k = 2; k <= 3; ++k) method->addWidget(window.of(f.optMethod(k)), k - 1, 0);
    auto* mineral = tight_grid_in(window, f.frameMinerals);
    mineral->addWidget(window.of(f.comboMineral), 0, 0);
    mineral->addWidget(window.of(f.txtMineral), 0, 1);
    mineral->addWidget(window.of(f.Label7), 1, 0, 1, 2);
    mineral->setRowMinimumHeight(1, window.of(f.Label7)->sizeHint().height());
    mineral->setColumnStretch(1, 1);
    window.of(f.txtAbbrSTD)->setMinimumWidth(number_width);
    auto* column = headed_column(window, "File names and standards");
    add(window, column, {&f.frameMethod});
    column->addLayout(line_of(window, {&f.lblAbbrSTD, &f.txtAbbrSTD}, 1));
    add(window, column, {&f.frameMinerals});
    return column;
}

// The row of a standard: each value beside its error. The question for a new name takes the place below.
void lay_out_standards(FormWindow& window, FrmSetUP& f) {
    auto* grid = tight_grid_in(window, f.frameStandards);
    grid->addWidget(window.of(f.comboStd), 0, 0, 1, 3);
    grid->addWidget(window.of(f.lblStd(0)), 1, 0);
    grid->addWidget(window.of(f.txtStd(0)), 1, 1, 1, 2);
    grid->addWidget(window.of(f.lblStdValue), 2, 1);
    grid->addWidget(window.of(f.lblStdError), 2, 2);
    for (int row = 1; row <= 8; ++row) {
        grid->addWidget(window.of(f.lblStd(row)), row + 2, 0);
        grid->addWidget(window.of(f.txtStd(row)), row + 2, 1);
        grid->addWidget(window.of(f.txtStdEr(row)), row + 2, 2);
        window.of(f.txtStd(row))->setMinimumWidth(number_width);
        window.of(f.txtStdEr(row))->setMinimumWidth(number_width);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    auto* question = new QVBoxLayout(window.of(f.Picture2));
    question->setContentsMargins(0, 0, 0, 0);
    wrapping(window, f.lblNewSTD);
    question->addWidget(window.of(f.lblNewSTD));
    question->addWidget(window.of(f.txtNewSTD));
    question->addLayout(line_of(window, {&f.cmdOKnewSTD, &f.cmdCancelNewStd}, 0));
    grid->addWidget(window.of(f.cmdNewSTD), 11, 0, 1, 3);
    grid->addWidget(window.of(f.Picture2), 12, 0, 1, 3);
}

QVBoxLayout* lay_out_corrections(FormWindow& window, DefaultsForm& f) {
    lay_out_pairs(window, tight_grid_in(window, f.frameDwell),
                  {{&f.lblDwe(1), &f.txtDwe1},
                   {&f.lblDwe(2), &f.txtDwe2},
                   {&f.lblDwe(3), &f.txtDwe3},
                   {&f.lblDwe(4), &f.txtDwe4},
                   {&f.lblDwe(5), &f.txtDwe5},
                   {&f.lblDwe(6), &f.txtDwe6},
                   {&f.lblDwe(7), &f.txtDwe7}},
                  4);
    lay_out_pairs(window, tight_grid_in(window, f.frameIsotopes),
                  {{&f.lblHg8_4, &f.txtHg8_4},
                   {&f.lblPb6_4, &f.txtPb6_4},
                   {&f.lblHg9_4, &f.txtHg9_4},
                   {&f.lblPb7_4, &f.txtPb7_4},
                   {&f.lblHg0_4, &f.txtHg0_4},
                   {&f.lblPb8_4, &f.txtPb8_4},
                   {&f.lblHg1_4, &f.txtHg1_4},
                   {&f.lblU8_5, &f.txtU8_5},
                   {&f.lblHg2_4, &f.txtHg2_4}},
                  2);
    auto* column = headed_column(window, "Corrections");
    add(window, column, {&f.frameDwell, &f.frameIsotopes, &f.chkU235calc});
    return column;
}

void lay_out_common_lead(FormWindow& window, FrmSetUP& f) {
    auto* grid = tight_grid_in(window, f.frameCommonLead);
    small(window, f.frameCommonLead);
    int row = 0;
    for (const Control* line :
         std::initializer_list<const Control*>{&f.chkCommLead1, &f.Option1, &f.Option2, &f.Option3})
        grid->addWidget(window.of(*line), row++, 0, 1, 2);
    grid->addWidget(window.of(f.Option13), row, 0);
    grid->addWidget(window.of(f.Text4), row++, 1);
    grid->addWidget(window.of(f.Check4), row, 0);
    grid->addWidget(window.of(f.txtAgePb), row++, 1);
    grid->addWidget(window.of(f.Check6), row, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    narrow(window, {&f.Text4, &f.txtAgePb}, number_width);
}

QVBoxLayout* lay_out_plots(FormWindow& window, DefaultsForm& f, const Control* former_selection) {
    lay_out_line(window, f.frameLin, {&f.optLin(0), &f.optLin(1)});
    lay_out_line(window, f.frameLinRatios, {&f.optLinRatios(0), &f.optLinRatios(1)});
    lay_out_line(window, f.frameConcordia, {&f.optConcordia(0), &f.optConcordia(1)});

    auto* plots = tight_grid_in(window, f.frameShow);
    const Control* const boxes[] = {&f.chk68, &f.chk75, &f.chk82, &f.chkUTh, &f.chkPbPb};
    for (int k = 0; k < 5; ++k) plots->addWidget(window.of(*boxes[k]), k / 2, k % 2);
    plots->addWidget(window.of(f.chk_LinReg), 3, 0, 1, 2);
    if (former_selection != nullptr) plots->addWidget(window.of(*former_selection), 4, 0, 1, 2);

    auto* outliers = tight_grid_in(window, f.frameOutliers);
    outliers->addWidget(window.of(f.chkShowOL), 0, 0);
    outliers->addWidget(window.of(f.lblOL), 0, 1);
    const Control* const tested[] = {&f.chkOL68, &f.chkOL75, &f.chkOL82, &f.chkOLUTh, &f.chkOLPbPb};
    for (int k = 0; k < 5; ++k) outliers->addWidget(window.of(*tested[k]), 1 + k / 2, k % 2);
    narrow(window, {&f.txtOL_SD}, 44);
    outliers->addLayout(line_of(window, {&f.lblOL_SD, &f.txtOL_SD, &f.lblOL_SD2}), 4, 0, 1, 2);
    outliers->addLayout(line_of(window, {&f.lblManual, &f.optManual(0), &f.optManual(1)}), 5, 0, 1, 2);

    auto* column = headed_column(window, "Plots and outliers");
    add(window, column, {&f.frameLin, &f.frameLinRatios, &f.frameShow, &f.frameConcordia, &f.frameOutliers});
    return column;
}

void lay_out_refinement(FormWindow& window, DefaultsForm& f) {
    auto* grid = tight_grid_in(window, f.frameZizz);
    grid->addWidget(window.of(f.txtZizzRange), 0, 0);
    grid->addWidget(window.of(f.comboBzz), 0, 1);
    grid->addWidget(window.of(f.lblBzzPlot), 1, 0);
    grid->addWidget(window.of(f.comboBzzPlot), 1, 1);
    grid->addWidget(window.of(f.lblBzzMethod), 2, 0);
    grid->addWidget(window.of(f.comboBzzMethod), 2, 1);
    grid->addWidget(window.of(f.chkBzzPrompt_UP), 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    window.of(f.txtZizzRange)->setMinimumWidth(44);
    window.of(f.comboBzzPlot)->setMinimumWidth(134);
}

QVBoxLayout* lay_out_results(FormWindow& window, DefaultsForm& f) {
    lay_out_line(window, f.frameAver, {&f.optAverage(0), &f.optAverage(1)});
    lay_out_line(window, f.Frame15, {&f.optMean(0), &f.optMean(1)});
    auto* tzero = tight_grid_in(window, f.Frame9);
    for (int k = 0; k <= 2; ++k) tzero->addWidget(window.of(f.optTzero(k)), k, 0);
    narrow(window, {&f.txtDelay}, 44);
    auto* delay = line_of(window, {&f.txtDelay, &f.lblDelay});
    delay->setContentsMargins(20, 0, 0, 0);
    tzero->addLayout(delay, 3, 0);
    tzero->addWidget(window.of(f.chkPbAver), 4, 0);

    auto* errors = tight_grid_in(window, f.frameErr);
    errors->addLayout(line_of(window, {&f.comboErr, &f.lblErr}), 0, 0);
    for (int k = 0; k <= 3; ++k) errors->addWidget(window.of(f.optErr(k)), 1 + k, 0);
    tight_grid_in(window, f.framePasteDat)->addLayout(column_of(window, {&f.optPasteDat(0), &f.optPasteDat(1)}), 0, 0);
    auto* column = headed_column(window, "Results, errors, output");
    add(window, column, {&f.frameAver, &f.Frame15, &f.Frame9, &f.frameErr, &f.framePasteDat});
    return column;
}

void lay_out_unused(FormWindow& window, DefaultsForm& f) {
    auto* grid = tight_grid_in(window, f.frameUnused);
    small(window, f.frameUnused);
    const Control* const cells[3][3] = {{&f.Option10, &f.Option11, &f.Option12},
                                        {&f.Option18, &f.Option19, &f.Option20},
                                        {&f.Option21, &f.Option22, &f.Option23}};
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 3; ++col) grid->addWidget(window.of(*cells[row][col]), row, col);
    grid->addWidget(window.of(f.Combo3), 3, 0);
    for (const Control* control : f.without_effect)
        window.of(*control)->setToolTip(QStringLiteral("stored, not used in the calculation"));
}

void add_comments(FormWindow& window, DefaultsForm& f, QVBoxLayout* column) {
    add(window, column, {&f.lblComments, &f.txtComments});
    window.of(f.txtComments)->setMinimumHeight(window.of(f.txtAbbrSTD)->sizeHint().height() * 2);
    window.of(f.txtComments)->setMaximumHeight(window.of(f.txtAbbrSTD)->sizeHint().height() * 4);
}

void put_together(FormWindow& window, DefaultsForm& f, std::initializer_list<QVBoxLayout*> columns) {
    auto* inner = new QWidget;
    auto* across = new QHBoxLayout(inner);
    across->setContentsMargins(4, 4, 4, 2);
    across->setSpacing(5);
    for (QVBoxLayout* column : columns) {
        column->addStretch(1);
        across->addLayout(column, 0);
    }
    across->addStretch(1);
    auto* whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(0, 0, 0, 8);
    whole->addWidget(roomy_area(window, inner), 1);
    auto* buttons = button_row(window, {&f.Picture1, &f.lblPicture1}, {&f.cmdApply, &f.cmdSaveAs, &f.cmdCancel});
    buttons->setContentsMargins(8, 0, 8, 0);
    whole->addLayout(buttons);
    window.of(f.Picture1)->setFixedSize(24, 24);
    window.of(f.Picture1)->setToolTip(QStringLiteral("How long do the changes last?"));
    window.set_default_buttons({&f.cmdApply});
    window.set_escape_buttons({&f.cmdCancel});
    window.add_shortcut(f.cmdApply, "Alt+A");
    window.add_shortcut(f.cmdSaveAs, "Alt+S");
    window.add_shortcut(f.cmdCancel, "Alt+C");
    for (const Control* taking : {&f.cmdApply, &f.cmdSaveAs}) button(window, *taking).take_focus_by_keys();
}

}  // namespace

void lay_out_set_up(FormWindow& window, FrmSetUP& f) {
    QVBoxLayout* const files = lay_out_files(window, f);
    lay_out_standards(window, f);
    add(window, files, {&f.frameStandards});
    QVBoxLayout* const corrections = lay_out_corrections(window, f);
    lay_out_common_lead(window, f);
    add(window, corrections, {&f.chkHgCorr1, &f.frameCommonLead});
    lay_out_unused(window, f);
    add(window, corrections, {&f.frameUnused});
    QVBoxLayout* const plots = lay_out_plots(window, f, &f.chkFormerSel);
    lay_out_refinement(window, f);
    add(window, plots, {&f.frameZizz});
    QVBoxLayout* const results = lay_out_results(window, f);
    add_comments(window, f, results);
    put_together(window, f, {files, corrections, plots, results});
    window.set_default_buttons({&f.cmdOKnewSTD, &f.cmdApply});
    window.set_escape_buttons({&f.cmdCancelNewStd, &f.cmdCancel});
    window.add_shortcut(f.cmdNewSTD, "Alt+N");
}

void lay_out_set_flex(FormWindow& window, FrmSetFLEX& f) {
    QVBoxLayout* const files = lay_out_files(window, f);
    auto* analytes = tight_grid_in(window, f.framePref);
    for (ListBox& list : f.comboPref) {
        analytes->addWidget(window.of(list), (list.index - 1) % 5, (list.index - 1) / 5);
        window.of(list)->setMinimumWidth(84);
    }
    window.of(f.framePref)->setToolTip(QStringLiteral("Recognised from the next data file on"));
    auto* ratios = tight_grid_in(window, f.Frame6);
    for (int pair = 1; pair <= 6; ++pair) {
        ratios->addWidget(window.of(f.chkRatio(pair)), pair, 0);
        ratios->addWidget(window.of(f.comboRatio(2 * pair - 2)), pair, 1);
        ratios->addWidget(caption(window, "/"), pair, 2, Qt::AlignCenter);
        ratios->addWidget(window.of(f.comboRatio(2 * pair - 1)), pair, 3);
    }
    ratios->setColumnStretch(1, 1);
    ratios->setColumnStretch(3, 1);
    add(window, files, {&f.framePref, &f.Frame6});
    QVBoxLayout* const corrections = lay_out_corrections(window, f);
    window.of(f.chkU235calc)->setToolTip(QStringLiteral("not used on this path: it is put away with Apply"));
    lay_out_refinement(window, f);
    lay_out_unused(window, f);
    add(window, corrections, {&f.frameZizz, &f.frameUnused});
    QVBoxLayout* const plots = lay_out_plots(window, f, nullptr);
    QVBoxLayout* const results = lay_out_results(window, f);
    add_comments(window, f, results);
    put_together(window, f, {files, corrections, plots, results});
}

}  // namespace kolvar
