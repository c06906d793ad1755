// Step 1: the file choice in one column of groups, the internal standards beside it.
#include <QGroupBox>
#include <QLineEdit>
#include <QMenuBar>

#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

namespace {

void lay_out_references(FormWindow& window, const Frm1Settings& f) {
    for (const Label* field :
         {&f.lblCSV, &f.lblSTC, &f.lblSTM, &f.lblBLK, &f.lblDWE, &f.lblUPset, &f.lblUP, &f.lblFLEX})
        value_field(window, *field).setMinimumWidth(260);

    window.of(f.frameMode)->setLayout(column_of(window, {&f.optData, &f.optCreatSTM, &f.optCreatBLK}));
    window.of(f.frameFile)->setLayout(row_of(window, {&f.lblCSV, &f.cmdLoadCSV, &f.cmdPaste}, 0));

    auto* composition = column_of(window, {&f.lblCaptionSTC});
    composition->addLayout(row_of(window, {&f.lblSTC, &f.cmdLoadSTC, &f.cmdSTCinfo}, 0));
    window.of(f.Frame2)->setLayout(composition);
    auto* measurement = column_of(window, {&f.lblCaptionSTM});
    measurement->addLayout(row_of(window, {&f.lblSTM, &f.cmdLoadSTM}, 0));
    window.of(f.Frame3)->setLayout(measurement);
    auto* blank = column_of(window, {&f.optBfromData, &f.optBLKfile});
    blank->addLayout(row_of(window, {&f.lblBLK, &f.cmdLoadBLK}, 0));
    window.of(f.Frame1)->setLayout(blank);

    auto* dwell = new QVBoxLayout;
    window.of(f.txtDwell)->setFixedWidth(80);
    dwell->addLayout(row_of(window, {&f.optDweUni, &f.txtDwell, &f.lblDweMS}));
    dwell->addWidget(window.of(f.optDWEfile));
    dwell->addLayout(row_of(window, {&f.lblDWE, &f.cmdLoadDWE, &f.cmdDWEinfo}, 0));
    window.of(f.frameDwell)->setLayout(dwell);
}

void lay_out_standards(FormWindow& window, const Frm1Settings& f) {
    auto* grid = new QGridLayout;
    grid->addWidget(window.of(f.lblIntHead), 0, 0, 1, 3);
    const Control* const cells[4][3] = {{&f.lblIntIso, &f.lblIntConc, &f.lblIntErr},
                                        {&f.comboIso, &f.txtISppm, &f.txtISerr},
                                        {&f.comboIso2, &f.txtISppm2, &f.txtISerr2},
                                        {&f.comboIso3, &f.txtISppm3, &f.txtISerr3}};
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 3; ++col) grid->addWidget(window.of(*cells[row][col]), row + 1, col);
    for (const Control* list : {&f.comboIso, &f.comboIso2, &f.comboIso3}) window.of(*list)->setMinimumWidth(110);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    window.of(f.frameIntStd)->setLayout(grid);
    bold(window, f.lblIntHead);
}

void lay_out_start_panels(FormWindow& window, const Frm1Settings& f) {
    auto* uranium = new QVBoxLayout(window.of(f.pict_UT));
    uranium->addLayout(row_of(window, {&f.Command6, &f.cmdChooseSET, &f.lblUPset, &f.cmdSet_1}, 2));
    uranium->addSpacing(12);
    uranium->addLayout(row_of(window, {&f.cmdIndividual, &f.lblCaptionUP, &f.cmdChooseUP, &f.lblUP, &f.cmdPaste1}, 3));
    uranium->addSpacing(12);
    uranium->addLayout(row_of(window, {&f.cmdSequential}));
    uranium->addLayout(row_of(window, {&f.lblCaptionSeq, &f.cmdCreate, &f.cmdOpenMaster}));
    uranium->addStretch(1);
    uranium->addLayout(button_row(window, {}, {&f.cmdOK1, &f.cmdExitUP}));

    auto* flex = new QVBoxLayout(window.of(f.pict_FLEX));
    flex->addLayout(row_of(window, {&f.lblFLEX, &f.Command15}, 0));
    flex->addWidget(window.of(f.frameBlankFLEX));
    window.of(f.frameBlankFLEX)->setLayout(column_of(window, {&f.optBfromDataFLEX, &f.optBLKfileFLEX}));
    flex->addWidget(window.of(f.frameDwellFLEX));
    auto* flex_dwell = new QVBoxLayout(window.of(f.frameDwellFLEX));
    window.of(f.txtDwellFLEX)->setFixedWidth(80);
    flex_dwell->addLayout(row_of(window, {&f.optDweUniFLEX, &f.txtDwellFLEX, &f.lblDweMSFLEX}));
    flex_dwell->addWidget(window.of(f.optDWEfileFLEX));
    flex->addStretch(1);
    flex->addLayout(button_row(window, {}, {&f.Command9, &f.cmdExitFLEX}));
}

}  // namespace

void lay_out_settings(FormWindow& window, const Frm1Settings& f) {
    lay_out_references(window, f);
    lay_out_standards(window, f);
    lay_out_start_panels(window, f);

    auto* files = column_of(window, {&f.frameMode, &f.frameFile, &f.Frame2, &f.Frame3, &f.Frame1, &f.frameDwell});
    files->addStretch(1);
    auto* sides = new QHBoxLayout;
    sides->addLayout(files, 3);
    sides->addSpacing(8);
    auto* chosen = column_of(window, {&f.frameIntStd});
    chosen->addStretch(1);
    sides->addLayout(chosen, 2);
    auto* standards = new QVBoxLayout(window.of(f.pict_IS));
    standards->setContentsMargins(0, 0, 0, 0);
    standards->addLayout(sides, 1);
    standards->addSpacing(4);
    standards->addLayout(
        button_row(window, {&f.cmdModiSet, &f.cmdSeq}, {&f.cmdOK, &f.cmdBack, &f.cmdNext, &f.cmdClose}));

    // The small panels have some room, too. None is smaller than its controls, so that the window grows with a panel
    // that a file has brought in.
    auto* panels = column_of(window, {&f.pict_IS, &f.pict_UT, &f.pict_FLEX});
    panels->addStrut(662);
    auto* all_panels = new QHBoxLayout(window.body());
    all_panels->addLayout(panels);
    all_panels->addStrut(402);
    window.set_arranger([&window] {
        window.body()->layout()->activate();
        window.layout()->activate();
    });
    window.of(f.lblVersion)->setContentsMargins(8, 3, 8, 3);
    window.menuBar()->setCornerWidget(window.of(f.lblVersion));
    window.set_default_buttons({&f.cmdNext, &f.cmdOK, &f.cmdOK1, &f.Command9});
    window.set_escape_buttons({&f.cmdBack});
    window.add_shortcut(f.cmdOK, "Alt+O");
    window.add_shortcut(f.cmdNext, "Alt+N");
    window.add_shortcut(f.cmdBack, "Alt+B");
    window.add_shortcut(f.cmdClose, "Alt+X");
}

}  // namespace kolvar
