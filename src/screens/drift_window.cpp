// The drift of a batch and the factors that follow from it.
#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

#include "batch/drift.hpp"
#include "batch/drift_plot.hpp"
#include "batch/master_file.hpp"
#include "screens/screens.hpp"
#include "screens/sequence.hpp"
#include "screens/time_pieces.hpp"

namespace kolvar {

namespace {

// Twips.
constexpr int margin = 120;
constexpr int side_width = 4350;  // ratios with slope and correlation, what has no effect
constexpr int buttons_height = 570;
constexpr int scale_left = 600;  // numbers and ticks beside the plot
constexpr int head = 420;        // the name of the vertical axis above it
constexpr int scale_below = drift_tick_room + 2 * label_height + 60;

void lay_out_drift_window(FrmDrift& form) {
    Picture& plot = form.pictDrift;
    plot.place(margin + scale_left, head);
    if (!plot.sized_by_hand) {
        plot.width = std::max(form.width - plot.left - side_width - 2 * margin, 300);
        plot.height = std::max(form.height - head - scale_below - buttons_height - 2 * margin, 300);
    }
    place(form.pictTicksX, plot.left, plot.top + plot.height, plot.width, drift_tick_room);
    place(form.pictTicksY, plot.left - drift_tick_room, plot.top, drift_tick_room, plot.height);
    place(form.lblCF, plot.left, margin, 2550, label_height);
    place(form.lblExpected, plot.left + 2610, margin, 2100, label_height);
    place(form.lblPosition, plot.left, plot.top + plot.height + drift_tick_room + label_height, plot.width,
          label_height);
    place(form.pictSide, form.width - margin - side_width, head, side_width,
          form.height - head - buttons_height - 2 * margin);
    place(form.pictButtons, margin, form.height - buttons_height - margin, form.width - 2 * margin, buttons_height);
}

void open_drift(Context& context) {
    RunState& rs = context.rs;
    FrmDrift& form = context.forms.frm_drift;
    form.title = "Drift plot of " + rs.MasterName;
    // Nothing is left of the batch that the window showed before.
    for (double* figure : {&rs.DriftA68, &rs.DriftB68, &rs.DriftR68, &rs.DriftA75, &rs.DriftB75, &rs.DriftR75,
                           &rs.DriftA76, &rs.DriftB76, &rs.DriftR76})
        *figure = 0;
    for (Label* shown :
         {&form.lblLR68b, &form.lblLR68r, &form.lblLR75b, &form.lblLR75r, &form.lblLR76b, &form.lblLR76r})
        shown->text.clear();
    for (Picture* drawn : {&form.pictDrift, &form.pictTicksX, &form.pictTicksY})
        if (!drawn->canvas.commands().empty()) drawn->canvas.Clear();
    form.hide_axes();
    form.plotted = false;
    form.cmdAccept.enabled = false;
    form.cmdAccept.visible = rs.SeqPhase != 3;
    draw_drift_legends(form);
    lay_out_drift_window(form);
}

// Only the picture follows the size; factors and lines stay as they were plotted.
void resize_drift(Context& context) {
    FrmDrift& form = context.forms.frm_drift;
    lay_out_drift_window(form);
    if (form.plotted) draw_drift(context.rs, form);
}

// Factors and where the batch stood, for the case that they can't be written.
class FormerFactors {
public:
    explicit FormerFactors(const RunState& rs) : phase_(rs.SeqPhase), samples_(rs.SeqSamDone) {
        for (int i = 1; i <= rs.SeqCount; ++i) factors_.emplace_back(rs.MasterRecs(i, 5), rs.MasterRecs(i, 7));
    }
    void put_back(RunState& rs) const {
        for (int i = 1; i <= rs.SeqCount; ++i)
            std::tie(rs.MasterRecs(i, 5), rs.MasterRecs(i, 7)) = factors_[static_cast<std::size_t>(i) - 1];
        rs.SeqPhase = phase_;
        rs.SeqSamDone = samples_;
    }

private:
    std::vector<std::pair<Value, Value>> factors_;
    int phase_, samples_;
};

void cmdAccept(Context& context) {
    RunState& rs = context.rs;
    FrmDrift& form = context.forms.frm_drift;
    const FormerFactors former(rs);
    write_factors(rs);
    rs.SeqSamDone = rs.SeqStdDone;
    form.cmdAccept.enabled = false;
    rs.SeqPhase = 3;
    rs.ListMode = 1;
    if (!SaveMaster(rs, context.os, context.forms.frm_FileList.FlexGrid2, rs.MasterPath)) {
        // The list holds what the file holds, and the same button tries again.
        former.put_back(rs);
        form.cmdAccept.enabled = true;
        return;
    }
    context.shell.close(form);
    // The walk goes on with the samples: the strip says so, and a standard in work can't be saved any more.
    show_sequence(context);
}

}  // namespace

void connect_drift(Program& program) {
    Context& context = program.context();
    FrmDrift& form = context.forms.frm_drift;
    program.shell().set_hooks(form, {[&context] { open_drift(context); }, {}});
    program.on(form, "Command1", EventKind::click,
               [&context](const Event&) { plot_drift(context.rs, context.forms.frm_drift); });
    program.on(form, "cmdAccept", EventKind::click, [&context](const Event&) { cmdAccept(context); });
    program.on(form, "cmdClose", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frm_drift); });
    for (const char* sized : {"", "pictDrift"})
        program.on(form, sized, EventKind::resize, [&context](const Event&) { resize_drift(context); });
}

}  // namespace kolvar
