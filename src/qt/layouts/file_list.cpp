// The list of a batch: folder and order of a new list beside its table, or the table of a master file alone.
#include <QComboBox>
#include <QLabel>

#include "qt/canvas_painter.hpp"
#include "qt/grid_view.hpp"
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

namespace {

// What a colour of the lines stands for.
void add_key(FormWindow& window, QHBoxLayout& keys, Colour colour, const char* text) {
    auto* mark = new QLabel(window.body());
    QPixmap swatch(24, 12);
    swatch.fill(qt_colour(colour));
    mark->setPixmap(swatch);
    mark->setFixedSize(24, 12);
    keys.addWidget(mark);
    keys.addWidget(caption(window, text));
    keys.addSpacing(10);
}

QLabel* heading(FormWindow& window, const char* text) {
    QLabel* const head = caption(window, text);
    QFont font = head->font();
    font.setBold(true);
    head->setFont(font);
    return head;
}

void lay_out_choice(FormWindow& window, const FrmFileList& f) {
    QWidget* const panel = window.of(f.pictChoice);
    panel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);

    auto* folder = new QHBoxLayout;
    folder->addWidget(heading(window, "Folder"));
    folder->addWidget(window.of(f.Drive1));
    folder->addStretch(1);
    column->addLayout(folder);
    window.of(f.Dir1)->setMinimumHeight(110);
    column->addWidget(window.of(f.Dir1), 1);
    wrapping(window, f.lblHint(0));
    column->addWidget(window.of(f.lblHint(0)));
    value_field(window, f.lblPath).setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    column->addWidget(window.of(f.lblPath));
    auto* files = new QHBoxLayout;
    files->addWidget(caption(window, "Files"));
    auto* const names = static_cast<QComboBox*>(window.of(f.List1));
    names->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    names->setMinimumContentsLength(10);
    files->addWidget(names, 1);
    column->addLayout(files);
    column->addWidget(window.of(f.cmdAccept));

    column->addSpacing(8);
    column->addWidget(heading(window, "Serial number"));
    column->addWidget(window.of(f.optStringSearch(0)));
    auto* middle = row_of(window, {&f.optStringSearch(1), &f.Combo1}, 0);
    column->addLayout(middle);
    column->addWidget(window.of(f.optStringSearch(2)));
    wrapping(window, f.Label2);
    column->addLayout(row_of(window, {&f.Label2, &f.Combo2}, 0));
    column->addWidget(window.of(f.txtSpecExt));
    column->addWidget(window.of(f.cmdReOrd));
    column->addWidget(window.of(f.cmdSaveParam));
    for (const Button* control : {&f.cmdAccept, &f.cmdReOrd, &f.cmdSaveParam})
        button(window, *control).set_line_width(400);
}

}  // namespace

void lay_out_file_list(FormWindow& window, FrmFileList& f) {
    auto* whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(12, 12, 12, 12);
    whole->setSpacing(8);
    lay_out_choice(window, f);

    auto* const grid = static_cast<GridView*>(window.of(f.FlexGrid2));
    grid->be_a_table();
    bold(window, f.lblTitle);
    auto* const standards = static_cast<QComboBox*>(window.of(f.comboStd));
    standards->setMinimumContentsLength(16);

    auto* table = new QVBoxLayout;
    table->addLayout(row_of(window, {&f.lblTitle, &f.lblStd, &f.comboStd}, 0));
    table->addWidget(grid, 1);
    QVBoxLayout* const hints = column_of(window, {&f.lblHint(1), &f.lblHint(2), &f.lblHint(3)});
    hints->setSpacing(2);
    table->addLayout(hints);

    auto* sides = new QHBoxLayout;
    sides->setSpacing(14);
    sides->addWidget(window.of(f.pictChoice));
    sides->addLayout(table, 1);
    whole->addLayout(sides, 1);

    auto* keys = new QHBoxLayout(window.of(f.pictKey));
    keys->setContentsMargins(0, 0, 0, 0);
    add_key(window, *keys, FrmFileList::open_standard, "standard");
    add_key(window, *keys, FrmFileList::processed_standard, "standard, processed");
    add_key(window, *keys, FrmFileList::processed_sample, "sample, processed");
    whole->addLayout(button_row(window, {&f.pictKey}, {&f.cmdSave, &f.cmdBack, &f.cmdClose}));

    window.set_escape_buttons({&f.cmdClose});
    window.add_shortcut(f.cmdAccept, "Alt+A");
    window.add_shortcut(f.cmdReOrd, "Alt+R");
    window.add_shortcut(f.cmdSaveParam, "Alt+P");
    window.add_shortcut(f.cmdSave, "Alt+S");
    window.add_shortcut(f.cmdBack, "Alt+B");
    window.add_shortcut(f.Dir1, "Alt+D");
    window.add_shortcut(f.FlexGrid2, "Alt+L");
}

}  // namespace kolvar
