// What to do when the clipboard holds no table.
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

void lay_out_paste(FormWindow& window, const FrmPaste& f) {
    auto* const whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(14, 14, 14, 14);
    whole->setSpacing(8);
    for (const Label* text :
         {&f.lblError, &f.lblCheck, &f.lblHow, &f.lblOrder, &f.lblFirst, &f.lblOther, &f.lblExample, &f.lblWarning}) {
        wrapping(window, *text).setMinimumWidth(540);
        whole->addWidget(window.of(*text));
        if (text == &f.lblCheck || text == &f.lblExample) whole->addSpacing(8);
    }
    for (const Label* head : {&f.lblError, &f.lblHow, &f.lblWarning}) bold(window, *head);
    whole->addStretch(1);
    whole->addLayout(button_row(window, {&f.cmdPaste}, {&f.cmdClose}));
    // Enter on a window that has just opened closes it; the other button would do nothing.
    window.of(f.cmdPaste)->setFocusPolicy(Qt::TabFocus);
    window.of(f.cmdClose)->setFocus();
    window.set_default_buttons({&f.cmdClose});
    window.set_escape_buttons({&f.cmdClose});
    window.add_shortcut(f.cmdPaste, "Alt+P");
    window.add_shortcut(f.cmdClose, "Alt+C");
}

}  // namespace kolvar
