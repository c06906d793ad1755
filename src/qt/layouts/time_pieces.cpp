#include "qt/layouts/time_pieces.hpp"

#include <QPointF>
#include <cmath>
#include <optional>

#include "qt/canvas_view.hpp"
#include "qt/layouts/pieces.hpp"
#include "qt/text.hpp"

namespace kolvar {

namespace {

// Slice and value under the pointer; "" where there is no scale.
QString under_pointer(const RunState& rs, const Picture& picture, QPointF at, bool upper) {
    if (rs.nSlices < 1 || picture.width < 1 || picture.height < 1) return {};
    const int slice = static_cast<int>(std::floor(at.x() / picture.width * rs.nSlices + 0.5));
    QString text = QStringLiteral("Slice %1").arg(slice);
    const bool logarithmic = upper && !rs.LinearView;
    double end = upper ? rs.MaxCps : rs.MaxRatio;
    // The drawing of the U/Pb and FLEX signals leaves the end itself in the cell, the other one its logarithm.
    if (logarithmic && rs.Method != 0 && end > 0) end = std::log(end);
    if (!(end > 0)) return text;
    const double height = (picture.height - at.y()) / picture.height * (end / 0.9);
    const double value = logarithmic ? std::exp(height) : height;
    if (std::isfinite(value))
        text += QStringLiteral("    %1%2").arg(value, 0, 'g', 4).arg(upper ? QLatin1String(" cps") : QLatin1String());
    return text;
}

}  // namespace

QWidget* lay_out_time_head(FormWindow& window, const TimeScreen& f, const Label& default_head) {
    auto* strip = new QWidget(window.body());
    auto* grid = new QGridLayout(strip);
    grid->setContentsMargins(6, 4, 6, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    const std::pair<const Label*, const Label*> upper[] = {{&f.lblmicsodaHead, &f.lblmicsoda},
                                                           {&f.lblMeasTotHead, &f.lblMeasTot},
                                                           {&f.lblMeasSelHead, &f.lblMeasSel},
                                                           {&f.lblBLKshow, &f.lblBLKtolig}};
    const std::pair<const Label*, const Label*> lower[] = {
        {&default_head, &f.lblDefa}, {&f.lblFormer1, &f.lblFormer2}, {&f.lblFormerBL1, &f.lblFormerBL2}};
    const auto fill = [&](int row, int pair, const auto& labels) {
        grid->addWidget(window.of(*labels.first), row, 2 * pair, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(window.of(*labels.second), row, 2 * pair + 1);
    };
    for (int pair = 0; pair < 4; ++pair) fill(0, pair, upper[pair]);
    for (int pair = 0; pair < 3; ++pair) fill(1, pair, lower[pair]);
    for (const Label* field : {&f.lblmicsoda, &f.lblDefa}) value_field(window, *field);
    for (const Label* value : {&f.lblMeasTot, &f.lblMeasSel, &f.lblBLKtolig, &f.lblFormer2, &f.lblFormerBL2}) {
        bold(window, *value);
        window.of(*value)->setMinimumWidth(56);
    }
    grid->addWidget(caption(window, "Maximum [cps]:"), 1, 6, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(&bold(window, f.lbluppScal), 1, 7);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(8, 1);
    return strip;
}

void watch_pointer(FormWindow& window, const Picture& picture, QLabel* status, const RunState& rs, bool upper) {
    auto* const view = static_cast<CanvasView*>(window.of(picture));
    view->marks_limits = true;
    view->on_hover = [status, &picture, &rs, upper](std::optional<QPointF> at) {
        status->setText(at ? under_pointer(rs, picture, *at, upper) : QString());
    };
}

void align_time_labels(FormWindow& window, const TimeScreen& f) {
    const auto align = [&](const Label& label, Qt::Alignment side) {
        static_cast<LabelView*>(window.of(label))->setAlignment(side);
    };
    // Numbers of the scales end at the plot; the lower limit's number ends at its line, the upper's begins there.
    for (const Label* label : {&f.lblMaxCps, &f.lblMaxCps2, &f.lblMaxIIS, &f.lblMaxIIS2, &f.lbl10, &f.lbl100,
                               &f.lbl1000, &f.lbl10k, &f.lbl100k, &f.lbl1m, &f.lbl10m, &f.lblLow})
        align(*label, Qt::AlignRight | Qt::AlignVCenter);
    align(f.lblUpp, Qt::AlignLeft | Qt::AlignVCenter);
    align(f.lblIIS(2), Qt::AlignCenter);
    QPalette former;
    former.setColor(QPalette::Window, QColor(150, 150, 150));
    window.of(f.pictFormer)->setPalette(former);
    window.of(f.pictFormer)->setAutoFillBackground(true);
    for (const Label* label : {&f.lblXNew, &f.lblXNew2}) window.of(*label)->setAutoFillBackground(true);
}

}  // namespace kolvar
