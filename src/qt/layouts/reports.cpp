// The small windows, and the output windows of step 4.
#include <QFontDatabase>
#include <algorithm>

#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

namespace {

QVBoxLayout* whole_of(FormWindow& window) {
    auto* whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(14, 14, 14, 14);
    whole->setSpacing(8);
    return whole;
}

// A list of isotopes, in as many lines as it needs.
LabelView& isotope_list(FormWindow& window, const Control& label) {
    LabelView& list = wrapping(window, label);
    list.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    list.setMargin(3);
    list.setMinimumSize(420, 30);
    list.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return list;
}

}  // namespace

void lay_out_dwell(FormWindow& window, const FrmDwell& f) {
    QVBoxLayout* const whole = whole_of(window);
    bold(window, f.lblHead);
    wrapping(window, f.lblEffect);
    isotope_list(window, f.lblDWE);
    for (const Control* control :
         std::initializer_list<const Control*>{&f.lblHead, &f.lblList, &f.lblDWE, &f.lblEffect})
        whole->addWidget(window.of(*control), control == &f.lblDWE ? 1 : 0);
    whole->addSpacing(6);
    button(window, f.cmdCont).set_line_width(380);
    whole->addLayout(button_row(window, {}, {&f.cmdBack, &f.cmdCont}));
    window.set_default_buttons({&f.cmdBack});
    window.set_escape_buttons({&f.cmdBack});
    window.add_shortcut(f.cmdBack, "Alt+B");
    window.add_shortcut(f.cmdCont, "Alt+C");
}

void lay_out_missing(FormWindow& window, const FrmMissingIso& f) {
    QVBoxLayout* const whole = whole_of(window);
    bold(window, f.lblHead);
    const std::pair<const Label*, const Label*> lists[] = {
        {&f.lblListSTC, &f.lblSTC}, {&f.lblListSTM, &f.lblSTM}, {&f.lblListBLK, &f.lblBLK}};
    whole->addWidget(window.of(f.lblHead));
    for (const auto& [head, list] : lists) {
        isotope_list(window, *list);
        whole->addSpacing(4);
        whole->addWidget(window.of(*head));
        whole->addWidget(window.of(*list), 1);
    }
    whole->addSpacing(6);
    whole->addLayout(button_row(window, {}, {&f.cmdBack, &f.cmdCont}));
    window.set_default_buttons({&f.cmdBack});
    window.set_escape_buttons({&f.cmdBack});
    window.add_shortcut(f.cmdBack, "Alt+B");
    window.add_shortcut(f.cmdCont, "Alt+C");
}

void lay_out_omit(FormWindow& window, const FrmOmit& f) {
    QVBoxLayout* const whole = whole_of(window);
    bold(window, f.lblHead);
    isotope_list(window, f.lblList);
    for (const Control* control : std::initializer_list<const Control*>{&f.lblHead, &f.lblText, &f.lblList})
        whole->addWidget(window.of(*control), control == &f.lblList ? 1 : 0);
    whole->addLayout(button_row(window, {}, {&f.cmdOK}));
    window.set_default_buttons({&f.cmdOK});
    window.set_escape_buttons({&f.cmdOK});
}

void lay_out_folder(FormWindow& window, const FrmChoseDir& f) {
    QVBoxLayout* const whole = whole_of(window);
    wrapping(window, f.lblAdvice).setMinimumWidth(460);
    value_field(window, f.lblPath);
    whole->addWidget(window.of(f.lblAdvice));
    auto* drive = row_of(window, {&f.Drive1});
    drive->addStretch(1);
    whole->addLayout(drive);
    whole->addWidget(window.of(f.Dir1), 1);
    whole->addWidget(window.of(f.lblPath));
    whole->addWidget(window.of(f.List1));
    whole->addWidget(window.of(f.FlexGrid2), 1);
    whole->addLayout(button_row(window, {&f.cmdOK, &f.cmdProc}, {&f.cmdSave, &f.cmdCancel}));
    window.set_default_buttons({&f.cmdSave, &f.cmdOK});
    window.set_escape_buttons({&f.cmdCancel});
    window.add_shortcut(f.cmdSave, "Alt+S");
}

void lay_out_batch(FormWindow& window, const FrmBatchIS& f) {
    QVBoxLayout* const whole = whole_of(window);
    whole->addStretch(1);
    whole->addLayout(button_row(window, {}, {&f.cmdClose}));
    window.body()->setMinimumSize(360, 120);  // room for its title
    window.set_default_buttons({&f.cmdClose});
    window.set_escape_buttons({&f.cmdClose});
}

void lay_out_averages(FormWindow& window, const FrmAverConc& f) {
    constexpr int lines = 25;
    auto* grid = new QGridLayout(window.body());
    grid->setContentsMargins(12, 10, 12, 10);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(1);
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    for (int label = f.lbl.first(); label <= f.lbl.last(); ++label) {
        QWidget* const line = window.of(f.lbl(label));
        line->setFont(fixed);
        grid->addWidget(line, label % lines, label / lines);
    }
    grid->setRowStretch(lines, 1);
}

void lay_out_output(FormWindow& window, const Frm4Output& f) {
    QVBoxLayout* const whole = whole_of(window);
    value_field(window, f.lblkivagy).setMinimumWidth(420);
    whole->addWidget(window.of(f.lblkivagy));
    whole->addSpacing(8);
    auto* sides = new QHBoxLayout;
    sides->setSpacing(24);
    auto* results = column_of(window, {&f.cmdSave, &f.cmdCopyAll, &f.cmdPreview, &f.cmdAppQuick});
    auto* next = column_of(window, {&f.cmdBackRej, &f.cmdNewSel, &f.cmdNewIS, &f.cmdNewST, &f.cmdClose});
    for (QVBoxLayout* column : {results, next}) {
        column->setSpacing(6);
        column->addStretch(1);
        sides->addLayout(column, 1);
    }
    whole->addLayout(sides, 1);
    whole->addLayout(button_row(window, {}, {&f.cmdExit}));
    window.set_default_buttons({&f.cmdSave});
    window.set_escape_buttons({&f.cmdBackRej});
    window.add_shortcut(f.cmdSave, "Alt+S");
    window.add_shortcut(f.cmdCopyAll, "Alt+C");
    window.add_shortcut(f.cmdPreview, "Alt+R");
    window.add_shortcut(f.cmdBackRej, "Alt+B");
    window.add_shortcut(f.cmdExit, "Alt+X");
}

void lay_out_preview(FormWindow& window, const Frm5Preview& f) {
    QVBoxLayout* const whole = whole_of(window);
    value_field(window, f.lblKiVagy);
    whole->addWidget(window.of(f.lblKiVagy));
    whole->addWidget(window.of(f.FlexGrid1), 1);
    whole->addLayout(button_row(window, {}, {&f.cmdOK}));
    window.set_default_buttons({&f.cmdOK});
    window.set_escape_buttons({&f.cmdOK});
}

}  // namespace kolvar
