// Step 3: views, marks and tests above the matrix, the trend plot below it.
#include <QGroupBox>

#include "qt/canvas_view.hpp"
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

void lay_out_matrix(FormWindow& window, const Frm3Matrix& f) {
    auto* views = new QVBoxLayout(window.of(f.frameView));
    for (const Control* option : {&f.optCPS, &f.optCpsSD, &f.optIIS, &f.optIisSD}) views->addWidget(window.of(*option));

    auto* marks = new QGridLayout;
    const std::pair<const CheckBox*, const Picture*> legends[] = {
        {&f.chkShowMinMax, &f.pictMinMax}, {&f.chkShowStDev, &f.pictStDev}, {&f.chkShowGrubbs, &f.pictGrubbs}};
    int line = 0;
    for (const auto& [box, legend] : legends) {
        marks->addWidget(window.of(*box), line, 0);
        marks->addWidget(window.of(*legend), 0, 1, 4, 1, Qt::AlignLeft | Qt::AlignTop);
        ++line;
    }
    marks->setRowStretch(3, 1);
    marks->setColumnStretch(1, 1);

    for (const auto& [box, legend] : legends) {
        auto* const view = static_cast<CanvasView*>(window.of(*legend));
        view->setFixedSize(150, 100);
        view->ground = Colour{window.palette().color(QPalette::Window).rgb() & 0xFFFFFFU};
    }

    auto* tests = new QGridLayout;
    window.of(f.txtSD)->setFixedWidth(60);
    window.of(f.comboProc)->setFixedWidth(80);
    tests->addWidget(window.of(f.chkMinMax), 0, 0, 1, 3);
    tests->addWidget(window.of(f.chkStDev), 1, 0);
    tests->addWidget(window.of(f.txtSD), 1, 1);
    tests->addWidget(window.of(f.lblSD), 1, 2);
    tests->addWidget(window.of(f.chkGrubbs), 2, 0);
    tests->addWidget(window.of(f.comboProc), 2, 1, 1, 2, Qt::AlignLeft);
    tests->addWidget(window.of(f.cmdReset), 3, 0, 1, 3);
    tests->setRowStretch(4, 1);

    auto* head = new QHBoxLayout;
    const std::pair<const char*, const Label*> facts[] = {{"Data File:", &f.lblFile},
                                                          {"Time slices:", &f.lblSlices},
                                                          {"Selected:", &f.lblSelected},
                                                          {"Isotopes:", &f.lblIsotopes}};
    for (const auto& [words, label] : facts) {
        head->addWidget(caption(window, words));
        head->addWidget(&bold(window, *label));
        head->addSpacing(18);
    }
    head->addStretch(1);
    auto* top = new QHBoxLayout;
    top->addWidget(window.of(f.frameView));
    top->addSpacing(10);
    top->addLayout(marks, 1);
    top->addSpacing(10);
    top->addLayout(tests);

    auto* table = new QVBoxLayout(window.of(f.Frame2));
    table->addWidget(window.of(f.FlexGrid1));

    auto* notes = new QVBoxLayout;
    wrapping(window, f.lblWhatToDo).setMaximumWidth(230);
    notes->addWidget(window.of(f.lblWhatToDo));
    notes->addLayout(row_of(window, {&f.lblFirstSecHead, &f.lblFirstSec}));
    notes->addStretch(1);
    notes->addLayout(button_row(window, {}, {&f.cmdBack, &f.cmdNext, &f.cmdCancel}));
    auto* bottom = new QHBoxLayout;
    window.of(f.pict1)->setMinimumSize(420, 110);
    bottom->addWidget(window.of(f.pict1), 1);
    bottom->addSpacing(8);
    bottom->addLayout(notes);

    auto* whole = new QVBoxLayout(window.body());
    whole->addLayout(head);
    whole->addLayout(top);
    whole->addWidget(window.of(f.Frame2), 1);
    whole->addLayout(bottom);

    window.set_default_buttons({&f.cmdNext});
    window.set_escape_buttons({&f.cmdBack});
    window.add_shortcut(f.cmdNext, "Alt+N");
    window.add_shortcut(f.cmdBack, "Alt+B");
    window.add_shortcut(f.cmdReset, "Alt+R");
    window.add_shortcut(f.cmdCancel, "Alt+X");
}

}  // namespace kolvar
