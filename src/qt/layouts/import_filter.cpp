// The three import profiles side by side, and below them the data file as its profile reads it.
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

namespace {

// Asks for less height than its contents want where the screen is low, so that the buttons below it stay in view.
class PreviewHolder : public QWidget {
public:
    using QWidget::QWidget;
    [[nodiscard]] QSize sizeHint() const override {
        constexpr int all_else = 440;  // the texts, the boxes, the buttons and the title bar
        const int room = QGuiApplication::primaryScreen()->availableSize().height() - all_else;
        const QSize wanted = QWidget::sizeHint();
        return {wanted.width(), std::min(wanted.height(), std::max(room, minimumSizeHint().height()))};
    }
};

struct Profile {
    const Label &name, &delimiter;
    const Entry *iso, *dat, *first;
};

QGridLayout* numbers(FormWindow& window, const FrmInputForm& f) {
    const Profile profiles[] = {{f.lblCSV, f.lblCSVby, &f.txtCSViso, &f.txtCSVdat, &f.txtCSVfirst},
                                {f.lblTXT, f.lblTXTby, &f.txtTXTiso, &f.txtTXTdat, &f.txtTXTfirst},
                                {f.lblXL, f.lblXLby, &f.txtXLiso, &f.txtXLdat, &f.txtXLfirst}};
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(5);
    int row = 2;
    for (const Label* question : {&f.lblIso, &f.lblDat, &f.lblFirst})
        grid->addWidget(window.of(*question), row++, 0, Qt::AlignVCenter);
    int column = 1;
    for (const Profile& profile : profiles) {
        bold(window, profile.name).setAlignment(Qt::AlignCenter);
        static_cast<LabelView*>(window.of(profile.delimiter))->setAlignment(Qt::AlignCenter);
        grid->addWidget(window.of(profile.name), 0, column);
        grid->addWidget(window.of(profile.delimiter), 1, column);
        row = 2;
        for (const Entry* box : {profile.iso, profile.dat, profile.first}) {
            auto* const entry = static_cast<EntryView*>(window.of(*box));
            entry->setAlignment(Qt::AlignCenter);
            entry->setMaximumWidth(entry->fontMetrics().horizontalAdvance(QLatin1String("000000000")) + 16);
            QFont font = entry->font();
            font.setBold(true);
            entry->setFont(font);
            grid->addWidget(entry, row++, column, Qt::AlignHCenter);
        }
        ++column;
    }
    grid->setColumnStretch(4, 1);
    return grid;
}

}  // namespace

void lay_out_import_filter(FormWindow& window, const FrmInputForm& f) {
    auto* whole = new QVBoxLayout(window.body());
    whole->setContentsMargins(14, 12, 14, 12);
    whole->setSpacing(7);
    for (const Label* text : {&f.lblPurpose, &f.lblFormats}) {
        wrapping(window, *text);
        whole->addWidget(window.of(*text));
    }
    whole->addSpacing(4);
    whole->addLayout(numbers(window, f));
    whole->addSpacing(4);
    bold(window, f.lblWarning);
    for (const Label* text : {&f.lblOther, &f.lblReserved, &f.lblWarning}) {
        wrapping(window, *text);
        whole->addWidget(window.of(*text));
    }

    auto* preview = new QVBoxLayout(window.of(f.framePreview));
    value_field(window, f.lblFile);
    preview->addLayout(row_of(window, {&f.lblFile, &f.cmdDetect}, 0));
    window.of(f.FlexGrid1)->setMinimumHeight(90);
    auto* holder = new PreviewHolder(window.of(f.framePreview));
    auto* held = new QVBoxLayout(holder);
    held->setContentsMargins(0, 0, 0, 0);
    held->addWidget(window.of(f.FlexGrid1));
    preview->addWidget(holder, 1);
    whole->addWidget(window.of(f.framePreview), 1);

    whole->addLayout(button_row(window, {}, {&f.cmdSave, &f.cmdCancel}));
    window.set_default_buttons({&f.cmdSave});
    window.set_escape_buttons({&f.cmdCancel});
    window.add_shortcut(f.cmdSave, "Alt+S");
    window.add_shortcut(f.cmdDetect, "Alt+D");
    window.add_shortcut(f.cmdCancel, "Alt+C");
}

}  // namespace kolvar
