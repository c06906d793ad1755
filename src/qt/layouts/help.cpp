// Help: the three faces lie in one column, one of them in view.
#include <QFontDatabase>

#include "qt/canvas_view.hpp"
#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"
#include "qt/text.hpp"

namespace kolvar {

namespace {

void lay_out_about(FormWindow& window, const FrmHelp1& f) {
    QFont font = bold(window, f.lblName).font();
    font.setPointSizeF(font.pointSizeF() * 1.8);
    window.of(f.lblName)->setFont(font);
    wrapping(window, f.lblCitation).setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* about = new QVBoxLayout(window.of(f.pictAbout));
    about->setContentsMargins(0, 0, 0, 0);
    about->setSpacing(6);
    for (const Control* control : std::initializer_list<const Control*>{&f.lblName, &f.lblVersion, &f.lblPurpose})
        about->addWidget(window.of(*control));
    about->addSpacing(14);
    about->addWidget(window.of(f.lblCitationHead));
    about->addWidget(window.of(f.lblCitation));
    about->addLayout(button_row(window, {&f.cmdCopy}, {}));
    about->addStretch(1);
}

void lay_out_cut_text(FormWindow& window, const FrmHelp1& f) {
    auto* grid = new QGridLayout(window.of(f.pictCutText));
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(5);
    grid->setColumnStretch(1, 1);
    for (int line = f.lblCutText.first(); line <= f.lblCutText.last(); ++line) {
        const bool numbered = line <= f.lblCutNumber.last();
        if (numbered) {
            bold(window, f.lblCutNumber(line));
            grid->addWidget(window.of(f.lblCutNumber(line)), line, 0);
        }
        wrapping(window, f.lblCutText(line));
        // The notes stand off from the lines with numbers.
        grid->addWidget(window.of(f.lblCutText(line)), numbered ? line : line + 1, numbered ? 1 : 0, 1,
                        numbered ? 1 : 2);
    }
    grid->setRowMinimumHeight(f.lblCutNumber.last() + 1, 4);
    grid->setRowStretch(f.lblCutText.last() + 2, 1);
}

}  // namespace

void lay_out_help(FormWindow& window, const FrmHelp1& f) {
    lay_out_about(window, f);
    lay_out_cut_text(window, f);
    window.of(f.txt1)->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));  // the text has columns
    auto* const sketch = static_cast<CanvasView*>(window.of(f.pictCutTime));
    const QColor body = window.palette().color(QPalette::Window);
    sketch->ground = rgb(body.red(), body.green(), body.blue());  // the strip with the numbers is no part of the plot
    sketch->setFixedSize(pixels(f.pictCutTime.width), pixels(f.pictCutTime.height));
    for (const Control* mark : std::initializer_list<const Control*>{&f.lblBlankHere, &f.lblSignalHere})
        bold(window, *mark);

    auto* whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(14, 14, 14, 14);
    whole->setSpacing(10);
    whole->addWidget(window.of(f.txt1), 1);
    whole->addWidget(window.of(f.pictAbout), 1);
    whole->addWidget(window.of(f.pictCutTime), 0, Qt::AlignHCenter);
    whole->addWidget(window.of(f.pictCutText), 1);
    whole->addLayout(button_row(window, {}, {&f.cmdClose}));
    window.set_default_buttons({&f.cmdClose});
    window.set_escape_buttons({&f.cmdClose});
    window.add_shortcut(f.cmdCopy, "Alt+C");
}

}  // namespace kolvar
